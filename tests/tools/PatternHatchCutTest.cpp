// Patterns cut at boundaries whose corners lie on the pattern's own lines, against a cutter that counts in fractions.

#include "tests/support/QtTestPrinters.h"
#include "tests/tools/ToolRun.h"

#include <QDir>

#include <random>

using namespace tools_test;
using namespace Qt::StringLiterals;

namespace {

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

using PatternHatchCut = ToolTest;

TEST_F(PatternHatchCut, IsExactWhereCornersLieOnTheGrid)
{
    const QString bricks =
        u"(tile (mapcar '(lambda (l) (list '(0 . \"LINE\") '(8 . \"0\") (list 10 (+ 2.0 (car l)) (+ 1.0 (cadr l)) 0.0) "
        u"(list 11 "
        "(+ 2.0 (caddr l)) (+ 1.0 (cadddr l)) 0.0))) '((0 0 1 0) (0 0.5 1 0.5) (0 0 0 0.5) (0.5 0.5 0.5 1) (0 0 1 1)))) "_s;
    std::mt19937 random(7);
    for (const int parts : {1, 2}) {
        SCOPED_TRACE(parts);
        QDir(run.path(u"out"_s)).removeRecursively();
        plays(u"lisp (load \"%1/tests/tools/patternhatch/helpers.lsp\")\nlisp (setq es (list %2))\n"
              "lisp (sssetfirst nil (kora_selection (cdr es)))\ncommand PATTERNHATCH\ndialog DLG_QT_PatternHatch\n"
              "click pattern_block\nset Width 1\nset Height 1\nclick trimtolimits\nclick acceptButton\n"_s.arg(
                  qEnvironmentVariable("ORTAKIT_SOURCE"), bricks + randomRings(16, parts, random)));
        EXPECT_EQ(runPython({u"-c"_s, exactCutter, run.result(plan)}).trimmed(),
                  u"outside 0.000000 missing 0.000000 stray 0 of much"_s);
    }
}

} // namespace
