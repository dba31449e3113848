#include "host/drawing/text/ParagraphColumns.h"

#include "host/drawing/tags/ExtendedData.h"
#include "host/drawing/tags/GroupCodes.h"
#include "host/drawing/text/ParagraphText.h"

#include <algorithm>
#include <cmath>

namespace host::drawing {

namespace {

enum ColumnType
{
    NoColumns = 0,
    StaticColumns = 1,
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

qint64 typeOf(const ParagraphColumns &columns)
{
    return columns.isDynamic ? DynamicColumns : StaticColumns;
}

void embedColumns(FieldList &paragraph, const ParagraphColumns &columns, Vec2 size)
{
    const double count = static_cast<double>(columns.count);
    FieldList object = {{embeddedObjectCode, QStringLiteral("Embedded Object")},
                        {70, qint64(1)},
                        {10, paragraphDirection(paragraph)},
                        {11, findField(paragraph, 10)->point()},
                        {40, count * columns.width + (count - 1.0) * columns.gutter},
                        {41, columns.definedHeight},
                        {42, size.x},
                        {43, size.y},
                        {71, typeOf(columns)},
                        {72, columns.count},
                        {44, columns.width},
                        {45, columns.gutter},
                        {73, qint64(columns.isAutoHeight)},
                        {74, qint64(columns.isReversed)}};
    for (const double height : columns.heights)
        object.push_back({46, height});
    paragraph.insert(paragraph.end(), object.begin(), object.end());
}

void noteColumns(FieldList &paragraph, const ParagraphColumns &columns)
{
    const auto whole = [](qint64 code, qint64 value) { return FieldList{{1070, code}, {1070, value}}; };
    const auto real = [](qint64 code, double value) { return FieldList{{1070, code}, {1040, value}}; };
    FieldList data = {{1000, QStringLiteral("ACAD_MTEXT_COLUMN_INFO_BEGIN")}};
    const auto append = [&data](const FieldList &more) { data.insert(data.end(), more.begin(), more.end()); };
    append(whole(75, typeOf(columns)));
    append(whole(79, columns.isAutoHeight));
    append(whole(76, columns.count));
    append(whole(78, columns.isReversed));
    append(real(48, columns.width));
    append(real(49, columns.gutter));
    append({{1000, QStringLiteral("ACAD_MTEXT_COLUMN_INFO_END")},
            {1000, QStringLiteral("ACAD_MTEXT_DEFINED_HEIGHT_BEGIN")}});
    append(real(46, columns.definedHeight));
    append({{1000, QStringLiteral("ACAD_MTEXT_DEFINED_HEIGHT_END")}});
    setExtendedData(paragraph, QStringLiteral("ACAD"), data);
}

} // namespace

void addParagraphColumns(FieldList &paragraph, const ParagraphColumns &columns, Vec2 size, Version version)
{
    setField(paragraph, 41, columns.width);
    if (version >= Version::R2018)
        embedColumns(paragraph, columns, size);
    else if (version >= Version::R2007)
        noteColumns(paragraph, columns);
}

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
