// Dialogs of dialog files: made, shown, ended.

#include "host/functions/FunctionGroups.h"
#include "host/functions/OpenDialogs.h"
#include "host/kernel/documents/Document.h"
#include "host/kernel/languages/Texts.h"
#include "host/kernel/lisp/LispConversion.h"
#include "host/lisp/Interpreter.h"

namespace host::kernel {

using namespace Qt::StringLiterals;

namespace {

using lisp::Arguments;
using lisp::Value;

/// A point of the screen, from its upper left corner; nothing for (-1 -1) and what can be none, where the window sees
/// to its place.
std::optional<QPoint> screenPoint(Arguments &args, std::size_t index)
{
    if (!args.has(index))
        return {};
    const drawing::Vec3 point = pointAt(args, index);
    const bool isOnScreen = point.x >= 0 && point.y >= 0 && point.x < 32000 && point.y < 32000;
    return isOnScreen ? std::optional(QPoint(int(point.x), int(point.y))) : std::nullopt;
}

void tellUnrunActions(Document &document, const dcl::Tile &tile, const QString &name)
{
    bool hasActions = false;
    dcl::forEachTile(tile, [&hasActions](const dcl::Tile &one) { hasActions |= one.has(u"action"_s); });
    if (hasActions)
        document.print(
            Functions::tr("\nThe actions that the file gives to the tiles of \"%1\" do not run: its folder is not "
                          "trusted.\n")
                .arg(name));
}

// (new_dialog name number [action [point]]) -> T; nil when the file has no such dialog. The action is for tiles that
// have none; the point is where the dialog is on the screen.
Value newDialog(Arguments &args)
{
    Document &document = documentOf(args);
    OpenDialogs &dialogs = OpenDialogs::of(document);
    const QString name = stringAt(args, 0);
    const OpenDialogs::Loaded *loaded = dialogs.loaded(args.integer(1));
    const std::optional<dcl::Tile> tile = loaded ? loaded->file.dialog(name) : std::nullopt;
    if (!tile) {
        document.print(Functions::tr("\nThere is no dialog \"%1\" in what was loaded.\n").arg(name));
        return {};
    }
    const QString action = args.has(2) ? stringAt(args, 2) : QString();
    const std::optional<QPoint> place = screenPoint(args, 3);
    if (!loaded->mayRunActions)
        tellUnrunActions(document, *tile, name);
    OpenDialog &dialog = dialogs.add(name, *tile);
    dialog.defaultAction = action;
    dialog.mayRunFileActions = loaded->mayRunActions;
    dialog.folder = loaded->folder;
    if (place)
        dialog.window->move(*place);
    return args.boolean(true);
}

// (start_dialog) -> the status with which the dialog was ended: 1 by "accept", 0 by "cancel", -1 by term_dialog,
// another by done_dialog. An error in an action ends the dialog and goes on from here.
Value startDialog(Arguments &args)
{
    OpenDialogs &dialogs = OpenDialogs::of(documentOf(args));
    if (!dialogs.current() || dialogs.current()->isStarted)
        args.fail("no dialog to start");
    return Value::integer(dialogs.run(args.interpreter()));
}

// (done_dialog [status]) -> where the dialog was on the screen, for new_dialog; nil when none is open. Without a status
// it is that of the button whose action runs: 0 for one that cancels, else 1.
Value doneDialog(Arguments &args)
{
    OpenDialogs &dialogs = OpenDialogs::of(documentOf(args));
    OpenDialog *dialog = dialogs.current();
    if (!dialog)
        return {};
    const dcl::TileControl *tile = dialog->window->tile(dialog->eventKey);
    const bool isCancel = dialog->eventKey == "cancel"_L1 || (tile && tile->tile().flag(u"is_cancel"_s));
    const QPoint place = dialog->window->pos();
    dialogs.finish(*dialog, args.integerOr(0, isCancel ? 0 : 1));
    return Value::list({Value::integer(place.x()), Value::integer(place.y())});
}

// (term_dialog) -> nil. Ends all dialogs, however they lie over each other.
Value termDialog(Arguments &args)
{
    OpenDialogs::of(documentOf(args)).finishAll(-1);
    return {};
}

} // namespace

void addDialogRunFunctions(lisp::Interpreter &interpreter)
{
    static constexpr lisp::NativeRow rows[] = {
        {"new_dialog", newDialog, lisp::Arity::between(2, 4), "name number [action [point]]",
         "makes a dialog of a file that was loaded; T"},
        {"start_dialog", startDialog, lisp::Arity::exactly(0), "", "shows the dialog; its status when it has ended"},
        {"done_dialog", doneDialog, lisp::Arity::between(0, 1), "[status]", "ends the dialog; where it was"},
        {"term_dialog", termDialog, lisp::Arity::exactly(0), "", "ends all dialogs"},
    };
    interpreter.define(rows);
}

} // namespace host::kernel
