#pragma once

#include <QLocale>
#include <QStyledItemDelegate>

class QWidget;

namespace ortakit {

/// Shows the texts of cells with what cannot be seen in them as codes. Delegates that do more derive from it.
class VisibleTextDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QString displayText(const QVariant &value, const QLocale &locale) const override;
};

/// Has the tables, lists and tool tips within `window` show texts as they are, whatever a drawing says: no tool tip is
/// taken for markup, and what cannot be seen stands as a code (see files::visibleText()). Widgets that are there later
/// need another call; one more call changes nothing else. Views with a delegate of their own keep it.
void showPlainTexts(QWidget &window);

/// For a widget whose tool tip is markup that was made from a plain text.
void keepToolTipMarkup(QWidget &widget);

} // namespace ortakit
