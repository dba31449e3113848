#include "tests/tools/ToolRun.h"

#include <QFile>
#include <QRegularExpression>

using namespace tools_test;
using namespace Qt::StringLiterals;

namespace {

struct SheetCase
{
    const char *name;
    const char *session; ///< " ~ " is a line's end, "> PAGE" the dialog that opens, turned to that page
};

// A viewport of 100 by 50 with its middle in (100, 100), where (0, 0) of the model is seen 1:1, and one beside it in
// which (10, 20) is in the middle, 2:1.
const char *const twoViewports = R"(
lisp (setvar "TILEMODE" 0)
lisp (defun vp (code id) (cdr (assoc code (entget (ssname (ssget "_X" (list '(0 . "VIEWPORT") (cons 69 id))) 0)))))
lisp (defun change (id code value / d) (setq d (entget (ssname (ssget "_X" (list '(0 . "VIEWPORT") (cons 69 id))) 0))) (entmod (subst (cons code value) (assoc code d) d)))
lisp (kora_make_viewports '(((50.0 75.0) (150.0 125.0)) ((160.0 75.0) (260.0 125.0))))
lisp (progn (change 2 12 '(0.0 0.0)) (change 2 45 50.0) (change 3 12 '(10.0 20.0)) (change 3 45 25.0))
)";

const SheetCase cases[] = {
    {"nothing is done before a step", R"(
command MULTIVIEWSETUP ~ > psTitle ~ click ButtonCancel ~ expect-modified no
expect-lisp (= 1 (getvar "TILEMODE"))
)"},
    {"what cannot be a title block", R"(
command MULTIVIEWSETUP ~ > psTitle ~ row lstBlocks a3.dxf ~ set titleX left ~ click InsertTitle ~ > psTitle
set titleX 0 ~ check oplay yes ~ set layer A<B ~ click InsertTitle ~ > psTitle ~ click ButtonCancel
expect-printed "The origin of the title block must be two numbers."
expect-printed "\"A<B\" cannot be the name of a layer." ~ expect-lisp (= 1 (getvar "TILEMODE"))
expect-lisp (not (or (tblsearch "BLOCK" "a3") (tblsearch "LAYER" "A<B"))) ~ expect-count INSERT 0
)"},
    {"a title block in place of all but viewports and locked layers", R"(
lisp (setvar "TILEMODE" 0) ~ lisp (command "_.-LAYER" "_New" "KEEP" "_LOck" "KEEP" "")
lisp (kora_make_viewports '(((50.0 75.0) (150.0 125.0))))
lisp (foreach l '("0" "KEEP") (entmake (list '(0 . "POINT") '(67 . 1) (cons 8 l) '(10 1.0 1.0 0.0))))
lisp (setvar "TILEMODE" 1)
command MULTIVIEWSETUP ~ > psTitle ~ row lstBlocks a3.dxf ~ set titleX 10 ~ set titley -5
set UnitsTitle Meters ~ check oplay no ~ set removeTitles "Remove all entities" ~ check limits yes
click InsertTitle ~ answer One ~ enter ~ > psTitle ~ set UnitsTitle Milimeters
set removeTitles "Specify entities for remove" ~ click InsertTitle ~ select all ~ enter ~ enter ~ answer Two
enter ~ > psTitle ~ click ButtonCancel
expect-printed "Title block a3 inserted, 1 entity removed. 1 on a locked layer was left alone."
expect-printed "Title block a3 inserted, 2 entities removed." ~ expect-lisp (= 0 (getvar "TILEMODE"))
expect-lisp (equal '(10.0 -5.0 0.0) (cdr (assoc 10 (entget (ssname (ssget "_X" '((0 . "INSERT"))) 0)))))
expect-lisp (equal '((10.0 -5.0) (430.0 292.0)) (list (getvar "LIMMIN") (getvar "LIMMAX")) 1e-9)
expect-count POINT 1 ~ expect-count VIEWPORT 1 ~ expect-count INSERT 1 ~ undo ~ expect-count VIEWPORT 2
expect-lisp (equal 0.001 (cdr (assoc 41 (entget (ssname (ssget "_X" '((0 . "INSERT"))) 0)))))
expect-lisp (equal '((10.0 -5.0) (10.42 -4.703)) (list (getvar "LIMMIN") (getvar "LIMMAX")) 1e-9) ~ undo
expect-lisp (= 1 (getvar "TILEMODE")) ~ expect-count POINT 2 ~ expect-count INSERT 0
)"},
    {"a title block as external reference", R"(
command MULTIVIEWSETUP ~ > psTitle ~ row lstBlocks a3.dxf ~ check xref yes ~ check limits yes
click InsertTitle ~ > psTitle ~ check xref no ~ click InsertTitle ~ > psTitle ~ click ButtonCancel
expect-printed "The limits stay as they are"
expect-printed "The drawing has an external reference of the name a3 already."
expect-lisp (= 4 (logand 4 (cdr (assoc 70 (tblsearch "BLOCK" "a3"))))) ~ expect-count INSERT 1
)"},
    {"the sheet has the drawing's unit, for external references as well", R"(
lisp (setvar "INSUNITS" 6)
command MULTIVIEWSETUP ~ > psTitle ~ expect UnitsTitle Meters ~ row lstBlocks a3.dxf ~ check xref yes
click InsertTitle ~ > psTitle ~ click ButtonCancel
expect-lisp (equal 0.001 (cdr (assoc 41 (entget (ssname (ssget "_X" '((0 . "INSERT"))) 0)))))
)"},
    {"arrays that cannot be", R"(
command MULTIVIEWSETUP ~ > psCreate ~ click arrayViewp ~ set viewrows 1e9 ~ click CreateViewports ~ > psCreate
set viewrows 0 ~ click CreateViewports ~ > psCreate ~ set viewrows 2.5 ~ click CreateViewports ~ > psCreate
set viewrows 2 ~ set viewoffsety -1 ~ click CreateViewports ~ > psCreate ~ set viewoffsety 50
click CreateViewports ~ point 0,0 ~ point 100,50 ~ > psCreate ~ click CreateViewports ~ point 0,0 ~ cancel
expect-printed "Rows and columns must be whole numbers and make no more than 64 viewports."
expect-printed "Rows, columns and offsets must be numbers that are not negative."
expect-printed "The area is too small for these viewports and offsets." ~ expect-count VIEWPORT 0
expect-lisp (= 1 (getvar "TILEMODE"))
)"},
    {"viewports in place of others", R"(
command MULTIVIEWSETUP ~ > psCreate ~ click singleViewp ~ click CreateViewports ~ point 100,50 ~ point 0,0
> psCreate ~ click arrayViewp ~ set viewrows 2 ~ set viewcols 3 ~ set viewoffsetx 5 ~ set viewoffsety 10
set removeViewports "Remove all viewports" ~ click CreateViewports ~ point 0,0 ~ point 100,50 ~ > psCreate
set removeViewports "Specify viewports to remove" ~ click singleViewp ~ click CreateViewports ~ select all
enter ~ point 200,0 ~ point 300,10 ~ > psCreate ~ click ButtonCancel
expect-printed "6 viewports created, 1 deleted." ~ expect-printed "1 viewport created, 6 deleted."
expect-count VIEWPORT 2 ~ undo ~ expect-count VIEWPORT 7 ~ lisp (setq all (mapcar 'entget (kora_viewports)))
expect-lisp (equal '(2 3 4 5 6 7) (vl-sort (mapcar '(lambda (d) (cdr (assoc 69 d))) all) '<))
expect-lisp (equal '(15.0 15.0 50.0 50.0 85.0 85.0) (vl-sort (mapcar '(lambda (d) (cadr (assoc 10 d))) all) '<) 1e-9)
expect-lisp (vl-every '(lambda (d) (and (equal 30.0 (cdr (assoc 40 d)) 1e-9) (equal 20.0 (cdr (assoc 41 d)) 1e-9))) all)
)"},
    {"a model that is empty is seen as large as the sheet", R"(
lisp (foreach e (kora_selection_to_list (ssget "_X")) (entdel e)) ~ lisp (setvar "TILEMODE" 0)
lisp (kora_make_viewports '(((0.0 0.0) (100.0 50.0))))
expect-lisp (equal 50.0 (cdr (assoc 45 (entget (car (kora_viewports))))))
)"},
    {"points level with each other", R"(
@two
command MULTIVIEWSETUP ~ > psAlign ~ click alignhor ~ click AlignViewports ~ point 10,10 ~ point 110,90
point 120,90 ~ point 210,115 ~ enter ~ > psAlign ~ click alignver ~ click AlignViewports ~ point 210,100
point 90,100 ~ enter ~ > psAlign ~ click ButtonCancel ~ expect-printed "There is no viewport at this point."
expect-printed "That is the base viewport."
expect-lisp (equal '(10.0 32.5) (cdr (assoc 12 (entget (car (vl-remove-if-not '(lambda (e) (= 3 (cdr (assoc 69 (entget e))))) (kora_viewports)))))) 1e-9)
expect-lisp (equal '(-120.0 0.0) (vp 12 2) 1e-9)
)"},
    {"displays that are locked", R"(
@two ~ lisp (change 3 90 (+ 32864 16384))
command MULTIVIEWSETUP ~ > psAlign ~ click AlignViewports ~ point 110,90 ~ point 210,115 ~ enter ~ > psScale
click ps_Scale ~ click ScaleViewports ~ select all ~ enter ~ answer 1 ~ answer 4 ~ > psScale
click ButtonCancel ~ expect-printed "The display of that viewport is locked."
expect-printed "0 viewports aligned."
expect-printed "1 viewport scaled to 1:4, 1 with a fixed display or border left alone."
expect-lisp (equal '(25.0 12.5 50.0) (list (vp 40 2) (vp 41 2) (vp 45 2)) 1e-9)
expect-lisp (equal '(100.0 50.0 25.0) (list (vp 40 3) (vp 41 3) (vp 45 3)) 1e-9)
)"},
    {"viewports that are chosen already get the scale of the model page", R"(
@two ~ lisp (sssetfirst nil (ssget "_X" '((0 . "VIEWPORT") (69 . 3))))
command MULTIVIEWSETUP ~ dialog Dlg_QT_MultiViewSetup ~ click SpaceModel ~ click msMetric
row msLstScales 1:200 ~ click SpacePaper ~ click psScale ~ click ms_Scale ~ click ScaleViewports ~ enter ~ enter
> psScale ~ click ButtonCancel ~ expect-printed "1 viewport scaled to 1:200."
expect-lisp (equal '(100.0 50.0 10000.0) (list (vp 40 3) (vp 41 3) (vp 45 3)) 1e-6)
expect-lisp (equal 50.0 (vp 45 2))
)"},
    {"a sheet around the drawing in model space", R"(
lisp (setvar "TILEMODE" 0)
command MULTIVIEWSETUP ~ dialog Dlg_QT_MultiViewSetup ~ click SpaceModel ~ click msArchitectural
row msLstScales 1/8"=1' ~ set mswidth wide ~ set msheight 8 ~ click InsertMsTitle ~ dialog Dlg_QT_MultiViewSetup
set mswidth 1'2" ~ click InsertMsTitle ~ point 100,200 ~ dialog Dlg_QT_MultiViewSetup ~ set curScale 0
click InsertMsTitle ~ dialog Dlg_QT_MultiViewSetup ~ click ButtonCancel
expect-printed "Width and height must be lengths greater than zero."
expect-printed "The scale factor must be a number greater than zero." ~ expect-lisp (= 1 (getvar "TILEMODE"))
expect-lisp (equal '((100.0 200.0) (1444.0 200.0) (1444.0 968.0) (100.0 968.0)) (mapcar 'cdr (vl-remove-if-not '(lambda (f) (= 10 (car f))) (entget (entlast)))) 1e-9)
)"},
};

QString sessionOf(const char *text)
{
    QString session = u"lisp (kora_writestate (kora_statefile \"multiviewsetup\") '((\"directory\" . \"%1\")))\n"_s.arg(
                          ToolRun::sample(u"sheets"_s)) +
                      QString::fromUtf8(text);
    session.replace(u"@two"_s, QString::fromUtf8(twoViewports)).replace(u" ~ "_s, u"\n"_s);
    static const QRegularExpression turned(u"\n> (\\w+)"_s);
    return session.replace(turned, u"\ndialog Dlg_QT_MultiViewSetup\n  check SpacePaper yes\n  check \\1 yes"_s);
}

class MultiViewSetupCases : public ToolTest, public testing::WithParamInterface<SheetCase>
{
};

TEST_P(MultiViewSetupCases, DoWhatTheDialogSays)
{
    plays(sessionOf(GetParam().session));
    if (QFile::exists(run.result(plan))) {
        EXPECT_TRUE(isSound(run.result(plan)));
    }
}

INSTANTIATE_TEST_SUITE_P(Tools, MultiViewSetupCases, testing::ValuesIn(cases),
                         [](const auto &row) { return u"Case%1"_s.arg(row.index).toStdString(); });

using MultiViewSetupTool = ToolTest;

// Viewports of another program are taken like those that were made here; its sheet has a number already.
TEST_F(MultiViewSetupTool, WorksOnTheViewportsOfOtherPrograms)
{
    const QString drawing = qEnvironmentVariable("ORTAKIT_CORPUS") + u"/four_viewports.dxf"_s;
    if (!QFile::exists(drawing))
        GTEST_SKIP() << "the drawings are not there";
    plays(sessionOf(R"(
command MULTIVIEWSETUP ~ > psScale ~ click ScaleViewports ~ select all ~ enter ~ answer 1 ~ answer 2 ~ > psAlign
click AlignViewports ~ pick 45,155 ~ pick 182,140 ~ enter ~ > psCreate ~ click CreateViewports ~ pick 250,0
pick 300,50 ~ > psCreate ~ click ButtonCancel ~ expect-printed "4 viewports scaled to 1:2."
expect-printed "1 viewport aligned." ~ expect-count VIEWPORT 6
expect-lisp (= 6 (cdr (assoc 69 (entget (entlast)))))
)"),
          drawing);
    EXPECT_TRUE(isSound(run.result(drawing)));
    QStringList kinds = differences(drawing, run.result(drawing));
    kinds.removeAll(u"~VIEWPORT"_s);
    EXPECT_EQ(kinds, (QStringList{u"+VIEWPORT"_s, u"~$HANDSEED"_s, u"~$TILEMODE"_s}));
}

} // namespace
