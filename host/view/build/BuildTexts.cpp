#include "host/drawing/math/Angles.h"
#include "host/drawing/records/Symbols.h"
#include "host/view/build/DisplayBuilder.h"
#include "host/view/build/TextLook.h"
#include "host/view/text/MTextLayout.h"
#include "host/view/text/TextCodes.h"

#include <numbers>

namespace host::view {

using drawing::radians;
using drawing::Tag;
using drawing::TagList;

namespace {

constexpr double descent = 0.33; ///< below the base line, in text heights

/// Single-line text as its record has it. Angles are radians.
struct TextData
{
    QString text{};
    Vec3 at{};
    Vec3 second{};
    double height = 1.0;
    double rotation = 0.0;
    double widthFactor = 1.0;
    double oblique = 0.0;
    qint64 generation = 0;
    qint64 horizontal = 0;
    qint64 vertical = 0;
    Vec3 extrusion{};
};

double realOf(const Tag *tag, double otherwise)
{
    return tag ? tag->real().value_or(otherwise) : otherwise;
}

qint64 integerOf(const Tag *tag, qint64 otherwise)
{
    return tag ? tag->integer().value_or(otherwise) : otherwise;
}

TextData readText(const TagList &tags, const TextLook &look, bool isAttribute)
{
    TextData data;
    data.text = tags.text(1);
    data.at = tags.point(10);
    data.second = tags.point(11, data.at);
    data.height = std::abs(tags.real(40, 1.0));
    // Texts that run downwards have 270 degrees; without an angle they are meant to stand upright as well.
    data.rotation = tags.real(50, look.isVertical ? 270.0 : 0.0) * radians;
    data.widthFactor = std::abs(tags.real(41, look.widthFactor));
    data.oblique = realOf(tags.find(51), look.oblique / radians) * radians;
    data.generation = integerOf(tags.find(71, "AcDbText"), look.generation);
    data.horizontal = integerOf(tags.find(72, "AcDbText"), 0);
    data.vertical = isAttribute ? integerOf(tags.find(74), 0) : integerOf(tags.find(73), 0);
    data.extrusion = tags.point(210, {0.0, 0.0, 1.0});
    return data;
}

bool isUsableText(const TextData &data)
{
    return isUsable(data.at) && isUsable(data.second) && isUsable(data.height) && isUsable(data.rotation) &&
           isUsable(data.widthFactor) && isUsable(data.oblique) && isUsable(data.extrusion) && data.height > 0.0;
}

/// Where the text line starts from its anchor, and how it is stretched.
struct TextFrame
{
    Matrix placement{}; ///< of the text's own frame (x along, drawing units) in object coordinates
    double dx = 0.0;
    double dy = 0.0;
    double height = 0.0;
    double widthFactor = 1.0;
};

TextFrame frameOf(const TextData &data, double lineWidth)
{
    enum Horizontal
    {
        Aligned = 3,
        Middle = 4,
        Fit = 5
    };
    TextFrame frame{.height = data.height, .widthFactor = data.widthFactor};
    const bool isAnchored = data.horizontal != 0 || data.vertical != 0;
    const bool isStretched = data.horizontal == Aligned || data.horizontal == Fit;
    Vec3 anchor = isAnchored && !isStretched ? data.second : data.at;
    double rotation = data.rotation;
    double width = lineWidth * frame.height * frame.widthFactor;
    const Vec3 span = data.second - data.at;
    if (isStretched && span.length() > 0.0 && width > 0.0) {
        rotation = std::atan2(span.y, span.x);
        const double stretch = std::hypot(span.x, span.y) / width;
        (data.horizontal == Fit ? frame.widthFactor : frame.height) *= stretch;
        width *= stretch;
    }
    if (data.horizontal == 1 || data.horizontal == Middle)
        frame.dx = -width / 2.0;
    else if (data.horizontal == 2)
        frame.dx = -width;
    if (data.horizontal == Middle || data.vertical == 2)
        frame.dy = -frame.height / 2.0;
    else if (data.vertical == 1)
        frame.dy = frame.height * descent;
    else if (data.vertical == 3)
        frame.dy = -frame.height;
    constexpr qint64 backward = 2;
    constexpr qint64 upsideDown = 4;
    const Vec3 mirror{(data.generation & backward) != 0 ? -1.0 : 1.0, (data.generation & upsideDown) != 0 ? -1.0 : 1.0,
                      1.0};
    frame.placement = Matrix::translation(anchor) * Matrix::rotation(rotation) * Matrix::scaling(mirror);
    return frame;
}

Matrix glyphMatrix(double x, double y, double height, double widthFactor, double oblique)
{
    const double slant = std::tan(std::clamp(oblique, -1.45, 1.45));
    return {{height * widthFactor, 0.0, 0.0}, {height * slant, height, 0.0}, {0.0, 0.0, 1.0}, {x, y, 0.0}};
}

void addRule(BuildContext &context, const Style &style, const Matrix &placement, double x1, double y1, double x2,
             double y2)
{
    Style full = style;
    full.linetype = 0;
    context.add(Stroke{{.points = {placement.point({x1, y1, 0.0}), placement.point({x2, y2, 0.0})}}}, full);
}

void addLines(BuildContext &context, const TextPiece &piece, const Matrix &placement, double from, double to, double y,
              double height)
{
    if (piece.isUnderlined)
        addRule(context, context.style, placement, from, y - 0.2 * height, to, y - 0.2 * height);
    if (piece.isOverlined)
        addRule(context, context.style, placement, from, y + 1.2 * height, to, y + 1.2 * height);
    if (piece.isStruck)
        addRule(context, context.style, placement, from, y + 0.5 * height, to, y + 0.5 * height);
}

/// How far a text that runs downwards reaches, from the top of its first letter to the base of its last; in heights.
double lengthDown(const BuildContext &context, const std::vector<TextPiece> &pieces, int font)
{
    double length = 0.0;
    double lastDrop = 1.0;
    for (const TextPiece &piece : pieces) {
        for (const QChar c : piece.text) {
            lastDrop = context.fonts().hanging(font, QString(c)).drop;
            length += lastDrop;
        }
    }
    return length - lastDrop + 1.0;
}

/// Vertical styles set one character below the other, each with its middle on the line through the insertion point. Of
/// the alignments those along the text count.
void addVerticalText(BuildContext &context, const TextData &data, const TextLook &look, const Matrix &ocs)
{
    constexpr qint64 left = 0;
    constexpr qint64 right = 2;
    const std::vector<TextPiece> pieces = parseTextCodes(data.text);
    const bool isMoved = data.horizontal != left && data.horizontal != 3 && data.horizontal != 5;
    const double length = isMoved ? lengthDown(context, pieces, look.font) * data.height : 0.0;
    double y = data.horizontal == right ? length : length / 2.0;
    const Matrix placement = ocs * Matrix::translation(isMoved ? data.second : data.at) *
                             Matrix::rotation(data.rotation + std::numbers::pi / 2.0);
    for (const TextPiece &piece : pieces) {
        for (const QChar c : piece.text) {
            auto run = std::make_unique<TextRun>(TextRun{.text = QString(c), .font = look.font});
            run->width = context.fonts().width(look.font, run->text);
            const Fonts::Hanging hanging = context.fonts().hanging(look.font, run->text);
            run->placement =
                placement * glyphMatrix(hanging.start.x * data.height * data.widthFactor,
                                        y + hanging.start.y * data.height, data.height, data.widthFactor, data.oblique);
            if (!c.isSpace())
                context.add(std::move(run));
            y -= data.height * hanging.drop;
        }
    }
}

void addHorizontalText(BuildContext &context, const TextData &data, const TextLook &look, const Matrix &ocs)
{
    const std::vector<TextPiece> pieces = parseTextCodes(data.text);
    std::vector<double> widths;
    double lineWidth = 0.0;
    for (const TextPiece &piece : pieces) {
        const bool isLast = &piece == &pieces.back();
        widths.push_back(isLast ? context.fonts().inkWidth(look.font, piece.text)
                                : context.fonts().width(look.font, piece.text));
        lineWidth += widths.back();
    }
    const TextFrame frame = frameOf(data, lineWidth);
    const Matrix placement = ocs * frame.placement;
    double x = frame.dx;
    for (std::size_t i = 0; i < pieces.size(); ++i) {
        const double end = x + widths[i] * frame.height * frame.widthFactor;
        auto run = std::make_unique<TextRun>(TextRun{.text = pieces[i].text, .font = look.font, .width = widths[i]});
        run->placement = placement * glyphMatrix(x, frame.dy, frame.height, frame.widthFactor, data.oblique);
        context.add(std::move(run));
        addLines(context, pieces[i], placement, x, end, frame.dy, frame.height);
        x = end;
    }
}

bool addText(BuildContext &context, const TextData &data, const TextLook &look)
{
    if (!isUsableText(data))
        return false;
    const Matrix ocs = Matrix::fromExtrusion(data.extrusion);
    if (look.isVertical)
        addVerticalText(context, data, look, ocs);
    else
        addHorizontalText(context, data, look, ocs);
    return true;
}

} // namespace

bool buildText(BuildContext &context, const TagList &tags)
{
    const TextLook look = readTextLook(context, tags.text(7));
    return addText(context, readText(tags, look, tags[0].trimmed() == "ATTRIB"), look);
}

/// By itself an attribute definition shows its tag. In a block only a constant one is seen, with its value.
bool buildAttdef(BuildContext &context, const TagList &tags)
{
    constexpr qint64 invisibleFlag = 1;
    constexpr qint64 constantFlag = 2;
    const qint64 flags = tags.integer(70);
    const TextLook look = readTextLook(context, tags.text(7));
    TextData data = readText(tags, look, true);
    if (!context.isInBlock) {
        data.text = tags.text(2);
    } else if ((flags & constantFlag) == 0 || (flags & invisibleFlag) != 0) {
        context.display.isHidden = true;
        return true;
    }
    return addText(context, data, look);
}

} // namespace host::view
