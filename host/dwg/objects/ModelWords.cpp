#include "host/dwg/objects/ModelWords.h"

#include <algorithm>

namespace host::dwg {

namespace {

/// What a place of a record can have. References and whole numbers are not among these, they may stand anywhere.
enum class Place : char
{
    Point = 'p', ///< a position or a vector
    Real = 'd',
    Text = 't',
    // Logical values by their words.
    Sense = 's',
    UprightSense = 'v',
    Sides = 'f',    ///< of a face; one with two sides goes on with what is on both
    RangeEnd = 'e', ///< F is followed by a number
    Rotation = 'r',
    Reflection = 'm',
    Shear = 'h'
};

struct RecordForm
{
    std::string_view name;
    std::string_view places; ///< all of them, in their order
};

/// A record whose values are others than these is not known, whatever its logical values are.
constexpr RecordForm recordForms[] = {
    {"coedge", "s"},
    {"cone-surface", "pppdeedddseeee"}, // the ellipse with its range, slope, scale, direction, ranges
    {"edge", "s"},
    {"edge", "st"},
    {"edge", "dds"},
    {"edge", "ddst"},
    {"ellipse-curve", "pppdee"},
    {"face", "f"},
    {"plane-surface", "pppveeee"},
    {"sphere-surface", "pdppveeee"},
    {"straight-curve", "ppee"},
    {"torus-surface", "ppddpveeee"},
    {"transform", "ppppdrmh"},
};

struct LogicalWords
{
    Place place;
    std::string_view no;
    std::string_view yes;
};

constexpr LogicalWords logicals[] = {
    {Place::Sense, "forward", "reversed"},
    {Place::UprightSense, "forward_v", "reverse_v"},
    {Place::RangeEnd, "I", "F"},
    {Place::Rotation, "no_rotate", "rotate"},
    {Place::Reflection, "no_reflect", "reflect"},
    {Place::Shear, "no_shear", "shear"},
};
constexpr LogicalWords oneOrTwoSides = {Place::Sides, "single", "double"};
constexpr LogicalWords bothSides = {Place::Sides, "out", "in"};

bool needsNoPlace(ModelTag tag)
{
    return tag == ModelTag::Reference || tag == ModelTag::Int16 || tag == ModelTag::Int32 || tag == ModelTag::Int64 ||
           tag == ModelTag::EndOfRecord;
}

/// Goes along the values of a record that have places.
class FormReader
{
public:
    explicit FormReader(std::span<const ModelValue> values)
    {
        for (const ModelValue &value : values) {
            if (!needsNoPlace(value.tag))
                m_values.push_back(&value);
        }
    }

    std::optional<std::vector<std::string_view>> read(std::string_view places)
    {
        m_at = 0;
        m_words.clear();
        const bool hasForm = std::ranges::all_of(places, [this](char c) { return take(static_cast<Place>(c)); });
        return hasForm && m_at == m_values.size() ? std::optional(m_words) : std::nullopt;
    }

private:
    const ModelValue *next() { return m_at < m_values.size() ? m_values[m_at++] : nullptr; }

    bool take(Place place)
    {
        switch (place) {
        case Place::Point:
            return takeReals(3);
        case Place::Real:
            return takeReals(1);
        case Place::Text: {
            const ModelValue *value = next();
            return value && value->isText();
        }
        case Place::Sides:
            return takeLogical(wordsOf(Place::Sense)) && takeSides();
        case Place::RangeEnd:
            return takeLogical(wordsOf(place)) && (m_words.back() == "I" || takeReals(1));
        default:
            return takeLogical(wordsOf(place));
        }
    }

    bool takeReals(std::size_t count)
    {
        const ModelValue *value = next();
        return value && value->realCount == count;
    }

    bool takeSides() { return takeLogical(oneOrTwoSides) && (m_words.back() == "single" || takeLogical(bothSides)); }

    bool takeLogical(const LogicalWords &words)
    {
        const ModelValue *value = next();
        if (!value || !value->isLogical())
            return false;
        m_words.push_back(value->tag == ModelTag::True ? words.yes : words.no);
        return true;
    }

    static const LogicalWords &wordsOf(Place place)
    {
        return *std::ranges::find(logicals, place, &LogicalWords::place);
    }

    std::vector<const ModelValue *> m_values;
    std::size_t m_at = 0;
    std::vector<std::string_view> m_words;
};

} // namespace

std::optional<std::vector<std::string_view>> logicalWords(std::string_view recordName,
                                                          std::span<const ModelValue> values)
{
    const auto needsWord = [](const ModelValue &value) {
        return value.isLogical() || value.tag == ModelTag::Enumeration;
    };
    if (std::ranges::none_of(values, needsWord))
        return std::vector<std::string_view>();
    FormReader reader(values);
    for (const RecordForm &form : recordForms) {
        if (form.name != recordName)
            continue;
        if (auto words = reader.read(form.places))
            return words;
    }
    return std::nullopt;
}

} // namespace host::dwg
