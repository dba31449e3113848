// Layouts, viewports and views.

#include "host/drawing/editing/Viewports.h"
#include "host/drawing/records/LayoutTabs.h"
#include "host/drawing/records/Tables.h"
#include "host/functions/FunctionGroups.h"
#include "host/kernel/documents/CurrentSpace.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/lisp/LispConversion.h"
#include "host/kernel/variables/SystemVariables.h"
#include "host/lisp/Interpreter.h"

namespace host::kernel {

namespace {

using drawing::RecordId;
using drawing::Vec2;
using lisp::Arguments;
using lisp::Value;

// (layoutlist) -> the names of the sheets in the order of their tabs, nil when there are none. Model space is none.
Value layoutlist(Arguments &args)
{
    lisp::ListBuilder names;
    for (const drawing::LayoutTab &tab : drawing::layoutTabs(documentOf(args).drawing()))
        if (!tab.isModel())
            names.append(toLisp(tab.name));
    return names.take();
}

Value viewportValue(std::int32_t number, const Vec2 &low, const Vec2 &high)
{
    return Value::list({Value::integer(number), Value::point(low.x, low.y), Value::point(high.x, high.y)});
}

/// The tiles of model space, in fractions of the window.
Value tiledViewports(const drawing::Drawing &drawing)
{
    constexpr std::int32_t firstTile = 2;
    lisp::ListBuilder all;
    std::int32_t number = firstTile;
    for (const RecordId record : drawing.tables().entries(drawing::TableKind::Viewport)) {
        if (drawing.tables().name(record).compare(QStringLiteral("*Active"), Qt::CaseInsensitive) != 0)
            continue;
        const drawing::TagList tags = drawing.tags(record);
        const Vec2 high = tags.point(11).xy();
        all.append(viewportValue(number++, tags.point(10).xy(), high == Vec2{} ? Vec2{1.0, 1.0} : high));
    }
    return number > firstTile ? all.take() : Value::list({viewportValue(firstTile, {}, {1.0, 1.0})});
}

/// The sheet itself and the viewports on it, in the sheet's units.
Value sheetViewports(const Document &document)
{
    const drawing::Drawing &drawing = document.drawing();
    lisp::ListBuilder all;
    for (const RecordId entity : currentEntities(drawing)) {
        if (!drawing.isType(entity, "VIEWPORT"))
            continue;
        const drawing::TagList tags = drawing.tags(entity);
        const Vec2 centre = tags.point(10).xy();
        const double halfWidth = tags.real(40) / 2.0;
        const double halfHeight = tags.real(41) / 2.0;
        all.append(viewportValue(static_cast<std::int32_t>(drawing::viewportNumber(drawing, entity)),
                                 {centre.x - halfWidth, centre.y - halfHeight},
                                 {centre.x + halfWidth, centre.y + halfHeight}));
    }
    return all.take();
}

// (vports) -> a list (number (x y) (x y)) for each viewport, lower left and upper right corner.
Value vports(Arguments &args)
{
    const Document &document = documentOf(args);
    return currentSpace(document.drawing()) == drawing::Space::Model ? tiledViewports(document.drawing())
                                                                     : sheetViewports(document);
}

/// The value of a group in a list as (entget) gives them.
Value groupValue(const Value &list, std::int32_t code)
{
    for (const Value &item : lisp::ListItems(list))
        if (item.isCons() && item.car().isInteger() && item.car().asInteger() == code)
            return item.cdr();
    return {};
}

// (setview view [viewport]) -> the view, which the window shows now. The view is a list as (tblsearch "VIEW" ...) gives
// it: centre (10), height (40) and width (41).
Value setview(Arguments &args)
{
    Document &document = documentOf(args);
    const std::optional<drawing::Vec3> centre = pointFrom(groupValue(args.list(0), 10));
    const Value height = groupValue(args[0], 40);
    const Value width = groupValue(args[0], 41);
    if (!centre || !height.isNumber() || height.asReal() <= 0.0)
        args.badValue(0, "view");
    ViewState view = document.view();
    document.rememberView(view);
    view.centre = centre->xy();
    view.height = height.asReal();
    const double shape = view.pixels.height() > 0 ? double(view.pixels.width()) / view.pixels.height() : 1.0;
    if (width.isNumber() && shape > 0.0)
        view.height = std::max(view.height, width.asReal() / shape);
    document.setView(view);
    return args[0];
}

} // namespace

void addViewFunctions(lisp::Interpreter &interpreter)
{
    using lisp::Arity;
    static constexpr lisp::NativeRow rows[] = {
        {"layoutlist", layoutlist, Arity::exactly(0), "", "the names of the layouts"},
        {"vports", vports, Arity::exactly(0), "", "the viewports with their corners"},
        {"setview", setview, Arity::between(1, 2), "view [viewport]", "shows a view, as tblsearch gives it"},
    };
    interpreter.define(rows);
}

} // namespace host::kernel
