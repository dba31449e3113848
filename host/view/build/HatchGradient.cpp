#include "host/view/build/HatchGradient.h"

#include "host/view/build/DisplayBuilder.h"
#include "host/view/display/DisplayBoxes.h"

namespace host::view {

namespace {

using Stops = std::vector<Gradient::Stop>;

/// How a kind of gradient lies in a square of 0 to 1 both ways. The first colour is at the lower end of x, or outside.
struct GradientRow
{
    std::string_view name;
    bool isRadial = false;
    bool isReversed = false;
    bool isMirrored = false; ///< goes there and back
    Vec2 center{};
    double innerRadius = 0.0; ///< where the last colour begins
    double radius = 1.0;
};

constexpr double diagonal = 0.7072;   ///< from the middle to a corner
constexpr double farCorner = 1.1181;  ///< from the middle of a side to a corner across
constexpr double curvedReach = 2.062; ///< from one below the middle of a side to a corner across

constexpr std::array gradientRows = {
    GradientRow{"LINEAR"},
    GradientRow{.name = "CYLINDER", .isMirrored = true},
    GradientRow{.name = "INVCYLINDER", .isReversed = true, .isMirrored = true},
    GradientRow{.name = "SPHERICAL", .isRadial = true, .center = {0.5, 0.5}, .radius = diagonal},
    GradientRow{.name = "INVSPHERICAL", .isRadial = true, .isReversed = true, .center = {0.5, 0.5}, .radius = diagonal},
    GradientRow{.name = "HEMISPHERICAL", .isRadial = true, .center = {0.5, 0.0}, .radius = farCorner},
    GradientRow{
        .name = "INVHEMISPHERICAL", .isRadial = true, .isReversed = true, .center = {0.5, 0.0}, .radius = farCorner},
    GradientRow{.name = "CURVED", .isRadial = true, .center = {0.5, -1.0}, .innerRadius = 1.0, .radius = curvedReach},
    GradientRow{.name = "INVCURVED",
                .isRadial = true,
                .isReversed = true,
                .center = {0.5, -1.0},
                .innerRadius = 1.0,
                .radius = curvedReach},
};

/// One of a name that is not known is linear.
const GradientRow &gradientRow(const QString &name)
{
    const std::string wanted = name.trimmed().toUpper().toStdString();
    const auto found = std::ranges::find(gradientRows, std::string_view(wanted), &GradientRow::name);
    return found == gradientRows.end() ? gradientRows.front() : *found;
}

std::uint32_t blended(std::uint32_t from, std::uint32_t to, double part)
{
    std::uint32_t blend = 0;
    for (const int shift : {0, 8, 16}) {
        const double a = from >> shift & 0xff;
        const double b = to >> shift & 0xff;
        blend |= static_cast<std::uint32_t>(std::lround(a + (b - a) * part)) << shift;
    }
    return blend;
}

/// A single colour runs into its tint: black at 0, white at 1.
std::uint32_t tinted(std::uint32_t colour, double tint)
{
    const double part = std::clamp(tint, 0.0, 1.0) * 2.0 - 1.0;
    return blended(colour, part < 0.0 ? 0x000000 : 0xffffff, std::abs(part));
}

/// From 0 to 1, at least two.
Stops colourStops(const HatchGradientData &data)
{
    Stops stops = data.colours;
    std::ranges::stable_sort(stops, {}, &Gradient::Stop::at);
    if (stops.size() == 1)
        stops.push_back({1.0, tinted(stops.front().colour, data.tint)});
    stops.front().at = 0.0;
    stops.back().at = 1.0;
    return stops;
}

Stops turnedStops(Stops stops)
{
    std::ranges::reverse(stops);
    std::ranges::for_each(stops, [](Gradient::Stop &stop) { stop.at = 1.0 - stop.at; });
    return stops;
}

/// The way there ends at `middle`, and the way back at 1.
Stops mirroredStops(const Stops &there, double middle)
{
    Stops stops = there;
    Stops back = turnedStops(there);
    std::ranges::for_each(stops, [middle](Gradient::Stop &stop) { stop.at *= middle; });
    for (const Gradient::Stop &stop : back)
        stops.push_back({middle + stop.at * (1.0 - middle), stop.colour});
    return stops;
}

/// With what lies at one half moved to `middle`.
Stops shiftedStops(Stops stops, double middle)
{
    const auto after = std::ranges::find_if(stops, [](const Gradient::Stop &stop) { return stop.at > 0.5; });
    const Gradient::Stop to = *after;
    const Gradient::Stop from = *std::prev(after);
    stops.insert(after, {0.5, blended(from.colour, to.colour, (0.5 - from.at) / (to.at - from.at))});
    for (Gradient::Stop &stop : stops)
        stop.at = stop.at < 0.5 ? stop.at * 2.0 * middle : 1.0 - (1.0 - stop.at) * 2.0 * (1.0 - middle);
    return stops;
}

Stops placedStops(const GradientRow &row, Stops stops, double middle)
{
    if (row.isReversed)
        stops = turnedStops(std::move(stops));
    if (row.isMirrored)
        return mirroredStops(stops, middle);
    if (!row.isRadial)
        return middle == 0.5 ? stops : shiftedStops(std::move(stops), middle);
    // Outwards the last colour comes first.
    stops = turnedStops(std::move(stops));
    const double inner = row.innerRadius / row.radius;
    std::ranges::for_each(stops, [inner](Gradient::Stop &stop) { stop.at = inner + stop.at * (1.0 - inner); });
    return stops;
}

/// From a square of 0 to 1 onto the box of the loops along the gradient's direction.
Matrix gradientPlacement(const HatchData &hatch)
{
    const Matrix turned = Matrix::rotation(hatch.gradient.angle);
    Box box;
    for (const Curve &loop : hatch.loops)
        addCurveBox(loop, turned.inverted(), box);
    const Vec3 size = box.high - box.low;
    return turned * Matrix{{size.x, 0.0, 0.0}, {0.0, size.y, 0.0}, {0.0, 0.0, 1.0}, box.low};
}

} // namespace

std::shared_ptr<const Gradient> hatchGradient(const HatchData &hatch, const Matrix &ocs)
{
    const HatchGradientData &data = hatch.gradient;
    if (!data.isOn || data.colours.empty() || hatch.loops.empty() || !isUsable(data.angle))
        return nullptr;
    constexpr double shiftedMiddle = 0.25; ///< where a light from the upper left is brightest
    const double middle = 0.5 + (shiftedMiddle - 0.5) * std::clamp(data.shift, 0.0, 1.0);
    const GradientRow &row = gradientRow(data.name);
    auto gradient = std::make_shared<Gradient>(Gradient{.stops = placedStops(row, colourStops(data), middle),
                                                        .isRadial = row.isRadial,
                                                        .center = row.center,
                                                        .radius = row.radius,
                                                        .placement = ocs * gradientPlacement(hatch)});
    gradient->center = gradient->center + Vec2{middle - 0.5, row.center.y > 0.0 ? 0.5 - middle : 0.0};
    return gradient;
}

} // namespace host::view
