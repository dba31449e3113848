#include "dialogs/mergesheets/Dlg_QT_MergeSheets.h"
#include "tests/dialogs/DialogTest.h"

namespace {

class MergeSheets : public DialogTest<Dlg_QT_MergeSheets>
{
protected:
    QTableWidget *list() const { return find<QTableWidget>("lstSheets"); }
    void showSheets(const QStringList &sheets, const QString &state = {})
    {
        dialog->setSheets(sheets);
        showWith(state);
    }
    void check(int row, bool checked) { list()->item(row, 0)->setCheckState(checked ? Qt::Checked : Qt::Unchecked); }
    QString message() const { return find<QLabel>("nameMessage")->text(); }
    QString inHost(const QString &name) const { return QDir::cleanPath(host.path(name)); }
};

TEST_F(MergeSheets, NamesSheetsAfterLayoutsAndFiles)
{
    const QString longest(255, u'x');
    const auto refuse = EqualNames::Refuse;
    const auto number = EqualNames::Number;
    // Sheets, prefix, names and a letter for the problem of each: Good, Empty, Long, Model or Repeated.
    const std::tuple<QString, QString, EqualNames, QString, std::string> rows[] = {
        {u"Plan|D:\\a.b\\Roof.v2.DWG|/home/x=y/z.dxf|.dwg|dwg"_s, u"A-"_s, refuse, u"A-Plan|A-Roof.v2|A-z|A-|A-dwg"_s,
         "GGGGG"},
        {u"Plan|PLAN|x/plan.dwg|Section"_s, {}, refuse, u"Plan|PLAN|plan|Section"_s, "GRRG"},
        {u"Plan|PLAN|Plan (2)|plan|Model"_s, {}, number, u"Plan|PLAN (2)|Plan (2) (2)|plan (3)|Model (2)"_s, "GGGGG"},
        {u"Model|model.dwg||  "_s, {}, refuse, u"Model|model||  "_s, "MMEE"},
        {u"odel"_s, u"M"_s, refuse, u"Model"_s, "M"},
        {u"a,b;c.dwg|1\t2"_s, {}, refuse, u"a_b_c|1_2"_s, "GG"},
        {longest + u'|' + longest + u'x', {}, refuse, longest + u'|' + longest + u'x', "GL"},
        {longest + u'|' + longest, {}, number, longest + u'|' + longest + u" (2)"_s, "GL"},
    };
    for (const auto &[sheets, prefix, equal, names, letters] : rows) {
        QStringList texts;
        std::string problems;
        for (const auto &name : mergedSheetNames(sheets.split(u'|'), prefix, equal)) {
            texts.append(name.text);
            problems += "GELMR"[int(name.problem)];
        }
        EXPECT_EQ(texts.join(u'|'), names);
        EXPECT_EQ(problems, letters) << names.toStdString();
    }
}

TEST_F(MergeSheets, TwentyThousandSheetsDoNotHang)
{
    click("numberEqual");
    showSheets(QStringList(20000, u"Plan"_s));
    setText("prefix", u"A "_s);
    click("selectAll");
    click("selectAll");
    EXPECT_EQ(tableRows("lstSheets").last(), u"Plan|A Plan (20000)"_s);
}

TEST_F(MergeSheets, LispLearnsWhichSheetsInWhichOrderUnderWhichNames)
{
    showSheets({u"Plan"_s, u"a^b"_s, u"D:\\x\\Plan.dwg"_s, u"Roof"_s},
               u"prefix=N \nlstsheets=Roof prefix=no^\nselectall=FALSE\n"_s);
    EXPECT_EQ(text("prefix"), u"N "_s);
    EXPECT_TRUE(isChecked("selectAll")) << "each call starts with all sheets";
    EXPECT_EQ(message(), u"Two sheets have the name \"N Plan\"."_s);
    EXPECT_FALSE(list()->item(2, 1)->icon().isNull());
    click("numberEqual");
    EXPECT_EQ(tableRows("lstSheets").value(2), u"D:\\x\\Plan.dwg|N Plan (2)"_s);
    EXPECT_TRUE(list()->item(2, 1)->icon().isNull());
    selectRows(list(), {2});
    click("moveTop");
    check(3, false);
    EXPECT_EQ(tableText("lstSheets"), u"D:\\x\\Plan.dwg|N Plan Plan|N Plan (2) a^b|N a^b Roof|"_s);
    EXPECT_EQ(message(), u"3 of 4 sheets are merged."_s);
    EXPECT_FALSE(isChecked("selectAll"));
    click("acceptButton");
    EXPECT_TRUE(isAccepted());
    EXPECT_EQ(missingInState({u"lstsheets=D:\\x\\Plan.dwg^Plan^a^b^"_s, u"sheetnumbers=3^1^2^"_s,
                              u"newnames=N Plan^N Plan (2)^N a^b^"_s, u"prefix=N "_s, u"numberequal=TRUE"_s,
                              u"tocurrent=TRUE"_s, u"!action!=OK"_s}),
              QStringList());
    showSheets({u"Roof"_s, u"Plan"_s});
    EXPECT_EQ(tableText("lstSheets"), u"Roof|N Roof Plan|N Plan"_s);
}

// The state's way with texts that look shortened, or are shown so, must not change a name.
TEST_F(MergeSheets, ThePrefixIsWrittenAsItIs)
{
    const QString longPrefix(200, u'W');
    showSheets({u"Plan"_s}, u"prefix="_s + longPrefix + u'\n');
    EXPECT_EQ(tableRows("lstSheets").value(0), u"Plan|"_s + longPrefix + u"Plan"_s);
    for (const QString &prefix : {u"A..."_s, u"B\u2026"_s, u"C"_s}) {
        setText("prefix", prefix);
        EXPECT_EQ(missingInState({u"prefix="_s + prefix}), QStringList());
    }
    showSheets({QString(200, u'n'), QString(200, u'N')});
    EXPECT_LT(dialog->width(), 800) << "a message of a long name";
}

TEST_F(MergeSheets, SheetsAreCheckedTogether)
{
    showSheets({u"a"_s, u"b"_s, u"c"_s});
    EXPECT_EQ(focusName(), u"lstSheets"_s);
    selectRows(list(), {0, 2});
    QTest::keyClick(list(), Qt::Key_Space);
    EXPECT_EQ(message(), u"1 of 3 sheets are merged."_s);
    QTest::keyClick(list(), Qt::Key_Space);
    EXPECT_TRUE(isChecked("selectAll"));
    click("selectAll");
    EXPECT_EQ(shownBy("acceptButton", {QMessageBox::Ok}),
              QStringList{u"information \"Merge Sheets\" \"Select the sheets to merge.\" OK"_s});
    EXPECT_TRUE(dialog->isVisible());
    showSheets({});
    EXPECT_EQ(enabledOf(u"selectAll moveTop moveUp moveDown moveBottom"_s), QString());
}

TEST_F(MergeSheets, RefusesNamesThatADrawingCannotHave)
{
    const std::pair<QString, QString> rows[] = {
        {u"A/"_s, u"A name cannot have any of < > / \\ \" : ; ? * | , = `"_s},
        {u"A=1"_s, u"A name cannot have any of < > / \\ \" : ; ? * | , = `"_s},
        {QString(252, u'x'), u"A name has at most 255 characters."_s},
        {u"mo"_s, u"No sheet can have the name \"model\"."_s},
    };
    showSheets({u"Plan"_s, u"del"_s});
    for (const auto &[prefix, shown] : rows) {
        setText("prefix", prefix);
        EXPECT_EQ(message(), shown);
        EXPECT_EQ(shownBy("acceptButton"), QStringList{u"warning \"Merge Sheets\" \"%1\" OK"_s.arg(shown)});
        EXPECT_TRUE(dialog->isVisible());
        EXPECT_EQ(focusName(), u"prefix"_s);
    }
}

TEST_F(MergeSheets, TheTargetIsANewDrawing)
{
    const QString old = host.writeFile(u"old.dwg"_s, "x");
    const QString sheet = host.writeFile(u"sheet.dxf"_s, "x");
    const QString own = host.writeFile(u"own.DXF"_s, "x");
    ASSERT_TRUE(QFile::link(sheet, host.path(u"link.dxf"_s)));
    host.document().fakeDatabase().setFilename(own);
    const QString self = u"The target cannot be the current drawing or one of its sheets."_s;
    const QString replace = u"\"old\" already exists. Do you want to replace it?"_s;
    // Typed, said, answered, and the target: none when it is refused.
    using enum QMessageBox::StandardButton;
    const std::tuple<QString, QString, QList<QMessageBox::StandardButton>, QString> rows[] = {
        {{}, u"Filename can`t be empty"_s, {}, {}},
        {u"no/such/folder/x.dwg"_s, u"Cannot find the specified Path."_s, {}, {}},
        {u"a;b.dwg"_s, u"not valid in File names"_s, {}, {}},
        {own, self, {}, {}},
        {u"own"_s, self, {}, {}},
        {u"link.dxf"_s, self, {}, {}}, // another way to a sheet
        {old, replace, {No}, {}},
        {old, replace, {Yes}, old},
        {u"new"_s, {}, {}, inHost(u"new.DXF"_s)},
        {u"new.dwg"_s, {}, {}, inHost(u"new.dwg"_s)},
    };
    for (const auto &[typed, said, answers, target] : rows) {
        showSheets({u"Plan"_s, u"sheet.dxf"_s});
        find<QAbstractButton>("toNew")->setChecked(true);
        find("targetFile")->setFocus();
        setText("targetFile", typed);
        const QStringList shown = shownBy("acceptButton", answers);
        EXPECT_EQ(shown.size(), said.isEmpty() ? 0 : 1) << typed.toStdString();
        EXPECT_TRUE(shown.value(0).contains(said)) << typed.toStdString();
        EXPECT_EQ(isAccepted(), !target.isEmpty()) << typed.toStdString();
        const QStringList lines{u"targetfile="_s + target, u"tonew=TRUE"_s};
        EXPECT_EQ(target.isEmpty() ? QStringList() : missingInState(lines), QStringList());
    }
    EXPECT_EQ(FakeHost::readFile(old), "x");
    click("toCurrent");
    EXPECT_EQ(enabledOf(u"targetFile selectTarget"_s), QString());
}

TEST_F(MergeSheets, TheTargetIsPickedWithItsExtension)
{
    showSheets({u"Plan"_s});
    click("toNew");
    EXPECT_EQ(shownChoosing("selectTarget", host.path(u"picked"_s)).size(), 1);
    EXPECT_EQ(fullText("targetFile"), inHost(u"picked.dxf"_s)) << "of a drawing without a file";
    shownChoosing("selectTarget", {});
    EXPECT_EQ(fullText("targetFile"), inHost(u"picked.dxf"_s));
    host.document().fakeDatabase().setFilename(host.path(u"plan.dwg"_s));
    shownChoosing("selectTarget", host.path(u"plan"_s));
    EXPECT_EQ(fullText("targetFile"), inHost(u"plan.dxf"_s)) << "not every host writes DWG files";
}

TEST_F(MergeSheets, AFavouriteKeepsPrefixAndTargetAndLeavesTheSheets)
{
    showSheets({u"a"_s, u"b"_s});
    setText("prefix", u"P "_s);
    click("toNew");
    saveFavourite("cb_favorits", "saveFavorite", u"Site"_s);
    click("toCurrent");
    setText("prefix", {});
    check(0, false);
    pickFavourite("cb_favorits", u"Site"_s);
    EXPECT_EQ(tableText("lstSheets"), u"a| b|P b"_s);
    EXPECT_TRUE(isEnabled("targetFile"));
}

} // namespace
