#include "host/app/playback/WidgetActions.h"

#include "host/app/playback/PlaybackText.h"
#include "host/app/playback/RowActions.h"
#include "host/app/playback/WidgetEvents.h"
#include "host/app/playback/WidgetFinder.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSlider>
#include <QAbstractSpinBox>
#include <QComboBox>
#include <QGroupBox>
#include <QKeySequence>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPointer>
#include <QTabBar>
#include <QTabWidget>
#include <QTextEdit>

using namespace Qt::StringLiterals;

namespace host::app {

namespace {

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

} // namespace host::app
