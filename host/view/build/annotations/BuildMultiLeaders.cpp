#include "host/view/build/BuildMText.h"
#include "host/view/build/annotations/AnnotationParts.h"
#include "host/view/build/annotations/LeaderLines.h"
#include "host/view/build/annotations/MultiLeaderData.h"
#include "host/view/build/annotations/ToleranceFrame.h"

#include <optional>

namespace host::view {

using drawing::Tag;
using drawing::TagList;

namespace {

/// A value of the multileader that its style has as well.
struct MultiLeaderValue
{
    int overrideBit; ///< which bit says that the multileader's own counts
    int code;
    int styleCode;
};
constexpr MultiLeaderValue leaderType{0, 170, 173};
constexpr MultiLeaderValue leaderColour{1, 91, 91};
constexpr MultiLeaderValue leaderLinetype{2, 341, 340};
constexpr MultiLeaderValue leaderWeight{3, 171, 92};
constexpr MultiLeaderValue leaderHasDogleg{6, 291, 291};
constexpr MultiLeaderValue leaderArrow{8, 342, 341};
constexpr MultiLeaderValue leaderContent{10, 172, 170};
constexpr MultiLeaderValue leaderTextFrame{17, 292, 292};

class MultiLeaderBuilder
{
public:
    MultiLeaderBuilder(BuildContext &context, const TagList &tags)
        : m_context(context), m_data(readMultiLeader(tags)), m_style(readStyleRecord())
    {
    }

    bool build()
    {
        const std::size_t first = m_context.display.items.size();
        addText();
        addBlockContent();
        const bool isEmpty = m_context.display.items.size() == first && m_data.leaders.empty();
        for (const MultiLeaderData::Leader &leader : m_data.leaders)
            addLeader(leader);
        return !isEmpty;
    }

private:
    std::optional<TagList> readStyleRecord() const
    {
        const Tag *handle = m_data.find(340);
        const RecordId record =
            m_context.drawing.find(handle ? handle->handle().value_or(drawing::Handle{}) : drawing::Handle{});
        if (!m_context.drawing.isAlive(record) || !m_context.drawing.isType(record, "MLEADERSTYLE"))
            return std::nullopt;
        return m_context.drawing.tags(record);
    }

    const Tag *value(const MultiLeaderValue &value) const
    {
        const bool isOwn = (m_data.overrides >> value.overrideBit & 1) != 0;
        const Tag *own = m_data.find(value.code);
        const Tag *ofStyle = m_style ? m_style->find(value.styleCode) : nullptr;
        return own && (isOwn || !ofStyle) ? own : ofStyle;
    }
    qint64 integer(const MultiLeaderValue &which, qint64 otherwise) const
    {
        const Tag *found = value(which);
        return found ? found->integer().value_or(otherwise) : otherwise;
    }

    Style coloured(const Style &style, const Tag *colour) const
    {
        return colour ? styleWithColour(style, packedColour(colour->integer().value_or(0))) : style;
    }

    /// The line's own look where it has one, else that of the multileader or its style.
    const Tag *lineValue(const MultiLeaderData::Line &line, int overrideBit, const Tag *own,
                         const MultiLeaderValue &common) const
    {
        return own && (line.overrides >> overrideBit & 1) != 0 ? own : value(common);
    }

    Style lineStyle(const MultiLeaderData::Line &line) const
    {
        Style style = coloured(m_context.style, lineValue(line, 1, line.colour, leaderColour));
        style =
            styleWithLinetype(m_context, style, nameOf(m_context, lineValue(line, 2, line.linetype, leaderLinetype)));
        const Tag *weight = lineValue(line, 3, line.lineweight, leaderWeight);
        return weight ? styleWithWeight(style, weight->integer().value_or(Style::byBlock)) : style;
    }

    LeaderArrow lineArrow(const MultiLeaderData::Line &line) const
    {
        const Tag *arrow = lineValue(line, 5, line.arrow, leaderArrow);
        const auto ofIndex = std::ranges::find(m_data.arrows, line.index, &MultiLeaderData::ArrowOfLine::index);
        if (ofIndex != m_data.arrows.end() && !nameOf(m_context, ofIndex->arrow).isEmpty())
            arrow = ofIndex->arrow;
        const bool hasOwnSize = (line.overrides >> 4 & 1) != 0 && line.arrowSize > 0.0;
        const double size = hasOwnSize ? line.arrowSize * (m_data.scale > 0.0 ? m_data.scale : 1.0) : m_data.arrowSize;
        return {.name = nameOf(m_context, arrow), .size = isUsable(size) ? size : 0.0};
    }

    void addLeader(const MultiLeaderData::Leader &leader)
    {
        constexpr qint64 invisible = 0;
        constexpr qint64 spline = 2;
        const qint64 type = integer(leaderType, 1);
        bool isSpline = false;
        Style style = lineStyle({});
        for (const MultiLeaderData::Line &line : leader.lines) {
            const qint64 own = (line.overrides & 1) != 0 ? line.type : type;
            isSpline |= own == spline;
            if (own == invisible)
                continue;
            style = lineStyle(line);
            Path points = line.points;
            if (leader.hasLanding && leader.landing)
                points.push_back(*leader.landing);
            addLeaderLine(m_context, points, own == spline, lineArrow(line), style, gaps(line.breaks));
        }
        if (type != invisible || isSpline)
            addDogleg(leader, isSpline, style);
    }

    static std::vector<LeaderGap> gaps(const std::vector<MultiLeaderData::Break> &breaks)
    {
        std::vector<LeaderGap> gaps;
        for (const MultiLeaderData::Break &one : breaks)
            gaps.push_back({one.from, one.to});
        return gaps;
    }

    /// From the landing to the content, and below or above a line of text where the attachment says so.
    void addDogleg(const MultiLeaderData::Leader &leader, bool isSpline, const Style &style)
    {
        if (!leader.landing)
            return;
        const Vec3 along = drawing::normalized(leader.dogleg);
        const Vec3 &landing = *leader.landing;
        Vec3 end = landing;
        const bool hasDogleg = leader.hasDogleg && !leader.isVertical && !isSpline && integer(leaderHasDogleg, 1) != 0;
        if (hasDogleg && leader.doglegLength > 0.0)
            end = end + along * leader.doglegLength;
        if (!leader.isVertical && isUnderlined(leader) && !m_textBox.isEmpty())
            end = landing + along * (leader.doglegLength + 2.0 * m_data.gap + m_textBox.high.x - m_textBox.low.x);
        if (end == landing)
            return;
        addPath(m_context, {landing, end}, style);
        cutLastStroke(m_context, gaps(leader.breaks));
    }

    bool isUnderlined(const MultiLeaderData::Leader &leader) const
    {
        const bool isAtLeft = dot(leader.dogleg, m_data.text.direction) > 0.0;
        const qint64 attachment = isAtLeft ? m_data.leftAttachment : m_data.rightAttachment;
        return attachment == 5 || attachment == 6 || attachment == 8;
    }

    Vec3 textDirection() const
    {
        const MultiLeaderData::Text &text = m_data.text;
        if (text.direction.length() > 0.0)
            return text.direction;
        return Matrix::fromExtrusion(text.normal).direction({std::cos(text.rotation), std::sin(text.rotation), 0.0});
    }

    std::optional<MTextPlace::Cover> cover() const
    {
        const MultiLeaderData::Text &text = m_data.text;
        if (!text.hasFill && !text.isGroundFill)
            return std::nullopt;
        MTextPlace::Cover cover;
        cover.margin = text.fillScale >= 1.0 && text.fillScale <= 5.0 ? text.fillScale - 1.0 : 0.5;
        if (!text.isGroundFill && text.fillColour) {
            cover.kind = FillKind::Area;
            cover.colour = packedColour(text.fillColour->integer().value_or(0));
        }
        return cover;
    }

    void addText()
    {
        const MultiLeaderData::Text &text = m_data.text;
        const QString content = text.content ? decoded(*text.content) : QString();
        const bool isPlaced = isUsable(text.at) && isUsable(textDirection()) && isUsable(m_data.textHeight);
        if (content.isEmpty() || !isPlaced || !(m_data.textHeight > 0.0))
            return;
        const std::size_t first = m_context.display.items.size();
        BuildContext part = contextWithStyle(m_context, coloured(m_context.style, text.colour));
        const Matrix frame = planeFrame(text.at, textDirection(), text.normal);
        if (integer(leaderContent, 2) == 3) {
            addToleranceFrame(m_context, content, frame,
                              {.height = m_data.textHeight,
                               .textStyle = nameOf(m_context, text.style),
                               .lines = m_context.style,
                               .letters = part.style});
            return;
        }
        const MTextPlace place{.frame = frame,
                               .height = m_data.textHeight,
                               .attachment = static_cast<int>(std::clamp<qint64>(text.alignment, 1, 3)) - 1,
                               .styleName = nameOf(m_context, text.style),
                               .cover = cover()};
        MTextBox box{.width = isUsable(text.width) ? std::max(text.width, 0.0) : 0.0};
        box.lineSpacing = text.lineSpacing >= 0.1 && text.lineSpacing <= 10.0 ? text.lineSpacing : 1.0;
        box.isSpacingExact = text.isSpacingExact;
        addMText(part, place, content, box);
        m_textBox = boxSince(m_context, first, frame);
        if (integer(leaderTextFrame, 0) != 0)
            addTextFrame(frame);
    }

    /// As far from the letters as the landing ends.
    void addTextFrame(const Matrix &frame)
    {
        if (m_textBox.isEmpty() || !isUsable(m_data.gap))
            return;
        const double margin = std::abs(m_data.gap);
        const Vec3 low = m_textBox.low - Vec3{margin, margin, 0.0};
        const Vec3 high = m_textBox.high + Vec3{margin, margin, 0.0};
        addPath(m_context,
                {frame.point({low.x, low.y, 0.0}), frame.point({high.x, low.y, 0.0}),
                 frame.point({high.x, high.y, 0.0}), frame.point({low.x, high.y, 0.0}),
                 frame.point({low.x, low.y, 0.0})},
                coloured(m_context.style, value(leaderColour)));
    }

    Matrix blockPlacement() const
    {
        const MultiLeaderData::Block &block = m_data.block;
        const std::vector<double> &m = block.matrix;
        if (m.size() == 16) {
            const Matrix given{{m[0], m[4], m[8]}, {m[1], m[5], m[9]}, {m[2], m[6], m[10]}, {m[3], m[7], m[11]}};
            // Some writers leave the identity, and say the place of the block only beside it.
            const bool saysPlace = given.origin != Vec3{} || block.at == Vec3{};
            if (given.determinant() != 0.0 && saysPlace)
                return given;
        }
        return Matrix::translation(block.at) * Matrix::fromExtrusion(block.normal) * Matrix::rotation(block.rotation) *
               Matrix::scaling(block.scale);
    }

    void addBlockContent()
    {
        const QString name = nameOf(m_context, m_data.block.record);
        if (!m_data.hasBlock || name.isEmpty())
            return;
        const Matrix placement = blockPlacement();
        const Style style = coloured(m_context.style, m_data.block.colour);
        if (!addBlock(m_context, name, placement, style)) {
            m_context.display.isSimplified = true;
            return;
        }
        for (const MultiLeaderData::Attribute &attribute : m_data.attributes) {
            const RecordId definition =
                m_context.drawing.find(attribute.definition->handle().value_or(drawing::Handle{}));
            if (attribute.text && m_context.drawing.isAlive(definition) &&
                m_context.drawing.isType(definition, "ATTDEF"))
                addAttribute(m_context, definition, *attribute.text, placement, style);
        }
    }

    QString decoded(const Tag &tag) const { return m_context.drawing.codec().decode(tag.value); }

    BuildContext &m_context;
    MultiLeaderData m_data;
    std::optional<TagList> m_style;
    Box m_textBox; ///< in the frame of the text
};

} // namespace

bool buildMultiLeader(BuildContext &context, const TagList &tags)
{
    return MultiLeaderBuilder(context, tags).build();
}

} // namespace host::view
