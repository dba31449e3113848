#include "host/commands/Commands.h"
#include "host/commands/annotate/Justification.h"
#include "host/commands/annotate/TextStyles.h"
#include "host/commands/common/EntityEdits.h"
#include "host/commands/common/KeptValues.h"
#include "host/commands/common/UserPlane.h"
#include "host/drawing/editing/TextContent.h"
#include "host/drawing/math/Angles.h"
#include "host/drawing/text/ParagraphColumns.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/input/Units.h"
#include "host/kernel/languages/Texts.h"
#include "host/view/build/TextMeasure.h"

#include <cmath>

using namespace Qt::StringLiterals;

namespace host::kernel {

namespace {

using drawing::FieldList;
using drawing::RecordId;
using drawing::Vec2;
using drawing::Vec3;

/// Attachment points in reading order, numbered from 1 in group 71.
constexpr const char *attachments[] = {"TL", "TC", "TR", "ML", "MC", "MR", "BL", "BC", "BR"};

/// Where a paragraph stands and how.
struct ParagraphPlace
{
    Vec3 at;                 ///< of the attachment point, world coordinates
    double width = 0.0;      ///< at which lines are broken; 0: nowhere
    double height = 0.0;     ///< of capitals
    double angle = 0.0;      ///< radians, from the user's x axis
    qint64 attachment = 1;   ///< 1 to 9
    qint64 spacingStyle = 1; ///< 1 at least, 2 exactly
    double spacing = 1.0;    ///< factor on the usual distance of lines
    std::optional<drawing::ParagraphColumns> columns{};
};

/// The usual distance of lines, in heights of capitals.
constexpr double usualLineStep = 5.0 / 3.0;

/// With the columns, of which dynamic ones are as many as the text fills.
FieldList withColumns(CommandContext &context, FieldList fields, drawing::ParagraphColumns columns)
{
    constexpr double mostColumns = 1000.0;
    const drawing::Version version = context.drawing().version();
    FieldList tried = fields;
    addParagraphColumns(tried, columns, {}, drawing::Version::R2018);
    const Vec2 size = context.document().textMeasure().paragraphSize(tried);
    const double count = std::ceil((size.x + columns.gutter) / (columns.width + columns.gutter) - 1e-6);
    if (columns.isDynamic)
        columns.count = static_cast<qint64>(std::clamp(count, 1.0, mostColumns));
    const FieldList markers = {{100, u"AcDbEntity"_s}, {100, u"AcDbMText"_s}};
    fields.insert(fields.begin() + 1, markers.begin(), markers.end());
    addParagraphColumns(fields, columns, size, version);
    return fields;
}

RecordId createParagraph(CommandContext &context, const ParagraphPlace &place, const QString &content)
{
    const UserPlane plane(context.document());
    const auto direction = [&](const Vec3 &user) { return plane.worldFromUser(user) - plane.worldFromUser({}); };
    FieldList fields = {{0, u"MTEXT"_s},   {10, place.at},         {40, place.height},
                        {41, place.width}, {71, place.attachment}, {72, qint64(5)}};
    drawing::addParagraphContent(fields, content);
    fields.insert(fields.end(), {{7, currentTextStyle(context).name},
                                 {11, direction({std::cos(place.angle), std::sin(place.angle), 0.0})},
                                 {73, place.spacingStyle},
                                 {44, place.spacing}});
    fields = plane.placed(std::move(fields));
    if (place.columns)
        fields = withColumns(context, std::move(fields), *place.columns);
    return context.create(fields);
}

Dialogue<qint64> askAttachment(CommandContext &context, qint64 usual)
{
    QStringList options;
    for (const char *option : attachments)
        options.append(QLatin1String(option));
    const QString chosen = co_await askUsualOption(
        context, Commands::tr("Enter justification [%1]").arg(options.join(u'/')), options[usual - 1]);
    co_return options.indexOf(chosen) + 1;
}

/// "1.5x" is a factor, a plain number a distance; nothing for other text.
std::optional<double> spacingOf(CommandContext &context, QString text, double height)
{
    const bool isFactor = text.endsWith(u'x', Qt::CaseInsensitive);
    if (isFactor)
        text.chop(1);
    const std::optional<double> number = UnitFormat::of(context.document().variables()).parseLength(text.trimmed());
    if (!number)
        return {};
    const double factor = isFactor ? *number : *number / (height * usualLineStep);
    return factor >= 0.25 && factor <= 4.0 ? std::optional(factor) : std::nullopt;
}

/// False when the command fails with an answer.
Dialogue<bool> askSpacing(CommandContext &context, ParagraphPlace &place)
{
    const QString style = co_await askUsualOption(context, Commands::tr("Enter line spacing type [At least/Exactly]"),
                                                  place.spacingStyle == 2 ? u"Exactly"_s : u"At"_s);
    place.spacingStyle = style == u"Exactly" ? 2 : 1;
    for (;;) {
        const QString usual = QString::number(place.spacing) + u'x';
        const PromptReply reply =
            co_await context.name(Commands::tr("Enter line spacing factor or distance <%1>: ").arg(usual), usual);
        if (!reply.hasValue() || reply.text.isEmpty())
            co_return true;
        if (const std::optional<double> factor = spacingOf(context, reply.text, place.height)) {
            place.spacing = *factor;
            co_return true;
        }
        if (context.refuse(Commands::tr("Lines are 0.25x to 4x of the usual distance apart.")))
            co_return false;
    }
}

/// What an answer to the question for the opposite corner leaves to do.
enum class AfterOption
{
    AskOn,
    WriteText, ///< the width was given, so that no corner is needed
    Abandon
};

/// As many columns as are wanted in a total width; false when the command failed with an answer.
Dialogue<bool> askStaticColumns(CommandContext &context, drawing::ParagraphColumns &columns, double height)
{
    constexpr int most = 100;
    const double total =
        co_await askUsualLength(context, Commands::tr("Specify total width"), 80.0 * height, NoZero | NoNegative);
    const PromptReply number = co_await context.integer(Commands::tr("Specify number of columns <2>: "), {}, u"2"_s);
    columns.count = number.hasValue() ? number.integer : 2;
    columns.gutter = co_await askUsualLength(context, Commands::tr("Specify gutter width"), 5.0 * height);
    const double count = static_cast<double>(columns.count);
    columns.width = columns.count > 0 ? (total - (count - 1.0) * columns.gutter) / count : 0.0;
    if (columns.width > 0.0 && columns.count <= most)
        co_return true;
    context.fail(Commands::tr("So many columns do not fit into this width."));
    co_return false;
}

Dialogue<bool> askDynamicColumns(CommandContext &context, drawing::ParagraphColumns &columns, double height)
{
    columns.isDynamic = true;
    columns.isAutoHeight = true;
    columns.width =
        co_await askUsualLength(context, Commands::tr("Specify column width"), 30.0 * height, NoZero | NoNegative);
    columns.gutter = co_await askUsualLength(context, Commands::tr("Specify gutter width"), 5.0 * height);
    co_return true;
}

/// The columns give the text its width and height, so that no corner is asked for.
Dialogue<AfterOption> askColumns(CommandContext &context, ParagraphPlace &place)
{
    const QString type =
        co_await askUsualOption(context, Commands::tr("Enter column type [Dynamic/Static/No columns]"), u"Dynamic"_s);
    place.columns.reset();
    if (type == u"No")
        co_return AfterOption::AskOn;
    if (context.drawing().version() < drawing::Version::R2007) {
        context.fail(Commands::tr("A drawing of this version has no columns in texts: they come with R2007."));
        co_return AfterOption::Abandon;
    }
    drawing::ParagraphColumns columns;
    const bool isStatic = type == u"Static";
    if (isStatic && !co_await askStaticColumns(context, columns, place.height))
        co_return AfterOption::Abandon;
    if (!isStatic)
        co_await askDynamicColumns(context, columns, place.height);
    columns.definedHeight = co_await askUsualLength(context, Commands::tr("Specify column height"), 10.0 * place.height,
                                                    NoZero | NoNegative);
    place.columns = columns;
    co_return AfterOption::WriteText;
}

Dialogue<AfterOption> takeParagraphOption(CommandContext &context, ParagraphPlace &place, QString option)
{
    if (option == u"Height") {
        place.height = co_await askUsualLength(context, Commands::tr("Specify height"), place.height,
                                               NoZero | NoNegative, place.at);
        keepValue(context, u"TEXTSIZE", place.height);
    } else if (option == u"Justify") {
        place.attachment = co_await askAttachment(context, place.attachment);
    } else if (option == u"Line") {
        if (!co_await askSpacing(context, place))
            co_return AfterOption::Abandon;
    } else if (option == u"Rotation") {
        const QString usual = context.shownAngle(place.angle);
        const PromptReply turn =
            co_await context.orientation(Commands::tr("Specify rotation angle <%1>: ").arg(usual), {}, place.at, usual);
        place.angle = turn.hasValue() ? turn.real : place.angle;
    } else if (option == u"Style") {
        if (!co_await askTextStyle(context))
            co_return AfterOption::Abandon;
        if (const double fixed = currentTextStyle(context).fixedHeight; fixed > 0.0)
            place.height = fixed;
    } else if (option == u"Width") {
        place.width = co_await askUsualLength(context, Commands::tr("Specify width"), 0.0, NoNegative, place.at);
        co_return AfterOption::WriteText;
    } else {
        co_return co_await askColumns(context, place);
    }
    co_return AfterOption::AskOn;
}

/// The attachment point within the box between two corners, along the lines.
void placeInBox(CommandContext &context, ParagraphPlace &place, const Vec3 &corner)
{
    const UserPlane plane(context.document());
    const Vec3 from = plane.userFromWorld(place.at);
    const Vec2 diagonal = (plane.userFromWorld(corner) - from).xy();
    const Vec2 along{std::cos(place.angle), std::sin(place.angle)};
    const Vec2 up{-along.y, along.x};
    const double width = dot(diagonal, along);
    const double height = dot(diagonal, up);
    const double column = 0.5 * static_cast<double>((place.attachment - 1) % 3);
    const double row = 0.5 * static_cast<double>((place.attachment - 1) / 3);
    const Vec2 at = from.xy() + along * (std::min(width, 0.0) + std::abs(width) * column) +
                    up * (std::max(height, 0.0) - std::abs(height) * row);
    place.at = plane.worldFromUser({at.x, at.y, from.z});
    place.width = std::abs(width);
}

/// Where it stands; nothing when the dialogue ended there.
Dialogue<std::optional<ParagraphPlace>> askParagraphPlace(CommandContext &context)
{
    ParagraphPlace place;
    const double fixed = currentTextStyle(context).fixedHeight;
    place.height = fixed > 0.0 ? fixed : context.document().variables().real(u"TEXTSIZE", 0.2);
    const PromptReply first = co_await context.neededPoint(Commands::tr("Specify first corner: "));
    place.at = first.point;
    for (;;) {
        const PromptReply reply = co_await context.neededPoint(
            Commands::tr("Specify opposite corner or [Height/Justify/Line spacing/Rotation/Style/Width/Columns]: "),
            place.at);
        if (reply.hasValue()) {
            placeInBox(context, place, reply.point);
            co_return place;
        }
        const AfterOption after = co_await takeParagraphOption(context, place, reply.text);
        if (after == AfterOption::Abandon)
            co_return std::nullopt;
        if (after == AfterOption::WriteText)
            co_return place;
    }
}

// Two corners, or options and a width; then lines until an empty one.
CommandTask paragraph(CommandContext &context)
{
    const SystemVariables &variables = context.document().variables();
    context.print(Commands::tr("\nCurrent text style:  \"%1\"  Text height:  %2")
                      .arg(variables.text(u"TEXTSTYLE"), context.shownLength(variables.real(u"TEXTSIZE"))));
    const std::optional<ParagraphPlace> place = co_await askParagraphPlace(context);
    if (!place)
        co_return;
    QStringList lines;
    for (;;) {
        const PromptReply line = co_await context.text(Commands::tr("MText: "));
        if (!line.hasValue() || line.text.isEmpty())
            break;
        lines.append(line.text);
    }
    if (!lines.isEmpty())
        createParagraph(context, *place, lines.join(u"\\P"));
}

/// A text as a line of a paragraph: what would be formatting is not.
QString asParagraphLine(QString text)
{
    text.replace(u'\\', u"\\\\"_s);
    text.replace(u'{', u"\\{"_s);
    return text.replace(u'}', u"\\}"_s);
}

/// Texts that become one paragraph, in their common direction.
struct TextLine
{
    RecordId record;
    FieldList fields;
    double down = 0.0; ///< how far below the first one it stands
};

std::vector<TextLine> sortedLines(CommandContext &context, const std::vector<RecordId> &chosen)
{
    std::vector<TextLine> lines;
    for (const RecordId id : chosen)
        if (context.drawing().isType(id, "TEXT"))
            lines.push_back({id, context.drawing().fields(id)});
    if (lines.empty())
        return lines;
    const double turn = drawing::realOf(lines.front().fields, 50) * drawing::radians;
    for (TextLine &line : lines) {
        const Vec3 at = drawing::findField(line.fields, 10)->point();
        line.down = at.x * std::sin(turn) - at.y * std::cos(turn);
    }
    std::ranges::stable_sort(lines, {}, &TextLine::down);
    return lines;
}

// Texts become the lines of one paragraph, from the top down.
CommandTask textsToParagraph(CommandContext &context)
{
    const PromptReply chosen = co_await context.selection();
    const std::vector<TextLine> lines = sortedLines(context, editable(context, chosen.entities));
    if (lines.empty()) {
        context.fail(Commands::tr("No texts were selected."));
        co_return;
    }
    const FieldList &top = lines.front().fields;
    const double height = drawing::realOf(top, 40);
    const double turn = drawing::realOf(top, 50);
    const drawing::Field *normal = drawing::findField(top, 210);
    const drawing::Matrix object = drawing::Matrix::fromExtrusion(normal ? normal->point() : Vec3{0.0, 0.0, 1.0});
    const Vec3 up{-std::sin(turn * drawing::radians), std::cos(turn * drawing::radians), 0.0};
    FieldList fields = {{0, u"MTEXT"_s}, {10, object.point(drawing::findField(top, 10)->point() + up * height)},
                        {40, height},    {41, 0.0},
                        {71, qint64(1)}, {72, qint64(5)}};
    for (const int code : {7, 8, 6, 62, 210})
        if (const drawing::Field *field = drawing::findField(top, code))
            fields.push_back(*field);
    QStringList contents;
    for (const TextLine &line : lines)
        contents.append(asParagraphLine(drawing::findField(line.fields, 1)->text()));
    drawing::addParagraphContent(fields, contents.join(u"\\P"));
    fields.push_back(
        {11, object.direction({std::cos(turn * drawing::radians), std::sin(turn * drawing::radians), 0.0})});
    if (!isValid(context.create(fields)))
        co_return;
    for (const TextLine &line : lines)
        eraseAll(context, {line.record});
    context.print(Commands::tr("\n%1 texts became one paragraph.").arg(lines.size()));
}

} // namespace

std::vector<CommandRow> paragraphCommands()
{
    return {{"-MTEXT", paragraph, "Writes a paragraph of several lines"},
            {"MTEXT", paragraph, "Writes a paragraph of several lines"},
            {"TXT2MTXT", textsToParagraph, "Makes one paragraph of texts"}};
}

} // namespace host::kernel
