#include "state/FullText.h"

#include <QFontMetrics>
#include <QLineEdit>
#include <QVariant>

namespace ortakit {

namespace {

constexpr char propertyName[] = "value";

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
    edit.setText(edit.fontMetrics().elidedText(text, Qt::ElideMiddle, edit.width(), Qt::TextSingleLine));
}

} // namespace ortakit
