#include "dialogs/breakline/Dlg_QT_Breakline.h"
#include "platform/widgets/CKvQtUnitSpinBox.h"
#include "tests/dialogs/DialogTest.h"

#include <QDir>
#include <QFileInfo>

using namespace ortakit::test;
using namespace Qt::StringLiterals;

namespace {

class BreakLine : public DialogTest<Dlg_QT_Breakline>
{
protected:
    QLineEdit *fileField() const { return find<QLineEdit>("LbTitleblock"); }
    QLineEdit *nameField() const { return find<QLineEdit>("name"); }
    QString path() const { return fileField()->property("value").toString(); }

    QString symbol = host.writeFile(u"zigzag.dxf"_s, "0\nEOF\n");
};

TEST_F(BreakLine, MakesItsSymbolFolder)
{
    EXPECT_TRUE(QDir(host.document().systemVariable(u"LOGFILEPATH"_s) + u"Ortakit/BreakLine"_s).exists());
}

TEST_F(BreakLine, ConfirmingWritesFileAndDistances)
{
    showWith(u"lbtitleblock=%1\n_dist_size=2.5\n_dist_offset=0.25\n"_s.arg(symbol));
    EXPECT_EQ(path(), symbol);
    EXPECT_TRUE(isEnabled("acceptButton"));
    EXPECT_EQ(dialog->focusWidget()->objectName(), u"acceptButton"_s);

    click("acceptButton");
    EXPECT_EQ(dialog->result(), int(QDialog::Accepted));
    EXPECT_EQ(savedState(), u"lbtitleblock=%1\n!action!=OK\n_dist_size=2.5\nqt_spinbox_lineedit=2.5000\n"
                            "_dist_offset=0.25\nqt_spinbox_lineedit=0.2500\n"_s.arg(symbol));
}

TEST_F(BreakLine, ValuesOfEarlierCallsStayUntilCreate)
{
    showWith(u"_dist_size=2\n"_s);
    find<CKvQtUnitSpinBox>("_dist_size")->setValue(7);
    nameField()->setText(u"wave"_s);
    showWith(u"_dist_size=3\n!action!=OK\n"_s);
    EXPECT_EQ(find<CKvQtUnitSpinBox>("_dist_size")->value(), 7);
    EXPECT_EQ(nameField()->text(), QString());

    showWith(u"_dist_size=4\nlbtitleblock=%1\n!action!=CREATE\n"_s.arg(symbol));
    EXPECT_EQ(find<CKvQtUnitSpinBox>("_dist_size")->value(), 4);
    EXPECT_EQ(path(), symbol);
    EXPECT_EQ(nameField()->text(), QString());
    EXPECT_FALSE(isEnabled("SelectEntities"));
}

// The two distances come first in the state, so that looser keys in the file never answer for them.
TEST_F(BreakLine, DistancesAreFoundBehindLinesThatEndLikeThem)
{
    showWith(u"old_dist_size=9\nold_dist_offset=8\n_dist_size=2\n_dist_offset=1\n"_s);
    EXPECT_EQ(find<CKvQtUnitSpinBox>("_dist_size")->value(), 2);
    EXPECT_EQ(find<CKvQtUnitSpinBox>("_dist_offset")->value(), 1);
}

TEST_F(BreakLine, OkNeedsAnExistingFile)
{
    const struct
    {
        const char *name;
        QString text;
        bool enabled;
    } rows[] = {
        {"existing file", symbol, true},
        {"nothing", {}, false},
        {"missing file", symbol + u".missing"_s, false},
        {"folder", QFileInfo(symbol).path(), false},
        // An elided text is what the field shows of the path it has, no new path.
        {"elided text", u"/some\u2026where"_s, true},
    };
    show();
    for (const auto &row : rows) {
        fileField()->setFocus();
        fileField()->setText(symbol);
        find("name")->setFocus();
        ASSERT_TRUE(isEnabled("acceptButton"));
        fileField()->setFocus();
        fileField()->setText(row.text);
        find("name")->setFocus();
        EXPECT_EQ(isEnabled("acceptButton"), row.enabled) << row.name;
    }
}

TEST_F(BreakLine, EnterInTheFileFieldTakesThePathAndStays)
{
    show();
    fileField()->setFocus();
    fileField()->setText(symbol);
    QTest::keyClick(fileField(), Qt::Key_Return);
    EXPECT_EQ(path(), symbol);
    EXPECT_TRUE(isEnabled("acceptButton"));
    EXPECT_TRUE(dialog->isVisible());
}

TEST_F(BreakLine, CanBeDestroyedWhileTheFileFieldHasTheFocus)
{
    show();
    fileField()->setFocus();
    dialog.reset();
    EXPECT_FALSE(window.focusWidget());
}

TEST_F(BreakLine, FileThatWentAwayIsRefusedAtOk)
{
    showWith(u"lbtitleblock=%1\n"_s.arg(symbol));
    ASSERT_TRUE(QFile::remove(symbol));
    ModalAnswers answers;
    answers.press(QMessageBox::Ok);
    click("acceptButton");
    EXPECT_EQ(answers.shown(), QStringList{u"warning \"\" \"Cannot find the specified drawing file.\" OK"_s});
    EXPECT_TRUE(dialog->isVisible());
}

TEST_F(BreakLine, BrowseTakesWhatIsNamedLikeADrawing)
{
    const struct
    {
        const char *file;
        bool taken;
    } rows[] = {
        {"plan.dwg", true}, {"PLAN.DXF", true}, {"plan.dwg.bak", true}, {"plan.txt", false}, {"dwg", false},
    };
    show();
    for (const auto &row : rows) {
        const QString file = host.writeFile(QString::fromLatin1(row.file), "0\nEOF\n");
        ModalAnswers answers;
        answers.choose(file);
        click("Bt_selectBlock");
        ASSERT_TRUE(answers.isDone());
        EXPECT_EQ(path(), row.taken ? file : QString()) << row.file;
        EXPECT_EQ(isEnabled("acceptButton"), row.taken) << row.file;
    }
}

TEST_F(BreakLine, CancellingBrowseChangesNothing)
{
    showWith(u"lbtitleblock=%1\n"_s.arg(symbol));
    ModalAnswers answers;
    answers.choose({});
    click("Bt_selectBlock");
    EXPECT_EQ(path(), symbol);
}

TEST_F(BreakLine, SelectEntitiesNeedsAName)
{
    show();
    for (const QString &name : {QString(), u"z"_s, QString(), u"zigzag"_s}) {
        nameField()->setText(name);
        EXPECT_EQ(isEnabled("SelectEntities"), !name.isEmpty());
        EXPECT_EQ(isEnabled("label_entities"), !name.isEmpty());
    }
}

TEST_F(BreakLine, NewSymbolNamesAreChecked)
{
    const QString invalid = u"warning \"\" \"The following characters are not valid in File names: "
                            "<>/\\\":;?*|,='\" OK"_s;
    const QString question = u"question \"\" \"Drawing symbol \"wave\" already exists. Do you want to replace it?\" "
                             "Yes/No"_s;
    const struct
    {
        const char *what;
        QString name;
        QMessageBox::StandardButton answer;
        QStringList shown;
        bool accepted;
    } rows[] = {
        {"free name", u"arrow"_s, QMessageBox::NoButton, {}, true},
        {"slash", u"a/b"_s, QMessageBox::Ok, {invalid}, false},
        {"apostrophe", u"a'b"_s, QMessageBox::Ok, {invalid}, false},
        {"equals sign", u"a=b"_s, QMessageBox::Ok, {invalid}, false},
        {"existing, kept", u"wave"_s, QMessageBox::No, {question}, false},
        {"existing, replaced", u"wave"_s, QMessageBox::Yes, {question}, true},
    };
    host.writeFile(u"Ortakit/BreakLine/wave.dwg"_s, "old");
    for (const auto &row : rows) {
        show();
        nameField()->setText(row.name);
        ModalAnswers answers;
        if (row.answer != QMessageBox::NoButton)
            answers.press(row.answer);
        click("SelectEntities");
        EXPECT_EQ(answers.shown(), row.shown) << row.what;
        EXPECT_EQ(dialog->result() == QDialog::Accepted, row.accepted) << row.what;
        if (row.accepted)
            EXPECT_EQ(dialog->state().action(), u"CREATE"_s) << row.what;
        else
            EXPECT_EQ(dialog->focusWidget()->objectName(), u"name"_s) << row.what;
    }
    EXPECT_EQ(FakeHost::readFile(host.path(u"Ortakit/BreakLine/wave.dwg"_s)), "old");
}

} // namespace
