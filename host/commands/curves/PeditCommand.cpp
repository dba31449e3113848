#include "host/commands/Commands.h"
#include "host/commands/common/EntityEdits.h"
#include "host/commands/common/KeptValues.h"
#include "host/commands/common/UserPlane.h"
#include "host/commands/curves/EditedPolyline.h"
#include "host/commands/curves/PeditVertices.h"
#include "host/commands/curves/PolylineJoin.h"
#include "host/kernel/documents/CurrentSpace.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/languages/Texts.h"

using namespace Qt::StringLiterals;

namespace host::kernel {

namespace {

using drawing::RecordId;
using drawing::Vec3;

Vec3 userNormal(CommandContext &context)
{
    const UserPlane plane(context.document());
    return plane.worldFromUser({0.0, 0.0, 1.0}) - plane.worldFromUser({});
}

/// Polylines under way, with what it takes to take each answer back.
class PeditSession
{
public:
    explicit PeditSession(CommandContext &context) : m_context(context) {}

    std::vector<EditedPolyline> polylines;

    /// Begins a step that undo() takes back.
    void begin() { m_steps.push_back({polylines, {}, {}}); }
    /// Writes a polyline, and follows it to the record it gets.
    void store(EditedPolyline &polyline)
    {
        const RecordId before = polyline.record;
        const StoredPolyline stored = storePolyline(m_context, polyline);
        if (!isValid(stored.record))
            return;
        if (stored.isNew) {
            m_steps.back().made.push_back(stored.record);
            if (isValid(before))
                m_steps.back().erased.push_back(before);
        }
        polyline.record = stored.record;
        polyline.isLight = m_context.drawing().isType(stored.record, "LWPOLYLINE");
    }
    void storeAll()
    {
        for (EditedPolyline &polyline : polylines)
            store(polyline);
    }
    void erase(RecordId record)
    {
        eraseAll(m_context, {record});
        m_steps.back().erased.push_back(record);
    }
    /// False when there is nothing left to take back.
    bool undo()
    {
        if (m_steps.empty())
            return false;
        const Step step = std::move(m_steps.back());
        m_steps.pop_back();
        eraseAll(m_context, step.made);
        bringBack(m_context, step.erased);
        polylines = step.before;
        for (const EditedPolyline &polyline : polylines)
            if (polyline.isLight && isValid(polyline.record))
                storePolyline(m_context, polyline);
        return true;
    }

private:
    struct Step
    {
        std::vector<EditedPolyline> before;
        std::vector<RecordId> made;
        std::vector<RecordId> erased;
    };
    CommandContext &m_context;
    std::vector<Step> m_steps;
};

/// Asks for the one polyline, or what becomes one. noRecord for none; a reply with "Multiple" is told by `isMultiple`.
Dialogue<RecordId> askPolyline(CommandContext &context, bool &isMultiple)
{
    for (;;) {
        PromptRequest request;
        request.kind = PromptKind::Entity;
        request.prompt = Commands::tr("\nSelect polyline or [Multiple]: ");
        request.keywords = {u"Multiple"_s, u"Last"_s};
        const PromptReply reply = co_await context.ask(request);
        isMultiple = reply.isKeyword(u"Multiple");
        if (reply.isKeyword(u"Last")) {
            const std::vector<RecordId> all = currentEntities(context.drawing());
            co_return all.empty() ? drawing::noRecord : all.back();
        }
        if (!reply.entities.empty())
            co_return reply.entities.front();
        if (isMultiple || !reply.isMiss)
            co_return drawing::noRecord;
    }
}

/// The polyline, made of what was selected where that is none yet and the user agrees. False when the command ends.
Dialogue<bool> askConversion(CommandContext &context, PeditSession &session, RecordId entity)
{
    if (std::optional<EditedPolyline> polyline = readPolyline(context.drawing(), entity)) {
        session.polylines = {*polyline};
        co_return true;
    }
    std::optional<EditedPolyline> made = polylineLike(context.drawing(), entity, userNormal(context));
    if (!made) {
        context.fail(Commands::tr("Object selected is not a polyline."));
        co_return false;
    }
    bool isWanted = context.document().variables().integer(u"PEDITACCEPT") != 0;
    if (!isWanted) {
        context.print(Commands::tr("\nObject selected is not a polyline"));
        isWanted = co_await askYesNo(context, Commands::tr("Do you want to turn it into one?"), true);
    }
    if (!isWanted)
        co_return false;
    session.begin();
    session.polylines = {*made};
    session.storeAll();
    session.erase(entity);
    co_return isValid(session.polylines.front().record);
}

/// All that are polylines or become some.
Dialogue<bool> askManyPolylines(CommandContext &context, PeditSession &session)
{
    const PromptReply chosen = co_await context.selection();
    const std::vector<RecordId> entities = editable(context, chosen.entities);
    std::vector<std::pair<RecordId, EditedPolyline>> candidates;
    for (const RecordId id : entities) {
        if (std::optional<EditedPolyline> polyline = readPolyline(context.drawing(), id))
            session.polylines.push_back(*polyline);
        else if (std::optional<EditedPolyline> made = polylineLike(context.drawing(), id, userNormal(context)))
            candidates.emplace_back(id, *made);
    }
    bool isWanted = !candidates.empty();
    if (isWanted && context.document().variables().integer(u"PEDITACCEPT") == 0)
        isWanted = co_await askYesNo(context, Commands::tr("Convert Lines, Arcs and Splines to polylines"), true);
    session.begin();
    for (auto &[id, made] : candidates) {
        if (!isWanted)
            break;
        session.store(made);
        session.erase(id);
        session.polylines.push_back(made);
    }
    co_return !session.polylines.empty();
}

/// What stands at the ends of the polyline, of what was selected.
Dialogue<bool> askJoin(CommandContext &context, PeditSession &session)
{
    EditedPolyline &polyline = session.polylines.front();
    const PromptReply chosen = co_await context.selection();
    std::vector<RecordId> records;
    std::vector<EditedPolyline> others;
    int splines = 0;
    for (const RecordId id : editable(context, chosen.entities)) {
        // A spline would lose its shape: JOIN makes a spline of both.
        if (context.drawing().isType(id, "SPLINE")) {
            ++splines;
            continue;
        }
        std::optional<EditedPolyline> other = readPolyline(context.drawing(), id);
        if (!other)
            other = polylineLike(context.drawing(), id, polyline.extrusion);
        if (other && id != polyline.record) {
            records.push_back(id);
            others.push_back(*other);
        }
    }
    const std::vector<std::size_t> taken = joinTo(polyline, others, {});
    for (const std::size_t i : taken)
        session.erase(records[i]);
    if (splines > 0)
        context.print(Commands::tr("\nSplines do not become part of a polyline: %1 left out.").arg(splines));
    context.print(Commands::tr("\n%1 segments added to polyline").arg(taken.size()));
    co_return !taken.empty();
}

Dialogue<JoinSettings> askFuzz(CommandContext &context)
{
    JoinSettings settings;
    for (;;) {
        const QString zero = context.shownLength(0.0);
        const PromptReply fuzz = co_await context.distance(
            Commands::tr("Enter fuzz distance or [Jointype] <%1>: ").arg(zero), {}, {}, zero, NoNegative);
        if (!fuzz.isKeyword(u"Jointype")) {
            settings.fuzz = fuzz.hasValue() ? fuzz.real : 0.0;
            co_return settings;
        }
        const QString type =
            co_await askUsualOption(context, Commands::tr("Enter a vertex join type [Extend/Add/Both]"), u"Extend"_s);
        settings.type = type == u"Add" ? JoinType::Add : JoinType::Extend;
    }
}

/// All of the polylines with each other.
Dialogue<bool> askJoinMany(CommandContext &context, PeditSession &session)
{
    const JoinSettings settings = co_await askFuzz(context);
    std::vector<EditedPolyline> left = std::move(session.polylines);
    session.polylines.clear();
    std::size_t joined = 0;
    while (!left.empty()) {
        EditedPolyline polyline = std::move(left.front());
        left.erase(left.begin());
        const std::vector<std::size_t> taken =
            polyline.isClosed || polyline.isSpatial ? std::vector<std::size_t>() : joinTo(polyline, left, settings);
        std::vector<bool> isTaken(left.size());
        for (const std::size_t i : taken)
            isTaken[i] = true;
        std::vector<EditedPolyline> rest;
        for (std::size_t i = 0; i < left.size(); ++i) {
            if (isTaken[i])
                session.erase(left[i].record);
            else
                rest.push_back(std::move(left[i]));
        }
        left = std::move(rest);
        joined += taken.size();
        session.polylines.push_back(std::move(polyline));
    }
    context.print(Commands::tr("\n%1 segments added to %2 polylines").arg(joined).arg(session.polylines.size()));
    co_return true;
}

void straightenAll(EditedPolyline &polyline)
{
    polyline.smoothing = Smoothing::None;
    for (EditedVertex &vertex : polyline.vertices) {
        vertex.bulge = 0.0;
        vertex.tangent.reset();
    }
}

Dialogue<bool> askPolylineWidth(CommandContext &context, PeditSession &session)
{
    const PromptReply width = co_await context.distance(Commands::tr("Specify new width for all segments: "), {}, {},
                                                        {}, NoEmptyAnswer | NoNegative);
    for (EditedPolyline &polyline : session.polylines)
        for (EditedVertex &vertex : polyline.vertices)
            vertex.startWidth = vertex.endWidth = width.real;
    co_return true;
}

/// The options that need no more answers.
void applyToAll(PeditSession &session, const QString &option)
{
    for (EditedPolyline &polyline : session.polylines) {
        if (option == u"Close")
            polyline.isClosed = true;
        else if (option == u"Open")
            polyline.isClosed = false;
        else if (option == u"Decurve")
            straightenAll(polyline);
        else if (option == u"Reverse")
            polyline.reverse();
        else if (option == u"Fit" && !polyline.isSpatial)
            polyline.smoothing = Smoothing::Arcs;
        else if (option == u"Spline")
            polyline.smoothing = Smoothing::Spline;
    }
}

Dialogue<bool> askEditVertex(CommandContext &context, PeditSession &session)
{
    VertexEdit edit = co_await askVertexEdits(context, session.polylines.front());
    session.polylines.front() = edit.polyline;
    session.storeAll();
    if (edit.rest)
        session.store(*edit.rest);
    co_return true;
}

/// One option. False when the polyline is as it was.
Dialogue<bool> takePeditOption(CommandContext &context, PeditSession &session, const QString option, bool isMultiple)
{
    session.begin();
    if (option == u"Edit") {
        co_return co_await askEditVertex(context, session);
    }
    if (option == u"Join" && isMultiple) {
        co_await askJoinMany(context, session);
    } else if (option == u"Join") {
        co_await askJoin(context, session);
    } else if (option == u"Width") {
        co_await askPolylineWidth(context, session);
    } else if (option == u"Ltype") {
        const QString usual = session.polylines.front().isDashedAcross ? u"ON"_s : u"OFF"_s;
        const QString state =
            co_await askUsualOption(context, Commands::tr("Enter polyline linetype generation option [ON/OFF]"), usual);
        for (EditedPolyline &polyline : session.polylines)
            polyline.isDashedAcross = state == u"ON";
    } else {
        applyToAll(session, option);
    }
    session.storeAll();
    co_return true;
}

QString peditPrompt(const PeditSession &session, bool isMultiple)
{
    if (isMultiple)
        return Commands::tr("Enter an option [Close/Open/Join/Width/Fit/Spline/Decurve/Ltype gen/Reverse/Undo]: ");
    const EditedPolyline &polyline = session.polylines.front();
    const QString close = polyline.isClosed ? u"Open"_s : u"Close"_s;
    if (polyline.isSpatial)
        return Commands::tr("Enter an option [%1/Edit vertex/Spline curve/Decurve/Reverse/Undo]: ").arg(close);
    return Commands::tr("Enter an option [%1/Join/Width/Edit vertex/Fit/Spline/Decurve/Ltype gen/Reverse/Undo]: ")
        .arg(close);
}

/// Close and Open both: programs close what may be closed already.
QString peditOptions()
{
    return u"Close Open Join Width Edit Fit Spline Decurve Ltype,L Reverse Undo eXit"_s;
}

// A polyline, or several, and options until an empty answer; each is done at once.
CommandTask editPolyline(CommandContext &context)
{
    PeditSession session(context);
    bool isMultiple = false;
    const RecordId entity = co_await askPolyline(context, isMultiple);
    bool goesOn = isMultiple;
    if (isMultiple)
        goesOn = co_await askManyPolylines(context, session);
    else if (isValid(entity) && !editable(context, {entity}).empty())
        goesOn = co_await askConversion(context, session, entity);
    while (goesOn) {
        const PromptReply option =
            co_await context.keyword(peditPrompt(session, isMultiple), peditOptions(), u"eXit"_s);
        if (!option.hasValue() || option.text == u"eXit")
            co_return;
        if (option.text != u"Undo")
            co_await takePeditOption(context, session, option.text, isMultiple);
        else if (!session.undo())
            context.print(Commands::tr("\nNothing to undo"));
        goesOn = !session.polylines.empty();
    }
}

} // namespace

std::vector<CommandRow> polylineEditCommands()
{
    return {{"PEDIT", editPolyline, "Edits polylines: closes, joins, widens, smooths, changes vertices",
             WhenCancelled::KeepDone}};
}

} // namespace host::kernel
