#include "tests/support/QtTestPrinters.h"
#include "tests/tools/ToolRun.h"

#include <gtest/gtest.h>

using namespace tools_test;
using namespace Qt::StringLiterals;

namespace {

using EditAliasTool = SessionTest;

TEST_F(EditAliasTool, ASavedAliasRunsItsCommandAtOnce)
{
    const RunOutcome outcome = run.playFile(ToolRun::sample(u"sessions/editalias.session"_s), plan);
    ASSERT_EQ(outcome.status, 0) << outcome.output.toStdString();
    EXPECT_EQ(differences(plan, run.result(plan)), (QStringList{u"+LINE"_s, u"~$HANDSEED"_s}));
    EXPECT_TRUE(isSound(run.result(plan)));
    EXPECT_TRUE(ToolRun::readFile(run.path(u"home/alias.xml"_s)).contains("<record command=\"LINE\" alias=\"QQ\"/>"));
}

TEST_F(EditAliasTool, AnAliasMayRunATool)
{
    plays(u"command EDITALIAS\ndialog Dlg_QT_EditAlias\nclick btnAdd\ncell lstAlias 0 0 editalias\n"
          "cell lstAlias 0 1 ea\nclick acceptButton\n"
          "command ea\ndialog Dlg_QT_EditAlias\nexpect-title \"Edit Alias\"\nclick ButtonCancel\n"
          "expect-modified no\n"_s);
}

TEST_F(EditAliasTool, CancellingAndRefusedAliasesLeaveTheFile)
{
    plays(u"command EDITALIAS\ndialog Dlg_QT_EditAlias\nclick btnAdd\ncell lstAlias 0 0 arc\ncell lstAlias 0 1 c\n"
          "message \"This alias already begin used for other command.\" Ok\n"
          "cell lstAlias 0 1 xx\nclick ButtonCancel\ncommand XX\nexpect-error \"Unknown command\"\n"_s);
}

TEST_F(EditAliasTool, ImportedAndPrinted)
{
    run.writeFile(u"import.txt"_s, "<aliases><record command=\"circle\" alias=\"cc\"/></aliases>");
    plays(u"command EDITALIAS\ndialog Dlg_QT_EditAlias\nclick btnImport\nfile %1\nclick btnPrint\n"
          "dialog QPrintDialog\nset filename %2\nclick button:Ok\nclick acceptButton\n"
          "command CC\npoint 1,1\nanswer 2\ncommand L\nexpect-error \"Unknown command\"\n"_s.arg(
              run.path(u"import.txt"_s), run.path(u"list.pdf"_s)));
    EXPECT_TRUE(ToolRun::readFile(run.path(u"list.pdf"_s)).startsWith("%PDF"));
}

} // namespace
