#include "host/view/build/TextMeasure.h"

#include "host/drawing/math/Angles.h"
#include "host/drawing/tags/TagReader.h"
#include "host/drawing/tags/TagWriter.h"
#include "host/view/build/DisplayBuilder.h"
#include "host/view/build/Scene.h"
#include "host/view/display/DisplayBoxes.h"

namespace host::view {

using drawing::FieldList;
using drawing::TagList;

namespace {

/// Fields as the lines of a record; tags are views of them.
QByteArray linesOf(const FieldList &fields, const drawing::TextCodec &codec)
{
    const drawing::LineStyle style;
    drawing::TagWriter writer(style, codec);
    for (const drawing::Field &field : fields)
        writer.write(field);
    return writer.take();
}

TagList tagsOf(const QByteArray &lines, const drawing::TextCodec &codec)
{
    std::vector<drawing::Tag> tags;
    drawing::TagReader reader(lines, drawing::LineEnds::LineFeed);
    for (drawing::Tag tag; reader.read(tag);)
        tags.push_back(tag);
    return {std::move(tags), codec};
}

/// A text between two points (horizontal alignment 3 and 5) runs from one to the other, whatever its angle says.
double directionOf(const TagList &tags)
{
    const drawing::Tag *alignment = tags.find(72, "AcDbText");
    const qint64 kind = alignment ? alignment->integer().value_or(0) : 0;
    const Vec3 span = tags.point(11) - tags.point(10);
    if ((kind == 3 || kind == 5) && span.length() > 0.0)
        return std::atan2(span.y, span.x);
    return tags.real(50) * drawing::radians;
}

Matrix ownFrame(const TagList &tags, const Vec3 &normal)
{
    return Matrix::fromExtrusion(normal) * Matrix::translation(tags.point(10)) * Matrix::rotation(directionOf(tags));
}

/// The runs of text in a display, each with its map to the frame.
template <typename Add>
void forEachRun(const RecordDisplay &display, const Matrix &frame, Add add)
{
    const Matrix toFrame = frame.inverted();
    for (const DisplayItem &item : display.items)
        if (const auto *run = std::get_if<std::unique_ptr<TextRun>>(&item.shape))
            add(**run, toFrame * (*run)->placement);
}

} // namespace

TextMeasure::TextMeasure(const drawing::Drawing &drawing)
    : m_drawing(drawing), m_scene(std::make_unique<Scene>(drawing))
{
}

TextMeasure::~TextMeasure() = default;

Box TextMeasure::lineBox(const FieldList &fields)
{
    const drawing::TextCodec codec;
    const QByteArray lines = linesOf(fields, codec);
    const TagList tags = tagsOf(lines, codec);
    RecordDisplay display;
    drawing::WorkBudget work(drawing::outlineWork);
    BuildContext context{m_drawing, *m_scene, work, display};
    Box box;
    if (!(tags[0].trimmed() == "ATTDEF" ? buildAttdef(context, tags) : buildText(context, tags)))
        return box;
    Fonts &fonts = m_scene->fonts();
    forEachRun(display, ownFrame(tags, tags.point(210, {0.0, 0.0, 1.0})), [&](const TextRun &run, const Matrix &map) {
        const QRectF letters = letterBox(fonts, run);
        if (letters.isNull())
            return;
        for (const double y : {letters.top(), letters.bottom()}) {
            box.add(map.point({0.0, y, 0.0}));
            box.add(map.point({letters.right(), y, 0.0}));
        }
    });
    return box;
}

Vec2 TextMeasure::paragraphSize(const FieldList &fields)
{
    const drawing::TextCodec codec;
    // Where the text stands does not matter, nor does what is drawn behind it.
    FieldList plain;
    for (const drawing::Field &field : fields)
        if (field.code < 1000 && field.code != 10 && field.code != 11 && field.code != 50 && field.code != 90 &&
            field.code != 210)
            plain.push_back(field);
    const QByteArray lines = linesOf(plain, codec);
    RecordDisplay display;
    drawing::WorkBudget work(drawing::outlineWork);
    BuildContext context{m_drawing, *m_scene, work, display};
    Box box;
    if (!buildMText(context, tagsOf(lines, codec)))
        return {};
    forEachRun(display, {}, [&](const TextRun &run, const Matrix &map) {
        box.add(map.point({0.0, 0.0, 0.0}));
        box.add(map.point({run.width, 1.0, 0.0}));
    });
    if (box.isEmpty())
        return {};
    return {box.high.x - box.low.x, box.high.y - box.low.y};
}

} // namespace host::view
