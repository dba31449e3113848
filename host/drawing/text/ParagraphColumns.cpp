#include "host/drawing/text/ParagraphColumns.h"

#include <algorithm>
#include <cmath>

namespace host::drawing {

namespace {

enum ColumnType
{
    NoColumns = 0,
    DynamicColumns = 2
};

double realOr0(const Tag &tag)
{
    return tag.real().value_or(0.0);
}

/// What the values mean by the codes that the entity's own groups would have; the embedded object has codes of its own.
class ColumnReader
{
public:
    void take(int code, const Tag &value)
    {
        switch (code) {
        case 75:
            m_type = value.integer().value_or(NoColumns);
            break;
        case 76:
            m_columns.count = value.integer().value_or(1);
            break;
        case 78:
            m_columns.isReversed = value.integer().value_or(0) != 0;
            break;
        case 79:
            m_columns.isAutoHeight = value.integer().value_or(0) != 0;
            break;
        case 48:
            m_columns.width = realOr0(value);
            break;
        case 49:
            m_columns.gutter = realOr0(value);
            break;
        case 46:
            m_columns.definedHeight = realOr0(value);
            break;
        default:
            break;
        }
    }
    void addHeight(const Tag &value) { m_columns.heights.push_back(realOr0(value)); }
    void addLinked(const Tag &value)
    {
        if (const auto handle = value.handle(); handle && !handle->isNull())
            m_columns.linked.push_back(*handle);
    }

    std::optional<ParagraphColumns> result()
    {
        m_columns.isDynamic = m_type == DynamicColumns;
        if (m_type == NoColumns || !std::isfinite(m_columns.width) || !(m_columns.width > 0.0))
            return std::nullopt;
        return std::move(m_columns);
    }

private:
    qint64 m_type = NoColumns;
    ParagraphColumns m_columns;
};

void readEmbedded(const TagList &paragraph, size_t at, ColumnReader &reader)
{
    // From the codes of the embedded object to those of the entity.
    static constexpr std::pair<int, int> codes[] = {{71, 75}, {72, 76}, {74, 78}, {73, 79},
                                                    {44, 48}, {45, 49}, {41, 46}};
    for (; at < paragraph.size() && paragraph[at].code < 1000; ++at) {
        const Tag &tag = paragraph[at];
        const auto known = std::ranges::find(codes, tag.code, &std::pair<int, int>::first);
        if (known != std::end(codes))
            reader.take(known->second, tag);
        else if (tag.code == 46)
            reader.addHeight(tag);
    }
}

/// Extended data in named sections: pairs of a code and its value, but for heights and handles, which are lists behind
/// their count.
void readExtended(const TagList &paragraph, ColumnReader &reader)
{
    constexpr int heightList = 50;
    constexpr int linkedList = 47;
    bool isInside = false;
    qint64 code = 0;
    bool hasCode = false;
    for (const Tag &tag : paragraph) {
        if (tag.code == 1000) {
            const QByteArrayView mark = tag.trimmed();
            isInside = mark == "ACAD_MTEXT_COLUMN_INFO_BEGIN" || mark == "ACAD_MTEXT_COLUMNS_BEGIN" ||
                       mark == "ACAD_MTEXT_DEFINED_HEIGHT_BEGIN";
            hasCode = false;
        } else if (!isInside || tag.code < 1000) {
            continue;
        } else if (tag.code == 1040 && code == heightList) {
            reader.addHeight(tag);
            hasCode = false;
        } else if (tag.code == 1005) {
            reader.addLinked(tag);
            hasCode = false;
        } else if (!hasCode) {
            code = tag.integer().value_or(0);
            hasCode = true;
        } else {
            if (code != heightList && code != linkedList)
                reader.take(static_cast<int>(code), tag);
            hasCode = false;
        }
    }
}

} // namespace

std::optional<ParagraphColumns> paragraphColumns(const TagList &paragraph)
{
    ColumnReader reader;
    for (const Tag &tag : paragraph.own())
        if (tag.code == 75 || tag.code == 76 || tag.code == 78 || tag.code == 79 || tag.code == 48 || tag.code == 49)
            reader.take(tag.code, tag);
    if (const size_t end = paragraph.own().size(); end < paragraph.size() && paragraph[end].code == 101)
        readEmbedded(paragraph, end + 1, reader);
    readExtended(paragraph, reader);
    return reader.result();
}

ParagraphFrame paragraphFrame(const TagList &paragraph)
{
    constexpr qint64 frameFlag = 16;
    ParagraphFrame frame{.isShown = (paragraph.integer(90) & frameFlag) != 0};
    bool isInside = false;
    for (const Tag &tag : paragraph) {
        if (tag.code == 1000)
            isInside = tag.trimmed() == "ACAD_MTEXT_TEXT_BORDERS_BEGIN";
        else if (tag.code == 1005 && isInside)
            frame.polyline = tag.handle().value_or(Handle{});
    }
    return frame;
}

} // namespace host::drawing
