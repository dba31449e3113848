#include "host/commands/Commands.h"
#include "host/commands/common/EntityEdits.h"
#include "host/commands/common/UserPlane.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/input/Units.h"
#include "host/kernel/languages/Texts.h"
#include "host/kernel/running/CommandContext.h"
#include "host/kernel/running/Dialogue.h"
#include "host/kernel/variables/SystemVariables.h"

#include <cmath>
#include <numbers>

using namespace Qt::StringLiterals;

namespace host::kernel {

namespace {

using drawing::Matrix;
using drawing::RecordId;
using drawing::Vec3;
using Entities = std::vector<RecordId>;

Dialogue<int> askCellCount(CommandContext &context, QString prompt)
{
    const PromptReply reply = co_await context.integer(prompt, {}, u"1"_s, NoZero | NoNegative);
    co_return reply.hasValue() ? reply.integer : 1;
}

/// Steps from row to row and from column to column, in the user's plane.
struct CellSteps
{
    double row = 0.0;
    double column = 0.0;
    bool isRefused = false;
};

Dialogue<double> askColumnStep(CommandContext &context)
{
    const PromptReply reply = co_await context.distance(Commands::tr("Specify the distance between columns (|||): "),
                                                        {}, {}, {}, NoEmptyAnswer | NoZero | FlatDistance);
    co_return reply.real;
}

/// A distance between rows, or a cell by two corners, which says that between columns as well.
Dialogue<CellSteps> askCellSteps(CommandContext &context, int rows, int columns)
{
    CellSteps steps;
    if (rows > 1) {
        PromptRequest request;
        request.kind = PromptKind::Point;
        request.prompt = Commands::tr("\nEnter the distance between rows or specify unit cell (---): ");
        request.bits = NoEmptyAnswer | AnyText | OutsideLimits;
        const PromptReply reply = co_await context.ask(request);
        if (reply.hasValue()) {
            const PromptReply other =
                co_await context.neededPoint(Commands::tr("Specify opposite corner: "), reply.point).asBox();
            const UserPlane plane(context.document());
            const Vec3 cell = plane.userFromWorld(other.point) - plane.userFromWorld(reply.point);
            co_return CellSteps{cell.y, cell.x, cell.y == 0.0 || (columns > 1 && cell.x == 0.0)};
        }
        const auto row = UnitFormat::of(context.document().variables()).parseLength(reply.text);
        if (!row || *row == 0.0)
            co_return CellSteps{0.0, 0.0, true};
        steps.row = *row;
    }
    if (columns > 1)
        steps.column = co_await askColumnStep(context);
    co_return steps;
}

void copyToCells(CommandContext &context, const Entities &entities, int rows, int columns, const CellSteps &steps)
{
    const UserPlane plane(context.document());
    const Matrix turned = Matrix::rotation(context.document().variables().real(u"SNAPANG"));
    const Vec3 origin = plane.worldFromUser({});
    for (int row = 0; row < rows; ++row) {
        for (int column = 0; column < columns && !context.hasFailed(); ++column) {
            const Vec3 by = turned.direction({column * steps.column, row * steps.row, 0.0});
            if (row > 0 || column > 0)
                copyAll(context, entities, Matrix::translation(plane.worldFromUser(by) - origin));
        }
    }
}

Dialogue<bool> makeRectangular(CommandContext &context, Entities entities)
{
    const int rows = co_await askCellCount(context, Commands::tr("Enter the number of rows (---) <1>: "));
    const int columns = co_await askCellCount(context, Commands::tr("Enter the number of columns (|||) <1>: "));
    if (rows == 1 && columns == 1) {
        context.fail(Commands::tr("One-element array, nothing to do."));
        co_return false;
    }
    const CellSteps steps = co_await askCellSteps(context, rows, columns);
    if (steps.isRefused)
        context.fail(Commands::tr("Requires a distance other than 0, or two corners of a cell."));
    else if (mayCopy(context, entities.size(), double(rows) * columns - 1.0))
        copyToCells(context, entities, rows, columns, steps);
    co_return !context.hasFailed();
}

/// How a polar array runs; angles in radians, counter-clockwise.
struct PolarSteps
{
    int items = 0;
    double step = 0.0;
};

constexpr double fullTurn = 2.0 * std::numbers::pi;

/// The angle between items when the fill is that of all.
double stepOf(double fill, int items)
{
    const bool isWhole = std::abs(std::abs(fill) - fullTurn) < 1e-12;
    return isWhole ? fill / items : fill / (items - 1);
}

/// An angle as it is typed: more than a turn is none, but 360 is a whole one.
Dialogue<std::optional<double>> askTurn(CommandContext &context, QString prompt, QString usual)
{
    const PromptReply reply = co_await context.name(prompt, usual);
    const QString typed = reply.hasValue() ? reply.text : usual;
    const UnitFormat units = UnitFormat::of(context.document().variables());
    const bool isNegative = typed.startsWith(u'-');
    const QString size = isNegative || typed.startsWith(u'+') ? typed.mid(1) : typed;
    bool isNumber = false;
    const double number = size.toDouble(&isNumber);
    const bool isWhole = isNumber && units.angleMode == 0 && std::abs(number) == 360.0;
    const std::optional<double> angle = isWhole ? std::optional(fullTurn) : units.parseAngle(size);
    if (!angle)
        co_return std::nullopt;
    co_return isNegative ? -*angle : *angle;
}

/// Number of items, angle to fill, angle between: two of the three.
Dialogue<PolarSteps> askPolarSteps(CommandContext &context)
{
    const PromptReply count =
        co_await context.integer(Commands::tr("Enter the number of items in the array: "), {}, {}, NoZero | NoNegative);
    const int items = count.hasValue() ? count.integer : 0;
    if (items == 1)
        co_return PolarSteps{1, 0.0};
    const std::optional<double> fill =
        co_await askTurn(context, Commands::tr("Specify the angle to fill (+=ccw, -=cw) <360>: "), u"360"_s);
    if (!fill)
        co_return PolarSteps{};
    if (items > 1 && *fill != 0.0)
        co_return PolarSteps{items, stepOf(*fill, items)};
    const std::optional<double> between = co_await askTurn(context, Commands::tr("Angle between items: "), {});
    if (!between || *between == 0.0)
        co_return PolarSteps{};
    if (items > 1)
        co_return PolarSteps{items, *between};
    const double step = std::copysign(*between, *fill);
    const double number = std::floor(std::abs(*fill / *between) + 1e-9);
    const bool isWhole = std::abs(std::abs(*fill) - fullTurn) < 1e-12 && std::abs(number * step - *fill) < 1e-9;
    co_return PolarSteps{int(std::min(number + (isWhole ? 0.0 : 1.0), 1e9)), step};
}

/// The first point that the entity says, in world coordinates: what an array that does not turn its items goes by.
Vec3 ownPoint(const drawing::Drawing &drawing, RecordId entity)
{
    static const QSet<QByteArray> flat = {"CIRCLE", "ARC",   "TEXT",  "ATTDEF",    "INSERT",
                                          "SOLID",  "TRACE", "SHAPE", "LWPOLYLINE"};
    const bool isPolyline = drawing.isType(entity, "POLYLINE") && !drawing.children(entity).empty();
    const drawing::TagList tags = drawing.tags(isPolyline ? drawing.firstChild(entity) : entity);
    Vec3 point = tags.point(10);
    if (drawing.isType(entity, "LWPOLYLINE"))
        point.z = tags.real(38);
    const Vec3 extrusion = drawing.tags(entity).point(210, {0.0, 0.0, 1.0});
    return flat.contains(drawing.typeName(entity).toByteArray()) ? Matrix::fromExtrusion(extrusion).point(point)
                                                                 : point;
}

void copyRound(CommandContext &context, const Entities &entities, const Vec3 &centre, const PolarSteps &steps,
               const std::optional<Vec3> &base)
{
    const UserPlane plane(context.document());
    for (int item = 1; item < steps.items && !context.hasFailed(); ++item) {
        const Matrix turn = plane.rotation(steps.step * item, centre);
        copyAll(context, entities, base ? Matrix::translation(turn.point(*base) - *base) : turn);
    }
}

Dialogue<bool> makePolar(CommandContext &context, Entities entities)
{
    PromptReply centre = co_await context.neededPoint(Commands::tr("Specify center point of array or [Base]: "));
    std::optional<Vec3> base;
    if (centre.isKeyword(u"Base")) {
        const PromptReply given = co_await context.neededPoint(Commands::tr("Specify base point of objects: "));
        base = given.point;
        centre = co_await context.neededPoint(Commands::tr("Specify center point of array: "));
    }
    const PolarSteps steps = co_await askPolarSteps(context);
    if (steps.items < 2 || !std::isfinite(steps.step)) {
        context.fail(steps.items == 1 ? Commands::tr("One-element array, nothing to do.")
                                      : Commands::tr("Requires a number of items or an angle between them."));
        co_return false;
    }
    const PromptReply turns =
        co_await context.keyword(Commands::tr("Rotate arrayed objects? [Yes/No] <Y>: "), {}, u"Yes"_s);
    if (turns.text != u"No")
        base.reset();
    else if (!base)
        base = ownPoint(context.drawing(), entities.back());
    if (mayCopy(context, entities.size(), steps.items - 1.0))
        copyRound(context, entities, centre.point, steps, base);
    co_return !context.hasFailed();
}

// Rows and columns, or round a point.
CommandTask array(CommandContext &context)
{
    const PromptReply chosen = co_await context.selection();
    if (chosen.entities.empty())
        co_return;
    const PromptReply type = co_await context.keyword(Commands::tr("Enter the type of array [Rectangular/Polar] <R>: "),
                                                      {}, u"Rectangular"_s);
    if (type.text == u"Polar")
        co_await makePolar(context, chosen.entities);
    else
        co_await makeRectangular(context, chosen.entities);
}

} // namespace

std::vector<CommandRow> arrayCommands()
{
    constexpr const char *help = "Copies entities into rows and columns or round a point";
    return {{"-ARRAY", array, help}, {"ARRAY", array, help}};
}

} // namespace host::kernel
