"""A save that is killed at any moment."""

import functools
import os
import shutil
import time

from attacks.bench import FALSE, LEFT, LOST, SAMPLES, Attempt, Bad, Fault
from attacks.writers import WRITERS, Expected, restore, snapshot

GROW = """(setq i 0)
(repeat 25000
  (setq i (1+ i))
  (entmake (list '(0 . "LINE") '(8 . "0") (list 10 (* 1.5 i) 0.25 0.0) (list 11 (* 1.5 i) 77.125 0.0))))
(command "_.QSAVE")"""
EDIT = '(command "_.LINE" "0,0" "5,5" "") (command "_.QSAVE")'
BACKUP = "lisp (c:setbackupfolder)\nanswer ${HOME_DIR}/../backup\n"


class Large:
    """A drawing of a few MB, what it is after an edit and a save, and how long that takes."""

    def __init__(self, bench):
        attempt = Attempt(bench, Fault("kills", "made", None), 0, "large")
        drawing = attempt.work / "plan.dxf"
        shutil.copy(SAMPLES / "plan.dxf", drawing)
        attempt.lisp(GROW, drawing, seconds=300)
        self.old = drawing.read_bytes()
        ended = attempt.lisp(EDIT, drawing, seconds=60)
        self.seconds = ended.seconds
        self.new = drawing.read_bytes()
        if ended.status != 0 or self.new == self.old or len(self.old) < 2_000_000:
            raise RuntimeError(f"the attack's own drawing could not be made: {ended.said}")


large = functools.cache(Large)


def new_entries(folder, known):
    return [name for name in os.listdir(folder) if name not in known]


def kill_in_save(attempt, running, folder, known):
    """Half of the kills wait for the file beside, so that most of them hit the save itself."""
    seconds = large(attempt.bench).seconds
    if attempt.number % 2:
        time.sleep(attempt.random.uniform(0.3, 1.1) * seconds)
    else:
        while running.process.poll() is None and not new_entries(folder, known):
            time.sleep(0.0005)
        time.sleep(attempt.random.uniform(0, 0.5) ** 2 * seconds)
    running.kill()
    return attempt.judge(running, may_exceed=True) if running.process.poll() not in (None, -9) else running.wait(30)


def check_whole(path, allowed):
    data = path.read_bytes() if path.exists() else None
    if data not in allowed:
        now = "gone" if data is None else f"{len(data)} bytes, neither the old nor the new"
        raise Bad(LOST, f"{path.name} is {now}")


def killed_save(with_backup, attempt):
    big = large(attempt.bench)
    drawing = attempt.work / "plan.dxf"
    if with_backup:
        shutil.copy(SAMPLES / "plan.dxf", drawing)
        attempt.session(BACKUP, drawing)
        (attempt.disk / "backup" / "plan.bak").write_bytes(b"the backup before")
    drawing.write_bytes(big.old)
    known = os.listdir(attempt.work)
    script = attempt.folder / "edit.lsp"
    script.write_text(EDIT)
    running = attempt.start("lisp", script, "--drawing", drawing)
    kill_in_save(attempt, running, attempt.work, known)
    check_whole(drawing, (big.old, big.new))
    if with_backup:
        check_whole(attempt.disk / "backup" / "plan.bak", (b"the backup before", big.old))
    visible = [name for name in new_entries(attempt.work, known) if not name.startswith(".")]
    if visible:
        raise Bad(LEFT, f"a killed save leaves {', '.join(visible)} in sight")
    check_next_start(attempt, drawing, known)


def check_next_start(attempt, drawing, known):
    """Nobody is in the way of the next save, and what the killed one left is gone after it."""
    before = drawing.read_bytes()
    ended = attempt.lisp(EDIT, drawing, "next.lsp")
    if ended.status != 0 or drawing.read_bytes() == before:
        raise Bad(FALSE, f"the next save does not go through; {ended.brief()}")
    for folder, names in ((attempt.work, known), (attempt.disk / "backup", ["plan.bak"])):
        left = new_entries(folder, names)
        if left:
            raise Bad(LEFT, f"{', '.join(left)} of the killed save is there after the next one")


def killed_writer(attempt):
    """Small files have small saves: the moment is any between the start and the end."""
    writers = [writer for writer in WRITERS if not writer.is_stream and writer.name != "Lisp's vl-file-copy"]
    writer = attempt.random.choice(writers)
    expected = Expected(writer, attempt)
    restore(attempt.disk, expected.before)
    starts = attempt.start

    def start_and_kill(*arguments, **options):
        running = starts(*arguments, **options)
        time.sleep(attempt.random.uniform(0.2, 1.0) * expected.ended.seconds)
        running.kill()
        return running

    attempt.start = start_and_kill
    attempt.judge = lambda running, *rest, **more: running.wait(30)
    ended = writer.write(attempt)
    known = {*expected.before, *expected.after}
    expected.judge(attempt, ended, ignore=lambda name: name not in known)
    # What the killed one left is gone when the same was done again.
    del attempt.start, attempt.judge
    writer.write(attempt)
    extra = [name for name in snapshot(attempt.disk) if name not in known]
    if extra:
        raise Bad(LEFT, f"{', '.join(extra)} of the killed program is there after the same was done again")


def faults(bench):
    yield Fault("kills", "in a save of a large drawing", functools.partial(killed_save, False), tries=120)
    yield Fault("kills", "in a save with a backup", functools.partial(killed_save, True), tries=60)
    yield Fault("kills", "while anything is written", killed_writer, tries=120)
