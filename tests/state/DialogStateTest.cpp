#include "state/exchange/DialogState.h"

#include "tests/state/Gallery.h"
#include "tests/support/ModuleTest.h"
#include "tests/support/Texts.h"

namespace {

const QByteArray bom = "\xEF\xBB\xBF";

/// A dialog of plain widgets with a state, and a host to find a folder in.
struct DialogStateTest : testing::Test
{
    FakeHost host;
    QDialog dialog;
    DialogState state{&dialog};

    QLineEdit *addEdit(const QString &name, const QString &text = {})
    {
        auto *edit = new QLineEdit(text, &dialog);
        edit->setObjectName(name);
        edit->resize(500, 20);
        return edit;
    }

    void loadText(const QByteArray &content) { state.load(host.writeFile(u"in"_s, content)); }

    QByteArray saved()
    {
        state.save();
        return FakeHost::readFile(state.filePath());
    }
};

TEST_F(DialogStateTest, EveryWidgetOfADialogIsWrittenInOrder)
{
    Gallery gallery;
    gallery.check->setChecked(true);
    gallery.angle->setUnitValue(M_PI / 2);
    gallery.real->setValue(0.5);
    gallery.whole->setValue(3);
    gallery.table->selectRow(1);
    DialogState all(&gallery);
    all.setAction(u"OK"_s);
    all.load(host.path(u"state"_s));
    all.save();
    EXPECT_EQ(FakeHost::readFile(host.path(u"state"_s)), bom + testText("state/gallery.state"));
}

TEST_F(DialogStateTest, TheActionFollowsTheFirstWidgetAndItsIndex)
{
    QComboBox box(&dialog);
    box.setObjectName(u"Scale"_s);
    box.addItems({u"1:1"_s, u"1:2"_s});
    addEdit(u"second"_s, u"2"_s);
    // The action, its line, and the key that gives the value back.
    const std::tuple<QString, QByteArray, QString, QString> rows[] = {
        {{}, "!action!=\n", u"!action!"_s, {}},
        {u"CREATE"_s, "!action!=CREATE\n", u"!Action!"_s, u"CREATE"_s},
        {u"GET_BLOCK=Door"_s, "!action!GET_BLOCK=Door\n", u"!action!get_block"_s, u"Door"_s},
    };
    for (const auto &[action, line, key, readBack] : rows) {
        loadText("");
        state.setAction(action);
        EXPECT_EQ(saved(), bom + "scale=1:1\nscale_index=0\n" + line + "second=2\n");
        DialogState reader(&dialog);
        reader.load(state.filePath());
        EXPECT_EQ(reader.lookup(key), readBack);
    }
}

TEST_F(DialogStateTest, ADialogWithoutValuesLeavesAnEmptyFile)
{
    addEdit(u"empty"_s);
    addEdit({}, u"has no name"_s);
    loadText("old content\n");
    state.setAction(u"OK"_s);
    EXPECT_EQ(saved(), QByteArray());
}

TEST_F(DialogStateTest, OnlyWhatTheFilterNamesAndNothingExcludedIsSet)
{
    const QLineEdit *one = addEdit(u"One"_s);
    const QLineEdit *two = addEdit(u"Two"_s);
    loadText("one=1\ntwo=2\n");
    EXPECT_FALSE(state.isLoaded());
    state.apply(u"ONE"_s);
    EXPECT_TRUE(state.isLoaded());
    EXPECT_EQ(one->text() + u'/' + two->text(), u"1/"_s);

    loadText("one=3\ntwo=4\n");
    state.apply({}, {u"one="_s, u"Two="_s, u"two"_s});
    EXPECT_EQ(one->text() + u'/' + two->text(), u"1/4"_s) << "excluded keys are compared as they are";
}

TEST_F(DialogStateTest, ValuesStayUntilALineReplacesThem)
{
    const QLineEdit *edit = addEdit(u"name"_s);
    loadText("name=first\nother=1\n");
    loadText("other=2\n");
    state.apply();
    EXPECT_EQ(edit->text(), u"first"_s);
    EXPECT_EQ(state.lines(), (QStringList{u"name=first"_s, u"other=2"_s}));
    loadText("name=\n");
    state.apply();
    EXPECT_EQ(edit->text(), u"first"_s) << "an empty value sets nothing";
}

TEST_F(DialogStateTest, AListIsAsLongAsItsLengthSays)
{
    loadText(R"(style1=Standard
stylelength=2
style2=Roman
style3=old
dimlength=2000000000
dim7=ISO-25
odd1=a
)");
    EXPECT_EQ(state.lookupList(u"style"_s), (QStringList{u"Standard"_s, u"Roman"_s}));
    EXPECT_EQ(state.lookupList(u"dim"_s), QStringList{u"ISO-25"_s});
    EXPECT_EQ(state.lookupList(u"odd"_s), QStringList());
}

// What a program wants in another form than the widget has takes the place of the widget's line.
TEST_F(DialogStateTest, AWrittenValueTakesThePlaceOfTheWidgetsOrStandsBehindThem)
{
    addEdit(u"lstNames"_s, u"A^B^"_s);
    addEdit(u"other"_s, u"x"_s);
    loadText({});
    state.setWrittenValue(u"lstNames"_s, u",A,B"_s);
    state.setWrittenValue(u"Current"_s, u"Upper"_s);
    state.setWrittenValue(u"empty"_s, {});
    EXPECT_EQ(saved(), bom + "lstnames=,A,B\n!action!=\nother=x\ncurrent=Upper\n");
    state.setWrittenValue(u"LSTNAMES"_s, {});
    EXPECT_EQ(saved(), bom + "other=x\n!action!=\ncurrent=Upper\n");
}

// What an earlier call's file said must not undo what the user did since.
TEST_F(DialogStateTest, TheLastFileAloneIsApplied)
{
    QLineEdit *first = addEdit(u"first"_s);
    QLineEdit *second = addEdit(u"second"_s);
    loadText("first=a\nsecond=b\n");
    state.apply();
    first->setText(u"typed"_s);
    second->setText(u"typed"_s);
    loadText("second=c\n");
    state.applyLastFile();
    EXPECT_EQ(first->text(), u"typed"_s);
    EXPECT_EQ(second->text(), u"c"_s);
    EXPECT_EQ(state.lookup(u"first"_s), u"a"_s);
    EXPECT_EQ(state.lookupInLastFile(u"first"_s), QString());

    second->setText(u"typed"_s);
    state.load(host.path(u"missing"_s));
    state.applyLastFile();
    EXPECT_EQ(second->text(), u"typed"_s);
}

TEST_F(DialogStateTest, SettingAWidgetMayDeleteAnother)
{
    auto *check = new QCheckBox(&dialog);
    check->setObjectName(u"first"_s);
    QPointer<QLineEdit> edit = addEdit(u"second"_s);
    QObject::connect(check, &QCheckBox::toggled, &dialog, [edit] { delete edit; });
    loadText("first=TRUE\nsecond=x\n");
    state.apply();
    EXPECT_FALSE(edit);
}

TEST_F(DialogStateTest, FilesThatCannotBeReadOrWrittenAreIgnored)
{
    QLineEdit *edit = addEdit(u"name"_s, u"kept"_s);
    const QString file = host.writeFile(u"file"_s, "untouched");
    for (const QString &path : {host.path(u"missing/state"_s), file + u"/below"_s, u"/dev/full"_s, host.path({})}) {
        state.load(path);
        state.apply();
        state.save();
        EXPECT_EQ(state.filePath(), path);
        EXPECT_FALSE(QFileInfo(path).isFile());
    }
    EXPECT_EQ(edit->text(), u"kept"_s);
    EXPECT_EQ(FakeHost::readFile(file), "untouched");
    state.load({});
    EXPECT_EQ(state.filePath(), host.path({})) << "an empty path changes nothing";
    state.load(host.writeFile(u"large"_s, "name=large\n" + QByteArray(17 * 1024 * 1024, '\n')));
    EXPECT_EQ(state.lines(), QStringList());
}

TEST_F(DialogStateTest, HostileFilesSetWhatTheySayAndNothingBreaks)
{
    addEdit(u"name"_s);
    addEdit(u"end"_s);
    for (const QByteArray &piece : {"x"_ba, "\n"_ba, "="_ba, "\0"_ba, "\xC3"_ba, "name=x\n"_ba, "Name=x\n"_ba}) {
        loadText(piece.repeated(100'000) + "\nend=reached\n");
        state.apply();
        EXPECT_EQ(state.lookup(u"end"_s), u"reached"_s) << piece.toStdString();
        state.setLines({});
    }
}

TEST_F(DialogStateTest, AMovedDialogKeepsItsPlace)
{
    dialog.setGeometry(40, 50, 300, 200);
    dialog.setAttribute(Qt::WA_Moved, false);
    loadText("a=1\n");
    EXPECT_TRUE(dialog.testAttribute(Qt::WA_Moved)) << "a dialog with a place is not centred again";
    QDialog fresh;
    DialogState(&fresh).load({});
    EXPECT_FALSE(fresh.testAttribute(Qt::WA_Moved));
}

TEST_F(DialogStateTest, TheFolderForFavouritesIsMade)
{
    EXPECT_EQ(state.favouritesFolder(), host.path(u"Ortakit/Favorites"_s));
    EXPECT_TRUE(QFileInfo(state.favouritesFolder()).isDir());
    EXPECT_FALSE(dialog.windowFlags() & Qt::WindowContextHelpButtonHint);

    host.document().setSystemVariable(u"LOGFILEPATH"_s, host.path(u"a"_s));
    EXPECT_EQ(DialogState(&dialog).favouritesFolder(), host.path(u"aOrtakit/Favorites"_s)) << "right behind it";
    host.documents().close(&host.document());
    EXPECT_EQ(DialogState(&dialog).favouritesFolder(), u"Ortakit/Favorites"_s);
    EXPECT_FALSE(QFileInfo::exists(u"Ortakit"_s)) << "nothing appears in the current folder";
}

} // namespace
