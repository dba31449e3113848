#include "module/LispFunctionTable.h"

#include "lispfuncs/BackupFolder.h"
#include "lispfuncs/LicenceState.h"
#include "lispfuncs/DragFunction.h"
#include "lispfuncs/EntityFunctions.h"
#include "lispfuncs/KeywordPrompts.h"
#include "lispfuncs/PromptFunctions.h"
#include "lispfuncs/RemoteText.h"
#include "lispfuncs/SelectionFunctions.h"
#include "module/DialogFunctions.h"
#include "module/ExceptionGuard.h"
#include "module/UnavailableFunction.h"

namespace ortakit {

namespace {

/// A row of the table; one without a handler says that it is not available.
template <LispName name, CKvLispEngine::Handler handler = unavailable<name>>
constexpr LispFunction function(OnClose onClose = OnClose::Undefine)
{
    return {name.view(), guarded<handler>, onClose};
}

} // namespace

constexpr LispFunctionTable lispFunctionTable = {{
    function<"Dlg_LispExplorer", dlgLispExplorer>(),
    function<"Dlg_PatternHatch", dlgPatternHatch>(OnClose::Keep),
    function<"Dlg_BreakLine", dlgBreakLine>(),
    function<"Dlg_getblockinfo", dlgGetBlockInfo>(),
    function<"Dlg_edittextcase", dlgEditTextCase>(),
    function<"Dlg_exportsetting", dlgExportSetting>(OnClose::Keep),
    function<"Dlg_replaceblock", dlgReplaceBlock>(),
    function<"Dlg_replaceblocktoxref", dlgReplaceBlockToXref>(),
    function<"Dlg_convertsimplesnotes", dlgConvertSimplesNotes>(),
    function<"Dlg_makelinestyle", dlgMakeLineStyle>(),
    function<"Dlg_imporAttributes", dlgImportAttributes>(),
    function<"Dlg_NumberText", dlgNumberText>(),
    function<"Dlg_TextFrame", dlgTextFrame>(),
    function<"Dlg_TextMask", dlgTextMask>(),
    function<"CreateRtext", createRtext>(),
    function<"Dlg_ExDimensionStyle", dlgExDimensionStyle>(),
    function<"Dlg_ImDimensionStyle", dlgImDimensionStyle>(),
    function<"Dlg_ShowLinks", dlgShowLinks>(),
    function<"Dlg_DrawOrderColor", dlgDrawOrderColor>(),
    function<"Dlg_RedefinePaths", dlgRedefinePaths>(),
    function<"Dlg_MergeSheets", dlgMergeSheets>(),
    function<"Dlg_ExportInfo", dlgExportInfo>(),
    function<"Dlg_EditAlias", dlgEditAlias>(),
    function<"Dlg_MakeShape", dlgMakeShape>(),
    function<"Dlg_MultiViewSetup", dlgMultiViewSetup>(),
    function<"c:setbackupfolder", setBackupFolder>(OnClose::Keep),
    function<"KORA_entfield", koraEntField>(),
    function<"KORA_ssget", koraSsget>(),
    function<"KORA_getpoint", koraGetPoint>(),
    function<"KORA_getstring", koraGetString>(),
    function<"KORA_getkword", koraGetKword>(),
    function<"KORA_EntSel", koraEntSel>(),
    function<"KORA_IsItDemoVersion", isItDemoVersion>(),
    function<"KORA_ssget_filter", koraSsgetFilter>(),
    function<"initgetOrtakit", initgetOrtakit>(),
    function<"getPointOrtakit", getPointOrtakit>(),
    function<"getIntOrtakit", getIntOrtakit>(),
    function<"getKwordOrtakit", getKwordOrtakit>(),
    function<"getStringOrtakit", getStringOrtakit>(),
    function<"getRealOrtakit", getRealOrtakit>(),
    function<"getDistOrtakit", getDistOrtakit>(),
    function<"getAngleOrtakit", getAngleOrtakit>(),
    function<"getCornerOrtakit", getCornerOrtakit>(),
    function<"acet-ss-drag-move", acetSsDragMove>(),
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
