#include "host/view/display/BoxIndex.h"

#include <array>
#include <bit>
#include <cmath>
#include <limits>

namespace host::view {

namespace {

constexpr std::size_t fanOut = 16;

float below(double value)
{
    const auto nearest = static_cast<float>(value);
    return static_cast<double>(nearest) > value ? std::nextafter(nearest, -std::numeric_limits<float>::infinity())
                                                : nearest;
}

float above(double value)
{
    const auto nearest = static_cast<float>(value);
    return static_cast<double>(nearest) < value ? std::nextafter(nearest, std::numeric_limits<float>::infinity())
                                                : nearest;
}

/// Every other bit of the result is one of the 16 bits given.
std::uint32_t spread(std::uint32_t bits)
{
    bits = (bits | (bits << 8)) & 0x00FF'00FF;
    bits = (bits | (bits << 4)) & 0x0F0F'0F0F;
    bits = (bits | (bits << 2)) & 0x3333'3333;
    return (bits | (bits << 1)) & 0x5555'5555;
}

/// A record with where it lies along a curve that fills the plane, so that neighbours come close to each other.
struct CurvePlace
{
    std::uint32_t key = 0;
    std::uint32_t place = 0;
};

/// Sorted by key; equal ones keep their order.
void radixSort(std::vector<CurvePlace> &places)
{
    std::vector<CurvePlace> other(places.size());
    for (int shift = 0; shift < 32; shift += 8) {
        std::array<std::size_t, 257> begins{};
        for (const CurvePlace &place : places)
            ++begins[((place.key >> shift) & 0xFF) + 1];
        for (std::size_t i = 1; i < begins.size(); ++i)
            begins[i] += begins[i - 1];
        for (const CurvePlace &place : places)
            other[begins[(place.key >> shift) & 0xFF]++] = place;
        places.swap(other);
    }
}

/// Where a value lies between two others, as one of 65536 steps.
std::uint32_t stepOf(double value, double low, double high)
{
    const double part = (value - low) / (high - low);
    // Boxes without end and planes without width give no number.
    return part > 0.0 ? static_cast<std::uint32_t>(std::min(part, 1.0) * 65535.0) : 0;
}

std::vector<CurvePlace> alongCurve(const std::vector<RecordSummary> &records)
{
    Box middles;
    const auto middleOf = [](const Box &box) { return (box.low + box.high) * 0.5; };
    std::vector<CurvePlace> places;
    for (const RecordSummary &record : records) {
        if (!record.isLoose && !record.box.isEmpty())
            middles.add(middleOf(record.box));
    }
    for (std::size_t i = 0; i < records.size(); ++i) {
        if (records[i].isLoose || records[i].box.isEmpty())
            continue;
        const Vec3 middle = middleOf(records[i].box);
        places.push_back({spread(stepOf(middle.x, middles.low.x, middles.high.x)) |
                              spread(stepOf(middle.y, middles.low.y, middles.high.y)) << 1,
                          static_cast<std::uint32_t>(i)});
    }
    radixSort(places);
    return places;
}

/// Rising, without repeats; many are sorted by marking them.
void sortPlaces(std::vector<std::uint32_t> &places, std::size_t limit)
{
    if (places.size() < limit / 64) {
        std::ranges::sort(places);
        return;
    }
    std::vector<std::uint64_t> marks(limit / 64 + 1);
    for (const std::uint32_t place : places)
        marks[place / 64] |= std::uint64_t{1} << (place % 64);
    places.clear();
    for (std::size_t word = 0; word < marks.size(); ++word) {
        for (std::uint64_t left = marks[word]; left != 0; left &= left - 1)
            places.push_back(static_cast<std::uint32_t>(word * 64) +
                             static_cast<std::uint32_t>(std::countr_zero(left)));
    }
}

} // namespace

void BoxIndex::clear()
{
    m_places.clear();
    m_levels.clear();
    m_loose.clear();
}

void BoxIndex::build(std::vector<RecordSummary> &records)
{
    clear();
    for (std::size_t i = 0; i < records.size(); ++i) {
        records[i].isLoose = records[i].isEndless && !records[i].isGone;
        if (records[i].isLoose)
            m_loose.push_back(static_cast<std::uint32_t>(i));
    }
    for (const CurvePlace &place : alongCurve(records))
        m_places.push_back(place.place);
    Level leaves((m_places.size() + fanOut - 1) / fanOut);
    for (std::size_t leaf = 0; leaf < leaves.size(); ++leaf) {
        Box box;
        for (std::size_t i = leaf * fanOut; i < std::min(m_places.size(), (leaf + 1) * fanOut); ++i)
            box.add(records[m_places[i]].box);
        leaves[leaf] = {below(box.low.x), below(box.low.y), above(box.high.x), above(box.high.y)};
    }
    m_levels.push_back(std::move(leaves));
    while (m_levels.back().size() > 1) {
        const Level &lower = m_levels.back();
        Level upper((lower.size() + fanOut - 1) / fanOut);
        for (std::size_t i = 0; i < lower.size(); ++i) {
            FlatBox &around = upper[i / fanOut];
            const FlatBox &box = lower[i];
            around = i % fanOut == 0 ? box
                                     : FlatBox{std::min(around.left, box.left), std::min(around.bottom, box.bottom),
                                               std::max(around.right, box.right), std::max(around.top, box.top)};
        }
        m_levels.push_back(std::move(upper));
    }
}

void BoxIndex::touch(std::vector<RecordSummary> &records, std::uint32_t place)
{
    if (!isBuilt() || records[place].isLoose)
        return;
    records[place].isLoose = true;
    m_loose.push_back(place);
}

void BoxIndex::descend(const std::vector<RecordSummary> &records, const Box &box, std::size_t level, std::size_t node,
                       std::size_t most, std::vector<std::uint32_t> &found) const
{
    const FlatBox &around = m_levels[level][node];
    if (found.size() >= most || around.left > box.high.x || box.low.x > around.right || around.bottom > box.high.y ||
        box.low.y > around.top)
        return;
    const std::size_t count = level > 0 ? m_levels[level - 1].size() : m_places.size();
    for (std::size_t i = node * fanOut; i < std::min(count, (node + 1) * fanOut); ++i) {
        if (level > 0) {
            descend(records, box, level - 1, i, most, found);
        } else if (const RecordSummary &record = records[m_places[i]];
                   !record.isLoose && !record.isGone && record.box.touchesFlat(box)) {
            found.push_back(m_places[i]);
        }
    }
}

std::vector<std::uint32_t> BoxIndex::find(const std::vector<RecordSummary> &records, const Box &box,
                                          std::size_t most) const
{
    std::vector<std::uint32_t> found;
    if (!m_levels.empty() && !m_levels.back().empty())
        descend(records, box, m_levels.size() - 1, 0, most, found);
    for (const std::uint32_t place : m_loose) {
        const RecordSummary &record = records[place];
        if (!record.isGone && (record.isEndless || record.box.touchesFlat(box)))
            found.push_back(place);
    }
    sortPlaces(found, records.size());
    return found;
}

} // namespace host::view
