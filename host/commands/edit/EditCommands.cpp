#include "host/commands/Commands.h"
#include "host/commands/common/DragShapes.h"
#include "host/commands/common/EntityEdits.h"
#include "host/commands/common/Movement.h"
#include "host/commands/common/ReferenceValue.h"
#include "host/commands/common/UserPlane.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/languages/Texts.h"
#include "host/kernel/running/CommandContext.h"
#include "host/kernel/variables/SystemVariables.h"

#include <cmath>

using namespace Qt::StringLiterals;

namespace host::kernel {

namespace {

using drawing::Matrix;
using drawing::RecordId;
using drawing::Vec3;

CommandTask erase(CommandContext &context)
{
    const PromptReply chosen = co_await context.selection();
    const std::vector<RecordId> doomed = editable(context, chosen.entities);
    eraseAll(context, doomed);
    if (!doomed.empty())
        rememberTakenOut(context, doomed);
}

// Base point and second point, or a displacement; an empty second point takes the first one as the displacement.
CommandTask move(CommandContext &context)
{
    const PromptReply chosen = co_await context.selection();
    const std::vector<RecordId> entities = editable(context, chosen.entities);
    if (entities.empty())
        co_return;
    const ShapeFrom shape = [&entities](const Vec3 &base) { return movedBy(entities, base); };
    const Vec3 by = co_await askMovement(context, shape);
    transformAll(context, entities, Matrix::translation(by));
}

using Copies = std::vector<RecordId>;

/// A row of copies from the base point on: their number, with the original, and the second one or with Fit the last.
Dialogue<Copies> askCopiesInRow(CommandContext &context, const Copies &entities, Vec3 from)
{
    constexpr int fewest = 2;
    PromptReply count;
    do {
        count = co_await context.integer(Commands::tr("Enter number of items to array: "), {}, {},
                                         NoEmptyAnswer | NoNegative);
        if (count.integer < fewest && context.refuse(Commands::tr("Requires an integer of 2 or more.")))
            co_return Copies();
    } while (count.integer < fewest);
    const Dragged shape = movedBy(entities, from);
    PromptReply to =
        co_await context.neededPoint(Commands::tr("Specify second point or [Fit]: "), from).dragging(shape);
    const bool isFit = to.isKeyword(u"Fit");
    if (isFit)
        to = co_await context.neededPoint(Commands::tr("Specify second point: "), from).dragging(shape);
    const int steps = count.integer - 1;
    Copies made;
    if (!mayCopy(context, entities.size(), steps))
        co_return made;
    const Vec3 step = (to.point - from) * (isFit ? 1.0 / steps : 1.0);
    for (int i = 1; i <= steps; ++i)
        std::ranges::copy(copyAll(context, entities, Matrix::translation(step * i)), std::back_inserter(made));
    co_return made;
}

/// Asks where the copies go, one after another where there may be several; Undo takes the last one back.
Dialogue<bool> askCopies(CommandContext &context, const Copies &entities, Vec3 from, bool isMultiple)
{
    const auto copyTo = [&](const Vec3 &by) { return copyAll(context, entities, Matrix::translation(by)); };
    const Dragged shape = movedBy(entities, from);
    PromptReply to =
        co_await context
            .point(Commands::tr("Specify second point or [Array] <use first point as displacement>: "), {}, from)
            .dragging(shape);
    if (to.isEmpty()) {
        copyTo(UserPlane(context.document()).displacement(from));
        co_return true;
    }
    std::vector<Copies> made;
    for (;;) {
        if (to.hasValue()) {
            made.push_back(copyTo(to.point - from));
        } else if (to.isKeyword(u"Array")) {
            made.push_back(co_await askCopiesInRow(context, entities, from));
        } else if (!to.isKeyword(u"Undo")) {
            break;
        } else if (!made.empty()) {
            eraseAll(context, made.back());
            made.pop_back();
        }
        if (context.hasFailed() || !isMultiple)
            break;
        to = co_await context
                 .point(Commands::tr("Specify second point or [Array/Exit/Undo] <Exit>: "), {}, from, u"Exit"_s)
                 .dragging(shape);
    }
    co_return true;
}

// As MOVE, with more copies until an empty answer.
CommandTask copy(CommandContext &context)
{
    const PromptReply chosen = co_await context.selection();
    if (chosen.entities.empty())
        co_return;
    PromptReply from;
    bool isForced = false;
    for (;;) {
        // "Multiple" is for this once; older programs say it though COPYMODE would do.
        from = co_await context.point(Commands::tr("Specify base point or [Displacement/mOde] <Displacement>: "),
                                      u"Displacement mOde Multiple"_s, {}, u"Displacement"_s);
        if (from.isKeyword(u"Multiple")) {
            isForced = true;
            continue;
        }
        if (!from.isKeyword(u"mOde"))
            break;
        const PromptReply mode = co_await context.keyword(
            Commands::tr("Enter a copy mode option [Single/Multiple] <Multiple>: "), {}, u"Multiple"_s);
        context.document().variables().setInternally(u"COPYMODE", mode.text == u"Single"_s ? 1 : 0);
    }
    if (from.hasValue()) {
        const bool isMultiple = isForced || context.document().variables().integer(u"COPYMODE") == 0;
        co_await askCopies(context, chosen.entities, from.point, isMultiple);
        co_return;
    }
    const Vec3 by = co_await askDisplacement(context);
    copyAll(context, chosen.entities, Matrix::translation(by));
}

/// What ROTATE and SCALE do: their entities, or copies of them.
void apply(CommandContext &context, const std::vector<RecordId> &entities, bool isCopy, const Matrix &matrix)
{
    if (isCopy)
        copyAll(context, entities, matrix);
    else
        transformAll(context, editable(context, entities), matrix);
}

// Base point, then an angle, or Copy and Reference.
CommandTask rotate(CommandContext &context)
{
    const SystemVariables &variables = context.document().variables();
    context.print(Commands::tr("\nCurrent positive angle in UCS:  ANGDIR=%1  ANGBASE=%2")
                      .arg(variables.integer(u"ANGDIR") == 0 ? u"counterclockwise"_s : u"clockwise"_s,
                           context.shownAngle(variables.real(u"ANGBASE"))));
    const PromptReply chosen = co_await context.selection();
    if (chosen.entities.empty())
        co_return;
    const PromptReply centre = co_await context.neededPoint(Commands::tr("Specify base point: "));
    const QString zero = context.shownAngle(0.0);
    const QString prompt = Commands::tr("Specify rotation angle or [Copy/Reference] <%1>: ").arg(zero);
    const Dragged shape =
        turnedBy(UserPlane(context.document()), chosen.entities, centre.point, variables.real(u"ANGBASE"));
    PromptReply turn = co_await context.angle(prompt, {}, centre.point, zero).dragging(shape);
    const bool isCopy = turn.isKeyword(u"Copy");
    if (isCopy) {
        context.print(Commands::tr("\nRotating a copy of the selected objects."));
        turn = co_await context.angle(prompt, u"Reference"_s, centre.point, zero).dragging(shape);
    }
    double angle = turn.hasValue() ? turn.real : 0.0;
    if (turn.isKeyword(u"Reference"))
        angle = co_await askReferenceAngle(context, centre.point, chosen.entities);
    apply(context, chosen.entities, isCopy, UserPlane(context.document()).rotation(angle, centre.point));
}

// Base point, then a factor, or Copy and Reference.
CommandTask scale(CommandContext &context)
{
    constexpr int bits = NoEmptyAnswer | NoZero | NoNegative;
    const PromptReply chosen = co_await context.selection();
    if (chosen.entities.empty())
        co_return;
    const PromptReply centre = co_await context.neededPoint(Commands::tr("Specify base point: "));
    const QString prompt = Commands::tr("Specify scale factor or [Copy/Reference]: ");
    const Dragged shape = scaledBy(UserPlane(context.document()), chosen.entities, centre.point);
    PromptReply factor = co_await context.distance(prompt, {}, centre.point, {}, bits).dragging(shape);
    const bool isCopy = factor.isKeyword(u"Copy");
    if (isCopy) {
        context.print(Commands::tr("\nScaling a copy of the selected objects."));
        factor = co_await context.distance(prompt, u"Reference"_s, centre.point, {}, bits).dragging(shape);
    }
    double by = factor.real;
    if (factor.isKeyword(u"Reference"))
        by = co_await askReferenceFactor(context, centre.point, chosen.entities);
    apply(context, chosen.entities, isCopy, Matrix::scaling({by, by, by}, centre.point));
}

} // namespace

std::vector<CommandRow> editCommands()
{
    return {{"COPY", copy, "Copies entities", WhenCancelled::KeepDone},
            {"ERASE", erase, "Takes entities out of the drawing"},
            {"MOVE", move, "Moves entities"},
            {"ROTATE", rotate, "Turns entities round a point"},
            {"SCALE", scale, "Makes entities larger or smaller"}};
}

} // namespace host::kernel
