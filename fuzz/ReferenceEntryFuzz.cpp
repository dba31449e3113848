// Any text as an expression that filters names, and as references: none takes long, and what is taken apart comes
// together again.

#include "formats/NameFilter.h"
#include "formats/ReferenceEntry.h"

#include <QStringList>

#include <cstdlib>

using namespace ortakit;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QStringList lines = QString::fromUtf8(reinterpret_cast<const char *>(data), qsizetype(size)).split(u'\n');
    NameFilter filter(lines.first());
    for (const QString &line : lines) {
        const ReferenceEntry entry = referenceOf(line);
        filter.accepts(entry.name);
        if (!(referenceOf(writtenReference(entry)) == entry) || withBackslashes(entry.path).contains(u'/'))
            std::abort();
        if (redefinedPath(entry.path, {}, entry.name) != entry.name + entry.path)
            std::abort();
    }
    return 0;
}
