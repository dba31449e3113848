#include "host/drawing/selection/ImpliedFields.h"

#include "host/drawing/records/Entities.h"
#include "host/drawing/records/Layouts.h"
#include "host/drawing/tags/GroupCodes.h"
#include "host/drawing/text/ParagraphText.h"

#include <QHash>

#include <numbers>
#include <utility>

namespace host::drawing {

using namespace Qt::StringLiterals;

namespace {

constexpr int vertexCode = 10;
constexpr int constantWidthCode = 43;
constexpr int polylineHead[] = {70, constantWidthCode, 38, 39};

const Field extrusion{210, Vec3{0.0, 0.0, 1.0}};

FieldList joined(FieldList fields, const FieldList &more)
{
    fields.insert(fields.end(), more.begin(), more.end());
    return fields;
}

FieldList integers(std::initializer_list<int> codes)
{
    FieldList fields;
    for (const int code : codes)
        fields.push_back({code, qint64(0)});
    return fields;
}

/// What programs count on, by type.
QHash<QByteArray, FieldList> makeTable()
{
    const FieldList text = {{50, 0.0},       {41, 1.0},       {51, 0.0},    {7, u"Standard"_s},
                            {71, qint64(0)}, {72, qint64(0)}, {11, Vec3{}}, extrusion};
    const FieldList attribute = joined(text, integers({70, 73, 74}));
    const FieldList widths = {{40, 0.0}, {41, 0.0}};
    return {{"ARC", {extrusion}},
            {"ATTDEF", attribute},
            {"ATTRIB", attribute},
            {"CIRCLE", {extrusion}},
            {"ELLIPSE", {extrusion}},
            {"INSERT",
             {{41, 1.0},
              {42, 1.0},
              {43, 1.0},
              {50, 0.0},
              {70, qint64(0)},
              {71, qint64(0)},
              {44, 0.0},
              {45, 0.0},
              extrusion}},
            {"LINE", {extrusion}},
            {"LWPOLYLINE", {{70, qint64(0)}, {constantWidthCode, 0.0}, {38, 0.0}, {39, 0.0}, extrusion}},
            {"MTEXT",
             {{71, qint64(1)},
              {72, qint64(1)},
              {7, u"Standard"_s},
              {11, Vec3{1.0, 0.0, 0.0}},
              {50, 0.0},
              {73, qint64(1)},
              {44, 1.0},
              extrusion}},
            {"POINT", {extrusion, {50, 0.0}}},
            {"POLYLINE", joined(widths, joined(integers({70, 71, 72, 73, 74, 75}), {extrusion}))},
            {"RTEXT", {{50, 0.0}, {7, u"Standard"_s}, {70, qint64(0)}, extrusion}},
            {"SHAPE", {{41, 1.0}, {50, 0.0}, {51, 0.0}, extrusion}},
            {"SOLID", {extrusion}},
            {"TEXT", joined(text, integers({73}))},
            {"TRACE", {extrusion}},
            {"VERTEX", joined(widths, {{42, 0.0}, {70, qint64(0)}, {50, 0.0}})}};
}

const FieldList &usualFields(QByteArrayView type)
{
    static const QHash<QByteArray, FieldList> table = makeTable();
    static const FieldList none;
    const auto found = table.constFind(type.toByteArray());
    return found == table.constEnd() ? none : *found;
}

/// What every entity has, and no program expects to see where it is not said.
const FieldList &commonFields()
{
    static const FieldList fields = {{6, u"BYLAYER"_s},           {8, u"0"_s},       {48, 1.0}, {60, qint64(0)},
                                     {62, qint64(colourByLayer)}, {370, qint64(-1)}, extrusion};
    return fields;
}

bool isVertexGroup(int code)
{
    return code >= 40 && code <= 42;
}

bool isPaper(const Drawing &drawing, RecordId entity, const TagList &tags)
{
    if (const Tag *given = tags.find(paperSpaceCode))
        return given->integer().value_or(0) != 0;
    const QString layout = drawing.layouts().ofEntity(entity);
    return !layout.isEmpty() && layout != u"Model";
}

std::optional<Field> impliedInPolyline(const TagList &tags, int code)
{
    if (code == 42)
        return Field{code, 0.0};
    if (code != constantWidthCode)
        return Field{code, tags.real(constantWidthCode)};
    // One width for all, which each vertex may say for itself.
    std::vector<double> widths = tags.reals(40);
    const std::vector<double> ends = tags.reals(41);
    const bool isWhole = widths.size() == tags.points(vertexCode).size() && ends.size() == widths.size();
    widths.insert(widths.end(), ends.begin(), ends.end());
    const double width = isWhole && !widths.empty() ? widths.front() : 0.0;
    if (std::ranges::any_of(widths, [width](double each) { return each != width; }))
        return std::nullopt;
    return Field{code, width};
}

Field impliedInParagraph(const TagList &tags, int code)
{
    const Vec3 direction = paragraphDirection(tags);
    if (code == 11)
        return {code, direction};
    return {code, angleInPlane(direction, tags.point(210, {0.0, 0.0, 1.0})) * 180.0 / std::numbers::pi};
}

/// The owner's group among a record's fields; fields.end() when there is none.
FieldList::const_iterator findOwner(const FieldList &fields)
{
    const auto head = std::find_if(fields.begin(), fields.end(), [](const Field &field) { return field.code == 100; });
    BraceDepth braces;
    const auto owner = std::find_if(
        fields.begin(), head, [&](const Field &field) { return !braces.isInside(field) && field.code == ownerCode; });
    return owner == head ? fields.end() : owner;
}

/// Puts the fields of one record into the order that programs see.
class Showing
{
public:
    Showing(const Drawing &drawing, RecordId record, const FieldList &fields)
        : m_fields(fields), m_drawing(drawing), m_record(record), m_tags(drawing.tags(record)),
          m_isLightPolyline(drawing.isType(record, "LWPOLYLINE"))
    {
    }

    std::vector<ShownField> take()
    {
        const auto owner = hasMarkers() ? findOwner(m_fields) : m_fields.end();
        const auto end = ownEnd(m_fields);
        for (auto field = m_fields.begin(); field != m_fields.end() && field->code != applicationCode; ++field) {
            if (field == end)
                showImplied();
            if (field == owner)
                continue;
            if (m_isLightPolyline && field->code == vertexCode)
                showPolylineHead();
            show(field);
            if (field->code == 0 && owner != m_fields.end())
                show(owner);
            if (field->code == 100 && field->text() == u"AcDbEntity")
                showSpace();
            if (m_isLightPolyline && field->code == vertexCode)
                showVertex(field);
        }
        if (end == m_fields.end() || end->code == applicationCode)
            showImplied();
        return std::move(m_shown);
    }

private:
    bool hasMarkers() const { return m_drawing.version() >= Version::R13; }

    void show(FieldList::const_iterator field)
    {
        m_shown.push_back({*field, static_cast<int>(field - m_fields.begin())});
    }

    void showImplied(int code)
    {
        if (const std::optional<Field> field = impliedField(m_drawing, m_record, m_tags, code))
            m_shown.push_back({*field, ShownField::implied});
    }

    void showImplied()
    {
        showPolylineHead();
        for (const Field &usual : usualFields(m_drawing.typeName(m_record)))
            if (!m_tags.find(usual.code) && !isOfPolylineHead(usual.code))
                showImplied(usual.code);
        showSpace();
    }

    /// Programs tell spaces apart by these two.
    void showSpace()
    {
        const bool isEntity = m_drawing.kind(m_record) == RecordKind::Entity;
        if (std::exchange(m_hasSpace, true) || !isEntity || m_drawing.version() < Version::R2000)
            return;
        for (const int code : {paperSpaceCode, layoutNameCode})
            if (!m_tags.find(code))
                showImplied(code);
    }

    bool isOfPolylineHead(int code) const
    {
        return m_isLightPolyline && std::ranges::find(polylineHead, code) != std::end(polylineHead);
    }

    /// Width, elevation and thickness stand before the vertices: programs take "all behind the thickness" for these.
    void showPolylineHead()
    {
        if (!m_isLightPolyline || std::exchange(m_hasPolylineHead, true))
            return;
        for (const int code : polylineHead)
            if (!m_tags.find(code))
                showImplied(code);
    }

    /// What the vertex lacks of widths and bulge; they stand directly behind it.
    void showVertex(FieldList::const_iterator vertex)
    {
        const auto end =
            std::find_if(vertex + 1, m_fields.end(), [](const Field &field) { return !isVertexGroup(field.code); });
        for (int code = 40; code <= 42; ++code)
            if (std::none_of(vertex + 1, end, [code](const Field &field) { return field.code == code; }))
                showImplied(code);
    }

    const FieldList &m_fields;
    const Drawing &m_drawing;
    RecordId m_record;
    TagList m_tags;
    bool m_isLightPolyline;
    bool m_hasSpace = false;
    bool m_hasPolylineHead = false;
    std::vector<ShownField> m_shown;
};

} // namespace

std::optional<Field> impliedField(const Drawing &drawing, RecordId entity, const TagList &tags, int code)
{
    const QByteArrayView type = drawing.typeName(entity);
    if (code == paperSpaceCode)
        return Field{code, qint64(isPaper(drawing, entity, tags) ? 1 : 0)};
    if (code == layoutNameCode) {
        const QString layout = drawing.layouts().ofEntity(entity);
        return layout.isEmpty() ? std::nullopt : std::optional(Field{code, layout});
    }
    if (!isImpliedByType(type, code)) {
        if (type == "LWPOLYLINE")
            return impliedInPolyline(tags, code);
        if (type == "VERTEX")
            return Field{code, drawing.tags(drawing.parent(entity)).real(code)};
        return impliedInParagraph(tags, code);
    }
    for (const FieldList *usual : {&usualFields(type), &commonFields()})
        if (const Field *field = findField(*usual, code))
            return *field;
    return std::nullopt;
}

bool isImpliedByType(QByteArrayView type, int code)
{
    const bool isOfPolyline = type == "LWPOLYLINE" && (isVertexGroup(code) || code == constantWidthCode);
    const bool isOfVertex = type == "VERTEX" && (code == 40 || code == 41);
    const bool isOfParagraph = type == "MTEXT" && (code == 11 || code == 50);
    return code != paperSpaceCode && code != layoutNameCode && !isOfPolyline && !isOfVertex && !isOfParagraph;
}

bool isImpliedBeside(const Drawing &drawing, RecordId entity, int code)
{
    if (!isVertexGroup(code) || !drawing.isType(entity, "LWPOLYLINE"))
        return false;
    const TagList tags = drawing.tags(entity);
    return tags.reals(code).size() < tags.reals(vertexCode).size();
}

std::vector<ShownField> shownFields(const Drawing &drawing, RecordId record, const FieldList &fields)
{
    return Showing(drawing, record, fields).take();
}

} // namespace host::drawing
