#include "dialogs/multiviewsetup/Dlg_QT_MultiViewSetup.h"
#include "dialogs/multiviewsetup/ScaleList.h"
#include "dialogs/multiviewsetup/TitleBlockFolder.h"
#include "tests/dialogs/DialogTest.h"

#include <QComboBox>
#include <QDir>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QStackedWidget>
#include <QTableWidget>

using namespace ortakit::test;
using namespace Qt::StringLiterals;

namespace {

TEST(ScaleList, HasTheUsualScalesOfAUnitStyle)
{
    const struct
    {
        UnitStyle style;
        const char *scales;
    } rows[] = {
        {UnitStyle::None, ""},
        {UnitStyle::Scientific, "4 TIMES=4.0 2 TIMES=2.0 FULL=1.0 HALF=0.5 QUARTER=0.25"},
        {UnitStyle::Decimal, "4 TIMES=4.0 2 TIMES=2.0 FULL=1.0 HALF=0.5 QUARTER=0.25"},
        {UnitStyle::Engineering, "1\"=10'=120.0 1\"=20'=240.0 1\"=30'=360.0 1\"=40'=480.0 1\"=50'=600.0 1\"=60'=720.0 "
                                 "1\"=80'=960.0 1\"=100'=1200.0"},
        {UnitStyle::Architectural, "1/40\"=1'=480.0 1/20\"=1'=240.0 1/16\"=1'=192.0 1/8\"=1'=96.0 1/4\"=1'=48.0 "
                                   "1/2\"=1'=24.0 3/4\"=1'=16.0 1\"=1'=12.0 3\"=1'=4.0 6\"=1'=2.0 FULL=1.0"},
        {UnitStyle::Metric, "1:5000=5000 1:2000=2000 1:1000=1000 1:500=500 1:200=200 1:100=100 1:75=75 1:50=50 "
                            "1:20=20 1:10=10 1:5=5 1:1=1"},
    };
    for (const auto &row : rows) {
        QStringList scales;
        for (const QStringList &cells : scaleRows(row.style))
            scales.append(cells.join(u'='));
        EXPECT_EQ(scales.join(u' '), QString::fromLatin1(row.scales)) << int(row.style);
    }
}

class MultiViewSetup : public DialogTest<Dlg_QT_MultiViewSetup>
{
protected:
    QTableWidget *blocks() const { return find<QTableWidget>("lstBlocks"); }
    QTableWidget *scales() const { return find<QTableWidget>("msLstScales"); }
    QString label(const char *name) const { return find<QLabel>(name)->text(); }
    static QStringList firstColumn(const QTableWidget &table)
    {
        QStringList texts;
        for (int row = 0; row < table.rowCount(); ++row)
            texts.append(table.item(row, 0)->text());
        return texts;
    }
    QStringList listed() const
    {
        QStringList files = firstColumn(*blocks());
        files.sort();
        return files;
    }
    static void select(QTableWidget *table, const QList<int> &rows)
    {
        table->clearSelection();
        for (const int row : rows)
            table->selectionModel()->select(table->model()->index(row, 0),
                                            QItemSelectionModel::Select | QItemSelectionModel::Rows);
    }
    void addFiles(const QString &folder, const QStringList &names)
    {
        QDir().mkpath(host.path(folder));
        for (const QString &name : names)
            host.writeFile(folder + u'/' + name, "0\nEOF\n");
    }

    const QString templates = host.path(u"support/Template"_s);
    const QString missing = u"warning \"\" \"Cannot find the specified Path.\" OK"_s;
};

TEST_F(MultiViewSetup, DrawingFilesWithOneDotInTheirNamesAreListed)
{
    addFiles(u"support/Template"_s,
             {u"plan.DWG"_s, u"a.b.dwg"_s, u"notes.txt"_s, u"sheet.dxf"_s, u"dwg"_s, u"x.dwg2"_s, u"čas.Dxf"_s});
    QDir(templates).mkdir(u"folder.dwg"_s);
    EXPECT_EQ(titleBlockFiles(templates).size(), 3);
    EXPECT_EQ(titleBlockFiles(templates + u"/missing"_s), QStringList());
    show();
    EXPECT_EQ(listed(), (QStringList{u"plan.DWG"_s, u"sheet.dxf"_s, u"čas.Dxf"_s}));
    EXPECT_EQ(firstColumn(*blocks()), titleBlockFiles(templates));
}

TEST_F(MultiViewSetup, PagesAndWidgetsFollowTheChoices)
{
    const struct
    {
        const char *clicked;
        const char *space;
        const char *tool;
        const char *action; ///< the default button
        bool array;
    } steps[] = {
        {"psCreate", "pagePaper", "pageCreate", "CreateViewports", false},
        {"arrayViewp", "pagePaper", "pageCreate", "CreateViewports", true},
        {"singleViewp", "pagePaper", "pageCreate", "CreateViewports", false},
        {"psAlign", "pagePaper", "pageAlign", "AlignViewports", false},
        {"psScale", "pagePaper", "pageScale", "ScaleViewports", false},
        {"SpaceModel", "pageModel", "pageScale", "InsertMsTitle", false},
        {"SpacePaper", "pagePaper", "pageScale", "ScaleViewports", false},
        {"psTitle", "pagePaper", "pageTitle", "InsertTitle", false},
    };
    show();
    for (const auto &step : steps) {
        click(step.clicked);
        EXPECT_EQ(find<QStackedWidget>("PageSpace")->currentWidget(), find(step.space)) << step.clicked;
        EXPECT_EQ(find<QStackedWidget>("psPages")->currentWidget(), find(step.tool)) << step.clicked;
        EXPECT_TRUE(find<QPushButton>(step.action)->isDefault()) << step.clicked;
        for (const char *name : {"viewrows", "viewcols", "viewoffsetx", "viewoffsety", "labelRows", "pictureViewports"})
            EXPECT_EQ(isEnabled(name), step.array) << step.clicked << ' ' << name;
    }
    EXPECT_FALSE(isEnabled("layer"));
    click("oplay");
    EXPECT_TRUE(isEnabled("layer"));
}

TEST_F(MultiViewSetup, TheFactorIsThatOfTheOneChosenScale)
{
    showWith(u"spacemodel=TRUE\nmsmetric=TRUE\n"_s);
    const struct
    {
        QList<int> rows;
        const char *factor;
    } steps[] = {{{7}, "50"}, {{0}, "5000"}, {{0, 1}, "1.0"}, {{11}, "1"}, {{}, "1.0"}};
    for (const auto &step : steps) {
        select(scales(), step.rows);
        EXPECT_EQ(text("curScale"), QString::fromLatin1(step.factor));
    }
    select(scales(), {7});
    click("msMetric");
    EXPECT_EQ(text("curScale"), u"50"_s) << "the same scales stay chosen";
    click("msDecimal");
    EXPECT_EQ(firstColumn(*scales()).value(0), u"4 TIMES"_s);
    EXPECT_EQ(text("curScale"), u"1.0"_s);

    find<QRadioButton>("msDecimal")->setAutoExclusive(false);
    click("msDecimal");
    EXPECT_EQ(scales()->rowCount(), 0) << "no unit style";
    EXPECT_EQ(text("curScale"), u"1.0"_s);
}

TEST_F(MultiViewSetup, TheBlockIsTheOneSelectedRowOrElseTheFirst)
{
    addFiles(u"support/Template"_s, {u"a.dwg"_s, u"b.dwg"_s, u"c.dwg"_s});
    showWith({});
    EXPECT_FALSE(isEnabled("InsertTitle"));
    const struct
    {
        QList<int> rows;
        int inserted;
    } steps[] = {{{2}, 2}, {{1, 2}, 0}, {{0, 1, 2}, 0}, {{1}, 1}};
    for (const auto &step : steps) {
        show();
        select(blocks(), step.rows);
        ASSERT_TRUE(isEnabled("InsertTitle"));
        const QString expected = blocks()->item(step.inserted, 0)->text();
        click("InsertTitle");
        EXPECT_TRUE(isAccepted());
        EXPECT_EQ(label("titleblock"), expected);
        const QString saved = savedState();
        EXPECT_TRUE(saved.contains(u"titleblock=%1\n"_s.arg(expected))) << saved.toStdString();
        EXPECT_TRUE(saved.contains(u"directory=%1/support/Template\n"_s.arg(host.path({})).replace(u"//"_s, u"/"_s)))
            << saved.toStdString();
        EXPECT_EQ(dialog->state().action(), u"INSERTTITLE"_s);
    }
    show();
    EXPECT_TRUE(isEnabled("InsertTitle")) << "what was selected stays selected when the dialog comes back";
    blocks()->clearSelection();
    EXPECT_FALSE(isEnabled("InsertTitle"));
}

TEST_F(MultiViewSetup, EachButtonClosesWithItsWord)
{
    const struct
    {
        const char *page;
        const char *button;
        const char *action;
    } rows[] = {
        {"psCreate", "CreateViewports", "CREATEVIEWPORTS"}, {"psAlign", "AlignViewports", "ALIGNVIEWPORTS"},
        {"psScale", "ScaleViewports", "SCALEVIEWPORTS"},    {"SpaceModel", "InsertMsTitle", "INSERTMSTITLE"},
        {"SpacePaper", "ButtonCancel", "CANCEL"},
    };
    for (const auto &row : rows) {
        show();
        EXPECT_EQ(dialog->state().action(), u"CANCEL"_s) << row.button;
        click(row.page);
        click(row.button);
        EXPECT_EQ(dialog->state().action(), QString::fromLatin1(row.action));
        EXPECT_EQ(isAccepted(), row.button != std::string_view("ButtonCancel")) << row.button;
    }
}

// Folder, lists and what is selected in them all come from the state; later files change nothing that is shown.
TEST_F(MultiViewSetup, TheFirstShowingTakesTheState)
{
    addFiles(u"own"_s, {u"a3.dwg"_s, u"a4.dwg"_s});
    showWith(u"directory=%1\nlstblocks=a4.dwg^\nunitstitle=Meters\nspacemodel=TRUE\nmsmetric=TRUE\nmslstscales=1:50^\n"
             "curscale=55\noplay=TRUE\nlayer=SHEET\n"_s.arg(host.path(u"own"_s)));
    EXPECT_EQ(listed(), (QStringList{u"a3.dwg"_s, u"a4.dwg"_s}));
    EXPECT_TRUE(isEnabled("InsertTitle"));
    EXPECT_TRUE(isEnabled("layer"));
    EXPECT_EQ(find<QComboBox>("UnitsTitle")->currentText(), u"Meters"_s);
    EXPECT_EQ(scales()->selectedItems().value(0)->text(), u"1:50"_s);
    EXPECT_EQ(text("curScale"), u"55"_s) << "typed beside the chosen scale";

    showWith(u"curscale=1\nmsdecimal=TRUE\n"_s);
    EXPECT_EQ(text("curScale"), u"55"_s);
    click("InsertMsTitle");
    const QString saved = savedState();
    for (const QString &line : {u"lstblocks=a4.dwg^\n"_s, u"!action!=INSERTMSTITLE\n"_s, u"mslstscales=1:50^\n"_s,
                                u"curscale=55\n"_s, u"unitstitle_index=2\n"_s, u"layer=SHEET\n"_s})
        EXPECT_TRUE(saved.contains(line)) << line.toStdString() << " in\n" << saved.toStdString();
}

TEST_F(MultiViewSetup, AFolderThatIsNotThereIsSaidAndTheListStays)
{
    addFiles(u"own"_s, {u"a3.dwg"_s});
    showWith(u"directory=%1\n"_s.arg(host.path(u"own"_s)));
    ModalAnswers answers;
    answers.press(QMessageBox::Ok);
    ASSERT_TRUE(QDir(host.path(u"own"_s)).removeRecursively());
    show();
    EXPECT_EQ(answers.shown(), QStringList{missing});
    EXPECT_EQ(listed(), QStringList{u"a3.dwg"_s});

    addFiles(u"other"_s, {u"a1.dxf"_s});
    answers.choose(host.path(u"other"_s));
    click("selDir");
    EXPECT_EQ(listed(), QStringList{u"a1.dxf"_s});
    EXPECT_EQ(dialog->findChild<QLabel *>(u"directory"_s)->property("value").toString(), host.path(u"other"_s));
    answers.choose({});
    click("selDir");
    EXPECT_EQ(listed(), QStringList{u"a1.dxf"_s});
    EXPECT_TRUE(answers.shown().last().startsWith(u"choose \"Specify folder\" \"%1\""_s.arg(host.path(u"other"_s))));
}

TEST_F(MultiViewSetup, AMissingTemplateFolderIsSaidOnce)
{
    ASSERT_TRUE(QDir(templates).removeRecursively());
    ModalAnswers answers;
    answers.press(QMessageBox::Ok);
    show();
    EXPECT_EQ(answers.shown(), QStringList{missing});
    EXPECT_EQ(listed(), QStringList());
}

} // namespace
