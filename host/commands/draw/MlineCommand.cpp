#include "host/commands/Commands.h"
#include "host/commands/common/KeptValues.h"
#include "host/commands/common/UserPlane.h"
#include "host/drawing/records/Dictionaries.h"
#include "host/drawing/records/HeaderVariables.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/languages/Texts.h"

using namespace Qt::StringLiterals;

namespace host::kernel {

namespace {

using drawing::Vec2;
using drawing::Vec3;

/// Which of the parallel lines goes through the points; group 70.
enum class MlineJustification : qint32
{
    Top,
    Zero,
    Bottom
};

constexpr const char *mlineJustifications[] = {"Top", "Zero", "Bottom"};

/// What a multiline is drawn with.
struct MlineSettings
{
    MlineJustification justification = MlineJustification::Top;
    double scale = 1.0;
    QString style = u"Standard"_s;
};

drawing::RecordId mlineStyles(const drawing::Drawing &drawing)
{
    return drawing.dictionaries().find(drawing.dictionaries().root(), u"ACAD_MLINESTYLE");
}

Dialogue<bool> askMlineStyle(CommandContext &context, MlineSettings &settings)
{
    const drawing::Dictionaries &dictionaries = context.drawing().dictionaries();
    for (;;) {
        const PromptReply reply =
            co_await context.text(Commands::tr("Enter mline style name or [?]: "), settings.style, u"?"_s);
        if (reply.isKeyword(u"?")) {
            for (const auto &entry : dictionaries.entries(mlineStyles(context.drawing())))
                context.print(u"\n  %1"_s.arg(entry.name));
            continue;
        }
        const QString name = reply.hasValue() ? reply.text.trimmed() : settings.style;
        if (isValid(dictionaries.find(mlineStyles(context.drawing()), name))) {
            settings.style = name;
            keepValue(context, u"CMLSTYLE", name);
            co_return true;
        }
        if (context.refuse(Commands::tr("Cannot find multiline style \"%1\".").arg(name)))
            co_return false;
    }
}

/// The first point; nothing where the dialogue ended in front of it.
Dialogue<std::optional<Vec3>> askMlineStart(CommandContext &context, MlineSettings &settings)
{
    for (;;) {
        context.print(Commands::tr("\nCurrent settings: Justification = %1, Scale = %2, Style = %3")
                          .arg(QLatin1String(mlineJustifications[static_cast<int>(settings.justification)]),
                               context.shownLength(settings.scale), settings.style));
        const PromptReply reply =
            co_await context.neededPoint(Commands::tr("Specify start point or [Justification/Scale/STyle]: "));
        if (reply.isKeyword(u"Justification")) {
            const QString usual = QLatin1String(mlineJustifications[static_cast<int>(settings.justification)]);
            const QString chosen =
                co_await askUsualOption(context, Commands::tr("Enter justification type [Top/Zero/Bottom]"), usual);
            settings.justification = chosen == u"Top"    ? MlineJustification::Top
                                     : chosen == u"Zero" ? MlineJustification::Zero
                                                         : MlineJustification::Bottom;
            keepValue(context, u"CMLJUST", static_cast<qint32>(settings.justification));
        } else if (reply.isKeyword(u"Scale")) {
            const QString usual = context.shownLength(settings.scale);
            const PromptReply scale =
                co_await context.real(Commands::tr("Enter mline scale <%1>: ").arg(usual), {}, usual);
            settings.scale = scale.hasValue() ? scale.real : settings.scale;
            keepValue(context, u"CMLSCALE", settings.scale);
        } else if (reply.isKeyword(u"STyle")) {
            if (!co_await askMlineStyle(context, settings))
                co_return std::nullopt;
        } else {
            co_return reply.point;
        }
    }
}

Vec2 leftOfMline(Vec2 from, Vec2 to)
{
    return turnedLeft(to - from) * (1.0 / (to - from).length());
}

/// How far each line of the style lies to the left of the points.
std::vector<double> mlineOffsets(const drawing::TagList &style, const MlineSettings &settings)
{
    std::vector<double> offsets = style.reals(49);
    if (offsets.empty())
        offsets = {0.5, -0.5};
    const auto [low, high] = std::ranges::minmax(offsets);
    const double through = settings.justification == MlineJustification::Top    ? high
                           : settings.justification == MlineJustification::Zero ? 0.0
                                                                                : low;
    for (double &offset : offsets)
        offset = (offset - through) * settings.scale;
    return offsets;
}

/// Each vertex with its direction, its mitre and where the lines cross that.
void addMlineVertices(drawing::FieldList &fields, const UserPlane &plane, const std::vector<Vec2> &points,
                      double height, bool isClosed, const std::vector<double> &offsets)
{
    const auto direction = [&](Vec2 v) { return plane.worldFromUser({v.x, v.y, 0.0}) - plane.worldFromUser({}); };
    const std::size_t count = points.size();
    for (std::size_t i = 0; i < count; ++i) {
        const bool isLast = i + 1 == count && !isClosed;
        const std::size_t before = i > 0 ? i - 1 : isClosed ? count - 1 : 0;
        const std::size_t from = isLast ? i - 1 : i;
        const Vec2 behind = leftOfMline(points[from], points[(from + 1) % count]);
        const Vec2 front = i == 0 && !isClosed ? behind : leftOfMline(points[before], points[(before + 1) % count]);
        const Vec2 sum = front + behind;
        const Vec2 mitre = sum.length() > 1e-9 ? sum * (1.0 / sum.length()) : behind;
        const double share = std::max(std::abs(dot(mitre, behind)), 1e-6);
        fields.push_back({11, plane.worldFromUser({points[i].x, points[i].y, height})});
        fields.push_back({12, direction(turnedLeft(behind) * -1.0)});
        fields.push_back({13, direction(mitre)});
        for (const double offset : offsets)
            fields.insert(fields.end(), {{74, qint64(2)}, {41, offset / share}, {41, 0.0}, {75, qint64(0)}});
    }
}

void createMline(CommandContext &context, const MlineSettings &settings, const std::vector<Vec3> &points, bool isClosed)
{
    const drawing::RecordId style =
        context.drawing().dictionaries().find(mlineStyles(context.drawing()), settings.style);
    if (!isValid(style))
        return context.fail(Commands::tr("Cannot find multiline style \"%1\".").arg(settings.style));
    const UserPlane plane(context.document());
    std::vector<Vec2> flat;
    for (const Vec3 &point : points)
        flat.push_back(plane.userFromWorld(point).xy());
    const double height = plane.userFromWorld(points.front()).z;
    const drawing::TagList tags = context.drawing().tags(style);
    const std::vector<double> offsets = mlineOffsets(tags, settings);
    drawing::FieldList fields = {{0, u"MLINE"_s},
                                 {2, tags.text(2, settings.style)},
                                 {340, context.drawing().handle(style)},
                                 {40, settings.scale},
                                 {70, qint64(settings.justification)},
                                 {71, qint64(isClosed ? 3 : 1)},
                                 {72, qint64(points.size())},
                                 {73, qint64(offsets.size())},
                                 {10, plane.worldFromUser({flat.front().x, flat.front().y, height})},
                                 {210, plane.worldFromUser({0.0, 0.0, 1.0}) - plane.worldFromUser({})}};
    addMlineVertices(fields, plane, flat, height, isClosed, offsets);
    context.create(fields);
}

// Points, and in front of the first what the parallel lines are; the multiline is made when its last point is known.
CommandTask mline(CommandContext &context)
{
    const drawing::HeaderVariables &header = context.drawing().header();
    MlineSettings settings;
    settings.justification = static_cast<MlineJustification>(std::clamp<qint64>(header.integer(u"$CMLJUST"), 0, 2));
    settings.scale = header.real(u"$CMLSCALE", 1.0);
    settings.style = header.text(u"$CMLSTYLE", settings.style);
    const std::optional<Vec3> start = co_await askMlineStart(context, settings);
    if (!start)
        co_return;
    std::vector<Vec3> points = {*start};
    const UserPlane plane(context.document());
    bool isClosed = false;
    while (!isClosed) {
        const QString shown = points.size() < 2   ? Commands::tr("Specify next point: ")
                              : points.size() < 3 ? Commands::tr("Specify next point or [Undo]: ")
                                                  : Commands::tr("Specify next point or [Close/Undo]: ");
        const PromptReply reply = co_await context.point(shown, {}, points.back());
        if (reply.isEmpty())
            break;
        isClosed = reply.isKeyword(u"Close");
        if (reply.isKeyword(u"Undo"))
            points.pop_back();
        else if (reply.hasValue() &&
                 (plane.userFromWorld(reply.point) - plane.userFromWorld(points.back())).xy().length() > 0.0)
            points.push_back(reply.point);
    }
    if (points.size() > 1)
        createMline(context, settings, points, isClosed);
}

} // namespace

std::vector<CommandRow> mlineCommands()
{
    return {{"MLINE", mline, "Draws parallel lines with the current multiline style"}};
}

} // namespace host::kernel
