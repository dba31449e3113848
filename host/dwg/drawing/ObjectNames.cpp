#include "host/dwg/drawing/ObjectNames.h"

#include "host/dwg/objects/TableTypes.h"

#include <algorithm>

namespace host::dwg {

namespace {

/// Blocks, layers, text styles, linetypes, views, coordinate systems, viewports, applications, dimension styles,
/// multiline styles.
constexpr std::array<int, 10> namedTypes = {0x31, 0x33, 0x35, 0x39, 0x3d, 0x3f, 0x41, 0x43, 0x45, 0x49};

bool isAnonymousBlock(std::string_view name)
{
    return name.size() == 2 && name[0] == '*';
}

} // namespace

void readNames(const DrawingObjects &objects, Fields &fields, Names &names)
{
    ObjectHead head({});
    std::uint64_t multiLineStyles = 0;
    std::size_t bytes = 0;
    for (const MapEntry &entry : objects.map()) {
        if (std::ranges::find(namedTypes, entry.frame.type) == namedTypes.end())
            continue;
        const ObjectFrame *const frame = objects.peek(entry);
        if (!frame)
            continue;
        bytes += frame->bytes.size();
        if (bytes > objects.byteCount())
            break;
        head.read(*frame, false, fields);
        names[entry.handle] = fields.text();
        if (frame->type == multiLineStyleType)
            multiLineStyles = fields.relations().owner;
    }
    // What their dictionary calls them is their name, be it in another case.
    for (const auto &[name, style] : readEntries(objects, multiLineStyles, fields)) {
        if (const auto found = names.find(style); found != names.end())
            found->second = name;
    }
}

DictionaryEntries readEntries(const DrawingObjects &objects, std::uint64_t dictionary, Fields &fields)
{
    constexpr int dictionaryType = 0x2a;
    DictionaryEntries entries;
    const ObjectFrame *const frame = objects.peek(dictionary);
    if (!frame || frame->type != dictionaryType)
        return entries;
    ObjectHead({}).read(*frame, false, fields);
    typeByNumber(dictionaryType)->read(fields);
    Relations &relations = fields.relations();
    entries.reserve(relations.entries.size());
    for (std::size_t i = 0; i < relations.entries.size(); ++i)
        entries.emplace_back(std::move(relations.entryNames[i]), relations.entries[i]);
    return entries;
}

void numberBlocks(const std::vector<std::uint64_t> &entries, const ObjectHead::Spaces &spaces, Names &names)
{
    int layouts = 0;
    int place = 0;
    for (const std::uint64_t entry : entries) {
        if (const auto found = names.find(entry); found != names.end()) {
            std::string &name = found->second;
            if (isPaperSpace(name) && entry != spaces.paper)
                name += std::to_string(layouts++);
            else if (isAnonymousBlock(name))
                name += std::to_string(place);
        }
        if (entry != spaces.paper && entry != spaces.model)
            ++place;
    }
}

} // namespace host::dwg
