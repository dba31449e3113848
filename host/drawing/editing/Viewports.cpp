#include "host/drawing/editing/Viewports.h"

#include "host/drawing/geometry/ViewportView.h"
#include "host/drawing/math/Angles.h"
#include "host/drawing/records/Tables.h"
#include "host/drawing/tags/ExtendedData.h"

#include <QSet>

using namespace Qt::StringLiterals;

namespace host::drawing {

namespace {

constexpr int viewportNumberCode = 69;
constexpr int statusCode = 68;
constexpr int flagsCode = 90;
constexpr int frozenLayerCode = 331;

bool hasOwnGroups(const Drawing &drawing)
{
    return drawing.version() >= Version::R2000;
}

/// How versions before R2000 write what a viewport looks at.
FieldList mviewData(const ViewportAim &aim, const QStringList &frozen)
{
    FieldList data = {{1000, u"MVIEW"_s}, {1002, u"{"_s},        {1070, qint64(16)},
                      {1010, aim.target}, {1010, aim.direction}, {1040, aim.twist / radians},
                      {1040, aim.height}, {1040, aim.middle.x},  {1040, aim.middle.y},
                      {1040, 50.0}, // lens
                      {1040, 0.0},  // clip planes
                      {1040, 0.0},  //
                      {1070, qint64(0)}};
    // Circle smoothness and what follows: fast zoom, icon, snap, grid, its style and pair, then angle, base, spacings.
    for (const qint64 mode : {100, 1, 1, 0, 0, 0, 0})
        data.push_back({1070, mode});
    for (const double measure : {0.0, 0.0, 0.0, 10.0, 10.0, 10.0, 10.0})
        data.push_back({1040, measure});
    data.push_back({1070, qint64(0)}); // hidden lines on paper
    data.push_back({1002, u"{"_s});
    for (const QString &layer : frozen)
        data.push_back({1003, layer});
    data.push_back({1002, u"}"_s});
    data.push_back({1002, u"}"_s});
    return data;
}

void setAim(FieldList &fields, const ViewportAim &aim)
{
    setField(fields, 12, aim.middle);
    setField(fields, 16, aim.direction);
    setField(fields, 17, aim.target);
    setField(fields, 45, aim.height);
    setField(fields, 51, aim.twist / radians);
}

std::vector<RecordId> allViewports(const Drawing &drawing, const LayoutTab &layout)
{
    std::vector<RecordId> found = layoutEntities(drawing, layout);
    std::erase_if(found, [&](RecordId id) { return !drawing.isType(id, "VIEWPORT"); });
    return found;
}

} // namespace

std::vector<RecordId> viewportsOf(const Drawing &drawing, const LayoutTab &layout)
{
    std::vector<RecordId> found = allViewports(drawing, layout);
    std::erase_if(found, [&](RecordId id) { return isSheetItself(drawing.tags(id)); });
    return found;
}

RecordId sheetViewport(const Drawing &drawing, const LayoutTab &layout)
{
    for (const RecordId id : allViewports(drawing, layout))
        if (isSheetItself(drawing.tags(id)))
            return id;
    return noRecord;
}

qint64 freeViewportNumber(const Drawing &drawing, const LayoutTab &layout)
{
    const std::vector<RecordId> viewports = viewportsOf(drawing, layout);
    auto highest = qint64(viewports.size()) + 1;
    for (const RecordId id : viewports)
        highest = std::max(highest, drawing.tags(id).integer(viewportNumberCode));
    return highest + 1;
}

qint64 viewportNumber(const Drawing &drawing, RecordId viewport)
{
    const TagList tags = drawing.tags(viewport);
    if (const qint64 told = tags.integer(viewportNumberCode); told != 0)
        return told;
    qint64 number = isSheetItself(tags) ? 1 : 2;
    for (const RecordId other : drawing.children(drawing.parent(viewport))) {
        if (other == viewport || number == 1)
            break;
        number += drawing.isType(other, "VIEWPORT") && !isSheetItself(drawing.tags(other)) ? 1 : 0;
    }
    return number;
}

FieldList viewportFields(const Drawing &drawing, const Box &frame, const ViewportAim &aim, qint64 number)
{
    const Vec3 center = (frame.low + frame.high) * 0.5;
    FieldList fields = {{0, u"VIEWPORT"_s},
                        {10, center},
                        {40, frame.high.x - frame.low.x},
                        {41, frame.high.y - frame.low.y},
                        {statusCode, number},
                        {viewportNumberCode, number}};
    if (!hasOwnGroups(drawing)) {
        setExtendedData(fields, u"ACAD"_s, mviewData(aim, {}));
        return fields;
    }
    constexpr qint64 usualFlags = 0x8060;
    const FieldList more = {{13, Vec2{}},
                            {14, Vec2{10, 10}},
                            {15, Vec2{10, 10}},
                            {42, 50.0},
                            {43, 0.0},
                            {44, 0.0},
                            {50, 0.0},
                            {72, qint64(1000)},
                            {flagsCode, usualFlags},
                            {1, QString()},
                            {281, qint64(0)},
                            {71, qint64(1)},
                            {74, qint64(0)},
                            {110, Vec3{}},
                            {111, Vec3{1.0, 0.0, 0.0}},
                            {112, Vec3{0.0, 1.0, 0.0}},
                            {79, qint64(0)},
                            {146, 0.0}};
    fields.insert(fields.end(), more.begin(), more.end());
    setAim(fields, aim);
    return fields;
}

ViewportAim viewportAim(const Drawing &drawing, RecordId viewport)
{
    const ViewportView view = readViewport(drawing.tags(viewport));
    return {view.target, view.direction, view.middle.xy(), view.twist, view.viewHeight};
}

void aimViewport(Drawing &drawing, RecordId viewport, const ViewportAim &aim)
{
    FieldList fields = drawing.fields(viewport);
    if (hasOwnGroups(drawing))
        setAim(fields, aim);
    else
        setExtendedData(fields, u"ACAD"_s, mviewData(aim, layersFrozenIn(drawing, viewport)));
    drawing.setFields(viewport, fields);
}

bool hasViewportFlag(const Drawing &drawing, RecordId viewport, ViewportFlag flag)
{
    const TagList tags = drawing.tags(viewport);
    return (tags.integer(flagsCode) & flag) != 0 || (flag == SwitchedOffViewport && !isViewportOn(tags));
}

bool setViewportFlag(Drawing &drawing, RecordId viewport, ViewportFlag flag, bool isOn)
{
    const bool isSwitch = flag == SwitchedOffViewport;
    if (!hasOwnGroups(drawing) && !isSwitch)
        return false;
    FieldList fields = drawing.fields(viewport);
    if (hasOwnGroups(drawing)) {
        const Field *present = findField(fields, flagsCode);
        const qint64 before = present ? present->integer() : 0;
        setField(fields, flagsCode, isOn ? before | flag : before & ~qint64(flag));
    }
    // Which of those that are on comes first matters to nobody here; 0 alone is off.
    if (isSwitch)
        setField(fields, statusCode, isOn ? qint64(0) : drawing.tags(viewport).integer(viewportNumberCode, 2));
    return drawing.setFields(viewport, fields);
}

QStringList layersFrozenIn(const Drawing &drawing, RecordId viewport)
{
    const ViewportView view = readViewport(drawing.tags(viewport));
    QStringList names = view.frozenLayers;
    for (const Handle handle : view.frozenHandles) {
        const RecordId entry = drawing.find(handle);
        if (isValid(entry) && drawing.isAlive(entry) && drawing.isType(entry, "LAYER"))
            names.append(drawing.tables().name(entry));
    }
    return names;
}

void freezeLayersIn(Drawing &drawing, RecordId viewport, const QStringList &names)
{
    QStringList frozen = layersFrozenIn(drawing, viewport);
    QSet<QString> known;
    for (const QString &name : frozen)
        known.insert(name.toCaseFolded());
    for (const QString &name : names)
        if (!known.contains(name.toCaseFolded()))
            frozen.append(name);
    setLayersFrozenIn(drawing, viewport, frozen);
}

void setLayersFrozenIn(Drawing &drawing, RecordId viewport, const QStringList &names)
{
    FieldList fields = drawing.fields(viewport);
    if (!hasOwnGroups(drawing)) {
        setExtendedData(fields, u"ACAD"_s, mviewData(viewportAim(drawing, viewport), names));
        drawing.setFields(viewport, fields);
        return;
    }
    std::erase_if(fields, [](const Field &field) { return field.code == 341; });
    // The owner's handle of the head has another code, so all of these are the list.
    std::erase_if(fields, [](const Field &field) { return field.code == frozenLayerCode; });
    const auto flags = std::ranges::find_if(fields, [](const Field &field) { return field.code == flagsCode; });
    FieldList frozen;
    for (const QString &name : names)
        if (const RecordId entry = drawing.tables().find(TableKind::Layer, name); isValid(entry))
            frozen.push_back({frozenLayerCode, drawing.handle(entry)});
    fields.insert(flags != fields.end() ? flags : ownEnd(fields), frozen.begin(), frozen.end());
    drawing.setFields(viewport, fields);
}

} // namespace host::drawing
