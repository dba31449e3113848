"""Folders of drawings that hold programs: none of them may run because a drawing lies beside it."""

import functools
import shutil
import subprocess

from attacks.bench import LET_IN, SAMPLES, TOP, Bad, Fault, NotRun, lisp_text
from attacks.writers import SESSIONS, bare

STARTERS = ("acad", "acaddoc", "startup", "start", "init", "autoload", "autoexec", "ortakit", "attack-tool")
FOLDERS = ("", "support", "tools", "tools/support", "share/ortakit/tools", "../share/ortakit/tools", "lisp", "Ortakit")
LIBRARIES = ("Ortakit.so", "lib/Ortakit.so", "../lib/Ortakit.so", "platforms/libqoffscreen.so",
             "plugins/platforms/libqoffscreen.so",
             "imageformats/libqjpeg.so", "libQt6Core.so.6", "styles/libstyle.so")
ALIASES = """<?xml version="1.0" encoding="UTF-8"?>
<alias><record command="ATTACK-TOOL" alias="ZZQ"/></alias>
"""


def program_names():
    tools = {path.stem for folder in ("tools", "tools/support") for path in (TOP / folder).glob("*.lsp")}
    return sorted(tools | set(STARTERS))


class Trap:
    """A folder with a drawing and with programs that leave a marker when they run. It is laid once."""

    def __init__(self, bench):
        self.work = bench.folder / "trap" / "desk"
        self.markers = bench.folder / "trap" / "markers"
        self.markers.mkdir(parents=True)
        for below in FOLDERS:
            (self.work / below).mkdir(parents=True, exist_ok=True)
            (self.work / below / "alias.xml").write_text(ALIASES)
            for name in program_names():
                for suffix in (".lsp", ".fas", ".vlx", ".mnl", ".scr") if name in STARTERS else (".lsp",):
                    self.lay(self.work / below / (name + suffix), f"{below}-{name}{suffix}".replace("/", "_"))

    def lay(self, path, marker):
        place = lisp_text(self.markers / marker)
        path.write_text(f'(close (open {place} "w"))\n(defun c:attack-tool () (close (open {place} "w")))\n')

    def lay_libraries(self, attempt):
        source, built = attempt.folder / "library.c", attempt.folder / "library.so"
        source.write_text(f"""#include <fcntl.h>
__attribute__((constructor)) static void run(void) {{ open("{self.markers}/library", O_CREAT | O_WRONLY, 0600); }}
""")
        compiler = shutil.which("cc") or shutil.which("gcc") or shutil.which("clang")
        if not compiler:
            raise NotRun("no C compiler")
        subprocess.run([compiler, "-shared", "-fPIC", "-o", built, source], check=True)
        for name in LIBRARIES:
            (attempt.work / name).parent.mkdir(parents=True, exist_ok=True)
            shutil.copy(built, attempt.work / name)
        (attempt.work / "qt.conf").write_text("[Paths]\nPrefix=.\nPlugins=.\n")

    def open_for(self, attempt):
        """The drawing lies among the programs, and nothing has run yet."""
        for marker in self.markers.iterdir():
            marker.unlink()
        shutil.copy(SAMPLES / "plan.dxf", self.work / "plan.dxf")
        attempt.drawing = self.work / "plan.dxf"
        return self

    def check(self, kind=""):
        ran = sorted(path.name for path in self.markers.iterdir() if kind in path.name)
        if ran:
            raise Bad(LET_IN, f"{len(ran)} foreign programs ran: {', '.join(ran[:6])}")


trap = functools.cache(Trap)


def opened(attempt, **options):
    attempt.lisp("(princ)", attempt.drawing, **options)


def opened_relatively(attempt, **options):
    attempt.lisp("(princ)", "plan.dxf", **options | {"cwd": attempt.drawing.parent})


def converted(attempt, **options):
    attempt.run("convert", attempt.drawing, attempt.out / "plan.png", **options)


def a_new_drawing(attempt, **options):
    attempt.lisp("(princ)", **options | {"cwd": attempt.drawing.parent})


def named_by_a_program(attempt, **options):
    attempt.lisp('(vl-catch-all-apply \'load (list "attack-tool"))'
                 '(load "attack-tool.lsp" nil) (load "support/strings" nil)',
                 attempt.drawing, **options)


def autoloaded(attempt, **options):
    attempt.lisp('(autoload "attack-tool" \'("ATTACK-TOOL")) (vl-catch-all-apply \'c:attack-tool nil)', attempt.drawing,
                 **options)


def found(attempt, **options):
    attempt.lisp('(if (setq f (findfile "attack-tool.lsp")) (load f))', attempt.drawing, **options)


def scripted(attempt, **options):
    attempt.lisp('(command "_.SCRIPT" "startup") (command "_.SCRIPT" "startup.scr")', attempt.drawing, **options)


def typed_alias(attempt, **options):
    attempt.session("command ZZQ\n", attempt.drawing, **options)


WAYS = [opened, opened_relatively, converted,
        a_new_drawing, named_by_a_program, autoloaded, found, scripted, typed_alias]


def beside_a_drawing(attempt):
    way, is_inside = attempt.case
    laid = trap(attempt.bench).open_for(attempt)
    way(attempt, cwd=laid.work if is_inside else attempt.folder)
    laid.check()


def session_beside(attempt):
    laid = trap(attempt.bench).open_for(attempt)
    attempt.session(bare(attempt.case), attempt.drawing, cwd=laid.work)
    laid.check()


def libraries_beside(attempt):
    laid = trap(attempt.bench).open_for(attempt)
    attempt.drawing = attempt.work / "plan.dxf"
    shutil.copy(laid.work / "plan.dxf", attempt.drawing)
    laid.lay_libraries(attempt)
    attempt.case(attempt, cwd=attempt.work)
    laid.check("library")


@functools.cache
def session_names():
    return sorted(path.stem for path in SESSIONS.glob("*.session"))


def faults(bench):
    yield Fault("foreign", "programs beside a drawing", beside_a_drawing,
                cases=[(way, is_inside) for way in WAYS for is_inside in (True, False)])
    yield Fault("foreign", "programs beside a drawing on which a tool works", session_beside, cases=session_names())
    yield Fault("foreign", "shared libraries beside a drawing", libraries_beside,
                cases=[opened, opened_relatively, converted, a_new_drawing])
