#include "host/dwg/drawing/BlockMarks.h"

namespace host::dwg {

MarksByBlock findBlockMarks(const DrawingObjects &objects, const ObjectHead::Spaces &spaces)
{
    constexpr int beginType = 0x04;
    constexpr int endType = 0x05;
    MarksByBlock marks;
    const Names names;
    Fields fields(objects.release(), names);
    ObjectHead head(spaces);
    // Objects do not overlap: what has more bytes than all of them is not looked at.
    std::size_t left = objects.byteCount();
    for (const MapEntry &entry : objects.map()) {
        const int type = entry.frame.type;
        const ObjectFrame *const frame = type == beginType || type == endType ? objects.peek(entry) : nullptr;
        if (!frame || frame->handle != entry.handle || frame->bytes.size() > left)
            continue;
        left -= frame->bytes.size();
        head.read(*frame, true, fields);
        std::string name = type == beginType ? fields.text() : std::string();
        if (fields.hasFailed())
            continue;
        BlockMarks &block = marks[fields.relations().owner];
        (type == beginType ? block.begin : block.end) = entry.handle;
        if (type == beginType)
            block.name = std::move(name);
    }
    return marks;
}

} // namespace host::dwg
