#include "host/drawing/records/HeaderVariables.h"

namespace host::drawing {

namespace {

constexpr int nameCode = 9;

/// `value` under the group code and with the number of coordinates that the file has for the variable.
Field inStyleOf(const Field &old, const Field &value)
{
    if (std::holds_alternative<Vec2>(old.value) && std::holds_alternative<Vec3>(value.value))
        return {old.code, value.point().xy()};
    if (std::holds_alternative<Vec3>(old.value) && std::holds_alternative<Vec2>(value.value))
        return {old.code, value.point()};
    return {old.code, value.value};
}

} // namespace

std::optional<Field> HeaderVariables::get(QStringView name) const
{
    const RecordId variable = record(name);
    if (!isValid(variable))
        return std::nullopt;
    FieldList fields = m_drawing.fields(variable);
    return fields.size() < 2 ? std::nullopt : std::optional<Field>(std::move(fields[1]));
}

QString HeaderVariables::text(QStringView name, const QString &otherwise) const
{
    const std::optional<Field> field = get(name);
    return field ? field->text() : otherwise;
}

double HeaderVariables::real(QStringView name, double otherwise) const
{
    const std::optional<Field> field = get(name);
    return field ? field->real() : otherwise;
}

qint64 HeaderVariables::integer(QStringView name, qint64 otherwise) const
{
    const std::optional<Field> field = get(name);
    return field ? field->integer() : otherwise;
}

Vec3 HeaderVariables::point(QStringView name, const Vec3 &otherwise) const
{
    const std::optional<Field> field = get(name);
    return field ? field->point() : otherwise;
}

std::vector<QString> HeaderVariables::names() const
{
    std::vector<QString> names;
    const RecordId section = m_drawing.sectionRecord(Section::Header);
    if (!isValid(section))
        return names;
    for (const RecordId variable : m_drawing.children(section))
        names.push_back(QString::fromLatin1(m_drawing.typeName(variable)));
    return names;
}

bool HeaderVariables::set(QStringView name, const Field &value)
{
    const RecordId variable = record(name);
    if (isValid(variable)) {
        const FieldList fields = m_drawing.fields(variable);
        const Field wanted = fields.size() < 2 ? value : inStyleOf(fields[1], value);
        return m_drawing.setFields(variable, {fields.front(), wanted});
    }
    const RecordId section = m_drawing.sectionRecord(Section::Header);
    if (!isValid(section))
        return false;
    m_drawing.insert(noRecord, section, RecordKind::Variable, {{nameCode, name.toString().toUpper()}, value});
    return true;
}

RecordId HeaderVariables::record(QStringView name) const
{
    const quint64 revision = m_drawing.structureRevision(Section::Header);
    if (m_revision != revision) {
        m_byName.clear();
        const RecordId section = m_drawing.sectionRecord(Section::Header);
        for (const RecordId variable : isValid(section) ? m_drawing.children(section) : std::vector<RecordId>()) {
            const QByteArray key = m_drawing.typeName(variable).toByteArray().toUpper();
            if (!m_byName.contains(key))
                m_byName.insert(key, variable);
        }
        m_revision = revision;
    }
    return m_byName.value(name.toLatin1().toUpper(), noRecord);
}

} // namespace host::drawing
