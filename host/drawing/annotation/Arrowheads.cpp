#include "host/drawing/annotation/Arrowheads.h"

#include "host/drawing/math/Angles.h"

#include <QHash>

namespace host::drawing {

namespace {

const Path stem = {{0.0, 0.0, 0.0}, {-1.0, 0.0, 0.0}};
const Path halfStem = {{-0.5, 0.0, 0.0}, {-1.0, 0.0, 0.0}};
const Path box = {{-0.5, -0.5, 0.0}, {0.5, -0.5, 0.0}, {0.5, 0.5, 0.0}, {-0.5, 0.5, 0.0}};

Path wedge(double length, double half)
{
    return {{-length, half, 0.0}, {}, {-length, -half, 0.0}};
}

Path closedLine(Path points)
{
    points.push_back(points.front());
    return points;
}

/// A stroke of a width, from below left to above right.
Path slantedBar(double half, double width)
{
    const double across = width / 2.0 * std::sqrt(0.5);
    return {{-half - across, -half + across, 0.0},
            {-half + across, -half - across, 0.0},
            {half + across, half - across, 0.0},
            {half - across, half + across, 0.0}};
}

/// The sign of an integral: two arcs that meet at the tip.
Arrowhead integralSign()
{
    constexpr double radius = 0.4550;
    const Path right = arcPath({0.4455, -0.0913, 0.0}, radius, 102.0 * radians, 168.4 * radians);
    const Path left = arcPath({-0.4455, 0.0913, 0.0}, radius, 282.0 * radians, 348.4 * radians);
    return {.lines = {right, left}, .length = 0.0};
}

QHash<QString, Arrowhead> makeArrowheads()
{
    const double third = 1.0 / 6.0;
    const double flat = std::tan(15.0 * radians);
    const double datum = 1.0 / std::sqrt(3.0);
    const Path datumEdge = {{0.0, datum, 0.0}, {-1.0, 0.0, 0.0}, {0.0, -datum, 0.0}};
    const Path oblique = {{-0.5, -0.5, 0.0}, {0.5, 0.5, 0.0}};
    QHash<QString, Arrowhead> all;
    const auto add = [&](const char *name, Arrowhead head) { all.insert(QString::fromLatin1(name), std::move(head)); };
    add("", {.areas = {wedge(1.0, third)}});
    add("closed", {.lines = {closedLine(wedge(1.0, third)), stem}});
    add("closedblank", {.lines = {closedLine(wedge(1.0, third))}});
    add("open", {.lines = {wedge(1.0, third), stem}});
    add("open90", {.lines = {wedge(0.5, 0.5), stem}});
    add("open30", {.lines = {wedge(1.0, flat), stem}});
    add("dot", {.lines = {halfStem}, .rings = {{.radius = 0.5, .isFilled = true}}});
    add("dotblank", {.lines = {halfStem}, .rings = {{.radius = 0.5}}});
    add("dotsmall", {.rings = {{.radius = 0.125, .isFilled = true}}, .length = 0.0});
    add("small", {.rings = {{.radius = 0.25}}, .length = 0.0});
    add("origin", {.lines = {stem}, .rings = {{.radius = 0.5}}});
    add("origin2", {.lines = {halfStem}, .rings = {{.radius = 0.5}, {.radius = 0.25}}});
    add("boxblank", {.lines = {closedLine(box), halfStem}});
    add("boxfilled", {.lines = {halfStem}, .areas = {box}});
    add("datumblank", {.lines = {closedLine(datumEdge)}});
    add("datumfilled", {.areas = {datumEdge}});
    add("oblique", {.lines = {oblique}, .length = 0.0});
    add("archtick", {.areas = {slantedBar(0.5, 0.15)}, .length = 0.0});
    add("integral", integralSign());
    add("none", {.length = 0.0});
    return all;
}

const QHash<QString, Arrowhead> &allArrowheads()
{
    static const QHash<QString, Arrowhead> all = makeArrowheads();
    return all;
}

QString arrowheadKey(QStringView name)
{
    return (name.startsWith(u'_') ? name.sliced(1) : name).toString().toLower();
}

} // namespace

const Arrowhead &arrowheadNamed(QStringView name)
{
    const QHash<QString, Arrowhead> &all = allArrowheads();
    const auto found = all.constFind(arrowheadKey(name));
    return found == all.constEnd() ? *all.constFind(QString()) : *found;
}

bool isArrowheadName(QStringView name)
{
    const QString key = arrowheadKey(name);
    return !key.isEmpty() && allArrowheads().contains(key);
}

const Arrowhead &tickMark()
{
    return arrowheadNamed(u"oblique");
}

} // namespace host::drawing
