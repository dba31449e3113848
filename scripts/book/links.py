"""Where links and pictures of the documents lead in the book, and which lead nowhere."""

import html
import re
from dataclasses import dataclass, field
from pathlib import Path
from urllib.parse import unquote

from book.contents import TOP
from book.markup import picture_tag


@dataclass
class Links:
    """The pages of the book as places to lead to."""

    pages: list
    complaints: list = field(default_factory=list)
    pictures: dict = field(default_factory=dict)  # name in the book -> file

    def __post_init__(self):
        self.places = {}  # (document, anchor) -> address in the book
        self.titles = {}  # of documents
        for page in self.pages:
            self.places.setdefault((page.source, ""), f"{page.name}.html")
            self.titles.setdefault(page.source, page.title)
            for anchor in page.anchors:
                self.places.setdefault((page.source, anchor), f"{page.name}.html#{anchor}")

    def resolve(self, page):
        """Rewrites the page's links and pictures."""
        page.html = re.sub(r'<a href="([^"]*)">(.*?)</a>', lambda link: self.link(page, link), page.html, flags=re.S)
        page.html = re.sub(r'<img alt="([^"]*)" src="([^"]*)" ?/?>', lambda image: self.picture(page, image), page.html)

    def link(self, page, match):
        address, text = html.unescape(match[1]), match[2]
        if re.match(r"https?:|mailto:", address):
            return match[0]
        path, _, anchor = unquote(address).partition("#")
        target = (page.source.parent / path).resolve() if path else page.source
        place = self.places.get((target, anchor))
        if place:
            # Documents are called by their files where they are read as such.
            return f'<a href="{place}">{self.titles[target] if text.endswith(".md") else text}</a>'
        if (target, "") in self.places:
            self.complain(page, f"there is no #{anchor} in {target.name}")
        elif not target.exists():
            self.complain(page, f"there is no file {address}")
        elif anchor and target.suffix == ".md" and anchor not in anchors_of(target):
            self.complain(page, f"there is no #{anchor} in {target.name}")
        # What is in the sources alone is not in the book.
        return text

    def picture(self, page, match):
        path = (page.source.parent / unquote(html.unescape(match[2]))).resolve()
        if not path.is_file():
            self.complain(page, f"there is no picture {match[2]}")
            return match[0]
        if not match[1].strip():
            self.complain(page, f"the picture {match[2]} has no words")
        dark = path.with_name(path.stem + "-dark.png")
        for each in [path] + ([dark] if dark.is_file() else []):
            self.pictures[each.name] = each
        return picture_tag(path.name, path, match[1], dark.is_file())

    def complain(self, page, what):
        self.complaints.append(f"{shown(page.source)}: {what}")


def shown(path):
    return path.relative_to(TOP) if path.is_relative_to(TOP) else Path(path.name)


def anchors_of(document):
    from book.contents import slug
    return [slug(title) for title in re.findall(r"^#+ (.+)$", document.read_text(encoding="utf-8"), re.M)]
