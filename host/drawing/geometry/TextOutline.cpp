#include "host/drawing/geometry/EntityOutlines.h"
#include "host/drawing/math/Angles.h"
#include "host/drawing/text/DrawingVariables.h"
#include "host/drawing/text/ParagraphText.h"
#include "host/drawing/text/RemoteTextContent.h"

#include <numbers>

// Only a font knows how wide a text is; these boxes are estimates for picking, by the usual width of a letter.

namespace host::drawing {

namespace {

constexpr double letterWidth = 0.75; ///< in text heights
constexpr double lineDistance = 5.0 / 3.0;

/// Adds the box given in the text's own coordinates: x along the line, `at` the origin.
void addBox(OutlineSink &sink, const Vec3 &at, double angle, double left, double bottom, double width, double height)
{
    const Matrix place = Matrix::translation(at) * Matrix::rotation(angle);
    const Vec3 corner = place.point({left, bottom, 0});
    sink.add({corner, place.point({left + width, bottom, 0}), place.point({left + width, bottom + height, 0}),
              place.point({left, bottom + height, 0}), corner},
             true);
    sink.markApproximate();
}

/// Letters without control codes: %%c is one character, %%u none.
qsizetype letterCount(const QString &text)
{
    qsizetype count = 0;
    for (qsizetype i = 0; i < text.size(); ++i, ++count) {
        if (text[i] != u'%' || i + 2 >= text.size() || text[i + 1] != u'%')
            continue;
        const QChar code = text[i + 2].toLower();
        i += 2;
        if (code == u'u' || code == u'o' || code == u'k')
            --count;
    }
    return count;
}

void outlineOfLineText(OutlineSink &sink, const TagList &tags)
{
    enum Horizontal
    {
        Left = 0,
        Center = 1,
        Right = 2,
        Aligned = 3,
        Middle = 4,
        Fit = 5
    };
    const double height = std::abs(tags.real(40, 1.0));
    const double width = height * letterWidth * tags.real(41, 1.0) * static_cast<double>(letterCount(tags.text(1)));
    const qint64 horizontal = tags.integer(72);
    // Texts have the vertical alignment in 73, attributes in 74, where 73 is a field length.
    const qint64 vertical = tags.find(2) ? tags.integer(74) : tags.integer(73);
    const Vec3 start = tags.point(10);
    const Vec3 second = tags.point(11, start);
    sink.useExtrusion(tags.point(210, {0, 0, 1}));
    if (horizontal == Aligned || horizontal == Fit) {
        const Vec3 along = second - start;
        return addBox(sink, start, std::atan2(along.y, along.x), 0.0, 0.0, along.length(), height);
    }
    const bool isAligned = horizontal != Left || vertical != 0;
    const bool isCentered = horizontal == Center || horizontal == Middle;
    const double left = isCentered ? -width / 2.0 : horizontal == Right ? -width : 0.0;
    const bool isMiddle = horizontal == Middle || vertical == 2;
    const double bottom = isMiddle ? -height / 2.0 : vertical == 3 ? -height : 0.0;
    addBox(sink, isAligned ? second : start, tags.real(50) * radians, left, bottom, width, height);
}

struct ParagraphSize
{
    qsizetype lines = 1;
    qsizetype longest = 0;
};

/// How many lines a formatted text takes, and letters the longest has. Formatting codes are passed over.
ParagraphSize measure(const QString &text, qsizetype lettersPerLine)
{
    ParagraphSize size;
    qsizetype current = 0;
    const auto endLine = [&] {
        size.longest = std::max(size.longest, current);
        current = 0;
        ++size.lines;
    };
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar next = i + 1 < text.size() ? text[i + 1] : QChar();
        if (text[i] == u'\\' && (next == u'P' || next == u'N' || next == u'X')) {
            endLine();
            ++i;
        } else if (text[i] == u'\\' && QStringView(u"ACcFfHhpQTWS").contains(next)) {
            const qsizetype end = text.indexOf(u';', i);
            i = end < 0 ? text.size() : end;
        } else if (text[i] == u'\\') {
            ++i;
        } else if (text[i] == u'\n') {
            endLine();
        } else if (text[i] != u'{' && text[i] != u'}' && ++current > lettersPerLine && lettersPerLine > 0) {
            endLine();
        }
    }
    size.longest = std::max(size.longest, current);
    return size;
}

void outlineOfParagraphText(OutlineSink &sink, const TagList &tags)
{
    const double height = std::abs(tags.real(40, 1.0));
    const double letter = std::max(height * letterWidth, 1e-12);
    const double limit = std::abs(tags.real(41));
    const double letters = std::min(limit / letter, 1e6);
    const ParagraphSize size =
        measure(paragraphContent(tags), limit > 0.0 ? std::max<qsizetype>(1, static_cast<qsizetype>(letters)) : 0);
    const double spacing = height * lineDistance * tags.real(44, 1.0);
    const double width = tags.real(42, static_cast<double>(size.longest) * letter);
    const double total = tags.real(43, height + spacing * static_cast<double>(size.lines - 1));
    const qint64 attachment = std::clamp<qint64>(tags.integer(71, 1), 1, 9) - 1;
    const qint64 row = attachment / 3;
    const double left = -width * static_cast<double>(attachment % 3) / 2.0;
    const double bottom = -total + total * static_cast<double>(row) / 2.0;
    const Vec3 extrusion = tags.point(210, {0, 0, 1});
    sink.useExtrusion(extrusion);
    addBox(sink, Matrix::fromExtrusion(extrusion).inverted().point(tags.point(10)),
           angleInPlane(paragraphDirection(tags), extrusion), left, bottom, width, total);
}

/// Around what is shown; its first line stands on the insertion point.
void outlineOfRemoteText(OutlineSink &sink, const Drawing &drawing, const TagList &tags)
{
    const RemoteTextContent content = remoteTextContent(drawing, tags, surroundingsOf(drawing));
    qsizetype longest = 0;
    qsizetype lines = 0;
    for (const auto line : QStringView(content.text).split(u'\n')) {
        longest = std::max(longest, line.size());
        ++lines;
    }
    const double height = std::abs(tags.real(40, 1.0));
    const double below = height * lineDistance * static_cast<double>(lines - 1);
    sink.useExtrusion(tags.point(210, {0, 0, 1}));
    addBox(sink, tags.point(10), tags.real(50) * radians, 0.0, -below,
           height * letterWidth * static_cast<double>(longest), height + below);
}

} // namespace

bool outlineOfText(OutlineSink &sink, const Drawing &drawing, QByteArrayView type, const TagList &tags)
{
    if (type == "MTEXT")
        outlineOfParagraphText(sink, tags);
    else if (type == "RTEXT")
        outlineOfRemoteText(sink, drawing, tags);
    else if (type == "TEXT" || type == "ATTRIB" || type == "ATTDEF")
        outlineOfLineText(sink, tags);
    else
        return false;
    return true;
}

} // namespace host::drawing
