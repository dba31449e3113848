#include "tests/support/QtTestPrinters.h"
#include "tests/tools/ToolRun.h"

#include <gtest/gtest.h>

using namespace tools_test;
using namespace Qt::StringLiterals;

namespace {

class PatternHatchDialog : public ToolTest
{
protected:
    /// Calls the function in `mode` when the program has put `changes`, a list of Lisp pairs, into the state file.
    static QString called(const QString &mode, const QString &changes)
    {
        return u"lisp (kora_writestate (setq file (kora_statefile \"patternhatch\")) '(%1))\n"
               "lisp (setq result (Dlg_PatternHatch file \"%2\"))\ndialog DLG_QT_PatternHatch\n"_s.arg(changes, mode);
    }
    /// Closed with `action`; the state file is kept as number `step`.
    static QString closed(const QString &action, int step)
    {
        return u"expect-lisp (= result \"%1\")\nlisp (vl-file-copy file (strcat file \".%2\"))\n"_s.arg(action).arg(
            step);
    }
    QStringList lines(int step) const
    {
        const QByteArray content = ToolRun::readFile(run.stateFile(u"patternhatch"_s) + u'.' + QString::number(step));
        EXPECT_TRUE(content.startsWith("\xEF\xBB\xBF")) << step;
        return QString::fromUtf8(content.mid(3)).split(u'\n');
    }

    QString zigzag = ToolRun::sample(u"zigzag.dxf"_s);
};

TEST_F(PatternHatchDialog, LoopsBetweenDialogAndProgram)
{
    const QString session =
        called(u"NEW"_s, u"(\"pattern_block\" . \"TRUE\") (\"width\" . \"3\") (\"qtentities\" . \"0\")"_s) +
        u"expect-enabled acceptButton no\nexpect-enabled Btn_Preview no\nexpect-enabled Btn_DeleteEntities no\n"
        "click Bt_selectBlock\nfile %1\n"_s.arg(zigzag) +
        closed(u"GET_BLOCK="_s + zigzag, 1) +

        called(u"EDIT"_s, u"(\"lbtitleblock\" . \"%1\")"_s.arg(zigzag)) +
        u"expect-visible Bt_selectBlock yes\nexpect Width 1\nexpect Height 0.9\nset OffsetX 0.25\nset Rotation "
        u"30\nclick aspectRatio\n"
        "set Height 1.8\nexpect Width 2\nclick TypeObjectGroup\nclick Btn_SelectPoints\n"_s +
        closed(u"GET_POINTS"_s, 2) +

        // The program's values do not count here: what was typed stays.
        called(u"BOUNDARIES"_s, u"(\"offsetx\" . \"9\") (\"qtentities\" . \"2\")"_s) +
        u"expect OffsetX 0.25\nexpect-enabled Btn_ShowBoundaries yes\nset tolerance 0.009\nclick acceptButton\n"
        "message \"The tolerance value is less than minimum.\" Ok\nset tolerance 0.01\nclick acceptButton\n"_s +
        closed(u"OK"_s, 3) +

        called(u"EDIT"_s, u"(\"qtentities\" . \"0\")"_s) +
        u"expect-enabled acceptButton no\nclick ButtonCancel\nexpect-lisp (null result)\nexpect-modified no\n"_s;
    plays(session);

    const auto written = [](const QStringList &own) {
        return u"pattern_block=TRUE\n%1\npattern_image=FALSE\npattern_xref=FALSE\npattern_mask=FALSE\n"
               "scalefactor=FALSE\n%2\noffsety=0\nqt_spinbox_lineedit=0.0000\npositionx=0\n"
               "qt_spinbox_lineedit=0.0000\npositiony=0\nqt_spinbox_lineedit=0.0000\n%3\n"
               "trimtolimits=TRUE\nnotexceedlimits=FALSE\ntolerance=0.01\nqt_spinbox_lineedit=0.0100\n"_s
                   .arg(own[0], own[1], own[2])
                   .split(u'\n');
    };
    EXPECT_EQ(lines(1), written({u"!action!GET_BLOCK="_s + zigzag,
                                 u"aspectratio=FALSE\nwidth=1\nqt_spinbox_lineedit=1.0000\nheight=0.9\n"
                                 "qt_spinbox_lineedit=0.9000\noffsetx=0\nqt_spinbox_lineedit=0.0000"_s,
                                 u"rotation=0\nqt_spinbox_lineedit=0\ntypeobjectblock=TRUE\ntypeobjectgroup=FALSE"_s}));
    const QString sizes = u"aspectratio=TRUE\nwidth=2\nqt_spinbox_lineedit=2.0000\nheight=1.8\n"
                          "qt_spinbox_lineedit=1.8000\noffsetx=0.25\nqt_spinbox_lineedit=0.2500"_s;
    const QString group = u"rotation=30\nqt_spinbox_lineedit=30\ntypeobjectblock=FALSE\ntypeobjectgroup=TRUE"_s;
    EXPECT_EQ(lines(2), written({u"!action!=GET_POINTS"_s, sizes, group}));
    EXPECT_EQ(lines(3), written({u"!action!=OK"_s, sizes, group}));
}

} // namespace
