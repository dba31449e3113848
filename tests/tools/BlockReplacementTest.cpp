#include "tests/support/QtTestPrinters.h"
#include "tests/tools/ToolRun.h"

#include <gtest/gtest.h>

using namespace tools_test;
using namespace Qt::StringLiterals;

namespace {

class BlockReplacement : public ToolTest
{
};

TEST_F(BlockReplacement, CancellingGivesNilAndLeavesTheStateFile)
{
    const QByteArray state = "blockstable=DOOR^\r\nodd line\nATTSYNC=TRUE";
    const QString file = run.writeFile(u"replace.state"_s, state);
    plays(u"lisp (setq result (Dlg_replaceblock \"%1\" \"DOOR\" 7 nil \"WALL^^^2\"))\n"
          "dialog Dlg_QT_ReplaceBlock\nexpect-items blocksTable DOOR^WALL\n"
          "expect blocksTable DOOR\nexpect attsync yes\nclick ButtonCancel\n"
          "expect-lisp (null result)\nexpect-modified no\n"_s.arg(file));
    EXPECT_EQ(ToolRun::readFile(file), state);
}

// What the dialog's program does next would be taken as the command's input.
TEST_F(BlockReplacement, IsRefusedWhileACommandWaits)
{
    plays(u"lisp (progn (command \"_.LINE\" \"0,0\") (setq result (list (Dlg_replaceblock \"x\" \"DOOR\") "
          "(Dlg_replaceblocktoxref \"x\" \"DOOR\"))) (command \"1,1\" \"\"))\n"
          "expect-lisp (equal result '(nil nil))\nexpect-printed \"REPLACEBLOCK cannot run\"\n"
          "lisp (setq result (Dlg_replaceblock \"x\" \"DOOR\"))\ndialog Dlg_QT_ReplaceBlock\nclose\n"_s);
}

} // namespace
