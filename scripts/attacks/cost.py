"""Small files that ask for a lot of work: it ends within bounds, and what was cut short is told."""

import os
import re
import shutil
from dataclasses import dataclass

from attacks.bench import FALSE, SAMPLES, Bad, Fault, lisp_text, told_or_bad

SECONDS, MEGABYTES = 20, 1200
# A program under a limit ends about then; the rest is its start and its way out.
LIMIT, LIMIT_MEGABYTES, SLACK = 3, 300, 10


def tags(*pairs):
    return "".join(f"{code}\n{value}\n" for code, value in zip(pairs[::2], pairs[1::2]))


def with_entities(*texts):
    """plan.dxf with more entities."""
    plan = (SAMPLES / "plan.dxf").read_text(encoding="utf-8").replace("\r\n", "\n")
    head, mark, rest = plan.partition("ENTITIES\n")
    return head + mark + "".join(texts) + rest


def early(blocks, *entities):
    """A drawing of an early version: blocks by name, each a text of entities, and the entities of the drawing."""
    text = tags(0, "SECTION", 2, "BLOCKS")
    text += "".join(tags(0, "BLOCK", 8, 0, 2, name, 70, 0, 10, 0, 20, 0) + content + tags(0, "ENDBLK", 8, 0)
                    for name, content in blocks)
    return text + tags(0, "ENDSEC", 0, "SECTION", 2, "ENTITIES") + "".join(entities) + tags(0, "ENDSEC", 0, "EOF")


def insert(name, rows=1, columns=1, spacing=2):
    return tags(0, "INSERT", 8, 0, 2, name, 10, 1, 20, 1, 70, columns, 71, rows, 44, spacing, 45, spacing)


LINE = tags(0, "LINE", 8, 0, 10, 0, 20, 0, 11, 1, 21, 1)


def entity(kind, mark, *pairs):
    return tags(0, kind, 100, "AcDbEntity", 8, 0, 100, mark) + tags(*pairs)


def hatch(corners, spacing, lines=1):
    """A hatch of a polygon by families of lines."""
    pattern = "".join(tags(53, 180.0 * line / lines, 43, 0, 44, 0, 45, 0, 46, spacing, 79, 2, 49, spacing, 49, -spacing)
                      for line in range(lines))
    return entity("HATCH", "AcDbHatch", 10, 0, 20, 0, 30, 0, 210, 0, 220, 0, 230, 1, 2, "DENSE", 70, 0, 71, 0, 91, 1,
                  92, 2, 72, 0,
                  73, 1, 93, len(corners)) + "".join(tags(10, x, 20, y) for x, y in corners) + tags(
                      97, 0, 75, 0, 76, 0, 52, 0, 41, 1, 77, 0, 78, lines) + pattern + tags(47, 0.1, 98, 0)


SQUARE = ((0, 0), (1000, 0), (1000, 1000), (0, 1000))


def comb(count):
    """A polygon of many corners that crosses each line of a hatch often."""
    return [(x * 0.01, 1000 if x % 2 else 0) for x in range(count)]


@dataclass(frozen=True)
class Heavy:
    """A drawing that asks for a lot of work. `is_endless`: nobody can draw all of it, so that it has to be told."""

    name: str
    make: object
    is_endless: bool = False


HEAVY = [
    Heavy("26,200 nested blocks", lambda: early([("B0", LINE)] + [(f"B{n}", insert(f"B{n - 1}"))
                                                                  for n in range(1, 26200)],
                                                insert("B26199"))),
    Heavy("blocks doubled 60 times", lambda: early([("B0", LINE)] + [(f"B{n}", insert(f"B{n - 1}") * 2)
                                                                     for n in range(1, 60)],
                                                   insert("B59")), True),
    Heavy("a block in itself", lambda: early([("A", LINE + insert("B")), ("B", LINE + insert("A"))], insert("A"))),
    Heavy("a dense hatch", lambda: with_entities(hatch(SQUARE, 0.0001, 4)), True),
    Heavy("36 dense hatches", lambda: with_entities(*[hatch(SQUARE, 0.002, 10)] * 36), True),
    Heavy("a hatch of a comb", lambda: with_entities(hatch(comb(300), 0.01, 20)), False),
    Heavy("4 MB of a hatch's loop", lambda: with_entities(hatch(comb(220000), 1.0)), False),
    Heavy("arrays of an array", lambda: early([("A", LINE), ("B", insert("A", 3000, 3000)),
                                               ("C", insert("B", 3000, 3000))],
                                              insert("C", 3000, 3000)), True),
    Heavy("36 kB of arrays", lambda: early([("A", LINE * 10)], *[insert("A", 300, 300)] * 500), True),
    Heavy("braces in a paragraph", lambda: with_entities(entity(
        "MTEXT", "AcDbMText", 10, 0, 20, 0, 40, 1, 41, 0, 71, 1, *(pair for _ in range(4000)
                                                                   for pair in (3, "{\\H1.01x;" * 27)), 1, "x"))),
    Heavy("a paragraph of a million words", lambda: with_entities(entity(
        "MTEXT", "AcDbMText", 10, 0, 20, 0, 40, 1, 41, 3, 71, 1, *(pair for _ in range(20000)
                                                                   for pair in (3, "ab " * 80)), 1, "x"))),
    Heavy("a line of 5 MB of text", lambda: with_entities(entity("TEXT", "AcDbText", 10, 0, 20, 0, 40, 1, 1,
                                                                 "%%c" * 1700000))),
    Heavy("a dashed line without end", lambda: with_entities(
        tags(0, "LINE", 100, "AcDbEntity", 8, 0, 6, "DASHED", 48, 1e-9, 100, "AcDbLine", 10, 0, 20, 0, 11, 1e9, 21,
             1e9))),
    Heavy("a spline of 100,000 points", lambda: with_entities(entity(
        "SPLINE", "AcDbSpline", 70, 8, 71, 3, 72, 100004, 73, 100000, 74, 0,
        *(pair for n in range(100004) for pair in (40, n)),
        *(pair for n in range(100000) for pair in (10, n % 777, 20, n % 555))))),
    Heavy("a viewport into a viewport's sheet", lambda: with_entities(*[entity(
        "VIEWPORT", "AcDbViewport", 10, 5, 20, 5, 40, 1e9, 41, 1e-9, 68, 2, 69, 2, 12, 0, 22, 0, 45, 1e-12)] * 50)),
]


def heavy_picture(attempt):
    heavy, suffix = attempt.case
    drawing = attempt.work / "heavy.dxf"
    drawing.write_text(heavy.make(), encoding="utf-8")
    ended = attempt.run("convert", drawing, attempt.out / f"heavy.{suffix}", seconds=SECONDS, memory=MEGABYTES)
    if heavy.is_endless:
        if not ended.errors.strip():
            raise Bad(FALSE, f"what was cut short is not told; {ended.brief()}")
        if ended.status == 0:
            raise Bad(FALSE, f"a picture that was cut short ends with 0; {ended.brief()}")


LOOKS = {
    "extents": '(command "_.ZOOM" "_Extents") (print (getvar "EXTMAX"))',
    "measured": "(acet-ent-geomextents (entlast))",
    "moved": '(command "_.MOVE" (ssget "_X") "" "0,0" "1,1")', "purged": '(command "_.-PURGE" "_All" "" "_No")',
    "picked": '(ssget "_C" \'(0.0 0.0) \'(9.0 9.0))', "written": '(command "_.-WBLOCK" "written.dxf" "*")',
}


def heavy_look(attempt):
    heavy, look = attempt.case
    drawing = attempt.work / "heavy.dxf"
    drawing.write_text(heavy.make(), encoding="utf-8")
    script = attempt.folder / "look.lsp"
    script.write_text(LOOKS[look])
    attempt.run("lisp", script, "--drawing", drawing, seconds=SECONDS, memory=MEGABYTES)


SOURCES = {
    "a line of 30 MB": lambda: b"*" + b"A" * 30_000_000 + b"\n",
    "a definition of 30 MB": lambda: b"*GAS,gas\nA," + b"1,-0.5," * 4_000_000 + b"\n",
    "30 MB of stars": lambda: b"*\n" * 15_000_000,
    "30 MB of commas": lambda: b"*1,2,X\n" + b"," * 30_000_000,
}
READERS = {
    "LINETYPE": ("lisp", '(command "_.-LINETYPE" "_Load" "*" {0} "")', ".lin"),
    "MAKELINESTYLE": ("session", "command MAKELINESTYLE\ndialog QDialog\nfocus Linetypefile\nset Linetypefile {1}\n"
                                 "key Linetypefile Return\nclose\n", ".lin"),
    "LOAD": ("lisp", '(command "_.LOAD" {0})', ".shp"),
    "MAKESHAPE": ("session", "command MAKESHAPE\ndialog QDialog\nfocus shapeFile\nset shapeFile {1}\n"
                             "key shapeFile Return\nclose\n",
                  ".shp"),
    "DIMSTYLEIMPORT": ("session", "command DIMSTYLEIMPORT\ndialog QDialog\nclick selectfile\nfile {1}\nclose\n",
                       ".dim"),
    "Lisp's load": ("lisp", "(load {0} nil)", ".lsp"), "SCRIPT": ("lisp", '(command "_.SCRIPT" {0})', ".scr"),
}


def heavy_source(attempt):
    reader, source = attempt.case
    kind, text, suffix = READERS[reader]
    drawing, path = attempt.work / "plan.dxf", attempt.home / f"heavy{suffix}"
    shutil.copy(SAMPLES / "plan.dxf", drawing)
    path.write_bytes(SOURCES[source]())
    script = attempt.folder / f"attack.{kind}"
    script.write_text(text.format(lisp_text(path), path))
    words = ("lisp", script, "--drawing", drawing) if kind == "lisp" else ("run", script, drawing)
    attempt.run(*words, seconds=SECONDS, memory=MEGABYTES)


PROGRAMS = {
    "a loop": "(while T)", "a loop in a guard": "(while T (vl-catch-all-apply '(lambda () (while T)) nil))",
    "a list": "(while T (setq l (cons 1 l)))", "a text": '(setq s "ab") (while T (setq s (strcat s s)))',
    "a list in a guard": "(while T (vl-catch-all-apply '(lambda () (while T (setq l (cons 1 l)))) nil))",
    "calls of itself": "(defun f (n) (f (1+ n))) (while T (vl-catch-all-apply 'f '(1)))",
    "sorting": "(repeat 200000 (setq l (cons (rem (length '(1 2)) 7) l))) (while T (vl-sort (append l l) '<))",
    "symbols": '(setq i 0) (while T (set (read (strcat "a" (itoa (setq i (1+ i))))) (list i i i)))',
    "a pipe to write to": '(if (setq f (open "pipe" "w")) (write-line "x" f) (princ "cannot open"))',
    "a pipe to read from": '(if (setq f (open "pipe" "r")) (read-line f) (princ "cannot open"))',
    "a script that calls itself": '(command "_.SCRIPT" "AGAIN")',
    "commands": '(while T (command "_.LINE" "0,0" "1,1" ""))',
            "entities": "(while T (entmake '((0 . \"LINE\") (10 0.0 0.0) (11 1.0 1.0))))",
    "expressions of themselves": '(defun g () (eval (read "(g)"))) (while T (vl-catch-all-apply (quote g) nil))',
}


def limited_program(attempt):
    """A program under --time-limit and --memory-limit ends by one of them, and says so."""
    again = attempt.home / "again.scr"  # where programs are trusted
    again.write_text(f"_.SCRIPT {again}\n")
    os.mkfifo(attempt.work / "pipe")
    shutil.copy(SAMPLES / "plan.dxf", attempt.work / "plan.dxf")
    script = attempt.folder / "attack.lsp"
    script.write_text(PROGRAMS[attempt.case].replace("AGAIN", str(again)))
    ended = attempt.run("lisp", script, "--drawing", attempt.work / "plan.dxf", "--time-limit", LIMIT,
                        "--memory-limit", LIMIT_MEGABYTES, seconds=LIMIT + SLACK, memory=LIMIT_MEGABYTES + 300)
    told_or_bad(ended, "ended without a word")
    is_refused = "cannot open" in ended.output
    if not is_refused and (ended.status in (0, 2) or not re.search("limit|longer than|memory|too deep", ended.said)):
        raise Bad(FALSE, f"does not say what ended it; {ended.brief()}")


def left_out(attempt):
    """Kinds of entities that are not drawn are counted on standard error, and in the status with --strict."""
    drawing = attempt.work / "plan.dxf"
    drawing.write_text(with_entities(entity(attempt.case, f"AcDb{attempt.case.title()}", 10, 0, 20, 0, 70, 1, 1, "x")),
                       encoding="utf-8")
    ended = attempt.run("convert", drawing, attempt.out / "seen.png", "--strict")
    if ended.status == 0 or attempt.case not in ended.errors:
        raise Bad(FALSE, f"{attempt.case} is missing in the picture; {ended.brief()}")


def faults(bench):
    yield Fault("cost", "heavy drawings as pictures", heavy_picture,
                cases=[(heavy, suffix) for heavy in HEAVY for suffix in ("png", "svg", "pdf")])
    yield Fault("cost", "heavy drawings looked at and changed", heavy_look,
                cases=[(heavy, look) for heavy in HEAVY for look in LOOKS])
    yield Fault("cost", "heavy sources", heavy_source,
                cases=[(reader, source) for reader in READERS for source in SOURCES])
    yield Fault("cost", "programs under limits", limited_program, cases=list(PROGRAMS))
    yield Fault("cost", "entities that are not drawn", left_out,
                cases=["REGION", "TOLERANCE", "SHAPE", "BODY", "SURFACE", "PROXY"])
