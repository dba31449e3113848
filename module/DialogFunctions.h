#pragma once

namespace ortakit {

/// The Dlg_ functions, each an external Lisp function that shows one dialog; see runDialog() for what they share.
/// @{
int dlgBreakLine();
int dlgLispExplorer();
int dlgEditAlias();
int dlgMakeLineStyle();
int dlgMakeShape();
int dlgReplaceBlock();
int dlgReplaceBlockToXref();
int dlgExDimensionStyle();
int dlgImDimensionStyle();
int dlgPatternHatch();
int dlgMultiViewSetup();
int dlgNumberText();
int dlgTextFrame();
int dlgTextMask();
int dlgEditTextCase();
int dlgConvertSimplesNotes();
int dlgExportSetting();
int dlgExportInfo();
int dlgShowLinks();
int dlgRedefinePaths();
int dlgGetBlockInfo();
int dlgImportAttributes();
int dlgDrawOrderColor();
int dlgMergeSheets();
/// @}

} // namespace ortakit
