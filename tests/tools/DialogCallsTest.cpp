// What happens between a dialog and the program around it; what each dialog does is in its own test.

#include "host/app/playback/SessionPlayer.h"
#include "host/app/workbench/Workbench.h"
#include "host/kernel/documents/DocumentManager.h"
#include "tests/support/QtTestPrinters.h"
#include "tests/tools/ToolRun.h"

#include <gtest/gtest.h>

using namespace tools_test;
using namespace Qt::StringLiterals;

namespace {

using DialogCalls = ToolTest;

TEST_F(DialogCalls, AnAliasMayRunATool)
{
    plays(u"command EDITALIAS\ndialog Dlg_QT_EditAlias\nclick btnAdd\ncell lstAlias 0 0 editalias\n"
          "cell lstAlias 0 1 ea\nclick acceptButton\n"
          "command ea\ndialog Dlg_QT_EditAlias\nexpect-title \"Edit Alias\"\nclick ButtonCancel\n"
          "expect-modified no\n"_s);
}

// What the dialog's program does next would be taken as the command's input.
TEST_F(DialogCalls, ReplacingBlocksIsRefusedWhileACommandWaits)
{
    plays(u"lisp (progn (command \"_.LINE\" \"0,0\") (setq result (list (Dlg_replaceblock \"x\" \"DOOR\") "
          "(Dlg_replaceblocktoxref \"x\" \"DOOR\"))) (command \"1,1\" \"\"))\n"
          "expect-lisp (equal result '(nil nil))\nexpect-printed \"REPLACEBLOCK cannot run\"\n"
          "lisp (setq result (Dlg_replaceblock \"x\" \"DOOR\"))\ndialog Dlg_QT_ReplaceBlock\nclose\n"_s);
}

TEST_F(DialogCalls, TheReportsPlaceIsPrintedAndTheResultIsTheHosts)
{
    plays(u"lisp (setq result (Dlg_ExportInfo nil \"%1\"))\n"
          "dialog Dlg_QT_ExportInfo\nclick acceptButton\nfile %2\n"
          "expect-lisp (null result)\nexpect-printed \"Settings saved to: \\\"%2\\\" successfully.\"\n"
          "lisp (Dlg_ExportInfo \"\")\ndialog Dlg_QT_ExportInfo\nclick ButtonCancel\n"_s.arg(
              run.writeFile(u"system.txt"_s, "OS=x\n"), run.path(u"report.txt"_s)));
    EXPECT_TRUE(ToolRun::readFile(run.path(u"report.txt"_s)).endsWith("\nOS=x"));
}

TEST_F(DialogCalls, AttributesAreReplacedInTheDialogAndNotInTheirFile)
{
    const QByteArray table = "HANDLE\tNAME\n'1A\tDOOR\r\n'1C\tG\xC3\x9C\n";
    const QString file = run.writeFile(u"table.txt"_s, table);
    plays(u"lisp (setq result (Dlg_imporAttributes \"%1\"))\n"
          "dialog Dlg_QT_ImportBlockAttributes\nclick selectfile\nfile %2\n"
          "click selectAll\nset txsearch door\nset txreplace Window\nclick btReplace\nclick acceptButton\n"
          "expect-lisp (= (cdr (assoc \"attributes\" (kora_readstate \"%1\"))) "
          "\"HANDLE\\tNAME^'1A\\tWindow^'1C\\tG\\U+00DC\")\n"_s.arg(run.path(u"attributes.state"_s), file));
    EXPECT_EQ(ToolRun::readFile(file), table);
}

TEST_F(DialogCalls, EachDocumentHasItsOwnDialogWithItsOwnValues)
{
    host::app::Workbench bench(run.workbench());
    host::kernel::Document *first = bench.documents().create();
    host::kernel::Document *second = bench.documents().create();
    const auto play = [&](host::kernel::Document *document, const QString &steps) {
        bench.documents().setActive(document);
        const auto outcome = host::app::runSession(
            u"lisp (Dlg_BreakLine \"\")\ndialog Dlg_QT_Breakline\n%1click ButtonCancel\n"_s.arg(steps), *document, {});
        EXPECT_TRUE(outcome.ok) << outcome.message.toStdString();
    };
    play(first, u"set _dist_size 7\n"_s);
    play(second, u"expect _dist_size 1\nset _dist_size 3\n"_s);
    play(first, u"expect _dist_size 7\n"_s);
    ASSERT_TRUE(bench.documents().close(first));
    play(second, u"expect _dist_size 3\n"_s);
}

// The setting comes into the drawing with the masks, as one undo step, and leaves no trace when it comes back.
TEST_F(DialogCalls, ConfirmedMasksHaveNoFrames)
{
    QStringList drawings = {plan};
    if (const QString corpus = qEnvironmentVariable("ORTAKIT_CORPUS"); !corpus.isEmpty())
        drawings.append(corpus + u"/masked_door.dxf"_s); // has the setting already
    const QString frame = u"expect-lisp (= %1 (getvar \"WIPEOUTFRAME\"))\n"_s;
    const QString state = run.writeFile(u"sample.state"_s, "type_mask=TRUE\noffset=1\n");
    for (const QString &drawing : drawings) {
        plays(u"lisp (Dlg_TextMask \"%1\")\ndialog Dlg_QT_TextMask\n"
              "click type_solid\nclick type_mask\nclick acceptButton\n"_s.arg(state) +
                  frame.arg(0) + u"undo\n"_s + frame.arg(1) + u"expect-modified no\nredo\n"_s + frame.arg(0) +
                  u"expect-modified yes\n"_s,
              drawing);
        const QStringList added = {u"+CLASS"_s, u"+WIPEOUTVARIABLES"_s, u"~$HANDSEED"_s, u"~DICTIONARY"_s};
        EXPECT_EQ(differences(drawing, run.result(drawing)),
                  drawing == plan ? added : QStringList{u"~WIPEOUTVARIABLES"_s});
        EXPECT_TRUE(isSound(run.result(drawing)));
    }
}

} // namespace
