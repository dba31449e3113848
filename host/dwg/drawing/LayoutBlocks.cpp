#include "host/dwg/drawing/LayoutBlocks.h"

#include "host/dwg/objects/TableTypes.h"

#include <algorithm>

namespace host::dwg {

namespace {

constexpr int layoutType = 0x52;

/// The number of the class that layouts are of, where they are not of a type of their own.
int layoutClass(const DrawingObjects &objects)
{
    const auto found = std::ranges::find(objects.classes(), "LAYOUT", &ObjectClass::name);
    return found != objects.classes().end() ? found->number : layoutType;
}

/// The layout that was read last, and what it refers to as its block: 0 where it tells none.
std::pair<std::uint64_t, NamedLayout> layoutFrom(const Fields &fields)
{
    constexpr int nameCode = 1;
    constexpr int subclassCode = 100;
    constexpr int blockCode = 330;
    bool isOwnPart = false;
    std::uint64_t block = 0;
    NamedLayout layout{fields.relations().handle, fields.relations().owner, {}};
    fields.forEachTag([&](int code, std::string_view value) {
        if (code == subclassCode)
            isOwnPart = value == "AcDbLayout";
        else if (isOwnPart && code == blockCode)
            block = std::strtoull(std::string(value).c_str(), nullptr, 16);
        else if (isOwnPart && code == nameCode)
            layout.name = value;
    });
    return {block, std::move(layout)};
}

/// What is wrong with the layout that was read; null where nothing.
const char *faultOf(const DrawingObjects &objects, const Fields &fields, std::uint64_t block,
                    const LayoutBlocks &others)
{
    if (!fields.isUsedUp())
        return "The object has another form than layouts have.";
    if (block == 0)
        return "It has no block.";
    if (others.contains(block))
        return "Another layout has its block.";
    const ObjectFrame *const frame = objects.peek(block);
    return frame && frame->type != blockType ? "What it has for its block is none." : nullptr;
}

} // namespace

LayoutBlocks findLayoutBlocks(DrawingObjects &objects, Fields &fields)
{
    LayoutBlocks layouts;
    const int ofClass = layoutClass(objects);
    std::size_t left = objects.byteCount();
    ObjectHead head({});
    for (const MapEntry &entry : objects.map()) {
        const int type = entry.frame.type;
        const ObjectFrame *const frame = type == layoutType || type == ofClass ? objects.peek(entry) : nullptr;
        // Objects do not overlap: what has more bytes than all of them is not looked at.
        if (!frame || frame->bytes.size() > left)
            continue;
        left -= frame->bytes.size();
        head.read(*frame, false, fields);
        typeByNumber(layoutType)->read(fields);
        if (fields.relations().handle != entry.handle)
            continue;
        auto [block, layout] = layoutFrom(fields);
        if (const char *fault = faultOf(objects, fields, block, layouts)) {
            objects.lose(entry.handle, type, fault);
            objects.leaveOut(entry.handle);
            fields.leftOut().insert(entry.handle);
        } else {
            layouts.emplace(block, std::move(layout));
        }
    }
    return layouts;
}

} // namespace host::dwg
