#pragma once

#include "host/dwg/bits/CodePages.h"

#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace host::dwg {

/// Adds a tag as two lines to a text, its value as it stands.
void addTagLines(int code, std::string_view value, std::string &text);

/// The tags of one object as the lines that a text file has of them: each tag a line with its group code and one with
/// its value. Kept in one piece that is made once for all objects, so that adding a tag costs its bytes alone.
///
/// Order: tags stand as they were added, until arrange(), moveRange(), drop() or repeat() say otherwise.
class TagLines
{
public:
    /// Takes all tags back; keeps their room. Tags that would make the lines longer than `most` bytes are left out.
    void clear(std::size_t most = ~std::size_t(0));
    /// Texts from now on are in such a code page.
    void setDoubleBytes(DoubleBytes page) { m_doubleBytes = page; }
    DoubleBytes doubleBytes() const { return m_doubleBytes; }
    /// Whether tags were left out.
    bool isFull() const { return m_isFull; }

    void addInteger(int code, std::int64_t value);
    /// The shortest digits that give the same number again. What is no number is 0.
    void addReal(int code, double value);
    /// A handle, as hexadecimal digits.
    void addHandle(int code, std::uint64_t handle);
    /// A text in one line: control characters and ^ as ^ with a letter.
    void addText(int code, std::string_view text);
    /// Bytes, two hexadecimal digits each.
    void addBytes(int code, std::string_view bytes);

    /// Some tags as they were added to one object, for others.
    struct Kept
    {
        struct Tag
        {
            std::uint32_t size; ///< of both lines
            int code;
        };

        std::string lines;
        std::vector<Tag> tags;
    };

    /// Those from `from` on.
    Kept keep(std::size_t from) const;
    /// Adds them all, or none.
    void add(const Kept &kept);

    std::size_t count() const { return m_tags.size(); }
    /// As Fields::arrange().
    void arrange(std::size_t from, std::initializer_list<int> codes);
    void moveRange(std::size_t from, std::size_t end, std::size_t to);
    void drop(std::size_t from);
    /// Adds the tags from `from` to before `end` once more.
    void repeat(std::size_t from, std::size_t end);

    /// Gives all tags, in order, to `take`: code and value.
    template <typename Take>
    void forEach(Take take) const
    {
        for (const Tag &tag : m_tags)
            take(tag.code, valueOf({m_lines.get() + tag.begin, tag.size}));
    }
    /// Adds all tags, in order, to `text`.
    void write(std::string &text) const { write(text, 0, m_tags.size()); }
    /// Adds those from `from` to before `end`.
    void write(std::string &text, std::size_t from, std::size_t end) const;
    /// Adds a record: its type as group 0, and the tags up to `end`.
    void writeRecord(std::string_view type, std::string &text, std::size_t end) const;

private:
    /// Room in front of the lines for the type of a record, so that most records are added in one piece.
    static constexpr std::size_t headRoom = 64;

    struct Tag
    {
        std::size_t begin;
        std::uint32_t size; ///< of both lines
        int code;
    };

    static std::string_view valueOf(std::string_view lines)
    {
        return lines.substr(lines.find('\n') + 1, lines.size() - lines.find('\n') - 2);
    }
    /// Begins a tag whose value has up to `most` bytes: where the value goes to.
    char *begin(int code, std::size_t most);
    /// Ends the tag in front of `end`.
    void finish(int code, char *end);
    void grow(std::size_t bytes);
    bool isArranged(std::size_t from, std::initializer_list<int> codes) const;

    std::unique_ptr<char[]> m_lines;
    std::size_t m_room = 0;
    std::size_t m_size = headRoom;
    std::size_t m_most = ~std::size_t(0); ///< bytes
    bool m_isFull = false;
    DoubleBytes m_doubleBytes = DoubleBytes::None;
    std::vector<Tag> m_tags;
    bool m_isInOrder = true; ///< the tags are all that is in the lines, in their order
    // For arrange(), kept for their room.
    std::vector<Tag> m_arranged;
    std::vector<std::size_t> m_ranks;
    std::vector<std::size_t> m_places;
};

} // namespace host::dwg
