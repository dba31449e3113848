// Any bytes: every line that is kept gives three columns, and one comment line in the dump.

#include "formats/LispCatalogue.h"
#include "fuzz/Require.h"

using namespace ortakit;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const LispCatalogue catalogue =
        parseLispCatalogue(QByteArrayView(reinterpret_cast<const char *>(data), qsizetype(size)));
    const QStringList lines = catalogue.commands + catalogue.functions + catalogue.variables;
    for (const QString &line : lines)
        require(lispSymbolColumns(line).size() == 3);

    const QByteArray dump = lispDump(catalogue);
    require(!dump.contains('\r'));
    const QList<QByteArray> dumped = dump.split('\n');
    require(dumped.size() == lines.size() + 1 && dumped.last().isEmpty());
    for (qsizetype i = 0; i < lines.size(); ++i)
        require(dumped[i].startsWith(";(setq ") && dumped[i].endsWith(')'));
    return 0;
}
