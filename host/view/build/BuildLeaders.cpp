#include "host/drawing/records/Tables.h"
#include "host/view/build/BuildMText.h"

namespace host::view {

using drawing::Tag;
using drawing::TagList;

namespace {

/// Size of arrow heads by the entity's dimension style.
double arrowSize(const BuildContext &context, const TagList &tags)
{
    const RecordId style = context.drawing.tables().find(drawing::TableKind::DimStyle, tags.text(3));
    if (!isValid(style))
        return 0.18;
    const TagList values = context.drawing.tags(style);
    const double scale = values.real(40, 1.0);
    const double size = values.real(41, 0.18) * (scale > 0.0 ? scale : 1.0);
    return isUsable(size) ? size : 0.0;
}

void addArrow(BuildContext &context, const Vec3 &tip, const Vec3 &towards, double size)
{
    const Vec3 along = drawing::normalized(towards - tip);
    const Vec3 across = drawing::normalized(cross({0.0, 0.0, 1.0}, along));
    const Vec3 back = tip + along * size;
    Curve head;
    head.points = {tip, back + across * (size / 6.0), back - across * (size / 6.0), tip};
    Fill fill;
    fill.contours.push_back(std::move(head));
    context.add(std::move(fill));
}

/// The line of a leader from its tip; an arrow is left out where there is no room for it.
void addLeaderLine(BuildContext &context, const Path &points, bool isSpline, double arrow)
{
    if (arrow > 0.0 && (points[1] - points[0]).length() > 2.0 * arrow)
        addArrow(context, points[0], points[1], arrow);
    if (!isSpline || points.size() < 3) {
        context.addStroke(points);
        return;
    }
    drawing::Spline spline;
    spline.fitPoints = points;
    context.addStroke(drawing::splinePath(spline));
}

/// The context data of a multi-leader: braces nest, and codes mean different things at each depth.
class MultiLeaderReader
{
public:
    explicit MultiLeaderReader(BuildContext &context, const TagList &tags) : m_context(context), m_tags(tags)
    {
        constexpr qint64 spline = 2;
        const Tag *type = nullptr;
        for (const Tag &tag : tags)
            type = tag.code == 170 ? &tag : type; // the leader's own stands behind that of the text
        m_isSpline = type && type->integer().value_or(1) == spline;
    }

    bool build()
    {
        for (std::size_t i = 0; i < m_tags.size() && m_tags[i].code < 1000; ++i)
            read(m_tags[i], i);
        addText();
        return !m_context.display.items.empty();
    }

private:
    enum class Part
    {
        Outside,
        Context,
        Leader,
        Line
    };

    void read(const Tag &tag, std::size_t at)
    {
        const bool opens = tag.trimmed().endsWith('{');
        if (tag.code == 300 && opens)
            m_part = Part::Context;
        else if (tag.code == 302 && opens)
            m_part = Part::Leader;
        else if (tag.code == 304 && opens && m_part == Part::Leader)
            m_part = Part::Line;
        else if (tag.code == 305)
            m_part = Part::Leader;
        else if (tag.code == 303)
            finishLeader();
        else if (tag.code == 301)
            m_part = Part::Outside;
        else if (m_part == Part::Context)
            readContext(tag, at);
        else if (m_part == Part::Leader)
            readLeader(tag, at);
        else if (m_part == Part::Line && tag.code == 10)
            m_line.push_back(m_tags.pointAt(at));
    }

    void readContext(const Tag &tag, std::size_t at)
    {
        switch (tag.code) {
        case 304:
            m_text = m_tags.decoded(tag);
            break;
        case 12:
            m_textAt = m_tags.pointAt(at);
            break;
        case 13:
            m_textDirection = m_tags.pointAt(at);
            break;
        case 41:
            m_textHeight = tag.real().value_or(0.0);
            break;
        case 43:
            m_textWidth = tag.real().value_or(0.0);
            break;
        case 140:
            m_arrow = tag.real().value_or(0.0);
            break;
        case 171:
            m_attachment = static_cast<int>(std::clamp<qint64>(tag.integer().value_or(1), 1, 3)) - 1;
            break;
        case 296: // the content is a block instead of a text
            m_context.display.isSimplified |= tag.integer().value_or(0) != 0;
            break;
        default:
            break;
        }
    }

    void readLeader(const Tag &tag, std::size_t at)
    {
        if (tag.code == 10)
            m_landing = m_tags.pointAt(at);
        else if (tag.code == 11)
            m_dogleg = m_tags.pointAt(at);
        else if (tag.code == 40)
            m_doglegLength = tag.real().value_or(0.0);
    }

    void finishLeader()
    {
        Path points = std::move(m_line);
        m_line.clear();
        m_part = Part::Context;
        points.push_back(m_landing);
        if (m_doglegLength > 0.0 && !m_isSpline)
            points.push_back(m_landing + m_dogleg * m_doglegLength);
        if (points.size() > 1 && isUsable(m_arrow) && std::ranges::all_of(points, [](auto &p) { return isUsable(p); }))
            addLeaderLine(m_context, points, m_isSpline, m_arrow);
    }

    void addText()
    {
        if (m_text.isEmpty() || !isUsable(m_textAt) || !isUsable(m_textDirection) || !isUsable(m_textHeight) ||
            !(m_textHeight > 0.0)) {
            return;
        }
        const double angle = std::atan2(m_textDirection.y, m_textDirection.x);
        const MTextPlace place{.frame = Matrix::translation(m_textAt) * Matrix::rotation(angle),
                               .height = m_textHeight,
                               .attachment = m_attachment};
        addMText(m_context, place, m_text, {.width = isUsable(m_textWidth) ? std::max(m_textWidth, 0.0) : 0.0});
    }

    BuildContext &m_context;
    const TagList &m_tags;
    Part m_part = Part::Outside;
    bool m_isSpline = false;
    Path m_line;
    Vec3 m_landing;
    Vec3 m_dogleg;
    double m_doglegLength = 0.0;
    double m_arrow = 0.0;
    QString m_text;
    Vec3 m_textAt;
    Vec3 m_textDirection{1.0, 0.0, 0.0};
    double m_textHeight = 0.0;
    double m_textWidth = 0.0;
    int m_attachment = 0;
};

} // namespace

bool buildLeader(BuildContext &context, const TagList &tags)
{
    const std::vector<Vec3> points = tags.points(10);
    if (points.size() < 2 || !std::ranges::all_of(points, [](const Vec3 &p) { return isUsable(p); }))
        return false;
    const double size = arrowSize(context, tags);
    addLeaderLine(context, points, tags.integer(72) == 1, tags.integer(71, 1) != 0 ? size : 0.0);
    return true;
}

bool buildMultiLeader(BuildContext &context, const TagList &tags)
{
    return MultiLeaderReader(context, tags).build();
}

} // namespace host::view
