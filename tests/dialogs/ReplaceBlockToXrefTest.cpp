#include "dialogs/replaceblocktoxref/Dlg_QT_ReplaceBlockToXref.h"
#include "state/DrawingPreview.h"
#include "tests/dialogs/DialogTest.h"
#include "tests/dialogs/NameTables.h"

#include <QDir>

using namespace ortakit::test;
using namespace Qt::StringLiterals;

namespace {

class ReplaceBlockToXref : public DialogTest<Dlg_QT_ReplaceBlockToXref>
{
protected:
    ReplaceBlockToXref()
    {
        QDir(host.path({})).mkpath(u"refs/folder.dwg"_s);
        QDir(host.path({})).mkpath(u"other"_s);
        for (const char *name : {"a.dwg", "b.DWG", "c.dxf", "d.e.dwg", "dwg", "f.dwg.bak"})
            host.writeFile(u"refs/"_s + QLatin1String(name), "0\nEOF\n");
        host.writeFile(u"other/z.dwg"_s, "0\nEOF\n");
    }

    QTableWidget *left() const { return find<QTableWidget>("blocksTable"); }
    QTableWidget *right() const { return find<QTableWidget>("blocksTableRep"); }
    QString previewed() const { return find<DrawingPreview>("PreviewBlock2")->drawing(); }
    /// The folder field as a person fills it, before Return.
    void typeFolder(const QString &folder)
    {
        find("directory")->setFocus();
        setText("directory", folder);
    }

    void showBlocks(const QString &state)
    {
        dialog->setBlocks({u"DOOR"_s, u"WALL"_s, u"7"_s, u"007"_s});
        showWith(state);
    }

    QString refs = host.path(u"refs"_s);
    QString other = host.path(u"other"_s);
};

TEST_F(ReplaceBlockToXref, OffersDrawingsWithOneDot)
{
    showBlocks(u"directory=%1\nblockstable=WALL^\n"_s.arg(refs));
    EXPECT_EQ(shownTexts(*right()), u"a.dwg b.DWG"_s);
    EXPECT_EQ(selectedTexts(*left()), u"WALL"_s);
    clickHeader(*right());
    EXPECT_EQ(shownTexts(*right()), u"b.DWG a.dwg"_s);
    choose(*right(), u"b.DWG"_s);
    EXPECT_EQ(previewed(), refs + u"/b.DWG"_s);
}

TEST_F(ReplaceBlockToXref, ApplyWaitsForAReference)
{
    const struct
    {
        const char *what;
        QString state;
        QString selected;
        bool enabled;
    } rows[] = {
        {"no folder", {}, {}, false},
        {"no reference in the state", u"directory=%1\n"_s.arg(refs), {}, false},
        {"its reference", u"directory=%1\nblockstablerep=b.dwg^\n"_s.arg(refs), u"b.DWG"_s, true},
        {"a file that is gone", u"directory=%1\nblockstablerep=gone.dwg^\n"_s.arg(refs), {}, true},
        {"a reference without a folder", u"blockstablerep=a.dwg^\n"_s, {}, false},
        {"two of them", u"directory=%1\nblockstablerep=a.dwg^b.DWG^\n"_s.arg(refs), u"a.dwg"_s, true},
    };
    for (const auto &row : rows) {
        SetUp();
        showBlocks(row.state);
        EXPECT_EQ(selectedTexts(*right()), row.selected) << row.what;
        EXPECT_EQ(isEnabled("acceptButton"), row.enabled) << row.what;
    }
    SetUp();
    showBlocks(u"directory=%1\n"_s.arg(refs));
    right()->selectRow(0);
    EXPECT_TRUE(isEnabled("acceptButton")) << "chosen by the user";
    show();
    EXPECT_FALSE(isEnabled("acceptButton")) << "the next showing goes by the state again";
}

TEST_F(ReplaceBlockToXref, ApplyChecksInOrder)
{
    const QString title = u"warning \"Replace blocks\" "_s;
    const struct
    {
        const char *what;
        QString replaced;
        QString replacing;
        QString message; ///< empty: accepted
    } rows[] = {
        {"nothing", {}, {}, title + u"\"You must first select the blocks to replace. \" OK"_s},
        {"no block", {}, u"a.dwg"_s, title + u"\"You must first select the blocks to replace. \" OK"_s},
        {"no reference", u"DOOR"_s, {}, title + u"\"You must first select the replacing reference. \" OK"_s},
        {"indistinct", u"DOOR 007"_s, u"a.dwg"_s,
         title + u"\"The block \"007\" is taken for 7, as another block of the drawing is. "
                 "Rename one of the two first.\" OK"_s},
        {"both", u"DOOR WALL 7"_s, u"a.dwg"_s, {}},
    };
    for (const auto &row : rows) {
        showBlocks(u"directory=%1\nblockstablerep=a.dwg^\n"_s.arg(refs));
        choose(*left(), row.replaced);
        choose(*right(), row.replacing);
        ModalAnswers answers;
        answers.press(QMessageBox::Ok);
        click("acceptButton");
        EXPECT_EQ(answers.shown().value(0), row.message) << row.what;
        EXPECT_EQ(isAccepted(), row.message.isEmpty()) << row.what;
    }
    EXPECT_EQ(savedState(), u"blockstable=7^DOOR^WALL^\n!action!=OK\ndirectory=%1\nblockstablerep=a.dwg^\n"
                            "purgeitems=FALSE\n"_s.arg(refs));
}

TEST_F(ReplaceBlockToXref, EnterInTheFolderFieldTakesTheFolderAndStays)
{
    const struct
    {
        const char *what;
        QString folder;
        QString message;
        QString files;
    } rows[] = {
        {"folder", other, {}, u"z.dwg"_s},
        {"missing folder", host.path(u"none"_s), u"warning \"\" \"Cannot find the specified Path.\" OK"_s, {}},
        {"folder again", refs, {}, u"a.dwg b.DWG"_s},
        {"file", refs + u"/a.dwg"_s, u"warning \"\" \"Cannot find the specified Path.\" OK"_s, {}},
        {"nothing", {}, u"warning \"\" \"Path can`t be empty\" OK"_s, {}},
    };
    showBlocks(u"directory=%1\nblockstable=WALL^\nblockstablerep=a.dwg^\n"_s.arg(refs));
    for (const auto &row : rows) {
        typeFolder(row.folder);
        ModalAnswers answers;
        answers.press(QMessageBox::Ok);
        QTest::keyClick(find("directory"), Qt::Key_Return);
        EXPECT_EQ(answers.shown().value(0), row.message) << row.what;
        EXPECT_EQ(shownTexts(*right()), row.files) << row.what;
        EXPECT_TRUE(dialog->isVisible()) << row.what;
    }
}

// Else Lisp would look for the chosen file in another folder.
TEST_F(ReplaceBlockToXref, AFolderThatWasOnlyTypedCountsAtTheLatestAtApply)
{
    for (const bool leaves : {true, false}) {
        showBlocks(u"directory=%1\nblockstable=WALL^\nblockstablerep=a.dwg^\n!action!=SETBLOCKS\n"_s.arg(refs));
        EXPECT_EQ(selectedTexts(*right()), u"a.dwg"_s);
        typeFolder(other);
        if (leaves) {
            right()->setFocus();
            EXPECT_EQ(shownTexts(*right()), u"z.dwg"_s);
            EXPECT_EQ(previewed(), QString());
        }
        ModalAnswers answers;
        answers.press(QMessageBox::Ok);
        click("acceptButton");
        EXPECT_TRUE(answers.shown().value(0).contains(u"replacing reference"_s)) << leaves;
        EXPECT_FALSE(isAccepted()) << leaves;
    }
}

TEST_F(ReplaceBlockToXref, ReturnInATableAppliesAndFilesOfTheNextShowingAreRead)
{
    showBlocks(u"directory=%1\nblockstable=WALL^\nblockstablerep=z.dwg^\n"_s.arg(other));
    QTest::keyClick(right(), Qt::Key_Return);
    EXPECT_TRUE(isAccepted());
    host.writeFile(u"other/y.dwg"_s, "0\nEOF\n");
    show();
    EXPECT_EQ(shownTexts(*right()), u"y.dwg z.dwg"_s);
    EXPECT_EQ(selectedTexts(*right()), u"z.dwg"_s);
}

TEST_F(ReplaceBlockToXref, BrowseReplacesTheFolder)
{
    showBlocks(u"directory=%1\n"_s.arg(refs));
    for (const QString &chosen : {QString(), other}) {
        ModalAnswers answers;
        answers.choose(chosen);
        click("selDirectory");
        EXPECT_EQ(answers.shown().value(0).section(u'"', 1, 1), u"Select folder"_s);
        EXPECT_EQ(shownTexts(*right()), chosen.isEmpty() ? u"a.dwg b.DWG"_s : u"z.dwg"_s);
    }
    EXPECT_TRUE(savedState().contains(u"directory="_s + other));
}

TEST_F(ReplaceBlockToXref, CanBeDestroyedWhileTheFolderFieldHasTheFocus)
{
    showBlocks(u"directory=%1\n"_s.arg(refs));
    find("directory")->setFocus();
    dialog.reset();
    EXPECT_FALSE(window.focusWidget());
}

} // namespace
