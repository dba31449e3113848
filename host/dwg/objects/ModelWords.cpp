#include "host/dwg/objects/ModelWords.h"

#include <algorithm>

namespace host::dwg {

namespace {

// Values by letters. References and whole numbers have none, they may stand anywhere.
constexpr char point = 'p'; ///< a position or a vector
constexpr char real = 'd';
constexpr char text = 't';
constexpr char yes = '1';
constexpr char no = '0';
constexpr char other = '?';

// Places of logical values by what they say.
constexpr char sides = 'f'; ///< of a face: its sense, how many it has, and of two what they are
constexpr char rangeEnd = 'e';

struct KnownForm
{
    std::string_view name;
    std::string_view places; ///< of all values that have letters, in their order
};

/// A record whose values are others than these is not known, whatever its logical values are.
constexpr KnownForm knownForms[] = {
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
    char place;
    std::string_view no;
    std::string_view yes;
};

constexpr LogicalWords logicalWords[] = {
    {'s', "forward", "reversed"},   {'v', "forward_v", "reverse_v"},
    {rangeEnd, "I", "F"},           {'r', "no_rotate", "rotate"},
    {'m', "no_reflect", "reflect"}, {'h', "no_shear", "shear"},
    {'1', "single", "double"},      {'2', "out", "in"},
};

char letterOf(const ModelValue &value)
{
    if (value.isLogical())
        return value.tag == ModelTag::True ? yes : no;
    if (value.realCount > 0)
        return value.realCount == 3 ? point : value.realCount == 1 ? real : other;
    return value.isText() ? text : other;
}

/// Goes along the letters of a record.
class FormReader
{
public:
    explicit FormReader(std::string_view values) : m_values(values) {}

    bool read(std::string_view places)
    {
        return std::ranges::all_of(places, [this](char place) { return take(place); }) && m_values.empty();
    }

    const std::vector<std::string_view> &words() const { return m_words; }

private:
    bool take(char place)
    {
        switch (place) {
        case point:
        case real:
        case text:
            return takeLetter(place);
        case sides:
            return takeLogical('s') && takeLogical('1') && (m_words.back() == "single" || takeLogical('2'));
        case rangeEnd: // a number follows where it ends
            return takeLogical(place) && (m_words.back() == "I" || takeLetter(real));
        default:
            return takeLogical(place);
        }
    }

    bool takeLetter(char letter)
    {
        const bool isIt = m_values.starts_with(letter);
        m_values.remove_prefix(isIt ? 1 : 0);
        return isIt;
    }

    bool takeLogical(char place)
    {
        const LogicalWords &words = *std::ranges::find(logicalWords, place, &LogicalWords::place);
        const bool isYes = takeLetter(yes);
        m_words.push_back(isYes ? words.yes : words.no);
        return isYes || takeLetter(no);
    }

    std::string_view m_values;
    std::vector<std::string_view> m_words;
};

} // namespace

void RecordForm::add(const ModelValue &value)
{
    constexpr std::size_t mostOfAnyForm = 32;
    const bool hasLetter = value.tag != ModelTag::Reference && value.tag != ModelTag::Int16 &&
                           value.tag != ModelTag::Int32 && value.tag != ModelTag::Int64 &&
                           value.tag != ModelTag::EndOfRecord;
    m_needsWords = m_needsWords || value.isLogical() || value.tag == ModelTag::Enumeration;
    if (hasLetter && m_values.size() < mostOfAnyForm)
        m_values += letterOf(value);
}

std::optional<std::vector<std::string_view>> RecordForm::words(std::string_view recordName) const
{
    if (!m_needsWords)
        return std::vector<std::string_view>();
    for (const KnownForm &form : knownForms) {
        FormReader reader(m_values);
        if (form.name == recordName && reader.read(form.places))
            return reader.words();
    }
    return std::nullopt;
}

} // namespace host::dwg
