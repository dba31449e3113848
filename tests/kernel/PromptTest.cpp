#include "host/kernel/input/UserInput.h"
#include "host/kernel/variables/SystemVariables.h"
#include "tests/kernel/Bench.h"

using namespace host::kernel;

namespace {

using LispPrompt = LispTable;

TEST_P(LispPrompt, gives)
{
    check();
}

const char *const cancelled = "error: Function cancelled in ";

// What is typed and what the prompt gives.
const LispCase cases[] = {
    {"integer", "", "(getint \"\\nN: \")", "42", "42"},
    {"integer again after a real", "", "(getint)", "7", "4.5\n7"},
    {"integer beyond 32 bits", "", "(getint)", "7", "99999999999\n7"},
    {"empty answer", "", "(getint)", "nil", ""},
    {"empty answer refused", "", "(initget 1)(getint)", "3", "\n3"},
    {"zero refused", "", "(initget 2)(getint)", "-3", "0\n-3"},
    {"negative refused", "", "(initget 4)(getreal)", "0.0", "-1.5\n0"},
    {"all three refused", "", "(initget 7)(getdist)", "2.5", "\n0\n-1\n2.5"},
    {"bits hold for one request", "", "(initget 1)(list (getint) (getint))", "(5 nil)", "5\n\n"},
    {"real in a form of its own", "", "(getreal)", "1000.0", "1e3"},
    {"a blank ends an answer", "", "(list (getint) (getint))", "(1 2)", "1 2"},
    {"distance by points", "", "(getdist)", "5.0", "0,0 3,4"},
    {"distance from a base", "", "(getdist '(0 0))", "10.0", "6,8"},
    {"flat distance", "", "(initget 64)(getdist '(0 0 0))", "5.0", "3,4,12"},
    {"distance in feet", "", "(getdist)", "18.0", "1'-6\""},
    {"distance as a fraction", "", "(getdist)", "0.5", "1/2"},
    {"angle in degrees", "", "(equal (getangle) (/ pi 2) 1e-12)", "T", "90"},
    {"angle by points", "", "(equal (getangle) (/ pi 4) 1e-12)", "T", "1,1 2,2"},
    {"angle counts from ANGBASE", "", "(setvar \"ANGBASE\" (/ pi 2))(equal (getangle '(0 0)) 0.0 1e-12)", "T", "0,5"},
    {"orientation does not", "", "(setvar \"ANGBASE\" (/ pi 2))(equal (getorient '(0 0)) (/ pi 2) 1e-12)", "T", "0,5"},
    {"typed orientation counts from ANGBASE", "", "(setvar \"ANGBASE\" (/ pi 2))(equal (getorient) pi 1e-12)", "T",
     "90"},
    {"two coordinates", "", "(getpoint)", "(1.5 -2.0 0.0)", "1.5,-2"},
    {"three coordinates", "", "(getpoint)", "(1.0 2.0 3.0)", "1,2,3"},
    {"elevation", "", "(setvar \"ELEVATION\" 7.0)(getpoint)", "(1.0 2.0 7.0)", "1,2"},
    {"relative to the last point", "", "(getpoint)(getpoint)", "(4.0 6.0 0.0)", "1,2 @3,4"},
    {"relative to the base", "", "(getpoint '(10.0 10.0))", "(11.0 11.0 0.0)", "@1,1"},
    {"the last point", "", "(getpoint)(getpoint)", "(1.0 2.0 0.0)", "1,2 @"},
    {"polar", "", "(equal (getpoint) '(0.0 5.0 0.0) 1e-9)", "T", "5<90"},
    {"polar and relative", "", "(getpoint)(equal (getpoint) '(1.0 7.0 0.0) 1e-9)", "T", "1,2 @5<90"},
    {"spherical", "", "(equal (getpoint) '(0.0 0.0 5.0) 1e-9)", "T", "5<0<90"},
    {"nonsense is asked again", "", "(getpoint)", "(8.0 9.0 0.0)", "1;2\nabc\n1,\n1,2,3,4\n8,9"},
    {"corner", "", "(getcorner '(0 0))", "(4.0 3.0 0.0)", "4,3"},
    {"keyword instead", "", "(initget \"Undo eXit\")(getpoint)", "\"eXit\"", "x"},
    {"any text instead", "", "(initget 128)(getpoint)", "\"whatever\"", "whatever"},
    {"outside the limits", "", "(setvar \"LIMMAX\" '(5 5))(setvar \"LIMCHECK\" 1)(getpoint)", "(1.0 1.0 0.0)",
     "9,9\n1,1"},
    {"outside the limits but wanted", "", "(setvar \"LIMMAX\" '(5 5))(setvar \"LIMCHECK\" 1)(initget 8)(getpoint)",
     "(9.0 9.0 0.0)", "9,9"},
    {"string up to a blank", "", "(list (getstring) (getstring))", "(\"ab\" \"cd\")", "ab cd"},
    {"string with blanks", "", "(getstring T \"Text: \")", "\"ab cd\"", "ab cd"},
    {"empty string", "", "(getstring)", "\"\"", ""},
    {"keyword by its capitals", "", "(initget \"LType LWeight Color\")(getkword)", "\"LWeight\"", "lw"},
    {"no keyword", "", "(initget 1 \"Yes No\")(getkword)", "\"Yes\"", "maybe\n\ny"},
    {"empty keyword", "", "(initget \"Yes No\")(getkword)", "nil", ""},
    {"keywords before numbers", "", "(initget \"2D 3D\")(getint)", "\"2D\"", "2D"},
};

INSTANTIATE_TEST_SUITE_P(All, LispPrompt, testing::ValuesIn(cases));

TEST_F(Bench, nobodyThereCancelsWithAClearMessage)
{
    EXPECT_EQ(lisp("(getpoint \"\\nWhere: \")"), std::string(cancelled) + "(GETPOINT)");
    EXPECT_NE(takePrinted().find("Nobody is there to answer \"Where:\""), std::string::npos);
}

TEST_F(Bench, escapeCancelsAndThePromptsOptionsAreForgotten)
{
    session.input().push(CancelAnswer{});
    EXPECT_EQ(lisp("(initget 1 \"Yes\")(getpoint)"), std::string(cancelled) + "(GETPOINT)");
    type("\n");
    EXPECT_EQ(lisp("(getpoint)"), "nil");
}

TEST_F(Bench, aRefusedAnswerIsExplained)
{
    type("abc\n5");
    lisp("(getint \"\\nHow many: \")");
    const std::string printed = takePrinted();
    EXPECT_NE(printed.find("How many: abc\n\nRequires an integer value."), std::string::npos) << printed;
}

TEST_F(Bench, thePromptIsKeptAsLastPrompt)
{
    type("5");
    lisp("(getint \"\\nHow many: \")");
    EXPECT_EQ(lisp("(getvar \"LASTPROMPT\")"), "\"How many:\"");
}

TEST_F(Bench, picksAnswerLikeText)
{
    session.input().push(PointAnswer{{3.0, 4.0, 0.0}});
    EXPECT_EQ(lisp("(getpoint)"), "(3.0 4.0 0.0)");
    session.input().push(PointAnswer{{0.0, 0.0, 0.0}});
    session.input().push(PointAnswer{{3.0, 4.0, 0.0}});
    EXPECT_EQ(lisp("(getdist)"), "5.0");
    EXPECT_EQ(lisp("(getvar \"LASTPOINT\")"), "(3.0 4.0 0.0)");
    // A pick is no number.
    session.input().push(PointAnswer{});
    type("9");
    EXPECT_EQ(lisp("(getint)"), "9");
}

/// Pushes its answers one by one when asked.
class ListFeeder final : public InputFeeder
{
public:
    FeedResult feed(const PromptRequest &request, InputQueue &queue) override
    {
        asked.append(request.prompt.trimmed());
        if (answers.isEmpty())
            return FeedResult::NobodyThere;
        queue.pushTyped(answers.takeFirst());
        return FeedResult::Supplied;
    }
    bool poll() override { return stops; }

    QStringList answers;
    QStringList asked;
    bool stops = false;
};

TEST_F(Bench, theFeederIsAskedWhenTheQueueIsEmpty)
{
    ListFeeder feeder;
    feeder.answers = {QStringLiteral("x"), QStringLiteral("6")};
    session.setFeeder(&feeder);
    type("5");
    EXPECT_EQ(lisp("(list (getint \"A: \") (getint \"B: \"))"), "(5 6)");
    EXPECT_EQ(feeder.asked, QStringList({QStringLiteral("B:"), QStringLiteral("B:")}));
    session.setFeeder(nullptr);
}

TEST_F(Bench, theFeederStopsARunawayLoop)
{
    ListFeeder feeder;
    feeder.stops = true;
    session.setFeeder(&feeder);
    EXPECT_EQ(lisp("(while T)").rfind("error: Function cancelled", 0), 0U);
    session.setFeeder(nullptr);
}

TEST_F(Bench, theModulesPromptsGiveResultCodes)
{
    CKvUserInput &input = *document().userInput();
    qint32 number = 7;
    type("\n5\n\nA");
    EXPECT_EQ(input.getInteger(QStringLiteral("N <7>: "), true, number), kRtNormal);
    EXPECT_EQ(number, 7);
    EXPECT_EQ(input.getInteger(QStringLiteral("N: "), false, number), kRtNormal);
    EXPECT_EQ(number, 5);
    EXPECT_EQ(input.getInteger(QStringLiteral("N: "), false, number), kRtNone);
    input.initget(0, {QStringLiteral("Auto")});
    EXPECT_EQ(input.getInteger(QStringLiteral("N: "), false, number), kRtKeyword);
    EXPECT_EQ(input.input(), QStringLiteral("Auto"));
    EXPECT_EQ(input.getInteger(QStringLiteral("N: "), false, number), kRtCancel);
    EXPECT_EQ(number, 5);
}

TEST_F(Bench, theModulesStringsAndKeywords)
{
    CKvUserInput &input = *document().userInput();
    QString text = QStringLiteral("usual");
    type("\nnew text\nE\n\nm");
    EXPECT_EQ(input.getString(QStringLiteral("T: "), true, text), kRtNormal);
    EXPECT_EQ(text, QStringLiteral("usual"));
    EXPECT_EQ(input.getString(QStringLiteral("T: "), true, text), kRtNormal);
    EXPECT_EQ(text, QStringLiteral("new text"));
    input.initget(0, {QStringLiteral("Enter to usual")});
    EXPECT_EQ(input.getString(QStringLiteral("T: "), true, text), kRtKeyword);
    EXPECT_EQ(text, QString());
    EXPECT_EQ(input.input(), QStringLiteral("Enter to usual"));
    text = QStringLiteral("Auto");
    input.initget(0, {QStringLiteral("Auto"), QStringLiteral("Manual")});
    EXPECT_EQ(input.getKeyword(QStringLiteral("K: "), text), kRtNormal);
    EXPECT_EQ(text, QStringLiteral("Auto"));
    input.initget(0, {QStringLiteral("Auto"), QStringLiteral("Manual")});
    EXPECT_EQ(input.getKeyword(QStringLiteral("K: "), text), kRtNormal);
    EXPECT_EQ(text, QStringLiteral("Manual"));
}

TEST_F(Bench, keywordsAndDefaultAreShownOnce)
{
    CKvUserInput &input = *document().userInput();
    input.initget(0, {QStringLiteral("Auto"), QStringLiteral("LTYPE,LT")});
    EXPECT_EQ(input.formatPrompt(QStringLiteral("\nSize"), QStringLiteral("2.5")),
              QStringLiteral("\nSize [Auto/LTYPE] <2.5>: "));
    EXPECT_EQ(input.formatPrompt(QStringLiteral("Size [Auto] <2.5>:"), QStringLiteral("2.5")),
              QStringLiteral("Size [Auto] <2.5>: "));
}

} // namespace
