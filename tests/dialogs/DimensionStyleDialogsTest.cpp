#include "dialogs/dimensionstyle/Dlg_QT_ExchangedDimensionStyle.h"
#include "dialogs/dimensionstyle/Dlg_QT_ImportDimensionStyle.h"
#include "tests/dialogs/DialogTest.h"

#include <QDir>
#include <QFileInfo>
#include <QTableWidget>

using namespace ortakit::test;
using namespace Qt::StringLiterals;

namespace {

QByteArray section(const char *name, const char *body)
{
    return "DIMENSION_STYLE_NAME " + QByteArray(name) + "\r\n" + body + "END_OF_STYLE\r\n";
}

const QByteArray isoSection =
    section("ISO-25", "DIMFILE 1\r\nDIMSCALE 2.5\r\nDIMASZ 3 x\r\nDIMLT DASHED 14\r\n*D,d\r\nA,1,-1 x\r\nEMPTY\r\n"
                      "DIMTXSTY Roman\r\nDIMTXT_FONT romans\r\n");
const QByteArray archSection = section("Arch Small", "DIMFILE 1\r\nDIMTXSTY Standard\r\n");

template <class Dialog>
class DimensionStyleDialog : public DialogTest<Dialog>
{
protected:
    QTableWidget *styles() const { return this->template find<QTableWidget>("lstStyles"); }

    static QStringList rows(const QTableWidget &table)
    {
        QStringList texts;
        for (int row = 0; row < table.rowCount(); ++row) {
            QStringList cells;
            for (int column = 0; column < table.columnCount(); ++column)
                cells.append(table.item(row, column)->text());
            texts.append(cells.join(u' '));
        }
        return texts;
    }
    QStringList styleRows() const { return rows(*styles()); }
    QStringList variableRows() const { return rows(*this->template find<QTableWidget>("lstVariables")); }

    /// Selects these rows one after the other, as with the Ctrl key held.
    void select(const QList<int> &selected)
    {
        styles()->clearSelection();
        for (const int row : selected)
            styles()->selectionModel()->select(styles()->model()->index(row, 0),
                                               QItemSelectionModel::Select | QItemSelectionModel::Rows);
    }

    QString source = this->host.writeFile(u"all.dim"_s, isoSection + archSection);
};

using ExportDimensionStyle = DimensionStyleDialog<Dlg_QT_ExchangedDimensionStyle>;
using ImportDimensionStyle = DimensionStyleDialog<Dlg_QT_ImportDimensionStyle>;

TEST_F(ExportDimensionStyle, ShowsTheStylesOfTheFileAndTheVariablesOfTheOneThatIsSelected)
{
    showWith(u"filedim=%1\n"_s.arg(source));
    EXPECT_EQ(styleRows(), (QStringList{u"Arch Small"_s, u"ISO-25"_s}));
    // The list has the focus, so its first row is selected.
    EXPECT_EQ(variableRows(), QStringList{u"DIMTXSTY Standard"_s});
    select({1});
    EXPECT_EQ(variableRows(), (QStringList{u"DIMASZ 3"_s, u"DIMLT DASHED"_s, u"DIMSCALE 2.5"_s, u"DIMTXSTY Roman"_s}));
    select({0, 1});
    EXPECT_EQ(variableRows(), QStringList());

    host.writeFile(u"all.dim"_s, isoSection);
    show();
    EXPECT_EQ(styleRows(), QStringList{u"ISO-25"_s});
    showWith(u"filedim=%1\n"_s.arg(source + u".missing"_s));
    EXPECT_EQ(styleRows(), QStringList());
    EXPECT_EQ(variableRows(), QStringList());
}

TEST_F(ExportDimensionStyle, WritesTheSelectedStylesInTheOrderOfTheSelection)
{
    const QByteArray nameOnly = QByteArray(isoSection).replace("DIMTXT_FONT romans\r\n", "");
    const struct
    {
        const char *what;
        QList<int> selected;
        bool full;
        QString chosen;
        QString written;
        QByteArray content;
    } rows[] = {
        {"one, name only", {1}, false, u"one"_s, u"one.dim"_s, nameOnly},
        {"with its text style", {1}, true, u"full.dim"_s, u"full.dim"_s, isoSection},
        {"two, the lower one first", {1, 0}, true, u"two.dim"_s, u"two.dim"_s, isoSection + archSection},
        {"two, the upper one first", {0, 1}, true, u"two.dim"_s, u"two.dim"_s, archSection + isoSection},
        {"another case of the extension", {0}, false, u"big.DIM"_s, u"big.DIM.dim"_s, archSection},
    };
    for (const auto &row : rows) {
        showWith(u"filedim=%1\n"_s.arg(source));
        select(row.selected);
        find<QAbstractButton>(row.full ? "rbFullText" : "rbNameText")->click();
        ModalAnswers answers;
        answers.choose(host.path(row.chosen));
        if (QFileInfo::exists(host.path(row.written)))
            answers.press(QMessageBox::Yes);
        click("selectfile");
        EXPECT_TRUE(isAccepted()) << row.what;
        EXPECT_EQ(FakeHost::readFile(host.path(row.written)), row.content) << row.what;
        EXPECT_EQ(answers.shown().value(0).section(u'"', 1, 1), u"Select Dimension Style file"_s);
        EXPECT_EQ(answers.shown().value(0).section(u'"', 5, 5), u"DimStyle files (*.dim)"_s);
    }
}

TEST_F(ExportDimensionStyle, NothingIsWrittenWithoutAFileOrASelection)
{
    showWith(u"filedim=%1\n"_s.arg(source));
    const QString target = host.path(u"new.dim"_s);
    {
        ModalAnswers cancelled;
        cancelled.choose({});
        click("selectfile");
    }
    styles()->clearSelection();
    ModalAnswers answers;
    answers.choose(target);
    answers.press(QMessageBox::Ok);
    click("selectfile");
    EXPECT_EQ(answers.shown().value(1),
              u"information \"Exchange Dimension Style\" \"No dimension style selected, please "
              "select a dimension style to export. \" OK"_s);
    EXPECT_TRUE(dialog->isVisible());
    EXPECT_FALSE(QFileInfo::exists(target));
}

// The picker asked about "old", the file is "old.dim".
TEST_F(ExportDimensionStyle, AFileThatGetsItsExtensionIsReplacedOnlyWhenTheUserSaysSo)
{
    const QString target = host.writeFile(u"old.dim"_s, "old");
    for (const auto answer : {QMessageBox::No, QMessageBox::Yes}) {
        showWith(u"filedim=%1\n"_s.arg(source));
        ModalAnswers answers;
        answers.choose(host.path(u"old"_s));
        answers.press(answer);
        click("selectfile");
        EXPECT_EQ(answers.shown().value(1), u"question \"Exchange Dimension Style\" \"old.dim already exists. Do you "
                                            "want to replace it?\" Yes/No"_s);
        EXPECT_EQ(FakeHost::readFile(target), answer == QMessageBox::Yes ? archSection : "old");
        EXPECT_EQ(isAccepted(), answer == QMessageBox::Yes);
    }
}

TEST_F(ExportDimensionStyle, ASourceThatIsGoneLeavesTheOldFile)
{
    const QString target = host.writeFile(u"old.dim"_s, "old");
    showWith(u"filedim=%1\n"_s.arg(source));
    ASSERT_TRUE(QFile::remove(source));
    ModalAnswers answers;
    answers.choose(target);
    answers.press(QMessageBox::Yes);
    click("selectfile");
    EXPECT_EQ(FakeHost::readFile(target), "old");
    EXPECT_TRUE(isAccepted());
}

TEST_F(ExportDimensionStyle, ClosesAlsoWhenTheFileCannotBeWritten)
{
    const QString folder = host.path(u"taken.dim"_s);
    ASSERT_TRUE(QDir().mkpath(folder));
    showWith(u"filedim=%1\n"_s.arg(source));
    ModalAnswers answers;
    answers.choose(host.path(u"taken"_s));
    answers.press(QMessageBox::Yes);
    click("selectfile");
    EXPECT_TRUE(isAccepted());
    EXPECT_TRUE(QFileInfo(folder).isDir());
}

TEST_F(ImportDimensionStyle, ShowsTheStylesOfTheChosenFileByTheirFirstWords)
{
    show();
    EXPECT_EQ(focusName(), u"selectfile"_s);
    EXPECT_FALSE(isEnabled("groupBox_2"));
    ModalAnswers answers;
    answers.choose(source);
    click("selectfile");
    EXPECT_EQ(find("txExport")->property("value").toString(), source);
    EXPECT_EQ(styleRows(), (QStringList{u"Arch"_s, u"ISO-25"_s}));

    dialog->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(dialog.get()));
    styles()->setFocus();
    EXPECT_EQ(styles()->selectionModel()->selectedRows().size(), 1);
    select({1});
    EXPECT_EQ(variableRows(), (QStringList{u"DIMASZ 3"_s, u"DIMLT DASHED"_s, u"DIMSCALE 2.5"_s}));

    ModalAnswers cancelled;
    cancelled.choose({});
    click("selectfile");
    EXPECT_EQ(styleRows().size(), 2);
    EXPECT_EQ(variableRows().size(), 3);
}

TEST_F(ImportDimensionStyle, APathThatIsTypedIsListedWhenItIsFinished)
{
    show();
    find("txExport")->setFocus();
    setText("txExport", source);
    QTest::keyClick(find("txExport"), Qt::Key_Return);
    EXPECT_TRUE(dialog->isVisible());
    EXPECT_EQ(styleRows().size(), 2);
    select({0});
    QTest::keyClick(find("txExport"), Qt::Key_Return);
    EXPECT_EQ(styles()->selectionModel()->selectedRows().size(), 1);
}

TEST_F(ImportDimensionStyle, OverwritingIsOfferedForTheClashesThereAre)
{
    const struct
    {
        const char *what;
        QString dimensionStyles;
        QString textStyles;
        QList<int> selected;
        bool offersDimensionStyle;
        bool offersTextStyle;
    } rows[] = {
        {"no clash",
         u"dimstylelength=1\ndimstyle1=Other\n"_s,
         u"textstylelength=1\ntextstyle1=Other\n"_s,
         {1},
         false,
         false},
        {"dimension style",
         u"dimstylelength=2\ndimstyle1=Other\ndimstyle2=ISO-25\n"_s,
         u"textstylelength=0\n"_s,
         {1},
         true,
         false},
        {"text style", u"dimstylelength=0\n"_s, u"textstylelength=1\ntextstyle1=Roman\n"_s, {1}, false, true},
        {"both",
         u"dimstylelength=1\ndimstyle1=ISO-25\n"_s,
         u"textstylelength=1\ntextstyle1=Roman\n"_s,
         {1},
         true,
         true},
        {"another case",
         u"dimstylelength=1\ndimstyle1=iso-25\n"_s,
         u"textstylelength=1\ntextstyle1=ROMAN\n"_s,
         {1},
         false,
         false},
        {"beyond the length",
         u"dimstylelength=1\ndimstyle1=a\ndimstyle2=ISO-25\n"_s,
         u"textstylelength=0\ntextstyle1=Roman\n"_s,
         {1},
         false,
         false},
        {"two styles", u"dimstylelength=0\n"_s, u"textstylelength=0\n"_s, {0, 1}, true, true},
        {"the end of another key",
         u"dimstylelength=1\nmydimstyle1=Other\ndimstyle1=ISO-25\n"_s,
         u"textstylelength=1\nxtextstyle1=Roman\n"_s,
         {1},
         false,
         true},
    };
    for (const auto &row : rows) {
        dialog = std::make_unique<Dlg_QT_ImportDimensionStyle>(&window);
        showWith(u"txexport=%1\ncbtextstyle=TRUE\ncbdimensionstyle=TRUE\n"_s.arg(source) + row.dimensionStyles +
                 row.textStyles);
        select({0});
        find<QAbstractButton>("cbTextStyle")->setChecked(true);
        select(row.selected);
        EXPECT_EQ(isEnabled("groupBox_2"), row.offersDimensionStyle || row.offersTextStyle) << row.what;
        EXPECT_EQ(isEnabled("cbDimensionStyle"), row.offersDimensionStyle) << row.what;
        EXPECT_EQ(isEnabled("cbTextStyle"), row.offersTextStyle) << row.what;
        EXPECT_FALSE(isChecked("cbTextStyle")) << row.what;
        EXPECT_FALSE(isChecked("cbDimensionStyle")) << row.what;
    }
}

TEST_F(ImportDimensionStyle, GivesTheChosenNamesToLisp)
{
    showWith(u"txexport=%1\n"_s.arg(source));
    select({1, 0});
    find<QAbstractButton>("cbDimensionStyle")->click();
    click("acceptButton");
    EXPECT_TRUE(isAccepted());
    const QStringList saved = savedState().split(u'\n');
    for (const QString &line : {u"lststyles=,ISO-25,Arch"_s, u"txexport=%1"_s.arg(source), u"cbtextstyle=FALSE"_s,
                                u"cbdimensionstyle=TRUE"_s})
        EXPECT_TRUE(saved.contains(line)) << line.toStdString();
    EXPECT_EQ(saved.filter(u"lststyles"_s).size(), 1);

    show();
    styles()->clearSelection();
    ModalAnswers answers;
    answers.press(QMessageBox::Ok);
    click("acceptButton");
    EXPECT_EQ(answers.shown(), QStringList{u"information \"\" \"No dimension style selected, please select a dimension "
                                           "style to import. \" OK"_s});
    EXPECT_TRUE(dialog->isVisible());
}

} // namespace
