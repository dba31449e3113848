#include "host/dwg/bits/CodePages.h"
#include "host/dwg/contents/HeaderTable.h"
#include "host/dwg/drawing/DrawingRoots.h"
#include "host/dwg/drawing/ObjectNames.h"
#include "host/dwg/drawing/Sections.h"

#include <algorithm>

namespace host::dwg {

namespace {

/// The tags of the variables, as lines.
class HeaderValues
{
public:
    /// What was read with the header, whose tags `fields` still have.
    HeaderValues(const Header &header, const Fields &fields) : m_lines(headerOrder().size() + 1)
    {
        for (const HeaderNote &note : header.noted)
            fields.write(m_lines[note.place], note.begin, note.end);
    }

    /// Those of one; empty for one that the drawing does not have.
    std::string &operator[](std::string_view name) { return m_lines[headerPlace(name)]; }

    void write(RecordWriter &records) const
    {
        for (std::size_t i = 0; i < headerOrder().size(); ++i) {
            if (m_lines[i].empty())
                continue;
            records.addTag(9, headerOrder()[i]);
            records.addLines(m_lines[i]);
        }
    }

private:
    std::vector<std::string> m_lines; ///< in the order of the text form, and behind that what it does not have
};

/// Variables that later releases have beside others, with their values.
void addDerivedValues(Release release, HeaderValues &values)
{
    for (const auto &[local, universal] : {std::pair{"$TDCREATE", "$TDUCREATE"}, {"$TDUPDATE", "$TDUUPDATE"}}) {
        // Files have the times without a zone alone; which one the writer was in is not known.
        if (release >= Release::R2000)
            values[universal] = values[local];
    }
    if (release <= Release::R14)
        values["$HANDLING"] = tagLines(70, "1");
}

/// The page of the file's texts, and of the text form's up to R2004.
std::string codePageOf(const Container &container, Problems &problems)
{
    std::string name(codePageName(container.codePage));
    if (name.empty()) {
        name = "ANSI_1252";
        if (container.release <= Release::R2004)
            problems.warn("The code page has the number " + std::to_string(container.codePage) +
                          ", which is none that is known; texts are read as ANSI_1252.");
    }
    if (container.release == Release::R13)
        std::ranges::transform(name, name.begin(), [](char c) { return c >= 'A' && c <= 'Z' ? c | 0x20 : c; });
    return name;
}

/// Variables that files have outside their header.
void addFileValues(const Container &container, HeaderValues &values, Problems &problems)
{
    const Release release = container.release;
    const auto measurement = readMeasurement(container);
    if (measurement && release >= Release::R14)
        values["$MEASUREMENT"] = tagLines(70, std::to_string(*measurement));
    values["$ACADVER"] = tagLines(1, "AC" + std::to_string(static_cast<int>(release)));
    if (release >= Release::R14)
        values["$ACADMAINTVER"] = tagLines(release >= Release::R2018 ? 90 : 70, std::to_string(container.maintenance));
    values["$DWGCODEPAGE"] = tagLines(3, codePageOf(container, problems));
}

/// The properties of the file that are not empty; who saved it last stands there in any case.
void addSummary(const Container &container, Fields &fields, HeaderValues &values)
{
    std::string custom;
    for (const FileProperty &property : readSummary(container)) {
        if (property.text.empty() && !property.isCustom && property.name != "$LASTSAVEDBY")
            continue;
        fields.start({}, {}, {});
        if (property.isCustom) {
            if (!custom.empty())
                fields.note(9, "$CUSTOMPROPERTYTAG");
            fields.note(1, property.name);
            fields.note(9, "$CUSTOMPROPERTY");
        }
        fields.note(1, property.text);
        fields.write(property.isCustom ? custom : values[property.name]);
    }
    if (!custom.empty())
        values["$CUSTOMPROPERTYTAG"] = custom;
}

std::uint64_t entryOf(const DictionaryEntries &entries, std::string_view name)
{
    const auto found = findEntry(entries, name);
    return found != entries.end() ? found->second : 0;
}

/// Visual styles of parts that interfere, where the file names none: each is one that every drawing has.
struct UsualStyle
{
    const char *variable;
    int code;
    const char *style;
};

constexpr UsualStyle usualStyles[] = {{"$INTERFEREOBJVS", 345, "Realistic"}, {"$INTERFEREVPVS", 346, "Wireframe"}};

void addUsualStyles(DrawingParts &parts, HeaderValues &values)
{
    const auto isMissing = [&](const UsualStyle &one) { return values[one.variable] == tagLines(one.code, "0"); };
    if (std::ranges::none_of(usualStyles, isMissing))
        return;
    Fields &fields = parts.records.fields();
    const DictionaryEntries named = readEntries(parts.objects, parts.header.namedObjects, fields);
    const DictionaryEntries styles = readEntries(parts.objects, entryOf(named, "ACAD_VISUALSTYLE"), fields);
    for (const UsualStyle &one : usualStyles) {
        if (!isMissing(one))
            continue;
        fields.start({}, {}, {});
        fields.noteHandle(one.code, entryOf(styles, one.style));
        values[one.variable].clear();
        fields.write(values[one.variable]);
    }
}

/// The file's classes, with that of the records which files do not have.
std::vector<ObjectClass> classesOf(const DrawingParts &parts)
{
    std::vector<ObjectClass> classes = parts.objects.classes();
    const auto added = static_cast<int>(parts.records.companions().mapCount());
    if (added == 0)
        return classes;
    auto found = std::ranges::find(classes, "CELLSTYLEMAP", &ObjectClass::name);
    if (found == classes.end()) {
        constexpr int allowed = 0x480; // what programs may do that do not know it
        found = classes.insert(classes.end(),
                               {0, allowed, "ObjectDBX Classes", "AcDbCellStyleMap", "CELLSTYLEMAP", false, false, 0});
    }
    found->instances += added;
    return classes;
}

/// Records that files do not have get the first handles that are free. `told` is what the file has for that one.
void addCompanions(DrawingParts &parts, std::uint64_t told, HeaderValues &values)
{
    const std::uint64_t firstFree = parts.header.firstFree;
    parts.records.setCompanions({parts.objects, parts.header.namedObjects, firstFree, parts.records.fields()});
    const Companions &companions = parts.records.companions();
    if (companions.isEmpty() && firstFree == told)
        return;
    Fields &fields = parts.records.fields();
    fields.start({}, {}, {});
    fields.noteHandle(5, companions.firstFree());
    std::string &value = values["$HANDSEED"];
    value.clear();
    fields.write(value);
}

} // namespace

void writeHeaderSection(DrawingParts &parts)
{
    RecordWriter &records = parts.records;
    parts.header = readHeader(parts.container, records.fields(), parts.objects.problems());
    HeaderValues values(parts.header, records.fields());
    const std::uint64_t firstFree = parts.header.firstFree;
    findRoots(parts.objects, records.names(), records.fields(), parts.header);
    records.setSpaces({parts.header.modelSpace, parts.header.paperSpace});
    addDerivedValues(parts.container.release, values);
    addFileValues(parts.container, values, parts.objects.problems());
    addSummary(parts.container, records.fields(), values);
    addUsualStyles(parts, values);
    addCompanions(parts, firstFree, values);
    records.beginSection("HEADER");
    values.write(records);
    records.endSection();
}

void writeClassesSection(DrawingParts &parts)
{
    RecordWriter &records = parts.records;
    Fields &fields = records.fields();
    const bool hasOwnTypes = fields.since(Release::R2004);
    records.beginSection("CLASSES");
    for (const ObjectClass &one : classesOf(parts)) {
        if (hasOwnTypes && (one.name == "ACDBPLACEHOLDER" || one.name == "LAYOUT"))
            continue; // they are no classes any more
        fields.start({}, {}, {});
        fields.note(1, one.name);
        fields.note(2, one.cppName);
        fields.note(3, one.application);
        fields.note(90, one.version);
        if (fields.since(Release::R2004))
            fields.note(91, one.instances);
        fields.note(280, one.wasProxy ? 1 : 0);
        fields.note(281, one.isEntity ? 1 : 0);
        records.writeFields("CLASS");
    }
    records.endSection();
}

} // namespace host::dwg
