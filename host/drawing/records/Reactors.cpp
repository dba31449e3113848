#include "host/drawing/records/Reactors.h"

#include "host/drawing/tags/GroupCodes.h"

#include <algorithm>

namespace host::drawing {

using namespace Qt::StringLiterals;

namespace {

/// The braces of the group: from the opening field to the closing one; both the end when there is none.
std::pair<FieldList::iterator, FieldList::iterator> reactorGroup(FieldList &fields)
{
    const auto begin = std::ranges::find_if(
        fields, [](const Field &field) { return field.code == groupCode && field.text() == u"{ACAD_REACTORS"; });
    const auto end = std::find_if(begin, fields.end(),
                                  [](const Field &field) { return field.code == groupCode && field.text() == u"}"; });
    return end == fields.end() ? std::pair(end, end) : std::pair(begin, end);
}

} // namespace

void addReactor(Drawing &drawing, RecordId record, Handle reactor)
{
    if (reactor.isNull() || drawing.version() < Version::R13)
        return;
    FieldList fields = drawing.fields(record);
    const auto [begin, end] = reactorGroup(fields);
    const bool isThere = std::any_of(begin, end, [&](const Field &field) { return field.handle() == reactor; });
    if (isThere)
        return;
    if (begin != fields.end()) {
        fields.insert(end, {ownerCode, reactor});
    } else {
        const auto head = std::ranges::find_if(fields, [](const Field &field) { return field.code == 5; });
        const auto place = head == fields.end() ? fields.begin() + 1 : head + 1;
        fields.insert(place, {{groupCode, u"{ACAD_REACTORS"_s}, {ownerCode, reactor}, {groupCode, u"}"_s}});
    }
    drawing.setFields(record, fields);
}

void removeReactor(Drawing &drawing, RecordId record, Handle reactor)
{
    FieldList fields = drawing.fields(record);
    const auto [begin, end] = reactorGroup(fields);
    const auto found = std::find_if(begin, end, [&](const Field &field) { return field.handle() == reactor; });
    if (found == end)
        return;
    if (end - begin == 2)
        fields.erase(begin, end + 1);
    else
        fields.erase(found);
    drawing.setFields(record, fields);
}

} // namespace host::drawing
