#include "host/drawing/comparing/OrderChanges.h"

#include <algorithm>

namespace host::drawing {

std::vector<size_t> outOfOrder(const std::vector<size_t> &values)
{
    if (std::ranges::is_sorted(values))
        return {};
    constexpr size_t none = static_cast<size_t>(-1);
    std::vector<size_t> ends; ///< by length of a rising row, less one: the place of the smallest value that ends one
    std::vector<size_t> previous(values.size(), none);
    for (size_t place = 0; place < values.size(); ++place) {
        const auto end = std::ranges::lower_bound(ends, values[place], {}, [&](size_t other) { return values[other]; });
        if (end != ends.begin())
            previous[place] = *(end - 1);
        if (end == ends.end())
            ends.push_back(place);
        else
            *end = place;
    }
    std::vector<bool> stays(values.size(), false);
    for (size_t place = ends.back(); place != none; place = previous[place])
        stays[place] = true;
    std::vector<size_t> out;
    for (size_t place = 0; place < values.size(); ++place)
        if (!stays[place])
            out.push_back(place);
    return out;
}

} // namespace host::drawing
