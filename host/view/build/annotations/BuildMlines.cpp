#include "host/view/build/annotations/AnnotationParts.h"

#include <numbers>
#include <utility>

namespace host::view {

using drawing::Tag;
using drawing::TagList;

namespace {

/// What a multiline style says.
struct MlineStyle
{
    enum Flag : qint64
    {
        Filled = 1,
        Joints = 2,
        StartLine = 16,
        StartInnerArcs = 32,
        StartOuterArc = 64,
        EndLine = 256,
        EndInnerArcs = 512,
        EndOuterArc = 1024
    };
    struct Element
    {
        double offset = 0.0;
        Style style{};
    };
    qint64 flags = 0;
    Colour fill{};
    std::vector<Element> elements{};
};

/// A vertex with where each element passes it, and the pieces of the element behind it.
struct MlineVertex
{
    Vec3 at{};
    Vec3 along{};
    Vec3 miter{};
    std::vector<std::vector<double>> elements{}; ///< how far along the mitre, then where pieces begin and end
    bool hasFillBreaks = false;
};

MlineStyle readMlineStyle(BuildContext &context, const TagList &mline)
{
    MlineStyle style;
    const RecordId record = context.drawing.find(mline.handle(340));
    if (!context.drawing.isAlive(record) || !context.drawing.isType(record, "MLINESTYLE"))
        return style;
    const TagList tags = context.drawing.tags(record);
    style.flags = tags.integer(70);
    style.fill = colourFromIndex(tags.integer(62, 256));
    for (const Tag &tag : tags.own()) {
        if (tag.code == 49) {
            style.elements.push_back({.offset = tag.real().value_or(0.0), .style = context.style});
        } else if (!style.elements.empty() && tag.code == 62) {
            Style &own = style.elements.back().style;
            own = styleWithColour(own, colourFromIndex(tag.integer().value_or(256)));
        } else if (!style.elements.empty() && tag.code == 420) {
            style.elements.back().style.colour = {
                .kind = Colour::Kind::True, .value = static_cast<std::uint32_t>(tag.integer().value_or(0) & 0xffffff)};
        } else if (!style.elements.empty() && tag.code == 6) {
            style.elements.back().style = styleWithLinetype(context, style.elements.back().style, tags.decoded(tag));
        }
    }
    return style;
}

std::vector<MlineVertex> readMlineVertices(const TagList &tags)
{
    std::vector<MlineVertex> vertices;
    for (std::size_t i = 0, end = tags.own().size(); i < end; ++i) {
        const Tag &tag = tags[i];
        if (tag.code == 11)
            vertices.push_back({.at = tags.pointAt(i)});
        if (vertices.empty())
            continue;
        MlineVertex &vertex = vertices.back();
        if (tag.code == 12)
            vertex.along = tags.pointAt(i);
        else if (tag.code == 13)
            vertex.miter = tags.pointAt(i);
        else if (tag.code == 74)
            vertex.elements.emplace_back();
        else if (tag.code == 41 && !vertex.elements.empty())
            vertex.elements.back().push_back(tag.real().value_or(0.0));
        else if (tag.code == 75)
            vertex.hasFillBreaks |= tag.integer().value_or(0) > 1;
    }
    return vertices;
}

class MlineBuilder
{
public:
    MlineBuilder(BuildContext &context, const TagList &tags)
        : m_context(context), m_flags(tags.integer(71)), m_style(readMlineStyle(context, tags)),
          m_vertices(readMlineVertices(tags))
    {
        for (const MlineVertex &vertex : m_vertices)
            m_count =
                &vertex == &m_vertices.front() ? vertex.elements.size() : std::min(m_count, vertex.elements.size());
        m_isClosed = (m_flags & 2) != 0 && m_vertices.size() > 1;
    }

    bool build()
    {
        for (const MlineVertex &vertex : m_vertices) {
            for (std::size_t element = 0; element < m_count; ++element) {
                if (!isUsable(pointAt(vertex, element)))
                    return false;
            }
        }
        if (m_count == 0 || m_vertices.size() < 2)
            return false;
        if ((m_style.flags & MlineStyle::Filled) != 0)
            addFill();
        for (std::size_t element = 0; element < m_count; ++element)
            addElement(element);
        addJoints();
        if (!m_isClosed && (m_flags & 4) == 0)
            addCap(m_vertices.front(), m_vertices.front().along * -1.0, 0);
        // The flags of the end stand four bits above those of the begin.
        if (!m_isClosed && (m_flags & 8) == 0)
            addCap(m_vertices.back(), m_vertices[m_vertices.size() - 2].along, 4);
        return true;
    }

private:
    static Vec3 pointAt(const MlineVertex &vertex, std::size_t element)
    {
        const std::vector<double> &numbers = vertex.elements[element];
        return vertex.at + vertex.miter * (numbers.empty() ? 0.0 : numbers.front());
    }

    const Style &styleOf(std::size_t element) const
    {
        return element < m_style.elements.size() ? m_style.elements[element].style : m_context.style;
    }

    std::size_t segments() const { return m_isClosed ? m_vertices.size() : m_vertices.size() - 1; }
    const MlineVertex &after(std::size_t vertex) const { return m_vertices[(vertex + 1) % m_vertices.size()]; }

    /// One line as far as it has no breaks.
    void addElement(std::size_t element)
    {
        Path line = {pointAt(m_vertices.front(), element)};
        for (std::size_t i = 0; i < segments(); ++i) {
            const Vec3 from = pointAt(m_vertices[i], element);
            const Vec3 to = pointAt(after(i), element);
            const std::vector<double> &numbers = m_vertices[i].elements[element];
            const Vec3 along = drawing::normalized(to - from);
            // Behind the mitre stand where the line begins and ends, and where it goes on.
            if (numbers.size() > 1 && numbers[1] > 0.0) {
                addPath(m_context, std::move(line), styleOf(element));
                line = {from + along * numbers[1]};
            }
            for (std::size_t at = 2; at < numbers.size(); at += 2) {
                line.push_back(from + along * numbers[at]);
                addPath(m_context, std::exchange(line, {}), styleOf(element));
                if (at + 1 < numbers.size())
                    line = {from + along * numbers[at + 1]};
            }
            // An even number of places ends with one where the line goes on, an odd one where it stays away.
            if (line.empty())
                line = {to};
            else
                line.push_back(to);
        }
        addPath(m_context, std::move(line), styleOf(element));
    }

    /// The elements that lie farthest out at a vertex.
    std::pair<std::size_t, std::size_t> outermost(const MlineVertex &vertex) const
    {
        const auto place = [&](std::size_t element) {
            return vertex.elements[element].empty() ? 0.0 : vertex.elements[element].front();
        };
        std::pair<std::size_t, std::size_t> ends{0, 0};
        for (std::size_t element = 1; element < m_count; ++element) {
            ends.first = place(element) > place(ends.first) ? element : ends.first;
            ends.second = place(element) < place(ends.second) ? element : ends.second;
        }
        return ends;
    }

    void addFill()
    {
        const Style style = styleWithColour(m_context.style, m_style.fill);
        for (std::size_t i = 0; i < segments(); ++i) {
            const auto [left, right] = outermost(m_vertices[i]);
            const Path area = {pointAt(m_vertices[i], left), pointAt(after(i), left), pointAt(after(i), right),
                               pointAt(m_vertices[i], right), pointAt(m_vertices[i], left)};
            Fill fill;
            fill.contours.push_back({.points = area});
            m_context.add(std::move(fill), style);
            m_context.display.isSimplified |= m_vertices[i].hasFillBreaks;
        }
    }

    void addAcross(const MlineVertex &vertex)
    {
        const auto [left, right] = outermost(vertex);
        addPath(m_context, {pointAt(vertex, left), pointAt(vertex, right)}, styleOf(left));
    }

    void addJoints()
    {
        if ((m_style.flags & MlineStyle::Joints) == 0)
            return;
        for (std::size_t i = m_isClosed ? 0 : 1; i < (m_isClosed ? m_vertices.size() : m_vertices.size() - 1); ++i)
            addAcross(m_vertices[i]);
    }

    /// Half a circle from one element to another, on the side that `out` points to.
    void addHalfCircle(const MlineVertex &vertex, std::size_t from, std::size_t to, const Vec3 &out)
    {
        const Vec3 begin = pointAt(vertex, from);
        const Vec3 end = pointAt(vertex, to);
        const Vec3 center = (begin + end) * 0.5;
        const Vec3 across = drawing::normalized(begin - end);
        const Vec3 aside = drawing::normalized(out - across * dot(out, across));
        const double radius = (begin - end).length() / 2.0;
        if (!(radius > 0.0) || aside == Vec3{} || !isUsable(aside))
            return;
        const ArcSpan arc{
            .center = center, .xAxis = across * radius, .yAxis = aside * radius, .sweep = std::numbers::pi};
        m_context.add(Stroke{{.points = {begin, end}, .arcs = {arc}}}, styleOf(from));
    }

    void addCap(const MlineVertex &vertex, const Vec3 &out, int shift)
    {
        const qint64 flags = m_style.flags >> shift;
        if ((flags & MlineStyle::StartLine) != 0)
            addAcross(vertex);
        const auto [left, right] = outermost(vertex);
        if ((flags & MlineStyle::StartOuterArc) != 0)
            addHalfCircle(vertex, left, right, out);
        // Elements stand in the order of their offsets.
        for (std::size_t i = 1; (flags & MlineStyle::StartInnerArcs) != 0 && i + 1 < m_count - i; ++i)
            addHalfCircle(vertex, i, m_count - 1 - i, out);
    }

    BuildContext &m_context;
    qint64 m_flags;
    MlineStyle m_style;
    std::vector<MlineVertex> m_vertices;
    std::size_t m_count = 0; ///< elements that every vertex has
    bool m_isClosed = false;
};

} // namespace

bool buildMline(BuildContext &context, const TagList &tags)
{
    return MlineBuilder(context, tags).build();
}

} // namespace host::view
