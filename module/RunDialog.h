#pragma once

#include "module/DialogSlot.h"
#include "platform/kernel/CKvDialog.h"
#include "platform/kernel/CKvDocument.h"
#include "platform/kernel/CKvLispEngine.h"

#include <QPointer>

namespace ortakit {

/// What a Dlg_ function asks of its first argument, which is commonly the path of the state file.
enum class FirstArgument
{
    /// A string, or the call is an error.
    String,
    /// Anything, or the call is an error. What is no string is an empty path.
    Present,
    /// A string or not; never an error.
    Optional,
};

/// What is done with the state file.
enum class StateFile
{
    /// Loaded before the dialog runs, saved when it was accepted.
    LoadAndSave,
    /// The dialog saves it itself.
    LoadOnly,
    /// There is none: the first argument is something else.
    None,
};

/// Arguments behind the first one, and with them what the call gives back before the dialog runs: everything from the
/// last argument that is read by its position.
enum class ExtraArguments
{
    /// The chain goes from the first argument on.
    None,
    /// From the second argument on, or from the first when there is no second.
    OptionalSecond,
    /// From the second argument on; a call without one is an error.
    RequiredSecond,
    /// Any number; nothing goes before the engine frees the chain itself.
    List,
};

/// In what a Dlg_ function differs from the plain case: one string comes in, the state is loaded and saved, T or nil
/// goes back. A null function means the plain case, so a row names what is different alone:
///
///     return runDialog<Dlg_QT_MergeSheets>(
///         DialogSlot::MergeSheets,
///         {.firstArgument = FirstArgument::Present,
///          .extraArguments = ExtraArguments::List,
///          .takeExtra = [](Dlg_QT_MergeSheets &dialog, const OdResBuf *rest) { dialog.setSheets(strings(rest)); }});
///
/// Links that the functions are given belong to the engine and may be read during the call only.
template <class Dialog>
struct DialogPeculiarities
{
    FirstArgument firstArgument = FirstArgument::String;
    StateFile stateFile = StateFile::LoadAndSave;
    ExtraArguments extraArguments = ExtraArguments::None;
    /// Whether the function may not run in `document` now; it then gives nil without a look at dialog or arguments.
    bool (*isRefused)(CKvDocument &document) = nullptr;
    /// Hands the first argument to a dialog that does not take it as its state file; null when there is none.
    void (*takeFirst)(Dialog &dialog, const OdResBuf *first) = nullptr;
    /// Hands the arguments behind the first one to the dialog; null when there are none.
    void (*takeExtra)(Dialog &dialog, const OdResBuf *rest) = nullptr;
    /// In place of T after an accepted run. May set no result at all.
    void (*giveResult)(Dialog &dialog, CKvLispEngine &lisp) = nullptr;
    /// In place of nil after a rejected run. May set no result at all.
    void (*giveRejection)(Dialog &dialog, CKvLispEngine &lisp) = nullptr;
};

/// The dialog of `document` in `slot`, made by `create` with the host's main window as parent when there is none yet;
/// null when the document has no record.
CKvDialog *findDialog(const CKvDocument &document, DialogSlot slot, CKvDialog *(*create)(QWidget *parent));

/// Whether a call with the argument chain `first` is no error.
bool areAcceptable(const OdResBuf *first, FirstArgument firstArgument, ExtraArguments extra);

/// The strings among the arguments from `rest` on, in their order; what is no string is passed over.
QStringList strings(const OdResBuf *rest);

/// The chains that give Lisp a list of strings, and one of 16-bit integers, for CKvLispEngine::returnList(). Without
/// strings or numbers they are the empty list.
OdResBufPtr stringList(const QStringList &strings);
OdResBufPtr shortList(const QList<int> &numbers);

/// The lists among the arguments from `rest` on, in their order, each with its strings; nil is an empty list. What is
/// no string in a list is passed over, lists in lists give theirs to the outer one.
QList<QStringList> stringLists(const OdResBuf *rest);

/// Gives back what the function no longer needs of its arguments, before the dialog runs. Links that were given back
/// may not be read any more.
void releaseArguments(CKvLispEngine &lisp, ExtraArguments extra);

/// The same for a dialog of a known class, which is the one that has the slot.
template <class Dialog>
Dialog *findDialog(const CKvDocument &document, DialogSlot slot)
{
    return static_cast<Dialog *>(
        findDialog(document, slot, [](QWidget *parent) -> CKvDialog * { return new Dialog(parent); }));
}

/// Hands a call's arguments, which were found acceptable, to the dialog. `first` is null in a call without any.
template <class Dialog>
void takeArguments(Dialog &dialog, const OdResBuf *first, const DialogPeculiarities<Dialog> &own)
{
    if (own.stateFile != StateFile::None)
        dialog.state().load(first ? first->getString() : OdString());
    if (own.takeFirst)
        own.takeFirst(dialog, first);
    if (own.takeExtra)
        own.takeExtra(dialog, first ? first->next() : nullptr);
}

/// Saves the state where the function does that, before the program that called hears of the outcome.
template <class Dialog>
void giveAcceptance(Dialog &dialog, CKvLispEngine &lisp, const DialogPeculiarities<Dialog> &own)
{
    if (own.stateFile == StateFile::LoadAndSave)
        dialog.state().save();
    if (own.giveResult)
        own.giveResult(dialog, lisp);
    else
        lisp.returnTrue();
}

/// Leaves the state file as the program wrote it.
template <class Dialog>
void giveRejection(Dialog &dialog, CKvLispEngine &lisp, const DialogPeculiarities<Dialog> &own)
{
    if (own.giveRejection)
        own.giveRejection(dialog, lisp);
    else
        lisp.returnNil();
}

/// The common body of the Dlg_ functions: shows the active document's dialog in `slot`, which keeps its widgets from
/// call to call, and gives the outcome to Lisp. Returns 5100, or -5001 with no dialog shown and no result set when
/// the arguments are wrong or the active document has no record.
///
/// In this order: the function is refused or not; the dialog is found or made; the arguments are checked; the state is
/// loaded, and the dialog gets what `takeFirst` and `takeExtra` have for it; the arguments are given back; the dialog
/// runs; when it was accepted the state is saved; the result is set.
///
/// A dialog that is destroyed while it runs, as by the closing of its document, gives no result.
template <class Dialog>
int runDialog(DialogSlot slot, const DialogPeculiarities<Dialog> &own)
{
    CKvDocument *document = ACTIVE_DOCUMENT();
    CKvLispEngine *lisp = document ? document->lispEngine() : nullptr;
    if (!lisp)
        return kRtError;
    if (own.isRefused && own.isRefused(*document)) {
        lisp->returnNil();
        return kRtNormal;
    }
    const QPointer<Dialog> dialog = findDialog<Dialog>(*document, slot);
    if (!dialog || !areAcceptable(lisp->arguments(), own.firstArgument, own.extraArguments))
        return kRtError;
    takeArguments(*dialog, lisp->arguments(), own);
    releaseArguments(*lisp, own.extraArguments);
    const int outcome = dialog->exec();
    if (!dialog)
        return kRtNormal; // and the engine may be gone with it
    if (outcome == QDialog::Accepted)
        giveAcceptance(*dialog, *lisp, own);
    else
        giveRejection(*dialog, *lisp, own);
    return kRtNormal;
}

} // namespace ortakit
