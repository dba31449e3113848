#pragma once

#include <QString>

class Highlighter;
class QPlainTextEdit;

/// Shows `text` in the view, whose document `highlighter` colours. When the view holds that text already it is coloured
/// anew and nothing else happens: cursor, selection and scroll position stay, which is what a user wants whose search
/// text changes at each keystroke. Another text is shown from its beginning.
void showSource(QPlainTextEdit &view, Highlighter &highlighter, const QString &text);

/// Makes the view black on white, whatever style the host has: the highlighter's colours can hardly be read on a dark
/// ground. Called once, when the dialog is made.
void giveLightGround(QPlainTextEdit &view);
