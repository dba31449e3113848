#pragma once

#include "host/drawing/records/Drawing.h"

#include <QHash>

#include <optional>

namespace host::drawing {

/// The variables of the HEADER section. Names have the $ in front and any letter case; of one that stands there twice
/// the first counts. Finding one costs constant time until variables are added or taken away.
///
/// A variable that the file leaves out has no value here: what the format takes for it is the caller's to know.
class HeaderVariables
{
public:
    explicit HeaderVariables(Drawing &drawing) : m_drawing(drawing) {}

    /// The value with its group code; nothing when the file does not have the variable.
    std::optional<Field> get(QStringView name) const;
    // `otherwise` stands for a variable that the file does not have. One of another type gives what Field makes of it:
    // no text, 0, the origin.
    QString text(QStringView name, const QString &otherwise = {}) const;
    double real(QStringView name, double otherwise = 0.0) const;
    qint64 integer(QStringView name, qint64 otherwise = 0) const;
    Vec3 point(QStringView name, const Vec3 &otherwise = {}) const;
    /// All names in the file's spelling and order.
    std::vector<QString> names() const;

    /// Changes the variable, keeping the group code and the number of coordinates that the file has for it; adds it
    /// with the given code behind the others when it is missing. False when the drawing was so already, or has no
    /// HEADER section.
    bool set(QStringView name, const Field &value);

    /// The record of a variable, noRecord when there is none; its name is its type, its value its second field.
    RecordId record(QStringView name) const;

private:
    Drawing &m_drawing;
    mutable QHash<QByteArray, RecordId> m_byName;
    mutable quint64 m_revision = ~quint64(0);
};

} // namespace host::drawing
