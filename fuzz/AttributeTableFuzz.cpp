// Any bytes as a table of block attributes: as many rows as were said, none wider than the headers.

#include "formats/AttributeTable.h"

#include <cstdlib>

using namespace ortakit;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray text = withoutByteOrderMark(QByteArray(reinterpret_cast<const char *>(data), qsizetype(size)));
    AttributeTableReader reader(text);
    if (reader.isTooLarge())
        return 0;
    QList<QStringList> rows;
    while (reader.next()) {
        rows.append(reader.fields());
        if (rows.last().isEmpty() || rows.last().size() > reader.headers().size())
            std::abort();
    }
    if (rows.size() != reader.rowCount())
        std::abort();
    // A row is at least its separator.
    if (attributeText(reader.headers(), rows).size() < rows.size())
        std::abort();
    return 0;
}
