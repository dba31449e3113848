#include "host/commands/Commands.h"
#include "host/commands/annotate/NewMultiLeader.h"
#include "host/commands/common/EntityEdits.h"
#include "host/commands/common/KeptValues.h"
#include "host/commands/common/UserPlane.h"
#include "host/drawing/geometry/MultiLeaderFields.h"
#include "host/drawing/records/Blocks.h"
#include "host/drawing/records/Entities.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/languages/Texts.h"

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace host::kernel {

using drawing::FieldList;
using drawing::RecordId;
using drawing::Vec3;

namespace {

/// Bits of what a multileader says in place of its style.
enum MultiLeaderOverride : qint64
{
    OwnLineType = 1 << 0,
    OwnLanding = (1 << 4) | (1 << 6) | (1 << 7),
    OwnContent = 1 << 10,
    OwnBlock = (1 << 19) | (1 << 23) ///< which one, and that the line goes to its insertion point
};

Dialogue<bool> askLineType(CommandContext &context, MultiLeaderForm &form)
{
    const QStringList names = {u"None"_s, u"Straight"_s, u"sPline"_s};
    const QString usual = names[std::clamp<qsizetype>(form.lineType, 0, 2)];
    const QString chosen =
        co_await askUsualOption(context, Commands::tr("Select a leader type [Straight/sPline/None]"), usual);
    form.lineType = names.indexOf(chosen);
    form.overrides |= OwnLineType;
    co_return true;
}

Dialogue<bool> askLanding(CommandContext &context, MultiLeaderForm &form)
{
    form.hasLanding = co_await askYesNo(context, Commands::tr("Use landing [Yes/No]"), form.hasLanding);
    if (form.hasLanding)
        form.landing = co_await askUsualLength(context, Commands::tr("Specify fixed landing distance"), form.landing);
    form.overrides |= OwnLanding;
    co_return true;
}

/// False when the command failed with a name.
Dialogue<bool> askContent(CommandContext &context, MultiLeaderForm &form)
{
    const QStringList names = {u"None"_s, u"Block"_s, u"Mtext"_s};
    const QString usual = names[std::clamp<qsizetype>(form.content, 0, 2)];
    const QString chosen =
        co_await askUsualOption(context, Commands::tr("Select a content type [Block/Mtext/None]"), usual);
    form.overrides |= OwnContent;
    if (chosen != u"Block") {
        form.content = names.indexOf(chosen);
        co_return true;
    }
    for (;;) {
        const PromptReply name = co_await context.text(Commands::tr("Enter block name: "));
        const QString block = name.text.trimmed();
        if (isValid(context.drawing().blocks().find(block))) {
            form.content = MultiLeaderForm::Block;
            form.block = block;
            form.overrides |= OwnBlock;
            co_return true;
        }
        if (context.refuse(Commands::tr("Cannot find block \"%1\".").arg(block)))
            co_return false;
    }
}

Dialogue<bool> askMostPoints(CommandContext &context, MultiLeaderForm &form)
{
    const QString usual = form.mostPoints == 0 ? u"None"_s : QString::number(form.mostPoints);
    for (;;) {
        const PromptReply reply = co_await context.integer(
            Commands::tr("Enter the maximum points for leader or [None] <%1>: ").arg(usual), {}, usual);
        if (reply.hasValue() && reply.integer < 2) {
            if (context.refuse(Commands::tr("A leader has two points at least.")))
                co_return false;
            continue;
        }
        form.mostPoints = reply.hasValue() ? reply.integer : reply.isKeyword(u"None") ? 0 : form.mostPoints;
        co_return true;
    }
}

Dialogue<double> askConstraint(CommandContext &context, QString prompt, double usual)
{
    const QString shown = context.shownAngle(usual);
    const PromptReply reply = co_await context.angle(prompt.arg(shown), {}, {}, shown);
    co_return reply.hasValue() ? std::abs(reply.real) : usual;
}

/// False when the command failed with an answer.
Dialogue<bool> askMultiLeaderOptions(CommandContext &context, MultiLeaderForm &form)
{
    for (;;) {
        const PromptReply option = co_await context.keyword(
            Commands::tr("Enter an option [Leader type/leader lAnding/Content type/Maxpoints/First angle/Second angle/"
                         "eXit options] <eXit options>: "),
            u"Leader lAnding Content Maxpoints First Second eXit"_s, u"eXit options"_s);
        bool goesOn = true;
        if (option.text == u"Leader")
            co_await askLineType(context, form);
        else if (option.text == u"lAnding")
            co_await askLanding(context, form);
        else if (option.text == u"Content")
            goesOn = co_await askContent(context, form);
        else if (option.text == u"Maxpoints")
            goesOn = co_await askMostPoints(context, form);
        else if (option.text == u"First")
            form.firstAngle =
                co_await askConstraint(context, Commands::tr("Enter first angle constraint <%1>: "), form.firstAngle);
        else if (option.text == u"Second")
            form.secondAngle =
                co_await askConstraint(context, Commands::tr("Enter second angle constraint <%1>: "), form.secondAngle);
        else
            co_return true;
        if (!goesOn)
            co_return false;
    }
}

/// The point on the nearest ray whose direction is a multiple of the angle.
Vec3 constrained(const UserPlane &plane, const Vec3 &from, const Vec3 &to, double angle)
{
    if (!(angle > 0.0))
        return to;
    const Vec3 start = plane.userFromWorld(from);
    const Vec3 way = plane.userFromWorld(to) - start;
    const double turn = std::round(std::atan2(way.y, way.x) / angle) * angle;
    const double length = way.x * std::cos(turn) + way.y * std::sin(turn);
    return plane.worldFromUser(start + Vec3{length * std::cos(turn), length * std::sin(turn), way.z});
}

/// A multileader on its way.
struct MultiLeaderDraft
{
    MultiLeaderForm form{};
    std::vector<Vec3> points{}; ///< from the arrow to the landing
    QString text{};
};

/// What is given first.
enum class FirstPart
{
    Arrow,
    Landing,
    Content
};

/// The points behind the arrow: up to as many as the form has, or up to an empty answer.
Dialogue<bool> askPointsBehindArrow(CommandContext &context, MultiLeaderDraft &draft)
{
    const UserPlane plane(context.document());
    const qint64 most = draft.form.mostPoints;
    for (;;) {
        const bool isLast = qint64(draft.points.size()) == most - 1;
        const bool isEnough = draft.points.size() >= 2;
        const QString prompt =
            isLast ? Commands::tr("Specify leader landing location: ") : Commands::tr("Specify next point: ");
        const int bits = isEnough ? 0 : NoEmptyAnswer;
        const PromptReply next = co_await context.point(prompt, {}, draft.points.back(), {}, bits);
        if (!next.hasValue())
            co_return true;
        const double angle = draft.points.size() == 1   ? draft.form.firstAngle
                             : draft.points.size() == 2 ? draft.form.secondAngle
                                                        : 0.0;
        draft.points.push_back(constrained(plane, draft.points.back(), next.point, angle));
        if (isLast)
            co_return true;
    }
}

Dialogue<bool> askNoteText(CommandContext &context, MultiLeaderDraft &draft)
{
    if (draft.form.content != MultiLeaderForm::Text)
        co_return false;
    const PromptReply text = co_await context.text(Commands::tr("Enter text: "));
    draft.text = text.text;
    co_return true;
}

/// The landing by itself, or the corners of a text or place of a block.
Dialogue<Vec3> askLandingFirst(CommandContext &context, MultiLeaderDraft &draft, FirstPart first)
{
    const bool isText = first == FirstPart::Content && draft.form.content == MultiLeaderForm::Text;
    const bool isBlock = first == FirstPart::Content && draft.form.content == MultiLeaderForm::Block;
    const QString prompt = isText    ? Commands::tr("Specify first corner of text: ")
                           : isBlock ? Commands::tr("Specify insertion point for block: ")
                                     : Commands::tr("Specify leader landing location: ");
    const PromptReply place = co_await context.neededPoint(prompt);
    if (isText) {
        co_await context.neededPoint(Commands::tr("Specify opposite corner: "), place.point);
        co_await askNoteText(context, draft);
    }
    co_return place.point;
}

/// The first question, with its options; what the user begins with. Nothing when the command failed.
Dialogue<std::optional<FirstPart>> askFirstPart(CommandContext &context, MultiLeaderDraft &draft)
{
    for (;;) {
        const PromptReply first = co_await context.point(
            Commands::tr(
                "Specify leader arrowhead location or [leader Landing first/Content first/Options] <Options>: "),
            u"Landing Content Options"_s, {}, u"Options"_s);
        if (first.hasValue()) {
            draft.points = {first.point};
            co_return FirstPart::Arrow;
        }
        if (first.isKeyword(u"Landing"))
            co_return FirstPart::Landing;
        if (first.isKeyword(u"Content"))
            co_return FirstPart::Content;
        if (!co_await askMultiLeaderOptions(context, draft.form))
            co_return std::nullopt;
    }
}

bool mayHaveMultiLeaders(CommandContext &context)
{
    if (context.drawing().version() >= drawing::Version::R2007)
        return true;
    context.fail(Commands::tr("A drawing of this version has no multileaders: they come with R2007."));
    return false;
}

// The arrow, the landing and the content, in the order that an option says.
CommandTask multiLeader(CommandContext &context)
{
    if (!mayHaveMultiLeaders(context))
        co_return;
    MultiLeaderDraft draft;
    draft.form = multiLeaderForm(context);
    const std::optional<FirstPart> first = co_await askFirstPart(context, draft);
    if (!first)
        co_return;
    if (*first == FirstPart::Arrow) {
        co_await askPointsBehindArrow(context, draft);
    } else {
        const Vec3 landing = co_await askLandingFirst(context, draft, *first);
        const PromptReply arrow =
            co_await context.neededPoint(Commands::tr("Specify leader arrowhead location: "), landing);
        draft.points = {arrow.point, landing};
    }
    if (*first != FirstPart::Content)
        co_await askNoteText(context, draft);
    createMultiLeader(context, draft.form, draft.points, draft.text);
}

bool isMultiLeader(const drawing::Drawing &drawing, RecordId entity)
{
    return drawing.isType(entity, "MULTILEADER") || drawing.isType(entity, "MLEADER");
}

/// noRecord when the dialogue ended without one that may be changed.
Dialogue<RecordId> askMultiLeader(CommandContext &context, QString prompt)
{
    for (;;) {
        const PromptReply picked = co_await context.entity(prompt);
        if (picked.isMiss)
            continue;
        if (picked.entities.empty())
            co_return drawing::noRecord;
        const RecordId entity = picked.entities.front();
        if (isMultiLeader(context.drawing(), entity) && !editable(context, {entity}).empty())
            co_return entity;
        if (context.refuse(Commands::tr("Object selected is not a multileader.")))
            co_return drawing::noRecord;
    }
}

// A multileader, then arrows that it gets, or places of lines that it loses.
CommandTask editMultiLeader(CommandContext &context)
{
    const RecordId note = co_await askMultiLeader(context, Commands::tr("Select a multileader: "));
    bool isRemoving = false;
    while (isValid(note)) {
        const QString prompt = isRemoving ? Commands::tr("Specify leaders to remove or [Add leaders]: ")
                                          : Commands::tr("Specify leader arrowhead location or [Remove leaders]: ");
        const PromptReply reply = co_await context.point(prompt, {}, {});
        if (!reply.hasValue() && !reply.isKeyword(u"Remove") && !reply.isKeyword(u"Add"))
            break;
        if (!reply.hasValue()) {
            isRemoving = reply.isKeyword(u"Remove");
            continue;
        }
        FieldList fields = context.drawing().fields(note);
        const bool isDone =
            isRemoving ? removeMultiLeaderLine(fields, reply.point) : addMultiLeaderLine(fields, reply.point);
        if (isDone)
            context.drawing().setFields(note, fields);
        else
            context.print(Commands::tr("\nThe multileader has no leader there."));
    }
}

/// Multileaders by how far along a direction their contents begin.
struct AlignedNote
{
    RecordId record = drawing::noRecord;
    Vec3 base{};
    double along = 0.0;
};

std::vector<AlignedNote> alignedNotes(CommandContext &context, const std::vector<RecordId> &entities,
                                      const Vec3 &direction)
{
    std::vector<AlignedNote> notes;
    for (const RecordId id : entities)
        if (const auto base = drawing::multiLeaderBase(context.drawing().fields(id)))
            notes.push_back({id, *base, dot(*base, direction)});
    std::ranges::stable_sort(notes, {}, &AlignedNote::along);
    return notes;
}

void moveNote(CommandContext &context, const AlignedNote &note, const Vec3 &to)
{
    FieldList fields = context.drawing().fields(note.record);
    drawing::moveMultiLeaderContent(fields, to - note.base);
    context.drawing().setFields(note.record, fields);
}

/// How the contents stand on their line.
struct NoteSpacing
{
    bool isDistributed = false;
    double distance = 0.0; ///< from one to the next; 0: as they are
};

/// What the options of the alignment leave set.
Dialogue<bool> askNoteSpacing(CommandContext &context, NoteSpacing &spacing)
{
    const PromptReply option = co_await context.keyword(
        Commands::tr("Enter an option [Distribute/specify Spacing/Use current spacing] <Use current spacing>: "),
        u"Distribute Spacing Use"_s, u"Use current spacing"_s);
    spacing.isDistributed = option.text == u"Distribute";
    spacing.distance = 0.0;
    if (option.text == u"Spacing")
        spacing.distance = co_await askUsualLength(context, Commands::tr("Specify spacing"), 0.0);
    co_return true;
}

/// Spreads them evenly from the one point to the other.
void distributeNotes(CommandContext &context, const std::vector<RecordId> &entities, const Vec3 &from, const Vec3 &to)
{
    const std::vector<AlignedNote> notes = alignedNotes(context, entities, to - from);
    const double steps = std::max<double>(1.0, static_cast<double>(notes.size()) - 1.0);
    for (std::size_t i = 0; i < notes.size(); ++i)
        moveNote(context, notes[i], from + (to - from) * (static_cast<double>(i) / steps));
}

/// Onto the line through one of them.
void alignNotes(CommandContext &context, const std::vector<RecordId> &entities, RecordId anchor, const Vec3 &direction,
                double distance)
{
    const std::vector<AlignedNote> notes = alignedNotes(context, entities, direction);
    const auto fixed = std::ranges::find(notes, anchor, &AlignedNote::record);
    if (fixed == notes.end())
        return;
    for (auto note = notes.begin(); note != notes.end(); ++note) {
        const double step = distance > 0.0 ? static_cast<double>(note - fixed) * distance : note->along - fixed->along;
        if (note != fixed)
            moveNote(context, *note, fixed->base + direction * step);
    }
}

// Multileaders, one of them that stays, and the direction of the line on which they stand from then on.
CommandTask alignMultiLeaders(CommandContext &context)
{
    const PromptReply chosen = co_await context.selection(Commands::tr("Select multileaders: "));
    std::vector<RecordId> notes = editable(context, chosen.entities);
    std::erase_if(notes, [&](RecordId id) { return !isMultiLeader(context.drawing(), id); });
    if (notes.empty()) {
        context.fail(Commands::tr("No multileaders were selected."));
        co_return;
    }
    NoteSpacing spacing;
    PromptReply picked;
    for (;;) {
        if (spacing.isDistributed) {
            const PromptReply from = co_await context.neededPoint(Commands::tr("Specify first point or [Options]: "));
            if (from.hasValue()) {
                const PromptReply to = co_await context.neededPoint(Commands::tr("Specify second point: "), from.point);
                distributeNotes(context, notes, from.point, to.point);
                co_return;
            }
        } else {
            picked = co_await context.entity(Commands::tr("Select multileader to align to or [Options]: "));
            if (picked.isMiss)
                continue;
            if (!picked.isKeyword(u"Options"))
                break;
        }
        co_await askNoteSpacing(context, spacing);
    }
    if (picked.entities.empty())
        co_return;
    const RecordId anchor = picked.entities.front();
    const auto base = isMultiLeader(context.drawing(), anchor)
                          ? drawing::multiLeaderBase(context.drawing().fields(anchor))
                          : std::nullopt;
    if (!base) {
        context.fail(Commands::tr("Object selected is not a multileader."));
        co_return;
    }
    const PromptReply end = co_await context.neededPoint(Commands::tr("Specify direction: "), *base);
    const Vec3 direction = drawing::normalized(end.point - *base);
    if (std::ranges::find(notes, anchor) == notes.end())
        notes.push_back(anchor);
    if (direction.length() > 0.0)
        alignNotes(context, notes, anchor, direction, spacing.distance);
}

} // namespace

std::vector<CommandRow> multiLeaderCommands()
{
    return {{"MLEADER", multiLeader, "Draws an arrow with a note as one entity"},
            {"MLEADERALIGN", alignMultiLeaders, "Moves the notes of multileaders onto a line"},
            {"MLEADEREDIT", editMultiLeader, "Gives a multileader further arrows, or takes some away",
             WhenCancelled::KeepDone}};
}

} // namespace host::kernel
