#include "host/drawing/annotation/DimensionBlock.h"

#include "host/drawing/annotation/StyleValues.h"
#include "host/drawing/math/Angles.h"
#include "host/drawing/records/Blocks.h"
#include "host/drawing/records/Entities.h"
#include "host/drawing/records/Tables.h"

#include <QRegularExpression>

#include <numbers>

namespace host::drawing {

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 ownBlockFlag = 32;
constexpr qint64 movedTextFlag = 128;
const QString pointLayer = u"Defpoints"_s;

/// A text with codes as a single line without them: stacked pieces stand side by side.
QString withoutTextCodes(QString text)
{
    static const QRegularExpression stack(u"\\\\S([^;^#/]*)[\\^#/] ?([^;]*);"_s);
    static const QRegularExpression code(u"\\\\[ACHQTWfFp][^;]*;|\\\\[LlOoKk]|[{}]"_s);
    text.replace(stack, u" \\1/\\2"_s);
    text.replace(code, QString());
    return text.replace(u"\\P"_s, u" "_s);
}

/// Turns the pieces of a picture into entities.
class PictureWriter
{
public:
    PictureWriter(Drawing &drawing, const DimensionStyle &style, const Vec3 &extrusion, double elevation)
        : m_drawing(drawing), m_style(style), m_extrusion(extrusion), m_elevation(elevation),
          m_plane(Matrix::fromExtrusion(extrusion))
    {
    }

    void addAll(const DimensionPicture &picture)
    {
        for (const DimensionPicture::Line &line : picture.lines)
            add(styled({{0, u"LINE"_s}, {10, world(line.from)}, {11, world(line.to)}}, line.part));
        for (const DimensionPicture::Arc &arc : picture.arcs)
            addArc(arc, m_style.lineColour);
        for (const DimensionPicture::Arrow &arrow : picture.arrows)
            addArrow(arrow);
        for (const DimensionPicture::Arc &sign : picture.signs)
            addArc(sign, m_style.textColour);
        if (!picture.text.content.isEmpty())
            addText(picture.text);
    }
    std::vector<FieldList> take() { return std::move(m_entities); }

private:
    using Part = DimensionPicture::Part;

    Vec3 object(Vec2 point) const { return {point.x, point.y, m_elevation}; }
    Vec3 world(Vec2 point) const { return m_plane.point(object(point)); }

    void add(FieldList fields)
    {
        const bool isFlat = fields.front().text() != u"LINE";
        if (isFlat && !(m_extrusion == Vec3{0.0, 0.0, 1.0}))
            fields.push_back({210, m_extrusion});
        m_entities.push_back(std::move(fields));
    }

    FieldList looking(FieldList fields, int colour, int weight, const QString &linetype) const
    {
        fields.push_back({8, u"0"_s});
        if (colour != colourByLayer)
            fields.push_back({62, qint64(colour)});
        const bool isThere = isValid(m_drawing.tables().find(TableKind::Linetype, linetype));
        fields.push_back({6, isThere ? linetype : u"ByBlock"_s});
        if (m_drawing.version() >= Version::R2000)
            fields.push_back({370, qint64(weight)});
        return fields;
    }

    FieldList styled(FieldList fields, Part part) const
    {
        if (part == Part::Line)
            return looking(std::move(fields), m_style.lineColour, m_style.lineWeight, m_style.lineLinetype);
        const QString &linetype =
            part == Part::FirstExtension ? m_style.firstExtensionLinetype : m_style.secondExtensionLinetype;
        return looking(std::move(fields), m_style.extensionColour, m_style.extensionWeight, linetype);
    }

    void addArc(const DimensionPicture::Arc &arc, int colour)
    {
        const double from = std::min(arc.start, arc.start + arc.sweep) / radians;
        const double to = std::max(arc.start, arc.start + arc.sweep) / radians;
        FieldList fields = {{0, u"ARC"_s}, {10, object(arc.center)}, {40, arc.radius}, {50, from}, {51, to}};
        add(looking(std::move(fields), colour, m_style.lineWeight, m_style.lineLinetype));
    }

    void addArrow(const DimensionPicture::Arrow &arrow)
    {
        const Vec2 along = arrow.direction * arrow.size;
        const Vec2 aside = turnedLeft(along);
        if (arrow.isTick) {
            const Vec2 half = (along + aside) * 0.5;
            return add(
                styled({{0, u"LINE"_s}, {10, world(arrow.tip - half)}, {11, world(arrow.tip + half)}}, Part::Line));
        }
        const QString block = ensureArrowBlock(m_drawing, m_style.arrowAt(arrow.isSecond));
        if (!block.isEmpty())
            return addArrowReference(arrow, block);
        const Vec2 back = arrow.tip - along;
        const Vec2 sixth = aside * (1.0 / 6.0);
        add(styled({{0, u"SOLID"_s},
                    {10, object(back + sixth)},
                    {11, object(back - sixth)},
                    {12, object(arrow.tip)},
                    {13, object(arrow.tip)}},
                   Part::Line));
    }

    void addArrowReference(const DimensionPicture::Arrow &arrow, const QString &block)
    {
        const double angle = std::atan2(arrow.direction.y, arrow.direction.x) / radians;
        add(styled({{0, u"INSERT"_s},
                    {2, block},
                    {10, object(arrow.tip)},
                    {41, arrow.size},
                    {42, arrow.size},
                    {43, arrow.size},
                    {50, angle < 0.0 ? angle + 360.0 : angle}},
                   Part::Line));
    }

    QString textStyle() const
    {
        const RecordId style = m_drawing.tables().find(TableKind::Style, m_style.textStyle);
        return isValid(style) ? m_drawing.tables().name(style) : u"Standard"_s;
    }

    void addText(const DimensionPicture::Text &text)
    {
        const double degrees = text.rotation / radians;
        if (m_drawing.version() < Version::R13)
            add(looking({{0, u"TEXT"_s},
                         {10, object(text.at)},
                         {11, object(text.at)},
                         {40, text.height},
                         {1, withoutTextCodes(text.content)},
                         {50, degrees},
                         {7, textStyle()},
                         {72, qint64(1)},
                         {73, qint64(2)}},
                        m_style.textColour, m_style.lineWeight, {}));
        else
            add(looking(paragraph(text), m_style.textColour, -2, {}));
        if (text.hasFrame)
            addFrame(text);
    }

    FieldList paragraph(const DimensionPicture::Text &text) const
    {
        const Vec3 direction = m_plane.direction({std::cos(text.rotation), std::sin(text.rotation), 0.0});
        FieldList fields = {{0, u"MTEXT"_s}, {10, world(text.at)}, {40, text.height}, {41, 0.0},
                            {71, qint64(5)}, {1, text.content},    {7, textStyle()},  {11, direction}};
        if (m_style.textFill == 1)
            fields.insert(fields.end(), {{90, qint64(3)}, {63, qint64(256)}, {45, 1.2}});
        else if (m_style.textFill == 2)
            fields.insert(fields.end(), {{90, qint64(1)}, {63, qint64(m_style.textFillColour)}, {45, 1.2}});
        return fields;
    }

    void addFrame(const DimensionPicture::Text &text)
    {
        const Matrix frame = Matrix::translation({text.at.x, text.at.y, 0.0}) * Matrix::rotation(text.rotation);
        const Vec2 half = text.halfFrame;
        const Vec3 corners[] = {
            {-half.x, -half.y, 0.0}, {half.x, -half.y, 0.0}, {half.x, half.y, 0.0}, {-half.x, half.y, 0.0}};
        for (std::size_t i = 0; i < 4; ++i)
            add(styled({{0, u"LINE"_s},
                        {10, world(frame.point(corners[i]).xy())},
                        {11, world(frame.point(corners[(i + 1) % 4]).xy())}},
                       Part::Line));
    }

    Drawing &m_drawing;
    const DimensionStyle &m_style;
    Vec3 m_extrusion;
    double m_elevation;
    Matrix m_plane;
    std::vector<FieldList> m_entities;
};

/// The block that is the dimension's own, emptied, or a new one.
RecordId pictureBlock(Drawing &drawing, const FieldList &dimension)
{
    const Field *name = findField(dimension, 2);
    const Field *flags = findField(dimension, 70);
    const auto present = name && !name->text().isEmpty() ? drawing.blocks().get(name->text()) : std::nullopt;
    const bool isOwn = present && present->name.startsWith(u"*D") && flags && (flags->integer() & ownBlockFlag) != 0;
    return drawing.blocks().create(isOwn ? present->name : u"*D"_s, {}, 1);
}

/// The points that were measured, on a layer that is not plotted.
void addMeasuredPoints(Drawing &drawing, RecordId block, const FieldList &dimension)
{
    if (!isValid(drawing.tables().find(TableKind::Layer, pointLayer)))
        drawing.tables().add(TableKind::Layer, pointLayer, {{62, qint64(7)}, {290, qint64(0)}});
    for (const int code : {13, 14, 15, 10})
        if (const Field *point = findField(dimension, code); point && isPoint(*point))
            drawing.entities().createInBlock(block,
                                             {{0, u"POINT"_s}, {8, pointLayer}, {62, qint64(0)}, {10, point->point()}});
}

bool isMovedText(const FieldList &dimension)
{
    const Field *flags = findField(dimension, 70);
    const qint64 kind = flags ? flags->integer() : 0;
    const bool isRadial = (kind & 15) == 3 || (kind & 15) == 4;
    return isRadial || (kind & movedTextFlag) != 0;
}

} // namespace

std::vector<FieldList> pictureEntities(Drawing &drawing, const DimensionPicture &picture, const DimensionStyle &style,
                                       const Vec3 &extrusion, double elevation)
{
    PictureWriter writer(drawing, style, extrusion, elevation);
    writer.addAll(picture);
    return writer.take();
}

bool drawDimension(Drawing &drawing, RecordId dimension, const TextSize &textSize, TextPlace place)
{
    FieldList fields = drawing.fields(dimension);
    std::optional<DimensionData> data = readDimension(drawing, dimension, drawing.tags(dimension));
    if (!data)
        return false;
    if (place == TextPlace::ByStyle || !isMovedText(fields))
        data->textAt.reset();
    const DimensionStyle style = readDimensionStyle(drawing, drawing.tags(dimension));
    const DimensionPicture picture = dimensionPicture(*data, style, textSize);
    const Field *normal = findField(fields, 210);
    const Vec3 extrusion = normal ? normalized(normal->point()) : Vec3{0.0, 0.0, 1.0};
    const double elevation = Matrix::fromExtrusion(extrusion).inverted().point(findField(fields, 10)->point()).z;

    const RecordId block = pictureBlock(drawing, fields);
    for (const FieldList &entity : pictureEntities(drawing, picture, style, extrusion, elevation))
        drawing.entities().createInBlock(block, entity);
    addMeasuredPoints(drawing, block, fields);
    setField(fields, 2, drawing.blocks().name(block));
    setField(fields, 11, Vec3{picture.text.at.x, picture.text.at.y, elevation});
    if (drawing.version() >= Version::R13)
        setField(fields, 42, data->measured());
    drawing.entities().modify(dimension, fields);
    return true;
}

} // namespace host::drawing
