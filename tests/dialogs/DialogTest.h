#pragma once

#include "state/ToolDialog.h"
#include "tests/support/ModuleTest.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSettings>
#include <QTableWidget>
#include <QTest>

namespace ortakit::test {

/// One tool's dialog in a fake host with one document. The host is made first, so a test class that needs files or
/// drawings before the dialog exists makes them in its constructor. Favourites are the test's own.
template <class Dialog>
class DialogTest : public testing::Test
{
protected:
    DialogTest()
    {
        host.setMainWindow(&window);
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, host.path(QStringLiteral("settings")));
    }
    void SetUp() override { dialog = std::make_unique<Dialog>(&window); }

    template <class Widget = QWidget>
    Widget *find(const char *name) const
    {
        auto *widget = dialog->template findChild<Widget *>(QString::fromLatin1(name));
        EXPECT_TRUE(widget) << name;
        return widget;
    }
    bool isEnabled(const char *name) const { return find(name)->isEnabled(); }
    bool isChecked(const char *name) const { return find<QAbstractButton>(name)->isChecked(); }
    QString text(const char *lineEdit) const { return find<QLineEdit>(lineEdit)->text(); }
    void setText(const char *lineEdit, const QString &text) { find<QLineEdit>(lineEdit)->setText(text); }
    /// The whole text behind one that may be shown shortened, such as a path.
    QString fullText(const char *name) const { return find(name)->property("value").toString(); }
    /// Those of the widgets `names`, with blanks between, that are enabled.
    QString enabledOf(const QString &names) const
    {
        QStringList enabled = names.split(u' ');
        enabled.removeIf([this](const QString &name) { return !isEnabled(name.toLatin1().constData()); });
        return enabled.join(u' ');
    }
    /// Fills a field as a person does, and presses Return in it.
    void enterText(const char *field, const QString &text)
    {
        find(field)->setFocus();
        setText(field, text);
        QTest::keyClick(find(field), Qt::Key_Return);
    }
    /// The same; gives what was shown.
    QStringList shownEntering(const char *field, const QString &text)
    {
        const ModalAnswers user;
        enterText(field, text);
        return user.shown();
    }
    void saveFavourite(const char *box, const char *button, const QString &name)
    {
        find<QComboBox>(box)->setEditText(name);
        click(button);
    }
    void pickFavourite(const char *box, const QString &name)
    {
        find<QComboBox>(box)->setEditText(name);
        QTest::keyClick(find(box), Qt::Key_Return);
    }
    void click(const char *button) { find<QAbstractButton>(button)->click(); }
    /// Clicks, and gives what was shown: `answers` are pressed in the messages one after the other; a message without
    /// an answer is closed.
    QStringList shownBy(const char *button, const QList<QMessageBox::StandardButton> &answers = {})
    {
        ModalAnswers user;
        return shownBy(user, button, answers);
    }
    /// The same where `path` is chosen in a file dialog first, or nothing when it is empty.
    QStringList shownChoosing(const char *button, const QString &path,
                              const QList<QMessageBox::StandardButton> &answers = {})
    {
        ModalAnswers user;
        user.choose(path);
        return shownBy(user, button, answers);
    }
    /// The rows of a table, their cells with "|" between; "-" for a cell without an item.
    QStringList tableRows(const char *name) const
    {
        const auto *table = find<QTableWidget>(name);
        QStringList rows;
        for (int row = 0; row < table->rowCount(); ++row) {
            QStringList cells;
            for (int column = 0; column < table->columnCount(); ++column)
                cells.append(table->item(row, column) ? table->item(row, column)->text() : QStringLiteral("-"));
            rows.append(cells.join(u'|'));
        }
        return rows;
    }
    /// The same with blanks between the rows.
    QString tableText(const char *name) const { return tableRows(name).join(u' '); }
    /// Clicks on the header of a column, as with the mouse.
    void clickHeader(const char *table, int column = 0) const
    {
        const QHeaderView *header = find<QTableWidget>(table)->horizontalHeader();
        QTest::mouseClick(header->viewport(), Qt::LeftButton, {},
                          QPoint(header->sectionViewportPosition(column) + 10, header->height() / 2));
    }
    /// Selects these rows one after the other, as with the Ctrl key held.
    static void selectRows(QTableWidget *table, const QList<int> &rows)
    {
        table->clearSelection();
        for (const int row : rows)
            table->selectionModel()->select(table->model()->index(row, 0),
                                            QItemSelectionModel::Select | QItemSelectionModel::Rows);
    }
    QString focusName() const { return dialog->focusWidget() ? dialog->focusWidget()->objectName() : QString(); }

    /// Shows the dialog with a state file of these lines, as its Lisp function does.
    void showWith(const QString &lines)
    {
        stateFile = host.writeFile(QStringLiteral("state.txt"), lines.toUtf8());
        dialog->state().load(stateFile);
        show();
    }
    void show()
    {
        dialog->hide();
        dialog->setResult(-1);
        dialog->show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(dialog.get()));
    }
    bool isAccepted() const { return !dialog->isVisible() && dialog->result() == QDialog::Accepted; }
    /// What the state file holds after a confirmed run, without the byte-order mark.
    QString savedState()
    {
        dialog->state().save();
        return QString::fromUtf8(FakeHost::readFile(stateFile)).remove(QChar(0xFEFF));
    }

    /// Those of `lines` that the state of a confirmed run lacks.
    QStringList missingInState(QStringList lines)
    {
        const QStringList saved = savedState().split(u'\n');
        lines.removeIf([&](const QString &line) { return saved.contains(line); });
        return lines;
    }

    FakeHost host;
    QWidget window;
    QString stateFile;
    std::unique_ptr<Dialog> dialog;

private:
    QStringList shownBy(ModalAnswers &user, const char *button, const QList<QMessageBox::StandardButton> &answers)
    {
        for (const auto answer : answers)
            user.press(answer);
        click(button);
        EXPECT_TRUE(user.isDone()) << button;
        return user.shown();
    }
};

} // namespace ortakit::test
