#pragma once

#include <QMap>
#include <QString>

namespace host::view {

/// What of a space can be drawn. Contents of a block count once, however often it is inserted.
struct RenderReport
{
    qint64 drawn = 0;                 ///< records drawn as they are
    qint64 hidden = 0;                ///< records that say they are invisible
    QMap<QString, qint64> simplified; ///< drawn, but not all of it, by type ("IMAGE": its frame)
    QMap<QString, qint64> skipped;    ///< not drawn, by type; "XREF" is an insert of a drawing that is not here
    bool isCutShort = false;          ///< there was more to show than is drawn in one go; who painted it knows

    /// What both show together; what is in both counts twice.
    void add(const RenderReport &other);
    bool isWhole() const { return simplified.isEmpty() && skipped.isEmpty() && !isCutShort; }
    qint64 skippedCount() const;
    /// What is missing, for people: "3 not drawn (3DSOLID 2, XREF 1), 1 drawn in part (IMAGE 1)"; empty when nothing
    /// is.
    QString missing() const;
    /// One line for people: "120 drawn, 2 simplified (IMAGE 2), 1 skipped (3DSOLID 1)".
    QString summary() const;
};

} // namespace host::view
