// Any bytes as blocks that carry what corrects them: what is put right is whole afterwards, everything else is left.

#include "fuzz/Require.h"
#include "host/dwg/bits/ErrorCorrection.h"

#include <algorithm>

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, size_t size)
{
    using namespace host::dwg;
    for (const ErrorCode code : {ErrorCode::Maps, ErrorCode::Data}) {
        std::array<std::uint8_t, correctedBlock> block{};
        std::copy_n(data, std::min(size, block.size()), block.begin());
        const auto before = block;
        const auto count = correctBlock(code, block);
        size_t changed = 0;
        for (size_t i = 0; i < block.size(); ++i)
            changed += block[i] != before[i] ? 1 : 0;
        require(changed == count.value_or(0));
        require(2 * changed <= correctedBlock - ownBytes(code));
        require(!count || correctBlock(code, block) == size_t(0));
    }
    return 0;
}
