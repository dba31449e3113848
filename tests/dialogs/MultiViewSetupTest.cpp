#include "dialogs/multiviewsetup/Dlg_QT_MultiViewSetup.h"
#include "tests/dialogs/DialogTest.h"

#include <QRadioButton>

namespace {

class MultiViewSetup : public DialogTest<Dlg_QT_MultiViewSetup>
{
protected:
    QTableWidget *blocks() const { return find<QTableWidget>("lstBlocks"); }
    QTableWidget *scales() const { return find<QTableWidget>("msLstScales"); }
    QStringList listed() const
    {
        QStringList files = tableRows("lstBlocks");
        files.sort();
        return files;
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
    show();
    EXPECT_EQ(listed(), (QStringList{u"plan.DWG"_s, u"sheet.dxf"_s, u"čas.Dxf"_s}));
}

TEST_F(MultiViewSetup, PagesAndWidgetsFollowTheChoices)
{
    const QString arrayOptions = u"viewrows viewcols viewoffsetx viewoffsety labelRows pictureViewports"_s;
    const std::tuple<const char *, const char *, bool> steps[] = {
        {"psCreate", "CreateViewports", false},    {"arrayViewp", "CreateViewports", true},
        {"singleViewp", "CreateViewports", false}, {"psAlign", "AlignViewports", false},
        {"psScale", "ScaleViewports", false},      {"SpaceModel", "InsertMsTitle", false},
        {"SpacePaper", "ScaleViewports", false},   {"psTitle", "InsertTitle", false},
    };
    show();
    for (const auto &[clicked, action, array] : steps) {
        click(clicked);
        EXPECT_TRUE(find(action)->isVisible() && find<QPushButton>(action)->isDefault()) << clicked;
        EXPECT_EQ(enabledOf(arrayOptions), array ? arrayOptions : QString()) << clicked;
    }
    click("psTitle");
    EXPECT_TRUE(find<QRadioButton>("psTitle")->isChecked()) << "a choice that is made already stays";
    EXPECT_FALSE(isEnabled("layer"));
    click("oplay");
    EXPECT_TRUE(isEnabled("layer"));
}

TEST_F(MultiViewSetup, TheFactorIsThatOfTheOneChosenScale)
{
    showWith(u"spacemodel=TRUE\nmsmetric=TRUE\n"_s);
    const std::pair<QList<int>, QString> steps[] = {{{7}, u"50"_s}, {{0, 1}, u"1.0"_s}, {{11}, u"1"_s}, {{}, u"1.0"_s}};
    for (const auto &[rows, factor] : steps) {
        selectRows(scales(), rows);
        EXPECT_EQ(text("curScale"), factor);
    }
    selectRows(scales(), {7});
    click("msMetric");
    EXPECT_EQ(text("curScale"), u"50"_s) << "the same scales stay chosen";
    const std::pair<const char *, QString> styles[] = {
        {"msArchitectural", u"1/8\"=1'|96.0"_s},
        {"msEngeneering", u"1\"=10'|120.0"_s},
        {"msScientific", u"4 TIMES|4.0"_s},
        {"msDecimal", u"QUARTER|0.25"_s},
    };
    for (const auto &[style, scale] : styles) {
        click(style);
        EXPECT_TRUE(tableRows("msLstScales").contains(scale)) << style;
        EXPECT_EQ(text("curScale"), u"1.0"_s) << style;
    }
}

TEST_F(MultiViewSetup, TheBlockIsTheOneSelectedRowOrElseTheFirst)
{
    addFiles(u"support/Template"_s, {u"a.dwg"_s, u"b.dwg"_s, u"c.dwg"_s});
    showWith({});
    EXPECT_FALSE(isEnabled("InsertTitle"));
    const std::pair<QList<int>, int> steps[] = {{{2}, 2}, {{1, 2}, 0}, {{1}, 1}};
    for (const auto &[rows, inserted] : steps) {
        show();
        selectRows(blocks(), rows);
        ASSERT_TRUE(isEnabled("InsertTitle"));
        const QString expected = tableRows("lstBlocks").value(inserted);
        click("InsertTitle");
        EXPECT_TRUE(isAccepted());
        EXPECT_EQ(missingInState({u"titleblock="_s + expected, u"directory="_s + QDir::cleanPath(templates),
                                  u"!action!=INSERTTITLE"_s}),
                  QStringList());
    }
    show();
    EXPECT_TRUE(isEnabled("InsertTitle")) << "what was selected stays selected when the dialog comes back";
    blocks()->clearSelection();
    EXPECT_FALSE(isEnabled("InsertTitle"));
}

TEST_F(MultiViewSetup, EachButtonClosesWithItsWord)
{
    const std::tuple<const char *, const char *, QString> rows[] = {
        {"psCreate", "CreateViewports", u"CREATEVIEWPORTS"_s}, {"psAlign", "AlignViewports", u"ALIGNVIEWPORTS"_s},
        {"psScale", "ScaleViewports", u"SCALEVIEWPORTS"_s},    {"SpaceModel", "InsertMsTitle", u"INSERTMSTITLE"_s},
        {"SpacePaper", "ButtonCancel", u"CANCEL"_s},
    };
    for (const auto &[page, button, action] : rows) {
        show();
        EXPECT_EQ(dialog->state().action(), u"CANCEL"_s) << button;
        click(page);
        click(button);
        EXPECT_EQ(dialog->state().action(), action);
        EXPECT_EQ(isAccepted(), action != u"CANCEL"_s) << button;
    }
}

// Folder, lists and what is selected in them all come from the state; later files change nothing that is shown.
TEST_F(MultiViewSetup, TheFirstShowingTakesTheState)
{
    addFiles(u"own"_s, {u"a3.dwg"_s, u"a4.dwg"_s});
    showWith(uR"(directory=%1
lstblocks=a4.dwg^
unitstitle=Meters
spacemodel=TRUE
msmetric=TRUE
mslstscales=1:50^
curscale=55
oplay=TRUE
layer=SHEET
)"_s.arg(host.path(u"own"_s)));
    EXPECT_EQ(listed(), (QStringList{u"a3.dwg"_s, u"a4.dwg"_s}));
    EXPECT_TRUE(isEnabled("InsertTitle"));
    EXPECT_TRUE(isEnabled("layer"));
    EXPECT_EQ(find<QComboBox>("UnitsTitle")->currentText(), u"Meters"_s);
    EXPECT_EQ(text("curScale"), u"55"_s) << "typed beside the chosen scale";

    showWith(u"curscale=1\nmsdecimal=TRUE\n"_s);
    EXPECT_EQ(text("curScale"), u"55"_s);
    click("InsertMsTitle");
    EXPECT_EQ(missingInState({u"lstblocks=a4.dwg^"_s, u"!action!=INSERTMSTITLE"_s, u"mslstscales=1:50^"_s,
                              u"curscale=55"_s, u"unitstitle_index=2"_s, u"layer=SHEET"_s}),
              QStringList());
}

TEST_F(MultiViewSetup, AFolderThatIsNotThereIsSaidOnceAndTheListStays)
{
    const auto shownOnceMore = [this] {
        const ModalAnswers answers;
        show();
        return answers.shown();
    };
    ASSERT_TRUE(QDir(templates).removeRecursively());
    EXPECT_EQ(shownOnceMore(), QStringList()) << "made again, with the usual title blocks";
    EXPECT_EQ(listed().size(), 8);

    SetUp();
    addFiles(u"own"_s, {u"a3.dwg"_s});
    showWith(u"directory=%1\n"_s.arg(host.path(u"own"_s)));
    ASSERT_TRUE(QDir(host.path(u"own"_s)).removeRecursively());
    EXPECT_EQ(shownOnceMore(), QStringList{missing});
    EXPECT_EQ(listed(), QStringList{u"a3.dwg"_s});
    addFiles(u"other"_s, {u"a1.dxf"_s});
    shownChoosing("selDir", host.path(u"other"_s));
    EXPECT_EQ(fullText("directory"), host.path(u"other"_s));
    EXPECT_TRUE(shownChoosing("selDir", {}).value(0).contains(u" \"%1\""_s.arg(host.path(u"other"_s))));
    EXPECT_EQ(listed(), QStringList{u"a1.dxf"_s}) << "cancelled";
}

} // namespace
