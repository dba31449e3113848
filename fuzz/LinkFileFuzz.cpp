// Any bytes as a link file: what is written of it is read as the same, and written the same again.

#include "formats/LinkFile.h"

#include <cstdlib>

using namespace ortakit;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const LinkReading first = readLinks(QByteArray(reinterpret_cast<const char *>(data), qsizetype(size)));
    const QByteArray written = writtenLinks(first.links, {}, first.encoding);
    const LinkReading second = readLinks(written);
    if (second.links.size() > first.links.size())
        std::abort();
    // A line that ended with several carriage returns, or in nothing but blanks, settles with the first writing.
    const QByteArray again = writtenLinks(second.links, {}, second.encoding);
    const LinkReading third = readLinks(again);
    if (third.links != second.links || writtenLinks(third.links, {}, third.encoding) != again)
        std::abort();
    return 0;
}
