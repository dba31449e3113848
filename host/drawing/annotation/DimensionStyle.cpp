#include "host/drawing/annotation/DimensionStyle.h"

#include "host/drawing/annotation/AnnotationScale.h"
#include "host/drawing/records/Symbols.h"
#include "host/drawing/records/Tables.h"

#include <utility>

namespace host::drawing {

namespace {

using Style = DimensionStyle;

struct RealRow
{
    int code;
    double Style::*field;
};
constexpr RealRow realRows[] = {
    {40, &Style::scale},
    {41, &Style::arrowSize},
    {42, &Style::extensionOffset},
    {44, &Style::extensionBeyond},
    {45, &Style::rounding},
    {46, &Style::lineBeyond},
    {47, &Style::upperTolerance},
    {48, &Style::lowerTolerance},
    {49, &Style::fixedExtension},
    {140, &Style::textHeight},
    {141, &Style::centerMark},
    {142, &Style::tickSize},
    {143, &Style::alternateFactor},
    {144, &Style::lengthFactor},
    {145, &Style::textRise},
    {146, &Style::toleranceHeight},
    {147, &Style::gap},
    {148, &Style::alternateRounding},
};

struct IntegerRow
{
    int code;
    int Style::*field;
};
constexpr IntegerRow integerRows[] = {
    {69, &Style::textFill},
    {70, &Style::textFillColour},
    {77, &Style::textPlace},
    {78, &Style::zeros},
    {79, &Style::angleZeros},
    {90, &Style::arcSign},
    {171, &Style::alternatePrecision},
    {176, &Style::lineColour},
    {177, &Style::extensionColour},
    {178, &Style::textColour},
    {179, &Style::anglePrecision},
    {271, &Style::precision},
    {272, &Style::tolerancePrecision},
    {273, &Style::alternateMode},
    {275, &Style::angleMode},
    {276, &Style::fractions},
    {277, &Style::lengthMode},
    {278, &Style::decimalSign},
    {279, &Style::textMove},
    {280, &Style::justification},
    {283, &Style::toleranceAlignment},
    {284, &Style::toleranceZeros},
    {285, &Style::alternateZeros},
    {289, &Style::fit},
    {371, &Style::lineWeight},
    {372, &Style::extensionWeight},
};

struct SwitchRow
{
    int code;
    bool Style::*field;
};
constexpr SwitchRow switchRows[] = {
    {71, &Style::hasTolerance},       {72, &Style::hasLimits},           {73, &Style::isLevelInside},
    {74, &Style::isLevelOutside},     {75, &Style::hidesFirstExtension}, {76, &Style::hidesSecondExtension},
    {170, &Style::hasAlternate},      {172, &Style::forcesLineInside},   {173, &Style::hasTwoArrows},
    {174, &Style::forcesTextInside},  {281, &Style::hidesFirstLine},     {282, &Style::hidesSecondLine},
    {290, &Style::hasFixedExtension},
};

struct TextRow
{
    int code;
    QString Style::*field;
};
constexpr TextRow textRows[] = {
    {3, &Style::affix},      {4, &Style::alternateAffix}, {5, &Style::arrow},
    {6, &Style::firstArrow}, {7, &Style::secondArrow},
};
/// Named by handles: of blocks, of a text style, of linetypes.
constexpr TextRow handleRows[] = {
    {340, &Style::textStyle},
    {341, &Style::leaderArrow},
    {342, &Style::arrow},
    {343, &Style::firstArrow},
    {344, &Style::secondArrow},
    {345, &Style::lineLinetype},
    {346, &Style::firstExtensionLinetype},
    {347, &Style::secondExtensionLinetype},
};

template <class Row, std::size_t Count>
const Row *findRow(const Row (&rows)[Count], int code)
{
    const auto found = std::ranges::find(rows, code, &Row::code);
    return found == std::end(rows) ? nullptr : found;
}

void takeReal(Style &style, const RealRow &row, const Tag &tag)
{
    constexpr double largestSize = 1e12;
    const bool mayBeNegative =
        row.code == 147 || row.code == 141 || row.code == 144 || row.code == 145 || row.code == 47 || row.code == 48;
    const auto value = tag.real();
    if (value && std::abs(*value) <= largestSize && (mayBeNegative || *value >= 0.0))
        style.*row.field = *value;
}

/// One value, from the style's record or from an override. Modes of R13 (270) give way to those of R2000 (277).
void takeValue(Style &style, const Drawing &drawing, const TagList &tags, int code, const Tag &tag)
{
    if (const RealRow *real = findRow(realRows, code)) {
        takeReal(style, *real, tag);
    } else if (const IntegerRow *integer = findRow(integerRows, code)) {
        style.*integer->field = static_cast<int>(std::clamp<qint64>(tag.integer().value_or(0), -0xffff, 0xffff));
    } else if (const SwitchRow *isOn = findRow(switchRows, code)) {
        style.*isOn->field = tag.integer().value_or(0) != 0;
    } else if (const TextRow *text = findRow(textRows, code)) {
        style.*text->field = tags.decoded(tag);
    } else if (const TextRow *named = findRow(handleRows, code)) {
        const RecordId record = drawing.find(tag.handle().value_or(Handle{}));
        if (drawing.isAlive(record))
            style.*named->field = drawing.tables().name(record);
    } else if (code == 270) {
        style.lengthMode = static_cast<int>(std::clamp<qint64>(tag.integer().value_or(2), 1, 8));
    }
}

void takeOverrides(Style &style, const Drawing &drawing, const TagList &tags)
{
    bool isOurs = false;
    bool isStyle = false;
    const Tag *code = nullptr;
    for (const Tag &tag : tags) {
        if (tag.code == 1001) {
            isOurs = tag.trimmed() == "ACAD";
            isStyle = false;
        } else if (isOurs && tag.code == 1000 && tag.trimmed() == "DSTYLE" && !code) {
            isStyle = true;
        } else if (isStyle && tag.code == 1002) {
            isStyle = !tag.trimmed().startsWith('}');
            code = nullptr;
        } else if (isStyle && code) {
            takeValue(style, drawing, tags, static_cast<int>(code->integer().value_or(0)), tag);
            code = nullptr;
        } else if (isStyle && tag.code == 1070) {
            code = &tag;
        }
    }
}

/// Modes 4 and 5 of later versions write fractions one above the other, 7 and 8 the same in the line.
void makeUsual(Style &style)
{
    if (style.lengthMode == 7 || style.lengthMode == 8) {
        style.lengthMode -= 3;
        style.fractions = 2;
    }
    style.lengthMode = style.lengthMode >= 1 && style.lengthMode <= 5 ? style.lengthMode : 2;
    style.scale = style.scale > 0.0 ? style.scale : 1.0;
    style.textHeight = style.textHeight > 0.0 ? style.textHeight : 0.18;
    if (style.anglePrecision < 0)
        style.anglePrecision = style.precision;
}

} // namespace

const QString &DimensionStyle::arrowAt(bool isSecond) const
{
    if (!hasTwoArrows)
        return arrow;
    return isSecond ? secondArrow : firstArrow;
}

DimensionStyle readDimensionStyle(const Drawing &drawing, const TagList &entity)
{
    DimensionStyle style;
    const RecordId record = drawing.tables().find(TableKind::DimStyle, entity.text(3, QStringLiteral("Standard")));
    if (isValid(record)) {
        const TagList tags = drawing.tags(record);
        bool hasFlags = false; // the first 70 is of the table entry, a second one of the style
        for (const Tag &tag : tags.own()) {
            if (tag.code != 70 || std::exchange(hasFlags, true))
                takeValue(style, drawing, tags, tag.code, tag);
        }
    }
    takeOverrides(style, drawing, entity);
    if (style.scale == 0.0)
        style.scale = annotationFactor(drawing);
    // A style of a fixed height makes its texts that high whatever the dimension style says.
    if (const auto text = findTextStyle(drawing, style.textStyle); text && text->fixedHeight > 0.0)
        style.textHeight = text->fixedHeight / (style.scale > 0.0 ? style.scale : 1.0);
    makeUsual(style);
    return style;
}

} // namespace host::drawing
