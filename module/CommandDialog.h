#pragma once

#include "platform/kernel/CKvDialog.h"
#include "platform/rx/OdString.h"

#include <QPointer>

#include <memory>
#include <optional>

namespace ortakit {

/// Asks the user of the active document, or the program that runs the command, for a text by a prompt of the context
/// "LispExtension". Nothing without an answer, a document, or somebody to ask.
std::optional<OdString> askForText(const char *prompt);

/// Asks so for the path of the state file. Whether there is such a file is not looked at.
std::optional<OdString> askForStateFile();

/// The window that dialogs are shown over, which owns them; null when there is none, as in a run of a program without
/// windows or before the host has started.
QWidget *dialogParent();

/// For a class derived from ToolDialog: in what the dialog of a command differs from the plain case. A null function
/// does nothing.
template <class Dialog>
struct CommandDialogPeculiarities
{
    /// Before the state is loaded.
    void (*prepare)(Dialog &dialog) = nullptr;
    /// After an accepted run, before the state is saved.
    void (*take)(Dialog &dialog) = nullptr;
};

/// The common body of the commands that show a dialog: asks for the state file, loads it, and saves it when the dialog
/// was accepted. A rejected dialog leaves the file as it was, so the caller knows the outcome by the action word that
/// the dialog sets. The dialog is made for the call and goes with it.
///
/// Nothing happens without a path. A dialog that is destroyed while it runs counts as rejected.
template <class Dialog>
void runCommandDialog(const CommandDialogPeculiarities<Dialog> &own)
{
    const std::optional<OdString> path = askForStateFile();
    if (!path)
        return;
    // The main window may go while the dialog runs, and takes it along.
    const QPointer<Dialog> dialog(new Dialog(dialogParent()));
    const auto deleter = [&dialog](void *) { delete dialog.data(); };
    const std::unique_ptr<void, decltype(deleter)> owner(dialog.data(), deleter);
    if (own.prepare)
        own.prepare(*dialog);
    dialog->state().load(*path);
    if (dialog->exec() != QDialog::Accepted || !dialog)
        return;
    if (own.take)
        own.take(*dialog);
    dialog->state().save();
}

} // namespace ortakit
