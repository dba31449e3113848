"""Others who write, replace, delete and save a drawing that is open."""

import os
import shutil
import signal
import time

from attacks.bench import FALSE, LEFT, LOST, SAMPLES, Bad, Fault, hidden_files, lisp_text, told_or_bad

SECONDS = 20
OTHERS = (SAMPLES / "zigzag.dxf").read_bytes()
PLAN = (SAMPLES / "plan.dxf").read_bytes()


class Waiting:
    """A program that has a drawing open, has drawn a line of its own in it, and waits for the word to go on."""

    def __init__(self, attempt, drawing, name, then='(command "_.QSAVE")', line="0,0"):
        self.attempt = attempt
        self.word = attempt.folder / f"{name}.go"
        self.ready = attempt.folder / f"{name}.ready"
        script = attempt.folder / f"{name}.lsp"
        script.write_text(f"""
(command "_.LINE" "{line}" "7,7" "")
(close (open {lisp_text(self.ready)} "w"))
(while (null (vl-file-size {lisp_text(self.word)})))
{then}
""")
        self.running = attempt.start("lisp", script, "--drawing", drawing)
        self.ended = None

    def wait_until_open(self):
        """Gives whether it has the drawing open; not when the program has refused it and ended."""
        limit = time.monotonic() + SECONDS * self.attempt.bench.patience
        while not self.ready.exists() and self.running.process.poll() is None and time.monotonic() < limit:
            time.sleep(0.01)
        return self.ready.exists()

    def let_go(self):
        self.word.touch()

    def finish(self):
        self.word.touch()
        self.ended = self.attempt.judge(self.running, SECONDS)
        return self.ended


def opened(attempt, drawing, name="first", **options):
    waiting = Waiting(attempt, drawing, name, **options)
    attempt.clean_up = waiting.running.kill
    if not waiting.wait_until_open():
        ended = waiting.finish()
        raise RuntimeError(f"the attack's own drawing was not opened: {ended.said}")
    return waiting


# What another program does to the drawing; each gives what must be there afterwards, None where nothing needs to be.

def written_over(drawing, _):
    drawing.write_bytes(OTHERS)
    return OTHERS


def replaced(drawing, _):
    beside = drawing.with_name("beside.dxf")
    beside.write_bytes(OTHERS)
    beside.replace(drawing)
    return OTHERS


def replaced_of_same_size_and_time(drawing, _):
    status = drawing.stat()
    other = PLAN.replace(b"Office", b"Cellar")
    beside = drawing.with_name("beside.dxf")
    beside.write_bytes(other)
    os.utime(beside, ns=(status.st_atime_ns, status.st_mtime_ns))
    beside.replace(drawing)
    return other


def added_to(drawing, _):
    with open(drawing, "ab") as file:
        file.write(b"  0\nnot a drawing any more\n")
    return drawing.read_bytes()


def cut_short(drawing, numbers):
    os.truncate(drawing, numbers.randrange(len(PLAN)))
    return drawing.read_bytes()


def deleted(drawing, _):
    drawing.unlink()


def only_touched(drawing, _):
    os.utime(drawing)


def made_a_link(drawing, _):
    other = drawing.with_name("other.dxf")
    other.write_bytes(OTHERS)
    drawing.unlink()
    drawing.symlink_to(other)
    return OTHERS


CHANGES = [written_over, replaced, replaced_of_same_size_and_time, added_to, cut_short, deleted, only_touched,
           made_a_link]


def changed_while_open(attempt):
    drawing = attempt.work / "plan.dxf"
    drawing.write_bytes(PLAN)
    first = opened(attempt, drawing)
    theirs = attempt.case(drawing, attempt.random)
    ended = first.finish()
    now = drawing.read_bytes() if drawing.exists() else None
    if theirs is not None and now != theirs:
        raise Bad(LOST, f"what another program wrote was replaced unasked; {ended.brief()}")
    if now is None or now in (PLAN, theirs):
        told_or_bad(ended, "the drawing was not saved and nothing said")
    check_nothing_else(attempt)


def check_nothing_else(attempt):
    left = [name for name in hidden_files(attempt.work) if name != "plan.dxf"]
    if left:
        raise Bad(LEFT, f"{', '.join(left)} beside the drawing after the programs have ended")


def link_swapped(attempt):
    """The drawing was opened by a link that leads to another drawing when it is saved."""
    for name, content in (("a.dxf", PLAN), ("b.dxf", OTHERS)):
        (attempt.work / name).write_bytes(content)
    link = attempt.work / "plan.dxf"
    link.symlink_to("a.dxf")
    first = opened(attempt, link)
    link.unlink()
    link.symlink_to("b.dxf")
    ended = first.finish()
    if (attempt.work / "b.dxf").read_bytes() != OTHERS:
        raise Bad(LOST, f"another drawing was written over, to which the link leads by now; {ended.brief()}")


def reference(attempt, line):
    """What the drawing is after a save by one who is alone with it."""
    alone = attempt.folder / f"alone-{line}.dxf"
    alone.write_bytes(PLAN)
    attempt.lisp(f'(command "_.LINE" "{line}" "7,7" "") (command "_.QSAVE")', alone, "alone.lsp")
    return alone.read_bytes()


def open_twice(attempt):
    """Two have it open and save, one after the other or at once: nobody's work goes without a word."""
    drawing = attempt.work / "plan.dxf"
    drawing.write_bytes(PLAN)
    is_at_once = attempt.case == "saved at once"
    results = [reference(attempt, line) for line in ("1,1", "2,2")]
    first = opened(attempt, drawing, line="1,1")
    second = Waiting(attempt, drawing, "second", line="2,2")
    attempt.clean_up = lambda: (first.running.kill(), second.running.kill())
    second.wait_until_open()
    order = [second, first] if attempt.case == "the second saves first" else [first, second]
    if is_at_once:
        for program in order:
            program.let_go()
    said = [program.finish() for program in order]
    now = drawing.read_bytes()
    if now not in results:
        raise Bad(LOST, f"the drawing is a mixture or nobody's, {len(now)} bytes; {said[0].brief()}; {said[1].brief()}")
    if not any(ended.is_told for ended in said):
        raise Bad(LOST, f"one's work was replaced by the other's unasked; {said[0].brief()}; {said[1].brief()}")
    winner = (first, second)[results.index(now)]
    if winner.ended.status != 0:
        raise Bad(FALSE, f"the drawing was saved and the program says it failed; {winner.ended.brief()}")
    check_nothing_else(attempt)


def save_as_onto_open(attempt):
    """SAVEAS onto a drawing that another program has open."""
    drawing, mine = attempt.work / "plan.dxf", attempt.work / "mine.dxf"
    drawing.write_bytes(PLAN)
    shutil.copy(SAMPLES / "zigzag.dxf", mine)
    first = opened(attempt, drawing, then="(princ)")
    save = f'(setvar "EXPERT" 2) (command "_.SAVEAS" {lisp_text(drawing)})'
    ended = attempt.lisp(save, mine, "second.lsp")
    first.finish()
    if drawing.read_bytes() != PLAN:
        raise Bad(LOST, f"a drawing that is open elsewhere was replaced; {ended.brief()}")
    told_or_bad(ended, "not saved and nothing said")


def stale_lock(attempt):
    """One who was killed holds nobody up, and leaves nothing behind."""
    drawing = attempt.work / "plan.dxf"
    drawing.write_bytes(PLAN)
    first = opened(attempt, drawing)
    os.killpg(first.running.process.pid, signal.SIGKILL)
    first.running.wait(SECONDS)
    ended = attempt.lisp('(command "_.LINE" "1,1" "7,7" "") (command "_.QSAVE")', drawing, "second.lsp")
    if ended.status != 0 or drawing.read_bytes() == PLAN:
        raise Bad(FALSE, f"the lock of a killed program is in the way; {ended.brief()}")
    check_nothing_else(attempt)


def written_while_read(attempt):
    """Another program writes the drawing all the time while it is opened: it is one or the other, or refused."""
    drawing = attempt.work / "plan.dxf"
    drawing.write_bytes(PLAN)
    running = attempt.start("convert", drawing, attempt.out / "copy.dxf")
    while running.process.poll() is None:
        drawing.write_bytes(attempt.random.choice((OTHERS, PLAN)))
    ended = attempt.judge(running, SECONDS)
    copy = attempt.out / "copy.dxf"
    if ended.status == 0 and copy.read_bytes() not in (PLAN, OTHERS):
        raise Bad(LOST, f"what came out, {copy.stat().st_size} bytes, is neither of the two drawings; {ended.brief()}")


def faults(bench):
    yield Fault("races", "changed on disk while open", changed_while_open, cases=CHANGES)
    yield Fault("races", "a link that leads elsewhere by now", link_swapped, cases=["swapped"])
    yield Fault("races", "open twice", open_twice,
                cases=["the first saves first", "the second saves first", *["saved at once"] * 20])
    yield Fault("races", "SAVEAS onto an open drawing", save_as_onto_open, cases=["once"])
    yield Fault("races", "killed with the drawing open", stale_lock, cases=["once"])
    yield Fault("races", "written while it is read", written_while_read, tries=60)
