#include "host/kernel/variables/SystemVariables.h"

#include "host/drawing/editing/WipeoutFrame.h"
#include "host/drawing/records/Dictionaries.h"
#include "host/drawing/records/HeaderVariables.h"
#include "host/drawing/records/Tables.h"
#include "host/kernel/documents/CurrentSpace.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/documents/Session.h"
#include "host/kernel/languages/Texts.h"
#include "host/kernel/platform/Editor.h"
#include "host/kernel/variables/HostVariables.h"
#include "host/kernel/variables/UserVariables.h"
#include "host/kernel/variables/VariableText.h"

#include <QtMath>

namespace host::kernel {

namespace {

using drawing::Field;
using drawing::TagType;
using drawing::Vec2;
using drawing::Vec3;

/// Group code of angles in the header: degrees in the file, radians for programs.
constexpr int angleCode = 50;

/// Digits that lose nothing of a real.
constexpr int exactDigits = 17;

const QString wipeoutFrame = QStringLiteral("WIPEOUTFRAME");

/// Whether the current paper space has a value of its own for this variable.
bool isOfSheet(const drawing::Drawing &drawing, const QString &name)
{
    static const QStringList names = {QStringLiteral("LIMMIN"), QStringLiteral("LIMMAX"), QStringLiteral("LIMCHECK")};
    return names.contains(name) && currentSpace(drawing) == drawing::Space::Paper;
}

/// The group under which the layout has a variable that is of the sheet; 0 for none.
int layoutCode(const QString &name)
{
    return name == QStringLiteral("LIMMIN") ? 10 : name == QStringLiteral("LIMMAX") ? 11 : 0;
}

QString headerName(const drawing::Drawing &drawing, const QString &name)
{
    return (isOfSheet(drawing, name) ? QStringLiteral("$P") : QStringLiteral("$")) + name;
}

VariableValue fromField(const Field &field)
{
    if (const auto *point = std::get_if<Vec3>(&field.value))
        return *point;
    if (const auto *point = std::get_if<Vec2>(&field.value))
        return *point;
    if (const auto *number = std::get_if<double>(&field.value))
        return field.code == angleCode ? qDegreesToRadians(*number) : *number;
    if (const auto *number = std::get_if<qint64>(&field.value))
        return static_cast<qint32>(*number);
    return field.text();
}

Field headerField(int code, const VariableValue &value)
{
    Field field{code, {}};
    std::visit(
        [&](const auto &content) {
            using Content = std::decay_t<decltype(content)>;
            if constexpr (std::is_same_v<Content, qint32>)
                field.value = static_cast<qint64>(content);
            else if constexpr (std::is_same_v<Content, double>)
                field.value = code == angleCode ? qRadiansToDegrees(content) : content;
            else
                field.value = content;
        },
        value);
    return field;
}

/// The model's viewport; noRecord while a sheet is current, which has its own.
drawing::RecordId modelViewport(const drawing::Drawing &drawing)
{
    if (currentSpace(drawing) == drawing::Space::Paper)
        return drawing::noRecord;
    return drawing.tables().find(drawing::TableKind::Viewport, u"*Active");
}

bool hasHeader(const HostVariable &variable, drawing::Version version)
{
    return variable.since <= version && version <= variable.until;
}

} // namespace

SystemVariables::SystemVariables(Document &document) : m_document(document) {}

SystemVariables::~SystemVariables() = default;

std::optional<VariableValue> SystemVariables::headerValue(const QString &name) const
{
    const drawing::Drawing &drawing = m_document.drawing();
    if (const int code = layoutCode(name); code != 0 && isOfSheet(drawing, name))
        if (const std::optional<Vec2> corner = layoutLimit(drawing, code))
            return *corner;
    const std::optional<Field> field = drawing.header().get(headerName(drawing, name));
    if (!field)
        return {};
    return fromField(*field);
}

std::optional<VariableValue> SystemVariables::viewportValue(const HostVariable &variable) const
{
    const drawing::Drawing &drawing = m_document.drawing();
    const drawing::RecordId viewport = modelViewport(drawing);
    if (!isValid(viewport))
        return {};
    for (const Field &field : drawing.fields(viewport))
        if (field.code == variable.code)
            return fromField(field);
    return {};
}

std::optional<VariableValue> SystemVariables::userValue(const HostVariable &variable) const
{
    const std::optional<QString> text = m_document.session().userVariables().text(QString::fromLatin1(variable.name));
    const std::optional<VariableValue> value = text ? variableFromText(variable.initial, *text) : std::nullopt;
    // Anybody may have written into the file of settings.
    return value && isInRange(variable, *value) ? value : std::nullopt;
}

std::optional<VariableValue> SystemVariables::dictionaryValue(const HostVariable &variable) const
{
    const QString name = QString::fromLatin1(variable.name);
    if (m_values.contains(name))
        return {};
    const std::optional<QString> text = m_document.drawing().dictionaries().variable(name);
    return text ? variableFromText(variable.initial, *text) : headerValue(name);
}

std::optional<VariableValue> SystemVariables::storedValue(const HostVariable &variable) const
{
    switch (variable.place) {
    case VariablePlace::Header:
        return headerValue(QString::fromLatin1(variable.name));
    case VariablePlace::Viewport:
        return viewportValue(variable);
    case VariablePlace::User:
        return userValue(variable);
    case VariablePlace::Dictionary:
        return dictionaryValue(variable);
    case VariablePlace::Document:
    case VariablePlace::Computed:
        break;
    }
    return {};
}

std::optional<VariableValue> SystemVariables::get(QStringView name) const
{
    const QString upper = name.toString().toUpper();
    const HostVariable *variable = findHostVariable(upper);
    if (!variable)
        return headerValue(upper);
    // A file may have the wrong group code; programs rely on the kind.
    if (const std::optional<VariableValue> value = storedValue(*variable))
        if (std::optional<VariableValue> usual = convertedTo(variable->initial, *value))
            return usual;
    if (const auto set = m_values.constFind(upper); set != m_values.constEnd())
        return *set;
    return variable->compute ? variable->compute(m_document) : usualValue(m_document, *variable);
}

SetOutcome SystemVariables::set(QStringView name, const VariableValue &value)
{
    const QString upper = name.toString().toUpper();
    const std::optional<VariableValue> present = get(upper);
    if (!present)
        return SetOutcome::Unknown;
    const HostVariable *variable = findHostVariable(upper);
    if (variable && variable->access == VariableAccess::ReadOnly)
        return SetOutcome::ReadOnly;
    std::optional<VariableValue> wanted = convertedTo(*present, value);
    if (!wanted)
        return SetOutcome::WrongType;
    if (variable && !isInRange(*variable, *wanted))
        return SetOutcome::OutOfRange;
    if (variable && variable->accept)
        wanted = variable->accept(m_document, *wanted);
    if (!wanted)
        return SetOutcome::OutOfRange;
    m_document.session().editor().sysVarWillChange(m_document.database(), name.toString());
    setInternally(upper, *wanted);
    return SetOutcome::Done;
}

void SystemVariables::setInternally(QStringView name, const VariableValue &value)
{
    const QString upper = name.toString().toUpper();
    // A drawing that does not say what counts anyway goes on not saying it.
    if (get(upper) == value)
        return;
    const HostVariable *variable = findHostVariable(upper);
    if (variable && variable->store)
        variable->store(m_document, value);
    else if (!variable || variable->place == VariablePlace::Header)
        setInHeader(upper, variable, value);
    else if (variable->place == VariablePlace::User)
        m_document.session().userVariables().set(upper, variableText(value, exactDigits));
    else if (variable->place != VariablePlace::Viewport || !setInViewport(*variable, value))
        m_values.insert(upper, value);
    if (upper == QStringLiteral("CTAB") || upper == QStringLiteral("TILEMODE"))
        m_document.followLayout();
    emit m_document.variableChanged(upper);
}

void SystemVariables::setInHeader(const QString &name, const HostVariable *variable, const VariableValue &value)
{
    drawing::Drawing &drawing = m_document.drawing();
    const QString headed = headerName(drawing, name);
    const std::optional<Field> present = drawing.header().get(headed);
    const int code = present ? present->code : variable ? variable->code : 1;
    const bool isOfOther = isOfSheet(drawing, name) && layoutCode(name) != 0 && !isSheetInHeader(drawing);
    if (!isOfOther && (present || !variable || hasHeader(*variable, drawing.version())))
        drawing.header().set(headed, headerField(code, value));
    if (const auto *limit = std::get_if<Vec2>(&value); limit && isOfSheet(drawing, name))
        setLayoutLimit(drawing, layoutCode(name), *limit);
    // Old files may have no header at all, or none of that name: there the value lasts as long as the document is open.
    if (!drawing.header().get(headed))
        m_values.insert(name, value);
}

bool SystemVariables::setInViewport(const HostVariable &variable, const VariableValue &value)
{
    drawing::Drawing &drawing = m_document.drawing();
    const drawing::RecordId viewport = modelViewport(drawing);
    if (!isValid(viewport))
        return false;
    drawing::FieldList fields = drawing.fields(viewport);
    drawing::setField(fields, variable.code, headerField(variable.code, value).value);
    drawing.setFields(viewport, fields);
    return true;
}

void SystemVariables::storeObjectSettings()
{
    drawing::Drawing &drawing = m_document.drawing();
    // In a version that has no such objects the values last as long as the document is open.
    m_values.removeIf([&](const auto &entry) {
        const HostVariable *variable = findHostVariable(entry.key());
        if (entry.key() == wipeoutFrame) {
            const qint32 value = std::get<qint32>(entry.value());
            return drawing::wipeoutFrame(drawing) == value || drawing::setWipeoutFrame(drawing, value);
        }
        if (!variable || variable->place != VariablePlace::Dictionary)
            return false;
        const QString text = variableText(entry.value(), exactDigits);
        const std::optional<QString> present = drawing.dictionaries().variable(entry.key());
        const bool isUnsaid = !present && entry.value() == usualValue(m_document, *variable);
        return isUnsaid || present == text || drawing.dictionaries().setVariable(entry.key(), text);
    });
    if (!m_document.session().userVariables().store())
        m_document.print(Kernel::tr("\nThe user's settings cannot be kept.\n"));
}

qint32 SystemVariables::integer(QStringView name, qint32 otherwise) const
{
    const std::optional<VariableValue> value = get(name);
    const auto *number = value ? std::get_if<qint32>(&*value) : nullptr;
    return number ? *number : otherwise;
}

double SystemVariables::real(QStringView name, double otherwise) const
{
    const std::optional<VariableValue> value = get(name);
    const auto *number = value ? std::get_if<double>(&*value) : nullptr;
    const auto *integer = value ? std::get_if<qint32>(&*value) : nullptr;
    return number ? *number : integer ? *integer : otherwise;
}

drawing::Vec3 SystemVariables::point(QStringView name) const
{
    const std::optional<VariableValue> value = get(name);
    const std::optional<VariableValue> solid = value ? convertedTo(Vec3{}, *value) : std::nullopt;
    return solid ? std::get<Vec3>(*solid) : Vec3{};
}

QString SystemVariables::text(QStringView name) const
{
    const std::optional<VariableValue> value = get(name);
    const auto *content = value ? std::get_if<QString>(&*value) : nullptr;
    return content ? *content : QString();
}

QString SystemVariables::display(QStringView name) const
{
    const std::optional<VariableValue> value = get(name);
    return value ? variableText(*value) : QString();
}

bool SystemVariables::isReadOnly(QStringView name) const
{
    const HostVariable *variable = findHostVariable(name.toString().toUpper());
    return variable && variable->access == VariableAccess::ReadOnly;
}

QStringList SystemVariables::names() const
{
    QStringList all;
    for (const HostVariable &variable : hostVariables())
        all.append(QString::fromLatin1(variable.name));
    for (const QString &name : m_document.drawing().header().names())
        if (!findHostVariable(name.mid(1)))
            all.append(name.mid(1));
    all.sort();
    return all;
}

} // namespace host::kernel
