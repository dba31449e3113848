#include "host/kernel/variables/SystemVariables.h"

#include "host/drawing/editing/WipeoutFrame.h"
#include "host/drawing/records/HeaderVariables.h"
#include "host/kernel/documents/CurrentSpace.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/documents/Session.h"
#include "host/kernel/platform/Editor.h"
#include "host/kernel/variables/HostVariables.h"

#include <QtMath>

namespace host::kernel {

namespace {

using drawing::Field;
using drawing::TagType;
using drawing::Vec2;
using drawing::Vec3;

/// Group code of angles in the header: degrees in the file, radians for programs.
constexpr int angleCode = 50;

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

/// `value` as the kind that `like` is; nothing when it cannot be.
std::optional<VariableValue> convertedTo(const VariableValue &like, const VariableValue &value)
{
    if (like.index() == value.index())
        return value;
    if (std::holds_alternative<double>(like) && std::holds_alternative<qint32>(value))
        return double(std::get<qint32>(value));
    if (std::holds_alternative<Vec3>(like) && std::holds_alternative<Vec2>(value)) {
        const Vec2 flat = std::get<Vec2>(value);
        return Vec3{flat.x, flat.y, 0.0};
    }
    if (std::holds_alternative<Vec2>(like) && std::holds_alternative<Vec3>(value))
        return std::get<Vec3>(value).xy();
    return {};
}

bool isInRange(const HostVariable &variable, const VariableValue &value)
{
    if (variable.low >= variable.high)
        return true;
    double number = 0.0;
    if (const auto *integer = std::get_if<qint32>(&value))
        number = *integer;
    else if (const auto *real = std::get_if<double>(&value))
        number = *real;
    else
        return true;
    return number >= variable.low && number <= variable.high;
}

/// CECOLOR is text to programs and a number in the file.
qint64 colourNumber(const QString &text)
{
    if (text.compare(QStringLiteral("BYLAYER"), Qt::CaseInsensitive) == 0)
        return 256;
    return text.compare(QStringLiteral("BYBLOCK"), Qt::CaseInsensitive) == 0 ? 0 : text.toInt();
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

std::optional<VariableValue> SystemVariables::get(QStringView name) const
{
    const QString upper = name.toString().toUpper();
    const HostVariable *variable = findHostVariable(upper);
    if (!variable)
        return headerValue(upper);
    switch (variable->place) {
    case VariablePlace::Header:
        // A file may have the wrong group code; programs rely on the kind.
        if (const std::optional<VariableValue> value = headerValue(upper))
            if (std::optional<VariableValue> usual = convertedTo(variable->initial, *value))
                return usual;
        return m_values.value(upper, variable->initial);
    case VariablePlace::Host:
        return m_values.value(upper, variable->initial);
    case VariablePlace::Computed:
        break;
    }
    const auto stored = m_values.constFind(upper);
    return stored != m_values.constEnd() ? *stored : variable->compute(m_document);
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
    const std::optional<VariableValue> converted = convertedTo(*present, value);
    if (!converted)
        return SetOutcome::WrongType;
    if (variable &&
        (!isInRange(*variable, *converted) || (variable->accepts && !variable->accepts(m_document, *converted))))
        return SetOutcome::OutOfRange;
    m_document.session().editor().sysVarWillChange(m_document.database(), name.toString());
    setInternally(upper, *converted);
    return SetOutcome::Done;
}

void SystemVariables::setInternally(QStringView name, const VariableValue &value)
{
    const QString upper = name.toString().toUpper();
    const HostVariable *variable = findHostVariable(upper);
    drawing::HeaderVariables &header = m_document.drawing().header();
    if (upper == QStringLiteral("CECOLOR")) {
        header.set(u"$CECOLOR", Field{62, colourNumber(std::get<QString>(value))});
    } else if (upper == QStringLiteral("CTAB")) {
        setCurrentLayout(m_document.drawing(), std::get<QString>(value));
    } else if (upper == QStringLiteral("LOGFILEPATH")) {
        const QString folder = std::get<QString>(value);
        m_values.insert(upper, folder.endsWith(u'/') ? folder : folder + u'/');
    } else if (upper == QStringLiteral("LISPHEAPMAX")) {
        m_document.session().setLispHeapLimit(std::get<qint32>(value));
    } else if (upper == QStringLiteral("TRUSTEDPATHS") || upper == QStringLiteral("READPATHS")) {
        const auto list = upper.startsWith(u'T') ? TrustedFolders::List::Run : TrustedFolders::List::Read;
        if (!m_document.session().trustedFolders().setNamed(std::get<QString>(value), list))
            m_document.print(QStringLiteral("\n%1 cannot be kept.\n").arg(upper));
    } else if (variable && variable->place != VariablePlace::Header) {
        m_values.insert(upper, value);
    } else {
        const QString headed = headerName(m_document.drawing(), upper);
        const std::optional<Field> present = header.get(headed);
        const int code = present ? present->code : variable ? variable->code : 1;
        const bool isOfOther =
            isOfSheet(m_document.drawing(), upper) && layoutCode(upper) != 0 && !isSheetInHeader(m_document.drawing());
        if (!isOfOther)
            header.set(headed, headerField(code, value));
        if (const auto *limit = std::get_if<Vec2>(&value); limit && isOfSheet(m_document.drawing(), upper))
            setLayoutLimit(m_document.drawing(), layoutCode(upper), *limit);
        // Old files may have no header at all: there the value lasts as long as the document is open.
        if (!header.get(headed))
            m_values.insert(upper, value);
    }
    if (upper == QStringLiteral("CTAB") || upper == QStringLiteral("TILEMODE"))
        m_document.followLayout();
}

void SystemVariables::storeObjectSettings()
{
    const auto frame = m_values.constFind(wipeoutFrame);
    if (frame == m_values.constEnd())
        return;
    const qint32 value = std::get<qint32>(*frame);
    drawing::Drawing &drawing = m_document.drawing();
    // In a version that has no such object the value lasts as long as the document is open.
    if (drawing::wipeoutFrame(drawing) == value || drawing::setWipeoutFrame(drawing, value))
        m_values.erase(frame);
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
    if (!value)
        return {};
    const auto number = [](double real) { return QString::number(real, 'g', 12); };
    if (const auto *integer = std::get_if<qint32>(&*value))
        return QString::number(*integer);
    if (const auto *real = std::get_if<double>(&*value))
        return number(*real);
    if (const auto *flat = std::get_if<Vec2>(&*value))
        return number(flat->x) + u',' + number(flat->y);
    if (const auto *point = std::get_if<Vec3>(&*value))
        return number(point->x) + u',' + number(point->y) + u',' + number(point->z);
    return std::get<QString>(*value);
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
