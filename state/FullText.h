#pragma once

#include <QString>

class QLineEdit;
class QWidget;

namespace ortakit {

/// Labels and line edits may show a text shortened in the middle; the whole text is then in their dynamic property
/// "value".

/// Whether `text` looks shortened: it holds U+2026 or three dots.
bool isElided(const QString &text);

/// The whole text that was stored with `widget`; empty when there is none.
QString storedFullText(const QWidget &widget);

/// Stores `text` with `widget` as its whole text, however it looks.
void storeFullText(QWidget &widget, const QString &text);

/// Shows `text` in one line, shortened in the middle to the width of `edit`. Stores nothing.
void showElided(QLineEdit &edit, const QString &text);

/// Shows the stored text whole where showElided() has shortened it: for texts that the user is to go on with.
void showWhole(QLineEdit &edit);

} // namespace ortakit
