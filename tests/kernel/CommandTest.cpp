#include "host/drawing/records/Entities.h"
#include "host/kernel/running/CommandStack.h"
#include "host/kernel/running/CommandTable.h"
#include "platform/kernel/CKvDocument.h"
#include "platform/kernel/CKvLispEngine.h"
#include "platform/kernel/CKvUserInput.h"
#include "tests/kernel/Bench.h"

#include <ostream>

using namespace host::kernel;

namespace {

/// The entities of the drawing as "LINE 0,0 1,1" or "CIRCLE 0,0 r5".
std::string shapes(const host::drawing::Drawing &drawing)
{
    QStringList all;
    const auto number = [](double value) { return QString::number(value, 'g', 6); };
    const auto point = [&](const host::drawing::Vec3 &p) { return number(p.x) + u',' + number(p.y); };
    for (host::drawing::RecordId id : drawing.entities().all()) {
        const host::drawing::TagList tags = drawing.tags(id);
        QString text = QString::fromLatin1(drawing.typeName(id)) + u' ' + point(tags.point(10));
        if (drawing.isType(id, "LINE"))
            text += u' ' + point(tags.point(11));
        if (drawing.isType(id, "CIRCLE"))
            text += QStringLiteral(" r") + number(tags.real(40));
        if (drawing.isType(id, "INSERT"))
            text +=
                QStringLiteral(" %1 x%2 y%3 %4")
                    .arg(tags.text(2), number(tags.real(41, 1.0)), number(tags.real(42, 1.0)), number(tags.real(50)));
        if (drawing.isType(id, "LWPOLYLINE"))
            text += QStringLiteral(" n%1 f%2").arg(tags.points(10).size()).arg(tags.integer(70));
        if (drawing.isType(id, "TEXT"))
            text += u' ' + tags.text(1) + QStringLiteral(" h") + number(tags.real(40));
        all.append(text);
    }
    return all.join(QStringLiteral("; ")).toStdString();
}

struct CommandCase
{
    const char *name;
    const char *typed; ///< as a script; null when it cannot be said so
    const char *lisp;  ///< the same through (command); null likewise
    const char *expected;
};

std::ostream &operator<<(std::ostream &stream, const CommandCase &row)
{
    return stream << row.name;
}

class Command : public Bench, public testing::WithParamInterface<CommandCase>
{
};

TEST_P(Command, typedAsAScript)
{
    if (!GetParam().typed)
        GTEST_SKIP();
    runTyped(GetParam().typed);
    EXPECT_EQ(shapes(drawing()), GetParam().expected) << takePrinted();
}

TEST_P(Command, calledFromLisp)
{
    if (!GetParam().lisp)
        GTEST_SKIP();
    lisp(GetParam().lisp);
    EXPECT_EQ(shapes(drawing()), GetParam().expected) << takePrinted();
}

const CommandCase cases[] = {
    {"line", "line 0,0 1,0 1,1 \n", "(command \"_.LINE\" '(0 0) \"1,0\" '(1.0 1.0) \"\")",
     "LINE 0,0 1,0; LINE 1,0 1,1"},
    {"line closed", "l 0,0 1,0 1,1 c\n", "(command \"LINE\" '(0 0) '(1 0) '(1 1) \"_C\")",
     "LINE 0,0 1,0; LINE 1,0 1,1; LINE 1,1 0,0"},
    {"line with undo", "line 0,0 9,9 u 1,0 \n", "(command \"LINE\" '(0 0) '(9 9) \"_U\" '(1 0) \"\")", "LINE 0,0 1,0"},
    {"line with a refused answer", "line 0,0 1,0 nonsense 1,0 \n",
     "(command \"LINE\" '(0 0) '(1 0) \"nonsense\" '(1 0) \"\")", ""},
    {"more than was asked for", nullptr, "(command \"CIRCLE\" '(0 0) 1 2.5 '(3 3) \"x\")(command \"POINT\" '(1 1))",
     "CIRCLE 0,0 r1; POINT 1,1"},
    {"line with an expression", "line (list 1 2) (list 3 4) \n", nullptr, "LINE 1,2 3,4"},
    {"line in two calls", "line 0,0 1,0 2,0 \n",
     "(command \"LINE\" '(0 0))(foreach p '((1 0) (2 0)) (command p))(command \"\")", "LINE 0,0 1,0; LINE 1,0 2,0"},
    {"circle", "circle 1,2 5\n", "(command \"CIRCLE\" '(1 2) 5)", "CIRCLE 1,2 r5"},
    {"circle by diameter", "circle 1,2 d 5\n", "(command \"CIRCLE\" '(1 2) \"_D\" 5.0)", "CIRCLE 1,2 r2.5"},
    {"polyline", "pline 0,0 1,0 1,1 c\n", "(command \"PLINE\" '(0 0) '(1 0) '(1 1) \"C\")", "LWPOLYLINE 0,0 n3 f1"},
    {"text", "text 1,2 3 0 Hello world\n", "(command \"TEXT\" '(1 2) 3.0 0.0 \"Hello world\")",
     "TEXT 1,2 Hello world h3"},
    {"move", "line 0,0 1,0 \nmove l\n\n0,0 5,5\n",
     "(command \"LINE\" '(0 0) '(1 0) \"\")(command \"MOVE\" (entlast) \"\" '(0 0) '(5 5))", "LINE 5,5 6,5"},
    {"move by a displacement", "line 0,0 1,0 \nmove l\n\n5,5\n\n", nullptr, "LINE 5,5 6,5"},
    {"copy", "line 0,0 1,0 \ncopy l\n\n0,0 5,5\n\n",
     "(command \"LINE\" '(0 0) '(1 0) \"\")(command \"COPY\" (ssget \"X\") \"\" '(0 0) '(5 5) \"\")",
     "LINE 0,0 1,0; LINE 5,5 6,5"},
    {"rotate", "line 0,0 2,0 \nrotate l\n\n0,0 90\n",
     "(command \"LINE\" '(0 0) '(2 0) \"\")(command \"ROTATE\" (entlast) \"\" '(0 0) 90)", "LINE 0,0 1.22465e-16,2"},
    {"scale", "circle 1,1 2\nscale l\n\n0,0 2\n",
     "(command \"CIRCLE\" '(1 1) 2)(command \"SCALE\" (entlast) \"\" '(0 0) 2)", "CIRCLE 2,2 r4"},
    {"erase", "line 0,0 1,0 5,5 \nerase l\n\n",
     "(command \"LINE\" '(0 0) '(1 0) '(5 5) \"\")(command \"ERASE\" (entlast) \"\")", "LINE 0,0 1,0"},
    {"erase all but one", "line 0,0 1,0 5,5 \nerase all\nr\nl\n\n", nullptr, "LINE 1,0 5,5"},
    {"unknown command", "nosuch\n", "(command \"NOSUCH\" '(0 0))", ""},
    {"nobody finishes the command", "line 0,0 1,0\n", "(command \"LINE\" '(0 0) '(1 0))", "LINE 0,0 1,0"},
    {"cancelled from Lisp", nullptr, "(command \"LINE\" '(0 0) '(1 0))(command)(command \"CIRCLE\" '(0 0) 1)",
     "LINE 0,0 1,0; CIRCLE 0,0 r1"},
};

INSTANTIATE_TEST_SUITE_P(All, Command, testing::ValuesIn(cases));

const char *const doorFile =
    "(entmake '((0 . \"BLOCK\") (2 . \"Door\") (70 . 2) (10 0 0 0)))"
    "(entmake '((0 . \"LINE\") (8 . \"0\") (10 0 0 0) (11 1 0 0)))"
    "(entmake '((0 . \"ATTDEF\") (8 . \"0\") (10 0 1 0) (40 . 0.5) (1 . \"T30\") (2 . \"FIRE\")"
    " (3 . \"Class\") (70 . 0)))"
    "(entmake '((0 . \"ENDBLK\")))";

TEST_F(Bench, insertPlacesABlockWithItsAttributes)
{
    lisp(doorFile);
    lisp("(command \"_.-INSERT\" \"door\" '(5 5) 2 \"\" 90 \"T90\")");
    EXPECT_EQ(shapes(drawing()), "INSERT 5,5 door x2 y2 90") << takePrinted();
    EXPECT_EQ(lisp("(setq a (entget (entnext (entlast))))(mapcar '(lambda (c) (cdr (assoc c a))) '(0 1 2 40))"),
              "(\"ATTRIB\" \"T90\" \"FIRE\" 1.0)");
    // One unit above the base: turned to the left, twice as far.
    EXPECT_EQ(lisp("(equal (cdr (assoc 10 a)) '(3.0 5.0 0.0) 1e-9)"), "T");
}

TEST_F(Bench, insertProposesTheLastBlock)
{
    lisp(doorFile);
    lisp("(repeat 3 (command \"_.-INSERT\" (if (= (getvar \"INSNAME\") \"\") \"door\" \"\") '(5 5) 1 \"\" 0 \"T90\"))");
    EXPECT_EQ(shapes(drawing()), "INSERT 5,5 door x1 y1 0; INSERT 5,5 door x1 y1 0; INSERT 5,5 door x1 y1 0");
}

TEST_F(Bench, insertTakesTheAttributesDefaultsWithoutAsking)
{
    lisp(doorFile);
    lisp("(setvar \"ATTREQ\" 0)(command \"-INSERT\" \"Door\" '(0 0) 1 1 0)");
    EXPECT_EQ(lisp("(cdr (assoc 1 (entget (entnext (entlast)))))"), "\"T30\"");
}

TEST_F(Bench, wblockAndInsertCarryADrawing)
{
    lisp("(command \"LINE\" '(10 10) '(12 10) \"\")(command \"CIRCLE\" '(50 50) 1)");
    const std::string file = path("symbol.dwg").toStdString();
    lisp("(command \"_.-WBLOCK\" \"" + file + "\" \"\" '(10 10) (ssget \"X\" '((0 . \"LINE\"))) \"\")");
    EXPECT_TRUE(QFileInfo::exists(path("symbol.dwg"))) << takePrinted();
    // What was written stays in the drawing.
    EXPECT_EQ(shapes(drawing()), "LINE 10,10 12,10; CIRCLE 50,50 r1");
    session.documents().create();
    lisp("(command \"_.-INSERT\" \"SYM=" + file + "\" '(1 1) 1 1 0)");
    EXPECT_EQ(shapes(drawing()), "INSERT 1,1 SYM x1 y1 0") << takePrinted();
    EXPECT_EQ(lisp("(cdr (assoc 0 (entget (cdr (assoc -2 (tblsearch \"BLOCK\" \"SYM\"))))))"), "\"LINE\"");
}

TEST_F(Bench, insertOfAMissingFileLeavesNothing)
{
    lisp("(command \"_.-INSERT\" \"nosuch\" '(1 1) 1 1 0)");
    EXPECT_EQ(shapes(drawing()), "");
    EXPECT_NE(takePrinted().find("Cannot find block or file \"nosuch\"."), std::string::npos);
    EXPECT_FALSE(document().isModified());
}

TEST_F(Bench, layerOptions)
{
    lisp("(command \"_.-LAYER\" \"_N\" \"A,B\" \"_C\" \"3\" \"A\" \"_OFF\" \"B\" \"_LO\" \"A\" \"_S\" \"A\" \"_F\" "
         "\"A,B\" \"\")");
    EXPECT_EQ(lisp("(mapcar '(lambda (n) (list (cdr (assoc 62 (tblsearch \"LAYER\" n)))"
                   " (cdr (assoc 70 (tblsearch \"LAYER\" n))))) '(\"A\" \"B\"))"),
              "((3 4) (-7 1))");
    EXPECT_EQ(lisp("(getvar \"CLAYER\")"), "\"A\"");
    EXPECT_NE(takePrinted().find("Cannot freeze layer \"A\""), std::string::npos);
}

TEST_F(Bench, zoomShowsWhatIsAsked)
{
    lisp("(command \"LINE\" '(0 0) '(100 50) \"\")(command \"ZOOM\" \"_E\")");
    const ViewState all = document().view();
    EXPECT_NEAR(all.centre.x, 50.0, 1e-9);
    EXPECT_NEAR(all.centre.y, 25.0, 1e-9);
    lisp("(command \"ZOOM\" \"2x\")");
    EXPECT_NEAR(document().view().height, all.height / 2.0, 1e-9);
    lisp("(command \"ZOOM\" \"_W\" '(0 0) '(10 10))");
    EXPECT_NEAR(document().view().centre.x, 5.0, 1e-9);
    EXPECT_EQ(lisp("(list (getvar \"VIEWCTR\") (< 10 (getvar \"VIEWSIZE\") 11))"), "((5.0 5.0 0.0) T)");
}

TEST_F(Bench, aLispCommandAsksThroughTheSameQueue)
{
    lisp(
        "(defun c:twice ( / p) (setq p (getpoint \"\\nWhere: \")) (command \"CIRCLE\" p pause) (command \"POINT\" p))");
    runTyped("twice 1,2 7\n");
    EXPECT_EQ(shapes(drawing()), "CIRCLE 1,2 r7; POINT 1,2");
    // An empty line repeats the command.
    runTyped("\n3,4 1\n");
    EXPECT_EQ(shapes(drawing()), "CIRCLE 1,2 r7; POINT 1,2; CIRCLE 3,4 r1; POINT 3,4");
}

TEST_F(Bench, whatIsChosenAlreadyIsNotAskedFor)
{
    lisp("(command \"LINE\" (quote (0 0)) (quote (1 0)) (quote (5 5)) \"\")");
    document().setImpliedSelection({drawing().entities().all().front()});
    document().runCommand(QStringLiteral("ERASE"));
    EXPECT_EQ(shapes(drawing()), "LINE 1,0 5,5");
    EXPECT_TRUE(document().impliedSelection().empty());
}

/// A command as a module brings it: asks for a name and a number and prints them.
class LabelCommand final : public OdStaticRxObject<OdEdCommand>
{
public:
    OdString groupName() const override { return QStringLiteral("TEST"); }
    OdString globalName() const override { return QStringLiteral("Label"); }
    void execute(OdEdCommandContext *) override
    {
        CKvUserInput &input = *ACTIVE_DOCUMENT()->userInput();
        OdString name;
        qint32 number = 0;
        if (input.getString(QStringLiteral("Name: "), true, name) != kRtNormal ||
            input.getInteger(QStringLiteral("Number: "), false, number) != kRtNormal)
            name = QStringLiteral("nothing");
        ACTIVE_DOCUMENT()->lispEngine()->print(QStringLiteral("[%1 %2 %3]")
                                                   .arg(name)
                                                   .arg(number)
                                                   .arg(ACTIVE_DOCUMENT()->systemVariable(QStringLiteral("CMDNAMES"))));
    }
};

TEST_F(Bench, commandsOfAModuleTakeTheirAnswersFromProgramAndUser)
{
    LabelCommand label;
    ASSERT_TRUE(session.commandStack().addCommand(&label));
    EXPECT_FALSE(session.commandStack().addCommand(&label)) << "the name is taken";
    const struct
    {
        const char *typed;
        const char *lisp;
        const char *printed;
    } rows[] = {
        {"label a door\n7\n", nullptr, "[a door 7 LABEL]"},
        {nullptr, "(command \"_.LABEL\" \"a door\" 7)", "[a door 7 LABEL]"},
        {"8\n", "(command \"label\" \"gate\" pause)", "[gate 8 LABEL]"},
        {"9\n", "(command \"label\" \"gate\")", "[gate 9 LABEL]"},
        {nullptr, "(command \"label\" nil)", "[nothing 0 LABEL]"},
        {nullptr, "(command \"label\" \"x\" \"no number\" 3)", "[x 3 LABEL]"},
        {nullptr, "(command \"label\" \"x\" 3 \"POINT\" '(1 2) \"label\" \"y\" 4)", "[y 4 LABEL]"},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.lisp ? row.lisp : row.typed);
        takePrinted();
        if (row.typed)
            type(row.typed);
        if (row.lisp)
            lisp(row.lisp);
        else
            document().runQueued();
        EXPECT_NE(takePrinted().find(row.printed), std::string::npos);
        EXPECT_TRUE(session.input().isEmpty());
    }
    EXPECT_EQ(shapes(drawing()), "POINT 1,2") << "the next command follows in the same call";
    lisp("(setvar \"CMDECHO\" 0)");
    takePrinted();
    lisp("(command \"label\" \"quiet\" 7)");
    EXPECT_EQ(takePrinted(), "[quiet 7 LABEL]");

    session.commandStack().removeCommand(&label);
    lisp("(command \"label\" \"x\" 3)");
    EXPECT_NE(takePrinted().find("Unknown command \"LABEL\"."), std::string::npos);
}

/// One that finds no memory when it is half done.
class GreedyCommand final : public OdStaticRxObject<OdEdCommand>
{
public:
    OdString groupName() const override { return QStringLiteral("TEST"); }
    OdString globalName() const override { return QStringLiteral("GREEDY"); }
    void execute(OdEdCommandContext *) override
    {
        ACTIVE_DOCUMENT()->lispEngine()->loadFile(half);
        std::vector<int>().reserve(std::numeric_limits<std::size_t>::max());
    }
    OdString half;
};

TEST_F(Bench, aCommandThatFindsNoMemoryIsTakenBack)
{
    GreedyCommand greedy;
    greedy.half = write("half.lsp", "(entmake '((0 . \"POINT\") (10 1 1 0)))");
    ASSERT_TRUE(session.commandStack().addCommand(&greedy));
    runTyped("greedy\n");
    EXPECT_NE(takePrinted().find("GREEDY: out of memory; nothing was changed."), std::string::npos);
    EXPECT_EQ(lisp("(command \"greedy\")"), "error: out of memory in (COMMAND)");
    EXPECT_EQ(lisp("(+ 1 2)"), "3");
    session.commandStack().removeCommand(&greedy);
    EXPECT_EQ(shapes(drawing()), "POINT 1,1") << "a program may go on with what there is";
}

TEST_F(Bench, anErrorDropsTheCommandUnderWay)
{
    type("7,7");
    lisp("(command \"LINE\" '(0 0))(setq name (getvar \"CMDNAMES\"))(car 5)");
    EXPECT_FALSE(session.input().isEmpty()) << "nothing was asked any more";
    session.input().clear();
    EXPECT_EQ(lisp("(list name (getvar \"CMDNAMES\"))"), "(\"LINE\" \"\")");
    EXPECT_EQ(shapes(drawing()), "");
}

TEST_F(Bench, cmdechoSilencesPrompts)
{
    takePrinted();
    lisp("(setvar \"CMDECHO\" 0)(command \"CIRCLE\" '(0 0) 1)");
    EXPECT_EQ(takePrinted(), "");
    lisp("(setvar \"CMDECHO\" 1)(command \"CIRCLE\" '(0 0) 1)");
    EXPECT_NE(takePrinted().find("Specify center point for circle or [3P/2P/Ttr (tan tan radius)]:"),
              std::string::npos);
}

TEST_F(Bench, aVariablesNameSetsIt)
{
    runTyped("osmode 7\nsetvar cmdecho 0\nlimmax 5,6\n");
    EXPECT_EQ(lisp("(command \"ORTHOMODE\" 1)(mapcar 'getvar '(\"OSMODE\" \"CMDECHO\" \"LIMMAX\" \"ORTHOMODE\"))"),
              "(7 0 (5.0 6.0) 1)");
    runTyped("dwgname\n");
    EXPECT_NE(takePrinted().find("(read only)"), std::string::npos);
}

TEST_F(Bench, aScriptIsTyped)
{
    write("draw.scr", "; two shapes\nline 0,0 1,0 \ncircle 5,5\n2\n");
    document().run(QStringLiteral("(command \"SCRIPT\" \"%1\")").arg(path("draw.scr")));
    runQueued();
    EXPECT_EQ(shapes(drawing()), "LINE 0,0 1,0; CIRCLE 5,5 r2");
    document().run(QStringLiteral("(command \"SCRIPT\" \"none.scr\")"));
    EXPECT_NE(takePrinted().find("Cannot read script"), std::string::npos);
}

TEST_F(Bench, typedExpressionsShowTheirValue)
{
    type("(setq a (+ 1 2))\n!a\n");
    EXPECT_EQ(document().runQueued().value, QStringLiteral("3"));
    EXPECT_EQ(document().runQueued().value, QStringLiteral("3"));
    EXPECT_NE(takePrinted().find("\n3"), std::string::npos);
}

TEST(CommandTable, namesAsPeopleTypeThem)
{
    for (const char *typed : {"LINE", "line", "_.LINE", "._line", "'_LINE"}) {
        const CommandRow *row = CommandTable::find(QString::fromLatin1(typed));
        ASSERT_NE(row, nullptr) << typed;
        EXPECT_STREQ(row->name, "LINE");
    }
    EXPECT_EQ(CommandTable::find(u"-line"), nullptr);
    EXPECT_EQ(CommandTable::find(u"l"), nullptr) << "aliases are the user's";
    EXPECT_EQ(CommandTable::find(u""), nullptr);
}

} // namespace
