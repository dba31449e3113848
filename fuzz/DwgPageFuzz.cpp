// Any bytes as a packed page, to any size up to 64 KB: it unpacks to that size, or not at all.

#include "fuzz/Require.h"
#include "host/dwg/container/PageCompression.h"

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, size_t size)
{
    if (size < 2)
        return 0;
    const size_t unpackedSize = data[0] | static_cast<size_t>(data[1]) << 8;
    const auto unpacked = host::dwg::unpackPage({data + 2, size - 2}, unpackedSize);
    require(!unpacked || unpacked->size() == unpackedSize);
    return 0;
}
