"""All that writes a file, each as a small program or session over a drawing, and what its folder holds before and
after."""

import re
import shutil
from dataclasses import dataclass, field

from attacks.bench import LEFT, LOST, SAMPLES, Bad, told_or_bad

SESSIONS = SAMPLES / "sessions"
# What the attack itself puts there, and what the toolkit remembers of its file dialogs.
NOBODYS = ("filler", "QtProject.conf")
OLD = b"the old one, and not to be lost\r\n" * 40


@dataclass(frozen=True)
class Writer:
    """`kind` says what `text` is: Lisp, a session, or the arguments of a conversion. `first` is a session that makes
    what the writer is to replace."""

    name: str
    kind: str
    text: str
    targets: tuple = ()  # files with old content, below the disk
    first: str = ""
    more: tuple = ()  # further arguments of the program
    is_stream: bool = field(default=False)  # its file grows piece by piece, so that half a file is no fault if told

    def prepare(self, attempt):
        shutil.copy(SAMPLES / "plan.dxf", attempt.work / "plan.dxf")
        if self.first:
            attempt.session(self.first, attempt.work / "plan.dxf")
            (attempt.out / "plan.dxf").unlink(missing_ok=True)
        for state in attempt.home.rglob("*.state"):
            state.write_bytes(re.sub(rb"!action!=\w*", b"!action!=BEFORE", state.read_bytes()))
        for target in self.targets:
            path = attempt.disk / target
            path.write_bytes((SAMPLES / "zigzag.dxf").read_bytes() if path.suffix in (".dxf", ".dwg") else OLD)

    def write(self, attempt, **options):
        plan = attempt.work / "plan.dxf"
        if self.kind == "convert":
            return attempt.run("convert", plan, attempt.disk / self.text, *self.more, **options)
        text = self.text.replace("{disk}", str(attempt.disk)).replace("{samples}", str(SAMPLES))
        if self.kind == "lisp":
            return attempt.lisp(text, plan, **options)
        return attempt.session(text, plan, *self.more, **options)

    def printed(self, attempt, **options):
        """What a session that seemed to go well printed, by a line that no text fulfils."""
        if self.kind != "session":
            return ""
        session = self.text.rstrip() + "\nexpect-printed @nothing prints this@\n"
        return attempt.session(session, attempt.work / "plan.dxf", *self.more, **options).said


def bare(name):
    """A sample session without what it expects, as that is not what it is about here."""
    text = (SESSIONS / f"{name}.session").read_text(encoding="utf-8").replace(" \\\n", " ")
    lines = [line for line in text.splitlines()
             if not re.match(r"\s*(#|expect|screenshot|undo|redo)", line) and line.strip()]
    return "\n".join(lines).replace("${SESSION_DIR}", str(SESSIONS)) + "\n"


REPLACE = '\nmessage "already exists" Yes'


def from_sample(name, *changes, targets=(), until=None):
    """A sample session, up to a line where one is named, played a second time, with other words where it would do
    nothing otherwise."""
    first = text = bare(name).partition(until)[0] if until else bare(name)
    for old, new in changes:
        text = text.replace(old, new)
    return Writer(name, "session", text, targets, first)


ALIAS = "command EDITALIAS\ndialog Dlg_QT_EditAlias\nclick btnAdd\ncell lstAlias 0 0 line\ncell lstAlias 0 1 {}\n" \
        "click acceptButton\n"
TRACKED = "lisp (setq folder (kora_userfile \"Project\"))\nlisp (vl-mkdir folder)\n" \
          "lisp (vl-file-copy \"{samples}/plan.dxf\" (strcat folder \"/plan.dxf\"))\n" \
          "command TRACKTIME\ndialog Dlg_QT_TrackTime\nfocus directory\nset directory ${HOME_DIR}/Ortakit/Project\n" \
          "key directory Return\n"
LINE = '(command "_.LINE" "0,0" "5,5" "") '
STREAM = '(setq f (open "{disk}/desk/list.txt" "%s")) ' \
         '(repeat 300 (%s "what a program writes, line by line" f)) (close f)'

WRITERS = [
    Writer("QSAVE", "lisp", LINE + '(command "_.QSAVE")'),
    Writer("SAVEAS over another", "lisp",
           LINE + '(setvar "EXPERT" 2) (command "_.SAVEAS" "{disk}/desk/other.dxf")', ("desk/other.dxf",)),
    Writer("SAVEAS under a new name", "lisp", LINE + '(command "_.SAVEAS" "{disk}/desk/new.dxf")'),
    Writer("WBLOCK", "lisp", '(setvar "EXPERT" 2) (command "_.-WBLOCK" "{disk}/desk/other.dxf" "*")',
           ("desk/other.dxf",)),
    Writer("WBLOCK of a symbol", "lisp", '(setvar "EXPERT" 2) (command "_.-WBLOCK" "{disk}/desk/other.dwg" "*")',
           ("desk/other.dwg",)),
    Writer("QSAVE with a backup", "session", "command LINE\npoint 0,0\npoint 5,5\nenter\ncommand QSAVE\n",
           ("backup/plan.bak",), 'lisp (c:setbackupfolder)\nanswer ${HOME_DIR}/../backup\n'),
    Writer("SETBACKUPFOLDER", "session", "lisp (c:setbackupfolder)\nanswer ${HOME_DIR}/../backup\n", (),
           "lisp (c:setbackupfolder)\nanswer ${HOME_DIR}\n"),
    *(Writer(f"convert to {kind}", "convert", f"out/plan.{kind}", (f"out/plan.{kind}",))
      for kind in ("dxf", "png", "svg", "pdf")),
    Writer("run --out --png", "session", "command LINE\npoint 0,0\npoint 5,5\nenter\n",
           ("out/plan.dxf", "out/plan.png"),
           more=("--png",)),
    Writer("session's save and screenshot", "session",
           "command LINE\npoint 0,0\npoint 5,5\nenter\nsave saved.dxf\nscreenshot seen.png\n",
           ("out/saved.dxf", "out/seen.png")),
    *(Writer(f"Lisp's {name}", "lisp", STREAM % (mode, name), ("desk/list.txt",), is_stream=True)
      for name, mode in (("write-line", "w"), ("princ", "w"), ("print", "a"))),
    Writer("Lisp's write-char", "lisp", STREAM.replace('(%s "what a program writes, line by line" f)',
                                                       "(write-char 65 f)") % "w",
           ("desk/list.txt",), is_stream=True),
    Writer("Lisp's vl-file-copy", "lisp",
           '(if (not (vl-file-copy "{disk}/desk/plan.dxf" "{disk}/desk/copied.dxf")) (princ "not copied: failed"))'),
    from_sample("breakline"),
    from_sample("breakline-create", ("type name door", "type name gate")),
    from_sample("convertsimplenotes"),
    from_sample("dimstyleexport", ("standard.dim", "standard.dim" + REPLACE), targets=("home/standard.dim",)),
    from_sample("dimstyleimport"),
    from_sample("drawordercolor", ("click toFront", "click toBack")),
    Writer("editalias", "session", ALIAS.format("qx"), (), ALIAS.format("qq")),
    from_sample("edittextcase"),
    from_sample("exportinfo", ("report.txt", "report.txt" + REPLACE), targets=("out/report.txt",)),
    from_sample("exportvariables", ("settings.scr", "settings.scr" + REPLACE), targets=("out/settings.scr",),
                until="command VARIABLETOSCRIPT"),
    from_sample("getblockinfo", ("blocks.txt", "blocks.txt" + REPLACE), targets=("out/blocks.txt",),
                until="command GETBLOCKINFO\ndialog Dlg_QT_GetBlockInfo\n  click exportTable"),
    from_sample("importblockattributes", ("doors.txt", "doors.txt" + REPLACE), targets=("out/doors.txt",),
                until="command IMPORTBLOCKATTRIBUTES"),
    from_sample("lispdump", ("symbols.dmp", "symbols.dmp" + REPLACE), targets=("out/symbols.dmp",),
                until="lisp (setq loaded"),
    from_sample("makelinestyle", ("set name gas", "set name oil"), until="lisp (entmake '((0 . \"LINE\") (6"),
    from_sample("makeshape", ("set name door", "set name gate")),
    from_sample("mergesheets"),
    from_sample("multiviewsetup", ("row lstBlocks a3.dxf", "click psTitle\n  row lstBlocks a3.dxf")),
    from_sample("numbertext"),
    from_sample("patternhatch"),
    from_sample("redefinepaths"),
    from_sample("replaceblock"),
    from_sample("replaceblockbyreference", ('  message "You must first select the blocks to replace. " Ok\n', ""),
                ('row blocksTableRep zigzag.dwg\n  click acceptButton\n', "row blocksTableRep zigzag.dwg\n")),
    from_sample("selectblock"),
    from_sample("showlinks"),
    from_sample("textframe"),
    from_sample("textmask"),
    from_sample("tracktime", ("btnTrackOn", "btnTrackOff")),
    Writer("tracktime's table", "session",
           TRACKED + "click btnExport\nfile ${OUT}/times.txt" + REPLACE + "\nclick ButtonCancel\n",
           ("out/times.txt",)),
    Writer("favourites", "session", TRACKED + "set cb_favorits mine\nclick btnSave\nclick ButtonCancel\n", (),
           TRACKED.replace("{samples}", str(SAMPLES)) + "set cb_favorits first\nclick btnSave\nclick ButtonCancel\n"),
    Writer("aliases saved at once", "session",
           ALIAS.format("qx").replace("click acceptButton",
                                      'click btnSave\nmessage "has been saved" Ok\nclick ButtonCancel'),
           (), ALIAS.format("qq")),
]


def is_failure(printed):
    """Whether a session's printed text tells that something was not written; the session's own failure is no news."""
    return bool(re.search(r"cannot be|could not|not written|not saved|no space|too large|\bdisk\b|denied|is full",
                          re.sub(r"\S*ortakit-attack\S*", "", printed), re.I))



def snapshot(folder):
    """The files below the folder, by their place."""
    return {str(path.relative_to(folder)): path.read_bytes() for path in sorted(folder.rglob("*"))
            if path.is_file() and not path.is_symlink() and path.name not in NOBODYS}


def restore(folder, content):
    for path in sorted(folder.rglob("*"), reverse=True):
        if path.is_symlink() or path.is_file():
            path.unlink()
    for name, data in content.items():
        (folder / name).parent.mkdir(parents=True, exist_ok=True)
        (folder / name).write_bytes(data)


def is_earlier_state(name, data, old, new):
    """Whether this is a whole state file, as a tool writes it at each of its steps."""
    now, *whole = [set(re.findall(rb"(?m)^[^=\n]+=", (state or b"").removeprefix(b"\xef\xbb\xbf")))
                   for state in (data, old, new)]
    is_whole = data.endswith(b"\n!call!=open\n") or any(keys and keys <= now for keys in whole)  # as tools end it
    return name.endswith(".state") and data.endswith(b"\n") and is_whole


def comparable(name, data):
    """The content without the moments that some files name, and without the line end that settings may lack."""
    if data is not None and name.endswith((".ini", ".conf")):
        return data.rstrip()
    if data is None or not name.endswith((".pdf", ".txt")):
        return data
    return re.sub(rb"\d{14}|\d\d?:\d\d:\d\d|\d{4}-\d\d-\d\d", b"then", data)


class Expected:
    """What a writer does where nothing is in its way: the disk before and after."""

    def __init__(self, writer, attempt):
        self.writer = writer
        writer.prepare(attempt)
        self.before = snapshot(attempt.disk)
        self.ended = writer.write(attempt)
        self.after = snapshot(attempt.disk)
        self.changed = [name for name in self.after if self.after[name] != self.before.get(name)]
        if self.ended.status != 0 or not self.changed:
            raise RuntimeError(f"the attack's own run of {writer.name} failed or wrote nothing: {self.ended.said}")

    @property
    def largest(self):
        return max(len(self.after[name]) for name in self.changed)

    def judge(self, attempt, ended, say_again=lambda: "", ignore=lambda name: False):
        """Every file is the old or the new one, nothing is left over, and what is not new was told."""
        now = snapshot(attempt.disk)
        undone = [name for name in self.changed
                  if comparable(name, now.get(name)) != comparable(name, self.after[name])]
        is_told = not undone or ended.is_told
        for name in sorted(name for name in {*now, *self.before} if not ignore(name)):
            data, old, new = (comparable(name, files.get(name)) for files in (now, self.before, self.after))
            if data in (old, new) or (data is not None
                                      and (self.writer.is_stream or is_earlier_state(name, data, old, new))):
                continue
            if data is None:
                raise Bad(LOST, f"{name} is gone; {ended.brief()}")
            if old is None and (new is None or is_told):
                raise Bad(LEFT, f"{name}, {len(data)} bytes; {ended.brief()}")
            raise Bad(LOST, f"{name} has {len(data)} bytes, neither the old {len(old or b'')} nor the new "
                            f"{len(new or b'')}; {ended.brief()}")
        if not is_told:
            if not is_failure(say_again()):
                told_or_bad(ended, f"{', '.join(undone)} not written and nothing said")
