"""Targets that cannot be written, or are more than a plain file: folders, pipes, devices, links, modes, owners."""

import os
import stat
from dataclasses import dataclass

from attacks.bench import FALSE, LEFT, LET_IN, LOST, NOBODY, Bad, Fault, NotRun, told_or_bad
from attacks.writers import WRITERS, Expected, comparable, is_failure, restore, snapshot

TARGETS = {
    "QSAVE": "desk/plan.dxf", "SAVEAS over another": "desk/other.dxf", "WBLOCK": "desk/other.dxf",
    "QSAVE with a backup": "backup/plan.bak", "SETBACKUPFOLDER": "home/settings.ini",
    "convert to dxf": "out/plan.dxf", "convert to png": "out/plan.png", "convert to svg": "out/plan.svg",
    "convert to pdf": "out/plan.pdf", "run --out --png": "out/plan.dxf",
           "session's save and screenshot": "out/seen.png",
    "Lisp's write-line": "desk/list.txt", "breakline": "home/Ortakit/breakline.state",
    "dimstyleexport": "home/standard.dim", "editalias": "home/alias.xml", "exportinfo": "out/report.txt",
    "exportvariables": "out/settings.scr", "getblockinfo": "out/blocks.txt", "importblockattributes": "out/doors.txt",
    "lispdump": "out/symbols.dmp", "makelinestyle": "home/pipes.lin", "makeshape": "home/plan.shp",
    "tracktime": "home/Ortakit/Project/plan.dxf", "tracktime's table": "out/times.txt",
    "favourites": "home/settings/ortakit/Ortakit.conf",
}


def kind_of(path):
    try:
        return stat.S_IFMT(os.lstat(path).st_mode)
    except FileNotFoundError:
        return None


@dataclass
class Written:
    """A run over a prepared target."""

    attempt: object
    target: object
    expected: Expected
    old: bytes
    new: bytes
    ended: object = None

    @property
    def is_new(self):
        name = self.target.name
        return self.target.is_file() and comparable(name, self.target.read_bytes()) == comparable(name, self.new)

    def must_be_old(self, path=None):
        data = (path or self.target).read_bytes()
        if data != self.old:
            raise Bad(LOST, f"{(path or self.target).name} was replaced, now {len(data)} bytes; {self.ended.brief()}")

    def must_be_told(self):
        if not self.ended.is_told and not is_failure(self.expected.writer.printed(self.attempt, as_nobody=True)):
            told_or_bad(self.ended, "not written and nothing said")

    def must_be_new(self, path=None):
        data = (path or self.target).read_bytes() if (path or self.target).is_file() else None
        if comparable(self.target.name, data) == comparable(self.target.name, self.new):
            return
        if data != self.old:
            raise Bad(LOST, f"{(path or self.target).name} is neither the old nor the new one; {self.ended.brief()}")
        if self.ended.is_told:
            raise Bad(FALSE, f"refused although it can be written; {self.ended.brief()}")
        raise Bad(FALSE, f"not written and nothing said; {self.ended.brief()}")

    def must_keep(self, what, before, after):
        if before != after:
            raise Bad(LOST, f"{what} of {self.target.name} was {before} and is {after}")

    def no_leftovers(self):
        known = {*self.expected.before, *self.expected.after}
        extra = [name for name in snapshot(self.attempt.disk) if name not in known and "/else/" not in name
                 and "away/" not in name]
        if extra:
            raise Bad(LEFT, f"{', '.join(extra)}; {self.ended.brief()}")


# Each makes the place of the target what its name says, gives control to the program with a yield, and judges.

def read_only_folder(written):
    written.target.parent.chmod(0o555)
    yield
    try:
        if not written.is_new:
            written.must_be_old()
            written.must_be_told()
    finally:
        written.target.parent.chmod(0o755)


def read_only_file(written):
    written.target.chmod(0o444)
    yield
    written.must_be_old()
    written.must_be_told()


def missing_folder(written):
    away = written.target.parent.with_name("away")
    written.target.parent.rename(away)
    yield
    if not written.target.exists():
        written.must_be_told()
    if not written.target.parent.exists():
        away.rename(written.target.parent)


def folder_in_its_place(written):
    written.target.unlink()
    written.target.mkdir()
    yield
    written.must_keep("the kind", stat.S_IFDIR, kind_of(written.target))
    written.must_be_told()


def pipe_in_its_place(written):
    written.target.unlink()
    os.mkfifo(written.target)
    yield
    written.must_keep("the kind", stat.S_IFIFO, kind_of(written.target))
    written.must_be_told()


def full_device(written):
    written.target.unlink()
    written.target.symlink_to("/dev/full")
    yield
    written.must_keep("the kind", stat.S_IFLNK, kind_of(written.target))
    written.must_keep("the device", stat.S_IFCHR, kind_of("/dev/full"))
    written.must_be_told()


def link_to_nothing(written):
    elsewhere = written.attempt.work / "else"
    elsewhere.mkdir()
    written.target.unlink()
    written.target.symlink_to(elsewhere / "later")
    yield
    written.must_keep("the kind", stat.S_IFLNK, kind_of(written.target))
    if not (elsewhere / "later").exists():
        written.must_be_told()
    elif written.expected.writer.first:  # what is added to a file, or kept of it, is less where there is none
        if not (elsewhere / "later").read_bytes():
            raise Bad(LOST, f"what the link leads to is empty; {written.ended.brief()}")
    else:
        written.must_be_new(elsewhere / "later")


def link_elsewhere(written):
    elsewhere = written.attempt.work / "else"
    elsewhere.mkdir()
    written.target.rename(elsewhere / "far")
    written.target.symlink_to(elsewhere / "far")
    yield
    written.must_keep("the kind", stat.S_IFLNK, kind_of(written.target))
    written.must_be_new(elsewhere / "far")


def second_name(written):
    elsewhere = written.attempt.work / "else"
    elsewhere.mkdir()
    os.link(written.target, elsewhere / "second")
    yield
    written.must_keep("being one file with its second name", True,
                      os.path.samefile(written.target, elsewhere / "second"))
    written.must_be_new()


def extended_attribute(written):
    try:
        os.setxattr(written.target, "user.attack", b"kept")
    except OSError as error:
        raise NotRun(f"no extended attributes: {error}") from error
    yield
    written.must_be_new()
    names = os.listxattr(written.target)
    written.must_keep("the attributes", ["user.attack"], [name for name in names if name.startswith("user.")])


def setuid_bit(written):
    yield from with_mode(written, 0o4755, 0o755)


def mode_of_a_group(written):
    yield from with_mode(written, 0o640, 0o640)


def with_mode(written, before, after):
    written.target.chmod(before)
    yield
    written.must_be_new()
    mode = stat.S_IMODE(written.target.stat().st_mode)
    if mode & 0o6000:
        raise Bad(LET_IN, f"the new file has the mode {mode:o}")
    written.must_keep("the mode", f"{after:o}", f"{mode:o}")


def owner_is_another(written):
    if not written.attempt.bench.is_root:
        raise NotRun("needs root")
    os.chown(written.target, 1234, 4321)
    yield
    written.must_be_new()
    status = written.target.stat()
    written.must_keep("the owner", (1234, 4321), (status.st_uid, status.st_gid))


# Backups are new files each time, and have the properties of the drawing.
KEPT_BY_BACKUPS = (read_only_folder, read_only_file, missing_folder, folder_in_its_place, pipe_in_its_place,
                   full_device)

# With the user who runs the program: root is held back by no mode, and only root gives files away.
PLACES = [
    (read_only_folder, True), (read_only_file, True), (missing_folder, True), (folder_in_its_place, True),
    (pipe_in_its_place, True), (full_device, True), (link_to_nothing, True), (link_elsewhere, True),
          (second_name, True),
    (extended_attribute, False), (setuid_bit, True), (mode_of_a_group, False), (owner_is_another, False),
]


def over(place, as_nobody, attempt):
    writer = attempt.case
    expected = Expected(writer, attempt)
    target = attempt.disk / TARGETS[writer.name]
    name = str(target.relative_to(attempt.disk))
    restore(attempt.disk, expected.before)
    written = Written(attempt, target, expected, expected.before[name], expected.after[name])
    if as_nobody and attempt.bench.is_root:
        for path in [attempt.disk, *attempt.disk.rglob("*")]:
            os.chown(path, NOBODY, NOBODY)
    steps = place(written)
    next(steps)
    written.ended = writer.write(attempt, as_nobody=as_nobody, seconds=8, memory=700, cwd=attempt.folder)
    next(steps, None)
    written.no_leftovers()


def faults(bench):
    writers = [writer for writer in WRITERS if writer.name in TARGETS]
    for place, as_nobody in PLACES:
        def body(attempt, place=place, as_nobody=as_nobody):
            over(place, as_nobody, attempt)
        cases = [writer for writer in writers if place in KEPT_BY_BACKUPS or writer.name != "QSAVE with a backup"]
        yield Fault("places", place.__name__.replace("_", " "), body, cases=cases)
