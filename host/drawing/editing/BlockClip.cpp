#include "host/drawing/editing/BlockClip.h"

#include "host/drawing/geometry/EntityGeometry.h"
#include "host/drawing/records/Dictionaries.h"
#include "host/drawing/records/Journal.h"
#include "host/drawing/records/Structure.h"
#include "host/drawing/tags/GroupCodes.h"

namespace host::drawing {

using namespace Qt::StringLiterals;

namespace {

constexpr int displayedCode = 71;
constexpr QStringView filtersEntry = u"ACAD_FILTER";
constexpr QStringView clipEntry = u"SPATIAL";
constexpr QStringView invertedMark = u"ACAD_INVERTEDCLIP_ROUNDTRIP";
constexpr QStringView invertedCompare = u"ACAD_INVERTEDCLIP_ROUNDTRIP_COMPARE";

RecordId filtersOf(const Drawing &drawing, RecordId insert)
{
    const RecordId own = drawing.dictionaries().extensionDictionary(insert);
    return isValid(own) ? drawing.dictionaries().find(own, filtersEntry) : noRecord;
}

RecordId clipOf(const Drawing &drawing, RecordId insert)
{
    const RecordId filters = filtersOf(drawing, insert);
    const RecordId clip = isValid(filters) ? drawing.dictionaries().find(filters, clipEntry) : noRecord;
    return isValid(clip) && drawing.isType(clip, "SPATIAL_FILTER") ? clip : noRecord;
}

void appendRows(FieldList &fields, const Matrix &m)
{
    const double rows[] = {m.xAxis.x, m.yAxis.x,  m.zAxis.x, m.origin.x, m.xAxis.y, m.yAxis.y,
                           m.zAxis.y, m.origin.y, m.xAxis.z, m.yAxis.z,  m.zAxis.z, m.origin.z};
    for (const double number : rows)
        fields.push_back({40, number});
}

/// For programs that do not know of inverted boundaries: a far larger rectangle that goes to the boundary and back.
Path aroundBoundary(const Path &corners)
{
    constexpr double reach = 10.0;
    Box box;
    Path inner = corners;
    if (inner.size() == 2)
        inner = {corners[0], {corners[1].x, corners[0].y, 0.0}, corners[1], {corners[0].x, corners[1].y, 0.0}};
    for (const Vec3 &corner : inner)
        box.add(corner);
    const Vec3 margin = (box.high - box.low) * reach;
    const Vec3 low = box.low - margin;
    const Vec3 high = box.high + margin;
    inner.insert(inner.end(), {inner.front(), low, {high.x, low.y, 0.0}, high, {low.x, high.y, 0.0}, low});
    return inner;
}

FieldList clipBody(const Path &corners, const Matrix &plane, const Matrix &toBlock)
{
    FieldList body = {{subclassCode, u"AcDbFilter"_s}, {subclassCode, u"AcDbSpatialFilter"_s}};
    body.push_back({70, qint64(corners.size())});
    for (const Vec3 &corner : corners)
        body.push_back({10, corner.xy()});
    body.push_back({210, plane.zAxis});
    body.push_back({11, plane.origin});
    body.push_back({displayedCode, qint64(1)});
    body.push_back({72, qint64(0)});
    body.push_back({73, qint64(0)});
    appendRows(body, toBlock);
    appendRows(body, plane.inverted());
    return body;
}

void noteInverted(Drawing &drawing, RecordId clip, const Path &boundary, const Path &corners)
{
    FieldList data = {{groupCode, invertedMark.toString()}};
    for (const Vec3 &corner : boundary)
        data.push_back({10, Vec3{corner.x, corner.y, 0.0}});
    data.push_back({groupCode, invertedCompare.toString()});
    for (const Vec3 &corner : corners)
        data.push_back({10, Vec3{corner.x, corner.y, 0.0}});
    drawing.dictionaries().setXrecord(drawing.dictionaries().ensureExtensionDictionary(clip), u"ACAD_XREC_ROUNDTRIP"_s,
                                      data);
}

/// The corners as they were drawn: of an inverted boundary those that are noted.
Path drawnCorners(const Drawing &drawing, RecordId clip)
{
    const Dictionaries &dictionaries = drawing.dictionaries();
    const RecordId own = dictionaries.extensionDictionary(clip);
    const auto noted = isValid(own) ? dictionaries.xrecord(own, u"ACAD_XREC_ROUNDTRIP") : std::nullopt;
    Path corners;
    bool isWanted = false;
    for (const Field &field : noted.value_or(FieldList())) {
        if (field.code == groupCode)
            isWanted = field.text() == invertedMark;
        else if (isWanted && field.code == 10)
            corners.push_back(field.point());
    }
    return corners.empty() ? drawing.tags(clip).points(10) : corners;
}

Matrix rowsAt(const std::vector<double> &numbers, std::size_t from)
{
    const auto column = [&](std::size_t i) {
        return Vec3{numbers[from + i], numbers[from + 4 + i], numbers[from + 8 + i]};
    };
    return {column(0), column(1), column(2), column(3)};
}

} // namespace

bool setBlockClip(Drawing &drawing, RecordId insert, const Path &corners, const Matrix &plane, ClipSide side)
{
    const Matrix fromBlock = insertTransform(drawing, drawing.tags(insert));
    if (!hasMarkers(drawing) || fromBlock.determinant() == 0.0 || plane.determinant() == 0.0)
        return false;
    const JournalGroup group(drawing.journal(), {});
    eraseBlockClip(drawing, insert);
    Dictionaries &dictionaries = drawing.dictionaries();
    const RecordId filters =
        dictionaries.ensureDictionary(dictionaries.ensureExtensionDictionary(insert), filtersEntry.toString());
    if (!isValid(filters))
        return false;
    const Path written = side == ClipSide::Outside ? aroundBoundary(corners) : corners;
    ensureClass(drawing, u"SPATIAL_FILTER"_s);
    const RecordId clip = insertObject(drawing, u"SPATIAL_FILTER"_s, drawing.handle(filters),
                                       clipBody(written, plane, fromBlock.inverted()));
    dictionaries.set(filters, clipEntry.toString(), clip);
    if (side == ClipSide::Outside)
        noteInverted(drawing, clip, corners, written);
    return true;
}

bool hasBlockClip(const Drawing &drawing, RecordId insert)
{
    return isValid(clipOf(drawing, insert));
}

void switchBlockClip(Drawing &drawing, RecordId insert, bool isOn)
{
    const RecordId clip = clipOf(drawing, insert);
    if (!isValid(clip))
        return;
    FieldList fields = drawing.fields(clip);
    setField(fields, displayedCode, qint64(isOn));
    drawing.setFields(clip, fields);
}

bool eraseBlockClip(Drawing &drawing, RecordId insert)
{
    const RecordId clip = clipOf(drawing, insert);
    if (!isValid(clip))
        return false;
    const JournalGroup group(drawing.journal(), {});
    drawing.dictionaries().eraseOwnedBy({clip});
    drawing.dictionaries().remove(filtersOf(drawing, insert), clipEntry);
    drawing.setErased(clip, true);
    return true;
}

Path blockClipBoundary(const Drawing &drawing, RecordId insert)
{
    const RecordId clip = clipOf(drawing, insert);
    if (!isValid(clip))
        return {};
    const TagList tags = drawing.tags(clip);
    std::vector<double> numbers = tags.reals(40);
    if (tags.integer(72) != 0 && !numbers.empty())
        numbers.erase(numbers.begin()); // distance of the front clip plane
    Path corners = drawnCorners(drawing, clip);
    if (numbers.size() < 24 || corners.size() < 2)
        return {};
    if (corners.size() == 2)
        corners = {corners[0], {corners[1].x, corners[0].y, 0.0}, corners[1], {corners[0].x, corners[1].y, 0.0}};
    const Matrix toWorld =
        insertTransform(drawing, drawing.tags(insert)) * rowsAt(numbers, 0) * rowsAt(numbers, 12).inverted();
    for (Vec3 &corner : corners)
        corner = toWorld.point(corner);
    return corners;
}

} // namespace host::drawing
