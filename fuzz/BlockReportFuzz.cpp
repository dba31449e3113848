// Any lines as entries of blocks: all that are counted have references, and each has its line in the report.

#include "formats/BlockReport.h"

#include <cstdlib>

using namespace ortakit;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QString text = QString::fromUtf8(reinterpret_cast<const char *>(data), qsizetype(size));
    const QList<BlockCount> blocks = blockCounts(text.split(u'\n'));
    qsizetype lineEnds = 1;
    for (const BlockCount &block : blocks) {
        if (block.references <= 0)
            std::abort();
        lineEnds += block.name.count(QStringLiteral("\r\n")) + 1;
    }
    // A name may end in what makes a line end with what follows, never the other way round.
    if (QString::fromUtf8(blockReport(blocks)).count(QStringLiteral("\r\n")) != lineEnds)
        std::abort();
    return 0;
}
