"""Runs the program within bounds of time and memory, in folders of the attack's own."""

import os
import random
import re
import resource
import shutil
import signal
import subprocess
import threading
import time
from dataclasses import dataclass, field
from pathlib import Path

TOP = Path(__file__).resolve().parent.parent.parent
SAMPLES = TOP / "samples"
MEBIBYTE = 1024 * 1024
NOBODY = 65534  # the user that owns nothing
LARGEST_FILE = 256 * MEBIBYTE  # no program under attack writes more into one, so that it fills no disk of others

# The ways in which an attempt may go wrong.
LOST = "lost"  # content of a person's file is gone, or a file is neither the old nor the new one
CRASHED = "crashed"  # a signal, or a sanitizer's complaint
HUNG = "hung"  # more time or memory than the attempt is worth
FALSE = "falsely reported"  # called done and was not, or failed without a word
LET_IN = "let in"  # foreign code ran, or foreign content was shown
LEFT = "left over"  # files that nobody wants stay behind
KINDS = (LOST, CRASHED, HUNG, FALSE, LET_IN, LEFT)

# What a person takes for "it did not work". "Cannot", "was not written", "is full" ...
FAILURE = re.compile(
    r"cannot|can't|is not|has no|there is no|not found|invalid|unknown|could not|couldn't|"
    r"\bnot (be )?(written|saved|read|kept|made|opened|replaced)|fail|no space|"
    r"too large|disk|denied|read.only|not a file|changed|damaged|nothing was|in use|is open|locked|refused|error", re.I)
SANITIZER = re.compile(rb"(AddressSanitizer|LeakSanitizer|UndefinedBehaviorSanitizer|: runtime error:)")


def tells_failure(said):
    """Whether a text tells a person that something went wrong; names of files tell nothing."""
    return bool(FAILURE.search(re.sub(r"\S*ortakit-attack\S*", "", said)))


class Bad(Exception):
    """An attempt that went wrong: one of KINDS and what was seen."""

    def __init__(self, kind, detail):
        super().__init__(detail)
        self.kind = kind
        self.detail = detail


class NotRun(Exception):
    """Why a fault cannot be made on this machine."""


@dataclass
class Ended:
    """How a run of the program ended."""

    command: list
    status: int  # negative: the signal
    output: str
    errors: str
    seconds: float
    peak: float  # MB of memory
    stopped: str = ""  # why the attack ended it: "time", "memory", or nothing

    @property
    def said(self):
        return self.output + self.errors

    @property
    def is_told(self):
        """Whether somebody who started it knows that something went wrong."""
        return self.status != 0 or tells_failure(self.said)

    def brief(self):
        said = " / ".join(line.strip() for line in self.said.splitlines() if line.strip())
        return f"status {self.status}, {self.seconds:.1f} s, {self.peak:.0f} MB: {said[-300:] or 'not a word'}"


class Running:
    """A program under way, in a process group of its own; what it prints is taken off by threads, so that limits on
    files do not reach it and nothing waits for a full pipe."""

    KEPT = 4 * MEBIBYTE

    def __init__(self, command, **options):
        self.command = [str(word) for word in command]
        self.started = time.monotonic()
        self.process = subprocess.Popen(self.command, stdin=options.pop("stdin", subprocess.DEVNULL),
                                        stdout=subprocess.PIPE, stderr=subprocess.PIPE, start_new_session=True,
                                        **options)
        self.kept = [bytearray(), bytearray()]
        self.readers = [threading.Thread(target=self._drain, args=(pipe, kept), daemon=True)
                        for pipe, kept in zip((self.process.stdout, self.process.stderr), self.kept)]
        for reader in self.readers:
            reader.start()
        self.peak = 0.0

    def _drain(self, pipe, kept):
        while piece := pipe.read1(65536):
            if len(kept) < self.KEPT:
                kept += piece

    def memory(self):
        """MB that it holds at most up to now."""
        try:
            for line in Path(f"/proc/{self.process.pid}/status").read_text().splitlines():
                if line.startswith("VmHWM:"):
                    self.peak = max(self.peak, int(line.split()[1]) / 1024)
        except OSError:
            pass  # it has just ended
        return self.peak

    def worked(self):
        """Seconds of the processor."""
        try:
            fields = Path(f"/proc/{self.process.pid}/stat").read_text().rpartition(")")[2].split()
            return (int(fields[11]) + int(fields[12])) / os.sysconf("SC_CLK_TCK")
        except OSError:
            return 0.0

    def kill(self):
        try:
            os.killpg(self.process.pid, signal.SIGKILL)
        except ProcessLookupError:
            pass

    def wait(self, seconds, memory=None):
        """Waits for its end, and brings it about when it works for longer, waits for thrice as long, or takes more
        MB. Of the two times the machine's other work counts in one only."""
        stopped = ""
        pause = 0.002
        while self.process.poll() is None:
            if time.monotonic() - self.started > 3 * seconds or self.worked() > seconds:
                stopped = "time"
            elif self.memory() > (memory or float("inf")):
                stopped = "memory"
            if stopped:
                self.kill()
                self.process.wait()
                break
            time.sleep(pause)
            pause = min(pause * 1.5, 0.03)
        self.kill()  # what it left running
        for reader in self.readers:
            reader.join(5)
        output, errors = (bytes(kept).decode("utf-8", "replace") for kept in self.kept)
        return Ended(self.command, self.process.returncode, output, errors, time.monotonic() - self.started, self.peak,
                     stopped)


@dataclass(eq=False)
class Bench:
    """The program under attack, and the folder in which it is attacked."""

    preset: str
    folder: Path
    seed: int
    corpus: Path | None = None
    is_root: bool = field(default_factory=lambda: os.geteuid() == 0)

    @property
    def build(self):
        return TOP / "build" / self.preset

    @property
    def program(self):
        return self.build / "bin" / "ortakit"

    @property
    def is_sanitized(self):
        return self.preset == "asan"

    @property
    def patience(self):
        """How much longer, and how much more memory, a build with sanitizers takes."""
        return 8.0 if self.is_sanitized else 1.0


class Attempt:
    """One try of a fault: its own folder, home and random numbers."""

    def __init__(self, bench, fault, number, folder="try"):
        self.bench = bench
        self.fault = fault
        self.number = number
        self.random = random.Random(f"{bench.seed}:{fault.group}:{fault.name}:{number}")
        self.folder = bench.folder / folder
        self.ended = []
        if self.folder.exists():
            shutil.rmtree(self.folder)
        for name in ("disk/desk", "disk/out", "disk/home", "disk/backup", "person", "tmp", "run"):
            (self.folder / name).mkdir(parents=True)
        self.folder.chmod(0o755)
        (self.folder / "run").chmod(0o700)

    @property
    def disk(self):
        """The folder of all that a person keeps."""
        return self.folder / "disk"

    @property
    def work(self):
        return self.disk / "desk"

    @property
    def out(self):
        return self.disk / "out"

    @property
    def home(self):
        return self.disk / "home"

    @property
    def case(self):
        return self.fault.cases[self.number]

    def environment(self, **more):
        keep = {name: os.environ[name] for name in ("PATH", "LANG", "LC_ALL") if name in os.environ}
        return keep | {"HOME": str(self.folder / "person"), "TMPDIR": str(self.folder / "tmp"),
                       "XDG_RUNTIME_DIR": str(self.folder / "run"), "QT_QPA_PLATFORM": "offscreen",
                       "ASAN_OPTIONS": "detect_leaks=0:abort_on_error=0", "UBSAN_OPTIONS": "print_stacktrace=1",
                       **more}

    def start(self, *arguments, cwd=None, environment=None, largest=LARGEST_FILE, as_nobody=False, home=True,
              stdin=None):
        """Starts the program with the arguments. `largest`: no file can become larger, in bytes. `as_nobody`: as a
        user whom file modes hold back, where the attack is root."""
        if as_nobody and self.bench.is_root:
            for place in [self.folder, *self.folder.rglob("*")]:
                if not place.is_symlink() and place.stat().st_uid == 0 and "foreign" not in place.name:
                    os.chown(place, NOBODY, NOBODY)

        def prepare():
            resource.setrlimit(resource.RLIMIT_CORE, (0, 0))
            signal.signal(signal.SIGXFSZ, signal.SIG_IGN)
            resource.setrlimit(resource.RLIMIT_FSIZE, (largest, largest))
            if as_nobody and self.bench.is_root:
                os.setgroups([])
                os.setgid(NOBODY)
                os.setuid(NOBODY)

        command = [self.bench.program, *arguments]
        if home:
            command += ["--home", self.home]
        options = {"stdin": stdin} if stdin is not None else {}
        return Running(command, cwd=cwd or self.work, env=self.environment(**(environment or {})), preexec_fn=prepare,
                       **options)

    def run(self, *arguments, seconds=60, memory=2000, may_exceed=False, **options):
        """Runs the program to its end. A crash or a run out of bounds is the end of the attempt."""
        return self.judge(self.start(*arguments, **options), seconds, memory, may_exceed)

    def judge(self, running, seconds=60, memory=2000, may_exceed=False):
        ended = running.wait(seconds * self.bench.patience, memory * self.bench.patience)
        self.ended.append(ended)
        if ended.stopped and not may_exceed:
            raise Bad(HUNG, f"ended by the attack for its {ended.stopped}; {ended.brief()}")
        if not ended.stopped and (ended.status < 0 or SANITIZER.search(ended.errors.encode())):
            raise Bad(CRASHED, ended.brief())
        return ended

    def session(self, text, drawing, *more, name="attack.session", **options):
        """Plays a session over a drawing."""
        script = self.folder / name
        script.write_text(text, encoding="utf-8")
        return self.run("run", script, drawing, "--out", self.out, *more, **options)

    def lisp(self, text, drawing=None, name="attack.lsp", **options):
        """Evaluates Lisp, over a drawing where one is named."""
        script = self.folder / name
        script.write_text(text, encoding="utf-8")
        over = ["--drawing", drawing] if drawing else []
        return self.run("lisp", script, *over, **options)


def lisp_text(value):
    """A path or text as a Lisp string."""
    return '"' + str(value).replace("\\", "\\\\").replace('"', '\\"') + '"'


def told_or_bad(ended, what):
    """Something was not done: then whoever started the program must know."""
    if not ended.is_told:
        raise Bad(FALSE, f"{what}; {ended.brief()}")


def hidden_files(folder):
    """What programs leave beside a file that they were writing."""
    return sorted(path.name for path in folder.iterdir()
                  if path.name.startswith(".") or re.search(r"\.[A-Za-z]{6}$|~$|\.(tmp|part|new)$", path.name))


@dataclass
class Fault:
    """A fault to make. With `cases` each of them is tried once; otherwise it is tried `tries` times at random."""

    group: str
    name: str
    body: object  # takes the Attempt; raises Bad or NotRun
    tries: int = 20
    cases: list | None = None
