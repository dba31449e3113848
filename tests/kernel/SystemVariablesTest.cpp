#include "host/kernel/variables/SystemVariables.h"

#include "host/drawing/records/HeaderVariables.h"
#include "host/kernel/documents/UndoSteps.h"
#include "host/kernel/platform/Editor.h"
#include "host/kernel/variables/VariableHelp.h"
#include "platform/db/OdDbDatabase.h"
#include "tests/kernel/Bench.h"

#include <QRegularExpression>

using namespace host::kernel;
using namespace Qt::StringLiterals;

namespace {

TEST_F(Bench, aSettingKeptInAnObjectIsStoredWhenTheRunEnds)
{
    const char *const countObjects = "(if (dictsearch (namedobjdict) \"ACAD_WIPEOUT_VARS\") 1 0)";
    EXPECT_EQ(lisp("(getvar \"WIPEOUTFRAME\")"), "1");
    EXPECT_EQ(lisp("(setvar \"WIPEOUTFRAME\" 0)(setvar \"WIPEOUTFRAME\" 1)"), "1");
    EXPECT_FALSE(document().isModified()) << "changed and put back";
    EXPECT_EQ(lisp(countObjects), "0");

    EXPECT_EQ(lisp("(setvar \"WIPEOUTFRAME\" 0)(getvar \"WIPEOUTFRAME\")"), "0");
    EXPECT_TRUE(document().isModified());
    EXPECT_EQ(lisp(countObjects), "1");
    EXPECT_EQ(document().undoSteps().undo(), 1);
    EXPECT_EQ(lisp("(getvar \"WIPEOUTFRAME\")"), "1");
    EXPECT_FALSE(document().isModified());
    EXPECT_EQ(lisp("(setvar \"WIPEOUTFRAME\" 3)").rfind("error", 0), 0U);
}

TEST_F(Bench, aProgramSavesWhatItSetInTheSameRun)
{
    const QString file = path("saved.dxf");
    lisp("(setvar \"WIPEOUTFRAME\" 0)(command \"SAVEAS\" \"" + file.toStdString() + "\")");
    QFile saved(file);
    ASSERT_TRUE(saved.open(QIODevice::ReadOnly));
    EXPECT_TRUE(saved.readAll().contains("AcDbWipeoutVariables"));
    EXPECT_FALSE(document().isModified());
}

TEST_F(Bench, aCurrentLinetypeWithoutANameIsTheLayers)
{
    document().drawing().header().set(u"$CELTYPE", host::drawing::Field{6, QString()});
    EXPECT_EQ(lisp("(command \"LINE\" '(0 0) '(1 0) \"\")(list (getvar \"CELTYPE\") (assoc 6 (entget (entlast))))"),
              "(\"ByLayer\" nil)");
}

TEST_F(Bench, modulesReadAndSetVariablesThroughTheDatabase)
{
    OdDbDatabase &database = *document().database();
    const auto stored = [&database](const char *name, const OdResBufPtr &value) {
        return database.setSysVar(QString::fromLatin1(name), *value);
    };
    EXPECT_TRUE(stored("wipeoutframe", OdResBuf::newInteger(OdResBuf::kRtShort, 0)));
    EXPECT_EQ(database.getSysVar(u"WIPEOUTFRAME"_s)->restype(), int(OdResBuf::kRtShort));
    EXPECT_EQ(lisp("(getvar \"WIPEOUTFRAME\")"), "0");
    EXPECT_TRUE(document().undoSteps().canUndo());
    EXPECT_TRUE(stored("LTSCALE", OdResBuf::newReal(OdResBuf::kRtReal, 2.5)));
    EXPECT_EQ(database.getSysVar(u"ltscale"_s)->getDouble(), 2.5);
    EXPECT_TRUE(stored("LIMMAX", OdResBuf::newPoint(OdResBuf::kRtPoint, {420, 297, 0})));
    EXPECT_EQ(database.getSysVar(u"LIMMAX"_s)->getPoint3d(), (OdGePoint3d{420, 297, 0}));
    EXPECT_FALSE(stored("WIPEOUTFRAME", OdResBuf::newInteger(OdResBuf::kRtShort, 7)));
    EXPECT_FALSE(stored("DWGNAME", OdResBuf::newString(OdResBuf::kRtString, u"x"_s)));
    EXPECT_FALSE(stored("NOSUCH", OdResBuf::newInteger(OdResBuf::kRtShort, 1)));
    EXPECT_FALSE(stored("WIPEOUTFRAME", OdResBuf::newRb(OdResBuf::kRtNil)));
    EXPECT_EQ(database.getSysVar(u"NOSUCH"_s), nullptr);
}

TEST_F(Bench, theHomeFolderEndsWithASeparator)
{
    const QString home = QDir::cleanPath(path("home"));
    EXPECT_EQ(document().systemVariable(QStringLiteral("logfilepath")), home + u'/');
    EXPECT_TRUE(QFileInfo(home).isDir());
    EXPECT_EQ(lisp("(setvar \"LOGFILEPATH\" \"" + path("").toStdString() + "\")").rfind("error", 0), std::string::npos);
    EXPECT_TRUE(document().systemVariable(QStringLiteral("LOGFILEPATH")).endsWith(u'/'));
    EXPECT_EQ(lisp("(setvar \"LOGFILEPATH\" \"/no/such/folder\")").rfind("error", 0), 0U);
}

TEST(Home, theEnvironmentSaysWhere)
{
    const QTemporaryDir folder;
    qputenv("ORTAKIT_HOME", folder.filePath(QStringLiteral("h")).toUtf8());
    EXPECT_EQ(Session().home(), QDir::cleanPath(folder.filePath(QStringLiteral("h"))));
    EXPECT_EQ(Session({.home = folder.filePath(QStringLiteral("i")), .supportFolders = {}, .helpFolder = {}}).home(),
              QDir::cleanPath(folder.filePath(QStringLiteral("i"))));
    qunsetenv("ORTAKIT_HOME");
}

TEST_F(Bench, datesAreNow)
{
    const QString date = document().systemVariable(QStringLiteral("CDATE"));
    EXPECT_TRUE(date.startsWith(QDate::currentDate().toString(QStringLiteral("yyyyMMdd")))) << date.toStdString();
    EXPECT_EQ(lisp("(fix (getvar \"DATE\"))"), std::to_string(QDate::currentDate().toJulianDay()));
}

class VariableListener final : public OdStaticRxObject<OdEditorReactor>
{
public:
    void sysVarWillChange(OdDbDatabase *database, const OdString &name) override
    {
        names.append(name);
        valueThen = ACTIVE_DOCUMENT()->systemVariable(name);
        lastDatabase = database;
    }

    QStringList names;
    QString valueThen;
    OdDbDatabase *lastDatabase = nullptr;
};

TEST_F(Bench, reactorsHearBeforeAVariableChanges)
{
    VariableListener listener;
    session.editor().addReactor(&listener);
    session.editor().addReactor(&listener);
    lisp("(setvar \"Osmode\" 1)(setvar \"OSMODE\" 2)");
    EXPECT_EQ(listener.names, QStringList({QStringLiteral("Osmode"), QStringLiteral("OSMODE")}));
    EXPECT_EQ(listener.valueThen, QStringLiteral("1"));
    EXPECT_EQ(listener.lastDatabase, document().database());
    listener.names.clear();
    lisp("(setvar \"LUNITS\" 99)");
    EXPECT_TRUE(listener.names.isEmpty()) << "a refused value changes nothing";
    type("5");
    lisp("(getint \"N: \")");
    EXPECT_EQ(listener.names, QStringList({QStringLiteral("LASTPROMPT")}));
    session.editor().removeReactor(&listener);
    lisp("(setvar \"OSMODE\" 3)");
    EXPECT_EQ(listener.names.size(), 1);
}

TEST_F(Bench, theUsersSettingsOutliveTheSessionAndOthersDoNot)
{
    lisp("(setvar \"OSMODE\" 35)(setvar \"FONTALT\" \"a,b\")(setvar \"ZOOMFACTOR\" 40)(setvar \"ZOOMFACTOR\" 60)"
         "(setvar \"EXPERT\" 3)(setvar \"USERS1\" \"x\")");
    const QByteArray kept = read("home/settings.ini");
    EXPECT_TRUE(kept.contains("OSMODE=35")) << kept.toStdString();
    EXPECT_FALSE(kept.contains("EXPERT"));
    Session next({.home = path("home"), .supportFolders = {}, .helpFolder = {}});
    const auto then = [&](QStringView name) { return next.documents().create()->variables().display(name); };
    EXPECT_EQ(then(u"OSMODE"), u"35");
    EXPECT_EQ(then(u"FONTALT"), u"a,b");
    EXPECT_EQ(then(u"EXPERT"), u"0");
    EXPECT_EQ(then(u"USERS1"), u"");
}

TEST_F(Bench, aSettingThatAnotherProgramSpoiltIsTheUsualOne)
{
    Session next(homeIn("spoilt"));
    next.settings().setTexts(u"Variables"_s, {{u"PICKBOX"_s, u"900"_s}, {u"APERTURE"_s, u"x"_s}});
    Session later({.home = next.home(), .supportFolders = {}, .helpFolder = {}});
    SystemVariables &variables = later.documents().create()->variables();
    EXPECT_EQ(variables.integer(u"PICKBOX"), 3);
    EXPECT_EQ(variables.integer(u"APERTURE"), 10);
}

TEST_F(Bench, aDrawingThatDoesNotSayAVariableHasItsDefault)
{
    const QByteArray old =
        "0\nSECTION\n2\nHEADER\n9\n$ACADVER\n1\nAC1009\n0\nENDSEC\n0\nSECTION\n2\nENTITIES\n0\nENDSEC\n0\nEOF\n";
    Document *opened = session.documents().open(write("old.dxf", old)).document;
    ASSERT_TRUE(opened);
    SystemVariables &variables = opened->variables();
    EXPECT_EQ(variables.real(u"DIMTXT"), 0.18) << "inches";
    EXPECT_EQ(variables.text(u"DIMDSEP"), u".");
    opened->runAs(u"A"_s, [&] { EXPECT_EQ(variables.set(u"DIMTXT", 0.18), SetOutcome::Done); });
    EXPECT_EQ(opened->drawing().toBytes(), old) << "nothing new was said";
    // What the format of that version has no name for lasts as long as the document.
    opened->runAs(u"B"_s, [&] { EXPECT_EQ(variables.set(u"DIMLWD", 50), SetOutcome::Done); });
    EXPECT_EQ(variables.integer(u"DIMLWD"), 50);
    EXPECT_EQ(opened->drawing().toBytes(), old);
    opened->runAs(u"C"_s, [&] { EXPECT_EQ(variables.set(u"DIMTXT", 5), SetOutcome::Done); });
    EXPECT_TRUE(opened->drawing().toBytes().contains("$DIMTXT\n40\n5.0"));
    EXPECT_EQ(opened->undoSteps().undo(), 1);
    EXPECT_EQ(opened->drawing().toBytes(), old);
}

TEST_F(Bench, linesOfHelpAreOfVariablesThatThereAre)
{
    for (const auto rows : {dimensionHelp(), helpToK(), helpFromL()}) {
        EXPECT_TRUE(std::ranges::is_sorted(rows, {}, [](const auto &row) { return std::string_view(row.name); }));
        for (const VariableHelp &row : rows)
            EXPECT_TRUE(document().variables().get(QString::fromLatin1(row.name))) << row.name;
    }
}

} // namespace
