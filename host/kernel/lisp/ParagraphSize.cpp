#include "host/kernel/lisp/ParagraphSize.h"

#include "host/kernel/documents/Document.h"
#include "host/view/build/TextMeasure.h"

#include <algorithm>

namespace host::kernel {

namespace {

constexpr int widthCode = 42;
constexpr int heightCode = 43;

} // namespace

bool isParagraphSize(int code)
{
    return code == widthCode || code == heightCode;
}

void showParagraphSize(const Document &document, const drawing::FieldList &fields,
                       std::vector<drawing::ShownField> &shown)
{
    const drawing::Vec2 size = document.textMeasure().paragraphSize(fields);
    for (const int code : {widthCode, heightCode}) {
        const double value = code == widthCode ? size.x : size.y;
        const auto place = std::ranges::find_if(shown, [code](const drawing::ShownField &each) {
            return each.field.code == code || drawing::endsOwnGroups(each.field);
        });
        if (place != shown.end() && place->field.code == code)
            place->field.value = value;
        else
            shown.insert(place, {{code, value}, drawing::ShownField::implied});
    }
}

bool shapesParagraph(int code)
{
    constexpr int codes[] = {1, 3, 7, 40, 41, 44};
    return std::ranges::find(codes, code) != std::end(codes);
}

} // namespace host::kernel
