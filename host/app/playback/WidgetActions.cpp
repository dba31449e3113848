#include "host/app/playback/WidgetActions.h"

#include "host/app/playback/PlaybackText.h"
#include "host/app/playback/WidgetFinder.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSlider>
#include <QAbstractSpinBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QGroupBox>
#include <QKeyCombination>
#include <QKeyEvent>
#include <QKeySequence>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPlainTextEdit>
#include <QPointer>
#include <QTabBar>
#include <QTabWidget>
#include <QTextEdit>

using namespace Qt::StringLiterals;

namespace host::app {

namespace {

/// Why a person could not use the widget now; empty when one could.
QString whyUnusable(const QWidget &widget)
{
    if (!widget.isVisible())
        return tr("%1 is not visible").arg(nameOf(widget));
    if (!widget.isEnabled())
        return tr("%1 is disabled").arg(nameOf(widget));
    return {};
}

/// The number after "#", or -1.
int numberReference(const QString &value)
{
    bool ok = false;
    const int number = value.startsWith(u'#') ? value.mid(1).toInt(&ok) : -1;
    return ok ? number : -1;
}

void sendKey(QWidget &widget, int key, Qt::KeyboardModifiers modifiers, const QString &text)
{
    const QPointer<QWidget> alive = &widget;
    QKeyEvent press(QEvent::KeyPress, key, modifiers, text);
    QCoreApplication::sendEvent(&widget, &press);
    if (!alive)
        return;
    QKeyEvent release(QEvent::KeyRelease, key, modifiers, text);
    QCoreApplication::sendEvent(&widget, &release);
}

void sendMouse(QWidget &widget, QEvent::Type type, const QPoint &at, Qt::KeyboardModifiers modifiers)
{
    const Qt::MouseButtons held = type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton;
    QMouseEvent event(type, at, widget.mapToGlobal(at), Qt::LeftButton, held, modifiers);
    QCoreApplication::sendEvent(&widget, &event);
}

void clickAt(QWidget &widget, const QPoint &at, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
{
    const QPointer<QWidget> alive = &widget;
    sendMouse(widget, QEvent::MouseButtonPress, at, modifiers);
    if (alive)
        sendMouse(widget, QEvent::MouseButtonRelease, at, modifiers);
}

/// As moving on with Tab: what is written counts from now on.
void leave(QWidget &widget)
{
    QFocusEvent event(QEvent::FocusOut, Qt::TabFocusReason);
    QCoreApplication::sendEvent(&widget, &event);
}

QString setLine(QLineEdit &edit, const QString &value)
{
    if (edit.isReadOnly())
        return tr("%1 cannot be written to").arg(nameOf(edit));
    const QPointer<QLineEdit> alive = &edit;
    edit.setFocus();
    edit.selectAll();
    if (value.isEmpty())
        edit.del();
    else
        edit.insert(value);
    if (!alive)
        return {};
    if (edit.text() != value)
        return tr("%1 does not take \"%2\"; it shows \"%3\"").arg(nameOf(edit), value, edit.text());
    leave(edit);
    return {};
}

QString setSpin(QAbstractSpinBox &box, QString value)
{
    auto *edit = box.findChild<QLineEdit *>();
    if (!edit || box.isReadOnly())
        return tr("%1 cannot be written to").arg(nameOf(box));
    bool isNumber = false;
    value.toDouble(&isNumber);
    if (isNumber)
        value.replace(u'.', box.locale().decimalPoint());
    const QString before = box.text();
    box.setFocus();
    box.selectAll();
    edit->insert(value);
    // What can never become a number of the range is refused while it is typed.
    if (!edit->text().contains(value) || !box.hasAcceptableInput()) {
        const QString refused = tr("%1 does not take \"%2\"").arg(nameOf(box), value);
        edit->setText(before);
        return refused;
    }
    const QPointer<QAbstractSpinBox> alive = &box;
    box.interpretText();
    if (alive)
        leave(box);
    return {};
}

QString setCombo(QComboBox &box, const QString &value)
{
    int index = numberReference(value);
    if (index < 0 || index >= box.count())
        index = box.findText(value, Qt::MatchExactly | Qt::MatchCaseSensitive);
    if (index < 0 && box.isEditable() && box.lineEdit())
        return setLine(*box.lineEdit(), value);
    if (index < 0) {
        QStringList items;
        for (int i = 0; i < std::min(box.count(), 30); ++i)
            items.append(box.itemText(i));
        return tr("%1 has no item \"%2\"; it has %3").arg(nameOf(box), value, items.join("; "_L1));
    }
    const QPointer<QComboBox> alive = &box;
    box.setFocus();
    box.setCurrentIndex(index);
    if (alive)
        emit box.activated(index);
    if (alive)
        emit box.textActivated(box.itemText(index));
    return {};
}

QString setTab(QTabBar &bar, const QString &value)
{
    int index = numberReference(value);
    for (int i = 0; i < bar.count() && index < 0; ++i)
        if (plainCaption(bar.tabText(i)) == plainCaption(value))
            index = i;
    if (index < 0 || index >= bar.count() || !bar.isTabEnabled(index))
        return tr("%1 has no tab \"%2\"").arg(nameOf(bar), value);
    bar.setCurrentIndex(index);
    return {};
}

/// Whether the widget is one whose value is yes or no.
bool isCheckable(const QWidget &widget)
{
    if (const auto *button = qobject_cast<const QAbstractButton *>(&widget))
        return button->isCheckable();
    const auto *box = qobject_cast<const QGroupBox *>(&widget);
    return box && box->isCheckable();
}

bool meansYes(const QString &value)
{
    static const QStringList words = {u"yes"_s, u"on"_s, u"true"_s, u"1"_s};
    return words.contains(value.toLower());
}

template <typename Edit>
QString setText(Edit &edit, const QString &value)
{
    if (edit.isReadOnly())
        return tr("%1 cannot be written to").arg(nameOf(edit));
    edit.setFocus();
    edit.selectAll();
    edit.insertPlainText(value);
    return {};
}

QString setNumber(QAbstractSlider &slider, const QString &value)
{
    bool ok = false;
    const int number = value.toInt(&ok);
    if (!ok || number < slider.minimum() || number > slider.maximum())
        return tr("%1 does not take \"%2\"").arg(nameOf(slider), value);
    slider.setValue(number);
    return {};
}

QModelIndex findRow(const QAbstractItemModel &model, const QString &text, const QModelIndex &parent)
{
    for (int row = 0; row < model.rowCount(parent); ++row) {
        const QModelIndex first = model.index(row, 0, parent);
        if (first.data().toString() == text)
            return first;
        if (const QModelIndex below = findRow(model, text, first); below.isValid())
            return below;
    }
    return {};
}

/// The row with this text in the first column, then in any other; or by number from 0, "#2".
QModelIndex findRow(const QAbstractItemView &view, const QString &text)
{
    const QAbstractItemModel *model = view.model();
    if (!model)
        return {};
    if (const int number = numberReference(text); number >= 0 && number < model->rowCount(view.rootIndex()))
        return model->index(number, 0, view.rootIndex());
    if (const QModelIndex index = findRow(*model, text, view.rootIndex()); index.isValid())
        return index;
    for (int column = 1; column < model->columnCount(view.rootIndex()); ++column)
        for (int row = 0; row < model->rowCount(view.rootIndex()); ++row)
            if (model->index(row, column, view.rootIndex()).data().toString() == text)
                return model->index(row, column, view.rootIndex());
    return {};
}

/// `cell`, or the first cell of its row behind it that a person could point at: a table may carry a column that it
/// gives no width.
QModelIndex pointableCell(const QAbstractItemView &view, const QModelIndex &cell)
{
    for (QModelIndex index = cell; index.isValid(); index = index.siblingAtColumn(index.column() + 1)) {
        if (!view.visualRect(index).isEmpty())
            return index;
    }
    return cell;
}

QString noRow(const QWidget &widget, const QString &row)
{
    return tr("%1 has no row \"%2\"").arg(nameOf(widget), row);
}

QString noList(const QWidget &widget)
{
    return tr("%1 is no list, table or tree").arg(nameOf(widget));
}

} // namespace

QString setValue(QWidget &widget, const QString &value)
{
    if (const QString reason = whyUnusable(widget); !reason.isEmpty())
        return reason;
    if (isCheckable(widget))
        return setChecked(widget, meansYes(value));
    if (auto *edit = qobject_cast<QLineEdit *>(&widget))
        return setLine(*edit, value);
    if (auto *box = qobject_cast<QAbstractSpinBox *>(&widget))
        return setSpin(*box, value);
    if (auto *box = qobject_cast<QComboBox *>(&widget))
        return setCombo(*box, value);
    if (auto *edit = qobject_cast<QTextEdit *>(&widget))
        return setText(*edit, value);
    if (auto *edit = qobject_cast<QPlainTextEdit *>(&widget))
        return setText(*edit, value);
    if (auto *tabs = qobject_cast<QTabWidget *>(&widget))
        return setTab(*tabs->tabBar(), value);
    if (auto *bar = qobject_cast<QTabBar *>(&widget))
        return setTab(*bar, value);
    if (auto *slider = qobject_cast<QAbstractSlider *>(&widget))
        return setNumber(*slider, value);
    if (qobject_cast<QAbstractItemView *>(&widget))
        return selectRows(widget, {value});
    return tr("%1 has no value to set").arg(nameOf(widget));
}

QString typeText(QWidget &widget, const QString &text)
{
    if (const QString reason = whyUnusable(widget); !reason.isEmpty())
        return reason;
    const QPointer<QWidget> alive = &widget;
    widget.setFocus();
    for (const QChar c : text) {
        if (!alive)
            return tr("the widget went away while it was typed into");
        sendKey(widget, c.toUpper().unicode(), c.isUpper() ? Qt::ShiftModifier : Qt::NoModifier, QString(c));
    }
    return {};
}

QString pressKey(QWidget &widget, const QString &key)
{
    if (const QString reason = whyUnusable(widget); !reason.isEmpty())
        return reason;
    const QKeySequence sequence = QKeySequence::fromString(key, QKeySequence::PortableText);
    if (sequence.count() != 1 || sequence[0].key() == Qt::Key_unknown)
        return tr("\"%1\" is no key").arg(key);
    widget.setFocus();
    const QKeyCombination combination = sequence[0];
    const bool isPlain = !(combination.keyboardModifiers() & ~Qt::ShiftModifier) && combination.key() < Qt::Key_Escape;
    sendKey(widget, combination.key(), combination.keyboardModifiers(),
            isPlain ? QString(QChar(combination.key())) : QString());
    return {};
}

QString setChecked(QWidget &widget, bool checked)
{
    if (const QString reason = whyUnusable(widget); !reason.isEmpty())
        return reason;
    if (!isCheckable(widget))
        return tr("%1 cannot be checked").arg(nameOf(widget));
    if (auto *box = qobject_cast<QGroupBox *>(&widget)) {
        box->setChecked(checked);
        return {};
    }
    auto &button = static_cast<QAbstractButton &>(widget);
    if (button.isChecked() == checked)
        return {};
    const QPointer<QAbstractButton> alive = &button;
    button.click();
    if (alive && button.isChecked() != checked)
        return tr("%1 stays as it is; another button of its group must be checked").arg(nameOf(button));
    return {};
}

QString giveFocus(QWidget &widget)
{
    if (const QString reason = whyUnusable(widget); !reason.isEmpty())
        return reason;
    widget.setFocus(Qt::TabFocusReason);
    return {};
}

QString click(QWidget &widget)
{
    if (const QString reason = whyUnusable(widget); !reason.isEmpty())
        return reason;
    if (auto *button = qobject_cast<QAbstractButton *>(&widget))
        button->click();
    else
        clickAt(widget, widget.rect().center());
    return {};
}

QString doubleClick(QWidget &widget, const QString &row)
{
    if (const QString reason = whyUnusable(widget); !reason.isEmpty())
        return reason;
    QWidget *target = &widget;
    QPoint at = widget.rect().center();
    if (!row.isEmpty()) {
        auto *view = qobject_cast<QAbstractItemView *>(&widget);
        const QModelIndex index = view ? findRow(*view, row) : QModelIndex();
        if (!index.isValid())
            return view ? noRow(widget, row) : noList(widget);
        view->scrollTo(index);
        target = view->viewport();
        at = view->visualRect(pointableCell(*view, index)).center();
    }
    const QPointer<QWidget> alive = target;
    clickAt(*target, at);
    if (alive)
        sendMouse(*target, QEvent::MouseButtonDblClick, at, Qt::NoModifier);
    if (alive)
        sendMouse(*target, QEvent::MouseButtonRelease, at, Qt::NoModifier);
    return {};
}

QString selectRows(QWidget &widget, const QStringList &rows)
{
    if (const QString reason = whyUnusable(widget); !reason.isEmpty())
        return reason;
    auto *view = qobject_cast<QAbstractItemView *>(&widget);
    if (!view)
        return noList(widget);
    const QPointer<QAbstractItemView> alive = view;
    view->setFocus();
    Qt::KeyboardModifiers modifiers = Qt::NoModifier;
    for (const QString &row : rows) {
        if (!alive)
            return tr("the list went away while rows were selected");
        const QModelIndex index = findRow(*view, row);
        if (!index.isValid())
            return noRow(widget, row);
        view->scrollTo(index);
        // Left of the middle: the middle of a wide row may lie outside what is visible.
        const QRect seen = view->visualRect(pointableCell(*view, index)) & view->viewport()->rect();
        if (seen.isEmpty())
            return tr("row \"%1\" of %2 is not visible").arg(row, nameOf(widget));
        clickAt(*view->viewport(), seen.center(), modifiers);
        modifiers = Qt::ControlModifier;
    }
    return {};
}

QString checkRow(QWidget &widget, const QString &row, bool checked)
{
    if (const QString reason = whyUnusable(widget); !reason.isEmpty())
        return reason;
    auto *view = qobject_cast<QAbstractItemView *>(&widget);
    if (!view)
        return noList(widget);
    const QModelIndex index = findRow(*view, row);
    if (!index.isValid())
        return noRow(widget, row);
    constexpr Qt::ItemFlags needed = Qt::ItemIsUserCheckable | Qt::ItemIsEnabled;
    if ((index.flags() & needed) != needed)
        return tr("row \"%1\" of %2 cannot be checked").arg(row, nameOf(widget));
    view->model()->setData(index, checked ? Qt::Checked : Qt::Unchecked, Qt::CheckStateRole);
    return {};
}

QString setCell(QWidget &widget, int row, int column, const QString &text)
{
    if (const QString reason = whyUnusable(widget); !reason.isEmpty())
        return reason;
    auto *view = qobject_cast<QAbstractItemView *>(&widget);
    if (!view || !view->model())
        return noList(widget);
    const QModelIndex index = view->model()->index(row, column, view->rootIndex());
    if (!index.isValid())
        return tr("%1 has no cell %2, %3").arg(nameOf(widget)).arg(row).arg(column);
    if (!(index.flags() & Qt::ItemIsEditable) || view->editTriggers() == QAbstractItemView::NoEditTriggers)
        return tr("cell %1, %2 of %3 cannot be written to").arg(row).arg(column).arg(nameOf(widget));
    if (!view->model()->setData(index, text, Qt::EditRole))
        return tr("cell %1, %2 of %3 does not take \"%4\"").arg(row).arg(column).arg(nameOf(widget), text);
    return {};
}

} // namespace host::app
