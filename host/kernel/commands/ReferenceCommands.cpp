#include "host/drawing/Blocks.h"
#include "host/drawing/FileIndexer.h"
#include "host/drawing/Journal.h"
#include "host/drawing/Wildcard.h"
#include "host/kernel/Document.h"
#include "host/kernel/commands/CommandContext.h"
#include "host/kernel/commands/Commands.h"

#include <QFile>
#include <QFileInfo>

#include <cmath>

using namespace Qt::StringLiterals;

namespace host::kernel {

namespace {

using drawing::RecordId;

constexpr int externalFlag = 4;

void setPath(drawing::Drawing &drawing, RecordId block, const QString &path)
{
    drawing::FieldList fields = drawing.fields(block);
    drawing::setField(fields, 1, path);
    drawing.setFields(block, fields);
}

/// Whether the file can be referred to: any kind of drawing, also one that only other programs read.
bool isDrawing(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return false;
    const QByteArray start = file.read(64);
    return drawing::isDwg(start) || drawing::isBinaryDxf(start) || bool(drawing::Drawing::open(path));
}

/// The external reference to the file, made when the drawing has none of the file's name yet. noRecord, with the reason
/// printed, when there can be none.
RecordId referenceTo(CommandContext &context, const QString &typed)
{
    drawing::Blocks &blocks = context.drawing().blocks();
    const QString path = context.document().findFile(typed);
    const QString name = QFileInfo(typed).completeBaseName();
    const std::optional<drawing::Block> present = blocks.get(name);
    const QString own = context.document().path();
    if (path.isEmpty()) {
        context.print(u"\nCannot find file \"%1\"."_s.arg(typed));
    } else if (!own.isEmpty() && QFileInfo(path) == QFileInfo(own)) {
        context.print(u"\nThe drawing cannot refer to itself."_s);
    } else if (!isDrawing(path)) {
        context.print(u"\n\"%1\" is no drawing."_s.arg(path));
    } else if (present && present->isExternal()) {
        return present->record;
    } else if (present) {
        context.print(u"\nThe name \"%1\" is a block's already."_s.arg(name));
    } else if (const RecordId made = blocks.create(name, {}, externalFlag); isValid(made)) {
        setPath(context.drawing(), made, typed);
        return made;
    } else {
        context.print(u"\nThe name \"%1\" cannot be used."_s.arg(name));
    }
    return drawing::noRecord;
}

void insertReference(CommandContext &context, RecordId block, const drawing::Vec3 &point, double xScale, double yScale,
                     double turn)
{
    context.create({{0, u"INSERT"_s},
                    {2, context.drawing().blocks().name(block)},
                    {10, point},
                    {41, xScale},
                    {42, yScale},
                    {43, xScale},
                    {50, turn * 180.0 / M_PI}});
}

/// Gives each external reference that the pattern names this path.
void redefinePaths(CommandContext &context, const QString &names, const QString &path)
{
    int count = 0;
    for (const RecordId id : context.drawing().blocks().all()) {
        const drawing::Block block = context.drawing().blocks().read(id);
        if (!block.isExternal() || !drawing::matchesWildcard(block.name, names))
            continue;
        setPath(context.drawing(), id, path);
        ++count;
    }
    if (count == 0)
        context.print(u"\nNo matching references found."_s);
}

// Attach: file, insertion point, scales, rotation. Path: names and the new path. What the file holds is not shown.
CommandTask reference(CommandContext &context)
{
    const PromptReply option = co_await context.keyword(u"Enter an option [Attach/Path]: "_s, u"Attach Path"_s);
    if (!option.hasValue())
        co_return;
    if (option.text == u"Path"_s) {
        const PromptReply names = co_await context.text(u"Enter reference name(s) to edit path: "_s);
        const PromptReply path = co_await context.text(u"Enter new path: "_s);
        if (names.hasValue() && path.hasValue())
            redefinePaths(context, names.text.trimmed(), path.text.trimmed());
        co_return;
    }
    const PromptReply file = co_await context.text(u"Enter name of file to attach: "_s);
    const RecordId block = file.hasValue() ? referenceTo(context, file.text.trimmed()) : drawing::noRecord;
    if (!isValid(block))
        co_return;
    const PromptReply point = co_await context.point(u"Specify insertion point: "_s);
    if (!point.hasValue())
        co_return;
    const PromptReply x = co_await context.real(u"Enter X scale factor <1>: "_s, {}, u"1"_s);
    const PromptReply y = co_await context.real(u"Enter Y scale factor <use X scale factor>: "_s, {}, u"X"_s);
    const PromptReply turn = co_await context.orientation(u"Specify rotation angle <0>: "_s, {}, point.point, u"0"_s);
    const double xScale = x.hasValue() && x.real != 0.0 ? x.real : 1.0;
    insertReference(context, block, point.point, xScale, y.hasValue() && y.real != 0.0 ? y.real : xScale,
                    turn.hasValue() ? turn.real : 0.0);
    context.print(u"\nAttached. This program does not show what the file holds."_s);
}

} // namespace

std::vector<CommandRow> referenceCommands()
{
    return {{"-XREF", reference, "Attaches drawing files as external references and changes their paths"}};
}

} // namespace host::kernel
