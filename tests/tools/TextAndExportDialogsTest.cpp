// Dialogs of text and of reports, driven in the program: what goes back to Lisp and what is in the files.

#include "tests/support/QtTestPrinters.h"
#include "tests/tools/ToolRun.h"

#include <gtest/gtest.h>

using namespace tools_test;
using namespace Qt::StringLiterals;

namespace {

class TextAndExportDialogs : public testing::Test
{
protected:
    /// Plays `session`, which must go well; "%1" in it is the test's folder.
    void play(const QString &session) const
    {
        const RunOutcome outcome = run.play(session.arg(run.path({})), ToolRun::sample(u"plan.dxf"_s));
        EXPECT_EQ(outcome.status, 0) << outcome.output.toStdString();
    }
    QByteArray content(const QString &name) const { return ToolRun::readFile(run.path(name)); }

    ToolRun run;
};

TEST_F(TextAndExportDialogs, CaseStyleGoesFromCallToCall)
{
    run.writeFile(u"case.state"_s, "referenceedit=the (big) DOG\nCurrent=Title\n");
    play(u"lisp (setq result (Dlg_edittextcase \"%1/case.state\"))\n"
         "dialog Dlg_QT_EditTextCase\nexpect-title EditTextCase\nexpect previewLabel The (big) Dog\n"
         "check radioButton5 yes\nexpect previewLabel THE (BIG) dog\nclick okButton\n"
         "expect-lisp (= result T)\n"
         "lisp (setq result (Dlg_edittextcase \"%1/case.state\"))\n"
         "dialog Dlg_QT_EditTextCase\nexpect radioButton5 yes\ncheck radioButton2 yes\nclick cancelButton\n"
         "expect-lisp (null result)\nexpect-modified no\n"
         "lisp (Dlg_edittextcase 1)\nexpect-error Dlg_edittextcase\n"_s);
    EXPECT_EQ(content(u"case.state"_s), "\xEF\xBB\xBFradiobutton1=FALSE\n!action!=\nradiobutton2=FALSE\n"
                                        "radiobutton3=FALSE\nradiobutton4=FALSE\nradiobutton5=TRUE\ncurrent=toGgle\n");
}

TEST_F(TextAndExportDialogs, NoteOptionsGoBack)
{
    run.writeFile(u"notes.state"_s, "select_topdow=TRUE\nword_wrap=FALSE\n");
    play(u"lisp (setq result (Dlg_convertsimplesnotes \"%1/notes.state\"))\n"
         "dialog DLG_QT_ConvertNotes\nexpect-title \"Convert SimpleNote\"\nexpect select_topdow yes\n"
         "click select_alfa\nclick keepsizes\nclick acceptButton\nexpect-lisp (= result T)\n"_s);
    EXPECT_EQ(content(u"notes.state"_s),
              "\xEF\xBB\xBFkeepfonts=TRUE\n!action!=\nkeepcolors=TRUE\nkeepsizes=FALSE\nselect_entity=FALSE\n"
              "select_topdow=FALSE\nselect_alfa=TRUE\nword_wrap=FALSE\n");
}

TEST_F(TextAndExportDialogs, SettingsAreSavedAndAppendedByteForByte)
{
    const QByteArray listing = "(setvar \"A\"  1)\n(setvar \"B\" \"<b>&\") ;dangerous\n;(setvar \"C\") read-only\n";
    run.writeFile(u"listing.txt"_s, listing);
    run.writeFile(u"old.scr"_s, "LINE\n");
    play(u"lisp (setq result (Dlg_exportsetting \"%1/listing.txt\" \"new\"))\n"
         "dialog Dlg_QT_ExportSettings\nexpect-title ExportVariables\nclick saveButton\nfile %1/new.scr\n"
         "set Type Dangerous\nclick saveButton\nfile cancel\n"
         "click button:Close\nexpect-lisp (= result T)\n"
         "lisp (setq result (Dlg_exportsetting \"%1/listing.txt\" \"add\"))\n"
         "dialog Dlg_QT_ExportSettings\nexpect-title VariableToScript\nexpect Type Dangerous\nclick saveButton\n"
         "file %1/old.scr\nclick saveButton\nfile %1/old.scr\n"
         "close\nexpect-lisp (null result)\n"
         "lisp (Dlg_exportsetting \"%1/listing.txt\")\nexpect-error Dlg_exportsetting\n"_s);
    EXPECT_EQ(content(u"new.scr"_s),
              ";(setvar \"C\") read-only\n(setvar \"B\" \"<b>&\") ;dangerous\n(setvar \"A\"  1)");
    EXPECT_EQ(content(u"old.scr"_s), "LINE\n(setvar \"B\" \"<b>&\") ;dangerous(setvar \"B\" \"<b>&\") ;dangerous");
    EXPECT_EQ(content(u"listing.txt"_s), listing);
}

TEST_F(TextAndExportDialogs, ReportSaysWhereItIs)
{
    run.writeFile(u"info.state"_s, "lineedit=Ann\n");
    run.writeFile(u"system.txt"_s, "OS=x\n");
    play(u"lisp (setq result (Dlg_ExportInfo \"%1/info.state\" \"%1/system.txt\"))\n"
         "dialog Dlg_QT_ExportInfo\nset lineEdit_2 ann@example.com\nclick acceptButton\nfile %1/report.txt\n"
         "expect-lisp (null result)\nexpect-printed \"Settings saved to: \\\"%1/report.txt\\\" successfully.\"\n"
         "lisp (Dlg_ExportInfo nil)\n"
         "dialog Dlg_QT_ExportInfo\nexpect lineEdit Ann\nclick acceptButton\nfile cancel\n"
         "expect-printed \"Settings saved to: \\\"\\\" successfully.\"\n"
         "lisp (Dlg_ExportInfo \"\")\ndialog Dlg_QT_ExportInfo\nclick ButtonCancel\n"
         "lisp (Dlg_ExportInfo)\nexpect-error Dlg_ExportInfo\n"_s);
    const QByteArray line = "@@@@@@@@@@@@@@@@@@@@@@@@@@@@@@@@@@@@\n";
    EXPECT_EQ(content(u"report.txt"_s),
              line + "\t\tUSER INFORMATION\n" + line +
                  "NAME:   Ann\nE-MAIL: ann@example.com\nPHONE:  \n\nISSUE DESCRIPTION:\n\n\n" + line +
                  "\tSTEPS TO REPRODUCE THE ISSUE\n" + line + "1. \n2. \n3. \n4. \n5. \n... \n\n" + line +
                  "\tSYSTEM INFORMATION\n" + line + "\nOS=x");
    EXPECT_EQ(content(u"info.state"_s), "\xEF\xBB\xBFlineedit=Ann\n!action!=\nlineedit_2=ann@example.com\n");
}

} // namespace
