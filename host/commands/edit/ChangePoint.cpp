#include "host/commands/edit/ChangePoint.h"

#include "host/commands/common/UserPlane.h"
#include "host/drawing/geometry/TransformEntity.h"
#include "host/drawing/geometry/TransformFields.h"
#include "host/drawing/math/Angles.h"
#include "host/drawing/records/Tables.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/languages/Texts.h"
#include "host/kernel/running/CommandContext.h"

using namespace Qt::StringLiterals;

namespace host::kernel {

namespace {

using drawing::FieldList;
using drawing::Matrix;
using drawing::RecordId;
using drawing::Vec3;

/// Object coordinates of an entity in the world.
Matrix planeOfRecord(const drawing::TagList &tags)
{
    return Matrix::fromExtrusion(tags.point(210, {0.0, 0.0, 1.0}));
}

void changeLine(CommandContext &context, RecordId line, const Vec3 &point)
{
    FieldList fields = context.drawing().fields(line);
    drawing::Field *start = drawing::findField(fields, 10);
    drawing::Field *end = drawing::findField(fields, 11);
    if (!start || !end)
        return;
    const bool isStart = (start->point() - point).length() < (end->point() - point).length();
    (isStart ? start : end)->value = point;
    context.drawing().setFields(line, fields);
}

void changeCircle(CommandContext &context, RecordId circle, const Vec3 &point)
{
    const drawing::TagList tags = context.drawing().tags(circle);
    const Vec3 radius = planeOfRecord(tags).inverted().point(point) - tags.point(10);
    FieldList fields = tags.fields();
    if (radius.xy().length() > 0.0)
        drawing::setOwnField(fields, 40, radius.xy().length());
    context.drawing().setFields(circle, fields);
}

/// Moves a text or reference with what belongs to it.
void moveTo(CommandContext &context, RecordId entity, const Vec3 &point)
{
    const drawing::TagList tags = context.drawing().tags(entity);
    const bool hasOwnPoint = !tags.text(0).isEmpty() && tags.text(0) != u"INSERT" &&
                             (tags.integer(72) != 0 || tags.integer(73) != 0 || tags.integer(74) != 0);
    const Vec3 from = planeOfRecord(tags).point(tags.point(hasOwnPoint ? 11 : 10));
    drawing::transformEntity(context.drawing(), entity, Matrix::translation(point - from));
}

void turnTo(CommandContext &context, RecordId entity, double degrees)
{
    const drawing::TagList tags = context.drawing().tags(entity);
    const Matrix plane = planeOfRecord(tags);
    const Matrix turn = Matrix::rotation((degrees - tags.real(50)) * drawing::radians, tags.point(10));
    drawing::transformEntity(context.drawing(), entity, plane * turn * plane.inverted());
}

void setText(CommandContext &context, RecordId entity, int code, const drawing::FieldValue &value)
{
    FieldList fields = context.drawing().fields(entity);
    drawing::setOwnField(fields, code, value);
    context.drawing().setFields(entity, fields);
}

Dialogue<bool> askNewStyle(CommandContext &context, RecordId text)
{
    const QString usual = context.drawing().tags(text).text(7, u"Standard"_s);
    const PromptReply style = co_await context.text(Commands::tr("Enter new text style <%1>: ").arg(usual), usual);
    const drawing::RecordId entry =
        style.hasValue() ? context.drawing().tables().find(drawing::TableKind::Style, style.text.trimmed())
                         : drawing::noRecord;
    if (isValid(entry))
        setText(context, text, 7, context.drawing().tables().name(entry));
    else if (style.hasValue())
        context.fail(Commands::tr("Cannot find text style \"%1\".").arg(style.text.trimmed()));
    co_return !context.hasFailed();
}

Dialogue<bool> askNewRotation(CommandContext &context, RecordId entity, QString prompt)
{
    const double degrees = context.drawing().tags(entity).real(50);
    const QString usual = context.shownAngle(degrees * drawing::radians);
    const PromptReply turn = co_await context.orientation(prompt.arg(usual), {}, {}, usual);
    if (turn.hasValue())
        turnTo(context, entity, UserPlane(context.document()).objectDegrees(turn.real));
    co_return true;
}

Dialogue<bool> askNewContent(CommandContext &context, RecordId entity, QString prompt, int code)
{
    const QString usual = context.drawing().tags(entity).text(code);
    const PromptReply content = co_await context.text(prompt.arg(usual), usual);
    if (content.hasValue() && !content.text.isEmpty())
        setText(context, entity, code, content.text);
    co_return true;
}

/// Style, height, rotation and content of a text; of a definition of an attribute its three texts.
Dialogue<bool> changeText(CommandContext &context, RecordId text)
{
    if (!co_await askNewStyle(context, text))
        co_return false;
    const QString usual = context.shownLength(context.drawing().tags(text).real(40));
    const PromptReply height = co_await context.distance(Commands::tr("Specify new height <%1>: ").arg(usual), {}, {},
                                                         usual, NoZero | NoNegative);
    if (height.hasValue())
        setText(context, text, 40, height.real);
    co_await askNewRotation(context, text, Commands::tr("Specify new rotation angle <%1>: "));
    if (context.drawing().isType(text, "TEXT"))
        co_return co_await askNewContent(context, text, Commands::tr("Enter new text <%1>: "), 1);
    co_await askNewContent(context, text, Commands::tr("Enter new tag <%1>: "), 2);
    co_await askNewContent(context, text, Commands::tr("Enter new prompt <%1>: "), 3);
    co_return co_await askNewContent(context, text, Commands::tr("Enter new default value <%1>: "), 1);
}

/// A place for a text or reference: the point that is there already, or one that is asked for.
Dialogue<bool> askNewPlace(CommandContext &context, RecordId entity, std::optional<Vec3> point, QString prompt)
{
    if (!point) {
        const PromptReply at = co_await context.point(prompt, {}, {}, u"no change"_s);
        if (at.hasValue())
            point = at.point;
    }
    if (point)
        moveTo(context, entity, *point);
    co_return true;
}

} // namespace

Dialogue<bool> changeByPoint(CommandContext &context, const std::vector<RecordId> &entities, std::optional<Vec3> point)
{
    int unchanged = 0;
    for (const RecordId entity : entities) {
        const QByteArrayView type = context.drawing().typeName(entity);
        if (type == "LINE" && point) {
            changeLine(context, entity, *point);
        } else if (type == "CIRCLE" && point) {
            changeCircle(context, entity, *point);
        } else if (type == "TEXT" || type == "ATTDEF") {
            co_await askNewPlace(context, entity, point,
                                 Commands::tr("Specify new text insertion point <no change>: "));
            if (!co_await changeText(context, entity))
                co_return false;
        } else if (type == "INSERT") {
            co_await askNewPlace(context, entity, point,
                                 Commands::tr("Specify new block insertion point <no change>: "));
            co_await askNewRotation(context, entity, Commands::tr("Specify new block rotation angle <%1>: "));
        } else {
            ++unchanged;
        }
    }
    if (unchanged > 0)
        context.print(Commands::tr("\n%1 not changed.").arg(unchanged));
    co_return true;
}

} // namespace host::kernel
