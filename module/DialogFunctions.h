#pragma once

namespace ortakit {

/// The Dlg_ functions, each an external Lisp function that shows one dialog of the active document and returns a
/// KvResult code; see runDialog() for what they share. Where nothing else is said, the argument is the path of the
/// state file and the result T, or nil when the dialog was not accepted. "Rest" is any number of arguments behind the
/// first one.
/// @{

int dlgBreakLine();
/// Argument: a catalogue of functions to show, and perhaps "DUMP" to begin with what is loaded. Sets no result.
int dlgLispExplorer();
int dlgEditAlias();
int dlgMakeLineStyle();
int dlgMakeShape();
/// Rest: the blocks of the drawing, a string each. Nil without the dialog where the host refuses the command.
/// @{
int dlgReplaceBlock();
int dlgReplaceBlockToXref();
/// @}
int dlgExDimensionStyle();
int dlgImDimensionStyle();
/// Second argument: how the dialog is entered. Result: the action. The dialog saves its state itself. Nil without the
/// dialog while a custom block is being edited.
int dlgPatternHatch();
int dlgMultiViewSetup();
int dlgNumberText();
int dlgTextFrame();
int dlgTextMask();
int dlgEditTextCase();
int dlgConvertSimplesNotes();
/// Arguments: a listing in place of the state file, and a mode, without which the call is an error.
int dlgExportSetting();
/// Second argument: a file with system information. Tells on the command line where the report is, and sets no result.
int dlgExportInfo();
int dlgShowLinks();
/// Rest: the references of the drawing, a string each. Result: the list of them as they are to be.
int dlgRedefinePaths();
/// Rest: lists of strings that describe blocks. Result: a list of one string.
int dlgGetBlockInfo();
int dlgImportAttributes();
/// Rest: colours as strings. Result: a list of their numbers in the order chosen.
int dlgDrawOrderColor();
/// Rest: the sheets, a string each. The first argument may be of any kind, but has to be there.
int dlgMergeSheets();
/// @}

} // namespace ortakit
