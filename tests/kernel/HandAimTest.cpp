// Where points come to lie that the pointer shows.

#include "host/drawing/math/Angles.h"
#include "host/kernel/input/InputFeeder.h"
#include "host/kernel/input/InputQueue.h"
#include "host/kernel/input/PointAim.h"
#include "tests/kernel/Bench.h"

using namespace host::kernel;
using host::drawing::Vec3;

namespace {

struct HandRow
{
    const char *name;
    const char *setup;              ///< Lisp, behind that of all rows
    Vec3 shown;                     ///< world coordinates
    const char *asking;             ///< Lisp
    const char *result;             ///< its numbers with four decimals
    std::optional<double> length{}; ///< locked while the prompt waits
    std::optional<double> degrees{};
    const char *typed = nullptr; ///< in place of a click there
};

/// Answers as a person with the pointer would.
class HandFeeder final : public InputFeeder
{
public:
    HandFeeder(Document &document, const HandRow &row) : m_document(document), m_row(row) {}
    FeedResult feed(const PromptRequest &, InputQueue &queue) override
    {
        PointAim &aim = m_document.aim();
        aim.pointer = m_row.shown;
        aim.lockedLength = m_row.length;
        if (m_row.degrees)
            aim.lockedAngle = *m_row.degrees * host::drawing::radians;
        if (m_row.typed)
            queue.pushTyped(QString::fromLatin1(m_row.typed));
        else
            queue.push(PointAnswer{m_row.shown, true});
        return FeedResult::Supplied;
    }
    bool poll() override { return false; }

private:
    Document &m_document;
    const HandRow &m_row;
};

constexpr const char *gridOn = "(setvar \"SNAPMODE\" 1)(setvar \"SNAPUNIT\" '(5 2))";
constexpr const char *turned = "(setvar \"SNAPMODE\" 1)(setvar \"SNAPUNIT\" '(5 2))(command \"UCS\" \"Z\" 90)";
constexpr const char *tilted = "(setvar \"SNAPMODE\" 1)(setvar \"SNAPUNIT\" '(5 2))(command \"UCS\" \"X\" 60)";
constexpr const char *polar = "(setvar \"AUTOSNAP\" 63)(setvar \"POLARANG\" (/ pi 6))";

const HandRow handRows[] = {
    {"gridOff", "", {7.4, 2.9, 0.0}, "(getpoint)", "(7.4 2.9 0.0)"},
    {"grid", gridOn, {7.4, 2.9, 0.0}, "(getpoint)", "(5.0 2.0 0.0)"},
    {"gridCorner", gridOn, {-7.6, 2.9, 0.0}, "(getcorner '(0 0))", "(-10.0 2.0 0.0)"},
    {"gridTyped", gridOn, {}, "(getpoint)", "(7.4 2.9 0.0)", {}, {}, "7.4,2.9"},
    {"gridFarOut", gridOn, {5000007.4, 4000002.9, 0.0}, "(mapcar '- (getpoint) '(5000000 4000000 0))", "(5.0 2.0 0.0)"},
    {"gridTurned", turned, {-2.9, 7.4, 0.0}, "(getpoint)", "(5.0 2.0 0.0)"},
    {"gridTilted", tilted, {7.4, 1.45, 0.0}, "(getpoint)", "(5.0 2.0 0.0)"},
    {"gridAngle",
     "(setvar \"SNAPMODE\" 1)(setvar \"SNAPUNIT\" '(1 1))(setvar \"SNAPANG\" (/ pi 4))(setvar \"SNAPBASE\" '(1 1))",
     {2.45, 1.0, 0.0},
     "(getpoint)",
     "(2.4142 1.0 0.0)"},
    {"gridIsometric",
     "(setvar \"SNAPMODE\" 1)(setvar \"SNAPUNIT\" '(2 2))(setvar \"SNAPSTYL\" 1)",
     {1.6, 2.8, 0.0},
     "(getpoint)",
     "(1.7321 3.0 0.0)"},
    {"elevation", "(setvar \"ELEVATION\" 7.0)", {1.0, 2.0, 0.0}, "(getpoint)", "(1.0 2.0 7.0)"},
    {"polarOff", "(setvar \"POLARANG\" (/ pi 6))", {10.0, 6.2, 0.0}, "(getpoint '(0 0))", "(10.0 6.2 0.0)"},
    {"polar", polar, {10.0, 6.2, 0.0}, "(getpoint '(0 0))", "(10.1847 5.8801 0.0)"},
    {"polarBelow", polar, {10.0, -0.4, 0.0}, "(getpoint '(0 0))", "(10.0 0.0 0.0)"},
    {"polarTooFarOff", polar, {10.0, 10.0, 0.0}, "(getpoint '(0 0))", "(10.0 10.0 0.0)"},
    {"polarWithoutBase", polar, {10.0, 6.2, 0.0}, "(getpoint)", "(10.0 6.2 0.0)"},
    {"polarTurned",
     "(setvar \"AUTOSNAP\" 63)(setvar \"POLARANG\" (/ pi 6))(command \"UCS\" \"Z\" 90)",
     {-6.2, 10.0, 0.0},
     "(getpoint '(0 0))",
     "(10.1847 5.8801 0.0)"},
    {"polarTilted",
     "(setvar \"AUTOSNAP\" 63)(setvar \"POLARANG\" (/ pi 6))(command \"UCS\" \"X\" 60)",
     {10.0, 3.1, 0.0},
     "(getpoint '(0 0))",
     "(10.1847 5.8801 0.0)"},
    {"polarFurther",
     "(setvar \"AUTOSNAP\" 63)(setvar \"POLARMODE\" 4)(setvar \"POLARADDANG\" \"12;37\")",
     {8.0, 6.1, 0.0},
     "(getpoint '(0 0))",
     "(8.0344 6.0544 0.0)"},
    {"polarFromLastSegment",
     "(setvar \"AUTOSNAP\" 63)(setvar \"POLARMODE\" 1)(command \"LINE\" '(0 0) '(1 1) \"\")",
     {5.0, 5.2, 0.0},
     "(getpoint '(0 0))",
     "(5.1 5.1 0.0)"},
    {"polarSteps",
     "(setvar \"AUTOSNAP\" 63)(setvar \"SNAPMODE\" 1)(setvar \"SNAPTYPE\" 1)(setvar \"POLARDIST\" 3.0)",
     {10.0, 0.3, 0.0},
     "(getpoint '(0 0))",
     "(9.0 0.0 0.0)"},
    {"polarDistance", polar, {10.0, 6.2, 0.0}, "(getpoint '(0 0))", "(3.4641 2.0 0.0)", {}, {}, "4"},
    {"polarBeforeOrtho",
     "(setvar \"AUTOSNAP\" 63)(setvar \"POLARANG\" (/ pi 6))(setvar \"ORTHOMODE\" 1)",
     {10.0, 6.2, 0.0},
     "(getpoint '(0 0))",
     "(10.1847 5.8801 0.0)"},
    {"orthoBeforeGrid",
     "(setvar \"ORTHOMODE\" 1)(setvar \"SNAPMODE\" 1)(setvar \"SNAPUNIT\" '(5 2))",
     {9.0, 20.0, 0.0},
     "(getpoint '(3 10))",
     "(3.0 20.0 0.0)"},
    {"orthoDistance", "(setvar \"ORTHOMODE\" 1)", {9.0, 20.0, 0.0}, "(getdist '(3 10))", "10.0"},
    {"orthoAngle", "(setvar \"ORTHOMODE\" 1)", {9.0, 20.0, 0.0}, "(getangle '(3 10))", "1.5708"},
    {"orthoRectangle",
     "(setvar \"ORTHOMODE\" 1)",
     {9.0, 20.0, 0.0},
     "(progn (command \"RECTANG\" '(3 10) pause) (cdr (assoc 10 (reverse (entget (entlast))))))",
     "(3.0 20.0)"},
    {"orthoIsometric",
     "(setvar \"ORTHOMODE\" 1)(setvar \"SNAPSTYL\" 1)(setvar \"SNAPISOPAIR\" 1)",
     {10.0, 4.0, 0.0},
     "(getpoint '(0 0))",
     "(9.2321 5.3301 0.0)"},
    {"lockedLength", "", {30.0, 40.0, 0.0}, "(getpoint '(0 0))", "(3.0 4.0 0.0)", 5.0},
    {"lockedAngle", "", {30.0, 40.0, 0.0}, "(getpoint '(0 0))", "(30.0 0.0 0.0)", {}, 0.0},
    {"lockedBoth", polar, {30.0, 40.0, 0.0}, "(getpoint '(1 2))", "(1.0 7.0 0.0)", 5.0, 90.0},
    {"lockedAngleTyped", "", {30.0, 40.0, 0.0}, "(getpoint '(1 2))", "(1.0 5.0 0.0)", {}, 90.0, "3"},
    {"lockedLengthOnARay", polar, {10.0, 6.2, 0.0}, "(getpoint '(0 0))", "(3.4641 2.0 0.0)", 4.0},
    {"snapBeforeAll",
     "(command \"LINE\" '(0 0) '(40 7) \"\")(setvar \"OSMODE\" 1)(setvar \"AUTOSNAP\" 63)(setvar \"ORTHOMODE\" 1)",
     {39.5, 7.2, 0.0},
     "(getpoint '(0 0))",
     "(40.0 7.0 0.0)"},
    {"lockedLengthTowardsASnap",
     "(command \"LINE\" '(0 0) '(30 40) \"\")(setvar \"OSMODE\" 1)",
     {30.1, 40.0, 0.0},
     "(getpoint '(0 0))",
     "(3.0 4.0 0.0)",
     5.0},
    {"lockedAngleUpToASnap",
     "(command \"LINE\" '(0 0) '(30 40) \"\")(setvar \"OSMODE\" 1)",
     {30.1, 40.0, 0.0},
     "(getpoint '(0 0))",
     "(30.0 0.0 0.0)",
     {},
     0.0},
};

class HandAimTest : public Bench, public testing::WithParamInterface<HandRow>
{
};

TEST_P(HandAimTest, pointsComeToLie)
{
    // A pixel is an eighth of a unit.
    lisp("(command \"ZOOM\" \"C\" '(0 0) 100)(setvar \"OSMODE\" 0)(setvar \"AUTOSNAP\" 55)"
         "(defun rounded (v) (if (listp v) (mapcar 'rounded v) (atof (rtos v 2 4))))");
    lisp(GetParam().setup);
    if (GetParam().shown.x > 1e6)
        lisp("(command \"ZOOM\" \"C\" '(5000000 4000000) 100)");
    HandFeeder feeder(document(), GetParam());
    session.setFeeder(&feeder);
    EXPECT_EQ(lisp(std::string("(rounded ") + GetParam().asking + ")"), GetParam().result);
    EXPECT_FALSE(document().aim().isLocked()) << "a lock is for one point";
    session.setFeeder(nullptr);
}

INSTANTIATE_TEST_SUITE_P(Rows, HandAimTest, testing::ValuesIn(handRows),
                         [](const auto &row) { return std::string(row.param.name); });

} // namespace
