"""What the book consists of: docs/manual/contents.txt names its documents, in their order.

    = Tools                      a part of the book
    tools/breakline.md           a document, relative to docs/manual
    ../lisp.md split             each of its sections with two # is a page of its own
    ?../cli.md                   a document that is made by a build and may not be there
"""

import re
from dataclasses import dataclass, field
from pathlib import Path

TOP = Path(__file__).resolve().parent.parent.parent
BOOK = TOP / "docs/manual"


@dataclass
class Page:
    """A page of the book; `text` is Markdown, whose first line with a # gives the title."""

    source: Path
    name: str  # of the file, without ".html"
    title: str
    part: str
    text: str
    parent: str = ""  # name of the page that this was split off
    html: str = ""
    anchors: list = field(default_factory=list)  # of headings and rows, in their order
    keys: dict = field(default_factory=dict)  # what F1 asks for -> anchor, "" for the page


class BookError(Exception):
    """The book cannot be made of its documents."""


def title_of(text, source):
    match = re.search(r"^# (.+)$", text, re.M)
    if not match:
        raise BookError(f"{source}: there is no title (a line with one #)")
    return match[1].strip()


def split(page):
    """The page up to its first section, then each section."""
    pieces = re.split(r"^(?=## )", page.text, flags=re.M)
    yield Page(page.source, page.name, page.title, page.part, pieces[0])
    for piece in pieces[1:]:
        title = piece.splitlines()[0].removeprefix("##").strip()
        name = f"{page.name}.{slug(title)}"
        yield Page(page.source, name, title, page.part, piece.removeprefix("#"), parent=page.name)


def slug(title):
    """The anchor of a heading, as forges make it."""
    return re.sub(r"[^\w\- ]", "", re.sub(r"[`*]", "", title).lower()).replace(" ", "-")


def read_pages(book=BOOK):
    """All pages in their order."""
    pages, part = [], ""
    for line in (book / "contents.txt").read_text(encoding="utf-8").splitlines():
        if line.startswith("="):
            part = line.lstrip("= ")
        elif line and not line.startswith("#"):
            pages += pages_of(book, part, *line.split())
    names = [page.name for page in pages]
    for name in set(names):
        if names.count(name) > 1:
            raise BookError(f"two documents would be {name}.html")
    return pages


def pages_of(book, part, path, how=""):
    source = (book / path.lstrip("?")).resolve()
    if path.startswith("?") and not source.is_file():
        return []
    if not source.is_file():
        raise BookError(f"contents.txt: there is no {path}")
    text = source.read_text(encoding="utf-8")
    page = Page(source, source.stem, title_of(text, path), part, text)
    return list(split(page)) if how == "split" else [page]
