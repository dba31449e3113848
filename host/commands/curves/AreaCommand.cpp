#include "host/commands/Commands.h"
#include "host/commands/curves/PickedCurve.h"
#include "host/drawing/solids/SolidModel.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/languages/Texts.h"
#include "host/kernel/variables/SystemVariables.h"

using namespace Qt::StringLiterals;

namespace host::kernel {

namespace {

using drawing::EntityCurve;
using drawing::Vec3;

/// What AREA measured, and the sum that Add and Subtract make.
struct AreaSession
{
    enum class Mode
    {
        Once,
        Add,
        Subtract
    };

    CommandContext &context;
    Mode mode = Mode::Once;
    double total = 0.0;

    QString modeText() const
    {
        return mode == Mode::Once  ? QString()
               : mode == Mode::Add ? Commands::tr("(ADD mode) ")
                                   : Commands::tr("(SUBTRACT mode) ");
    }
    void count(double area, double around, const QString &aroundName);
};

void AreaSession::count(double area, double around, const QString &aroundName)
{
    context.print(
        Commands::tr("\nArea = %1, %2 = %3").arg(context.shownLength(area), aroundName, context.shownLength(around)));
    SystemVariables &variables = context.document().variables();
    if (mode != Mode::Once) {
        total += mode == Mode::Add ? area : -area;
        context.print(Commands::tr("\nTotal area = %1").arg(context.shownLength(total)));
    }
    variables.setInternally(u"AREA", mode == Mode::Once ? area : total);
    variables.setInternally(u"PERIMETER", around);
}

void countCurve(AreaSession &session, const EntityCurve &curve)
{
    if (curve.isEndless() || !curve.isPlanar())
        return session.context.print(Commands::tr("\nSelected object does not have an area."));
    const bool isCircle = curve.kind() == EntityCurve::Kind::Circle;
    session.count(curve.area(), curve.length(),
                  isCircle           ? u"Circumference"_s
                  : curve.isClosed() ? u"Perimeter"_s
                                     : u"Length"_s);
}

void countCorners(AreaSession &session, const std::vector<Vec3> &corners)
{
    if (corners.size() < 3)
        return;
    const Vec3 up = userNormal(session.context);
    const EntityCurve around = EntityCurve::through(corners, true).flattened(up);
    Vec3 swept;
    for (const drawing::CurvePiece &piece : around.pieces())
        swept = swept + piece.sweptArea(around.startPoint());
    session.count(swept.length() / 2.0, around.length(), u"Perimeter"_s);
}

/// Corners behind the first one, until an empty answer.
Dialogue<bool> measureCorners(AreaSession &session, Vec3 first)
{
    std::vector<Vec3> corners = {first};
    for (;;) {
        const QString prompt = corners.size() < 3 ? Commands::tr("%1Specify next point or [Undo]: ")
                                                  : Commands::tr("%1Specify next point or [Undo/Total] <Total>: ");
        const PromptReply next = co_await session.context.point(prompt.arg(session.modeText()), {}, corners.back());
        if (next.isKeyword(u"Undo")) {
            if (corners.size() > 1)
                corners.pop_back();
            continue;
        }
        if (!next.hasValue())
            break;
        corners.push_back(next.point);
    }
    countCorners(session, corners);
    co_return true;
}

void countEntity(AreaSession &session, drawing::RecordId entity)
{
    const auto curve = EntityCurve::ofEntity(session.context.drawing(), entity);
    const drawing::TagList tags = session.context.drawing().tags(entity);
    const bool isRegion = session.context.drawing().isType(entity, "REGION");
    const auto region = isRegion ? drawing::measureRegion(drawing::readSolidModel(tags)) : std::nullopt;
    if (curve)
        countCurve(session, *curve);
    else if (region)
        session.count(region->area, region->perimeter, u"Perimeter"_s);
    else
        session.context.print(Commands::tr("\nSelected object does not have an area."));
}

/// One curve; in the modes that sum a whole selection.
Dialogue<bool> measureObjects(AreaSession &session)
{
    const QString prompt = session.modeText() + Commands::tr("Select objects: ");
    if (session.mode != AreaSession::Mode::Once) {
        const PromptReply chosen = co_await session.context.selection(prompt);
        for (const drawing::RecordId entity : chosen.entities)
            countEntity(session, entity);
        co_return true;
    }
    PromptReply reply = co_await session.context.entity(prompt);
    while (reply.isMiss)
        reply = co_await session.context.entity(prompt);
    if (!reply.entities.empty())
        countEntity(session, reply.entities.front());
    co_return true;
}

// Corners, or a curve; with Add area and Subtract area as many as one likes, until an empty answer.
CommandTask area(CommandContext &context)
{
    AreaSession session{context};
    for (;;) {
        const bool isOnce = session.mode == AreaSession::Mode::Once;
        const QString prompt =
            isOnce ? Commands::tr("Specify first corner point or [Object/Add area/Subtract area] <Object>: ")
            : session.mode == AreaSession::Mode::Add
                ? Commands::tr("Specify first corner point or [Object/Subtract area]: ")
                : Commands::tr("Specify first corner point or [Object/Add area]: ");
        const PromptReply reply = co_await context.point(prompt, {}, {}, isOnce ? u"Object"_s : QString());
        if (reply.isEmpty() && !isOnce)
            co_return;
        const QString word = reply.kind == ReplyKind::Keyword ? reply.text : QString();
        if (word.startsWith(u"Add"_s))
            session.mode = AreaSession::Mode::Add;
        else if (word.startsWith(u"Subtract"_s))
            session.mode = AreaSession::Mode::Subtract;
        else if (reply.hasValue())
            co_await measureCorners(session, reply.point);
        else
            co_await measureObjects(session);
        if (session.mode == AreaSession::Mode::Once)
            co_return;
    }
}

} // namespace

std::vector<CommandRow> areaCommands()
{
    return {{"AREA", area, "measures areas and perimeters of corners and curves"}};
}

} // namespace host::kernel
