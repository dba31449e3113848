#include "host/dwg/drawing/Companions.h"

#include "host/dwg/drawing/ObjectNames.h"

#include <algorithm>

namespace host::dwg {

namespace {

constexpr std::string_view mapName = "ACAD_ROUNDTRIP_2008_TABLESTYLE_CELLSTYLEMAP";
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

Companions::Companions(const DrawingObjects &objects, std::uint64_t namedObjects, std::uint64_t firstFree,
                       Fields &fields)
    : m_release(objects.release()), m_namedObjects(namedObjects), m_firstFree(firstFree)
{
    const auto one = std::ranges::find(objects.classes(), "TABLESTYLE", &ObjectClass::name);
    if (m_release < Release::R2010 || one == objects.classes().end())
        return;
    if (!objects.map().empty())
        m_firstFree = std::max(m_firstFree, objects.map().back().handle + 1);
    ObjectHead head({});
    for (const MapEntry &entry : objects.map()) {
        const auto frame = objects.peek(entry);
        if (!frame || frame->type != one->number)
            continue;
        head.read(*frame, false, fields);
        Style &style = m_styles[entry.handle];
        style.dictionary = fields.relations().dictionary;
        style.hasNewDictionary = style.dictionary == 0;
        if (style.hasNewDictionary)
            style.dictionary = m_firstFree++;
        style.map = m_firstFree++;
        if (!style.hasNewDictionary)
            m_dictionaries[style.dictionary] = style.map;
    }
    if (!m_styles.empty())
        findList(objects, fields);
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
    if (const auto style = m_styles.find(handle); style != m_styles.end() && style->second.hasNewDictionary) {
        const std::size_t mark = fields.mark();
        const std::size_t companion = fields.companion();
        fields.note(102, "{ACAD_XDICTIONARY");
        fields.noteHandle(360, style->second.dictionary);
        fields.note(102, "}");
        const std::size_t count = fields.mark() - mark;
        fields.moveForward(mark, 1);
        fields.beginCompanion(companion + count);
        fields.relations().dictionary = style->second.dictionary;
    }
    if (const auto dictionary = m_dictionaries.find(handle); dictionary != m_dictionaries.end())
        addEntry(fields, mapName, 360, dictionary->second);
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
    for (const auto &[handle, style] : m_styles)
        handles.push_back(handle);
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
    const auto found = m_styles.find(handle);
    if (found == m_styles.end() || begin == fields.mark())
        return;
    const Style &style = found->second;
    if (style.hasNewDictionary) {
        noteHead(record, style.dictionary, handle, false);
        record.subclass("AcDbDictionary");
        record.note(280, 1);
        record.note(281, 1);
        addEntry(record, mapName, 360, style.map);
        m_records[style.dictionary] = recordOf("DICTIONARY", record);
    }
    noteHead(record, style.map, style.dictionary, true);
    m_records[style.map] = recordOf("CELLSTYLEMAP", record);
    fields.write(m_records[style.map].lines, begin, fields.mark());
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
