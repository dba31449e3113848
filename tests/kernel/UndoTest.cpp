#include "host/drawing/Entities.h"
#include "host/drawing/Journal.h"
#include "tests/kernel/Bench.h"

using namespace host::kernel;

namespace {

class Undoing : public Bench
{
protected:
    int entities() { return int(drawing().entities().all().size()); }
    UndoSteps &steps() { return document().undoSteps(); }
};

const char *const addTwo = "(entmake '((0 . \"POINT\") (10 0 0 0)))(command \"POINT\" '(1 1))";

TEST_F(Undoing, aWholeRunIsOneStep)
{
    lisp(addTwo);
    lisp(addTwo);
    EXPECT_EQ(entities(), 4);
    EXPECT_EQ(steps().undo(), 1);
    EXPECT_EQ(entities(), 2);
    EXPECT_EQ(steps().redo(), 1);
    EXPECT_EQ(entities(), 4);
    EXPECT_EQ(steps().undo(5), 2);
    EXPECT_EQ(entities(), 0);
    EXPECT_FALSE(document().isModified());
}

TEST_F(Undoing, aRunThatChangesNothingLeavesNoStep)
{
    lisp("(+ 1 2)");
    lisp("(entmake '((0 . \"NOSUCH\")))");
    lisp("(setvar \"CMDECHO\" 0)");
    document().runCommand(QStringLiteral("REGEN"));
    EXPECT_FALSE(steps().canUndo());
    EXPECT_FALSE(document().isModified());
}

TEST_F(Undoing, aFailedRunCanBeUndone)
{
    lisp(std::string(addTwo) + "(car 5)");
    EXPECT_EQ(entities(), 2);
    EXPECT_EQ(steps().undo(), 1);
    EXPECT_EQ(entities(), 0);
}

TEST_F(Undoing, commandsByName)
{
    lisp(addTwo);
    document().runCommand(QStringLiteral("U"));
    EXPECT_EQ(entities(), 0);
    document().runCommand(QStringLiteral("_.REDO"));
    EXPECT_EQ(entities(), 2);
    EXPECT_EQ(steps().undoName(), QStringLiteral("LISP"));
    document().runCommand(QStringLiteral("REDO"));
    EXPECT_EQ(entities(), 2);
}

TEST_F(Undoing, aNewChangeForgetsWhatWasUndone)
{
    lisp(addTwo);
    steps().undo();
    lisp("(command \"POINT\" '(5 5))");
    EXPECT_FALSE(steps().canRedo());
    EXPECT_EQ(entities(), 1);
}

TEST_F(Undoing, aProgramTakesBackWhatItJustDid)
{
    lisp("(command \"POINT\" '(0 0))(command \"POINT\" '(1 1))(command \"_.U\")");
    EXPECT_EQ(entities(), 1);
    EXPECT_EQ(steps().undo(), 1);
    EXPECT_EQ(entities(), 0);
}

TEST_F(Undoing, markAndBackInsideARun)
{
    lisp(addTwo);
    lisp(std::string("(command \"POINT\" '(9 9))(command \"_.UNDO\" \"_Mark\")") + addTwo + addTwo +
         "(command \"_.UNDO\" \"_Back\")");
    EXPECT_EQ(entities(), 3);
    steps().undo();
    EXPECT_EQ(entities(), 2);
}

TEST_F(Undoing, aGroupInsideARunIsOneStepOfIt)
{
    lisp(std::string("(command \"POINT\" '(9 9))(command \"_.UNDO\" \"_BE\")") + addTwo + addTwo +
         "(command \"_.UNDO\" \"_E\")(command \"_.U\")");
    EXPECT_EQ(entities(), 1);
}

TEST_F(Undoing, aRunLeavesAStepForEachOfSeveralGroups)
{
    const std::string begin = "(command \"_.UNDO\" \"_BE\")";
    const std::string end = "(command \"_.UNDO\" \"_E\")";
    const std::string point = "(command \"POINT\" '(9 9))";
    // Points around the groups go with the first and the last one; a group without any change does not count.
    lisp(point + begin + addTwo + end + begin + end + begin + addTwo + end + point);
    EXPECT_EQ(entities(), 6);
    EXPECT_EQ(steps().undo(), 1);
    EXPECT_EQ(entities(), 3);
    EXPECT_EQ(steps().redo(), 1);
    EXPECT_EQ(entities(), 6);
    EXPECT_EQ(steps().undo(5), 2);
    EXPECT_EQ(entities(), 0);
}

TEST_F(Undoing, aGroupOverSeveralRunsIsOneStep)
{
    lisp("(command \"_.UNDO\" \"_BE\")");
    EXPECT_EQ(lisp("(getvar \"UNDOCTL\")"), "13");
    lisp(addTwo);
    lisp(addTwo);
    lisp("(command \"_.UNDO\" \"_E\")");
    EXPECT_EQ(steps().undo(), 1);
    EXPECT_EQ(entities(), 0);
}

TEST_F(Undoing, aNumberOfSteps)
{
    for (int i = 0; i < 3; ++i)
        lisp(addTwo);
    lisp("(command \"_.UNDO\" 2)");
    EXPECT_EQ(entities(), 2);
    lisp("(command \"_.UNDO\" \"5\")");
    EXPECT_EQ(entities(), 0);
}

TEST_F(Undoing, changesOutsideOfRunsAreStepsToo)
{
    drawing().entities().create({{0, QStringLiteral("POINT")}, {10, host::drawing::Vec3{}}});
    lisp(addTwo);
    EXPECT_EQ(steps().undo(), 1);
    EXPECT_EQ(entities(), 1);
    EXPECT_EQ(steps().undo(), 1);
    EXPECT_EQ(entities(), 0);
}

TEST_F(Undoing, headerVariablesAreUndoneToo)
{
    lisp("(setvar \"LTSCALE\" 7.5)");
    steps().undo();
    EXPECT_EQ(lisp("(getvar \"LTSCALE\")"), "1.0");
}

} // namespace
