#include "host/dwg/contents/Contents.h"
#include "host/dwg/objects/ObjectHead.h"

namespace host::dwg {

namespace {

constexpr int entityKind = 0x1f2;

ObjectClass readClass(BitReader &values, BitReader &texts, Release release)
{
    ObjectClass one;
    const auto text = [&] { return release >= Release::R2007 ? texts.text16() : values.text8(); };
    one.number = values.shortInteger();
    one.version = static_cast<std::uint16_t>(values.shortInteger());
    one.application = text();
    one.cppName = text();
    one.name = text();
    one.wasProxy = values.bit();
    one.isEntity = values.shortInteger() == entityKind;
    if (release >= Release::R2004) {
        one.instances = values.longInteger();
        values.longInteger(); // the release and the minor release it came with
        values.longInteger();
        values.longInteger();
        values.longInteger();
    }
    return one;
}

} // namespace

std::vector<ObjectClass> readClasses(const Container &container, Problems &problems)
{
    const Release release = container.release;
    BitReader sizes(container.classes);
    std::size_t size = sizes.raw32();
    // Later files have a number of eight bytes there.
    if (hasLongSizes(container))
        sizes.raw32();
    std::size_t begin = sizes.position() / 8;
    std::vector<ObjectClass> classes;
    if (sizes.hasFailed() || size > container.classes.size() - begin) {
        if (!container.classes.empty())
            problems.lose("The classes cannot be read.");
        return classes;
    }
    std::size_t end = (begin + size) * 8;
    BitReader values(container.classes, begin * 8, end);
    BitReader texts;
    if (release >= Release::R2007) {
        const std::size_t bits = values.raw32();
        end = std::min(end, begin * 8 + bits);
        texts = textsOf(container.classes, end);
        values = BitReader(container.classes, begin * 8 + 32, texts.left() > 0 ? texts.position() : end);
    }
    if (release >= Release::R2004) {
        values.longInteger(); // the highest number
        values.bit();
    }
    while (values.left() >= 24 && classes.size() < 0x8000) {
        ObjectClass one = readClass(values, texts, release);
        if (values.hasFailed() || one.number < 500)
            break;
        classes.push_back(std::move(one));
    }
    return classes;
}

} // namespace host::dwg
