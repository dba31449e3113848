"""Damaged drawings through every way out of the program."""

import collections
import functools
import subprocess
import xml.etree.ElementTree as ElementTree

from attacks.bench import FALSE, LOST, SAMPLES, Attempt, Bad, Fault
from attacks.mutations import MUTATIONS

LARGEST_SOURCE = 250_000

# Entities of many kinds, made by another program where Debian's ezdxf is installed.
OTHER_PROGRAM = """
import sys, ezdxf
for version in ('R12', 'R2000', 'R2004', 'R2007', 'R2010', 'R2018'):
    drawing = ezdxf.new(version, setup=True)
    space = drawing.modelspace()
    inner, outer = drawing.blocks.new('INNER'), drawing.blocks.new('OUTER')
    inner.add_circle((0, 0), 1)
    inner.add_attdef('TAG', (0, 0), text='value')
    outer.add_blockref('INNER', (2, 2), dxfattribs={'rotation': 30, 'xscale': -1})
    rows = {'row_count': 3, 'column_count': 2, 'row_spacing': 4, 'column_spacing': 4}
    space.add_blockref('OUTER', (5, 5), dxfattribs=rows)
    space.add_blockref('INNER', (9, 9)).add_attrib('TAG', 'seen')
    space.add_line((0, 0), (10, 5), dxfattribs={'linetype': 'DASHED'})
    space.add_arc((3, 3), 2, 10, 200)
    space.add_text('Gr\\u00f6\\u00dfe %%c20')
    space.add_polyline2d([(0, 0), (1, 1, 0, 0, 0.5), (2, 0)])
    if version != 'R12':
        space.add_mtext('{\\\\H2x;high} \\\\S1/2; \\\\P next {\\\\C1;red}', dxfattribs={'char_height': 0.5, 'width': 4})
        space.add_lwpolyline([(0, 0, 0.1, 0.2, 0.3), (4, 0), (4, 4)], close=True)
        space.add_spline([(0, 0), (1, 3), (4, 2), (6, 6)])
        space.add_ellipse((1, 1), (3, 1), 0.4)
        hatch = space.add_hatch(color=2)
        hatch.set_pattern_fill('ANSI31', scale=0.3)
        hatch.paths.add_polyline_path([(0, 0), (6, 0), (6, 6), (0, 6)])
        space.add_image(drawing.add_image_def('picture.png', (64, 64)), (0, 0), (2, 2))
        space.add_wipeout([(0, 0), (1, 1)])
        space.add_mesh().dxf.layer = '0'
        space.add_leader([(0, 0), (2, 2), (4, 2)])
        drawing.layout('Layout1').add_viewport((100, 100), (180, 180), (3, 3), 20)
        drawing.groups.new('GROUP').extend(list(space)[:3])
    space.add_linear_dim((0, -2), (0, 0), (5, 0)).render()
    drawing.saveas(f'{sys.argv[1]}/other-{version}.dxf')
"""

# A few changes by the program itself.
OWN_PROGRAM = """
(command "_.LINE" "0,0" "5,5" "9,2" "") (command "_.CIRCLE" "3,3" 2)
(command "_.-LAYER" "_Make" "Damage" "_Color" 3 "" "") (command "_.TEXT" "1,1" 0.5 0 "made here")
(entmake '((0 . "MTEXT") (100 . "AcDbEntity") (100 . "AcDbMText")
           (10 1.0 2.0 0.0) (40 . 0.5) (1 . "{\\\\C1;red} text")))
(command "_.QSAVE")
"""


@functools.cache
def made_drawings(bench):
    """What other programs and this one make anew, by name."""
    folder = bench.folder / "made"
    folder.mkdir()
    subprocess.run(["/usr/bin/python3", "-c", OTHER_PROGRAM, str(folder)], capture_output=True, check=False)
    own = folder / "own.dxf"
    own.write_bytes((SAMPLES / "details.dxf").read_bytes())
    Attempt(bench, Fault("drawings", "made", None, cases=[0]), 0, "made-here").lisp(OWN_PROGRAM, own)
    return sorted(folder.glob("*.dxf"))


@functools.cache
def sources(bench):
    corpus = sorted(bench.corpus.glob("*.dxf")) if bench.corpus else []
    paths = [*sorted(SAMPLES.glob("*.dxf")), *sorted(SAMPLES.glob("*/*.dxf")), *made_drawings(bench), *corpus]
    return [path.read_bytes() for path in paths if path.stat().st_size <= LARGEST_SOURCE]


def convert(attempt, source, target):
    """Converts; a file and success, or no file and a message. Gives whether there is a file."""
    ended = attempt.run("convert", source, target, seconds=30, memory=1500)
    if ended.status == 0 and not target.exists():
        raise Bad(FALSE, f"success without {target.name}; {ended.brief()}")
    if ended.status != 0 and target.exists():
        raise Bad(FALSE, f"failure, yet there is {target.name}; {ended.brief()}")
    if ended.status != 0 and not ended.errors.strip():
        raise Bad(FALSE, f"failure without a word for {target.name}; {ended.brief()}")
    return ended.status == 0


def check_picture(path):
    content = path.read_bytes()
    if path.suffix == ".png" and not (content.startswith(b"\x89PNG") and content.endswith(b"IEND\xaeB`\x82")):
        raise Bad(FALSE, "success with a picture that is not whole")
    if path.suffix == ".svg":
        try:
            ElementTree.fromstring(content)
        except ElementTree.ParseError as error:
            raise Bad(FALSE, f"success with a picture that is not well-formed: {error}") from error


def check_edited(attempt, source):
    """A line drawn in it and saved: it opens again, and no tag is gone but those that count handles."""
    edited = attempt.work / "edited.dxf"
    edited.write_bytes(source.read_bytes())
    ended = attempt.lisp('(command "_.LINE" "0,0" "1,1" "") (command "_.QSAVE")', edited, seconds=30, memory=1500)
    before, after = source.read_bytes(), edited.read_bytes()
    if before == after:
        if not ended.is_told:
            raise Bad(FALSE, f"nothing was saved and nothing was said; {ended.brief()}")
        return
    again = attempt.run("convert", edited, attempt.out / "again.dxf", seconds=30, memory=1500)
    if again.status != 0:
        raise Bad(LOST, f"what was saved does not open: {again.brief()}; the save said: {ended.brief()}")
    gone = collections.Counter(before.splitlines()) - collections.Counter(after.splitlines())
    if gone.total() > 6:
        raise Bad(LOST, f"{gone.total()} lines are gone after a save: {list(gone)[:5]}")


def attack_with(mutate, attempt):
    source = attempt.work / "damaged.dxf"
    damaged = mutate(attempt.random, attempt.random.choice(sources(attempt.bench)))
    source.write_bytes(damaged)
    is_accepted = convert(attempt, source, attempt.out / "copy.dxf")
    if is_accepted and (attempt.out / "copy.dxf").read_bytes() != damaged:
        raise Bad(LOST, "an unchanged drawing is not what it was")
    for name in ("picture.png", "picture.svg"):
        if convert(attempt, source, attempt.out / name):
            check_picture(attempt.out / name)
    if is_accepted:
        check_edited(attempt, source)
    if source.read_bytes() != damaged:
        raise Bad(LOST, "the source of a conversion was changed")


def faults(bench):
    for name, mutate in MUTATIONS.items():
        yield Fault("drawings", name, functools.partial(attack_with, mutate), tries=40)
