// Views and viewports, the user coordinate system, grid and snap, and what bodies look like.

#include "host/drawing/records/HeaderVariables.h"
#include "host/drawing/records/Layouts.h"
#include "host/drawing/records/Tables.h"
#include "host/kernel/documents/CurrentSpace.h"
#include "host/kernel/documents/CurrentView.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/variables/VariableRows.h"

namespace host::kernel {

using namespace rows;
using drawing::Vec2;
using drawing::Vec3;

namespace {

constexpr double largestLength = 1e99;

VariableValue viewCentre(const Document &document)
{
    const Vec2 centre = currentView(document).centre;
    const OdGePoint3d user = document.worldToUser({centre.x, centre.y, 0.0});
    return Vec3{user.x, user.y, user.z};
}

VariableValue viewHeight(const Document &document)
{
    return currentView(document).height;
}

VariableValue screenPixels(const Document &document)
{
    const QSize pixels = document.view().pixels;
    return Vec2{double(pixels.width()), double(pixels.height())};
}

/// The corners of what can be seen.
Vec3 virtualCorner(const Document &document, double side)
{
    const ViewState view = currentView(document);
    const double width = view.pixels.height() > 0 ? view.height * view.pixels.width() / view.pixels.height() : 0.0;
    return {view.centre.x + side * width / 2.0, view.centre.y + side * view.height / 2.0, 0.0};
}

VariableValue worldCoordinates(const Document &document)
{
    const Vec3 x = document.drawing().header().point(u"$UCSXDIR", {1.0, 0.0, 0.0});
    const Vec3 y = document.drawing().header().point(u"$UCSYDIR", {0.0, 1.0, 0.0});
    const Vec3 origin = document.drawing().header().point(u"$UCSORG");
    return origin == Vec3{} && x == Vec3{1.0, 0.0, 0.0} && y == Vec3{0.0, 1.0, 0.0} ? 1 : 0;
}

/// A bit of the viewport's view mode.
constexpr int followBit = 8;
constexpr int viewModeCode = 71;

drawing::RecordId activeViewport(const Document &document)
{
    return document.drawing().tables().find(drawing::TableKind::Viewport, u"*Active");
}

VariableValue isFollowing(const Document &document)
{
    const drawing::RecordId viewport = activeViewport(document);
    return isValid(viewport) && (document.drawing().tags(viewport).integer(viewModeCode) & followBit) != 0 ? 1 : 0;
}

void setFollowing(Document &document, const VariableValue &value)
{
    const drawing::RecordId viewport = activeViewport(document);
    if (!isValid(viewport))
        return;
    const qint64 mode = document.drawing().tags(viewport).integer(viewModeCode);
    drawing::FieldList fields = document.drawing().fields(viewport);
    drawing::setField(fields, viewModeCode, std::get<qint32>(value) != 0 ? mode | followBit : mode & ~followBit);
    document.drawing().setFields(viewport, fields);
}

VariableValue viewportNumber(const Document &document)
{
    return currentViewportNumber(document.drawing());
}

std::optional<VariableValue> acceptedViewport(const Document &document, const VariableValue &value)
{
    const bool isThere = viewportNumbered(document.drawing(), std::get<qint32>(value)).has_value();
    return isThere ? std::optional(value) : std::nullopt;
}

void setViewport(Document &document, const VariableValue &value)
{
    if (const auto viewport = viewportNumbered(document.drawing(), std::get<qint32>(value)))
        document.drawing().layouts().setCurrentViewport(*viewport);
}

/// The view, and where it is looked from.
VariableRows viewRows()
{
    return {settable(setViewport, 2, checked(acceptedViewport, computed("CVPORT", viewportNumber))),
            computed("SCREENSIZE", screenPixels),
            computed("VIEWCTR", viewCentre),
            computed("VIEWSIZE", viewHeight),
            computed("VSMAX", [](const Document &document) -> VariableValue { return virtualCorner(document, 1.0); }),
            computed("VSMIN", [](const Document &document) -> VariableValue { return virtualCorner(document, -1.0); }),
            fixed("BACKZ", 0.0),
            fixed("FRONTZ", 0.0),
            fixed("PERSPECTIVE", 0),
            fixed("TARGET", Vec3{}),
            fixed("VIEWDIR", Vec3{0.0, 0.0, 1.0}),
            fixed("VIEWMODE", 0),
            fixed("VIEWTWIST", 0.0),
            inViewport("LENSLENGTH", 42, 50.0, 1e-9, largestLength),
            inHeader("WORLDVIEW", 70, 1, 0, 1),
            ofUser("PERSPECTIVECLIP", 5.0, 0.01, 10),
            ofUser("ZOOMFACTORLEGACY", 60, 3, 100),
            kept("VIEWFWDBACK", 0, 0, 1),
            kept("VIEWBACKSTATUS", 0, 0, 1),
            ofUser("VPLAYEROVERRIDESMODE", 1, 0, 1),
            fixed("VPLAYEROVERRIDES", 0)};
}

VariableRows coordinateSystems()
{
    return {readOnly(inHeader("UCSNAME", 2, text(""))),
            readOnly(inHeader("UCSORG", 10, Vec3{})),
            readOnly(inHeader("UCSXDIR", 10, Vec3{1.0, 0.0, 0.0})),
            readOnly(inHeader("UCSYDIR", 10, Vec3{0.0, 1.0, 0.0})),
            computed("WORLDUCS", worldCoordinates),
            ofUser("UCSAXISANG", 90, 5, 180),
            since(drawing::Version::R2000, inHeader("UCSBASE", 2, text("World"))),
            ofUser("UCSDETECT", 1, 0, 1),
            within(0, 1, settable(setFollowing, 0, computed("UCSFOLLOW", isFollowing))),
            inViewport("UCSICON", 74, 3, 0, 3),
            ofUser("UCSORTHO", 1, 0, 1),
            ofUser("UCSSELECTMODE", 1, 0, 1),
            ofUser("UCSVIEW", 1, 0, 1),
            kept("UCSVP", 1, 0, 1)};
}

VariableRows gridAndSnap()
{
    return {kept("AXISMODE", 0, 0, 1),
            kept("AXISUNIT", Vec2{}),
            kept("GRIDDISPLAY", 3, 0, 15),
            kept("GRIDMAJOR", 5, 1, 100),
            inViewport("GRIDMODE", 76, 0, 0, 1),
            metric(Vec2{10.0, 10.0}, inViewport("GRIDUNIT", 15, Vec2{0.5, 0.5})),
            inViewport("SNAPANG", 50, 0.0),
            inViewport("SNAPBASE", 13, Vec2{}),
            inViewport("SNAPISOPAIR", 78, 0, 0, 2),
            inViewport("SNAPMODE", 75, 0, 0, 1),
            inViewport("SNAPSTYL", 77, 0, 0, 1),
            ofUser("SNAPTYPE", 0, 0, 1),
            metric(Vec2{10.0, 10.0}, inViewport("SNAPUNIT", 14, Vec2{0.5, 0.5}))};
}

/// Surfaces, bodies and light. The drawing keeps what it has a place for.
VariableRows looksOfBodies()
{
    using enum drawing::Version;
    return {since(R2007, inHeader("3DDWFPREC", 40, 2.0, 1, 6)),
            since(R2007, inHeader("CAMERADISPLAY", 290, 0, 0, 1)),
            since(R2007, inHeader("CAMERAHEIGHT", 40, 0.0)),
            since(R2007, inHeader("CSHADOW", 280, 0, 0, 3)),
            since(R13, inHeader("DISPSILH", 70, 0, 0, 1)),
            ofUser("DRAGVS", text("")),
            since(R2004, inHeader("HALOGAP", 280, 0, 0, 100)),
            since(R2004, inHeader("HIDETEXT", 280, 1, 0, 1)),
            ofUser("HIDEPRECISION", 0, 0, 1),
            since(R2007, inHeader("INTERFERECOLOR", 62, 1, 1, 256)),
            since(R2004, inHeader("INTERSECTIONCOLOR", 70, 257, 0, 257)),
            since(R2004, inHeader("INTERSECTIONDISPLAY", 280, 0, 0, 1)),
            since(R2007, inHeader("LIGHTGLYPHDISPLAY", 280, 1, 0, 1)),
            kept("LIGHTINGUNITS", 2, 0, 2),
            since(R2007, inHeader("LOFTNORMALS", 280, 1, 0, 6)),
            since(R2007, inHeader("LOFTPARAM", 70, 7, 0, 15)),
            kept("MESHTYPE", 1, 0, 1),
            kept("OBSCUREDCOLOR", 257, 0, 257),
            kept("OBSCUREDLTYPE", 0, 0, 11),
            since(R2007, inHeader("PSOLHEIGHT", 40, 4.0, 0, largestLength)),
            since(R2007, inHeader("PSOLWIDTH", 40, 0.25, 0, largestLength)),
            inHeader("SHADEDGE", 70, 3, 0, 3),
            inHeader("SHADEDIF", 70, 70, 0, 100),
            since(R2007, inHeader("SHADOWPLANELOCATION", 40, 0.0)),
            since(R2007, inHeader("SHOWHIST", 280, 1, 0, 2)),
            ofUser("SOLIDCHECK", 1, 0, 1),
            since(R2007, inHeader("SOLIDHIST", 280, 0, 0, 1)),
            since(R2007, inHeader("STEPSIZE", 40, 6.0, 0, largestLength)),
            since(R2007, inHeader("STEPSPERSEC", 40, 2.0, 1, 30)),
            inHeader("SURFTAB1", 70, 6, 2, 32766),
            inHeader("SURFTAB2", 70, 6, 2, 32766),
            inHeader("SURFTYPE", 70, 6, 5, 8),
            inHeader("SURFU", 70, 6, 0, 200),
            inHeader("SURFV", 70, 6, 0, 200),
            since(R2007, inHeader("TILEMODELIGHTSYNCH", 280, 1, 0, 1)),
            kept("VSBACKGROUNDS", 1, 0, 1),
            kept("VSEDGES", 1, 0, 2),
            kept("VSFACESTYLE", 0, 0, 3),
            kept("VSSHADOWS", 0, 0, 2),
            kept("VSISOONTOP", 0, 0, 1),
            since(R2007, inHeader("LATITUDE", 40, 37.795, -90, 90)),
            since(R2007, inHeader("LONGITUDE", 40, -122.394, -180, 180)),
            since(R2007, inHeader("NORTHDIRECTION", 40, 0.0)),
            since(R2007, inHeader("TIMEZONE", 70, -8000, -12000, 13000))};
}

} // namespace

VariableRows viewVariables()
{
    VariableRows all = viewRows();
    for (const VariableRows &group : {coordinateSystems(), gridAndSnap(), looksOfBodies()})
        all.insert(all.end(), group.begin(), group.end());
    return all;
}

} // namespace host::kernel
