#include "host/dwg/contents/Contents.h"

namespace host::dwg {

std::optional<int> readMeasurement(const Container &container)
{
    BitReader reader(container.measurement);
    // A description of the template stands in front of it, from R2007 on with two bytes for each character.
    const std::size_t length = reader.raw16();
    reader.rawBytes(container.release >= Release::R2007 ? 2 * length : length);
    const int measurement = reader.raw16();
    return reader.hasFailed() ? std::nullopt : std::optional(measurement);
}

namespace {

/// A text of the summary, which ends in a zero that counts.
std::string summaryText(BitReader &reader, Release release)
{
    const std::size_t length = reader.raw16();
    return release >= Release::R2007 ? reader.utf16(length) : reader.rawText(length);
}

} // namespace

std::vector<FileProperty> readSummary(const Container &container)
{
    constexpr const char *names[] = {"$TITLE",    "$SUBJECT",     "$AUTHOR",        "$KEYWORDS",
                                     "$COMMENTS", "$LASTSAVEDBY", "$REVISIONNUMBER"};
    constexpr std::size_t timesSize = 3 * 8; // worked on, made, changed
    std::vector<FileProperty> properties;
    BitReader reader(container.summary);
    for (const char *name : names) {
        std::string text = summaryText(reader, container.release);
        if (reader.hasFailed())
            return properties;
        properties.push_back({name, std::move(text), false});
    }
    summaryText(reader, container.release); // what hyperlinks begin with, which is a variable of the header
    reader.rawBytes(timesSize);
    for (int left = reader.raw16(); left > 0 && !reader.hasFailed(); --left) {
        std::string name = summaryText(reader, container.release);
        std::string text = summaryText(reader, container.release);
        if (!reader.hasFailed())
            properties.push_back({std::move(name), std::move(text), true});
    }
    return properties;
}

} // namespace host::dwg
