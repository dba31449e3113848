#include "host/commands/Commands.h"
#include "host/commands/annotate/DimensionDialogues.h"
#include "host/drawing/annotation/StyleValues.h"
#include "host/drawing/geometry/TransformEntity.h"
#include "host/drawing/math/Angles.h"
#include "host/drawing/records/Blocks.h"
#include "host/drawing/records/Entities.h"
#include "host/drawing/records/Reactors.h"
#include "host/drawing/records/Tables.h"
#include "host/kernel/documents/CurrentSpace.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/languages/Texts.h"

using namespace Qt::StringLiterals;

namespace host::kernel {

using drawing::DimensionStyle;
using drawing::FieldList;
using drawing::RecordId;
using drawing::Vec3;

namespace {

struct LeaderDraft
{
    std::vector<Vec3> points; ///< world coordinates, the arrow's first
    bool isSpline = false;
    bool hasArrow = true;
};

/// What stands at a leader's end, as group 73 says it.
enum class LeaderNote : qint64
{
    Text = 0,
    Tolerance = 1,
    Block = 2,
    None = 3
};

RecordId createLeader(CommandContext &context, const LeaderDraft &draft)
{
    const UserPlane plane(context.document());
    const QString style = currentDimensionStyle(context);
    FieldList fields = {{0, u"LEADER"_s},
                        {3, style},
                        {71, qint64(draft.hasArrow ? 1 : 0)},
                        {72, qint64(draft.isSpline ? 1 : 0)},
                        {73, qint64(LeaderNote::None)},
                        {74, qint64(0)},
                        {75, qint64(0)},
                        {76, qint64(draft.points.size())}};
    for (const Vec3 &point : draft.points)
        fields.push_back({10, point});
    fields.push_back({211, plane.worldFromUser({1.0, 0.0, 0.0}) - plane.worldFromUser({})});
    fields = plane.placed(std::move(fields));
    drawing::setOverrides(fields, drawing::currentOverrides(context.drawing(), style));
    return context.create(fields);
}

/// Gives a leader what stands at its end, and a level piece in front of it where it does not come level.
void attachNote(CommandContext &context, RecordId leader, RecordId note, LeaderNote kind, const FieldList &more,
                const std::optional<Vec3> &hook)
{
    drawing::Drawing &drawing = context.drawing();
    FieldList fields = drawing.fields(leader);
    drawing::setField(fields, 73, qint64(kind));
    if (hook) {
        drawing::setField(fields, 75, qint64(1));
        drawing::setField(fields, 76, drawing::findField(fields, 76)->integer() + 1);
        const auto isVertex = [](const drawing::Field &field) { return field.code == 10; };
        const auto last = std::find_if(fields.rbegin(), fields.rend(), isVertex);
        fields.insert(last.base(), {10, *hook});
    }
    for (const drawing::Field &field : more)
        drawing::setField(fields, field.code, field.value);
    drawing::setField(fields, 340, drawing.handle(note));
    drawing.entities().modify(leader, fields);
    drawing::addReactor(drawing, note, drawing.handle(leader));
}

/// Writes the text beside the leader's end: above the level piece where the style has texts so, otherwise behind it.
void addLeaderText(CommandContext &context, RecordId leader, const LeaderDraft &draft, const QString &content,
                   double width)
{
    drawing::Drawing &drawing = context.drawing();
    const UserPlane plane(context.document());
    const DimensionStyle style = readDimensionStyle(drawing, drawing.tags(leader));
    const Vec3 last = plane.userFromWorld(draft.points.back());
    const Vec3 way = last - plane.userFromWorld(draft.points[draft.points.size() - 2]);
    const double side = way.x < 0.0 ? -1.0 : 1.0;
    const double steepest = 15.0 * drawing::radians;
    std::optional<Vec3> hook;
    if (std::abs(way.y) > std::abs(way.x) * std::tan(steepest))
        hook = last + Vec3{side * style.arrowSize * style.scale, 0.0, 0.0};
    const double height = style.textHeight * style.scale;
    const double gap = std::abs(style.gap) * style.scale;
    const bool isAbove = style.textPlace != 0;
    const Vec3 at = hook.value_or(last) + Vec3{side * gap, isAbove ? gap : height / 2.0, 0.0};
    // The top, or the bottom of what stands above its line.
    const qint64 attachment = (isAbove ? 7 : 1) + (side < 0.0 ? 2 : 0);
    const RecordId styleRecord = drawing.tables().find(drawing::TableKind::Style, style.textStyle);
    const QString textStyle = isValid(styleRecord) ? style.textStyle : u"Standard"_s;
    FieldList text = {{0, u"MTEXT"_s},  {10, plane.worldFromUser(at)},
                      {40, height},     {41, width},
                      {71, attachment}, {1, content},
                      {7, textStyle},   {11, plane.worldFromUser({1.0, 0.0, 0.0}) - plane.worldFromUser({})}};
    if (style.textColour != 0)
        text.push_back({62, qint64(style.textColour)});
    const RecordId note = context.create(plane.placed(std::move(text)));
    if (!isValid(note))
        return;
    const drawing::Vec2 size = dimensionTextSize(context, textStyle)(content, height);
    const Vec3 offset = plane.worldFromUser(hook.value_or(last)) - plane.worldFromUser(at);
    const auto worldHook = hook ? std::optional(plane.worldFromUser(*hook)) : std::nullopt;
    attachNote(context, leader, note, LeaderNote::Text,
               {{40, size.y}, {41, size.x}, {213, offset.x}, {223, offset.y}, {233, offset.z}}, worldHook);
}

/// Lines of text until an empty one; nothing when the first is.
Dialogue<QString> askLeaderText(CommandContext &context, QString firstPrompt)
{
    QStringList lines;
    for (QString prompt = firstPrompt;; prompt = Commands::tr("Enter next line of annotation text: ")) {
        const PromptReply line = co_await context.text(prompt);
        if (!line.hasValue() || line.text.isEmpty())
            break;
        lines.append(line.text);
    }
    co_return lines.join(u"\\P"_s);
}

/// A copy of an entity whose own point is moved to the leader's end.
void copyNote(CommandContext &context, RecordId leader, RecordId original, const Vec3 &end)
{
    drawing::Drawing &drawing = context.drawing();
    const QByteArrayView type = drawing.typeName(original);
    const bool isNote = type == "MTEXT" || type == "TEXT" || type == "INSERT" || type == "TOLERANCE";
    const RecordId copy = isNote ? copyToCurrent(drawing, original) : drawing::noRecord;
    if (!isValid(copy))
        return context.fail(Commands::tr("A text, tolerance or block reference is needed."));
    const drawing::TagList tags = drawing.tags(copy);
    const bool isFlat = type == "TEXT" || type == "INSERT";
    const drawing::Matrix axes =
        isFlat ? drawing::Matrix::fromExtrusion(tags.point(210, {0.0, 0.0, 1.0})) : drawing::Matrix{};
    drawing::transformEntity(drawing, copy, drawing::Matrix::translation(end - axes.point(tags.point(10))));
    const LeaderNote kind = type == "INSERT"      ? LeaderNote::Block
                            : type == "TOLERANCE" ? LeaderNote::Tolerance
                                                  : LeaderNote::Text;
    attachNote(context, leader, copy, kind, {}, {});
}

Dialogue<bool> addLeaderBlock(CommandContext &context, RecordId leader, Vec3 end)
{
    const PromptReply name = co_await context.text(Commands::tr("Enter block name: "));
    const QString block = name.text.trimmed();
    if (!isValid(context.drawing().blocks().find(block))) {
        context.fail(Commands::tr("Cannot find block \"%1\".").arg(block));
        co_return false;
    }
    const UserPlane plane(context.document());
    const PromptReply scale = co_await context.real(Commands::tr("Enter scale factor <1>: "), {}, u"1"_s, NoZero);
    const PromptReply turn =
        co_await context.orientation(Commands::tr("Specify rotation angle <0>: "), {}, end, u"0"_s);
    const double factor = scale.hasValue() ? scale.real : 1.0;
    const RecordId note = context.create(plane.placed({{0, u"INSERT"_s},
                                                       {2, block},
                                                       {10, plane.objectFromWorld(end)},
                                                       {41, factor},
                                                       {42, factor},
                                                       {43, factor},
                                                       {50, plane.objectDegrees(turn.hasValue() ? turn.real : 0.0)}}));
    if (isValid(note))
        attachNote(context, leader, note, LeaderNote::Block, {}, {});
    co_return true;
}

Dialogue<bool> addLeaderTolerance(CommandContext &context, RecordId leader, Vec3 end)
{
    const UserPlane plane(context.document());
    const PromptReply text = co_await context.text(Commands::tr("Enter tolerance text: "));
    if (text.text.isEmpty())
        co_return true;
    const Vec3 along = plane.worldFromUser({1.0, 0.0, 0.0}) - plane.worldFromUser({});
    const RecordId note = context.create(plane.placed(
        {{0, u"TOLERANCE"_s}, {3, currentDimensionStyle(context)}, {10, end}, {1, text.text}, {11, along}}));
    if (isValid(note))
        attachNote(context, leader, note, LeaderNote::Tolerance, {}, {});
    co_return true;
}

/// What stands at the end, when it is not typed at once.
Dialogue<bool> askLeaderNote(CommandContext &context, RecordId leader, LeaderDraft draft)
{
    const Vec3 end = draft.points.back();
    const PromptReply option = co_await context.keyword(
        Commands::tr("Enter an annotation option [Tolerance/Copy/Block/None/Mtext] <Mtext>: "), {}, u"Mtext"_s);
    if (option.text == u"None")
        co_return true;
    if (option.text == u"Copy") {
        const PromptReply picked = co_await context.entity(Commands::tr("Select an object to copy: "));
        if (!picked.entities.empty())
            copyNote(context, leader, picked.entities.front(), end);
    } else if (option.text == u"Block") {
        co_await addLeaderBlock(context, leader, end);
    } else if (option.text == u"Tolerance") {
        co_await addLeaderTolerance(context, leader, end);
    } else {
        const QString text = co_await askLeaderText(context, Commands::tr("Enter first line of annotation text: "));
        if (!text.isEmpty())
            addLeaderText(context, leader, draft, text, 0.0);
    }
    co_return true;
}

Dialogue<bool> askLeaderFormat(CommandContext &context, LeaderDraft &draft)
{
    const PromptReply format = co_await context.keyword(
        Commands::tr("Enter leader format option [Spline/STraight/Arrow/None] <Exit>: "), {}, u"Exit"_s);
    if (format.text == u"Spline" || format.text == u"STraight")
        draft.isSpline = format.text == u"Spline";
    else if (format.text == u"Arrow" || format.text == u"None")
        draft.hasArrow = format.text == u"Arrow";
    co_return true;
}

/// Points until an empty answer or Annotation.
Dialogue<LeaderDraft> askLeaderPoints(CommandContext &context)
{
    LeaderDraft draft;
    const PromptReply start = co_await context.neededPoint(Commands::tr("Specify leader start point: "));
    const PromptReply second = co_await context.neededPoint(Commands::tr("Specify next point: "), start.point);
    draft.points = {start.point, second.point};
    for (;;) {
        const PromptReply next =
            co_await context.point(Commands::tr("Specify next point or [Annotation/Format/Undo] <Annotation>: "), {},
                                   draft.points.back(), u"Annotation"_s);
        if (next.hasValue())
            draft.points.push_back(next.point);
        else if (next.isKeyword(u"Format"))
            co_await askLeaderFormat(context, draft);
        else if (next.isKeyword(u"Undo") && draft.points.size() > 2)
            draft.points.pop_back();
        else if (!next.isKeyword(u"Undo"))
            co_return draft;
    }
}

// Points, then the text, line by line, or what else stands at the end.
CommandTask leader(CommandContext &context)
{
    const LeaderDraft draft = co_await askLeaderPoints(context);
    const QString text =
        co_await askLeaderText(context, Commands::tr("Enter first line of annotation text or <options>: "));
    const RecordId made = createLeader(context, draft);
    if (!isValid(made))
        co_return;
    if (!text.isEmpty())
        addLeaderText(context, made, draft, text, 0.0);
    else
        co_await askLeaderNote(context, made, draft);
}

// At most three points, the width of the text, then its lines.
CommandTask quickLeader(CommandContext &context)
{
    constexpr std::size_t mostPoints = 3;
    LeaderDraft draft;
    const PromptReply start = co_await context.neededPoint(Commands::tr("Specify first leader point: "));
    draft.points = {start.point};
    while (draft.points.size() < mostPoints) {
        const PromptReply next = co_await context.point(Commands::tr("Specify next point: "), {}, draft.points.back());
        if (!next.hasValue())
            break;
        draft.points.push_back(next.point);
    }
    if (draft.points.size() < 2)
        co_return;
    const PromptReply width = co_await context.distance(Commands::tr("Specify text width <0>: "), {},
                                                        draft.points.back(), u"0"_s, NoNegative);
    const QString text = co_await askLeaderText(context, Commands::tr("Enter first line of annotation text <Mtext>: "));
    const RecordId made = createLeader(context, draft);
    if (isValid(made) && !text.isEmpty())
        addLeaderText(context, made, draft, text, width.hasValue() ? width.real : 0.0);
}

} // namespace

Dialogue<bool> drawDimensionLeader(CommandContext &context, QString usualText)
{
    LeaderDraft draft;
    const PromptReply start = co_await context.neededPoint(Commands::tr("Leader start: "));
    draft.points = {start.point};
    for (;;) {
        const PromptReply next = co_await context.point(Commands::tr("To point: "), u"Undo"_s, draft.points.back());
        if (next.hasValue())
            draft.points.push_back(next.point);
        else if (!next.isKeyword(u"Undo"))
            break;
        else if (draft.points.size() > 1)
            draft.points.pop_back();
    }
    if (draft.points.size() < 2)
        co_return false;
    const PromptReply text =
        co_await context.text(Commands::tr("Enter dimension text <%1>: ").arg(usualText), usualText);
    const bool isTyped = text.hasValue() && !text.text.isEmpty();
    const QString content = isTyped ? text.text : usualText;
    const RecordId made = createLeader(context, draft);
    if (isValid(made) && !content.trimmed().isEmpty())
        addLeaderText(context, made, draft, content, 0.0);
    co_return isValid(made);
}

std::vector<CommandRow> leaderCommands()
{
    return {{"LEADER", leader, "Draws a line from a feature to a note"},
            {"QLEADER", quickLeader, "Draws a line of up to three points with a text"}};
}

} // namespace host::kernel
