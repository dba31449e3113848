#include "host/app/playback/WidgetValues.h"

#include "host/app/playback/WidgetFinder.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSlider>
#include <QAbstractSpinBox>
#include <QComboBox>
#include <QGroupBox>
#include <QItemSelectionModel>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QTabWidget>
#include <QTextEdit>
#include <QVariant>

using namespace Qt::StringLiterals;

namespace host::app {

namespace {

QString yesOrNo(bool truth)
{
    return truth ? u"yes"_s : u"no"_s;
}

QString spinText(const QAbstractSpinBox &box)
{
    // What prefix and suffix leave over is a property of the number boxes only.
    const QVariant clean = box.property("cleanText");
    return clean.isValid() ? clean.toString() : box.text();
}

QString selectedRows(const QAbstractItemView &view)
{
    QStringList texts;
    if (const QItemSelectionModel *selection = view.selectionModel())
        for (const QModelIndex &index : selection->selectedIndexes())
            if (index.column() == 0)
                texts.append(index.data().toString());
    return texts.join(u'^');
}

bool sameNumber(const QString &left, const QString &right)
{
    bool leftIs = false;
    bool rightIs = false;
    const double a = left.toDouble(&leftIs);
    const double b = right.toDouble(&rightIs);
    return leftIs && rightIs && std::abs(a - b) <= 1e-9 * std::max({1.0, std::abs(a), std::abs(b)});
}

void addRows(const QAbstractItemModel &model, const QModelIndex &parent, QStringList &rows)
{
    for (int row = 0; row < model.rowCount(parent); ++row) {
        QStringList cells;
        for (int column = 0; column < model.columnCount(parent); ++column)
            cells.append(model.index(row, column, parent).data().toString());
        rows.append(cells.join(u';'));
        addRows(model, model.index(row, 0, parent), rows);
    }
}

} // namespace

QString shownValue(const QWidget &widget)
{
    if (const auto *button = qobject_cast<const QAbstractButton *>(&widget))
        return button->isCheckable() ? yesOrNo(button->isChecked()) : plainCaption(button->text());
    if (const auto *box = qobject_cast<const QGroupBox *>(&widget))
        return box->isCheckable() ? yesOrNo(box->isChecked()) : plainCaption(box->title());
    if (const auto *label = qobject_cast<const QLabel *>(&widget))
        return label->text();
    if (const auto *edit = qobject_cast<const QLineEdit *>(&widget))
        return edit->text();
    if (const auto *box = qobject_cast<const QAbstractSpinBox *>(&widget))
        return spinText(*box);
    if (const auto *box = qobject_cast<const QComboBox *>(&widget))
        return box->currentText();
    if (const auto *edit = qobject_cast<const QTextEdit *>(&widget))
        return edit->toPlainText();
    if (const auto *edit = qobject_cast<const QPlainTextEdit *>(&widget))
        return edit->toPlainText();
    if (const auto *tabs = qobject_cast<const QTabWidget *>(&widget))
        return plainCaption(tabs->tabText(tabs->currentIndex()));
    if (const auto *slider = qobject_cast<const QAbstractSlider *>(&widget))
        return QString::number(slider->value());
    if (const auto *bar = qobject_cast<const QProgressBar *>(&widget))
        return QString::number(bar->value());
    if (const auto *view = qobject_cast<const QAbstractItemView *>(&widget))
        return selectedRows(*view);
    return widget.property("value").toString();
}

bool showsValue(const QWidget &widget, const QString &expected)
{
    const QString shown = shownValue(widget);
    if (shown == expected || sameNumber(shown, expected))
        return true;
    const bool isShortened = shown.contains(u'…') || shown.contains("..."_L1);
    return isShortened && widget.property("value").toString() == expected;
}

QStringList shownItems(const QWidget &widget)
{
    QStringList items;
    if (const auto *box = qobject_cast<const QComboBox *>(&widget)) {
        for (int i = 0; i < box->count(); ++i)
            items.append(box->itemText(i));
    } else if (const auto *tabs = qobject_cast<const QTabWidget *>(&widget)) {
        for (int i = 0; i < tabs->count(); ++i)
            items.append(plainCaption(tabs->tabText(i)));
    } else if (const auto *view = qobject_cast<const QAbstractItemView *>(&widget); view && view->model()) {
        addRows(*view->model(), view->rootIndex(), items);
    }
    return items;
}

} // namespace host::app
