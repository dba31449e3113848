#include "module/DialogFunctions.h"

#include "dialogs/breakline/Dlg_QT_Breakline.h"
#include "dialogs/convertnotes/DLG_QT_ConvertNotes.h"
#include "dialogs/dimensionstyle/Dlg_QT_ExchangedDimensionStyle.h"
#include "dialogs/dimensionstyle/Dlg_QT_ImportDimensionStyle.h"
#include "dialogs/drawordercolor/Dlg_QT_DrawOderColor.h"
#include "dialogs/editalias/Dlg_QT_EditAlias.h"
#include "dialogs/edittextcase/Dlg_QT_EditTextCase.h"
#include "dialogs/exportinfo/Dlg_QT_ExportInfo.h"
#include "dialogs/exportsettings/Dlg_QT_ExportSettings.h"
#include "dialogs/getblockinfo/Dlg_QT_GetBlockInfo.h"
#include "dialogs/importblockattributes/Dlg_QT_ImportBlockAttributes.h"
#include "dialogs/lispexplorer/Dlg_QT_LispExplorer.h"
#include "dialogs/makelinestyle/Dlg_QT_MakeLineStyle.h"
#include "dialogs/makeshape/Dlg_QT_MakeShape.h"
#include "dialogs/mergesheets/Dlg_QT_MergeSheets.h"
#include "dialogs/multiviewsetup/Dlg_QT_MultiViewSetup.h"
#include "dialogs/numbertext/Dlg_QT_numbertext.h"
#include "dialogs/patternhatch/DLG_QT_PatternHatch.h"
#include "dialogs/redefinepaths/Dlg_QT_RedefinePaths.h"
#include "dialogs/replaceblock/Dlg_QT_ReplaceBlock.h"
#include "dialogs/replaceblocktoxref/Dlg_QT_ReplaceBlockToXref.h"
#include "dialogs/showlinks/Dlg_QT_ShowLinks.h"
#include "dialogs/textframe/Dlg_QT_TextFrame.h"
#include "dialogs/textmask/Dlg_QT_TextMask.h"
#include "module/RunDialog.h"
#include "platform/kernel/CKvCustBlockUtils.h"
#include "platform/kernel/CKvSystemServices.h"

#include <QCoreApplication>

namespace ortakit {

namespace {

/// Whether the host does not let `command` run in `document` now.
bool isRefused(const QString &command, CKvDocument &document)
{
    CKvSystemServices *services = GetKvSystemServices();
    return services && !services->isPermitted(command, document);
}

/// Any number of strings describe the blocks of the drawing.
template <class Dialog>
int replaceBlocks(DialogSlot slot, bool (*isRefused)(CKvDocument &))
{
    return runDialog<Dialog>(
        slot, {.firstArgument = FirstArgument::Present,
               .extraArguments = ExtraArguments::List,
               .isRefused = isRefused,
               .takeExtra = [](Dialog &dialog, const OdResBuf *rest) { dialog.setBlocks(strings(rest)); }});
}

/// A catalogue to show, and behind it perhaps the word that begins with it.
void takeCatalogue(Dlg_QT_LispExplorer &dialog, const OdResBuf *first)
{
    if (!first || first->restype() != OdResBuf::kRtString)
        return;
    dialog.readCatalogue(first->getString());
    const OdResBuf *second = first->next();
    if (second && second->restype() == OdResBuf::kRtString && second->getString() == QLatin1String("DUMP"))
        dialog.beginWithLoaded();
}

/// In place of a result that a function does not set.
template <class Dialog>
void setNothing(Dialog &, CKvLispEngine &)
{
}

} // namespace

int dlgBreakLine()
{
    return runDialog<Dlg_QT_Breakline>(DialogSlot::BreakLine, {});
}

int dlgLispExplorer()
{
    return runDialog<Dlg_QT_LispExplorer>(DialogSlot::LispExplorer, {.firstArgument = FirstArgument::Optional,
                                                                     .stateFile = StateFile::None,
                                                                     .extraArguments = ExtraArguments::OptionalSecond,
                                                                     .takeFirst = takeCatalogue,
                                                                     .giveResult = setNothing,
                                                                     .giveRejection = setNothing});
}

int dlgEditAlias()
{
    return runDialog<Dlg_QT_EditAlias>(DialogSlot::EditAlias, {});
}

int dlgMakeLineStyle()
{
    return runDialog<Dlg_QT_MakeLineStyle>(DialogSlot::MakeLinetype, {});
}

int dlgMakeShape()
{
    return runDialog<Dlg_QT_MakeShape>(DialogSlot::MakeShape, {});
}

int dlgReplaceBlock()
{
    return replaceBlocks<Dlg_QT_ReplaceBlock>(DialogSlot::ReplaceBlock, [](CKvDocument &document) {
        return isRefused(QStringLiteral("replaceblock"), document);
    });
}

int dlgReplaceBlockToXref()
{
    return replaceBlocks<Dlg_QT_ReplaceBlockToXref>(DialogSlot::ReplaceBlockByReference, [](CKvDocument &document) {
        return isRefused(QStringLiteral("replaceblocktoxref"), document);
    });
}

int dlgExDimensionStyle()
{
    return runDialog<Dlg_QT_ExchangedDimensionStyle>(DialogSlot::ExportDimensionStyle, {});
}

int dlgImDimensionStyle()
{
    return runDialog<Dlg_QT_ImportDimensionStyle>(DialogSlot::ImportDimensionStyle, {});
}

// Pattern hatch: how it is entered comes in, the action goes back. It saves its own state.
int dlgPatternHatch()
{
    return runDialog<DLG_QT_PatternHatch>(
        DialogSlot::PatternHatch,
        {.stateFile = StateFile::LoadOnly,
         .extraArguments = ExtraArguments::OptionalSecond,
         .isRefused =
             [](CKvDocument &document) {
                 const CKvCustBlockUtils *customBlocks = CKvCustBlockUtils::Get();
                 return customBlocks && customBlocks->IsEditing(document);
             },
         .takeExtra = [](auto &dialog, const OdResBuf *rest) { dialog.setMode(rest ? rest->getString() : OdString()); },
         .giveResult = [](auto &dialog, CKvLispEngine &lisp) { lisp.returnString(dialog.state().action()); }});
}

int dlgMultiViewSetup()
{
    return runDialog<Dlg_QT_MultiViewSetup>(DialogSlot::MultiViewSetup, {});
}

int dlgNumberText()
{
    return runDialog<Dlg_QT_numbertext>(DialogSlot::NumberText, {});
}

int dlgTextFrame()
{
    return runDialog<Dlg_QT_TextFrame>(DialogSlot::TextFrame, {});
}

int dlgTextMask()
{
    return runDialog<Dlg_QT_TextMask>(DialogSlot::TextMask, {});
}

int dlgEditTextCase()
{
    return runDialog<Dlg_QT_EditTextCase>(DialogSlot::TextCase, {});
}

int dlgConvertSimplesNotes()
{
    return runDialog<DLG_QT_ConvertNotes>(DialogSlot::ConvertNotes, {});
}

// Settings export: a listing and a mode come in, no state.
int dlgExportSetting()
{
    return runDialog<Dlg_QT_ExportSettings>(
        DialogSlot::ExportSettings,
        {.stateFile = StateFile::None,
         .extraArguments = ExtraArguments::RequiredSecond,
         .takeFirst = [](auto &dialog, const OdResBuf *first) { dialog.setListing(first->getString()); },
         .takeExtra = [](auto &dialog, const OdResBuf *rest) { dialog.setMode(rest->getString()); }});
}

// User information export: a file with system information comes in, the command line says where the report is. The
// result is the host's.
int dlgExportInfo()
{
    return runDialog<Dlg_QT_ExportInfo>(
        DialogSlot::ExportInformation,
        {.firstArgument = FirstArgument::Present,
         .extraArguments = ExtraArguments::OptionalSecond,
         .takeExtra = [](auto &dialog,
                         const OdResBuf *rest) { dialog.setSystemFile(rest ? rest->getString() : OdString()); },
         .giveResult =
             [](auto &dialog, CKvLispEngine &lisp) {
                 lisp.print(QCoreApplication::translate("LispExtension", "\nSettings saved to: ") + u'"' +
                            dialog.reportFile() + u'"' +
                            QCoreApplication::translate("LispExtension", " successfully."));
             },
         .giveRejection = [](auto &, CKvLispEngine &lisp) { lisp.print({}); }});
}

int dlgShowLinks()
{
    return runDialog<Dlg_QT_ShowLinks>(DialogSlot::ShowLinks, {});
}

// Any number of strings describe the references of the drawing, and so does the list that goes back.
int dlgRedefinePaths()
{
    return runDialog<Dlg_QT_RedefinePaths>(
        DialogSlot::RedefinePaths,
        {.extraArguments = ExtraArguments::List,
         .takeExtra = [](Dlg_QT_RedefinePaths &dialog, const OdResBuf *rest) { dialog.setEntries(strings(rest)); },
         .giveResult = [](Dlg_QT_RedefinePaths &dialog,
                          CKvLispEngine &lisp) { lisp.returnList(stringList(dialog.entries())); }});
}

int dlgGetBlockInfo()
{
    return runDialog<Dlg_QT_GetBlockInfo>(
        DialogSlot::BlockInformation,
        {.extraArguments = ExtraArguments::List,
         .takeExtra = [](auto &dialog, const OdResBuf *rest) { dialog.setEntries(stringLists(rest)); },
         .giveResult = [](auto &dialog, auto &lisp) { lisp.returnList(stringList({dialog.resultText()})); }});
}

int dlgImportAttributes()
{
    return runDialog<Dlg_QT_ImportBlockAttributes>(DialogSlot::ImportAttributes, {});
}

// Any number of colours come in, as strings, and go back as numbers.
int dlgDrawOrderColor()
{
    return runDialog<Dlg_QT_DrawOderColor>(
        DialogSlot::DrawOrderByColor,
        {.extraArguments = ExtraArguments::List,
         .takeExtra = [](Dlg_QT_DrawOderColor &dialog, const OdResBuf *rest) { dialog.setColors(strings(rest)); },
         .giveResult = [](Dlg_QT_DrawOderColor &dialog,
                          CKvLispEngine &lisp) { lisp.returnList(shortList(dialog.colors())); }});
}

int dlgMergeSheets()
{
    return runDialog<Dlg_QT_MergeSheets>(
        DialogSlot::MergeSheets,
        {.firstArgument = FirstArgument::Present,
         .extraArguments = ExtraArguments::List,
         .takeExtra = [](Dlg_QT_MergeSheets &dialog, const OdResBuf *rest) { dialog.setSheets(strings(rest)); }});
}

} // namespace ortakit
