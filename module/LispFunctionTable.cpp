#include "module/LispFunctionTable.h"

#include "lispfuncs/BackupFolder.h"
#include "lispfuncs/DragFunction.h"
#include "lispfuncs/EntityFunctions.h"
#include "lispfuncs/KeywordPrompts.h"
#include "lispfuncs/LicenceState.h"
#include "lispfuncs/PromptFunctions.h"
#include "lispfuncs/RemoteText.h"
#include "lispfuncs/SelectionFunctions.h"
#include "module/DialogFunctions.h"
#include "module/ExceptionGuard.h"

namespace ortakit {

namespace {

/// A row of the table; nothing that its handler throws reaches the host.
template <CKvLispEngine::Handler handler>
constexpr LispFunction function(const char *name, OnClose onClose = OnClose::Undefine)
{
    return {QLatin1StringView(name), guarded<handler>, onClose};
}

} // namespace

constexpr LispFunctionTable lispFunctionTable = {{
    function<dlgLispExplorer>("Dlg_LispExplorer"),
    function<dlgPatternHatch>("Dlg_PatternHatch", OnClose::Keep),
    function<dlgBreakLine>("Dlg_BreakLine"),
    function<dlgGetBlockInfo>("Dlg_getblockinfo"),
    function<dlgEditTextCase>("Dlg_edittextcase"),
    function<dlgExportSetting>("Dlg_exportsetting", OnClose::Keep),
    function<dlgReplaceBlock>("Dlg_replaceblock"),
    function<dlgReplaceBlockToXref>("Dlg_replaceblocktoxref"),
    function<dlgConvertSimplesNotes>("Dlg_convertsimplesnotes"),
    function<dlgMakeLineStyle>("Dlg_makelinestyle"),
    function<dlgImportAttributes>("Dlg_imporAttributes"),
    function<dlgNumberText>("Dlg_NumberText"),
    function<dlgTextFrame>("Dlg_TextFrame"),
    function<dlgTextMask>("Dlg_TextMask"),
    function<createRtext>("CreateRtext"),
    function<dlgExDimensionStyle>("Dlg_ExDimensionStyle"),
    function<dlgImDimensionStyle>("Dlg_ImDimensionStyle"),
    function<dlgShowLinks>("Dlg_ShowLinks"),
    function<dlgDrawOrderColor>("Dlg_DrawOrderColor"),
    function<dlgRedefinePaths>("Dlg_RedefinePaths"),
    function<dlgMergeSheets>("Dlg_MergeSheets"),
    function<dlgExportInfo>("Dlg_ExportInfo"),
    function<dlgEditAlias>("Dlg_EditAlias"),
    function<dlgMakeShape>("Dlg_MakeShape"),
    function<dlgMultiViewSetup>("Dlg_MultiViewSetup"),
    function<setBackupFolder>("c:setbackupfolder", OnClose::Keep),
    function<koraEntField>("KORA_entfield"),
    function<koraSsget>("KORA_ssget"),
    function<koraGetPoint>("KORA_getpoint"),
    function<koraGetString>("KORA_getstring"),
    function<koraGetKword>("KORA_getkword"),
    function<koraEntSel>("KORA_EntSel"),
    function<isItDemoVersion>("KORA_IsItDemoVersion"),
    function<koraSsgetFilter>("KORA_ssget_filter"),
    function<initgetOrtakit>("initgetOrtakit"),
    function<getPointOrtakit>("getPointOrtakit"),
    function<getIntOrtakit>("getIntOrtakit"),
    function<getKwordOrtakit>("getKwordOrtakit"),
    function<getStringOrtakit>("getStringOrtakit"),
    function<getRealOrtakit>("getRealOrtakit"),
    function<getDistOrtakit>("getDistOrtakit"),
    function<getAngleOrtakit>("getAngleOrtakit"),
    function<getCornerOrtakit>("getCornerOrtakit"),
    function<acetSsDragMove>("acet-ss-drag-move"),
}};

void defineFunctions(CKvLispEngine &lisp)
{
    for (const LispFunction &row : lispFunctionTable)
        lisp.defineFunction(row.name, row.handler);
}

void undefineFunctions(CKvLispEngine &lisp)
{
    for (const LispFunction &row : lispFunctionTable) {
        if (row.onClose == OnClose::Undefine)
            lisp.undefineFunction(row.name);
    }
}

} // namespace ortakit
