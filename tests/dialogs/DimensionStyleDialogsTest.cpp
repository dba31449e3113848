#include "dialogs/dimensionstyle/Dlg_QT_ExchangedDimensionStyle.h"
#include "dialogs/dimensionstyle/Dlg_QT_ImportDimensionStyle.h"
#include "tests/dialogs/DialogTest.h"
#include "tests/support/Texts.h"

namespace {

const QByteArray isoSection = testText("dialogs/dimensionstyle/iso.dim"); // lines end with "\r\n"
const QByteArray archSection = testText("dialogs/dimensionstyle/arch.dim");

template <class Dialog>
class DimensionStyleDialog : public DialogTest<Dialog>
{
protected:
    QTableWidget *styles() const { return this->template find<QTableWidget>("lstStyles"); }
    void select(const QList<int> &rows) { this->selectRows(styles(), rows); }
    QString styleRows() const { return this->tableText("lstStyles"); }
    QString variableRows() const { return this->tableText("lstVariables"); }

    QString source = this->host.writeFile(u"all.dim"_s, isoSection + archSection);
};

using ExportDimensionStyle = DimensionStyleDialog<Dlg_QT_ExchangedDimensionStyle>;
using ImportDimensionStyle = DimensionStyleDialog<Dlg_QT_ImportDimensionStyle>;

TEST_F(ExportDimensionStyle, ShowsTheStylesOfTheFileAndTheVariablesOfTheOneThatIsSelected)
{
    showWith(u"filedim=%1\n"_s.arg(source));
    EXPECT_EQ(styleRows(), u"Arch Small ISO-25"_s);
    // The list has the focus, so its first row is selected.
    EXPECT_EQ(variableRows(), u"DIMTXSTY|Standard"_s);
    select({1});
    EXPECT_EQ(variableRows(), u"DIMASZ|3 DIMLT|DASHED DIMSCALE|2.5 DIMTXSTY|Roman"_s);
    select({0, 1});
    EXPECT_EQ(variableRows(), QString());

    host.writeFile(u"all.dim"_s, isoSection);
    show();
    EXPECT_EQ(styleRows(), u"ISO-25"_s);
    showWith(u"filedim=%1\n"_s.arg(source + u".missing"_s));
    EXPECT_EQ(styleRows() + variableRows(), QString());
}

TEST_F(ExportDimensionStyle, WritesTheSelectedStylesInTheOrderOfTheSelection)
{
    const QByteArray nameOnly = QByteArray(isoSection).replace("DIMTXT_FONT romans\r\n", "");
    const std::tuple<QList<int>, const char *, QString, QString, QByteArray> rows[] = {
        {{1}, "rbNameText", u"one"_s, u"one.dim"_s, nameOnly},
        {{1}, "rbFullText", u"full.dim"_s, u"full.dim"_s, isoSection},
        {{1, 0}, "rbFullText", u"down.dim"_s, u"down.dim"_s, isoSection + archSection},
        {{0, 1}, "rbFullText", u"big.DIM"_s, u"big.DIM.dim"_s, archSection + isoSection},
    };
    for (const auto &[selected, kind, chosen, written, content] : rows) {
        showWith(u"filedim=%1\n"_s.arg(source));
        select(selected);
        click(kind);
        shownChoosing("selectfile", host.path(chosen));
        EXPECT_TRUE(isAccepted()) << written.toStdString();
        EXPECT_EQ(FakeHost::readFile(host.path(written)), content) << written.toStdString();
        EXPECT_EQ(missingInState({u"exportfile="_s + host.path(written), u"exportedstyles=%1"_s.arg(selected.size())}),
                  QStringList());
    }
}

TEST_F(ExportDimensionStyle, NothingIsWrittenWithoutAFileOrASelection)
{
    showWith(u"filedim=%1\n"_s.arg(source));
    shownChoosing("selectfile", {});
    styles()->clearSelection();
    const QString target = host.path(u"new.dim"_s);
    EXPECT_TRUE(shownChoosing("selectfile", target).value(1).contains(u"No dimension style selected"_s));
    EXPECT_TRUE(dialog->isVisible());
    EXPECT_FALSE(QFileInfo::exists(target));
}

TEST_F(ExportDimensionStyle, WhatIsThereIsReplacedOnlyByStylesAndWhenTheUserSaysSo)
{
    const QString target = host.writeFile(u"old.dim"_s, "old");
    for (const auto answer : {QMessageBox::No, QMessageBox::Yes}) {
        showWith(u"filedim=%1\n"_s.arg(source));
        // The picker asks about "old", the file is "old.dim".
        EXPECT_TRUE(
            shownChoosing("selectfile", host.path(u"old"_s), {answer}).value(1).contains(u"\"old.dim already"_s));
        EXPECT_EQ(FakeHost::readFile(target), answer == QMessageBox::Yes ? archSection : "old");
        EXPECT_EQ(isAccepted(), answer == QMessageBox::Yes);
    }

    // Without its source, or when the file cannot be written, the dialog closes and leaves what there is.
    show();
    ASSERT_TRUE(QFile::remove(source));
    shownChoosing("selectfile", target, {QMessageBox::Yes});
    EXPECT_EQ(FakeHost::readFile(target), archSection);
    EXPECT_TRUE(isAccepted());
    host.writeFile(u"all.dim"_s, archSection);
    ASSERT_TRUE(QDir().mkpath(host.path(u"taken.dim"_s)));
    show();
    shownChoosing("selectfile", host.path(u"taken"_s), {QMessageBox::Yes});
    EXPECT_TRUE(QFileInfo(host.path(u"taken.dim"_s)).isDir());
    EXPECT_TRUE(isAccepted());
    EXPECT_FALSE(savedState().contains(u"exportedstyles"_s));
}

TEST_F(ImportDimensionStyle, ShowsTheStylesOfTheChosenFileByTheirFirstWords)
{
    show();
    EXPECT_EQ(focusName(), u"selectfile"_s);
    EXPECT_FALSE(isEnabled("groupBox_2"));
    shownChoosing("selectfile", source);
    EXPECT_EQ(fullText("txExport"), source);
    EXPECT_EQ(styleRows(), u"Arch ISO-25"_s);

    dialog->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(dialog.get()));
    styles()->setFocus();
    EXPECT_EQ(styles()->selectionModel()->selectedRows().size(), 1);
    select({1});
    EXPECT_EQ(variableRows(), u"DIMASZ|3 DIMLT|DASHED DIMSCALE|2.5"_s);

    shownChoosing("selectfile", {});
    EXPECT_EQ(variableRows().count(u'|'), 3) << "cancelled";
}

TEST_F(ImportDimensionStyle, APathThatIsTypedIsListedWhenItIsFinished)
{
    show();
    enterText("txExport", source);
    EXPECT_TRUE(dialog->isVisible());
    EXPECT_EQ(styleRows(), u"Arch ISO-25"_s);
    select({0});
    QTest::keyClick(find("txExport"), Qt::Key_Return);
    EXPECT_EQ(styles()->selectionModel()->selectedRows().size(), 1);
}

TEST_F(ImportDimensionStyle, OverwritingIsOfferedForTheClashesThereAre)
{
    const QString both = u"groupBox_2 cbDimensionStyle cbTextStyle"_s;
    // What the drawing has, what is selected, and what is offered.
    const std::tuple<const char *, QString, QList<int>, QString> rows[] = {
        {"dimension style",
         u"dimstylelength=2\ndimstyle1=Other\ndimstyle2=ISO-25\n"_s,
         {1},
         u"groupBox_2 cbDimensionStyle"_s},
        {"text style", u"textstylelength=1\ntextstyle1=Roman\n"_s, {1}, u"groupBox_2 cbTextStyle"_s},
        {"another case", u"dimstylelength=1\ndimstyle1=iso-25\ntextstylelength=1\ntextstyle1=ROMAN\n"_s, {1}, {}},
        {"two styles", u"dimstylelength=0\ntextstylelength=0\n"_s, {0, 1}, both},
        {"the end of another key", u"dimstylelength=1\nmydimstyle1=Other\ndimstyle1=ISO-25\n"_s, {1}, {}},
    };
    for (const auto &[what, existing, selected, offered] : rows) {
        SetUp();
        showWith(u"txexport=%1\ncbtextstyle=TRUE\ncbdimensionstyle=TRUE\n"_s.arg(source) + existing);
        select({0});
        find<QAbstractButton>("cbTextStyle")->setChecked(true);
        select(selected);
        EXPECT_EQ(enabledOf(both), offered) << what;
        EXPECT_FALSE(isChecked("cbTextStyle") || isChecked("cbDimensionStyle")) << what;
    }
}

TEST_F(ImportDimensionStyle, GivesTheChosenNamesToLisp)
{
    showWith(u"txexport=%1\n"_s.arg(source));
    select({1, 0});
    click("cbDimensionStyle");
    click("acceptButton");
    EXPECT_TRUE(isAccepted());
    EXPECT_EQ(missingInState({u"lststyles=,ISO-25,Arch"_s, u"txexport="_s + source, u"cbtextstyle=FALSE"_s,
                              u"cbdimensionstyle=TRUE"_s}),
              QStringList());

    show();
    styles()->clearSelection();
    EXPECT_TRUE(shownBy("acceptButton").value(0).contains(u"No dimension style selected"_s));
    EXPECT_TRUE(dialog->isVisible());
}

} // namespace
