#include "host/drawing/records/Entities.h"
#include "tests/kernel/Bench.h"

using namespace host::kernel;

namespace {

// Steps of runs are cases; these are what a window does.
TEST_F(Bench, changesOutsideOfRunsAreStepsToo)
{
    UndoSteps &steps = document().undoSteps();
    document().runCommand(QStringLiteral("REGEN"));
    EXPECT_FALSE(steps.canUndo() || document().isModified()) << "a run that changes nothing leaves none";
    drawing().entities().create({{0, QStringLiteral("POINT")}, {10, host::drawing::Vec3{}}});
    change();
    EXPECT_EQ(drawing().entities().all().size(), 2U);
    EXPECT_EQ(steps.undo(), 1);
    EXPECT_EQ(drawing().entities().all().size(), 1U);
    EXPECT_EQ(steps.undo(5), 1) << "there are no more";
    EXPECT_TRUE(drawing().entities().all().empty());
    EXPECT_FALSE(document().isModified());
}

} // namespace
