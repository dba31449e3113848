#pragma once

#include <QByteArrayView>

#include <array>
#include <cstring>
#include <memory>

namespace host::drawing {

/// Answers to a question about short texts that come again and again, such as types and layers of entities: a place for
/// each of 64 texts, where a newer one replaces an older. A long text is asked about each time.
class AnswerMemo
{
public:
    /// What `ask()` gives for this text, now or when it was asked last.
    template <typename Ask>
    bool answer(QByteArrayView text, const Ask &ask)
    {
        if (text.size() > longest)
            return ask();
        if (!m_slots)
            m_slots = std::make_unique<Slots>();
        Slot &slot = (*m_slots)[placeOf(text)];
        const auto size = static_cast<std::size_t>(text.size());
        if (slot.size != text.size() || std::memcmp(slot.text.data(), text.data(), size) != 0) {
            slot.isYes = ask();
            slot.size = static_cast<signed char>(size);
            std::memcpy(slot.text.data(), text.data(), size);
        }
        return slot.isYes;
    }

private:
    static constexpr qsizetype longest = 30;
    static constexpr std::size_t places = 64;
    struct Slot
    {
        signed char size = -1; ///< nothing was asked yet
        bool isYes = false;
        std::array<char, longest> text;
    };
    using Slots = std::array<Slot, places>;

    static std::size_t placeOf(QByteArrayView text)
    {
        std::size_t hash = 0;
        for (const char c : text)
            hash = hash * 31 + static_cast<unsigned char>(c);
        return hash % places;
    }

    std::unique_ptr<Slots> m_slots; ///< made when something is asked
};

} // namespace host::drawing
