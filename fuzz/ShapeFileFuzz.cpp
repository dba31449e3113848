// Any bytes as a shape source: every header is listed with the fields that it has, and a shape behind it is found.

#include "formats/ShapeFile.h"

#include <cstdlib>

using namespace ortakit;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray text = withoutByteOrderMark(QByteArray(reinterpret_cast<const char *>(data), qsizetype(size)));
    const ShapeListing listing = listShapes(text);
    qsizetype named = 0;
    for (const ShapeHeader &shape : listing.definitions) {
        if (shape.number.contains(u',') || shape.name.contains(u',') || shape.name.contains(u'\n'))
            std::abort();
        named += !shape.name.isEmpty();
    }
    if (named + listing.diagnostics.size() != listing.definitions.size())
        std::abort();
    const QByteArray more = text + "\n*7,3,ADDED\n1,16,0\n";
    if (listShapes(more).definitions.value(listing.definitions.size()) !=
        ShapeHeader{QStringLiteral("7"), QStringLiteral("ADDED")})
        std::abort();
    return 0;
}
