// Dialogs that carry choices from Lisp and back, driven in the program: a state file in, a state file out.

#include "tests/support/QtTestPrinters.h"
#include "tests/tools/ToolRun.h"

#include <QDir>

#include <gtest/gtest.h>

using namespace tools_test;
using namespace Qt::StringLiterals;

namespace {

class OptionDialogs : public ToolTest
{
protected:
    OptionDialogs() { QDir().mkpath(run.path(u"home/Ortakit"_s)); }

    /// Calls the function with the state file `tool`, in which `state` is written first; `steps` work in the dialog.
    RunOutcome call(const QString &function, const QString &dialog, const QString &state, const QString &steps,
                    const QString &drawing) const
    {
        run.writeFile(u"home/Ortakit/sample.state"_s, state.toUtf8());
        return run.play(
            u"lisp (setq result (%1 (kora_statefile \"sample\")))\ndialog %2\n%3"_s.arg(function, dialog, steps),
            drawing);
    }
    QByteArray state() const { return ToolRun::readFile(run.stateFile(u"sample"_s)); }
};

TEST_F(OptionDialogs, BringTheirChoicesBack)
{
    const struct
    {
        QString function;
        QString dialog;
        QString given;
        QString steps;
        QString taken;
    } rows[] = {
        {u"Dlg_TextFrame"_s, u"Dlg_QT_TextFrame"_s, u"type_circle=TRUE\noffset=2\nbk_hatch=TRUE\ncolor=5\n"_s,
         u"expect offset 2\nexpect-enabled groupConstant no\nclick type_rectangle\nclick constant\n"
         "click constant_height\nset offset 0.25\nclick acceptButton\n"_s,
         u"type_slot=FALSE\n!action!=\ntype_rectangle=TRUE\ntype_circle=FALSE\noffset=0.25\nconstant=TRUE\n"
         "variable=FALSE\nconstant_width=FALSE\nconstant_height=TRUE\nconstant_both=FALSE\nbk_transparent=FALSE\n"
         "bk_hatch=TRUE\ncolor=5\ncolor_index=6\n"_s},
        {u"Dlg_TextMask"_s, u"Dlg_QT_TextMask"_s, u"type_solid=TRUE\noffset=-1\ncolor=2\n"_s,
         u"click acceptButton\nmessage \"Wrong dimension value. Must be positive or zero.\" Ok\n"
         "set offset 0\nclick acceptButton\n"_s,
         u"offset=0\n!action!=\ntype_mask=FALSE\ntype_3dface=FALSE\ntype_solid=TRUE\ncolor=2\ncolor_index=3\n"_s},
        {u"Dlg_NumberText"_s, u"Dlg_QT_numbertext"_s, u"sort_point=TRUE\nsearch=No.\nformat_sufix=.\ntx_step=5\n"_s,
         u"expect-items cb_digits \"1 [1]^2 [01]^3 [001]^4 [0001]^5 [00001]^6 [000001]^7 [0000001]^8 [00000001]\"\n"
         "click placement_replace\nexpect search No.\nclick sent_des\nset cb_digits \"4 [0001]\"\n"
         "click acceptButton\n"_s,
         u"sort_x=FALSE\n!action!=\nsort_y=FALSE\nsort_select=FALSE\nsort_point=TRUE\nsort_2points=FALSE\n"
         "sent_asc_2=FALSE\nsent_des=TRUE\ntx_init=1\ntx_step=5\ncb_digits=4 [0001]\ncb_digits_index=3\n"
         "format_sufix=.\nplacement_sufix=FALSE\nplacement_replace=TRUE\nplacement_prefix=FALSE\n"
         "placement_over=FALSE\nsearch=No.\n"_s},
        {u"Dlg_MultiViewSetup"_s, u"Dlg_QT_MultiViewSetup"_s, u"pscreate=TRUE\nviewrows=2\nmsmetric=TRUE\n"_s,
         u"expect viewrows 2\nexpect-enabled viewrows no\nclick arrayViewp\nset viewcols 3\n"
         "set removeViewports \"Remove all viewports\"\nclick SpaceModel\nrow msLstScales 1:50\nexpect curScale 50\n"
         "set mswidth 420\nset msheight 297\nclick InsertMsTitle\n"_s,
         // Pages of a stack come in the order in which they were last shown.
         u"spacepaper=FALSE\n!action!=INSERTMSTITLE\nspacemodel=TRUE\npstitle=FALSE\npscreate=TRUE\npsalign=FALSE\n"
         "psscale=FALSE\nms_scale=TRUE\nps_scale=FALSE\nalignhor=TRUE\nalignver=FALSE\n"
         "directory=%1/Template\ntitlex=0.0\ntitley=0.0\nunitstitle=Feet\nunitstitle_index=0\noplay=FALSE\n"
         "removetitles=Do not remove entities\nremovetitles_index=0\nxref=FALSE\nlimits=FALSE\nsingleviewp=FALSE\n"
         "arrayviewp=TRUE\nviewrows=2\nviewcols=3\nviewoffsetx=0.0\nviewoffsety=0.0\n"
         "removeviewports=Remove all viewports\nremoveviewports_index=1\n"
         "msscientific=FALSE\nmsdecimal=FALSE\nmsengeneering=FALSE\nmsarchitectural=FALSE\n"
         "msmetric=TRUE\nmswidth=420\nmsheight=297\nmslstscales=1:50^\ncurscale=50\n"_s},
    };
    for (const auto &row : rows) {
        const RunOutcome outcome = call(row.function, row.dialog, row.given,
                                        row.steps + u"expect-lisp (= result T)\nexpect-modified no\n"_s, plan);
        EXPECT_EQ(outcome.status, 0) << row.dialog.toStdString() << ": " << outcome.output.toStdString();
        const QString taken = QString(row.taken).replace(u"%1"_s, run.path(u"home"_s));
        EXPECT_EQ(state(), "\xEF\xBB\xBF" + taken.toUtf8()) << row.dialog.toStdString();
    }
}

TEST_F(OptionDialogs, CancellingLeavesTheStateFileAndTheDrawing)
{
    const QString odd = u"type_mask=TRUE\r\nodd line\n\noffset=1"_s;
    const std::pair<QString, QString> dialogs[] = {{u"Dlg_BreakLine"_s, u"Dlg_QT_Breakline"_s},
                                                   {u"Dlg_TextFrame"_s, u"Dlg_QT_TextFrame"_s},
                                                   {u"Dlg_TextMask"_s, u"Dlg_QT_TextMask"_s},
                                                   {u"Dlg_NumberText"_s, u"Dlg_QT_numbertext"_s},
                                                   {u"Dlg_MultiViewSetup"_s, u"Dlg_QT_MultiViewSetup"_s}};
    for (const auto &[function, dialog] : dialogs) {
        const RunOutcome outcome =
            call(function, dialog, odd, u"click ButtonCancel\nexpect-lisp (null result)\nexpect-modified no\n"_s, plan);
        EXPECT_EQ(outcome.status, 0) << dialog.toStdString() << ": " << outcome.output.toStdString();
        EXPECT_EQ(state(), odd.toUtf8()) << dialog.toStdString();
        EXPECT_FALSE(QFile::exists(run.result(plan))) << dialog.toStdString();
    }
}

// The setting comes into the drawing with the masks, as one undo step, and leaves no trace when it comes back.
TEST_F(OptionDialogs, ConfirmedMasksHaveNoFrames)
{
    QStringList drawings = {plan};
    if (const QString corpus = qEnvironmentVariable("ORTAKIT_CORPUS"); !corpus.isEmpty())
        drawings.append(corpus + u"/masked_door.dxf"_s); // has the setting already
    for (const QString &drawing : drawings) {
        const bool isNew = drawing == plan;
        const QString frame = u"expect-lisp (= %1 (getvar \"WIPEOUTFRAME\"))\n"_s;
        const RunOutcome outcome =
            call(u"Dlg_TextMask"_s, u"Dlg_QT_TextMask"_s, u"type_mask=TRUE\noffset=1\n"_s,
                 u"click type_solid\nclick type_mask\nclick acceptButton\n"_s + frame.arg(0) + u"undo\n"_s +
                     frame.arg(1) + u"expect-modified no\nredo\n"_s + frame.arg(0) + u"expect-modified yes\n"_s,
                 drawing);
        EXPECT_EQ(outcome.status, 0) << drawing.toStdString() << outcome.output.toStdString();
        const QStringList added = {u"+CLASS"_s, u"+WIPEOUTVARIABLES"_s, u"~$HANDSEED"_s, u"~DICTIONARY"_s};
        EXPECT_EQ(differences(drawing, run.result(drawing)), isNew ? added : QStringList{u"~WIPEOUTVARIABLES"_s});
        EXPECT_TRUE(isSound(run.result(drawing)));
    }
}

} // namespace
