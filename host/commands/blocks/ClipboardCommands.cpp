#include "host/commands/Commands.h"
#include "host/commands/blocks/InsertPlacement.h"
#include "host/commands/common/EntityEdits.h"
#include "host/commands/common/UserPlane.h"
#include "host/drawing/editing/CopyBetweenDrawings.h"
#include "host/drawing/editing/DrawingCopier.h"
#include "host/drawing/file/Save.h"
#include "host/drawing/geometry/EntityGeometry.h"
#include "host/drawing/records/Blocks.h"
#include "host/drawing/records/HeaderVariables.h"
#include "host/kernel/documents/CurrentSpace.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/documents/Session.h"
#include "host/kernel/languages/Texts.h"
#include "host/kernel/running/CommandContext.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace host::kernel {

namespace {

using drawing::RecordId;
using drawing::Vec3;
using Entities = std::vector<RecordId>;

/// A window's clipboard gets a drawing file, for other programs.
void offerToSystem(Session &session)
{
    if (!session.mainWindow())
        return;
    const QString path = session.home() + u"/clipboard.dxf"_s;
    if (!drawing::saveCopy(*session.clipboard(), path))
        return;
    auto data = std::make_unique<QMimeData>();
    data->setUrls({QUrl::fromLocalFile(path)});
    QGuiApplication::clipboard()->setMimeData(data.release());
}

void putOnClipboard(CommandContext &context, const Entities &entities, const Vec3 &base)
{
    std::unique_ptr<drawing::Drawing> made = drawing::wblock(context.drawing(), entities, base);
    if (!made)
        return context.fail(Commands::tr("Nothing of that can be copied."));
    Session &session = context.document().session();
    session.setClipboard(std::move(made));
    offerToSystem(session);
}

/// The lower left corner of what is copied is what it is placed by.
Vec3 lowerLeft(const drawing::Drawing &drawing, const Entities &entities)
{
    const drawing::Box box = drawing::spaceBox(drawing, entities);
    return box.isEmpty() ? Vec3{} : Vec3{box.low.x, box.low.y, 0.0};
}

CommandTask copyClip(CommandContext &context)
{
    const PromptReply chosen = co_await context.selection();
    if (!chosen.entities.empty())
        putOnClipboard(context, chosen.entities, lowerLeft(context.drawing(), chosen.entities));
}

// As COPYCLIP, by a base point.
CommandTask copyBase(CommandContext &context)
{
    const PromptReply base = co_await context.neededPoint(Commands::tr("Specify base point: "));
    const PromptReply chosen = co_await context.selection();
    if (!chosen.entities.empty())
        putOnClipboard(context, chosen.entities, base.point);
}

// As COPYCLIP; the entities leave the drawing.
CommandTask cutClip(CommandContext &context)
{
    const PromptReply chosen = co_await context.selection();
    const Entities entities = editable(context, chosen.entities);
    if (entities.empty())
        co_return;
    putOnClipboard(context, entities, lowerLeft(context.drawing(), entities));
    if (!context.hasFailed())
        eraseAll(context, entities);
}

/// The drawing on the clipboard; null, and the command fails, when there is none.
const drawing::Drawing *clipboardOf(CommandContext &context)
{
    const drawing::Drawing *source = context.document().session().clipboard();
    if (!source)
        context.fail(Commands::tr("The clipboard is empty."));
    return source;
}

/// What it holds, at the pointer by its base.
Dragged hangingClipboard(CommandContext &context)
{
    const std::shared_ptr<const drawing::Drawing> source = context.document().session().heldClipboard();
    const Vec3 base = source->header().point(u"$INSBASE");
    return std::make_shared<const DragShape>(
        DragShape{.source = source, .map = [base](const Vec3 &place) -> std::optional<drawing::Matrix> {
                      return drawing::Matrix::translation(place - base);
                  }});
}

/// Copies of what the clipboard holds, in the space that is current.
Entities pasteEntities(CommandContext &context, const drawing::Drawing &source, const Vec3 &by)
{
    drawing::Drawing &target = context.drawing();
    drawing::DrawingCopier copier(source, target);
    Entities made;
    for (const RecordId id : source.entities().inSpace(drawing::Space::Model)) {
        const RecordId copy = copier.copyEntity(id, restingSheet(target), currentSpace(target));
        if (isValid(copy))
            made.push_back(copy);
    }
    if (copier.skipped() > 0)
        context.print(Commands::tr("\n%1 could not be pasted.").arg(copier.skipped()));
    if (by != Vec3{})
        transformAll(context, made, drawing::Matrix::translation(by));
    context.document().setPreviousSelection(made);
    return made;
}

CommandTask pasteClip(CommandContext &context)
{
    const drawing::Drawing *source = clipboardOf(context);
    if (!source)
        co_return;
    const Vec3 base = source->header().point(u"$INSBASE");
    const PromptReply at =
        co_await context.neededPoint(Commands::tr("Specify insertion point: ")).dragging(hangingClipboard(context));
    if (const drawing::Drawing *present = clipboardOf(context))
        pasteEntities(context, *present, at.point - base);
}

// Where the copied entities stood.
CommandTask pasteOriginal(CommandContext &context)
{
    if (const drawing::Drawing *source = clipboardOf(context))
        pasteEntities(context, *source, {});
    co_return;
}

QString freeBlockName(const drawing::Drawing &drawing)
{
    for (int number = 1;; ++number) {
        const QString name = u"A$C%1"_s.arg(number, 8, 16, QChar(u'0')).toUpper();
        if (!isValid(drawing.blocks().find(name)))
            return name;
    }
}

// As a block of its own.
CommandTask pasteBlock(CommandContext &context)
{
    if (!clipboardOf(context))
        co_return;
    const PromptReply at =
        co_await context.neededPoint(Commands::tr("Specify insertion point: ")).dragging(hangingClipboard(context));
    const drawing::Drawing *source = clipboardOf(context);
    if (!source)
        co_return;
    const QString name = freeBlockName(context.drawing());
    const drawing::CopyResult made = drawing::insertAsBlock(*source, context.drawing(), name);
    if (!made) {
        context.fail(made.error);
        co_return;
    }
    InsertPlacement placement;
    placement.point = at.point;
    context.create(insertFields(context, name, placement));
}

} // namespace

std::vector<CommandRow> clipboardCommands()
{
    return {{"COPYBASE", copyBase, "Copies entities to the clipboard by a base point"},
            {"COPYCLIP", copyClip, "Copies entities to the clipboard"},
            {"CUTCLIP", cutClip, "Moves entities to the clipboard"},
            {"PASTEBLOCK", pasteBlock, "Places what is on the clipboard as a block"},
            {"PASTECLIP", pasteClip, "Places what is on the clipboard"},
            {"PASTEORIG", pasteOriginal, "Places what is on the clipboard where it was copied"}};
}

} // namespace host::kernel
