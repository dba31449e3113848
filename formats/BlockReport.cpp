#include "formats/BlockReport.h"

#include "formats/Fields.h"

#include <algorithm>

namespace ortakit {

QList<BlockCount> blockCounts(const QStringList &entries)
{
    QList<BlockCount> blocks;
    blocks.reserve(entries.size());
    for (const QString &entry : entries) {
        const int references = fieldOf(entry, u';', 1).toInt();
        if (references > 0)
            blocks.append({fieldOf(entry, u';', 0).toString(), references});
    }
    return blocks;
}

QByteArray blockReport(const QList<BlockCount> &blocks)
{
    qsizetype longest = 0;
    for (const BlockCount &block : blocks)
        longest = std::max(longest, block.name.size());
    QString text = QStringLiteral("Name").leftJustified(longest + 3) + QStringLiteral(" Instances\r\n");
    for (const BlockCount &block : blocks) {
        text += block.name.leftJustified(longest + 5) + QStringLiteral("  ");
        text += QString::number(block.references) + QStringLiteral("\r\n");
    }
    return text.toUtf8();
}

} // namespace ortakit
