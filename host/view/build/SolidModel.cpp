#include "host/view/build/SolidModel.h"

#include "host/view/build/DisplayBuilder.h"
#include "host/view/display/MapShapes.h"

#include <charconv>
#include <numbers>

namespace host::view {

using drawing::Tag;
using drawing::TagList;

namespace {

using Words = std::vector<std::string_view>;

/// Letters are written as what they lack to 159, but for blanks; "^ " is a single letter.
std::string decipheredModel(const TagList &tags)
{
    constexpr int sum = 159;
    std::string text;
    for (const Tag &tag : tags.own()) {
        if (tag.code != 1 && tag.code != 3)
            continue;
        if (tag.code == 1 && !text.empty())
            text += ' ';
        for (qsizetype i = 0; i < tag.value.size(); ++i) {
            const int letter = static_cast<unsigned char>(tag.value[i]);
            const bool isCoded = letter > ' ' && letter < sum - ' ';
            text += static_cast<char>(isCoded ? sum - letter : letter);
            if (letter == '^' && i + 1 < tag.value.size() && tag.value[i + 1] == ' ')
                ++i;
        }
    }
    return text;
}

/// The words of each record; records end with a sign of their own and refer to one another by their place.
std::vector<Words> modelRecords(std::string_view text)
{
    std::vector<Words> records(1);
    for (std::size_t at = 0; at < text.size();) {
        if (text[at] == ' ') {
            ++at;
            continue;
        }
        const std::size_t end = std::min(text.find(' ', at), text.size());
        const std::string_view word = text.substr(at, end - at);
        if (word == "#")
            records.emplace_back();
        else
            records.back().push_back(word);
        at = end;
    }
    records.pop_back(); // what follows the last one is no record
    return records;
}

/// The record that a word such as "$12" names.
std::optional<std::size_t> reference(std::string_view word)
{
    std::size_t place = 0;
    if (word.size() < 2 || word[0] != '$')
        return std::nullopt;
    const auto [end, error] = std::from_chars(word.data() + 1, word.data() + word.size(), place);
    return error == std::errc() && end == word.data() + word.size() ? std::optional(place) : std::nullopt;
}

std::optional<double> number(std::string_view word)
{
    double value = 0.0;
    const auto [end, error] = std::from_chars(word.data(), word.data() + word.size(), value);
    return error == std::errc() && end == word.data() + word.size() ? std::optional(value) : std::nullopt;
}

class ModelReader
{
public:
    explicit ModelReader(std::vector<Words> records) : m_records(std::move(records)) {}

    SolidEdges read()
    {
        const Matrix placement = bodyPlacement();
        for (const Words &record : m_records) {
            const std::string_view kind = kindOf(record);
            m_edges.isWhole &= !kind.ends_with("-surface") || kind == "plane-surface";
            if (kind == "edge")
                addEdge(record, placement);
        }
        return std::move(m_edges);
    }

private:
    /// The first record has the lines of the file's head in front, and records of later versions a number of theirs.
    static std::string_view kindOf(const Words &record)
    {
        constexpr std::array kinds = {"edge", "vertex", "point", "body", "transform"};
        for (const std::string_view word : record) {
            if (word.starts_with('$'))
                break;
            if (std::ranges::find(kinds, word) != kinds.end() || word.ends_with("-curve") || word.ends_with("-surface"))
                return word;
        }
        return {};
    }

    /// The records of a kind that this one refers to, in order.
    std::vector<const Words *> referred(const Words &record, std::string_view ending) const
    {
        std::vector<const Words *> found;
        for (const std::string_view word : record) {
            const auto place = reference(word);
            if (place && *place < m_records.size() && kindOf(m_records[*place]).ends_with(ending))
                found.push_back(&m_records[*place]);
        }
        return found;
    }

    /// The numbers behind the last reference.
    static std::vector<double> numbersOf(const Words &record)
    {
        std::vector<double> numbers;
        for (const std::string_view word : record) {
            if (word.starts_with('$'))
                numbers.clear();
            else if (const auto value = number(word))
                numbers.push_back(*value);
        }
        return numbers;
    }

    /// A model may stand elsewhere than where its numbers say: rows of a matrix, a shift and a scale.
    Matrix bodyPlacement() const
    {
        const auto body = std::ranges::find(m_records, std::string_view("body"), kindOf);
        const auto transforms = body == m_records.end() ? std::vector<const Words *>() : referred(*body, "transform");
        const std::vector<double> n = transforms.empty() ? std::vector<double>() : numbersOf(*transforms.front());
        if (n.size() < 13)
            return {};
        const auto row = [&n](std::size_t i) { return Vec3{n[i], n[i + 1], n[i + 2]}; };
        const double scale = n[12];
        return {row(0) * scale, row(3) * scale, row(6) * scale, row(9)};
    }

    std::optional<Vec3> pointOf(const Words &vertex) const
    {
        const auto points = referred(vertex, "point");
        const std::vector<double> n = points.empty() ? std::vector<double>() : numbersOf(*points.front());
        return n.size() == 3 ? std::optional(Vec3{n[0], n[1], n[2]}) : std::nullopt;
    }

    void addEdge(const Words &edge, const Matrix &placement)
    {
        const auto vertices = referred(edge, "vertex");
        const auto curves = referred(edge, "-curve");
        const auto from = vertices.empty() ? std::nullopt : pointOf(*vertices.front());
        const auto to = vertices.empty() ? std::nullopt : pointOf(*vertices.back());
        if (curves.empty() && from && to && *from == *to)
            return; // the tip of a cone is an edge without a curve
        const std::string_view kind = curves.empty() ? std::string_view() : kindOf(*curves.front());
        std::optional<Curve> curve;
        if (from && to && kind == "straight-curve")
            curve = Curve{.points = {*from, *to}};
        else if (from && to && kind == "ellipse-curve")
            curve = ellipse(edge, numbersOf(*curves.front()), *from, *to);
        m_edges.isWhole &= curve && keep(std::move(*curve), placement);
    }

    static bool isReversed(const Words &edge)
    {
        const auto sense = std::ranges::find_if(edge.rbegin(), edge.rend(), [](std::string_view word) {
            return word == "0" || word == "1" || word == "forward" || word == "reversed";
        });
        return sense != edge.rend() && (*sense == "1" || *sense == "reversed");
    }

    /// Center, normal, longer axis and the ratio of the axes; from one point of it to the other, or all round.
    static std::optional<Curve> ellipse(const Words &edge, const std::vector<double> &n, const Vec3 &from,
                                        const Vec3 &to)
    {
        if (n.size() < 10)
            return std::nullopt;
        ArcSpan span{.center = {n[0], n[1], n[2]}, .xAxis = {n[6], n[7], n[8]}};
        const Vec3 normal = normalized(Vec3{n[3], n[4], n[5]}) * (isReversed(edge) ? -1.0 : 1.0);
        span.yAxis = cross(normal, span.xAxis) * n[9];
        const auto angleOf = [&span](const Vec3 &point) {
            const Vec3 arm = point - span.center;
            return std::atan2(dot(arm, span.yAxis) / dot(span.yAxis, span.yAxis),
                              dot(arm, span.xAxis) / dot(span.xAxis, span.xAxis));
        };
        span.start = angleOf(from);
        span.sweep = angleOf(to) - span.start;
        if (from == to || span.sweep <= 0.0)
            span.sweep += 2.0 * std::numbers::pi;
        return Curve{.points = {from, to}, .arcs = {span}};
    }

    bool keep(Curve curve, const Matrix &placement)
    {
        mapCurve(curve, placement);
        for (const ArcSpan &span : curve.arcs) {
            if (!isUsable(span.center) || !isUsable(span.xAxis) || !isUsable(span.yAxis) || !isUsable(span.sweep))
                return false;
        }
        if (!areUsable(curve.points))
            return false;
        m_edges.curves.push_back(std::move(curve));
        return true;
    }

    const std::vector<Words> m_records;
    SolidEdges m_edges;
};

} // namespace

SolidEdges readSolidEdges(const TagList &tags)
{
    const std::string text = decipheredModel(tags);
    return ModelReader(modelRecords(text)).read();
}

} // namespace host::view
