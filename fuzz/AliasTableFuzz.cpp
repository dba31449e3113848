// Any bytes as an alias file: what was read of it is written and read again as the same, and written the same again.

#include "fuzz/Require.h"
#include "host/kernel/running/AliasTable.h"

#include <QBuffer>

using namespace host::kernel;

namespace {

AliasTableReading read(QByteArray bytes)
{
    QBuffer device(&bytes);
    device.open(QIODevice::ReadOnly);
    return readAliasTable(device);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const AliasTableReading first = read(QByteArray(reinterpret_cast<const char *>(data), qsizetype(size)));
    for (auto entry = first.table.cbegin(); entry != first.table.cend(); ++entry)
        require(!entry.key().isEmpty() && entry.key() == entry.key().toUpper() && !entry.value().isEmpty());
    const QByteArray written = toAliasFile(first.table);
    const AliasTableReading second = read(written);
    require(second.error.isEmpty() && second.table == first.table);
    require(toAliasFile(second.table) == written);
    return 0;
}
