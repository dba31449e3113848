#include "state/FullText.h"

#include <QFontMetrics>
#include <QLineEdit>
#include <QVariant>

namespace ortakit {

namespace {

constexpr char propertyName[] = "value";

QString elidedText(const QLineEdit &edit, const QString &text)
{
    return edit.fontMetrics().elidedText(text, Qt::ElideMiddle, edit.width(), Qt::TextSingleLine);
}

} // namespace

bool isElided(const QString &text)
{
    return text.contains(u'\u2026') || text.contains(QStringLiteral("..."));
}

QString storedFullText(const QWidget &widget)
{
    return widget.property(propertyName).toString();
}

void storeFullText(QWidget &widget, const QString &text)
{
    widget.setProperty(propertyName, text);
}

void showElided(QLineEdit &edit, const QString &text)
{
    edit.setText(elidedText(edit, text));
}

void showWhole(QLineEdit &edit)
{
    const QString whole = storedFullText(edit);
    // What the user has typed since then stays.
    if (isElided(edit.text()) && edit.text() == elidedText(edit, whole))
        edit.setText(whole);
}

} // namespace ortakit
