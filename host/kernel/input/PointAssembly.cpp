#include "host/kernel/input/PointAssembly.h"

#include "host/kernel/languages/Texts.h"

#include <cmath>

using namespace Qt::StringLiterals;

namespace host::kernel {

namespace {

using drawing::Vec3;

constexpr int allCoordinates = 7;
/// Words within words: nobody means more, and a program that never stops is stopped.
constexpr std::size_t mostSteps = 32;

/// The bits of "x", "yz"; 0 for other letters.
int coordinateBits(const QString &letters)
{
    int bits = 0;
    for (const QChar letter : letters) {
        const qsizetype place = u"XYZ"_s.indexOf(letter);
        if (place < 0 || (bits & (1 << place)))
            return 0;
        bits |= 1 << place;
    }
    return bits;
}

void copyCoordinates(Vec3 &to, const Vec3 &from, int bits)
{
    to.x = (bits & 1) ? from.x : to.x;
    to.y = (bits & 2) ? from.y : to.y;
    to.z = (bits & 4) ? from.z : to.z;
}

} // namespace

bool PointAssembly::takeWord(const QString &typed)
{
    QString word = typed.toUpper();
    if (word.startsWith(u'_'))
        word.remove(0, 1);
    if (word.startsWith(u'.'))
        return takeFilter(word.mid(1));
    if (m_steps.size() >= mostSteps)
        return false;
    if (word == "M2P"_L1 || word == "MTP"_L1)
        m_steps.emplace_back(MiddleOfTwo{});
    else if (word == "FROM"_L1 || word == "FRO"_L1)
        m_steps.emplace_back(FromBase{});
    else if (word == "TK"_L1 || word == "TRACK"_L1 || word == "TRACKING"_L1)
        m_steps.emplace_back(Tracking{});
    else if (word == "TT"_L1)
        m_steps.emplace_back(TemporaryBase{});
    else
        return false;
    return true;
}

bool PointAssembly::takeFilter(const QString &letters)
{
    const int bits = coordinateBits(letters);
    if (bits == 0 || bits == allCoordinates)
        return false;
    auto *open = m_steps.empty() ? nullptr : std::get_if<Filter>(&m_steps.back());
    // Behind ".x" and its point, ".y" asks for one of the two that are missing.
    if (open && open->wanted == 0 && !(open->known & bits)) {
        open->wanted = bits;
        return true;
    }
    if (m_steps.size() >= mostSteps)
        return false;
    m_steps.emplace_back(Filter{.wanted = bits, .known = 0, .value = {}});
    return true;
}

QString PointAssembly::prompt() const
{
    return std::visit([](const auto &step) { return promptOf(step); }, m_steps.back());
}

QString PointAssembly::promptOf(const Filter &step)
{
    if (step.wanted != 0)
        return Kernel::tr(" of ");
    QString missing;
    for (int place = 0; place < 3; ++place)
        if (!(step.known & (1 << place)))
            missing += u"XYZ"_s.at(place);
    return Kernel::tr(" (need %1): ").arg(missing);
}

QString PointAssembly::promptOf(const MiddleOfTwo &step)
{
    return step.first ? Kernel::tr("\nSecond point of mid: ") : Kernel::tr("\nFirst point of mid: ");
}

QString PointAssembly::promptOf(const FromBase &step)
{
    return step.base ? Kernel::tr("<Offset>: ") : Kernel::tr("\nBase point: ");
}

QString PointAssembly::promptOf(const Tracking &step)
{
    return step.reached ? Kernel::tr("\nNext point (Press ENTER to end tracking): ")
                        : Kernel::tr("\nFirst tracking point: ");
}

QString PointAssembly::promptOf(const TemporaryBase &step)
{
    return step.base ? Kernel::tr("\nSpecify point: ") : Kernel::tr("\nSpecify temporary tracking point: ");
}

std::optional<Vec3> PointAssembly::base() const
{
    if (m_steps.empty())
        return {};
    const Step &step = m_steps.back();
    if (const auto *from = std::get_if<FromBase>(&step))
        return from->base;
    if (const auto *temporary = std::get_if<TemporaryBase>(&step))
        return temporary->base;
    if (const auto *tracking = std::get_if<Tracking>(&step))
        return tracking->reached;
    const auto *middle = std::get_if<MiddleOfTwo>(&step);
    return middle ? middle->first : std::nullopt;
}

std::optional<Vec3> PointAssembly::direction() const
{
    if (!m_direction)
        return {};
    return Vec3{std::cos(*m_direction), std::sin(*m_direction), 0.0};
}

std::optional<Vec3> PointAssembly::take(const Vec3 &point, const std::optional<Vec3> &base)
{
    Vec3 placed = point;
    if (const std::optional<Vec3> along = direction(); along && base)
        placed = *base + *along * dot(point - *base, *along);
    m_direction.reset();
    return passOn(placed);
}

std::optional<Vec3> PointAssembly::passOn(Vec3 point)
{
    while (!m_steps.empty()) {
        const std::optional<Vec3> made = std::visit([&](auto &step) { return put(step, point); }, m_steps.back());
        if (!made)
            return {};
        point = *made;
        m_steps.pop_back();
    }
    return point;
}

bool PointAssembly::isCoordinateMissing() const
{
    const auto *filter = m_steps.empty() ? nullptr : std::get_if<Filter>(&m_steps.back());
    if (!filter || filter->wanted != 0)
        return false;
    const int missing = allCoordinates & ~filter->known;
    return (missing & (missing - 1)) == 0;
}

std::optional<Vec3> PointAssembly::takeCoordinate(double value)
{
    m_direction.reset();
    return passOn({value, value, value});
}

std::optional<Vec3> PointAssembly::takeEnter()
{
    const auto *tracking = m_steps.empty() ? nullptr : std::get_if<Tracking>(&m_steps.back());
    if (!tracking || !tracking->reached)
        return {};
    const Vec3 reached = *tracking->reached;
    m_steps.pop_back();
    return passOn(reached);
}

std::optional<Vec3> PointAssembly::put(Filter &step, const Vec3 &point)
{
    const int bits = step.wanted != 0 ? step.wanted : allCoordinates & ~step.known;
    copyCoordinates(step.value, point, bits);
    step.known |= bits;
    step.wanted = 0;
    return step.known == allCoordinates ? std::optional(step.value) : std::nullopt;
}

std::optional<Vec3> PointAssembly::put(MiddleOfTwo &step, const Vec3 &point)
{
    if (step.first)
        return (*step.first + point) * 0.5;
    step.first = point;
    return {};
}

std::optional<Vec3> PointAssembly::put(FromBase &step, const Vec3 &point)
{
    if (step.base)
        return point;
    step.base = point;
    return {};
}

std::optional<Vec3> PointAssembly::put(Tracking &step, const Vec3 &point)
{
    if (!step.reached)
        step.reached = point;
    else if (std::abs(point.x - step.reached->x) >= std::abs(point.y - step.reached->y))
        step.reached->x = point.x;
    else
        step.reached->y = point.y;
    return {};
}

std::optional<Vec3> PointAssembly::put(TemporaryBase &step, const Vec3 &point)
{
    if (step.base)
        return point;
    step.base = point;
    return {};
}

} // namespace host::kernel
