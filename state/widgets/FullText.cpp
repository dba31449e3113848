#include "state/widgets/FullText.h"

#include <QFontMetrics>
#include <QLineEdit>
#include <QSignalBlocker>
#include <QVariant>

namespace ortakit {

namespace {

constexpr char fullTextProperty[] = "value";
// What showElided() was given and what it has shown. Not the full text of the state, which has no text with three dots.
constexpr char givenProperty[] = "givenText";
constexpr char shownProperty[] = "shownText";
constexpr char neverElidedProperty[] = "neverElided";

QString elidedText(const QLineEdit &edit, const QString &text)
{
    if (edit.property(neverElidedProperty).toBool())
        return text;
    return edit.fontMetrics().elidedText(text, Qt::ElideMiddle, edit.width(), Qt::TextSingleLine);
}

} // namespace

bool isElided(const QString &text)
{
    return text.contains(u'\u2026') || text.contains(QStringLiteral("..."));
}

QString storedFullText(const QWidget &widget)
{
    return widget.property(fullTextProperty).toString();
}

void storeFullText(QWidget &widget, const QString &text)
{
    widget.setProperty(fullTextProperty, text);
}

void showElided(QLineEdit &edit, const QString &text)
{
    const QString shown = elidedText(edit, text);
    // First, for whoever hears of the change and asks for the whole text.
    edit.setProperty(givenProperty, text);
    edit.setProperty(shownProperty, shown);
    if (edit.text() != shown)
        edit.setText(shown);
}

void setNeverElided(QLineEdit &edit)
{
    edit.setProperty(neverElidedProperty, true);
}

QString wholeText(const QLineEdit &edit)
{
    const QString text = edit.text();
    return text == edit.property(shownProperty).toString() ? edit.property(givenProperty).toString() : text;
}

void showWhole(QLineEdit &edit)
{
    const QString whole = wholeText(edit);
    const QSignalBlocker noSignals(edit);
    if (edit.text() != whole)
        edit.setText(whole);
}

} // namespace ortakit
