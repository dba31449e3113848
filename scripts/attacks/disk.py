"""A disk that is full at any place of a file: by a limit of its size, and on a small file system."""

import os
import subprocess

from attacks.bench import Fault, NotRun
from attacks.writers import WRITERS, Expected, restore

LIMITS = ("0", "1", "512", "4096", "half", "all but one")
FREE = ("0", "4096", "half", "no files")


def amount(name, largest):
    return {"half": largest // 2, "all but one": largest - 1}.get(name) if not name.isdigit() else int(name)


def limited_size(attempt):
    writer, limit = attempt.case
    expected = Expected(writer, attempt)
    largest = amount(limit, expected.largest)
    restore(attempt.disk, expected.before)
    ended = writer.write(attempt, largest=largest)

    def say_again():
        restore(attempt.disk, expected.before)
        return writer.printed(attempt, largest=largest)

    expected.judge(attempt, ended, say_again)


def mount_small(attempt):
    if not attempt.bench.is_root:
        raise NotRun("needs root")
    done = subprocess.run(["mount", "-t", "tmpfs", "-o", "size=32m,nr_inodes=2000", "tmpfs", attempt.disk],
                          capture_output=True, text=True)
    if done.returncode != 0:
        raise NotRun(f"no file system could be mounted: {done.stderr.strip()}")
    attempt.clean_up = lambda: subprocess.run(["umount", "-l", attempt.disk], check=True)
    for name in ("desk", "out", "home", "backup"):
        (attempt.disk / name).mkdir()


def fill(disk, free):
    """Takes all of the file system but so many bytes, or all of its files where `free` is None."""
    filler = disk / "filler"
    if free is None:
        filler.mkdir()
        try:
            for number in range(3000):
                (filler / f"{number}").touch()
        except OSError:
            return
    status = os.statvfs(disk)
    with open(filler, "wb") as file:
        os.posix_fallocate(file.fileno(), 0, max(1, status.f_bavail * status.f_bsize - free))


def empty(disk):
    filler = disk / "filler"
    if filler.is_dir():
        subprocess.run(["rm", "-r", filler], check=True)
    else:
        filler.unlink()


def full_file_system(attempt):
    writer, free = attempt.case
    mount_small(attempt)
    expected = Expected(writer, attempt)
    free = None if free == "no files" else amount(free, expected.largest)

    def write(writing):
        restore(attempt.disk, expected.before)
        fill(attempt.disk, free)
        result = writing(attempt)
        empty(attempt.disk)
        return result

    expected.judge(attempt, write(writer.write), lambda: write(writer.printed))


def faults(bench):
    yield Fault("disk", "a limit of a file's size", limited_size,
                cases=[(writer, limit) for writer in WRITERS for limit in LIMITS])
    yield Fault("disk", "a full file system", full_file_system,
                cases=[(writer, free) for writer in WRITERS for free in FREE])
