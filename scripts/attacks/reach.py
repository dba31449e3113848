"""Names in drawings and settings that lead where they should not: devices, pipes, other people's files, huge files."""

import functools
import os
import re
import shutil

from attacks.bench import FALSE, LET_IN, SAMPLES, Bad, Fault, lisp_text, told_or_bad
from attacks.foreign import session_names
from attacks.writers import bare

SECONDS, MEGABYTES = 8, 700
SECRETS = ("seven words that nobody is to see", "and these are others, three of them longer than before")

REMOTE = """(setq d (entget (CreateRtext %s 0.0 2.5 "")))
(entmod (subst '(10 2.0 12.0 0.0) (assoc 10 d) d)) (command "_.QSAVE")"""
EXPRESSION = """(setq d (entget (CreateRtext "" 0.0 2.5 %s)))
(entmod (subst '(10 2.0 12.0 0.0) (assoc 10 d) d)) (command "_.QSAVE")"""
REFERENCE = '(command "_.-XREF" "_Attach" %s "20,5" 1 1 0) (command "_.QSAVE")'


def bounded(attempt, *arguments, **options):
    return attempt.run(*arguments, seconds=SECONDS, memory=MEGABYTES, **options)


def picture_of(attempt, drawing, **options):
    picture = attempt.out / "seen.png"
    picture.unlink(missing_ok=True)
    bounded(attempt, "convert", drawing, picture, **options)
    return picture.read_bytes() if picture.exists() else b""


def shows_difference(attempt, make, change, **options):
    """Whether two contents of a place that the drawing names make two pictures of it."""
    drawing = attempt.work / "plan.dxf"
    shutil.copy(SAMPLES / "plan.dxf", drawing)
    ended = attempt.lisp(make, drawing)
    if drawing.read_bytes() == (SAMPLES / "plan.dxf").read_bytes():
        told_or_bad(ended, "nothing was drawn and nothing said")
        return False
    pictures = []
    for number in (0, 1):
        change(number)
        pictures.append(picture_of(attempt, drawing, environment={"ATTACK_SECRET": SECRETS[number]}))
    return pictures[0] != pictures[1]


def secret_places(attempt):
    """The names under which a drawing may ask for a file outside of its folder."""
    secret = attempt.disk / "secret.txt"
    (attempt.work / "link.txt").symlink_to(secret)
    (attempt.work / "far").symlink_to(attempt.disk)
    return secret, {"from the folder above": "../secret.txt", "with the other separator": "..\\secret.txt",
                    "there and back": "../desk/../secret.txt", "by its whole name": str(secret),
                    "by a link": "link.txt",
                    "in a folder by a link": "far/secret.txt", "by a home": "~/secret.txt",
                    "by an address": f"file://{secret}",
                    "the environment": "/proc/self/environ"}


def remote_text(attempt):
    secret, places = secret_places(attempt)
    name = places[attempt.case]

    def change(number):
        secret.write_text(SECRETS[number])
        (attempt.folder / "person" / "secret.txt").write_text(SECRETS[number])

    if shows_difference(attempt, REMOTE % lisp_text(name), change):
        raise Bad(LET_IN, f"the picture shows what {name} holds")


def text_beside(attempt):
    """What the attack on remote texts would see if it could: a file in the drawing's own folder is shown."""
    beside = attempt.work / "beside.txt"
    if not shows_difference(attempt, REMOTE % '"beside.txt"', lambda number: beside.write_text(SECRETS[number])):
        raise Bad(FALSE, "a remote text beside the drawing is not shown")


def expression(attempt):
    if shows_difference(attempt, EXPRESSION % lisp_text(attempt.case), lambda number: None):
        raise Bad(LET_IN, f"the picture shows what {attempt.case} gives")


def reference(attempt):
    secret, places = secret_places(attempt)
    name = places[attempt.case].replace(".txt", ".dxf")

    def change(number):
        for place in (secret.with_suffix(".dxf"), attempt.folder / "person" / "secret.dxf"):
            shutil.copy(SAMPLES / ("zigzag.dxf", "details.dxf")[number], place)

    change(0)
    if shows_difference(attempt, REFERENCE % lisp_text(name), change):
        raise Bad(LET_IN, f"the picture shows the drawing {name}")


def endless_places(attempt):
    """Names of what never ends, never begins or is larger than anything."""
    pipe, huge, loop = attempt.work / "pipe", attempt.work / "huge", attempt.work / "loop"
    os.mkfifo(pipe)
    with open(huge, "wb") as file:
        file.truncate(1 << 36)
    loop.symlink_to("loop")
    return {"/dev/zero": "/dev/zero", "a pipe": str(pipe), "a huge file": str(huge), "/proc/kcore": "/proc/kcore",
            "a link to itself": str(loop), "/dev/stdin": "/dev/stdin", "a folder": str(attempt.work)}


ENDLESS = ("/dev/zero", "a pipe", "a huge file", "/proc/kcore", "a link to itself", "/dev/stdin", "a folder")
COMMANDS = {
    "remote text": REMOTE, "reference": REFERENCE,
    "INSERT": '(command "_.-INSERT" %s "0,0" 1 1 0)', "LINETYPE": '(command "_.-LINETYPE" "_Load" "*" %s "")',
    "LOAD": '(command "_.LOAD" %s)', "SCRIPT": '(command "_.SCRIPT" %s)',
    "Lisp's load": "(load %s nil)", "Lisp's open": '(setq f (open %s "r")) (if f (read-line f))',
    "vl-file-copy": '(vl-file-copy %s "copied")',
}


def command_reads(attempt):
    """A command that reads the file ends, within its bounds; and so does the picture of what it made."""
    command, place = attempt.case
    drawing = attempt.work / "plan.dxf"
    shutil.copy(SAMPLES / "plan.dxf", drawing)
    name = endless_places(attempt)[place]
    script = attempt.folder / "attack.lsp"
    script.write_text(COMMANDS[command] % lisp_text(name))
    bounded(attempt, "lisp", script, "--drawing", drawing, largest=1 << 26)
    bounded(attempt, "convert", drawing, attempt.out / "seen.png")


def argument_reads(attempt):
    """The program's own arguments: what cannot be read is told."""
    arguments, place = attempt.case
    shutil.copy(SAMPLES / "plan.dxf", attempt.work / "plan.dxf")
    words = [endless_places(attempt)[place] if word == "?" else word for word in arguments.split()]
    words = [str(attempt.work / "plan.dxf") if word == "plan" else str(attempt.out / word)
             if word.startswith("copy") else word
             for word in words]
    ended = bounded(attempt, *words)
    told_or_bad(ended, "read what cannot be read")


ARGUMENTS = ("lisp ?", "run ? plan", "convert ? copy.png", "convert ? copy.dxf", "lisp samples/plan.lsp --drawing ?")
SELECTING = ("EDITTEXTCASE", "NUMBERTEXT", "TEXTMASK", "TEXTFRAME", "CONVERTSIMPLENOTES", "EXPORTBLOCKATTRIBUTES")


def look_and_close(session):
    """A session that starts the sample session's last tool, and closes its dialog when there is one."""
    name = re.findall(r"(?m)^command (\w+)", session)[0]
    answers = "select all\nenter\n" if name in SELECTING else ""
    return f"command {name}\n{answers}dialog QDialog\nclose\n"


# What is neither a number nor a yes or no.
VALUE = re.compile(rb"(?m)^([^!=\n]+)=(?!(?:TRUE|FALSE|-?[\d.]+)\r?$).*$")


def state_lines(attempt):
    """Each path in the tools' state is one that never ends."""
    session, place = attempt.case
    drawing = attempt.work / "plan.dxf"
    shutil.copy(SAMPLES / "plan.dxf", drawing)
    attempt.session(bare(session), drawing)
    bad = endless_places(attempt)[place].encode()
    for state in attempt.home.rglob("*.state"):
        state.write_bytes(VALUE.sub(lambda match: match[1] + b"=" + bad, state.read_bytes()))
    script = attempt.folder / "look.session"
    script.write_text(look_and_close(bare(session)))
    bounded(attempt, "run", script, drawing)


def settings_files(attempt):
    """The person's own files are what never ends."""
    place, name = attempt.case
    drawing = attempt.work / "plan.dxf"
    shutil.copy(SAMPLES / "plan.dxf", drawing)
    attempt.session(bare("breakline"), drawing)
    target = attempt.home / name
    target.parent.mkdir(parents=True, exist_ok=True)
    target.unlink(missing_ok=True)
    target.symlink_to(endless_places(attempt)[place])
    script = attempt.folder / "look.session"
    script.write_text("command BREAKLINE\ndialog QDialog\nclose\ncommand EDITALIAS\ndialog QDialog\nclose\n")
    bounded(attempt, "run", script, drawing)


OWN_FILES = ("alias.xml", "settings.ini", "Ortakit/breakline.state", "settings/ortakit/Ortakit.conf",
             "settings/ortakit.conf")
PLACES = ("from the folder above", "with the other separator", "there and back", "by its whole name", "by a link",
          "in a folder by a link", "by a home", "by an address", "the environment")


def faults(bench):
    yield Fault("reach", "a remote text beside the drawing is shown", text_beside, cases=["beside"])
    yield Fault("reach", "remote texts of files elsewhere", remote_text, cases=list(PLACES))
    yield Fault("reach", "expressions that ask for the environment", expression,
                cases=["$(getenv,ATTACK_SECRET)", "$(eval,$(getenv,ATTACK_SECRET))"])
    yield Fault("reach", "references to drawings elsewhere", reference, cases=list(PLACES[:-1]))
    yield Fault("reach", "commands that read what never ends", command_reads,
                cases=[(command, place) for command in COMMANDS for place in ENDLESS])
    yield Fault("reach", "arguments that name what never ends", argument_reads,
                cases=[(arguments, place) for arguments in ARGUMENTS for place in ENDLESS])
    yield Fault("reach", "state files that name what never ends", state_lines,
                cases=[(name, place) for name in session_names() for place in ENDLESS[:4]])
    yield Fault("reach", "settings that are what never ends", settings_files,
                cases=[(place, name) for place in ENDLESS for name in OWN_FILES])
