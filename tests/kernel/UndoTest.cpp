#include "host/drawing/records/Entities.h"
#include "host/drawing/records/Journal.h"
#include "tests/kernel/Bench.h"

using namespace host::kernel;

namespace {

/// Steps as "ACTION COUNT|...", COUNT the entities that are there after it. An action is Lisp, "undo" or "redo" (with a
/// number), "outside" for a change by no run, or a command's name.
struct UndoCase
{
    const char *name;
    const char *steps;
};

std::ostream &operator<<(std::ostream &stream, const UndoCase &row)
{
    return stream << row.name;
}

class Undoing : public Bench, public testing::WithParamInterface<UndoCase>
{
protected:
    Undoing()
    {
        lisp("(defun point () (command \"POINT\" '(9 9)))"
             "(defun add () (entmake '((0 . \"POINT\") (10 0 0 0))) (point))"
             "(defun undo (how) (command \"_.UNDO\" how))");
    }
    UndoSteps &steps() { return document().undoSteps(); }
    void take(const QString &action)
    {
        const int count = action.section(u' ', 1).toInt();
        if (action.startsWith(u"undo"))
            steps().undo(std::max(count, 1));
        else if (action.startsWith(u"redo"))
            steps().redo(std::max(count, 1));
        else if (action == u"outside")
            drawing().entities().create({{0, QStringLiteral("POINT")}, {10, host::drawing::Vec3{}}});
        else if (action.startsWith(u'('))
            lisp(action.toStdString());
        else
            document().runCommand(action);
    }
};

TEST_P(Undoing, leaves)
{
    for (const QString &step : QString::fromLatin1(GetParam().steps).split(u'|')) {
        SCOPED_TRACE(step.toStdString());
        const qsizetype blank = step.lastIndexOf(u' ');
        take(step.left(blank));
        EXPECT_EQ(drawing().entities().all().size(), step.mid(blank).toUInt());
        EXPECT_EQ(document().isModified(), !drawing().entities().all().empty());
    }
}

const UndoCase cases[] = {
    {"a whole run is one step", "(add) 2|(add) 4|undo 2|redo 4|undo 5 0"},
    {"a failed run can be undone", "(progn (add) (car 5)) 2|undo 0"},
    {"commands by name", "(add) 2|U 0|_.REDO 2|REDO 2"},
    {"a new change forgets what was undone", "(add) 2|undo 0|(point) 1|redo 1"},
    {"a program takes back what it just did", "(progn (point) (point) (command \"_.U\")) 1|undo 0"},
    {"mark and back inside a run", "(add) 2|(progn (point) (undo \"_Mark\") (add) (add) (undo \"_Back\")) 3|undo 2"},
    {"a group inside a run is one step of it",
     "(progn (point) (undo \"_BE\") (add) (add) (undo \"_E\") (command \"_.U\")) 1"},
    // Points around the groups go with the first and the last one; a group without any change does not count.
    {"a run leaves a step for each of several groups",
     "(progn (point) (undo \"_BE\") (add) (undo \"_E\") (undo \"_BE\") (undo \"_E\") (undo \"_BE\") (add)"
     " (undo \"_E\") (point)) 6|undo 3|redo 6|undo 5 0"},
    {"a group over several runs is one step", "(undo \"_BE\") 0|(add) 2|(add) 4|(undo \"_E\") 4|undo 0"},
    {"a number of steps", "(add) 2|(add) 4|(add) 6|(undo 2) 2|(undo \"5\") 0"},
    {"changes outside of runs are steps too", "outside 1|(add) 3|undo 1|undo 0"},
};

INSTANTIATE_TEST_SUITE_P(All, Undoing, testing::ValuesIn(cases));

TEST_F(Bench, aRunThatChangesNothingLeavesNoStep)
{
    lisp("(+ 1 2)");
    lisp("(entmake '((0 . \"NOSUCH\")))");
    lisp("(setvar \"CMDECHO\" 0)");
    document().runCommand(QStringLiteral("REGEN"));
    EXPECT_FALSE(document().undoSteps().canUndo());
    EXPECT_FALSE(document().isModified());
}

TEST_F(Bench, headerVariablesAreUndoneToo)
{
    lisp("(setvar \"LTSCALE\" 7.5)");
    lisp("(setvar \"LTSCALE\" 2.5)");
    EXPECT_EQ(document().undoSteps().undo(5), 2) << "there are no more";
    EXPECT_EQ(lisp("(getvar \"LTSCALE\")"), "1.0");
}

} // namespace
