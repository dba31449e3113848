// Any bytes as a linetype source: what is listed is what stands behind each line's "*", diagnostics point at headers,
// and a header with a name behind it is found.

#include "formats/LinetypeFile.h"

#include <cstdlib>

using namespace ortakit;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char *>(data), qsizetype(size));
    const QByteArray text = withoutByteOrderMark(bytes);
    const LinetypeListing listing = listLinetypes(text);
    const QByteArrayList lines = text.split('\n');
    qsizetype headers = 0;
    for (const QByteArray &line : lines)
        headers += line.startsWith('*');
    if (listing.definitions.size() != headers || listing.diagnostics.size() > headers)
        std::abort();
    for (const HeaderDiagnostic &odd : listing.diagnostics) {
        if (odd.line < 1 || odd.line > lines.size() || !odd.text.startsWith(u'*'))
            std::abort();
    }
    const QByteArray more = text + "\n*ADDED,one more\nA,1,-1\n";
    if (listLinetypes(more).definitions.value(headers) !=
        LinetypeHeader{QStringLiteral("ADDED"), QStringLiteral("one more")})
        std::abort();
    return 0;
}
