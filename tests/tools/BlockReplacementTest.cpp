#include "tests/support/QtTestPrinters.h"
#include "tests/tools/ToolRun.h"

#include <gtest/gtest.h>

using namespace tools_test;
using namespace Qt::StringLiterals;

namespace {

class BlockReplacement : public testing::Test
{
protected:
    ToolRun run;
    QString plan = ToolRun::sample(u"plan.dxf"_s);
};

TEST_F(BlockReplacement, SampleSessionsGoThroughTheWholeLoop)
{
    const struct
    {
        QString name;
        QString state;
    } rows[] = {
        {u"replaceblock"_s, u"blockstable=TREE^\n!action!=OK\nblockstablerep=BUSH^\npurgeitems=TRUE\nattsync=TRUE\n"_s},
        {u"replaceblocktoxref"_s, u"blockstable=12^\n!action!=OK\ndirectory=%1\nblockstablerep=zigzag.dwg^\n"
                                  "purgeitems=FALSE\n"_s.arg(run.path(u"home/Ortakit/References"_s))},
    };
    for (const auto &row : rows) {
        const RunOutcome outcome = run.playFile(ToolRun::sample(u"sessions/%1.session"_s.arg(row.name)), plan);
        ASSERT_EQ(outcome.status, 0) << outcome.output.toStdString();
        EXPECT_EQ(ToolRun::readFile(run.stateFile(row.name)), "\xEF\xBB\xBF" + row.state.toUtf8());
        EXPECT_TRUE(isSound(run.result(plan))) << row.name.toStdString();
    }
}

TEST_F(BlockReplacement, CancellingGivesNilAndLeavesTheStateFile)
{
    const QByteArray state = "blockstable=DOOR^\r\nodd line\nATTSYNC=TRUE";
    const QString file = run.writeFile(u"replace.state"_s, state);
    const RunOutcome outcome = run.play(u"lisp (setq result (Dlg_replaceblock \"%1\" \"DOOR\" 7 nil \"WALL^^^2\"))\n"
                                        "dialog Dlg_QT_ReplaceBlock\nexpect-items blocksTable DOOR^WALL\n"
                                        "expect blocksTable DOOR\nexpect attsync yes\nclick ButtonCancel\n"
                                        "expect-lisp (null result)\nexpect-modified no\n"_s.arg(file),
                                        plan);
    EXPECT_EQ(outcome.status, 0) << outcome.output.toStdString();
    EXPECT_EQ(ToolRun::readFile(file), state);
}

// What the dialog's program does next would be taken as the command's input.
TEST_F(BlockReplacement, IsRefusedWhileACommandWaits)
{
    const RunOutcome outcome =
        run.play(u"lisp (progn (command \"_.LINE\" \"0,0\") (setq result (list (Dlg_replaceblock \"x\" \"DOOR\") "
                 "(Dlg_replaceblocktoxref \"x\" \"DOOR\"))) (command \"1,1\" \"\"))\n"
                 "expect-lisp (equal result '(nil nil))\nexpect-printed \"REPLACEBLOCK cannot run\"\n"
                 "lisp (setq result (Dlg_replaceblock \"x\" \"DOOR\"))\ndialog Dlg_QT_ReplaceBlock\nclose\n"_s,
                 plan);
    EXPECT_EQ(outcome.status, 0) << outcome.output.toStdString();
}

} // namespace
