#include "host/dwg/drawing/LaterRecords.h"

#include "host/dwg/drawing/ObjectNames.h"

#include <algorithm>

namespace host::dwg {

namespace {

constexpr int dictionaryType = 0x2a;

/// What an entry of a dictionary is called that may be such a record.
bool isLaterName(std::string_view name)
{
    return name == "ACAD_XREC_ROUNDTRIP" || name == "ACAD_LAYOUTSELFREF";
}

/// The text that an extension record begins with, as group 102, "-" where it does not; empty for what is no such
/// record.
std::string beginningOf(const DrawingObjects &objects, std::uint64_t handle, Fields &fields)
{
    const ObjectFrame *const frame = objects.peek(handle);
    const ObjectType *type = frame ? objects.typeOf(frame->type) : nullptr;
    if (!type || std::string_view(type->name) != "XRECORD")
        return {};
    ObjectHead({}).read(*frame, false, fields);
    type->read(fields);
    std::string beginning = "-";
    int place = -1; // behind the subclass
    fields.forEachTag([&](int code, std::string_view value) {
        place = code == 100 ? 0 : place < 0 ? place : place + 1;
        if (place == 1 && code == 102)
            beginning = value;
    });
    return beginning;
}

/// What the records of the styles of views begin with. Their dictionaries stay, empty.
constexpr std::string_view viewStyleBeginning = "DISPLAYNAME";

bool isLaterBeginning(std::string_view text)
{
    constexpr std::string_view beginnings[] = {"ACADR14ROUNDTRIP", viewStyleBeginning, "EXTNAMES",
                                               "PLOTSTYLENAMESTR", "RTVSPost2010",     "ACAD_ROUNDTRIP_2008_TABLE"};
    return std::ranges::any_of(beginnings, [text](std::string_view one) { return text.starts_with(one); });
}

} // namespace

std::unordered_set<std::uint64_t> findLaterRecords(const DrawingObjects &objects, Fields &fields)
{
    std::unordered_set<std::uint64_t> later;
    std::unordered_map<std::uint64_t, std::string> beginnings; // each record is read once, whoever has it
    const auto beginningIn = [&](std::uint64_t handle) -> const std::string & {
        const auto [place, isNew] = beginnings.try_emplace(handle);
        if (isNew)
            place->second = beginningOf(objects, handle, fields);
        return place->second;
    };
    for (const MapEntry &place : objects.map()) {
        if (place.frame.type != dictionaryType)
            continue;
        const DictionaryEntries entries = readEntries(objects, place.handle, fields);
        std::size_t left = entries.size();
        for (const auto &[name, handle] : entries) {
            const std::string beginning = isLaterName(name) ? beginningIn(handle) : std::string();
            const bool isOwnLayout = name == "ACAD_LAYOUTSELFREF" && !beginning.empty();
            if (!isOwnLayout && !isLaterBeginning(beginning))
                continue;
            later.insert(handle);
            left -= beginning != viewStyleBeginning ? 1 : 0;
        }
        if (left == 0 && !entries.empty())
            later.insert(place.handle);
    }
    return later;
}

} // namespace host::dwg
