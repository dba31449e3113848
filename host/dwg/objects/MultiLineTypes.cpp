#include "host/dwg/objects/TypeTable.h"

namespace host::dwg {

namespace {

void readParameters(Fields &f, int countCode, int code)
{
    const std::size_t count = f.smallCount(2);
    f.note(countCode, count);
    for (std::size_t i = 0; i < count; ++i)
        f.real(code);
}

void readMultiLine(Fields &f)
{
    f.subclass("AcDbMline");
    const std::size_t begin = f.mark();
    f.real(40);
    f.small(70);
    f.point(10);
    f.point(210);
    f.int16(71);
    const int lines = f.small(73);
    const std::size_t vertices = f.smallCount(18);
    f.note(72, vertices);
    const std::uint64_t style = f.reference();
    f.note(2, f.nameOf(style));
    f.noteHandle(340, style);
    f.arrange(begin, {2, 340, 40, 70, 71, 72, 73, 10, 20, 30, 210, 220, 230});
    for (std::size_t i = 0; i < vertices && !f.hasFailed(); ++i) {
        f.point(11);
        f.point(12);
        f.point(13);
        for (int line = 0; line < lines; ++line) {
            readParameters(f, 74, 41);
            readParameters(f, 75, 42);
        }
    }
}

/// The flags of group 70 that stand in another place in files.
int multiLineStyleFlags(int flags)
{
    constexpr std::pair<int, int> places[] = {{1, 2},   {2, 1},     {16, 16},    {32, 64},
                                              {64, 32}, {256, 256}, {512, 1024}, {1024, 512}};
    int result = 0;
    for (const auto &[inFile, inText] : places)
        result |= (flags & inFile) != 0 ? inText : 0;
    return result;
}

std::string_view linetypeByNumber(Fields &f, int number)
{
    constexpr int byLayer = 32767;
    constexpr int byBlock = 32766;
    if (f.since(Release::R2018)) {
        const std::string_view name = f.nameOf(f.reference());
        return name == "ByLayer" ? "BYLAYER" : name == "ByBlock" ? "BYBLOCK" : name;
    }
    return number == byBlock ? "BYBLOCK" : number == byLayer ? "BYLAYER" : f.linetypeAt(number);
}

void readMultiLineStyle(Fields &f)
{
    f.subclass("AcDbMlineStyle");
    const std::size_t begin = f.mark();
    f.text(2);
    f.text(3);
    f.note(70, multiLineStyleFlags(f.int16()));
    f.colour(62);
    f.angle(51);
    f.angle(52);
    f.arrange(begin, {2, 70, 3, 62, 420, 430, 51, 52});
    const int lines = f.small(71);
    if (lines == 0)
        f.fail(); // a style has one line at least
    for (int i = 0; i < lines && !f.hasFailed(); ++i) {
        f.real(49);
        f.colour(62);
        f.note(6, linetypeByNumber(f, f.since(Release::R2018) ? 0 : f.int16()));
    }
}

} // namespace

std::span<const ObjectType> multiLineTypes()
{
    static constexpr ObjectType rows[] = {
        {0x2f, "MLINE", readMultiLine, true},
        {0x49, "MLINESTYLE", readMultiLineStyle},
    };
    return rows;
}

} // namespace host::dwg
