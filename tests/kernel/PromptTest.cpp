#include "host/drawing/records/Entities.h"
#include "host/kernel/documents/ScreenSketch.h"
#include "host/kernel/input/PointAim.h"
#include "host/kernel/input/UserInput.h"
#include "host/kernel/variables/SystemVariables.h"
#include "tests/kernel/Bench.h"

using namespace host::kernel;

namespace {

TEST_F(Bench, escapeCancelsAndThePromptsOptionsAreForgotten)
{
    session.input().push(CancelAnswer{});
    EXPECT_EQ(lisp("(initget 1 \"Yes\")(getpoint)"), "error: Function cancelled in (GETPOINT)");
    type("\n");
    EXPECT_EQ(lisp("(getpoint)"), "nil");
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

TEST_F(Bench, picksSelect)
{
    lisp("(foreach x '(0.0 10.0 20.0) (entmake (list '(0 . \"LINE\") (list 10 x 0.0 0.0) (list 11 x 5.0 0.0))))"
         "(entmake '((0 . \"CIRCLE\") (10 50.0 50.0 0.0) (40 . 5.0)))"
         "(defun types (set / i out) (repeat (setq i (sslength set))"
         " (setq i (1- i) out (cons (cdr (assoc 0 (entget (ssname set i)))) out))))");
    const host::drawing::RecordId circle = drawing().entities().all()[3];
    session.input().push(EntityAnswer{circle, {0.0, 0.0, 0.0}});
    EXPECT_EQ(lisp("(cdr (assoc 0 (entget (car (entsel)))))"), "\"CIRCLE\"") << "without a search";
    session.input().push(WindowAnswer{{-1.0, -1.0, 0.0}, {11.0, 6.0, 0.0}});
    session.input().push(EntitiesAnswer{{circle}});
    type("\n");
    EXPECT_EQ(lisp("(types (ssget))"), "(\"LINE\" \"LINE\" \"CIRCLE\")");
    document().setImpliedSelection({circle});
    EXPECT_EQ(lisp("(types (ssget \"I\"))"), "(\"CIRCLE\")");
    document().runCommand(QStringLiteral("ERASE"));
    EXPECT_EQ(lisp("(types (ssget \"X\"))"), "(\"LINE\" \"LINE\" \"LINE\")") << "what is chosen is not asked for";
    EXPECT_TRUE(document().impliedSelection().empty());
}

TEST_F(Bench, pointerAndPressesAreEvents)
{
    lisp("(setvar \"UCSORG\" '(1 0 0))");
    session.input().push(PointerAnswer{{3.0, 4.0, 0.0}});
    session.input().push(PointAnswer{{5.0, 6.0, 0.0}});
    session.input().push(PointerAnswer{{7.0, 8.0, 0.0}, true});
    session.input().push(KeyAnswer{65});
    session.input().push(TextAnswer{QStringLiteral("ok")});
    session.input().push(TextAnswer{});
    session.input().push(CancelAnswer{});
    session.input().push(CancelAnswer{});
    EXPECT_EQ(lisp("(list (grread T) (grread) (grread) (grread) (grread) (grread) (grread) (grread T 12))"),
              "((5 (3.0 4.0 0.0)) (3 (5.0 6.0 0.0)) (25 (7.0 8.0 0.0)) (2 65) (2 111) (2 107) (2 13) (2 27))");
    EXPECT_EQ(lisp("(grread)"), "error: Function cancelled in (GRREAD)");
    EXPECT_TRUE(session.input().isEmpty());
}

TEST_F(Bench, pointsShownByHandSnapAndFollowOrtho)
{
    lisp("(command \"ZOOM\" \"C\" '(0 0) 100)(command \"LINE\" '(0 0) '(40 0) \"\")(setvar \"OSMODE\" 1)");
    const auto shown = [this](double x, double y, const char *expression) {
        session.input().push(PointAnswer{{x, y, 0.0}, true});
        return lisp(expression);
    };
    EXPECT_EQ(shown(5.0, 0.5, "(getpoint)"), "(0.0 0.0 0.0)");
    EXPECT_EQ(shown(5.0, 5.0, "(getpoint)"), "(5.0 5.0 0.0)");
    EXPECT_EQ(lisp("(command \"POINT\" '(5 0.5))(cdr (assoc 10 (entget (entlast))))"), "(5.0 0.5 0.0)")
        << "a program means what it says";
    session.input().pushScript(QStringLiteral("5,0.5"));
    EXPECT_EQ(lisp("(getpoint)"), "(0.0 0.0 0.0)") << "OSNAPCOORD 2";
    lisp("(setvar \"ORTHOMODE\" 1)");
    EXPECT_EQ(shown(9.0, 20.0, "(getpoint '(3 10))"), "(3.0 20.0 0.0)");
    EXPECT_EQ(shown(39.0, 0.5, "(getpoint '(3 10))"), "(40.0 0.0 0.0)") << "snaps go first";
    EXPECT_EQ(shown(9.0, 20.0, "(getcorner '(3 10))"), "(9.0 20.0 0.0)");
    document().aim().pointer = host::drawing::Vec3{9.0, 20.0, 0.0};
    type("2");
    EXPECT_EQ(lisp("(getpoint '(3 10))"), "(3.0 12.0 0.0)") << "towards the pointer";
    lisp("(setvar \"ORTHOMODE\" 0)");
    document().aim().pointer = host::drawing::Vec3{6.0, 14.0, 0.0};
    type("10");
    EXPECT_EQ(lisp("(getpoint '(3 10))"), "(9.0 18.0 0.0)");
}

TEST_F(Bench, linesDrawnForTheMomentGoWithARedraw)
{
    const auto lines = [this] { return document().sketch().lines(); };
    lisp("(grdraw '(0 0) '(1 2) 3 1)(grvecs '(5 (0 0) (1 0) 256 (2 0) (3 0) -4 (0 1) (0 2))"
         " '((2 0 0 1) (0 2 0 0) (0 0 2 0) (0 0 0 1)))");
    const std::vector<ScreenSketch::Line> drawn = {{{}, {1.0, 2.0, 0.0}, 3, true},
                                                   {{1.0, 0.0, 0.0}, {3.0, 0.0, 0.0}, 5, false},
                                                   {{5.0, 0.0, 0.0}, {7.0, 0.0, 0.0}, ScreenSketch::inverted, false},
                                                   {{1.0, 2.0, 0.0}, {1.0, 4.0, 0.0}, 4, true}};
    EXPECT_EQ(lines(), drawn);
    lisp("(grdraw '(5 0) '(7 0) -1)");
    EXPECT_EQ(lines().size(), 3U) << "the second time takes it away";
    lisp("(redraw)");
    EXPECT_TRUE(lines().empty());
    lisp("(grdraw '(0 0) '(1 2) 3)(command \"REDRAW\")");
    EXPECT_TRUE(lines().empty());
    EXPECT_FALSE(document().isModified());
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
