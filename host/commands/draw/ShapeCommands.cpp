#include "host/commands/Commands.h"
#include "host/commands/common/UserPlane.h"
#include "host/drawing/references/ShapeFiles.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/languages/Texts.h"
#include "host/kernel/running/CommandContext.h"

using namespace Qt::StringLiterals;

namespace host::kernel {

namespace {

using drawing::ShapeFiles;

ShapeFiles shapeFilesOf(CommandContext &context)
{
    return ShapeFiles([&context](const QString &name) { return context.document().findNamedFile(name); });
}

bool isInDrawing(CommandContext &context, const QString &shape)
{
    ShapeFiles files = shapeFilesOf(context);
    return std::ranges::any_of(drawing::shapeFileNames(context.drawing()), [&](const QString &name) {
        const drawing::ShapeFile *file = files.find(name);
        return file && file->numberOf(shape);
    });
}

// The file's name; its shapes can be placed and stand in linetypes from here on.
CommandTask load(CommandContext &context)
{
    const PromptReply name = co_await context.text(Commands::tr("Enter name of shape file to load: "));
    if (!name.hasValue())
        co_return;
    // What is named here by hand may be read wherever it lies.
    ShapeFiles typed([&context](const QString &file) {
        const QString path = context.document().findFile(file);
        if (!path.isEmpty())
            context.document().allowReading(path);
        return path;
    });
    if (!typed.find(name.text.trimmed()))
        context.fail(Commands::tr("Cannot read shape file \"%1\".").arg(name.text.trimmed()));
    else
        drawing::shapeFileStyle(context.drawing(), name.text.trimmed());
}

// Name, insertion point, height, rotation.
CommandTask shape(CommandContext &context)
{
    const PromptReply name = co_await context.name(Commands::tr("Enter shape name: "));
    if (!name.hasValue())
        co_return;
    if (!isInDrawing(context, name.text)) {
        context.fail(Commands::tr("Cannot find shape \"%1\". Load its file first.").arg(name.text));
        co_return;
    }
    const PromptReply at = co_await context.point(Commands::tr("Specify insertion point: "));
    if (!at.hasValue())
        co_return;
    const PromptReply size =
        co_await context.distance(Commands::tr("Specify height <1>: "), {}, at.point, u"1"_s, NoZero | NoNegative);
    if (size.kind == ReplyKind::Cancelled)
        co_return;
    const PromptReply turn =
        co_await context.orientation(Commands::tr("Specify rotation angle <0>: "), {}, at.point, u"0"_s);
    if (turn.kind == ReplyKind::Cancelled)
        co_return;
    const UserPlane plane(context.document());
    context.create(plane.placed({{0, u"SHAPE"_s},
                                 {10, plane.objectFromWorld(at.point)},
                                 {40, size.hasValue() ? size.real : 1.0},
                                 {2, name.text.trimmed().toUpper()},
                                 {50, plane.objectDegrees(turn.hasValue() ? turn.real : 0.0)}}));
}

} // namespace

std::vector<CommandRow> shapeCommands()
{
    return {{"LOAD", load, "Loads a shape file, so that its shapes can be placed"},
            {"SHAPE", shape, "Places a shape of a loaded shape file"}};
}

} // namespace host::kernel
