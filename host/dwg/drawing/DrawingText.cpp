#include "host/dwg/drawing/DrawingText.h"

#include "host/dwg/bits/Utf8.h"
#include "host/dwg/drawing/LaterRecords.h"
#include "host/dwg/drawing/LostEntries.h"
#include "host/dwg/drawing/ObjectNames.h"
#include "host/dwg/drawing/Sections.h"
#include "host/dwg/early/EarlyDrawing.h"
#include "host/dwg/early/EarlyFile.h"

namespace host::dwg {

namespace {

void leaveOutLaterRecords(DrawingParts &parts)
{
    Fields &fields = parts.records.fields();
    auto later = findLaterRecords(parts.objects, fields);
    for (const std::uint64_t handle : later)
        parts.objects.leaveOut(handle);
    fields.leftOut() = std::move(later);
}

/// Texts of one byte a character are within names and models that objects of later releases have. Where they are
/// damaged, nobody could open the text for them.
void keepUtf8(DrawingText &result)
{
    const std::size_t replaced = result.release >= Release::R2007 ? replaceNoUtf8(result.text) : 0;
    if (replaced > 0)
        result.problems.warn("Texts have bytes that are no characters; they were replaced.");
}

/// From the header to the tables, from there to the blocks and what they have, and from the dictionary of named objects
/// to everything else.
void writeDrawing(const Container &container, DrawingText &result)
{
    // What lines and circles make of their bytes, so that the text of most drawings is not moved while it grows.
    constexpr std::size_t usualGrowth = 4;
    result.text.reserve(usualGrowth * container.objects.size());
    DrawingParts parts(container, result.problems, result.text);
    result.objectCount = parts.objects.map().size();
    if (result.objectCount == 0)
        return result.problems.lose("The file has no objects.");
    readNames(parts.objects, parts.records.fields(), parts.records.names());
    if (container.release <= Release::R14)
        leaveOutLaterRecords(parts);
    writeHeaderSection(parts);
    writeClassesSection(parts);
    const std::size_t tablesBegin = result.text.size();
    writeTablesSection(parts);
    writeBlocksSection(parts);
    writeEntitiesSection(parts);
    writeObjectsSection(parts);
    leaveOutLostEntries(parts.objects.lost(), result.text, tablesBegin);
    writeDataSection(parts);
    writePreviewSection(parts);
    parts.records.beginRecord("EOF");
}

} // namespace

DrawingText readDrawing(Bytes file)
{
    DrawingText result;
    result.release = releaseOf(file);
    if (hasPlainRecords(result.release)) {
        readEarlyDrawing(file, result);
        return result;
    }
    const Container container = openContainer(file, result.problems);
    result.release = container.release;
    if (!container.objects.empty())
        writeDrawing(container, result);
    keepUtf8(result);
    return result;
}

} // namespace host::dwg
