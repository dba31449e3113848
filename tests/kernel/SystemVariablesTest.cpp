#include "host/kernel/variables/SystemVariables.h"

#include "host/kernel/documents/UndoSteps.h"
#include "host/kernel/platform/Editor.h"
#include "platform/db/OdDbDatabase.h"
#include "tests/kernel/Bench.h"

#include <QRegularExpression>

using namespace host::kernel;
using namespace Qt::StringLiterals;

namespace {

using Variables = LispTable;

TEST_P(Variables, gives)
{
    check();
}

const LispCase variableCases[] = {
    {"any letter case", "(setvar \"cmdecho\" 0)", "(getvar \"CmdEcho\")", "0"},
    {"unknown", "", "(getvar \"NOSUCH\")", "nil"},
    {"setting an unknown one", "", "(setvar \"NOSUCH\" 1)",
     "error: variable setting rejected: \"NOSUCH\" 1 (unknown) in (SETVAR)"},
    {"read-only", "", "(setvar \"DWGNAME\" \"x\")",
     "error: variable setting rejected: \"DWGNAME\" \"x\" (read-only) in (SETVAR)"},
    {"out of range", "", "(setvar \"LUNITS\" 9)",
     "error: variable setting rejected: \"LUNITS\" 9 (out of range) in (SETVAR)"},
    {"of another type", "", "(setvar \"LUNITS\" 2.5)",
     "error: variable setting rejected: \"LUNITS\" 2.5 (of another type) in (SETVAR)"},
    {"an integer for a real", "(setvar \"LTSCALE\" 3)", "(getvar \"LTSCALE\")", "3.0"},
    {"angles are radians", "(setvar \"ANGBASE\" 1.0)", "(equal (getvar \"ANGBASE\") 1.0 1e-12)", "T"},
    {"a layer that exists", "(entmake '((0 . \"LAYER\") (2 . \"A\") (70 . 0)))(setvar \"CLAYER\" \"A\")",
     "(getvar \"CLAYER\")", "\"A\""},
    {"a layer that does not", "", "(setvar \"CLAYER\" \"NONE\")",
     "error: variable setting rejected: \"CLAYER\" \"NONE\" (out of range) in (SETVAR)"},
    {"colour as text", "(setvar \"CECOLOR\" \"3\")", "(getvar \"CECOLOR\")", "\"3\""},
    {"colour by layer", "(setvar \"CECOLOR\" \"3\")(setvar \"CECOLOR\" \"bylayer\")", "(getvar \"CECOLOR\")",
     "\"BYLAYER\""},
    {"the model tab", "", "(list (getvar \"CTAB\") (getvar \"TILEMODE\"))", "(\"Model\" 1)"},
    {"the layout tab", "(setvar \"CTAB\" \"layout1\")", "(list (getvar \"CTAB\") (getvar \"TILEMODE\"))",
     "(\"Layout1\" 0)"},
    {"entities go into the current tab", "(setvar \"TILEMODE\" 0)(command \"POINT\" '(0 0))",
     "(cdr (assoc 67 (entget (entlast))))", "1"},
    {"limits of the sheet are its own",
     "(setq m (getvar \"LIMMAX\"))(setvar \"TILEMODE\" 0)(setvar \"LIMMAX\" '(42 29))",
     "(list (cdr (assoc 11 (dictsearch (cdr (assoc -1 (dictsearch (namedobjdict) \"ACAD_LAYOUT\")))"
     " \"Layout1\"))) (getvar \"LIMMAX\") (getvar \"CVPORT\") (setvar \"TILEMODE\" 1)"
     " (equal m (getvar \"LIMMAX\")) (getvar \"CVPORT\"))",
     "((42.0 29.0 0.0) (42.0 29.0) 1 1 T 2)"},
    {"the memory of programs", "(setvar \"LISPHEAPMAX\" 64)", "(while t (setq l (list l l 1 2 3 4 5 6 7 8)))",
     "error: out of memory (limit 64 MB) in (LIST)"},
    {"too little memory for programs", "", "(setvar \"LISPHEAPMAX\" 15)",
     "error: variable setting rejected: \"LISPHEAPMAX\" 15 (out of range) in (SETVAR)"},
    {"points", "(setvar \"LIMMAX\" '(420 297))", "(getvar \"LIMMAX\")", "(420.0 297.0)"},
    {"extents of an empty drawing", "", "(getvar \"EXTMIN\")", "(1.0e+20 1.0e+20 1.0e+20)"},
    {"extents follow the drawing", "(command \"LINE\" '(1 2) '(30 20) \"\")",
     "(list (getvar \"EXTMIN\") (getvar \"EXTMAX\"))", "((1.0 2.0 0.0) (30.0 20.0 0.0))"},
    {"modified", "(entmake '((0 . \"POINT\") (10 0 0 0)))", "(getvar \"DBMOD\")", "1"},
    {"not modified", "", "(getvar \"DBMOD\")", "0"},
    {"a header variable without a row", "", "(getvar \"SPLINESEGS\")", "8"},
    {"the name of a new drawing", "", "(list (getvar \"DWGNAME\") (getvar \"DWGTITLED\"))", "(\"Drawing1\" 0)"},
    {"numbers follow the drawing", "(setvar \"LUNITS\" 4)(setvar \"LUPREC\" 1)", "(rtos 17.5)", "\"1'-5 1/2\\\"\""},
    {"a group of undo that is open", "(command \"_.UNDO\" \"_BE\")", "(getvar \"UNDOCTL\")", "13"},
};

INSTANTIATE_TEST_SUITE_P(All, Variables, testing::ValuesIn(variableCases));

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

/// Every name can be read and has a kind.
TEST_F(Bench, allNamesAreKnown)
{
    for (const QString &name : document().variables().names())
        EXPECT_TRUE(document().variables().get(name).has_value()) << name.toStdString();
    EXPECT_GT(document().variables().names().size(), 150);
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

} // namespace
