#include "host/commands/Commands.h"
#include "host/commands/common/EntityEdits.h"
#include "host/commands/common/KeptValues.h"
#include "host/commands/common/UserPlane.h"
#include "host/drawing/curves/Offset.h"
#include "host/kernel/documents/CurrentSpace.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/languages/Texts.h"

#include <QSet>

#include <cmath>

using namespace Qt::StringLiterals;

namespace host::kernel {

namespace {

using drawing::EntityCurve;
using drawing::FieldList;
using drawing::RecordId;
using drawing::Vec3;

struct OffsetSettings
{
    double distance = 0.0;
    bool isThrough = false; ///< a point decides on the distance
    bool erasesSource = false;
    bool onCurrentLayer = false;
    drawing::OffsetGap gap = drawing::OffsetGap::Extended;
};

Vec3 offsetNormal(CommandContext &context, const EntityCurve &curve)
{
    const UserPlane plane(context.document());
    const Vec3 user = plane.worldFromUser({0.0, 0.0, 1.0}) - plane.worldFromUser({});
    return curve.normal().value_or(user);
}

/// The record of a parallel on its layer, without what the source owns and programs note about it.
void dressOffset(CommandContext &context, FieldList &fields, const OffsetSettings &settings)
{
    static const QSet<int> ofRecord = {5, 102, 330, 360};
    std::erase_if(fields, [](const drawing::Field &field) { return ofRecord.contains(field.code); });
    fields.erase(drawing::ownEnd(fields), fields.end());
    if (settings.onCurrentLayer)
        drawing::setField(fields, 8, context.document().variables().text(u"CLAYER"));
}

/// The parallel curves at a distance; none where there is no room for one.
std::vector<RecordId> createParallel(CommandContext &context, RecordId source, const EntityCurve &curve,
                                     double distance, const OffsetSettings &settings)
{
    std::vector<RecordId> made;
    const Vec3 normal = offsetNormal(context, curve);
    for (drawing::CurveRecord &record :
         drawing::offsetCurve(context.drawing(), source, distance, normal, settings.gap)) {
        dressOffset(context, record.head, settings);
        for (FieldList &child : record.children)
            dressOffset(context, child, settings);
        const drawing::CreateResult created = createOnCurrent(context.drawing(), record.head, record.children);
        if (created)
            made.push_back(created.record);
        else
            context.print(u'\n' + created.error);
    }
    return made;
}

/// What was made and erased for one point, to be taken back.
struct OffsetStep
{
    std::vector<RecordId> made;
    RecordId erased = drawing::noRecord;
};

Dialogue<bool> askOffsetSettings(CommandContext &context, OffsetSettings &settings)
{
    const double kept = context.document().variables().real(u"OFFSETDIST", -1.0);
    for (;;) {
        const QString usual = kept > 0.0 ? context.shownLength(kept) : u"Through"_s;
        const PromptReply reply = co_await context.distance(
            Commands::tr("Specify offset distance or [Through/Erase/Layer] <%1>: ").arg(usual), {}, {}, usual,
            NoNegative | NoZero);
        if (reply.isKeyword(u"Erase")) {
            settings.erasesSource = co_await askYesNo(context, Commands::tr("Erase source object after offsetting?"),
                                                      settings.erasesSource);
        } else if (reply.isKeyword(u"Layer")) {
            const QString layer =
                co_await askUsualOption(context, Commands::tr("Enter layer option for offset objects [Current/Source]"),
                                        settings.onCurrentLayer ? u"Current"_s : u"Source"_s);
            settings.onCurrentLayer = layer == u"Current";
        } else {
            settings.isThrough = reply.isKeyword(u"Through") || (reply.isEmpty() && kept <= 0.0);
            settings.distance = reply.hasValue() ? reply.real : kept;
            keepValue(context, u"OFFSETDIST", settings.isThrough ? -1.0 : settings.distance);
            co_return true;
        }
    }
}

void takeOffsetBack(CommandContext &context, std::vector<OffsetStep> &steps)
{
    if (steps.empty())
        return context.print(Commands::tr("\nNothing to undo"));
    eraseAll(context, steps.back().made);
    if (isValid(steps.back().erased))
        bringBack(context, {steps.back().erased});
    steps.pop_back();
}

/// What the points for one object lead to.
enum class OffsetNext
{
    NextObject,
    Exit,
    Abandon
};

Dialogue<OffsetNext> askSides(CommandContext &context, OffsetSettings settings, RecordId source,
                              std::vector<OffsetStep> &steps)
{
    bool isMultiple = false;
    for (;;) {
        const QString first = settings.isThrough ? Commands::tr("Specify through point")
                                                 : Commands::tr("Specify point on side to offset");
        const QString rest = isMultiple ? Commands::tr(" or [Exit/Undo] <next object>: ")
                                        : Commands::tr(" or [Exit/Multiple/Undo] <Exit>: ");
        const PromptReply reply = co_await context.point(first + rest, {}, {}, isMultiple ? u""_s : u"Exit"_s);
        if (reply.isEmpty())
            co_return isMultiple ? OffsetNext::NextObject : OffsetNext::Exit;
        if (reply.isKeyword(u"Exit"))
            co_return OffsetNext::Exit;
        if (reply.isKeyword(u"Multiple")) {
            isMultiple = true;
            continue;
        }
        if (reply.isKeyword(u"Undo")) {
            takeOffsetBack(context, steps);
            continue;
        }
        const std::optional<EntityCurve> curve = EntityCurve::ofEntity(context.drawing(), source);
        const Vec3 normal = offsetNormal(context, *curve);
        const double aside = drawing::offsetDistance(*curve, reply.point, normal);
        const double distance = settings.isThrough ? aside : std::copysign(settings.distance, aside);
        OffsetStep step{createParallel(context, source, *curve, distance, settings)};
        if (step.made.empty()) {
            if (context.refuse(Commands::tr("Cannot offset that object so far.")))
                co_return OffsetNext::Abandon;
            continue;
        }
        if (settings.erasesSource) {
            step.erased = source;
            eraseAll(context, {source});
        }
        steps.push_back(step);
        if (!isMultiple)
            co_return OffsetNext::NextObject;
        source = step.made.front();
    }
}

// A distance, then entities and points that say on which side; or points that the parallels go through.
CommandTask offset(CommandContext &context)
{
    OffsetSettings settings;
    settings.gap =
        static_cast<drawing::OffsetGap>(std::clamp(context.document().variables().integer(u"OFFSETGAPTYPE"), 0, 2));
    co_await askOffsetSettings(context, settings);
    std::vector<OffsetStep> steps;
    for (;;) {
        PromptRequest request;
        request.kind = PromptKind::Entity;
        request.prompt = Commands::tr("\nSelect object to offset or [Exit/Undo] <Exit>: ");
        request.keywords = {u"Exit"_s, u"Undo"_s};
        const PromptReply picked = co_await context.ask(request);
        if (picked.isKeyword(u"Undo")) {
            takeOffsetBack(context, steps);
            continue;
        }
        if (picked.isMiss)
            continue;
        if (picked.entities.empty())
            co_return;
        const RecordId source = picked.entities.front();
        const bool isCurve = EntityCurve::ofEntity(context.drawing(), source).has_value();
        if (!isCurve || context.drawing().isType(source, "LEADER")) {
            if (context.refuse(Commands::tr("Cannot offset that object.")))
                co_return;
            continue;
        }
        // A locked source can be followed as long as it stays.
        if (settings.erasesSource && editable(context, {source}).empty())
            continue;
        if (co_await askSides(context, settings, source, steps) != OffsetNext::NextObject)
            co_return;
    }
}

} // namespace

std::vector<CommandRow> offsetCommands()
{
    return {{"OFFSET", offset, "Draws parallel curves", WhenCancelled::KeepDone}};
}

} // namespace host::kernel
