#include "host/commands/inquiry/EntityListing.h"

#include "host/commands/common/UserPlane.h"
#include "host/drawing/annotation/DimensionData.h"
#include "host/drawing/curves/EntityCurve.h"
#include "host/drawing/geometry/EntityGeometry.h"
#include "host/drawing/math/Angles.h"
#include "host/drawing/records/Entities.h"
#include "host/drawing/records/Layouts.h"
#include "host/drawing/records/PolylineFlags.h"
#include "host/drawing/solids/SolidModel.h"
#include "host/drawing/text/ParagraphText.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/input/Units.h"
#include "host/kernel/languages/Texts.h"
#include "host/kernel/running/CommandContext.h"
#include "host/kernel/variables/SystemVariables.h"

#include <cmath>
#include <numbers>

using namespace Qt::StringLiterals;

namespace host::kernel {

namespace {

using drawing::Matrix;
using drawing::radians;
using drawing::RecordId;
using drawing::TagList;
using drawing::Vec3;

/// The lines of one entity while they are written.
class ListedSheet
{
public:
    ListedSheet(CommandContext &context, RecordId record)
        : context(context), record(record), tags(context.drawing().tags(record)),
          m_units(UnitFormat::of(context.document().variables())), m_plane(context.document()),
          m_toWorld(Matrix::fromExtrusion(tags.point(210, {0.0, 0.0, 1.0})))
    {
    }

    QString shown(double size) const { return m_units.length(size); }
    QString shownAngle(double turn) const { return m_units.angle(turn); }
    void line(const QString &text) { m_text += u"\n          "_s + text; }
    void value(const QString &what, const QString &text) { line(what.rightJustified(16) + u"  "_s + text); }
    void length(const QString &what, double size) { value(what, shown(size)); }
    void angle(const QString &what, double turn) { value(what, shownAngle(turn)); }
    /// In world coordinates.
    void point(const QString &what, const Vec3 &world)
    {
        const Vec3 at = m_plane.userFromWorld(world);
        line(u"%1 X=%2  Y=%3  Z=%4"_s.arg(what, shown(at.x), shown(at.y), shown(at.z)));
    }
    /// In object coordinates.
    void flatPoint(const QString &what, const Vec3 &object) { point(what, m_toWorld.point(object)); }
    /// An angle of object coordinates, in degrees, from the user's x axis.
    void direction(const QString &what, double degrees)
    {
        const Vec3 along = m_toWorld.direction({std::cos(degrees * radians), std::sin(degrees * radians), 0.0});
        const Vec3 user = m_plane.userFromWorld(along) - m_plane.userFromWorld({});
        const double turn = std::atan2(user.y, user.x);
        angle(what, turn < -1e-12 ? turn + 2.0 * std::numbers::pi : std::max(turn, 0.0));
    }
    void numbers(const QString &what, double area, double perimeter, const QString &round = u"perimeter"_s)
    {
        value(what, shown(area));
        value(round, shown(perimeter));
    }
    std::optional<drawing::EntityCurve> curve() const
    {
        return drawing::EntityCurve::ofEntity(context.drawing(), record);
    }
    const UserPlane &plane() const { return m_plane; }
    QString take() { return std::move(m_text); }

    CommandContext &context;
    RecordId record;
    TagList tags;

private:
    UnitFormat m_units;
    UserPlane m_plane;
    Matrix m_toWorld;
    QString m_text;
};

void listLine(ListedSheet &sheet)
{
    const Vec3 from = sheet.tags.point(10);
    const Vec3 to = sheet.tags.point(11);
    sheet.point(Commands::tr("from point,"), from);
    sheet.point(Commands::tr("  to point,"), to);
    const Vec3 by = sheet.plane().userFromWorld(to) - sheet.plane().userFromWorld(from);
    const double turn = std::atan2(by.y, by.x);
    sheet.line(Commands::tr("Length = %1,  Angle in XY Plane = %2")
                   .arg(sheet.shown(by.length()), sheet.shownAngle(turn < 0.0 ? turn + 2.0 * std::numbers::pi : turn)));
    sheet.line(Commands::tr("Delta X = %1, Delta Y = %2, Delta Z = %3")
                   .arg(sheet.shown(by.x), sheet.shown(by.y), sheet.shown(by.z)));
}

void listPoint(ListedSheet &sheet)
{
    sheet.point(Commands::tr("at point,"), sheet.tags.point(10));
}

void listEndless(ListedSheet &sheet)
{
    sheet.point(Commands::tr("base point,"), sheet.tags.point(10));
    sheet.point(Commands::tr("through point,"), sheet.tags.point(10) + sheet.tags.point(11));
}

void listCircle(ListedSheet &sheet)
{
    const double radius = sheet.tags.real(40);
    sheet.flatPoint(Commands::tr("center point,"), sheet.tags.point(10));
    sheet.length(u"radius"_s, radius);
    sheet.numbers(u"area"_s, std::numbers::pi * radius * radius, 2.0 * std::numbers::pi * radius, u"circumference"_s);
}

void listArc(ListedSheet &sheet)
{
    sheet.flatPoint(Commands::tr("center point,"), sheet.tags.point(10));
    sheet.length(u"radius"_s, sheet.tags.real(40));
    sheet.direction(Commands::tr("start angle"), sheet.tags.real(50));
    sheet.direction(Commands::tr("end angle"), sheet.tags.real(51));
    if (const auto curve = sheet.curve())
        sheet.length(u"length"_s, curve->length());
}

void listEllipse(ListedSheet &sheet)
{
    const Vec3 major = sheet.tags.point(11);
    sheet.point(Commands::tr("Center:"), sheet.tags.point(10));
    sheet.point(Commands::tr("Major Axis:"), sheet.plane().worldFromUser({}) + major);
    sheet.length(u"Radius Ratio"_s, sheet.tags.real(40, 1.0));
    if (const auto curve = sheet.curve())
        sheet.numbers(u"Area"_s, curve->area(), curve->length(), u"Length"_s);
}

void listVertices(ListedSheet &sheet, const std::vector<Vec3> &points, const std::vector<double> &bulges, bool isClosed)
{
    if (const auto curve = sheet.curve())
        sheet.numbers(u"area"_s, curve->area(), curve->length(), isClosed ? u"perimeter"_s : u"length"_s);
    for (std::size_t i = 0; i < points.size(); ++i) {
        sheet.flatPoint(Commands::tr("at point"), points[i]);
        if (bulges[i] != 0.0)
            sheet.value(u"bulge"_s, sheet.shown(bulges[i]));
    }
}

void listLightPolyline(ListedSheet &sheet)
{
    const bool isClosed = (sheet.tags.integer(70) & drawing::FlagClosed) != 0;
    const double elevation = sheet.tags.real(38);
    sheet.line(isClosed ? u"Closed"_s : u"Open"_s);
    if (sheet.tags.find(43))
        sheet.length(Commands::tr("Constant width"), sheet.tags.real(43));
    std::vector<Vec3> points;
    std::vector<double> bulges;
    for (const drawing::Field &field : sheet.tags.fields()) {
        if (field.code == 10) {
            points.push_back({field.point().x, field.point().y, elevation});
            bulges.push_back(0.0);
        } else if (field.code == 42 && !bulges.empty()) {
            bulges.back() = field.real();
        }
    }
    if (!points.empty())
        listVertices(sheet, points, bulges, isClosed);
}

void listPolyline(ListedSheet &sheet)
{
    const qint64 flags = sheet.tags.integer(70);
    const bool isFlat = (flags & (drawing::Flag3d | drawing::FlagMesh | drawing::FlagFaces)) == 0;
    const bool isClosed = (flags & drawing::FlagClosed) != 0;
    sheet.line(isClosed ? u"Closed"_s : u"Open"_s);
    std::vector<Vec3> points;
    std::vector<double> bulges;
    for (const RecordId child : sheet.context.drawing().children(sheet.record)) {
        const TagList vertex = sheet.context.drawing().tags(child);
        points.push_back(vertex.point(10));
        bulges.push_back(vertex.real(42));
    }
    if (isFlat && !points.empty())
        return listVertices(sheet, points, bulges, isClosed);
    if (const auto curve = sheet.curve())
        sheet.length(u"length"_s, curve->length());
    for (const Vec3 &point : points)
        sheet.point(Commands::tr("at point"), point);
}

void listCorners(ListedSheet &sheet)
{
    const bool isFace = sheet.context.drawing().isType(sheet.record, "3DFACE");
    for (int code = 10; code < 14; ++code) {
        const QString what = code == 10   ? Commands::tr("first point")
                             : code == 11 ? Commands::tr("second point")
                             : code == 12 ? Commands::tr("third point")
                                          : Commands::tr("fourth point");
        if (isFace)
            sheet.point(what, sheet.tags.point(code));
        else
            sheet.flatPoint(what, sheet.tags.point(code));
    }
}

void listSpline(ListedSheet &sheet)
{
    const drawing::Spline spline = drawing::readSpline(sheet.tags);
    if (const auto curve = sheet.curve())
        sheet.length(u"Length"_s, curve->length());
    sheet.value(u"Order"_s, QString::number(spline.degree + 1));
    for (const Vec3 &point : spline.controlPoints)
        sheet.point(Commands::tr("Control Point:"), point);
    for (const Vec3 &point : spline.fitPoints)
        sheet.point(Commands::tr("Fit Point:"), point);
}

void listText(ListedSheet &sheet)
{
    const TagList &tags = sheet.tags;
    const bool isJustified = tags.integer(72) != 0 || tags.integer(73) != 0 || tags.integer(74) != 0;
    sheet.value(u"Style"_s, u"\"%1\""_s.arg(tags.text(7, u"Standard"_s)));
    if (tags.find(2))
        sheet.value(u"tag"_s, tags.text(2));
    if (tags.find(3))
        sheet.value(u"prompt"_s, tags.text(3));
    sheet.flatPoint(isJustified ? Commands::tr("alignment point,") : Commands::tr("start point,"),
                    tags.point(isJustified ? 11 : 10));
    sheet.length(u"height"_s, tags.real(40));
    sheet.value(u"text"_s, tags.text(1));
    sheet.direction(Commands::tr("rotation angle"), tags.real(50));
    sheet.length(Commands::tr("width scale"), tags.real(41, 1.0));
    sheet.angle(Commands::tr("obliquing angle"), tags.real(51) * radians);
}

void listParagraph(ListedSheet &sheet)
{
    sheet.point(Commands::tr("Location:"), sheet.tags.point(10));
    sheet.length(u"Width"_s, sheet.tags.real(41));
    sheet.value(Commands::tr("Text style"), sheet.tags.text(7, u"Standard"_s));
    sheet.length(Commands::tr("Text height"), sheet.tags.real(40));
    sheet.angle(u"Rotation"_s,
                drawing::angleInPlane(drawing::paragraphDirection(sheet.tags), sheet.tags.point(210, {0.0, 0.0, 1.0})));
    sheet.value(u"Contents"_s, drawing::paragraphContent(sheet.tags));
}

void listReference(ListedSheet &sheet)
{
    const TagList &tags = sheet.tags;
    sheet.value(u"Block Name"_s, u"\"%1\""_s.arg(tags.text(2)));
    sheet.flatPoint(Commands::tr("at point,"), tags.point(10));
    sheet.length(Commands::tr("X scale factor"), tags.real(41, 1.0));
    sheet.length(Commands::tr("Y scale factor"), tags.real(42, 1.0));
    sheet.direction(Commands::tr("rotation angle"), tags.real(50));
    sheet.length(Commands::tr("Z scale factor"), tags.real(43, 1.0));
    if (tags.integer(70, 1) > 1 || tags.integer(71, 1) > 1) {
        sheet.value(Commands::tr("number of columns"), QString::number(tags.integer(70, 1)));
        sheet.value(Commands::tr("number of rows"), QString::number(tags.integer(71, 1)));
        sheet.length(Commands::tr("between columns"), tags.real(44));
        sheet.length(Commands::tr("between rows"), tags.real(45));
    }
    for (const RecordId child : sheet.context.drawing().children(sheet.record)) {
        const TagList attribute = sheet.context.drawing().tags(child);
        sheet.line(u"ATTRIBUTE  %1 = %2"_s.arg(attribute.text(2), attribute.text(1)));
    }
}

void listDimension(ListedSheet &sheet)
{
    static const QString kinds[] = {u"rotated"_s,
                                    u"aligned"_s,
                                    u"angular"_s,
                                    u"diameter"_s,
                                    u"radius"_s,
                                    u"3 point angular"_s,
                                    u"ordinate"_s,
                                    Commands::tr("arc length"),
                                    Commands::tr("jogged radius")};
    sheet.value(Commands::tr("dimension style"), u"\"%1\""_s.arg(sheet.tags.text(3, u"Standard"_s)));
    const auto data = drawing::readDimension(sheet.context.drawing(), sheet.record, sheet.tags);
    if (!data)
        return;
    const bool isAngle =
        data->kind == drawing::DimensionKind::AngularOfLines || data->kind == drawing::DimensionKind::AngularOfPoints;
    sheet.value(u"type"_s, kinds[static_cast<int>(data->kind)]);
    for (const int code : {10, 13, 14, 15})
        if (sheet.tags.find(code))
            sheet.point(Commands::tr("defining point:"), sheet.tags.point(code));
    sheet.value(u"measurement"_s, isAngle ? sheet.shownAngle(data->measured()) : sheet.shown(data->measured()));
    if (!data->text.isEmpty())
        sheet.value(u"text"_s, data->text);
}

void listHatch(ListedSheet &sheet)
{
    sheet.value(Commands::tr("Hatch pattern"), sheet.tags.text(2));
    sheet.value(u"Associative"_s, sheet.tags.integer(71) != 0 ? u"yes"_s : u"no"_s);
    if (sheet.tags.integer(70) == 0) {
        sheet.length(Commands::tr("Hatch scale"), sheet.tags.real(41, 1.0));
        sheet.angle(Commands::tr("Hatch angle"), sheet.tags.real(52) * radians);
    }
}

void listViewport(ListedSheet &sheet)
{
    sheet.point(Commands::tr("center point,"), sheet.tags.point(10));
    sheet.length(u"Width"_s, sheet.tags.real(40));
    sheet.length(u"Height"_s, sheet.tags.real(41));
    if (sheet.tags.real(45) > 0.0)
        sheet.value(Commands::tr("Scale relative to Paper space"),
                    u"%1xp"_s.arg(sheet.tags.real(41) / sheet.tags.real(45)));
}

/// Of all else where it is.
void listBox(ListedSheet &sheet)
{
    const drawing::Box box = drawing::entityBox(sheet.context.drawing(), sheet.record);
    if (box.isEmpty())
        return;
    sheet.point(Commands::tr("Bounding Box: Lower Bound"), box.low);
    sheet.point(u"              Upper Bound"_s, box.high);
}

void listRegion(ListedSheet &sheet)
{
    if (const auto region = drawing::measureRegion(drawing::readSolidModel(sheet.tags)))
        sheet.numbers(Commands::tr("Area:"), region->area, region->perimeter, Commands::tr("Perimeter:"));
    listBox(sheet);
}

struct ListedKind
{
    QByteArrayView type;
    void (*list)(ListedSheet &sheet);
};

constexpr ListedKind listedKinds[] = {
    {"3DFACE", listCorners},
    {"ARC", listArc},
    {"ARC_DIMENSION", listDimension},
    {"ATTDEF", listText},
    {"ATTRIB", listText},
    {"CIRCLE", listCircle},
    {"DIMENSION", listDimension},
    {"ELLIPSE", listEllipse},
    {"HATCH", listHatch},
    {"INSERT", listReference},
    {"LARGE_RADIAL_DIMENSION", listDimension},
    {"LINE", listLine},
    {"LWPOLYLINE", listLightPolyline},
    {"MTEXT", listParagraph},
    {"POINT", listPoint},
    {"POLYLINE", listPolyline},
    {"RAY", listEndless},
    {"REGION", listRegion},
    {"SOLID", listCorners},
    {"SPLINE", listSpline},
    {"TEXT", listText},
    {"TRACE", listCorners},
    {"VIEWPORT", listViewport},
    {"XLINE", listEndless},
};

void listLook(ListedSheet &sheet)
{
    const TagList &tags = sheet.tags;
    if (const drawing::Tag *exact = tags.find(420)) {
        const qint64 value = exact->integer().value_or(0);
        sheet.value(Commands::tr("Color:"),
                    u"%1,%2,%3"_s.arg(value >> 16 & 255).arg(value >> 8 & 255).arg(value & 255));
    } else if (const qint64 colour = tags.integer(62, drawing::colourByLayer); colour != drawing::colourByLayer) {
        sheet.value(Commands::tr("Color:"), colour == 0 ? u"BYBLOCK"_s : QString::number(colour));
    }
    if (tags.find(6))
        sheet.value(Commands::tr("Linetype:"), u"\"%1\""_s.arg(tags.text(6)));
    if (tags.real(48, 1.0) != 1.0)
        sheet.length(Commands::tr("Linetype scale"), tags.real(48));
    if (const qint64 weight = tags.integer(370, -1); weight >= 0)
        sheet.value(Commands::tr("Lineweight:"), u"%1mm"_s.arg(double(weight) / 100.0, 0, 'f', 2));
    if (tags.real(39) != 0.0)
        sheet.length(u"thickness"_s, tags.real(39));
}

} // namespace

QString entityListing(CommandContext &context, RecordId entity)
{
    const drawing::Drawing &drawing = context.drawing();
    ListedSheet sheet(context, entity);
    const QString layout = drawing.layouts().ofEntity(entity);
    const bool isModel = layout.compare(u"Model", Qt::CaseInsensitive) == 0;
    sheet.line(Commands::tr("%1  Layer: \"%2\"")
                   .arg(QString::fromLatin1(drawing.typeName(entity)).leftJustified(12), sheet.tags.text(8, u"0"_s)));
    sheet.value(Commands::tr("Space:"), isModel ? Commands::tr("Model space") : Commands::tr("Paper space"));
    if (!isModel)
        sheet.value(Commands::tr("Layout:"), layout);
    sheet.value(Commands::tr("Handle ="), drawing.handle(entity).toString().toLower());
    listLook(sheet);
    const auto *kind = std::ranges::find(listedKinds, drawing.typeName(entity), &ListedKind::type);
    (kind == std::end(listedKinds) ? listBox : kind->list)(sheet);
    return sheet.take();
}

} // namespace host::kernel
