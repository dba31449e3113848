// Any bytes as an alias file: read, written, and read again as what a file of this project holds.

#include "formats/AliasFile.h"

#include <QBuffer>

#include <cstdlib>

using namespace ortakit;

namespace {

AliasReading read(QByteArray text)
{
    QBuffer device(&text);
    device.open(QIODevice::ReadOnly);
    return readAliases(device);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const AliasReading first = read(QByteArray(reinterpret_cast<const char *>(data), qsizetype(size)));
    const AliasReading second = read(writtenAliases(first.aliases));
    if (!second || second.aliases.size() > first.aliases.size())
        std::abort();
    // What was written once is written the same ever after.
    const AliasReading third = read(writtenAliases(second.aliases));
    if (!third || third.aliases != second.aliases)
        std::abort();
    return 0;
}
