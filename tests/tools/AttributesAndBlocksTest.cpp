// The dialogs of attributes and of block counts as Lisp programs use them.

#include "tests/support/QtTestPrinters.h"
#include "tests/tools/ToolRun.h"

#include <gtest/gtest.h>

using namespace tools_test;
using namespace Qt::StringLiterals;

namespace {

using AttributesAndBlocks = ToolTest;

TEST_F(AttributesAndBlocks, ChosenRowsAreInTheStateFile)
{
    const QByteArray table = "HANDLE\tNAME\tNUMBER\n'1A\tDOOR\tD-1\r\n'1B\tdoor\n'1C\tGATE\tG\xC3\x9C\n";
    const QString file = run.writeFile(u"table.txt"_s, table);
    const QString state = run.path(u"attributes.state"_s);
    plays(u"lisp (setq result (Dlg_imporAttributes \"%1\"))\n"
          "dialog Dlg_QT_ImportBlockAttributes\nexpect-enabled selectAll no\nclick selectfile\nfile %2\n"
          "row Attributes '1B\nexpect-enabled groupSearch yes\nclick acceptButton\n"
          "message \"Select the rows of table for import.\" Ok\n"
          "click selectAll\nset txsearch door\nset txreplace Window\nclick btReplace\nclick acceptButton\n"
          "expect-lisp (= result T)\n"
          "expect-lisp (= (cdr (assoc \"attributes\" (kora_readstate \"%1\"))) "
          "\"HANDLE\\tNAME\\tNUMBER^'1A\\tWindow\\tD-1^'1B\\tWindow^'1C\\tGATE\\tG\\U+00DC\")\n"
          "expect-modified no\n"_s.arg(state, file));
    EXPECT_EQ(ToolRun::readFile(state), "\xEF\xBB\xBF"
                                        "attributefile=" +
                                            file.toUtf8() +
                                            "\n!action!=\n"
                                            "txsearch=door\ntxreplace=Window\n"
                                            "attributes=HANDLE\tNAME\tNUMBER^'1A\tWindow\tD-1^'1B\tWindow"
                                            "^'1C\tGATE\tG\xC3\x9C\n"
                                            "selectall=TRUE\n");
    EXPECT_EQ(ToolRun::readFile(file), table) << "what is replaced is replaced in the dialog";
}

TEST_F(AttributesAndBlocks, CancellingGivesNilAndLeavesTheStateFile)
{
    const QByteArray content = "attributefile=nowhere\r\nodd line\nselectall=TRUE";
    const QString state = run.writeFile(u"attributes.state"_s, content);
    plays(u"lisp (setq results (list (Dlg_imporAttributes \"%1\") (Dlg_getblockinfo \"%1\" '(\"A;1\") nil)))\n"
          "dialog Dlg_QT_ImportBlockAttributes\nexpect AttributeFile nowhere\nclick ButtonCancel\n"
          "dialog Dlg_QT_GetBlockInfo\nclose\nexpect-lisp (equal results '(nil nil))\n"_s.arg(state));
    EXPECT_EQ(ToolRun::readFile(state), content);
}

TEST_F(AttributesAndBlocks, BlockCountsGoToAFileOrBackToLisp)
{
    const QString state = run.path(u"blocks.state"_s);
    const QString report = run.path(u"report.txt"_s);
    plays(
        u"lisp (setq result (Dlg_getblockinfo \"%1\" '(\"TREE;3\" \"DOOR;12\" \"GONE;0\") '(\"TREE;3\" \"DOOR;20\")))\n"
        "dialog Dlg_QT_GetBlockInfo\nexpect-items blocksTable DOOR;12^TREE;3\nclick nestedCheckBox\n"
        "expect-items blocksTable DOOR;20^TREE;3\nclick exportButton\nfile %2\n"
        "expect-lisp (equal result '(\"\"))\n"
        // The report is complete when the program goes on.
        "lisp (setq result (Dlg_getblockinfo \"%1\" '(\"TREE;3\")))\n"
        "dialog Dlg_QT_GetBlockInfo\nexpect nestedCheckBox yes\nexpect-items blocksTable \"\"\n"
        "click nestedCheckBox\nexpect-items blocksTable TREE;3\nclick exportTable\n"
        "expect-lisp (equal result '(\"TABLE\"))\n"
        "lisp (setq result (Dlg_getblockinfo \"%1\" nil nil))\ndialog Dlg_QT_GetBlockInfo\nclick button:Close\n"
        "expect-lisp (equal result '(\"\"))\nexpect-modified no\n"_s.arg(state, report));
    EXPECT_EQ(ToolRun::readFile(report), "Name    Instances\r\nDOOR       20\r\nTREE       3\r\n");
    EXPECT_EQ(ToolRun::readFile(state), "\xEF\xBB\xBF"
                                        "nestedcheckbox=FALSE\n!action!=\n");
}

} // namespace
