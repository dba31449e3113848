"""The examples of the manual's own chapters: blocks of Lisp, of sessions and of commands for a shell.

    ```lisp                a form, and behind it what it gives:  (+ 1 2) ; => 3
    ```session             a recorded session over plan.dxf
    <!-- played -->        in front of a block of sh: each of its lines runs ortakit
    <!-- not played: WHY -->   in front of a block that cannot be tried
"""

import re
from dataclasses import dataclass

from book.contents import BookError

BLOCK = re.compile(r"^(?:<!-- (played|not played: [^>]+) -->\n)?```(\w+)\n(.*?)^```$", re.M | re.S)


@dataclass
class Example:
    kind: str
    text: str


def examples_of(page):
    """Those that are to be played, the Lisp of a page as one program. Files that a page includes are played where they
    are."""
    found, lisp = [], ""
    for mark, kind, text in BLOCK.findall(page.text):
        if mark.startswith("not") or kind not in ("lisp", "session", "sh"):
            continue
        if kind == "sh" and not mark:
            raise BookError(f"{page.source}: this example is not said to be played, or why not: {text.strip()[:60]}")
        if kind == "lisp":
            lisp += text
        else:
            found.append(Example(kind, text))
    return found + ([Example("lisp", lisp)] if lisp else [])


def lisp_checks(text):
    """A program that prints what does not give what the example says."""
    lines = []
    for form, wanted in re.findall(r"(.*?); => ([^\n]*)\n", text, re.S):
        wanted = wanted.replace("\\", "\\\\").replace('"', '\\"')
        lines.append(f'((lambda (got) (if (/= got "{wanted}") (princ (strcat "\\n{wanted} is wrong: " got))))'
                     f" (vl-prin1-to-string (progn {form})))")
    return "\n".join(lines) + "\n(princ)\n"
