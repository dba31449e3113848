#include "tests/support/QtTestPrinters.h"
#include "tests/tools/ToolRun.h"

#include <QDir>

#include <gtest/gtest.h>

using namespace tools_test;
using namespace Qt::StringLiterals;

namespace {

class TrackTimeTool : public ToolTest
{
protected:
    TrackTimeTool()
    {
        QDir(run.path({})).mkpath(u"project"_s);
        for (const QString &name : {u"project/plan.dxf"_s, u"project/annex.dxf"_s})
            run.writeFile(name, ToolRun::readFile(plan));
    }

    QString drawing = run.path(u"project/plan.dxf"_s);
    QString annex = run.path(u"project/annex.dxf"_s);
};

const QStringList addedRecord{u"+XRECORD"_s, u"~$HANDSEED"_s, u"~DICTIONARY"_s};

// The tool begins with the folder of its drawing. That one's time goes into it and is saved with it, the other's into
// its file, and both are there when the program is started again.
TEST_F(TrackTimeTool, TracksOpenAndClosedDrawings)
{
    plays(u"command TRACKTIME\n"
          "dialog Dlg_QT_TrackTime\n"
          "expect-items tblDrawings \"annex.dxf;Off;0.00^plan.dxf;Off;0.00\"\n"
          "row tblDrawings annex.dxf plan.dxf\n"
          "click btnTrackOn\n"
          "click acceptButton\n"
          "expect-modified yes\n"
          "command LINE\npoint 1,2\npoint 3,4\nenter\n"
          "save\n"_s,
          drawing);
    EXPECT_EQ(differences(plan, annex), addedRecord);
    EXPECT_TRUE(isSound(annex));
    EXPECT_TRUE(ToolRun::readFile(drawing) == ToolRun::readFile(plan)) << "saved in another folder";
    QStringList withLine = addedRecord;
    withLine.insert(0, u"+LINE"_s);
    EXPECT_EQ(differences(plan, run.result(drawing)), withLine);

    const QByteArray annexBefore = ToolRun::readFile(annex);
    plays(u"command TRACKTIME\n"
          "dialog Dlg_QT_TrackTime\n"
          "set directory %1\n"
          "key directory Return\n"
          "expect-items tblDrawings \"plan.dxf;On, 15 min;0.00\"\n"
          "set directory %2\n"
          "key directory Return\n"
          "expect-items tblDrawings \"annex.dxf;On, 15 min;0.00^plan.dxf;Off;0.00\"\n"
          "row tblDrawings annex.dxf\n"
          "click btnTrackOff\n"
          "click ButtonCancel\n"
          "expect-modified no\n"_s.arg(run.path(u"out"_s), run.path(u"project"_s)),
          run.result(drawing));
    EXPECT_TRUE(ToolRun::readFile(annex) == annexBefore);
}

// Undone, the open drawing is as it was; what was written to files is written.
TEST_F(TrackTimeTool, IsOneStepThatCanBeUndone)
{
    plays(u"command TRACKTIME\n"
          "dialog Dlg_QT_TrackTime\n"
          "row tblDrawings plan.dxf\n"
          "click btnTrackOn\n"
          "click acceptButton\n"
          "expect-modified yes\n"
          "undo\n"
          "expect-modified no\n"_s,
          drawing);
}

} // namespace
