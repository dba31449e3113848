#include "host/view/build/TextLook.h"

#include <numbers>

namespace host::view {

using namespace Qt::StringLiterals;

namespace {

/// Outline fonts are named by extended data: the family, and flags for bold and italic.
void readFamily(const drawing::TagList &tags, FontRequest &request)
{
    constexpr qint64 italicFlag = 0x1000000;
    constexpr qint64 boldFlag = 0x2000000;
    bool isOurs = false;
    for (const drawing::Tag &tag : tags) {
        if (tag.code == 1001)
            isOurs = tag.trimmed() == "ACAD";
        else if (tag.code == 1000 && isOurs && !tag.trimmed().isEmpty()) {
            request.name = tags.decoded(tag);
            request.isFile = false;
        } else if (tag.code == 1071 && isOurs) {
            request.isBold = (tag.integer().value_or(0) & boldFlag) != 0;
            request.isItalic = (tag.integer().value_or(0) & italicFlag) != 0;
        }
    }
}

double saneWithin(double value, double limit, double otherwise)
{
    return std::abs(value) <= limit ? value : otherwise;
}

} // namespace

FontRequest fontRequest(const drawing::Drawing &drawing, const drawing::TextStyle &style)
{
    FontRequest request{
        .name = style.fontFile.isEmpty() ? u"txt"_s : style.fontFile, .isFile = true, .bigFont = style.bigFontFile};
    readFamily(drawing.tags(style.record), request);
    return request;
}

TextLook readTextLook(const BuildContext &context, const QString &styleName)
{
    TextLook look{.request = {.name = u"txt"_s, .isFile = true}};
    const auto style = drawing::findTextStyle(context.drawing, styleName.isEmpty() ? u"Standard"_s : styleName);
    if (style) {
        look.request = fontRequest(context.drawing, *style);
        look.widthFactor = style->widthFactor > 0.0 ? saneWithin(style->widthFactor, 100.0, 1.0) : 1.0;
        look.oblique = saneWithin(style->obliqueAngle, 85.0, 0.0) * std::numbers::pi / 180.0;
        look.generation = (style->isBackward ? 2 : 0) | (style->isUpsideDown ? 4 : 0);
        look.isVertical = style->isVertical;
    }
    look.font = context.fonts().find(look.request);
    return look;
}

} // namespace host::view
