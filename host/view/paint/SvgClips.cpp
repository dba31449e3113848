#include "host/view/paint/SvgClips.h"

#include <optional>

namespace host::view {

namespace {

constexpr double markPlace = -98765.0;
const QByteArray markBegin = "<rect x=\"";
const QByteArray markEnd = "\" y=\"-98765\"";

/// The data of a path of straight pieces, which all clips are.
QByteArray pathData(const QPainterPath &path)
{
    QByteArray data;
    for (int i = 0; i < path.elementCount(); ++i) {
        const QPainterPath::Element element = path.elementAt(i);
        data += (element.isMoveTo() ? "M" : "L") + QByteArray::number(element.x, 'g', 9) + ',' +
                QByteArray::number(element.y, 'g', 9);
    }
    return data + 'Z';
}

/// A mark in the file: its group, and the number it has.
struct FoundMark
{
    qsizetype begin = 0;
    qsizetype end = 0; ///< behind the group
    std::size_t number = 0;
};

std::optional<FoundMark> nextMark(const QByteArray &svg, qsizetype from)
{
    const qsizetype place = svg.indexOf(markEnd, from);
    if (place < 0)
        return {};
    const qsizetype rect = svg.lastIndexOf(markBegin, place);
    const qsizetype begin = svg.lastIndexOf("<g ", place);
    const qsizetype end = svg.indexOf("</g>", place);
    if (rect < begin || begin < from || end < 0)
        return {};
    const qsizetype digits = rect + markBegin.size();
    return FoundMark{begin, end + 4, svg.sliced(digits, place - digits).toUInt()};
}

} // namespace

void SvgClips::begin(QPainter &painter, const QPainterPath &clip)
{
    m_open.push_back(m_clips.size());
    m_clips.push_back(painter.worldTransform().map(clip));
    mark(painter, 2 * m_open.back());
}

void SvgClips::end(QPainter &painter)
{
    mark(painter, 2 * m_open.back() + 1);
    m_open.pop_back();
}

/// Two marks in a row must differ, or they would share a group; nothing else has so odd a colour.
void SvgClips::mark(QPainter &painter, std::size_t number)
{
    painter.save();
    painter.resetTransform();
    const QColor color(1, 2, 3, ++m_marks % 2 == 0 ? 1 : 2);
    painter.fillRect(QRectF(static_cast<double>(number), markPlace, 1.0, 1.0), color);
    painter.restore();
}

QByteArray SvgClips::definitions() const
{
    QByteArray definitions;
    for (std::size_t i = 0; i < m_clips.size(); ++i)
        definitions += "<clipPath id=\"clip" + QByteArray::number(i) + "\"><path clip-rule=\"evenodd\" d=\"" +
                       pathData(m_clips[i]) + "\"/></clipPath>\n";
    return definitions;
}

QByteArray SvgClips::applied(const QByteArray &svg) const
{
    const qsizetype definitionsEnd = std::max<qsizetype>(svg.indexOf("</defs>"), 0);
    QByteArray result = svg.first(definitionsEnd) + definitions();
    qsizetype done = definitionsEnd;
    while (const auto found = nextMark(svg, done)) {
        result += svg.sliced(done, found->begin - done);
        result += found->number % 2 != 0 ? QByteArray("</g>")
                                         : "<g clip-path=\"url(#clip" + QByteArray::number(found->number / 2) + ")\">";
        done = found->end;
    }
    return result + svg.sliced(done);
}

} // namespace host::view
