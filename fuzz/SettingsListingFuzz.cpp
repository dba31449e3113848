// Any bytes: each line is in one class, by the word it holds, and a script of a class has its lines in order.

#include "formats/SettingsListing.h"
#include "formats/TextReading.h"
#include "fuzz/Require.h"

using namespace ortakit;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray text = withoutByteOrderMark(QByteArray(reinterpret_cast<const char *>(data), qsizetype(size)));
    const SettingsListing listing = parseSettingsListing(text);
    for (const QByteArray &line : listing.readOnly)
        require(line.contains("read-only"));
    for (const QByteArray &line : listing.dangerous)
        require(line.contains("dangerous") && !line.contains("read-only"));
    for (const QByteArray &line : listing.standard)
        require(!line.contains("dangerous") && !line.contains("read-only"));

    qsizetype lines = 0;
    for (LineReader reader(text); reader.next();)
        ++lines;
    require(listing.readOnly.size() + listing.dangerous.size() + listing.standard.size() == lines);
    require(listing.standard.join('\n').contains(settingsScript(listing.standard)));
    return 0;
}
