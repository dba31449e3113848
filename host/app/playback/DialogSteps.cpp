#include "host/app/playback/DialogSteps.h"

#include "host/app/playback/PlaybackText.h"
#include "host/app/playback/RowActions.h"
#include "host/app/playback/WidgetActions.h"
#include "host/app/playback/WidgetFinder.h"
#include "host/app/playback/WidgetValues.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QPointer>

using namespace Qt::StringLiterals;

namespace host::app {

namespace {

QAbstractButton *messageButton(QMessageBox &message, const QString &name)
{
    const auto found = findWidget(message, "button:"_L1 + name);
    if (found)
        return qobject_cast<QAbstractButton *>(found.widget);
    for (QAbstractButton *button : message.buttons())
        if (plainCaption(button->text()).compare(name, Qt::CaseInsensitive) == 0)
            return button;
    return nullptr;
}

QString answerMessage(QMessageBox &message, const QString &text, const QString &button)
{
    if (!containsText(message.text() + u' ' + message.informativeText(), text))
        return tr("there is %1").arg(describeDialog(message));
    if (button.compare("close"_L1, Qt::CaseInsensitive) == 0) {
        message.close();
        return {};
    }
    QAbstractButton *pressed = messageButton(message, button);
    return pressed ? click(*pressed) : tr("%1 has no button \"%2\"").arg(describeDialog(message), button);
}

/// The dialog may have put its extension behind the name.
QString checkChosen(const QFileDialog &dialog, const QString &wanted)
{
    const QString chosen = QDir::cleanPath(dialog.selectedFiles().value(0));
    if (chosen == wanted || (!dialog.defaultSuffix().isEmpty() && chosen == wanted + u'.' + dialog.defaultSuffix()))
        return {};
    return tr("%1 took \"%2\"").arg(describeDialog(dialog), chosen);
}

QString answerFile(QFileDialog &dialog, const QString &path)
{
    if (path == "cancel"_L1) {
        dialog.reject();
        return {};
    }
    auto *edit = dialog.findChild<QLineEdit *>(u"fileNameEdit"_s);
    if (!edit)
        return tr("%1 takes no file name").arg(describeDialog(dialog));
    // What the dialog had chosen goes before what is written, unless the field has the keyboard.
    for (QAbstractItemView *list : dialog.findChildren<QAbstractItemView *>())
        if (list->model() && list->model()->inherits("QFileSystemModel"))
            list->clearSelection();
    edit->setFocus();
    edit->setText(QDir::fromNativeSeparators(path));
    const QString wanted = QDir::cleanPath(dialog.directory().absoluteFilePath(edit->text()));
    const QPointer<QFileDialog> alive = &dialog;
    // The button of the dialog does the same, but may be disabled until the folder was listed.
    static_cast<QDialog &>(dialog).accept();
    return alive && alive->result() == QDialog::Accepted ? checkChosen(*alive, wanted) : QString();
}

QString pickMenu(QMenu &menu, const QString &text)
{
    QStringList entries;
    for (QAction *action : menu.actions()) {
        const QString entry = plainCaption(action->text().section(u'\t', 0, 0));
        if (entry != plainCaption(text)) {
            entries.append(entry);
            continue;
        }
        if (!action->isEnabled())
            return tr("the menu's entry \"%1\" is disabled").arg(text);
        menu.setActiveAction(action);
        QKeyEvent press(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
        QCoreApplication::sendEvent(&menu, &press);
        return {};
    }
    if (text == u"cancel") {
        menu.close();
        return {};
    }
    return tr("the menu has no entry \"%1\"; it has %2").arg(text, entries.join("; "_L1));
}

/// A widget has the keyboard as well when a part of it has.
QString expectFocus(const QWidget &widget)
{
    const QWidget *focused = QApplication::focusWidget();
    if (focused == &widget || widget.isAncestorOf(focused))
        return {};
    return focused ? tr("%1 has the keyboard").arg(nameOf(*focused)) : tr("nothing has the keyboard");
}

QString expectItems(const QWidget &widget, const QString &expected)
{
    const QString items = shownItems(widget).join(u'^');
    return items == expected ? QString() : tr("the items are \"%1\"").arg(items);
}

} // namespace

bool containsText(const QString &text, const QString &part)
{
    return text.simplified().contains(part.simplified());
}

QString expectState(bool is, const QString &expected, const QString &description)
{
    return is == (expected == "yes"_L1) ? QString() : description;
}

QString meet(QWidget &window, const Step &step)
{
    auto *message = qobject_cast<QMessageBox *>(&window);
    auto *files = qobject_cast<QFileDialog *>(&window);
    auto *menu = qobject_cast<QMenu *>(&window);
    if (step.verb == Verb::Message && message)
        return answerMessage(*message, step.word(0), step.word(1));
    if (step.verb == Verb::File && files)
        return answerFile(*files, step.word(0));
    if (step.verb == Verb::Menu && menu)
        return pickMenu(*menu, step.word(0));
    if (step.verb == Verb::Dialog && isDialogNamed(window, step.word(0)))
        return {};
    return tr("%1 is open").arg(describeDialog(window));
}

QString workIn(QWidget &dialog, const Step &step)
{
    if (step.verb == Verb::Close) {
        dialog.close();
        return {};
    }
    if (step.verb == Verb::ExpectTitle)
        return dialog.windowTitle() == step.word(0) ? QString() : tr("the title is \"%1\"").arg(dialog.windowTitle());
    const FoundWidget found = findWidget(dialog, step.word(0));
    if (!found)
        return found.error;
    QWidget &widget = *found.widget;
    switch (step.verb) {
    case Verb::Set:
        return setValue(widget, step.word(1));
    case Verb::Type:
        return typeText(widget, step.word(1));
    case Verb::Key:
        return pressKey(widget, step.word(1));
    case Verb::Check:
        return setChecked(widget, step.word(1) == "yes"_L1);
    case Verb::Focus:
        return giveFocus(widget);
    case Verb::Click:
        return click(widget);
    case Verb::DoubleClick:
        return doubleClick(widget, step.word(1));
    case Verb::Row:
        return selectRows(widget, step.words.mid(1));
    case Verb::CheckRow:
        return checkRow(widget, step.word(1), step.word(2) == "yes"_L1);
    case Verb::Cell:
        return setCell(widget, step.word(1).toInt(), step.word(2).toInt(), step.word(3));
    case Verb::ExpectItems:
        return expectItems(widget, step.word(1));
    case Verb::ExpectEnabled:
        return expectState(widget.isEnabled(), step.word(1),
                           widget.isEnabled() ? tr("it is enabled") : tr("it is disabled"));
    case Verb::ExpectFocus:
        return expectFocus(widget);
    case Verb::ExpectVisible:
        return expectState(widget.isVisible(), step.word(1),
                           widget.isVisible() ? tr("it is visible") : tr("it is not visible"));
    default:
        return showsValue(widget, step.word(1)) ? QString() : tr("it shows \"%1\"").arg(shownValue(widget));
    }
}

} // namespace host::app
