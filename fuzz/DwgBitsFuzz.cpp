// Any bytes as coded values, read in any order: the reader stays within its bits, and stays at its place once it
// failed.

#include "fuzz/Require.h"
#include "host/dwg/bits/BitReader.h"

#include <algorithm>

namespace {

using host::dwg::BitReader;
using host::dwg::Release;

void readOne(BitReader &reader, unsigned which, unsigned char argument)
{
    const Release release = argument % 2 == 0 ? Release::R14 : Release::R2010;
    switch (which) {
    case 0:
        return void(reader.bits(argument % 33));
    case 1:
        return void(reader.triple());
    case 2:
        return void(reader.shortInteger());
    case 3:
        return void(reader.longInteger());
    case 4:
        return void(reader.longLong());
    case 5:
        return void(reader.real());
    case 6:
        return void(reader.realNear(1.0 + argument));
    case 7:
        return void(reader.thickness(release));
    case 8:
        return void(reader.extrusion(release));
    case 9:
        return void(reader.modularUnsigned());
    case 10:
        return void(reader.modularSigned());
    case 11:
        return void(reader.modularShort());
    case 12:
        return void(reader.handle().from(argument));
    case 13:
        return void(reader.objectType(release));
    case 14:
        return void(reader.text8());
    case 15:
        return void(reader.text16());
    case 16:
        return void(reader.rawBytes(argument * size_t(argument)));
    case 17:
        return reader.seek(argument * size_t(8));
    case 18:
        return reader.skip(argument);
    case 19:
        return reader.endAt(reader.position() + argument * size_t(16));
    default:
        return reader.align();
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, size_t size)
{
    // Pairs of bytes in front say what is read, the rest is what it is read from.
    if (size < 2)
        return 0;
    const size_t program = std::min<size_t>(2 + data[0] % 32 * size_t(2), size) & ~size_t(1);
    const host::dwg::Bytes bytes(data + program, size - program);
    BitReader reader(bytes, data[1], bytes.size() * 8);
    for (size_t i = 2; i + 1 < program; i += 2) {
        const bool hadFailed = reader.hasFailed();
        const size_t before = reader.position();
        readOne(reader, data[i] % 21u, data[i + 1]);
        require(reader.position() <= reader.end() && reader.end() <= bytes.size() * 8);
        require(!hadFailed || reader.hasFailed());
        require(!hadFailed || data[i] % 21u == 17 || data[i] % 21u == 20 || reader.position() == before);
    }
    return 0;
}
