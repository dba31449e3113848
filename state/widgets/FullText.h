#pragma once

#include <QString>

class QLineEdit;
class QWidget;

namespace ortakit {

/// Labels and line edits may show a text shortened in the middle; the whole text is then in their dynamic property
/// "value", which the state file is written from.

/// Whether `text` looks shortened: it holds U+2026 or three dots.
bool isElided(const QString &text);

/// The whole text that was stored with `widget`; empty when there is none.
QString storedFullText(const QWidget &widget);

/// Stores `text` with `widget` as its whole text, however it looks.
void storeFullText(QWidget &widget, const QString &text);

/// Shows `text` in one line, shortened in the middle to the width of `edit`. Stores nothing.
void showElided(QLineEdit &edit, const QString &text);

/// From now on showElided() shows each text whole.
void setNeverElided(QLineEdit &edit);

/// What `edit` stands for: the text that showElided() was given as long as the edit shows what became of it, otherwise
/// what it shows. This is what a dialog goes on with.
QString wholeText(const QLineEdit &edit);

/// Shows wholeText(), and tells nobody, as nothing has changed.
void showWhole(QLineEdit &edit);

} // namespace ortakit
