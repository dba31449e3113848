#include "host/dwg/drawing/ArrowSizes.h"

#include "host/dwg/objects/TableTypes.h"

#include <charconv>

namespace host::dwg {

namespace {

/// Group codes of these two variables of dimension styles, which are left out of a style where they are as usual.
constexpr int scaleCode = 40;
constexpr int arrowCode = 41;

} // namespace

void ArrowSizes::Size::set(int code, std::string_view value)
{
    // Programs have locales with other points in their numbers.
    if (code == scaleCode || code == arrowCode)
        std::from_chars(value.data(), value.data() + value.size(), code == scaleCode ? scale : arrow);
}

double ArrowSizes::sizeOf(std::uint64_t style, const ObjectHead &head)
{
    auto found = m_styles.find(style);
    if (found == m_styles.end())
        found = m_styles.emplace(style, sizeOfStyle(style)).first;
    Size size = found->second;
    readOwn(head, size);
    return size.scale * size.arrow;
}

ArrowSizes::Size ArrowSizes::sizeOfStyle(std::uint64_t style) const
{
    Size size;
    const ObjectFrame *const frame = m_objects.peek(style);
    if (!frame || frame->type != dimensionStyleType)
        return {0.0, 0.0};
    Fields fields(m_objects.release(), m_names);
    ObjectHead({}).read(*frame, false, fields);
    typeByNumber(dimensionStyleType)->read(fields);
    fields.forEachTag([&size](int code, std::string_view value) { size.set(code, value); });
    return size;
}

/// What an object has instead of its style: group codes as numbers, each in front of its value.
void ArrowSizes::readOwn(const ObjectHead &head, Size &size) const
{
    Fields fields(m_objects.release(), m_names);
    fields.start({}, {}, {});
    head.noteExtendedData(fields);
    bool isOwn = false;
    int variable = 0;
    fields.forEachTag([&](int code, std::string_view value) {
        constexpr int text = 1000;
        constexpr int application = 1001;
        constexpr int real = 1040;
        constexpr int number = 1070;
        if (code == text || code == application)
            isOwn = code == text && value == "DSTYLE";
        else if (isOwn && code == number)
            std::from_chars(value.data(), value.data() + value.size(), variable);
        else if (isOwn && code == real)
            size.set(variable, value);
    });
}

} // namespace host::dwg
