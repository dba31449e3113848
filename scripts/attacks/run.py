"""Goes through the groups of faults and keeps the table of their outcomes."""

import argparse
import collections
import importlib
import os
import platform
import re
import shutil
import subprocess
import sys
import tempfile
import time
import traceback
from pathlib import Path

from attacks.bench import KINDS, TOP, Attempt, Bad, Bench, NotRun

GROUPS = ("drawings", "disk", "places", "kills", "races", "foreign", "reach", "cost", "calls")
LARGEST_KEPT = 64 * 1024 * 1024
IN_NAMESPACE = "ORTAKIT_ATTACK_NAMESPACE"


def arguments():
    parser = argparse.ArgumentParser(prog="scripts/attack",
                                     description="Attacks the built program and tells what fell.")
    parser.add_argument("--preset", default="dev", choices=("dev", "release", "asan"), help="the build to attack")
    amount = parser.add_mutually_exclusive_group()
    amount.add_argument("--tries", type=int, help="tries of each fault that is made at random")
    amount.add_argument("--share", type=float, default=1.0, help="the part of the usual tries, as 0.01; also of cases")
    parser.add_argument("--only", action="append", default=[], metavar="GROUP[:FAULT[:NUMBER]]",
                        help="one group, one fault of it, one try of that; may be given again")
    parser.add_argument("--keep", type=Path, metavar="DIR", help="keep the folders of bad tries there")
    parser.add_argument("--seed", type=int, default=1, help="other numbers make other random faults")
    parser.add_argument("--report", type=Path, metavar="FILE", help="write the table there as Markdown")
    parser.add_argument("--list", action="store_true", help="name the faults and make none")
    return parser.parse_args()


def enter_namespace():
    """File systems that the attack mounts are nobody else's business."""
    if os.geteuid() != 0 or IN_NAMESPACE in os.environ or not shutil.which("unshare"):
        return
    if subprocess.run(["unshare", "-m", "true"], capture_output=True).returncode == 0:
        os.environ[IN_NAMESPACE] = "1"
        os.execvp("unshare", ["unshare", "-m", "--propagation", "private", sys.executable, *sys.argv])


class Row:
    """What became of a fault."""

    def __init__(self, fault):
        self.fault = fault
        self.counts = collections.Counter()
        self.first = {}  # kind -> the first detail and how to repeat it
        self.note = ""
        self.broken = 0  # tries that could not be made for the attack's own sake

    @property
    def tries(self):
        return sum(self.counts.values())

    @property
    def is_good(self):
        return not self.broken and all(self.counts[kind] == 0 for kind in KINDS)

    def add(self, kind, detail, repeat):
        self.counts[kind] += 1
        self.first.setdefault(kind, (detail, repeat))


class Attack:
    """All that was asked for, fault by fault."""

    def __init__(self, options, bench):
        self.options = options
        self.bench = bench
        self.rows = []

    def faults(self):
        for group in GROUPS:
            wanted = [only.split(":") for only in self.options.only]
            if wanted and all(words[0] != group for words in wanted):
                continue
            for fault in importlib.import_module(f"attacks.{group}").faults(self.bench):
                numbers = [words[2] for words in wanted if len(words) > 2 and words[0] == group
                           and words[1] == fault.name]
                if not wanted or any(words[0] == group and (len(words) < 2 or words[1] == fault.name)
                                     for words in wanted):
                    yield fault, [int(number) for number in numbers] or self.numbers(fault)

    def numbers(self, fault):
        usual = len(fault.cases) if fault.cases is not None else fault.tries
        if fault.cases is None and self.options.tries is not None:
            return range(self.options.tries)
        count = min(usual, max(1, round(usual * self.options.share)))
        # Of cases that are to be few, those that lie apart.
        return sorted({index * usual // count for index in range(count)}) if usual else []

    def run(self):
        for fault, numbers in self.faults():
            row = Row(fault)
            self.rows.append(row)
            started = time.monotonic()
            for number in numbers:
                try:
                    self.attempt(row, number)
                except NotRun as reason:
                    row.note = f"not run: {reason}"
                    break
            print(self.line(row, time.monotonic() - started), flush=True)

    def attempt(self, row, number):
        fault = row.fault
        options = f"--preset {self.bench.preset} --seed {self.bench.seed}"
        repeat = f'scripts/attack {options} --only "{fault.group}:{fault.name}:{number}"'
        attempt = Attempt(self.bench, fault, number)
        try:
            fault.body(attempt)
            row.counts["fine"] += 1
        except Bad as bad:
            case = f"{describe(attempt.case)}: " if fault.cases is not None else ""
            row.add(bad.kind, case + bad.detail, repeat)
            self.keep(attempt, bad)
        except NotRun:
            raise
        except Exception as error:  # the attack itself is at fault; that must not pass for an outcome of the program
            print(traceback.format_exc(), f"\n{repeat}", file=sys.stderr)
            row.broken += 1
            row.note = f"{row.broken} tries not made: {' '.join(str(error).split())[:300]}"
        finally:
            getattr(attempt, "clean_up", lambda: None)()

    def keep(self, attempt, bad):
        if not self.options.keep:
            return
        name = f"{attempt.fault.group}-{attempt.fault.name}-{attempt.number}"
        target = self.options.keep / re.sub(r"\W+", "-", name)
        shutil.rmtree(target, ignore_errors=True)
        shutil.copytree(attempt.folder, target, symlinks=True,
                        ignore=lambda folder, names: [name for name in names if not is_kept(Path(folder, name))])
        lines = [f"{bad.kind}: {bad.detail}"]
        for ended in attempt.ended:
            lines += ["", " ".join(ended.command), f"status {ended.status} {ended.stopped}", ended.said]
        (target / "outcome.txt").write_text("\n".join(lines), encoding="utf-8")

    @staticmethod
    def line(row, seconds):
        bad = ", ".join(f"{row.counts[kind]} {kind}" for kind in KINDS if row.counts[kind])
        words = [f"{row.tries} tries", bad or "fine", *([row.note] if row.note else [])]
        return f"{row.fault.group}: {row.fault.name}: {', '.join(words)} ({seconds:.0f} s)"

    def table(self):
        head = ["fault", "tries", "fine", *KINDS]
        rows = [[f"{row.fault.group}: {row.fault.name}", str(row.tries), str(row.counts["fine"]),
                 *(str(row.counts[kind]) for kind in KINDS)] for row in self.rows]
        total = ["all", *(str(sum(int(row[column]) for row in rows)) for column in range(1, len(head)))]
        return [head, *rows, total]

    def notes(self):
        for row in self.rows:
            name = f"{row.fault.group}: {row.fault.name}"
            if row.note:
                yield f"{name}: {row.note}", ""
            for kind, (detail, repeat) in row.first.items():
                yield f"{name}: {kind}: {' '.join(detail.split())[:400]}", repeat

    @property
    def is_good(self):
        return all(row.is_good for row in self.rows)


def describe(case):
    """A case in words."""
    if isinstance(case, (list, tuple)):
        return ", ".join(describe(part) for part in case)
    return str(getattr(case, "name", getattr(case, "__name__", case)))


def is_kept(path):
    """Pipes would never be copied to their end, and files that are large by their holes would fill the disk."""
    return path.is_symlink() or path.is_dir() or (path.is_file() and path.stat().st_size <= LARGEST_KEPT)


def print_table(attack):
    table = attack.table()
    widths = [max(len(row[column]) for row in table) for column in range(len(table[0]))]
    for row in table:
        print(" | ".join(cell.ljust(width) if column == 0 else cell.rjust(width)
                         for column, (cell, width) in enumerate(zip(row, widths))))
    for note, repeat in attack.notes():
        print(note, f"    {repeat}", sep="\n")


def machine():
    names = [line.split(":", 1)[1].strip() for line in Path("/proc/cpuinfo").read_text().splitlines()
             if line.startswith("model name")]
    memory = os.sysconf("SC_PAGE_SIZE") * os.sysconf("SC_PHYS_PAGES") / 2**30
    system = platform.freedesktop_os_release().get("PRETTY_NAME", platform.system())
    return f"{os.cpu_count()} cores ({names[0] if names else platform.machine()}), {memory:.0f} GB, {system}"


def write_report(attack, path):
    commit = subprocess.run(["git", "-c", f"safe.directory={TOP}", "rev-parse", "--short", "HEAD"], cwd=TOP,
                            capture_output=True, text=True).stdout.strip()
    table = attack.table()
    options = attack.options
    amount = f"{options.tries} tries" if options.tries is not None else f"share {options.share:g}"
    lines = [f"On {time.strftime('%-d %B %Y')}, commit {commit or 'unknown'}, preset {options.preset}, "
             f"seed {options.seed}, {amount}, {'as root' if attack.bench.is_root else 'not as root'}; {machine()}.", ""]
    lines += ["| " + " | ".join(table[0]) + " |", "|" + "---|" * len(table[0])]
    lines += ["| " + " | ".join(row) + " |" for row in table[1:]]
    notes = [f"- {note}" for note, _ in attack.notes()]
    path.write_text("\n".join(lines + [""] + notes).rstrip() + "\n", encoding="utf-8")


def main():
    options = arguments()
    enter_namespace()
    corpus = os.environ.get("ORTAKIT_CORPUS")
    with tempfile.TemporaryDirectory(prefix="ortakit-attack-") as folder:
        os.chmod(folder, 0o755)
        bench = Bench(options.preset, Path(folder), options.seed, Path(corpus) if corpus else None)
        attack = Attack(options, bench)
        if options.list:
            for fault, numbers in attack.faults():
                print(f"{fault.group}:{fault.name} ({len(numbers)})")
            return 0
        if not bench.program.exists():
            print(f"{bench.program} is not there; run scripts/build {options.preset}", file=sys.stderr)
            return 2
        attack.run()
    print()
    print_table(attack)
    if options.report:
        write_report(attack, options.report)
    if not attack.rows:
        print("nothing was tried", file=sys.stderr)
        return 2
    return 0 if attack.is_good else 1
