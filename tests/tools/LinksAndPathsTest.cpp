#include "tests/support/QtTestPrinters.h"
#include "tests/tools/ToolRun.h"

#include <gtest/gtest.h>

using namespace tools_test;
using namespace Qt::StringLiterals;

namespace {

using LinksAndPaths = ToolTest;

// What a Lisp program does: the links come from a file and go back in it.
TEST_F(LinksAndPaths, LinksGoThroughTheirFile)
{
    const QString links =
        run.writeFile(u"links.txt"_s, "2F^http://a.org^LINE^Model\n30^b.pdf^TEXT^Model\n31^c^LINE^Sheet");
    const QString state = run.writeFile(u"links.state"_s, "txsearch=a\nlinkfile=" + links.toUtf8() + "\n");
    plays(u"lisp (setq result (Dlg_ShowLinks \"%1\"))\n"
          "dialog Dlg_QT_ShowLinks\nexpect-title \"Show Links\"\n"
          "expect-items tableUrl \"2F;http://a.org;LINE;Model^30;b.pdf;TEXT;Model^31;c;LINE;Sheet\"\n"
          "row tableUrl #0 #1\nset txsearch b\nset txreplace bb\nclick btnReplace\n"
          "row tableUrl #2\nclick btnRemoveUrl\nmessage \"Remove urls for selected items?\" Ok\n"
          "row tableUrl #1\nclick btnShowEntity\n"
          "expect-lisp (= result T)\n"
          "lisp (setq f (open \"%2\" \"r\") result (list (read-line f) (read-line f)) f (close f))\n"
          "expect-lisp (equal result '(\"30^bb.pdf^TEXT^Model\" nil))\n"
          "lisp (setq result (Dlg_ShowLinks \"%1\"))\n"
          "dialog Dlg_QT_ShowLinks\nexpect tableUrl 30\nclick btnClose\n"
          "expect-lisp (= result T)\nexpect-modified no\n"_s.arg(state, links));
    EXPECT_EQ(ToolRun::readFile(links), "2F^http://a.org^LINE^Model\r\n30^bb.pdf^TEXT^Model\r\nREMOVE^31\r\n");
    EXPECT_EQ(ToolRun::readFile(state),
              "\xEF\xBB\xBFlinkfile=" + links.toUtf8() + "\n!action!=OK\ntxsearch=b\ntxreplace=bb\ntableurl=30^\n");
}

TEST_F(LinksAndPaths, CancelledLinksLeaveBothFiles)
{
    const QByteArray lines = "2F^http://a.org^LINE^Model";
    const QString links = run.writeFile(u"links.txt"_s, lines);
    const QByteArray stateLines = "linkfile=" + links.toUtf8();
    const QString state = run.writeFile(u"links.state"_s, stateLines);
    plays(u"lisp (setq result (Dlg_ShowLinks \"%1\"))\ndialog Dlg_QT_ShowLinks\nrow tableUrl #0\n"
          "set txsearch a\nclick btnReplace\nclose\nexpect-lisp (null result)\n"
          "lisp (setq result (Dlg_ShowLinks 1))\nexpect-error \"bad argument\"\n"_s.arg(state));
    EXPECT_EQ(ToolRun::readFile(links), lines);
    EXPECT_EQ(ToolRun::readFile(state), stateLines);
}

TEST_F(LinksAndPaths, PathsComeAsArgumentsAndGoBackAsAList)
{
    const QString state = run.writeFile(u"paths.state"_s, "modes=Xrefs^Rtext\n");
    plays(u"lisp (setq result (Dlg_RedefinePaths \"%1\" \"Xref^b^c:/x/b.dwg\" 7 nil \"Image^i^c:/x/i.png\" "
          "\"RemoteText^a^c:/x/a.txt\"))\n"
          "dialog Dlg_QT_RedefinePaths\nexpect-title \"Redefine Paths\"\n"
          "expect-items lstFiles \"Xref;b;c:\\\\x\\\\b.dwg^RemoteText;a;c:\\\\x\\\\a.txt\"\n"
          "expect-enabled groupSearch no\ncheck selectAll yes\nset txsearch c:\\x\nset txreplace d:\\y\n"
          "click btReplace\nclick acceptButton\n"
          "expect-lisp (equal result '(\"Xref^b^d:\\\\y\\\\b.dwg\" \"RemoteText^a^d:\\\\y\\\\a.txt\"))\n"
          "lisp (setq result (Dlg_RedefinePaths \"%1\" \"Xref^b^x\"))\n"
          "dialog Dlg_QT_RedefinePaths\nset filter nothing\nclick acceptButton\nexpect-lisp (null result)\n"
          "lisp (setq result (Dlg_RedefinePaths \"%1\" \"Xref^b^x\"))\n"
          "dialog Dlg_QT_RedefinePaths\nclick ButtonCancel\nexpect-lisp (null result)\nexpect-modified no\n"_s.arg(
              state));
}

} // namespace
