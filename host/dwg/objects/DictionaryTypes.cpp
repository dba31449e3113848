#include "host/dwg/objects/ExtendedData.h"
#include "host/dwg/objects/TypeTable.h"

#include <algorithm>

namespace host::dwg {

namespace {

struct DictionaryEntry
{
    std::string name;
    std::uint64_t handle = 0;
    bool isOwned = false; ///< as a part
};

/// R13 and R14 put new entries behind the others and leave gaps where one was; the text form has them sorted.
void sortEntries(std::vector<DictionaryEntry> &entries)
{
    const auto lower = [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; };
    std::ranges::stable_sort(entries, [lower](const DictionaryEntry &one, const DictionaryEntry &other) {
        return std::ranges::lexicographical_compare(one.name, other.name, {}, lower, lower);
    });
}

void noteEntries(Fields &f, std::size_t count, bool isOwner)
{
    std::vector<DictionaryEntry> entries;
    for (std::size_t i = 0; i < count && !f.hasFailed(); ++i) {
        std::string name = f.text();
        const HandleReference reference = f.references().handle();
        const std::uint64_t handle = reference.from(f.relations().handle);
        // Some programs leave the place of an entry that was taken out.
        if (handle != 0 && !f.leftOut().contains(handle))
            entries.push_back({std::move(name), handle, isOwner || reference.kind == HandleReference::HardOwner});
    }
    if (f.until(Release::R14))
        sortEntries(entries);
    for (const DictionaryEntry &entry : entries) {
        f.note(3, entry.name);
        f.noteHandle(entry.isOwned ? 360 : 350, entry.handle);
        f.relations().entries.push_back(entry.handle);
        f.relations().entryNames.push_back(entry.name);
    }
}

/// `isClass`: it is of a class, as dictionaries with a default are, which have the fields of R2000 in earlier files
/// too.
void readDictionaryBody(Fields &f, bool isClass)
{
    f.subclass("AcDbDictionary");
    const std::size_t count = f.checkedCount(f.int32(), 8, f.references());
    bool isOwner = f.extensionDictionaries().contains(f.relations().handle);
    const bool isLater = f.since(Release::R2000);
    const int cloning = isLater || isClass ? f.int16() : 0;
    if (f.since(Release::R14) || isClass) {
        isOwner = f.small() != 0;
        f.noteUnless(280, isOwner, {0});
    }
    if (isLater)
        f.note(281, cloning);
    noteEntries(f, count, isOwner);
}

void readDictionary(Fields &f)
{
    readDictionaryBody(f, false);
}

void readDictionaryWithDefault(Fields &f)
{
    readDictionaryBody(f, true);
    f.subclass("AcDbDictionaryWithDefault");
    f.reference(340);
}

void readDictionaryVariable(Fields &f)
{
    f.subclass("DictionaryVariables");
    f.small(280);
    f.text(1);
}

void readExtensionRecord(Fields &f)
{
    f.subclass("AcDbXrecord");
    const std::string data = f.values().rawBytes(f.count(8));
    if (f.since(Release::R2000))
        f.int16(280);
    BitReader reader(Bytes(reinterpret_cast<const std::uint8_t *>(data.data()), data.size()));
    noteRecordData(reader, f);
}

void readGroup(Fields &f)
{
    f.subclass("AcDbGroup");
    f.text(300);
    f.int16(70);
    f.int16(71);
    const std::size_t count = f.checkedCount(f.int32(), 8, f.references());
    for (std::size_t i = 0; i < count; ++i)
        f.reference(340);
}

void readSortTable(Fields &f)
{
    f.subclass("AcDbSortentsTable");
    const std::size_t count = f.checkedCount(f.int32(), 8, f.values());
    std::vector<std::uint64_t> places;
    for (std::size_t i = 0; i < count; ++i)
        places.push_back(f.values().handle().value);
    f.reference(330);
    for (const std::uint64_t place : places) {
        f.reference(331);
        f.noteHandle(5, place);
    }
}

/// What a column of a data table has in its cells.
enum class DataColumn
{
    Number = 1,
    Real = 2,
    Text = 3,
    HardOwner = 6,
    SoftOwner = 7,
    HardPointer = 8,
    SoftPointer = 9
};

void readDataCell(Fields &f, DataColumn column)
{
    switch (column) {
    case DataColumn::Number:
        f.int32(93);
        return;
    case DataColumn::Real:
        f.real(40);
        return;
    case DataColumn::Text:
        f.text(3);
        return;
    case DataColumn::HardOwner:
        f.reference(360);
        return;
    case DataColumn::SoftOwner:
        f.reference(350);
        return;
    case DataColumn::HardPointer:
        f.reference(340);
        return;
    case DataColumn::SoftPointer:
        f.reference(330);
        return;
    }
    f.fail(); // points and others, whose form is not known
}

void readDataTable(Fields &f)
{
    f.subclass("AcDbDataTable");
    f.int16(70);
    const std::size_t columns = f.count(4);
    f.note(90, columns);
    const int rows = f.int32(91);
    f.text(1);
    for (std::size_t column = 0; column < columns && !f.hasFailed(); ++column) {
        const auto kind = static_cast<DataColumn>(f.int32(92));
        f.text(2);
        for (int row = 0; row < rows && !f.hasFailed(); ++row)
            readDataCell(f, kind);
    }
}

} // namespace

std::span<const ObjectType> dictionaryTypes()
{
    static constexpr ObjectType rows[] = {
        {0x2a, "DICTIONARY", readDictionary},
        {0x48, "GROUP", readGroup},
        {0x4f, "XRECORD", readExtensionRecord},
        {0x50, "ACDBPLACEHOLDER", nullptr},
        {0, "ACDBDICTIONARYWDFLT", readDictionaryWithDefault},
        {0, "DICTIONARYVAR", readDictionaryVariable},
        {0, "SORTENTSTABLE", readSortTable},
        {0, "DATATABLE", readDataTable},
    };
    return rows;
}

} // namespace host::dwg
