#pragma once

#include "dialogs/tracktime/OpenDrawings.h"

#include <QStringList>

#include <functional>

/// A drawing file with its editing time and what the user wants changed about it.
struct DrawingTime
{
    QString path;
    QString name; ///< the path from the folder that was listed
    bool isOpen = false;
    /// As the drawing has it; nothing without a record or with a damaged one.
    std::optional<ortakit::EditingTime> stored = {};
    /// Why the file cannot be read as a drawing; empty when it can. It cannot be changed then.
    QString problem = {};
    ortakit::EditingTimeChange change = {};

    /// As it will be.
    ortakit::EditingTime time() const;
    bool isChanged() const { return change != ortakit::EditingTimeChange(); }
    /// Whether there is an idle limit to change: what was never tracked has none, and what is damaged stays as it is
    /// until it is tracked.
    bool hasLimit() const { return stored || time().isTracked; }
    bool isReadable() const { return problem.isEmpty(); }

    /// A drawing that was not tracked before begins with `limitOfNew`.
    void setTracked(bool isTracked, qint32 limitOfNew);
    void setIdleLimit(qint32 minutes);
    void reset() { change.isReset = stored && stored->hours > 0; }
};

/// The columns of the table.
enum class TimeColumn
{
    Name,
    Tracked,
    Hours
};

/// The paths of the drawing files ("*.dwg" and "*.dxf" in any case) of `folder`, of its sub-folders as well where
/// `withSubFolders` says so, in no particular order. `goesOn` is asked before each entry; false, and nothing else has
/// happened, once it says no. Links to folders are not followed.
bool findDrawings(const QString &folder, bool withSubFolders, const std::function<bool()> &goesOn, QStringList &paths);

/// Reads the editing time of a file, or takes that of an open drawing.
class DrawingTimeReader
{
public:
    DrawingTimeReader(const QString &folder, const QList<OpenDrawings::Drawing> &open);
    DrawingTime read(const QString &path) const;

private:
    QString m_folder;
    QList<OpenDrawings::Drawing> m_open;
};

/// Writes what is changed about a drawing that is not open to its file, over what that holds now. Empty, or the reason
/// why it could not be.
QString writeToFile(const DrawingTime &drawing);

/// The numbers of the drawings in the order of a column. Equal ones keep the order of their numbers.
QList<int> sortedBy(TimeColumn column, Qt::SortOrder order, const QList<DrawingTime> &drawings);

/// "2.50".
QString hoursText(double hours);
