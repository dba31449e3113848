#include "host/dwg/bits/ErrorCorrection.h"

#include <algorithm>
#include <vector>

namespace host::dwg {

namespace {

/// The field of 256 elements over one polynomial: numbers by the powers of 2 that they are.
class Field256
{
public:
    static constexpr int order = 255;

    explicit constexpr Field256(int polynomial)
    {
        int value = 1;
        for (int i = 0; i < order; ++i) {
            m_powers[static_cast<std::size_t>(i)] = static_cast<std::uint8_t>(value);
            m_logarithms[static_cast<std::size_t>(value)] = static_cast<std::uint8_t>(i);
            value <<= 1;
            if (value > 0xff)
                value ^= polynomial;
        }
    }

    /// 2 to the power, which may be below 0.
    constexpr std::uint8_t power(int exponent) const
    {
        return m_powers[static_cast<std::size_t>((exponent % order + order) % order)];
    }
    constexpr std::uint8_t product(std::uint8_t a, std::uint8_t b) const
    {
        return a == 0 || b == 0 ? std::uint8_t(0) : power(m_logarithms[a] + m_logarithms[b]);
    }
    constexpr std::uint8_t quotient(std::uint8_t a, std::uint8_t b) const
    {
        return a == 0 ? std::uint8_t(0) : power(m_logarithms[a] - m_logarithms[b]);
    }

private:
    std::array<std::uint8_t, 256> m_powers{};
    std::array<std::uint8_t, 256> m_logarithms{};
};

constexpr Field256 mapField(0x169);
constexpr Field256 dataField(0x11d);

/// What each byte is times 2, 4, 8 and so on.
template <std::size_t Count>
constexpr auto productTables(const Field256 &field)
{
    std::array<std::array<std::uint8_t, 256>, Count> tables{};
    for (std::size_t i = 0; i < Count; ++i) {
        for (std::size_t byte = 0; byte < 256; ++byte)
            tables[i][byte] = field.product(static_cast<std::uint8_t>(byte), field.power(static_cast<int>(i) + 1));
    }
    return tables;
}

constexpr auto mapProducts = productTables<correctedBlock - ownBytes(ErrorCode::Maps)>(mapField);
constexpr auto dataProducts = productTables<correctedBlock - ownBytes(ErrorCode::Data)>(dataField);

/// The values of a block at the powers of 2, side by side.
template <std::size_t Count>
auto valuesAtPowers(Bytes block, const std::array<std::array<std::uint8_t, 256>, Count> &products)
{
    std::array<std::uint8_t, Count> values{};
    for (auto byte = block.rbegin(); byte != block.rend(); ++byte) {
        for (std::size_t i = 0; i < Count; ++i)
            values[i] = static_cast<std::uint8_t>(products[i][values[i]] ^ *byte);
    }
    return values;
}

/// Factors of rising powers of the unknown.
using Polynomial = std::vector<std::uint8_t>;

/// Finds the damaged bytes of one block, whose bytes are the factors of a polynomial that is 0 at the first powers
/// of 2.
class BlockCorrection
{
public:
    BlockCorrection(ErrorCode code, std::span<std::uint8_t, correctedBlock> block)
        : m_field(code == ErrorCode::Maps ? mapField : dataField), m_block(block),
          m_added(correctedBlock - ownBytes(code))
    {
    }

    std::optional<std::size_t> run()
    {
        if (!findSyndromes())
            return 0;
        const Polynomial locator = findLocator();
        const std::size_t count = locator.size() - 1;
        if (2 * count > m_added)
            return std::nullopt;
        const std::vector<int> places = placesOf(locator);
        if (places.size() != count)
            return std::nullopt;
        correct(places, locator);
        return count;
    }

private:
    std::uint8_t valueAt(const Polynomial &polynomial, std::uint8_t x) const
    {
        std::uint8_t value = 0;
        for (auto factor = polynomial.rbegin(); factor != polynomial.rend(); ++factor)
            value = static_cast<std::uint8_t>(m_field.product(value, x) ^ *factor);
        return value;
    }

    /// False when all are 0: the block is whole.
    bool findSyndromes()
    {
        const auto keep = [this](const auto &values) { m_syndromes.assign(values.begin(), values.end()); };
        if (&m_field == &mapField)
            keep(valuesAtPowers(m_block, mapProducts));
        else
            keep(valuesAtPowers(m_block, dataProducts));
        return std::ranges::any_of(m_syndromes, [](std::uint8_t value) { return value != 0; });
    }

    /// The shortest polynomial that makes each syndrome from those before it (the way of Berlekamp and Massey).
    Polynomial findLocator() const
    {
        Polynomial locator = {1};
        Polynomial before = {1};
        std::uint8_t stepBefore = 1;
        std::size_t length = 0;
        std::size_t shift = 1;
        for (std::size_t i = 0; i < m_added; ++i, ++shift) {
            std::uint8_t step = m_syndromes[i];
            for (std::size_t k = 1; k < locator.size() && k <= i; ++k)
                step = static_cast<std::uint8_t>(step ^ m_field.product(locator[k], m_syndromes[i - k]));
            if (step == 0)
                continue;
            Polynomial next = locator;
            next.resize(std::max(next.size(), before.size() + shift));
            const std::uint8_t factor = m_field.quotient(step, stepBefore);
            for (std::size_t k = 0; k < before.size(); ++k)
                next[k + shift] = static_cast<std::uint8_t>(next[k + shift] ^ m_field.product(factor, before[k]));
            if (2 * length <= i) {
                length = i + 1 - length;
                before = std::move(locator);
                stepBefore = step;
                shift = 0;
            }
            locator = std::move(next);
        }
        while (locator.size() > 1 && locator.back() == 0)
            locator.pop_back();
        return locator;
    }

    std::vector<int> placesOf(const Polynomial &locator) const
    {
        std::vector<int> places;
        for (int i = 0; i < Field256::order; ++i) {
            if (valueAt(locator, m_field.power(-i)) == 0)
                places.push_back(i);
        }
        return places;
    }

    /// How much each byte is off (the way of Forney).
    void correct(const std::vector<int> &places, const Polynomial &locator)
    {
        Polynomial evaluator(m_added);
        for (std::size_t i = 0; i < m_added; ++i) {
            for (std::size_t k = 0; k < locator.size() && k <= i; ++k)
                evaluator[i] =
                    static_cast<std::uint8_t>(evaluator[i] ^ m_field.product(locator[k], m_syndromes[i - k]));
        }
        // Of a sum of an even number of equal things nothing is left, so every second factor goes.
        Polynomial derivative(locator.size());
        for (std::size_t k = 1; k < locator.size(); k += 2)
            derivative[k - 1] = locator[k];
        for (const int place : places) {
            const std::uint8_t x = m_field.power(-place);
            std::uint8_t &byte = m_block[static_cast<std::size_t>(place)];
            byte = static_cast<std::uint8_t>(byte ^ m_field.quotient(valueAt(evaluator, x), valueAt(derivative, x)));
        }
    }

    const Field256 &m_field;
    std::span<std::uint8_t, correctedBlock> m_block;
    std::size_t m_added;
    std::vector<std::uint8_t> m_syndromes; ///< the block's values at the powers of 2; all 0 when it is whole
};

} // namespace

std::optional<std::size_t> correctBlock(ErrorCode code, std::span<std::uint8_t, correctedBlock> block)
{
    return BlockCorrection(code, block).run();
}

} // namespace host::dwg
