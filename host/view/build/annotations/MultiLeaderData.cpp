#include "host/view/build/annotations/MultiLeaderData.h"

namespace host::view {

using drawing::Tag;
using drawing::TagList;

namespace {

/// The context data: braces nest, and codes mean different things at each depth.
class MultiLeaderReader
{
public:
    explicit MultiLeaderReader(const TagList &tags) : m_tags(tags) {}

    MultiLeaderData read()
    {
        bool isOfType = false; // the common groups use some of the codes
        for (std::size_t i = 0, end = m_tags.own().size(); i < end; ++i) {
            const Tag &tag = m_tags[i];
            isOfType |= tag.code == 270 || tag.code == 300 || (tag.code == 100 && tag.trimmed() == "AcDbMLeader");
            if (isOfType && !changesPart(tag))
                readPart(tag, i);
        }
        return std::move(m_data);
    }

private:
    enum class Part
    {
        Own,
        Context,
        Leader,
        Line
    };

    /// Whether the tag begins or ends a part.
    bool changesPart(const Tag &tag)
    {
        const bool opens = tag.trimmed().endsWith('{');
        if (tag.code == 300 && opens && m_part == Part::Own)
            m_part = Part::Context;
        else if (tag.code == 301 && m_part != Part::Own)
            m_part = Part::Own;
        else if (tag.code == 302 && opens && m_part == Part::Context)
            openLeader();
        else if (tag.code == 303 && m_part == Part::Leader)
            m_part = Part::Context;
        else if (tag.code == 304 && opens && m_part == Part::Leader)
            openLine();
        else if (tag.code == 305 && m_part == Part::Line)
            m_part = Part::Leader;
        else
            return false;
        return true;
    }

    void openLeader()
    {
        m_part = Part::Leader;
        m_data.leaders.emplace_back();
    }
    void openLine()
    {
        m_part = Part::Line;
        m_data.leaders.back().lines.emplace_back();
    }

    void readPart(const Tag &tag, std::size_t at)
    {
        switch (m_part) {
        case Part::Own:
            readOwn(tag);
            break;
        case Part::Context:
            if (!readText(tag, at) && !readBlock(tag, at))
                readContext(tag);
            break;
        case Part::Leader:
            readLeader(m_data.leaders.back(), tag, at);
            break;
        case Part::Line:
            readLine(m_data.leaders.back().lines.back(), tag, at);
            break;
        }
    }

    static double real(const Tag &tag) { return tag.real().value_or(0.0); }
    static qint64 integer(const Tag &tag) { return tag.integer().value_or(0); }
    static bool isOn(const Tag &tag) { return integer(tag) != 0; }

    void readContext(const Tag &tag)
    {
        switch (tag.code) {
        case 40:
            m_data.scale = real(tag);
            break;
        case 41:
            m_data.textHeight = real(tag);
            break;
        case 140:
            m_data.arrowSize = real(tag);
            break;
        case 145:
            m_data.gap = real(tag);
            break;
        case 174:
            m_data.leftAttachment = integer(tag);
            break;
        case 175:
            m_data.rightAttachment = integer(tag);
            break;
        case 290:
            m_data.hasText = isOn(tag);
            break;
        case 296:
            m_data.hasBlock = isOn(tag);
            break;
        default:
            break;
        }
    }

    bool readText(const Tag &tag, std::size_t at)
    {
        MultiLeaderData::Text &text = m_data.text;
        switch (tag.code) {
        case 304:
            text.content = &tag;
            return true;
        case 340:
            text.style = &tag;
            return true;
        case 11:
            text.normal = m_tags.pointAt(at);
            return true;
        case 12:
            text.at = m_tags.pointAt(at);
            return true;
        case 13:
            text.direction = m_tags.pointAt(at);
            return true;
        case 42:
            text.rotation = real(tag);
            return true;
        case 43:
            text.width = real(tag);
            return true;
        case 45:
            text.lineSpacing = real(tag);
            return true;
        case 170:
            text.isSpacingExact = integer(tag) == 2;
            return true;
        case 90:
            text.colour = &tag;
            return true;
        case 171:
            text.alignment = integer(tag);
            return true;
        default:
            return readTextFill(tag);
        }
    }

    bool readTextFill(const Tag &tag)
    {
        MultiLeaderData::Text &text = m_data.text;
        switch (tag.code) {
        case 91:
            text.fillColour = &tag;
            return true;
        case 141:
            text.fillScale = real(tag);
            return true;
        case 291:
            text.isGroundFill = isOn(tag);
            return true;
        case 292:
            text.hasFill = isOn(tag);
            return true;
        default:
            return false;
        }
    }

    bool readBlock(const Tag &tag, std::size_t at)
    {
        MultiLeaderData::Block &block = m_data.block;
        switch (tag.code) {
        case 341:
            block.record = &tag;
            return true;
        case 14:
            block.normal = m_tags.pointAt(at);
            return true;
        case 15:
            block.at = m_tags.pointAt(at);
            return true;
        case 16:
            block.scale = m_tags.pointAt(at);
            return true;
        case 46:
            block.rotation = real(tag);
            return true;
        case 93:
            block.colour = &tag;
            return true;
        case 47:
            block.matrix.push_back(real(tag));
            return true;
        default:
            return false;
        }
    }

    /// A break is given by its begin, then its end.
    static void readBreak(std::vector<MultiLeaderData::Break> &breaks, bool isBegin, const Vec3 &point)
    {
        if (isBegin)
            breaks.push_back({point, point});
        else if (!breaks.empty())
            breaks.back().to = point;
    }

    void readLeader(MultiLeaderData::Leader &leader, const Tag &tag, std::size_t at)
    {
        switch (tag.code) {
        case 290:
            leader.hasLanding = isOn(tag);
            break;
        case 291:
            leader.hasDogleg = isOn(tag);
            break;
        case 10:
            leader.landing = m_tags.pointAt(at);
            break;
        case 11:
            leader.dogleg = m_tags.pointAt(at);
            break;
        case 12:
        case 13:
            readBreak(leader.breaks, tag.code == 12, m_tags.pointAt(at));
            break;
        case 40:
            leader.doglegLength = real(tag);
            break;
        case 271:
            leader.isVertical = isOn(tag);
            break;
        default:
            break;
        }
    }

    void readLine(MultiLeaderData::Line &line, const Tag &tag, std::size_t at)
    {
        switch (tag.code) {
        case 10:
            line.points.push_back(m_tags.pointAt(at));
            break;
        case 11:
        case 12:
            readBreak(line.breaks, tag.code == 11, m_tags.pointAt(at));
            break;
        case 91:
            line.index = integer(tag);
            break;
        case 93:
            line.overrides = integer(tag);
            break;
        case 170:
            line.type = integer(tag);
            break;
        case 40:
            line.arrowSize = real(tag);
            break;
        default:
            readLineLook(line, tag);
        }
    }

    static void readLineLook(MultiLeaderData::Line &line, const Tag &tag)
    {
        if (tag.code == 92)
            line.colour = &tag;
        else if (tag.code == 340)
            line.linetype = &tag;
        else if (tag.code == 171)
            line.lineweight = &tag;
        else if (tag.code == 341)
            line.arrow = &tag;
    }

    /// Lists stand among the single values: arrows of lines (94, 345), attributes (330, 177, 44, 302).
    void readOwn(const Tag &tag)
    {
        m_data.own.push_back(tag);
        if (tag.code == 90)
            m_data.overrides = integer(tag);
        else if (tag.code == 94)
            m_data.arrows.push_back({integer(tag), nullptr});
        else if (tag.code == 345 && !m_data.arrows.empty())
            m_data.arrows.back().arrow = &tag;
        else if (tag.code == 330)
            m_data.attributes.push_back({&tag, nullptr});
        else if (tag.code == 302 && !m_data.attributes.empty())
            m_data.attributes.back().text = &tag;
    }

    const TagList &m_tags;
    MultiLeaderData m_data;
    Part m_part = Part::Own;
};

} // namespace

const Tag *MultiLeaderData::find(int code) const
{
    const auto found = std::ranges::find(own, code, &Tag::code);
    return found == own.end() ? nullptr : &*found;
}

MultiLeaderData readMultiLeader(const TagList &tags)
{
    return MultiLeaderReader(tags).read();
}

} // namespace host::view
