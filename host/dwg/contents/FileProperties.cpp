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

std::optional<std::string> readLastSavedBy(const Container &container)
{
    // Title, subject, author, keywords and comments stand in front of it.
    constexpr int textsInFront = 5;
    BitReader reader(container.summary);
    std::string text;
    for (int i = 0; i <= textsInFront; ++i) {
        const std::size_t length = reader.raw16();
        text = container.release >= Release::R2007 ? reader.utf16(length) : reader.rawBytes(length);
    }
    while (!text.empty() && text.back() == '\0')
        text.pop_back();
    return reader.hasFailed() ? std::nullopt : std::optional(text);
}

} // namespace host::dwg
