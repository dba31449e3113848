#include "host/dwg/objects/ExtendedData.h"
#include "host/dwg/objects/TypeTable.h"

namespace host::dwg {

namespace {

/// `isClass`: it is of a class, as dictionaries with a default are, which have the fields of R2000 in earlier files
/// too.
void readDictionaryBody(Fields &f, bool isClass)
{
    f.subclass("AcDbDictionary");
    const std::size_t count = f.checkedCount(f.int32(), 8, f.references());
    if (f.release() == Release::R14 && !isClass)
        f.small();
    int cloning = 1;
    bool isOwner = false;
    if (f.since(Release::R2000) || isClass) {
        cloning = f.int16();
        isOwner = f.small() != 0;
    }
    if (f.since(Release::R2000)) {
        f.noteUnless(280, isOwner, {0});
        f.note(281, cloning);
    }
    for (std::size_t i = 0; i < count && !f.hasFailed(); ++i) {
        const std::string name = f.text();
        const HandleReference reference = f.references().handle();
        const std::uint64_t entry = reference.from(f.relations().handle);
        if (entry == 0)
            continue; // what some programs leave of an entry that was taken out
        f.note(3, name);
        f.noteHandle(isOwner || reference.kind == HandleReference::HardOwner ? 360 : 350, entry);
        f.relations().entries.push_back(entry);
        f.relations().entryNames.push_back(name);
    }
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
    };
    return rows;
}

} // namespace host::dwg
