// The pattern hatch: what is drawn in an area and at its edge, the ways to and fro between dialog and drawing, and
// drawings made elsewhere.

#include "tests/support/QtTestPrinters.h"
#include "tests/tools/ToolRun.h"

#include <QDir>

#include <gtest/gtest.h>
#include <random>

using namespace tools_test;
using namespace Qt::StringLiterals;

namespace {

class PatternHatchTool : public ToolTest
{
protected:
    /// (box x y width height), (ring points) and (circle x y radius) make boundaries, (tile entities) the pattern TILE,
    /// of a dash along 1, a round of 0.5 or others; (parts) is what is in the block that was drawn last, (of type)
    /// those of a type, (total measure type) the sum of what they measure: long, sweep, hidden.
    static QString helpers()
    {
        return u"lisp (defun box (x y w h) (ring (list (list x y) (list (+ x w) y) (list (+ x w) (+ y h)) (list x (+ y "
               u"h)))))\n"
               "lisp (defun ring (points) (entmakex (append (list '(0 . \"LWPOLYLINE\") '(100 . \"AcDbEntity\") '(8 . "
               "\"0\") '(100 . \"AcDbPolyline\") (cons 90 (length points)) '(70 . 1)) (mapcar '(lambda (p) (cons 10 "
               "p)) points))))\n"
               "lisp (defun circle (x y r) (entmakex (list '(0 . \"CIRCLE\") '(8 . \"0\") (list 10 (float x) (float y) "
               "0.0) (cons 40 (float r)))))\n"
               "lisp (defun tile (entities) (entmake '((0 . \"BLOCK\") (2 . \"TILE\") (70 . 0) (10 2.0 1.0 0.0))) "
               "(foreach e entities (entmake e)) (entmake '((0 . \"ENDBLK\"))))\n"
               "lisp (setq dash '((0 . \"LINE\") (8 . \"0\") (10 2.0 1.0 0.0) (11 3.0 1.0 0.0)) round '((0 . "
               "\"CIRCLE\") (8 . \"0\") (10 2.0 1.0 0.0) (40 . 0.5)))\n"
               "lisp (defun parts () (mapcar 'entget (kora_block_entities (kora_field (entget (entlast)) 2))))\n"
               "lisp (defun of (type) (vl-remove-if-not '(lambda (data) (= (kora_field data 0) type)) (parts)))\n"
               "lisp (defun total (measure type) (apply '+ (cons 0.0 (mapcar measure (of type)))))\n"
               "lisp (defun long (data) (distance (kora_field data 10) (kora_field data 11)))\n"
               "lisp (defun sweep (data / turn) (setq turn (- (kora_field data 51) (kora_field data 50))) (* "
               "(kora_field data 40) (if (< turn 0) (+ turn pi pi) turn)))\n"
               "lisp (defun hidden (data / points) (setq points (kora:values_of data 14)) (* 0.5 (distance '(0 0) "
               "(kora_field data 11)) (distance '(0 0) (kora_field data 12)) (abs (apply '+ (mapcar 'kora:cross points "
               "(cdr points))))))\n"
               "lisp (defun is (value wanted near) (equal value wanted near))\n"
               "lisp (kora_writestate (kora_statefile \"patternhatch\") '((\"lbtitleblock\" . \"TILE\")))\n"_s;
    }
    /// The dialog over what `setUp`, an expression, makes and chooses, with values of its own.
    static QString begun(const QString &setUp)
    {
        return helpers() +
               u"lisp (setq es (vl-remove-if-not '(lambda (e) (= (type e) 'ENAME)) (list %1)))\n"
               "lisp (sssetfirst nil (kora_selection es))\ncommand PATTERNHATCH\n"
               "dialog DLG_QT_PatternHatch\n"
               "click pattern_block\ncheck ScaleFactor no\ncheck aspectRatio no\nset Width 1\nset Height 1\nset OffsetX 0\nset OffsetY 0\nset positionX 0\nset positionY 0\nset Rotation 0\nclick TypeObjectBlock\nclick trimtolimits\nset tolerance 0.01\n"_s
                   .arg(setUp);
    }
};

TEST_F(PatternHatchTool, FillsAreasUpToTheirEdge)
{
    const QString mask = u"click pattern_mask\nset patternName \"\"\n"_s;
    const struct
    {
        const char *what;
        QString setUp;  ///< expressions that make the pattern and what is chosen
        QString dialog; ///< lines from the dialog on
        QString check;  ///< an expression
    } rows[] = {
        {"lines along and across the edge", u"(tile (list dash)) (ring '((0.0 0.0) (10.0 0.0) (0.0 10.0)))"_s,
         u"set positionY 0.5\nclick acceptButton\n"_s,
         u"(and (is (+ (length (of \"INSERT\")) (total 'long \"LINE\")) 50.0 1e-9) (= 10 (length (of \"LINE\"))))"_s},
        {"turned", u"(tile (list dash)) (ring '((0.0 0.0) (10.0 0.0) (0.0 10.0)))"_s,
         u"set Rotation 90\nclick acceptButton\n"_s,
         u"(is (+ (length (of \"INSERT\")) (total 'long \"LINE\")) 45.0 1e-9)"_s},
        {"askew", u"(tile (list dash)) (circle 3 2 4)"_s,
         u"set Rotation 33\nset positionX 100\nset Height 0.1\nset OffsetY -0.09\nset tolerance 0.01\nclick acceptButton\n"_s,
         u"(is (* 0.01 (+ (length (of \"INSERT\")) (total 'long \"LINE\"))) (* 16 pi) 0.2)"_s},
        {"half circles", u"(tile (list round)) (box 0 0 2.5 2)"_s,
         u"click acceptButton\nexpect-printed 6 copies drawn, 2 of them cut at the boundary.\n"_s,
         u"(and (= 4 (length (of \"INSERT\"))) (= 2 (length (of \"ARC\"))) (is (total 'sweep \"ARC\") pi 1e-9) (= \"0\" (kora_field (car (of \"ARC\")) 8)))"_s},
        {"a hole around whole copies", u"(tile (list round)) (box 0 0 9 9) (box 3 3 3 3)"_s,
         u"click acceptButton\nexpect-printed 72 copies drawn.\n"_s, u"(= 72 (length (parts)))"_s},
        {"flat circles", u"(tile (list round)) (box 0 0 2 2.25)"_s,
         u"set Height 0.5\nclick acceptButton\nexpect-printed 10 copies drawn, 2 of them cut\n"_s,
         u"(and (= 8 (length (of \"INSERT\"))) (= 2 (length (of \"LWPOLYLINE\"))) (null (of \"ARC\")))"_s},
        {"circles that touch the edge from outside", u"(tile (list round)) (box 0 0.5 3 0.5)"_s,
         u"set Width 0.5\nset Height 0.5\nclick acceptButton\n"_s,
         u"(and (= 6 (length (parts))) (= 6 (length (of \"INSERT\"))))"_s},
        {"a polyline goes on over its beginning",
         u"(tile (list '((0 . \"LWPOLYLINE\") (100 . \"AcDbEntity\") (8 . \"0\") (62 . 1) (100 . \"AcDbPolyline\") (90 . 4) (70 . 1) (43 . 0.1) (10 2.0 1.0) (42 . 0.5) (10 3.0 1.0) (10 3.0 2.0) (10 2.0 2.0)))) (box 0 0 0.55 1.35)"_s,
         u"check ScaleFactor yes\nclick acceptButton\n"_s,
         u"(and (= 1 (length (parts))) (= 4 (kora_field (car (parts)) 90)) (= 1 (kora_field (car (parts)) 62)) (is (kora_field (car (parts)) 43) 0.1 1e-9))"_s},
        {"a copy with a text is hidden beyond the edge",
         u"(tile (list '((0 . \"TEXT\") (10 2.0 1.0 0.0) (40 . 1.0) (1 . \"X\")))) (box 0 0 2.5 1)"_s,
         u"click acceptButton\nexpect-printed 3 copies drawn, 1 of them cut at the boundary.\n"_s,
         u"(and (= 3 (length (of \"INSERT\"))) (equal '(2.5 1.0 0.0) (cadr (acet-ent-geomextents (entlast))) 1e-6))"_s},
        {"blocks within blocks, turned and mirrored",
         u"(progn (entmake '((0 . \"BLOCK\") (2 . \"IN\") (70 . 0) (10 1.0 0.0 0.0))) (entmake '((0 . \"LINE\") (8 . "
         u"\"0\") (10 "
         "1.0 0.0 0.0) (11 3.0 0.0 0.0))) (entmake '((0 . \"ENDBLK\"))) (tile (list '((0 . \"INSERT\") (2 . \"IN\") (8 "
         ". \"DEEP\") "
         "(10 3.0 1.0 0.0) (41 . -0.5) (42 . 0.5) (43 . 0.5)) dash '((0 . \"INSERT\") (2 . \"IN\") (8 . \"DEEP\") (10 "
         "2.0 1.0 "
         "0.0) (41 . 0.5) (42 . 0.5) (43 . 0.5) (50 . 1.5707963267949))))) (box 0 0.5 2.5 1.5)"_s,
         u"click acceptButton\n"_s,
         u"(and (= 2 (length (of \"INSERT\"))) (is (total 'long \"LINE\") 3.5 1e-9) (= \"DEEP\" (kora_field "
         u"(car (of "
         "\"LINE\")) 8)))"_s},
        {"ellipses, splines, points and filled areas",
         u"(tile (list '((0 . \"ELLIPSE\") (100 . \"AcDbEntity\") (100 . \"AcDbEllipse\") (10 2.5 1.5 0.0) (11 0.5 0.0 "
         u"0.0) (40 . 1.0) (41 "
         ". 0.0) (42 . 6.28318530717959)) '((0 . \"SOLID\") (10 2.0 1.0 0.0) (11 3.0 1.0 0.0) (12 2.0 2.0 0.0) (13 3.0 "
         "2.0 0.0)) "
         "'((0 . \"POINT\") (10 2.75 1.5 0.0)))) (box 0 0 1.5 1)"_s,
         u"click acceptButton\nexpect-printed 2 copies drawn, 1 of them cut\n"_s,
         u"(and (= 1 (length (of \"INSERT\"))) (null (of \"POINT\")) (= 1 (length (of \"LWPOLYLINE\"))) (equal '((1.0 "
         u"0.0 0.0) (1.5 "
         "1.0 0.0)) (kora_bounding_box (mapcar '(lambda (data) (kora_field data -1)) (of \"HATCH\"))) 1e-9))"_s},
        {"a hatch of lines keeps them",
         u"(tile (list (kora_hatch '(((2.0 1.0) (3.0 1.0) (3.0 2.0) (2.0 2.0)) ((2.9 1.2) (2.9 1.8) (2.7 1.8) (2.7 1.2))) '(\"L\" (0.0 (2.0 1.0) (0.0 0.1) nil)) nil))) (box 0 0 1.8 1)"_s,
         u"click acceptButton\n"_s,
         u"(and (= 1 (length (of \"INSERT\"))) (setq h (car (of \"HATCH\"))) (is (kora_field h 46) 0.1 1e-9) (is (abs "
         u"(apply '+ (mapcar "
         "'kora_twice_area (kora_outlines h 0.01)))) 1.6 0.13))"_s},
        {"a block with attributes is as large as what it draws",
         u"(tile (list dash '((0 . \"ATTDEF\") (100 . \"AcDbEntity\") (100 . \"AcDbText\") (10 2.0 1.0 0.0) (40 . 0.2) "
         u"(1 . \"\") (11 0.0 0.0 0.0) (100 . \"AcDbAttributeDefinition\") (3 . \"\") (2 . \"T\") (70 . "
         "0)))) (box 0 0 2 2)"_s,
         u"click acceptButton\n"_s, u"(is 1.0 (kora_field (car (of \"INSERT\")) 41) 1e-9)"_s},
        {"drawn beyond the edge", u"(tile (list dash)) (box 0 0 2.5 1.5)"_s,
         u"click notexceedlimits\nclick acceptButton\nexpect-printed 6 copies drawn.\n"_s,
         u"(= 6 (length (of \"INSERT\")))"_s},
        {"spaced, by factors", u"(tile (list round)) (box 0 0 10 10)"_s,
         u"check ScaleFactor yes\nset Width 2\nset Height 2\nset OffsetX 1\nset OffsetY 3\nclick acceptButton\nexpect-printed 8 copies drawn, 2 of them cut\n"_s,
         u"(is 2.0 (kora_field (car (of \"INSERT\")) 41) 1e-9)"_s},
        {"masks tile a circle", u"(circle 5 5 3)"_s, mask + u"set Rotation 10\nclick acceptButton\n"_s,
         u"(is (total 'hidden \"WIPEOUT\") (* 9 pi) 0.2)"_s},
        {"masks round an edge with a corner",
         u"(ring '((0.0 0.0) (4.0 0.0) (4.0 4.0) (2.3 4.0) (2.3 2.3) (0.0 2.3)))"_s, mask + u"click acceptButton\n"_s,
         u"(is (total 'hidden \"WIPEOUT\") (- 16 (* 2.3 1.7)) 1e-6)"_s},
        {"an entity group", u"(box 0 0 3 3)"_s, mask + u"click TypeObjectGroup\nclick acceptButton\n"_s,
         u"(= 9 (length (kora:values_of (dictsearch (cdr (assoc -1 (dictsearch (namedobjdict) \"ACAD_GROUP\"))) \"*A1\") 340)))"_s},
        {"chosen lines that are open",
         u"(box 0 0 3 3) (entmakex '((0 . \"LWPOLYLINE\") (100 . \"AcDbEntity\") (100 . \"AcDbPolyline\") (90 . 2) (70 . 0) (10 0.0 0.0) (10 5.0 5.0)))"_s,
         mask + u"click acceptButton\nexpect-printed 1 of those chosen cannot be a boundary\n"_s,
         u"(= 9 (length (of \"WIPEOUT\")))"_s},
        {"copies that do not move on", u"(box 0 0 3 3)"_s,
         mask +
             u"set OffsetX -1\nclick acceptButton\ndialog DLG_QT_PatternHatch\nclick ButtonCancel\nexpect-printed The copies do not move on\n"_s,
         u"T"_s},
        {"too many", u"(box 0 0 3000 3000)"_s,
         mask +
             u"click acceptButton\ndialog DLG_QT_PatternHatch\nclick ButtonCancel\nexpect-printed make them larger\n"_s,
         u"T"_s},
        {"many, and no", u"(box 0 0 300 300)"_s,
         mask + u"click acceptButton\nenter\ndialog DLG_QT_PatternHatch\nclick ButtonCancel\n"_s, u"T"_s},
        {"masks with a hatch pattern", u"(box 0 0 2.5 2) (box 2 0.5 0.25 0.25)"_s,
         mask + u"set patternName hex\nclick acceptButton\nexpect-printed 6 copies drawn, 2 of them cut\n"_s,
         u"(and (= \"WIPEOUT\" (kora_field (car (parts)) 0)) (= \"HATCH\" (kora_field (last (parts)) 0)) (= 6 (length "
         u"(of \"WIPEOUT\"))) (= 6 (length (of \"HATCH\"))) (= 3 (kora_field (car (of \"HATCH\")) "
         u"78)) (is (total "
         "'hidden \"WIPEOUT\") (- 5 0.0625) 1e-9))"_s},
        {"a pattern that nobody knows", u"(box 0 0 3 3)"_s,
         mask +
             u"set patternName NONE\nclick acceptButton\ndialog DLG_QT_PatternHatch\nclick ButtonCancel\nexpect-printed The hatch pattern NONE is in no file\n"_s,
         u"T"_s},
        {"images", u"(circle 2 2 2)"_s,
         u"click pattern_image\nclick Bt_selectImage\nfile %1\ndialog DLG_QT_PatternHatch\nset Width 1\nset Height 1\nclick acceptButton\nexpect-printed 16 copies drawn, 12 of them cut\n"_s
             .arg(ToolRun::sample(u"../docs/pictures/breakline.png"_s)),
         u"(is (total 'hidden \"IMAGE\") (* 4 pi) 0.1)"_s},
        {"nothing in it", u"(box 0.2 0.2 0.1 0.1) (tile (list dash))"_s,
         u"click acceptButton\ndialog DLG_QT_PatternHatch\nclick ButtonCancel\nexpect-printed No copy of the pattern lies in the boundary.\n"_s,
         u"(tblsearch \"BLOCK\" \"TILE\")"_s},
        {"a preview", u"(box 0 0 3 3)"_s,
         mask +
             u"click Btn_Preview\nenter\ndialog DLG_QT_PatternHatch\nclick ButtonCancel\nexpect-printed 9 copies shown.\n"_s,
         u"(null (ssget \"_X\" '((0 . \"INSERT\"))))"_s},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.what);
        QDir(run.path(u"out"_s)).removeRecursively();
        plays(begun(row.setUp) + row.dialog + u"expect-lisp "_s + row.check + u'\n');
        EXPECT_TRUE(isSound(run.result(plan)));
    }
}

/// Random closed polylines of corners on a grid, far apart from each other, each crossing itself or not.
QString randomRings(int count, int parts, std::mt19937 &random)
{
    QString rings;
    for (int ring = 0; ring < count; ++ring) {
        QString points;
        for (auto corner = 3 + random() % 7; corner > 0; --corner) {
            const double x = 12.0 * ring + double(random() % unsigned(10 * parts + 1)) / parts;
            const double y = double(random() % unsigned(10 * parts + 1)) / parts;
            points += u"(%1 %2)"_s.arg(x, 0, 'f', 1).arg(y, 0, 'f', 1);
        }
        rings += u"(ring '(%1)) "_s.arg(points);
    }
    return rings;
}

/// Cuts the same lines with exact fractions. Prints how much of what was drawn is outside, and how much is missing.
const QString exactCutter = uR"(
import sys, math, ezdxf
from fractions import Fraction as F
doc = ezdxf.readfile(sys.argv[1])
rings = []
for ring in doc.modelspace().query('LWPOLYLINE[layer=="0"]'):
    p = [(F(x), F(y)) for x, y in ring.get_points('xy')]
    rings.append(list(zip(p, p[1:] + p[:1])))
lines = [tuple(F(v) for v in l) for l in ((0, 0, 1, 0), (0, .5, 1, .5), (0, 0, 0, .5), (.5, .5, .5, 1), (0, 0, 1, 1))]
made = {}
def add(a, b):
    mid = ((a[0] + b[0]) / 2, (a[1] + b[1]) / 2)
    for cx in {math.floor(mid[0] - 1e-7), math.floor(mid[0] + 1e-7)}:
        for cy in {math.floor(mid[1] - 1e-7), math.floor(mid[1] + 1e-7)}:
            for n, (x1, y1, x2, y2) in enumerate(lines):
                d, along = (float(x2 - x1), float(y2 - y1)), []
                for q in (a, b):
                    r = (q[0] - cx - float(x1), q[1] - cy - float(y1))
                    if abs(r[0] * d[1] - r[1] * d[0]) < 1e-7:
                        along.append((r[0] * d[0] + r[1] * d[1]) / (d[0] ** 2 + d[1] ** 2))
                if len(along) == 2 and min(along) > -1e-7 and max(along) < 1 + 1e-7:
                    made.setdefault((cx, cy, n), []).append((min(along), max(along)))
                    return True
    return False
stray = 0
for e in doc.blocks.get(doc.modelspace().query('INSERT')[-1].dxf.name):
    if e.dxftype() == 'INSERT':
        for n in range(len(lines)):
            made.setdefault((round(e.dxf.insert.x), round(e.dxf.insert.y), n), []).append((0, 1))
    else:
        stray += not add(e.dxf.start, e.dxf.end)
def state(p):  # 1 inside, 0 on an edge, -1 outside
    inside = -1
    for (ax, ay), (bx, by) in edges:
        side = (bx - ax) * (p[1] - ay) - (by - ay) * (p[0] - ax)
        if side == 0 and min(ax, bx) <= p[0] <= max(ax, bx) and min(ay, by) <= p[1] <= max(ay, by):
            return 0
        if (ay <= p[1]) != (by <= p[1]) and (side > 0) == (by > ay):
            inside = -inside
    return inside
outside = missing = total = 0.0
for cx in range(-1, 12 * len(rings)):
    edges = [e for ring in rings if min(e[0][0] for e in ring) - 1 <= cx <= max(e[0][0] for e in ring) for e in ring]
    for cy in range(-1, 11):
        for n, (x1, y1, x2, y2) in enumerate(lines):
            a, d, cuts = (cx + x1, cy + y1), (x2 - x1, y2 - y1), {F(0), F(1)}
            for p, q in edges:
                run = (q[0] - p[0], q[1] - p[1])
                across = d[0] * run[1] - d[1] * run[0]
                to = (p[0] - a[0], p[1] - a[1])
                if across:
                    cuts.add((to[0] * run[1] - to[1] * run[0]) / across)
                else:
                    for r in (p, q):
                        cuts.add(((r[0] - a[0]) * d[0] + (r[1] - a[1]) * d[1]) / (d[0] ** 2 + d[1] ** 2))
            cuts = sorted(c for c in cuts if 0 <= c <= 1)
            for lo, hi in zip(cuts, cuts[1:]):
                mid = (lo + hi) / 2
                is_in = state((a[0] + mid * d[0], a[1] + mid * d[1]))
                have = sum(max(0, min(t, hi) - max(f, lo)) for f, t in made.get((cx, cy, n), []))
                total += float(hi - lo) if is_in > 0 else 0
                outside += float(have) if is_in < 0 else 0
                missing += abs(float(hi - lo - have)) if is_in > 0 else 0
print('outside %.6f missing %.6f stray %d' % (outside, missing, stray), 'of much' if total > 100 else 'of nothing')
)"_s;

TEST_F(PatternHatchTool, CutsExactlyWhereCornersLieOnTheGrid)
{
    const QString bricks =
        u"(tile (mapcar '(lambda (l) (list '(0 . \"LINE\") '(8 . \"0\") (list 10 (+ 2.0 (car l)) (+ 1.0 (cadr l)) 0.0) "
        u"(list 11 "
        "(+ 2.0 (caddr l)) (+ 1.0 (cadddr l)) 0.0))) '((0 0 1 0) (0 0.5 1 0.5) (0 0 0 0.5) (0.5 0.5 0.5 1) (0 0 1 1)))) "_s;
    std::mt19937 random(7);
    for (const int parts : {1, 2}) {
        SCOPED_TRACE(parts);
        QDir(run.path(u"out"_s)).removeRecursively();
        plays(begun(bricks + randomRings(16, parts, random)) + u"click acceptButton\n"_s);
        EXPECT_EQ(runPython({u"-c"_s, exactCutter, run.result(plan)}).trimmed(),
                  u"outside 0.000000 missing 0.000000 stray 0 of much"_s);
    }
}

TEST_F(PatternHatchTool, TakesEverythingFromTheDrawing)
{
    // The inner wall around a point, a hatch beside it, and a reference as the pattern: its copy lies on it exactly.
    const QString hatch =
        u"(entmake '((0 . \"HATCH\") (100 . \"AcDbEntity\") (8 . \"0\") (100 . \"AcDbHatch\") (10 0.0 0.0 "
        "0.0) (210 0.0 0.0 1.0) (2 . \"SOLID\") (70 . 1) (71 . 0) (91 . 1) (92 . 1) (93 . 4) (72 . 1) "
        "(10 0.0 20.0) (11 20.0 20.0) (72 . 1) (10 20.0 20.0) (11 20.0 40.0) (72 . 2) (10 10.0 40.0) "
        "(40 . 10.0) (50 . 0.0) (51 . 3.14159265358979) (73 . 1) (72 . 1) (10 0.0 40.0) (11 0.0 20.0) "
        "(97 . 0) (75 . 0) (76 . 1) (98 . 0)))"_s;
    const QString reference = u"(entmake '((0 . \"INSERT\") (2 . \"TILE\") (10 100005.123456 20.0 0.0) (41 . 2.0) "
                              "(42 . 1.5) (43 . 2.0) (50 . 0.5)))"_s;
    plays(
        begun(u"(tile (list round)) "_s + hatch + u' ' + reference) +
        u"check ScaleFactor yes\nclick notexceedlimits\nclick Btn_SelectPoints\npoint 5,5\npoint 5,5\npoint "
        u"500,5\nenter\n"
        "dialog DLG_QT_PatternHatch\nclick Btn_ExtractHatch\npick 10,30\n"
        "dialog DLG_QT_PatternHatch\nexpect-enabled acceptButton yes\nclick Btn_DeleteEntities\n"
        "dialog DLG_QT_PatternHatch\nexpect-enabled acceptButton no\nclick Btn_ExtractHatch\npick 10,30\n"
        "dialog DLG_QT_PatternHatch\nclick selRotation\nanswer 45\n"
        "dialog DLG_QT_PatternHatch\nexpect Rotation 45\nclick selOrigin\npoint 100000.1234,0\n"
        "dialog DLG_QT_PatternHatch\nclick Btn_ExtractFromEntity\npick 100006.001039,20.479426\n"
        "dialog DLG_QT_PatternHatch\nexpect LbTitleblock TILE\nexpect Width 2\nexpect Height 1.5\nclick acceptButton\n"
        "expect-printed \"Nothing encloses this point.\"\n"
        // Steps of 2 by 1.5 along the turned axes lead from each copy to the reference.
        "lisp (defun whole (x) (equal x (kora:floor (+ x 0.5)) 1e-5))\n"
        "expect-lisp (vl-every '(lambda (data / way) (setq way (kora_turned_back (mapcar '- (kora_field data 10) "
        "'(100005.123456 20.0 0.0)) 0.5)) (and (whole (/ (car way) 2.0)) (whole (/ (cadr way) 1.5)))) (of "
        "\"INSERT\"))\n"
        "undo\nexpect-lisp (= 1 (sslength (ssget \"_X\" '((0 . \"INSERT\")))))\n"_s);
}

TEST_F(PatternHatchTool, FindsRoomsOfLinesThatTouch)
{
    const QString line = u"(entmakex '((0 . \"LINE\") (8 . \"0\") (10 %1 0.0) (11 %2 0.0))) "_s;
    // Walls that overshoot, one of them in a block with a text, a wall that ends in the room, a bay of an arc, a round
    // and a cross that stand in it.
    const QString walls =
        line.arg(u"99.0 100.0"_s, u"110.0 100.0"_s) + line.arg(u"100.0 98.0"_s, u"100.0 112.0"_s) +
        u"(entmake '((0 . \"BLOCK\") (2 . \"WALL\") (70 . 0) (10 0.0 0.0 0.0))) (entmake '((0 . \"TEXT\") (10 0.0 0.0 "
        u"0.0) (40 . 1.0) "
        "(1 . \"X\"))) "_s +
        line.arg(u"0.0 0.0"_s, u"10.0 0.0"_s).replace(u"entmakex"_s, u"entmake"_s) +
        u"(entmake '((0 . \"ENDBLK\"))) (entmakex '((0 . \"INSERT\") (2 . \"WALL\") (10 100.0 110.0 0.0))) "_s +
        line.arg(u"110.0 100.0"_s, u"110.0 103.0"_s) + line.arg(u"110.0 107.0"_s, u"110.0 110.0"_s) +
        line.arg(u"105.0 110.0"_s, u"105.0 108.0"_s) + line.arg(u"107.0 108.0"_s, u"109.0 108.0"_s) +
        line.arg(u"108.0 107.0"_s, u"108.0 109.0"_s) +
        u"(entmakex (list '(0 . \"ARC\") '(8 . \"0\") '(10 110.0 105.0 0.0) '(40 . 2.0) (cons 50 (* -0.5 pi)) (cons "
        "51 (* 0.5 pi)))) (circle 103 103 1) (circle 103 103 0.5)"_s;
    plays(begun(u"(tile (list dash)) (progn "_s + walls + u" nil)"_s) +
          u"click pattern_mask\nset patternName \"\"\nclick Btn_SelectPoints\npoint 101,101\npoint 101,101\npoint "
          "98,111\nenter\ndialog DLG_QT_PatternHatch\nexpect-enabled acceptButton yes\nclick acceptButton\n"
          "expect-printed Nothing encloses this point.\n"
          "expect-lisp (is (total 'hidden \"WIPEOUT\") (+ 100 pi) 0.1)\n"_s);
}

TEST_F(PatternHatchTool, ACircleMayTouchAWallOfTheRoom)
{
    for (const char *centre : {"103 101.5", "101 101.5", "102 101", "102 102"}) {
        QString walls = u"(circle %1 1) "_s.arg(QLatin1String(centre));
        for (const char *ends : {"(10 100.0 100.0) (11 104.0 100.0)", "(10 104.0 100.0) (11 104.0 103.0)",
                                 "(10 104.0 103.0) (11 100.0 103.0)", "(10 100.0 103.0) (11 100.0 100.0)"})
            walls += u"(entmakex '((0 . \"LINE\") (8 . \"0\") %1)) "_s.arg(QLatin1String(ends));
        plays(begun(u"(tile (list dash)) (progn "_s + walls + u" nil)"_s) +
              u"click pattern_mask\nset patternName \"\"\nclick Btn_SelectPoints\npoint 100.1,100.1\nenter\n"
              "dialog DLG_QT_PatternHatch\nexpect-enabled acceptButton yes\nclick acceptButton\n"
              "expect-lisp (is (total 'hidden \"WIPEOUT\") (- 12 pi) 0.1)\n"_s);
    }
}

TEST_F(PatternHatchTool, WhatIsCancelledLeavesTheDrawingAsItWas)
{
    const QString dialog = u"dialog DLG_QT_PatternHatch\n"_s;
    const QString opened = u"command PATTERNHATCH\n"_s + dialog;
    const QString picked = u"click Btn_SelectEntities\npick 4.3,5\nenter\n"_s + dialog;
    const QString zigzag = u"file %1\n"_s.arg(ToolRun::sample(u"zigzag.dxf"_s)) + dialog;
    plays(opened + u"click pattern_block\nclick Bt_selectBlock\n"_s + zigzag + picked +
          u"click Btn_Preview\nenter\n"_s + dialog + u"click Btn_ShowBoundaries\ncancel\n"_s + dialog +
          u"click selRotation\ncancel\n"_s + dialog + u"click Btn_SelectEntities\ncancel\n"_s + dialog +
          u"click Btn_ExtractHatch\ncancel\n"_s + dialog + u"click Btn_ExtractFromEntity\ncancel\n"_s + dialog +
          u"expect-enabled acceptButton yes\nclick ButtonCancel\nexpect-modified no\n"_s + opened +
          u"click pattern_xref\nclick Bt_selectBlock_2\n"_s + zigzag + picked + u"click Btn_Preview\ncancel\n"_s +
          dialog +
          u"expect-enabled acceptButton yes\nclick ButtonCancel\n"
          "expect-modified no\nexpect-lisp (not (tblsearch \"BLOCK\" \"zigzag\"))\n"_s +
          opened + picked + u"click Btn_Preview\nenter\n"_s + dialog + u"click selOrigin\ncancel\n"_s + dialog +
          u"click ButtonCancel\nexpect-modified no\n"_s + opened + picked +
          u"click acceptButton\nexpect-lisp (= 4 (cdr (assoc 70 (tblsearch \"BLOCK\" \"zigzag\"))))\n"
          "expect-count INSERT 1\nundo\nexpect-modified no\n"_s);
}

TEST_F(PatternHatchTool, WorksInDrawingsMadeElsewhere)
{
    const QString corpus = qEnvironmentVariable("ORTAKIT_CORPUS");
    if (corpus.isEmpty())
        GTEST_SKIP() << "ORTAKIT_CORPUS names no folder of drawings";
    const QString boundaries = u"lisp (setq es (vl-remove-if-not '(lambda (e) (kora_outlines (entget e) 1.0)) "
                               "(kora_selection_to_list (ssget \"_A\" (list (cons 410 (getvar \"CTAB\")) '(0 . "
                               "\"*POLYLINE,CIRCLE,ELLIPSE,SPLINE,"
                               "HATCH\"))))))\nexpect-lisp es\n"_s;
    const QString session =
        boundaries +
        u"lisp (setq box (kora_area_box (kora_area (apply 'append (mapcar '(lambda (e) (kora_outlines "
        "(entget e) 0.1)) es)))) size (kora_number_text (/ (max (- (caddr box) (car box)) (- (cadddr box) "
        "(cadr box))) 12) 6))\n"
        "lisp (kora_writestate (kora_statefile \"patternhatch\") (list (cons \"width\" size) (cons \"height\" "
        "size) '(\"pattern_mask\" . \"TRUE\") '(\"rotation\" . \"10\") '(\"patternname\" . \"\")))\n"
        "lisp (sssetfirst nil (kora_selection es))\ncommand PATTERNHATCH\n"
        "dialog DLG_QT_PatternHatch\nclick acceptButton\nexpect-printed drawn\n"_s;
    int changed = 0;
    for (const QFileInfo &file : QDir(corpus).entryInfoList({u"*.dxf"_s})) {
        const QString drawing = file.filePath();
        if (run.play(boundaries, drawing).status != 0 || !isSound(drawing))
            continue;
        SCOPED_TRACE(file.fileName().toStdString());
        const RunOutcome outcome = run.play(session, drawing);
        EXPECT_EQ(outcome.status, 0) << outcome.output.toStdString();
        EXPECT_TRUE(isSound(run.result(drawing)));
        const RunOutcome undone = run.play(session + u"undo\nexpect-modified no\n"_s, drawing);
        EXPECT_EQ(undone.status, 0) << undone.output.toStdString();
        ++changed;
    }
    EXPECT_GE(changed, 3);
}

} // namespace
