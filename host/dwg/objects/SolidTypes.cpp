#include "host/dwg/objects/ModelText.h"
#include "host/dwg/objects/ModelValues.h"
#include "host/dwg/objects/TypeTable.h"

#include <algorithm>
#include <cstdio>

namespace host::dwg {

namespace {

void noteModelLine(Fields &f, std::string_view line)
{
    constexpr std::size_t mostOfATag = 255;
    f.note(1, line.substr(0, mostOfATag));
    while (line.size() > mostOfATag) {
        line.remove_prefix(mostOfATag);
        f.note(3, line.substr(0, mostOfATag));
    }
}

/// A byte that no line of a model has gets the disguise of a question mark, so that who takes the disguise off finds
/// letters everywhere.
bool replaceNoLetters(std::string &model)
{
    constexpr char unknown = 159 - '?';
    const auto isNone = [](char c) { return (c < ' ' && c != '\r' && c != '\n') || c > '~'; };
    const bool hasAny = std::ranges::any_of(model, isNone);
    std::ranges::replace_if(model, isNone, unknown);
    return hasAny;
}

/// The model's lines, in pieces of any length, as they are: text files have them in the same disguise.
void readModelText(Fields &f)
{
    std::string model;
    while (const std::size_t size = f.count(8))
        model += f.values().rawBytes(size);
    if (replaceNoLetters(model))
        f.doubt("The model has bytes that are no letters; there are question marks instead.");
    std::string_view rest = model;
    while (!rest.empty()) {
        const std::size_t end = rest.find('\n');
        std::string_view line = rest.substr(0, end);
        rest.remove_prefix(end == std::string_view::npos ? rest.size() : end + 1);
        // Blanks at the end of a line mean nothing in text files.
        while (!line.empty() && (line.back() == '\r' || line.back() == ' '))
            line.remove_suffix(1);
        noteModelLine(f, line);
    }
}

/// A model in binary form, as text. Gives it back where no text is known for it.
std::string readBinaryModel(Fields &f)
{
    BitReader ahead = f.values();
    const std::size_t size = binaryModelSize(ahead.rawBytes(ahead.left() / 8));
    if (size == 0) {
        f.fail();
        return {};
    }
    std::string model = f.values().rawBytes(size);
    const std::size_t mark = f.mark();
    f.note(70, 1);
    if (takeModelLines(model, [&f](const std::string &line) { noteModelLine(f, disguisedLine(line)); }))
        return {};
    f.drop(mark);
    return model;
}

/// A record of its own in the extension dictionary (drawing/Companions.h).
void keepModel(Fields &f, std::string_view model)
{
    if (!f.since(Release::R2007))
        return f.doubt("The model has a binary form that has no text here; it is left out.");
    f.doubt("The model has a binary form that has no text here; it is kept as its bytes.");
    f.beginCompanion(f.mark());
    f.subclass("AcDbXrecord");
    f.note(280, 1);
    f.noteBinary(310, model);
}

/// A line that is drawn of a model.
void readWire(Fields &f)
{
    f.small();
    f.int32();
    f.since(Release::R2004) ? f.int32() : f.int16();
    f.int32();
    const std::size_t points = f.count(6);
    for (std::size_t i = 0; i < points; ++i)
        f.point();
    const bool isPlaced = f.flag();
    if (!isPlaced)
        return;
    for (int i = 0; i < 4; ++i)
        f.point();
    f.real();
    for (int i = 0; i < 3; ++i)
        f.flag();
}

void readWires(Fields &f)
{
    const std::size_t wires = f.count(16);
    for (std::size_t i = 0; i < wires && !f.hasFailed(); ++i)
        readWire(f);
}

/// What a model looks like from one viewport.
void readSilhouette(Fields &f)
{
    f.int32();
    for (int i = 0; i < 3; ++i)
        f.point();
    f.flag();
    const bool hasWires = f.flag();
    if (hasWires)
        readWires(f);
}

/// What is drawn of a model, which the text form does not have: it can be made again.
void readWireframe(Fields &f)
{
    const bool hasPoint = f.flag();
    if (hasPoint)
        f.point();
    f.int32(); // lines on curved faces
    const bool hasLines = f.flag();
    if (hasLines)
        readWires(f);
    const std::size_t silhouettes = f.count(16);
    for (std::size_t i = 0; i < silhouettes && !f.hasFailed(); ++i)
        readSilhouette(f);
}

/// The name of the model's state, from R2013 on.
std::string readRevision(Fields &f)
{
    const bool hasRevision = f.flag();
    const auto first = static_cast<std::uint32_t>(f.int32());
    const int second = f.int16() & 0xffff;
    const int third = f.int16() & 0xffff;
    const std::string rest = f.values().rawBytes(8);
    f.int32();
    char text[40] = "";
    if (hasRevision && rest.size() == 8) {
        const auto byte = [&rest](std::size_t i) { return static_cast<unsigned>(static_cast<unsigned char>(rest[i])); };
        std::snprintf(text, sizeof text, "{%08x-%04x-%04x-%02x%02x-%02x%02x%02x%02x%02x%02x}", first,
                      static_cast<unsigned>(second), static_cast<unsigned>(third), byte(0), byte(1), byte(2), byte(3),
                      byte(4), byte(5), byte(6), byte(7));
    }
    return text;
}

/// The model itself: as text, or in binary form, which stands here up to R2010 and outside the object from R2013 on.
/// Gives back what stays in binary form.
std::string readGeometry(Fields &f)
{
    f.flag();
    const int version = f.int16();
    if (version != 1)
        return f.relations().hasStoredData ? std::string() : readBinaryModel(f);
    f.note(70, version);
    readModelText(f);
    return {};
}

/// What follows the model.
void readBehindModel(Fields &f, bool isSolid)
{
    const bool hasWireframe = f.flag();
    if (hasWireframe)
        readWireframe(f);
    f.flag();
    if (!f.since(Release::R2007))
        return;
    const std::size_t materials = f.count(4);
    for (std::size_t i = 0; i < materials && !f.hasFailed(); ++i) {
        f.int32();
        f.int32();
        f.reference();
    }
    if (f.since(Release::R2013)) {
        f.note(290, f.relations().hasStoredData);
        const std::string revision = readRevision(f);
        if (!revision.empty())
            f.note(2, revision);
    }
    if (isSolid) {
        f.subclass("AcDb3dSolid");
        f.reference(350); // how it was made
    }
}

/// Keeps the model where what follows it has another form than is known.
void readModel(Fields &f, bool isSolid)
{
    f.subclass("AcDbModelerGeometry");
    const bool isEmpty = f.flag();
    const std::string kept = isEmpty ? std::string() : readGeometry(f);
    const std::size_t mark = f.mark();
    const BitReader values = f.values();
    const BitReader references = f.references();
    readBehindModel(f, isSolid);
    if (!f.isUsedUp()) {
        f.drop(mark);
        f.values() = values;
        f.references() = references;
    }
    if (!kept.empty())
        keepModel(f, kept);
}

void readRegion(Fields &f)
{
    readModel(f, false);
}

void readSolid(Fields &f)
{
    readModel(f, true);
}

} // namespace

std::span<const ObjectType> solidTypes()
{
    static constexpr ObjectType rows[] = {
        {0x25, "REGION", readRegion, true},
        {0x26, "3DSOLID", readSolid, true},
        {0x27, "BODY", readRegion, true},
    };
    return rows;
}

} // namespace host::dwg
