#include "host/drawing/references/LinetypeSource.h"

#include "host/drawing/records/Journal.h"
#include "host/drawing/records/Tables.h"
#include "host/drawing/tags/DrawingTexts.h"

#include <cmath>

namespace host::drawing {

using namespace Qt::StringLiterals;

namespace {

constexpr double largestLength = 1e9;
/// More elements than any program takes in a pattern; a damaged file must not fill the drawing.
constexpr std::size_t mostDashes = 200;

/// A number, plain or with a letter of an angle's unit behind: degrees, grads or radians. Nothing for another text.
std::optional<double> number(QStringView text)
{
    double factor = 1.0;
    const QChar unit = text.isEmpty() ? QChar() : text.back().toLower();
    if (unit == u'd' || unit == u'g' || unit == u'r') {
        factor = unit == u'g' ? 0.9 : unit == u'r' ? 180.0 / M_PI : 1.0;
        text.chop(1);
    }
    bool isNumber = false;
    const double value = text.trimmed().toDouble(&isNumber) * factor;
    return isNumber && std::isfinite(value) && std::abs(value) <= largestLength ? std::optional(value) : std::nullopt;
}

/// Takes over "S=2.5" or its like; false when it is not understood.
bool readProperty(DefinedDash &dash, QStringView property)
{
    const qsizetype equals = property.indexOf(u'=');
    const std::optional<double> value = equals > 0 ? number(property.sliced(equals + 1).trimmed()) : std::nullopt;
    if (!value)
        return false;
    const QStringView key = property.first(equals).trimmed();
    if (key.compare(u"S", Qt::CaseInsensitive) == 0)
        dash.scale = *value;
    else if (key.compare(u"X", Qt::CaseInsensitive) == 0)
        dash.offset.x = *value;
    else if (key.compare(u"Y", Qt::CaseInsensitive) == 0)
        dash.offset.y = *value;
    else if (key.size() == 1 && u"RAUrau"_s.contains(key.front()))
        dash.rotation = *value;
    else
        return false;
    dash.isRotationAbsolute |= key.compare(u"A", Qt::CaseInsensitive) == 0;
    return true;
}

/// Reads a pattern from left to right.
class PatternReader
{
public:
    PatternReader(QStringView pattern, LinetypeDefinition &definition) : m_rest(pattern), m_definition(definition) {}

    void read()
    {
        if (takeField().compare(u"A", Qt::CaseInsensitive) != 0)
            return fail(DrawingTexts::tr("the pattern does not begin with \"A\""));
        while (!m_rest.isEmpty() && m_definition.error.isEmpty()) {
            m_rest = m_rest.trimmed();
            if (m_rest.startsWith(u'['))
                takeSign();
            else
                takeDash();
        }
        if (m_definition.error.isEmpty() && m_definition.dashes.empty())
            fail(DrawingTexts::tr("the pattern is empty"));
    }

private:
    void fail(const QString &reason) { m_definition.error = reason; }

    /// Up to the next comma, which goes too.
    QStringView takeField()
    {
        const qsizetype comma = m_rest.indexOf(u',');
        const QStringView field = comma < 0 ? m_rest : m_rest.first(comma);
        m_rest = comma < 0 ? QStringView() : m_rest.sliced(comma + 1);
        return field.trimmed();
    }

    void takeDash()
    {
        const QStringView field = takeField();
        const std::optional<double> length = number(field);
        if (!length)
            return fail(DrawingTexts::tr("\"%1\" is no length").arg(field.left(20)));
        if (m_definition.dashes.size() == mostDashes)
            return fail(DrawingTexts::tr("the pattern is too long"));
        m_definition.dashes.push_back({.length = *length});
    }

    /// ["TEXT",STYLE,S=1,...] or [SHAPE,FILE,S=1,...], which belongs to the element before it.
    void takeSign()
    {
        const bool isText = m_rest.startsWith(u"[\"");
        const qsizetype begin = isText ? m_rest.indexOf(u'"', 2) : 0;
        const qsizetype end = begin < 0 ? -1 : m_rest.indexOf(u']', begin + 1);
        if (end < 0 || m_definition.dashes.empty())
            return fail(DrawingTexts::tr("a text or shape is not closed, or stands in front of all dashes"));
        DefinedDash &dash = m_definition.dashes.back();
        const QList<QStringView> fields = m_rest.sliced(begin + 1, end - begin - 1).split(u',');
        dash.text = isText ? m_rest.sliced(2, begin - 2).toString() : QString();
        dash.shape = isText ? QString() : fields[0].trimmed().toString();
        dash.style = fields.value(1).trimmed().toString();
        if (!isText && (dash.shape.isEmpty() || dash.style.isEmpty()))
            return fail(DrawingTexts::tr("a shape needs its name and its file"));
        for (qsizetype i = 2; i < fields.size(); ++i) {
            if (!readProperty(dash, fields[i]))
                return fail(DrawingTexts::tr("\"%1\" is not understood").arg(fields[i].left(20)));
        }
        m_rest = m_rest.sliced(end + 1);
        if (const QStringView behind = takeField(); !behind.isEmpty())
            fail(DrawingTexts::tr("\"%1\" is not understood").arg(behind.left(20)));
    }

    QStringView m_rest;
    LinetypeDefinition &m_definition;
};

/// What a dash refers to.
struct DashSign
{
    Handle style{};
    int shape = 0;
    QString error{};
};

DashSign textOf(const Drawing &drawing, const DefinedDash &dash)
{
    const RecordId style = drawing.tables().find(TableKind::Style, dash.style);
    if (!isValid(style))
        return {.error = DrawingTexts::tr("text style \"%1\" is not in the drawing").arg(dash.style)};
    return {.style = drawing.handle(style)};
}

/// By its number no file is needed.
DashSign shapeOf(const DefinedDash &dash, ShapeFiles &shapes)
{
    bool isNumber = false;
    const int number = dash.shape.toInt(&isNumber);
    const ShapeFile *file = shapes.find(dash.style);
    const std::optional<int> found = isNumber ? number : file ? file->numberOf(dash.shape) : std::nullopt;
    if (!found && !file)
        return {.error = DrawingTexts::tr("the shape file \"%1\" is not found").arg(dash.style)};
    if (!found || *found <= 0)
        return {.error = DrawingTexts::tr("shape \"%1\" is not in the file \"%2\"").arg(dash.shape, dash.style)};
    return {.shape = *found};
}

bool isPlainDash(const DefinedDash &dash)
{
    return dash.text.isEmpty() && dash.shape.isEmpty();
}

void appendDash(FieldList &fields, const DefinedDash &dash, const DashSign &sign)
{
    constexpr qint64 flagAbsoluteRotation = 1;
    constexpr qint64 flagText = 2;
    constexpr qint64 flagShape = 4;
    const qint64 kind = !dash.text.isEmpty() ? flagText : sign.shape != 0 ? flagShape : 0;
    fields.push_back({49, dash.length});
    fields.push_back({74, kind == 0 || !dash.isRotationAbsolute ? kind : kind | flagAbsoluteRotation});
    if (kind == 0)
        return;
    for (const Field &field : FieldList{{75, qint64(sign.shape)},
                                        {340, sign.style},
                                        {46, dash.scale},
                                        {50, dash.rotation},
                                        {44, dash.offset.x},
                                        {45, dash.offset.y}})
        fields.push_back(field);
    if (kind == flagText)
        fields.push_back({9, dash.text});
}

/// Description, length and elements as the drawing keeps them; empty, with `error` set, when something is missing.
/// Nothing is made in the drawing before all is found.
FieldList patternFields(Drawing &drawing, const LinetypeDefinition &definition, ShapeFiles &shapes, QString &error)
{
    std::vector<DashSign> signs;
    for (const DefinedDash &dash : definition.dashes) {
        if (!isPlainDash(dash) && drawing.version() < Version::R13) {
            error = DrawingTexts::tr("a drawing of this version has no texts and shapes in linetypes");
            return {};
        }
        signs.push_back(!dash.text.isEmpty()    ? textOf(drawing, dash)
                        : !dash.shape.isEmpty() ? shapeOf(dash, shapes)
                                                : DashSign{});
        error = signs.back().error;
        if (!error.isEmpty())
            return {};
    }
    double length = 0.0;
    FieldList dashes;
    for (std::size_t i = 0; i < signs.size(); ++i) {
        const DefinedDash &dash = definition.dashes[i];
        if (signs[i].shape != 0)
            signs[i].style = drawing.handle(shapeFileStyle(drawing, dash.style));
        appendDash(dashes, dash, signs[i]);
        length += std::abs(dash.length);
    }
    FieldList fields = {
        {3, definition.description}, {72, qint64('A')}, {73, qint64(definition.dashes.size())}, {40, length}};
    fields.insert(fields.end(), dashes.begin(), dashes.end());
    return fields;
}

bool isPatternCode(int code)
{
    static constexpr int codes[] = {3, 72, 73, 40, 49, 74, 75, 340, 46, 50, 44, 45, 9};
    return std::ranges::find(codes, code) != std::end(codes);
}

/// The entry with this pattern in place of its own.
void redefine(Drawing &drawing, RecordId entry, const FieldList &pattern)
{
    FieldList fields = drawing.fields(entry);
    std::erase_if(fields, [](const Field &field) { return isPatternCode(field.code); });
    const auto isExtra = [](const Field &field) { return field.code >= 1000; };
    fields.insert(std::ranges::find_if(fields, isExtra), pattern.begin(), pattern.end());
    drawing.tables().modify(entry, fields);
}

} // namespace

std::vector<LinetypeDefinition> readLinetypeSource(QByteArrayView text)
{
    std::vector<LinetypeDefinition> definitions;
    QString pattern;
    const auto finish = [&] {
        if (!definitions.empty())
            PatternReader(pattern, definitions.back()).read();
        pattern.clear();
    };
    const QString whole = QString::fromUtf8(text);
    for (const QStringView raw : QStringView(whole).split(u'\n')) {
        const QStringView line = raw.trimmed();
        if (line.startsWith(u'*')) {
            finish();
            const qsizetype comma = line.indexOf(u',');
            definitions.push_back({.name = line.sliced(1, (comma < 0 ? line.size() : comma) - 1).trimmed().toString(),
                                   .description = comma < 0 ? QString() : line.sliced(comma + 1).toString()});
        } else if (!line.startsWith(u';') && !definitions.empty()) {
            if (!pattern.isEmpty() && !line.isEmpty() && !pattern.endsWith(u','))
                pattern += u',';
            pattern += line;
        }
    }
    finish();
    return definitions;
}

QString loadLinetype(Drawing &drawing, const LinetypeDefinition &definition, ShapeFiles &shapes)
{
    const JournalGroup group(drawing.journal(), u"LTYPE"_s);
    QString error = definition.name.isEmpty() ? DrawingTexts::tr("the name cannot be used") : definition.error;
    const FieldList pattern = error.isEmpty() ? patternFields(drawing, definition, shapes, error) : FieldList();
    if (!error.isEmpty())
        return error;
    const RecordId present = drawing.tables().find(TableKind::Linetype, definition.name);
    if (isValid(present))
        redefine(drawing, present, pattern);
    else if (!isValid(drawing.tables().add(TableKind::Linetype, definition.name, pattern)))
        return DrawingTexts::tr("the name cannot be used");
    return {};
}

} // namespace host::drawing
