#pragma once

#include "host/drawing/tags/TagList.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace host::drawing {

/// The model that a solid, region or body keeps as text in its groups 1 and 3, a line a group 1. Versions from R2013 on
/// keep it elsewhere, in a form of its own: those records have an empty one here.
std::string solidText(const TagList &tags);
std::string solidText(const FieldList &fields);
/// Such a text as groups 1 and 3: letters become what they lack to 159, long lines go on in groups 3.
FieldList solidTextFields(std::string_view text);

/// The records of such a text, which refer to each other by their place. Costs by its length.
class SolidRecords
{
public:
    using Words = std::vector<std::string_view>;

    explicit SolidRecords(std::string text);
    SolidRecords(const SolidRecords &) = delete; // the words lie in the text
    SolidRecords &operator=(const SolidRecords &) = delete;

    const std::string &text() const { return m_text; }
    const std::vector<Words> &all() const { return m_records; }
    /// The version that the first line says, 400 for 4.0; 0 without.
    int version() const;

    /// "edge", "straight-curve" and the like; empty for what nobody here asks for. The first record has the lines of
    /// the head in front, and records of later versions a number of theirs.
    static std::string_view kindOf(const Words &record);
    /// The place that a word such as "$12" names.
    static std::optional<std::size_t> place(std::string_view word);
    static std::optional<double> number(std::string_view word);
    /// The numbers behind the last reference.
    static std::vector<double> numbersOf(const Words &record);
    /// Whether a word is one of those that say a sense, and it is the reversed one; nothing for other words.
    static std::optional<bool> sense(std::string_view word);
    /// The records of a kind, or of kinds that end so, that this one refers to, in order.
    std::vector<const Words *> referred(const Words &record, std::string_view ending) const;
    const Words *first(std::string_view kind) const;

private:
    std::string m_text;
    std::vector<Words> m_records;
};

} // namespace host::drawing
