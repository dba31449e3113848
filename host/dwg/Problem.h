#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace host::dwg {

/// What of a file could not be read, or was read although something about it is wrong.
struct Problem
{
    enum class Kind
    {
        Kept,    ///< an object of a class, or in a form, that is not known here: its bytes are in the result
        Mended,  ///< damage that was made up for wholly: checksums fit again, or a whole copy was read
        Warning, ///< a checksum that does not fit, a number out of its range: what it concerns was read
        Lost     ///< what it concerns is not in the result
    };

    Kind kind = Kind::Warning;
    std::string text;         ///< a plain sentence without object and handle
    std::string type;         ///< of the object, as its DXF name; empty when it concerns no object
    std::uint64_t handle = 0; ///< of the object; 0 when it concerns none, or one whose handle was not read

    /// Whether it concerns an object, and not a part of the file such as a page or a map.
    bool isOfObject() const { return !type.empty() || handle != 0; }
    /// "LINE 2A: text", with what of it there is.
    std::string message() const;
};

/// Collects problems of one file. Only so many are kept that hostile files cannot make the list longer than a person
/// reads; all of them are counted.
class Problems
{
public:
    static constexpr std::size_t mostKept = 1000;

    void warn(std::string text) { add({Problem::Kind::Warning, std::move(text), {}, 0}); }
    void mend(std::string text) { add({Problem::Kind::Mended, std::move(text), {}, 0}); }
    void lose(std::string text) { add({Problem::Kind::Lost, std::move(text), {}, 0}); }
    void add(Problem problem);

    const std::vector<Problem> &list() const { return m_list; }
    std::size_t count(Problem::Kind kind) const { return m_counts[static_cast<std::size_t>(kind)]; }
    std::size_t lostCount() const { return count(Problem::Kind::Lost); }
    /// Of what is lost, the objects; the others are parts of the file.
    std::size_t lostObjectCount() const { return m_lostObjects; }

private:
    std::vector<Problem> m_list;
    std::array<std::size_t, 4> m_counts{};
    std::size_t m_lostObjects = 0;
};

} // namespace host::dwg
