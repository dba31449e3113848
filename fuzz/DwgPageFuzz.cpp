// Any bytes as a packed page of up to 4 KB, in both ways of packing: nothing is written beyond the page, and nothing
// in front of its own bytes is taken.

#include "fuzz/Require.h"
#include "host/dwg/container/PageCompression.h"
#include "host/dwg/container/PageCompression2007.h"

#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, size_t size)
{
    if (size < 3)
        return 0;
    std::vector<std::uint8_t> page((data[1] | static_cast<size_t>(data[2]) << 8) % 0x1001, 0xa5);
    std::vector<std::uint8_t> again(page.size(), 0x5a);
    const auto unpack = data[0] % 2 == 0 ? host::dwg::unpackPage : host::dwg::unpackPage2007;
    const host::dwg::Bytes packed(data + 3, size - 3);
    const bool isWhole = unpack(packed, page);
    require(unpack(packed, again) == isWhole);
    // What was there before is not what comes out.
    for (size_t i = 0; i < page.size(); ++i)
        require(page[i] == again[i] || (page[i] == 0xa5 && again[i] == 0x5a));
    require(!isWhole || data[0] % 2 == 0 || page == again);
    return 0;
}
