#include "host/dwg/drawing/Companions.h"

#include "host/dwg/drawing/ObjectNames.h"

#include <algorithm>

namespace host::dwg {

namespace {

constexpr std::string_view listName = "ACDB_RECOMPOSE_DATA";

bool comesBefore(std::string_view one, std::string_view other)
{
    const auto lower = [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; };
    return std::ranges::lexicographical_compare(one, other, {}, lower, lower);
}

/// Adds an entry to the tags of a dictionary, which are in the order of the names.
void addEntry(Fields &fields, std::string_view name, int code, std::uint64_t handle)
{
    constexpr int nameCode = 3;
    std::size_t place = 0;
    std::size_t at = fields.mark();
    fields.forEachTag([&](int tag, std::string_view value) {
        if (tag == nameCode && place < at && comesBefore(name, value))
            at = place;
        ++place;
    });
    const std::size_t added = fields.mark();
    fields.note(nameCode, name);
    fields.noteHandle(code, handle);
    fields.moveForward(added, at);
    Relations &relations = fields.relations();
    const auto behind = std::ranges::find_if(relations.entryNames,
                                             [name](const std::string &other) { return comesBefore(name, other); });
    relations.entries.insert(relations.entries.begin() + (behind - relations.entryNames.begin()), handle);
    relations.entryNames.insert(behind, std::string(name));
}

/// The tags of an object that all objects have.
void noteHead(Fields &fields, std::uint64_t handle, std::uint64_t owner, bool isWatched)
{
    fields.start({}, {}, {});
    fields.noteHandle(5, handle);
    if (isWatched) {
        fields.note(102, "{ACAD_REACTORS");
        fields.noteHandle(330, owner);
        fields.note(102, "}");
    }
    fields.noteHandle(330, owner);
}

Companions::Record recordOf(const char *type, const Fields &fields)
{
    Companions::Record record{"  0\n", fields.relations().entries};
    record.lines += type;
    record.lines += '\n';
    fields.write(record.lines);
    return record;
}

} // namespace

const Companions::Kind Companions::cellStyleMap = {"ACAD_ROUNDTRIP_2008_TABLESTYLE_CELLSTYLEMAP", "CELLSTYLEMAP"};
const Companions::Kind Companions::keptModel = {"ORTAKIT_MODEL", "XRECORD"};

Companions::Companions(const DrawingObjects &objects, std::uint64_t namedObjects, std::uint64_t firstFree,
                       Fields &fields)
    : m_release(objects.release()), m_namedObjects(namedObjects), m_firstFree(firstFree)
{
    if (!objects.map().empty())
        m_firstFree = std::max(m_firstFree, objects.map().back().handle + 1);
    if (m_release >= Release::R2010)
        findStyles(objects, fields);
    if (m_release >= Release::R2007)
        findKeptModels(objects, fields);
}

void Companions::addPlace(std::uint64_t handle, const Kind &kind, std::uint64_t dictionary)
{
    Place &place = m_places[handle];
    place.kind = &kind;
    place.dictionary = dictionary;
    place.hasNewDictionary = dictionary == 0;
    if (place.hasNewDictionary)
        place.dictionary = m_firstFree++;
    else
        m_dictionaries[dictionary] = handle;
    place.record = m_firstFree++;
}

void Companions::findStyles(const DrawingObjects &objects, Fields &fields)
{
    const auto one = std::ranges::find(objects.classes(), "TABLESTYLE", &ObjectClass::name);
    if (one == objects.classes().end())
        return;
    ObjectHead head({});
    for (const MapEntry &entry : objects.map()) {
        const ObjectFrame *const frame = entry.frame.type == one->number ? objects.peek(entry) : nullptr;
        if (!frame)
            continue;
        head.read(*frame, false, fields);
        addPlace(entry.handle, cellStyleMap, fields.relations().dictionary);
    }
    if (!m_places.empty())
        findList(objects, fields);
}

/// Reads all solids, since whether a model has a text is known at its end. Objects do not overlap: what has more bytes
/// than all of them is not looked at.
void Companions::findKeptModels(const DrawingObjects &objects, Fields &fields)
{
    constexpr int firstSolid = 0x25;
    constexpr int lastSolid = 0x27;
    std::size_t left = objects.byteCount();
    ObjectHead head({});
    for (const MapEntry &entry : objects.map()) {
        const bool isSolid = entry.frame.type >= firstSolid && entry.frame.type <= lastSolid;
        const ObjectFrame *const frame = isSolid ? objects.peek(entry) : nullptr;
        if (!frame)
            continue;
        if (frame->bytes.size() > left)
            break;
        left -= frame->bytes.size();
        head.read(*frame, true, fields);
        if (fields.relations().hasStoredData)
            continue;
        objects.typeOf(frame->type)->read(fields);
        if (!fields.hasFailed() && fields.companion() != fields.mark())
            addPlace(entry.handle, keptModel, fields.relations().dictionary);
    }
}

std::size_t Companions::mapCount() const
{
    return static_cast<std::size_t>(
        std::ranges::count(m_places, &cellStyleMap, [](const auto &place) { return place.second.kind; }));
}

void Companions::findList(const DrawingObjects &objects, Fields &fields)
{
    const DictionaryEntries named = readEntries(objects, m_namedObjects, fields);
    const auto found = findEntry(named, listName);
    m_hasNewList = found == named.end();
    m_list = m_hasNewList ? m_firstFree++ : found->second;
}

void Companions::complete(Fields &fields) const
{
    const std::uint64_t handle = fields.relations().handle;
    if (const auto place = m_places.find(handle); place != m_places.end() && place->second.hasNewDictionary) {
        const std::size_t mark = fields.mark();
        const std::size_t companion = fields.companion();
        fields.note(102, "{ACAD_XDICTIONARY");
        fields.noteHandle(360, place->second.dictionary);
        fields.note(102, "}");
        const std::size_t count = fields.mark() - mark;
        fields.moveForward(mark, 1);
        fields.beginCompanion(companion + count);
        fields.relations().dictionary = place->second.dictionary;
    }
    if (const auto dictionary = m_dictionaries.find(handle); dictionary != m_dictionaries.end()) {
        const Place &place = m_places.at(dictionary->second);
        addEntry(fields, place.kind->name, 360, place.record);
    }
    if (m_list == 0)
        return;
    if (handle == m_namedObjects && m_hasNewList)
        addEntry(fields, listName, 350, m_list);
    if (handle == m_list && !m_hasNewList)
        noteList(fields);
}

/// All that is to be put together again, in the order of the handles, with what the list has already.
void Companions::noteList(Fields &fields) const
{
    constexpr int handleCode = 330;
    std::size_t begin = 0;
    std::size_t place = 0;
    std::vector<std::uint64_t> handles;
    fields.forEachTag([&](int code, std::string_view value) {
        ++place;
        if (code == 90 && begin == 0)
            begin = place;
        else if (code == handleCode && begin != 0)
            handles.push_back(std::strtoull(std::string(value).c_str(), nullptr, 16));
    });
    for (const auto &[style, where] : m_places) {
        if (where.kind == &cellStyleMap)
            handles.push_back(style);
    }
    std::ranges::sort(handles);
    handles.erase(std::unique(handles.begin(), handles.end()), handles.end());
    if (begin != 0)
        fields.drop(begin);
    for (const std::uint64_t handle : handles)
        fields.noteHandle(handleCode, handle);
}

void Companions::make(const Fields &fields, std::size_t begin)
{
    const std::uint64_t handle = fields.relations().handle;
    if (begin == fields.mark() && !(handle == m_namedObjects && m_hasNewList))
        return;
    const Names names;
    Fields record(m_release, names);
    if (handle == m_namedObjects && m_hasNewList) {
        noteHead(record, m_list, m_namedObjects, true);
        record.subclass("AcDbXrecord");
        record.note(280, 1);
        record.note(90, 1);
        noteList(record);
        m_records[m_list] = recordOf("XRECORD", record);
    }
    const auto found = m_places.find(handle);
    if (found == m_places.end() || begin == fields.mark())
        return;
    const Place &place = found->second;
    if (place.hasNewDictionary) {
        noteHead(record, place.dictionary, handle, false);
        record.subclass("AcDbDictionary");
        record.note(280, 1);
        record.note(281, 1);
        addEntry(record, place.kind->name, 360, place.record);
        m_records[place.dictionary] = recordOf("DICTIONARY", record);
    }
    noteHead(record, place.record, place.dictionary, true);
    m_records[place.record] = recordOf(place.kind->type, record);
    fields.write(m_records[place.record].lines, begin, fields.mark());
}

std::optional<Companions::Record> Companions::take(std::uint64_t handle)
{
    auto node = m_records.extract(handle);
    return node ? std::optional(std::move(node.mapped())) : std::nullopt;
}

std::vector<std::uint64_t> Companions::left() const
{
    std::vector<std::uint64_t> handles;
    for (const auto &[handle, record] : m_records)
        handles.push_back(handle);
    return handles;
}

} // namespace host::dwg
