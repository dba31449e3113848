#include "host/drawing/hatching/HatchPatterns.h"

#include "host/drawing/hatching/PatternTable.h"
#include "host/drawing/math/Angles.h"

#include <cmath>

namespace host::drawing {

using namespace Qt::StringLiterals;

namespace {

PatternFamily familyOf(QStringView line)
{
    const QList<QStringView> numbers = line.split(u',');
    const auto number = [&](qsizetype at) { return at < numbers.size() ? numbers[at].trimmed().toDouble() : 0.0; };
    PatternFamily family{.angle = number(0), .base = {number(1), number(2)}, .step = {number(3), number(4)}};
    for (qsizetype i = 5; i < numbers.size(); ++i)
        family.dashes.push_back(number(i));
    return family;
}

/// "*NAME, description" and its lines, one after another.
std::vector<HatchPattern> readPatternTable()
{
    std::vector<HatchPattern> patterns = {{.name = u"SOLID"_s, .description = u"Filled"_s, .families = {}}};
    const QString table = QString::fromLatin1(patternTable());
    for (const QStringView line : QStringView(table).split(u'\n', Qt::SkipEmptyParts)) {
        if (!line.startsWith(u'*')) {
            patterns.back().families.push_back(familyOf(line));
            continue;
        }
        const qsizetype comma = line.indexOf(u',');
        HatchPattern pattern;
        pattern.name = line.mid(1, comma - 1).toString();
        pattern.description = line.mid(comma + 1).trimmed().toString();
        pattern.isMillimetres = pattern.name.startsWith(u"ACAD_ISO"_s);
        patterns.push_back(std::move(pattern));
    }
    std::ranges::sort(patterns, {}, &HatchPattern::name);
    return patterns;
}

const std::vector<HatchPattern> &allPatterns()
{
    static const std::vector<HatchPattern> all = readPatternTable();
    return all;
}

Vec2 turnedBy(Vec2 v, double degrees)
{
    const double c = std::cos(degrees * radians);
    const double s = std::sin(degrees * radians);
    return {v.x * c - v.y * s, v.x * s + v.y * c};
}

} // namespace

std::optional<HatchPattern> hatchPattern(QStringView name)
{
    for (const HatchPattern &pattern : allPatterns())
        if (name.compare(pattern.name, Qt::CaseInsensitive) == 0)
            return pattern;
    return std::nullopt;
}

QStringList hatchPatternNames()
{
    QStringList names;
    for (const HatchPattern &pattern : allPatterns())
        names.append(pattern.name);
    return names;
}

FieldList patternLines(const std::vector<PatternFamily> &families, const PatternPlacing &placing)
{
    FieldList fields = {{78, qint64(families.size())}};
    for (const PatternFamily &family : families) {
        const double angle = family.angle + placing.angle;
        const Vec2 base = placing.origin + turnedBy(family.base * placing.scale, placing.angle);
        const Vec2 step = turnedBy(family.step * placing.scale, angle);
        fields.insert(
            fields.end(),
            {{53, angle}, {43, base.x}, {44, base.y}, {45, step.x}, {46, step.y}, {79, qint64(family.dashes.size())}});
        for (const double dash : family.dashes)
            fields.push_back({49, dash * placing.scale});
    }
    return fields;
}

} // namespace host::drawing
