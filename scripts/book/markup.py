"""Markdown made into the HTML that the help window, browsers and the printer of the book show alike."""

import html
import re
import struct

import markdown

from book.contents import TOP, BookError, slug

WIDEST = 640  # pixels that a picture takes at most in the help window
ROWS = {"functions": "function", "commands": "command", "variables": "variable"}
BAR = "\ue000"  # stands for a "|" within a cell


def to_html(page):
    """Fills in the page's HTML, its anchors and its keys. Links still lead where the document has them."""
    text = re.sub(r"\\\|", BAR, included(page.text))
    body = markdown.markdown(text, extensions=["tables", "fenced_code", "sane_lists"], output_format="html")
    body = with_row_anchors(body.replace(BAR, "|"), page)
    body = with_heading_anchors(body, page)
    page.html = finished(body)


def included(text):
    """With the files that comments name in place of them: <!-- include samples/sessions/x.session session -->"""
    def of(match):
        content = (TOP / match[1]).read_text(encoding="utf-8").strip("\n")
        return f"```{match[2]}\n{content}\n```"
    return re.sub(r"^<!-- include (\S+) (\w+) -->$", of, text, flags=re.M)


def anchor_of(kind, name):
    """The anchor of a row of the tables: names of functions have characters that anchors cannot have."""
    return kind + "-" + re.sub(r"[^a-z0-9]", lambda other: f"_{ord(other[0]):x}_", name.lower())


def with_row_anchors(body, page):
    """The rows of the generated tables are landing places, by the names in their first cells."""
    def of_table(match):
        kind = ROWS[match[1]]
        return re.sub(r"<tr>\n<td>(.*?)</td>", lambda row: of_row(kind, row), match[0])

    def of_row(kind, row):
        name = re.split(r"[\s)]", html.unescape(re.sub(r"<[^>]+>", "", row[1])).lstrip("("))[0]
        anchor = anchor_of(kind, name)
        page.anchors.append(anchor)
        page.keys[f"{kind} {name.lower()}"] = anchor
        return f'<tr>\n<td id="{anchor}">{row[1]}</td>'

    return re.sub(r"<!-- (functions|commands|variables) -->\n<table>.*?</table>", of_table, body, flags=re.S)


def with_heading_anchors(body, page):
    """Headings are anchors; a comment "<!-- help: KEY; KEY -->" in front of one lands at it, in front of the title on the
    page."""
    waiting, pieces, begin = [], [], 0
    for match in re.finditer(r"<!-- help: (.*?) -->\n?|<h([1-6])>(.*?)</h\2>", body, flags=re.S):
        pieces.append(body[begin:match.start()])
        begin = match.end()
        if match[1]:
            waiting += [key.strip().lower() for key in match[1].split(";")]
            continue
        anchor = unique(slug(html.unescape(re.sub(r"<[^>]+>", "", match[3]))), page.anchors)
        page.anchors.append(anchor)
        page.keys.update({key: "" if match[2] == "1" else anchor for key in waiting})
        waiting = []
        pieces.append(f'<h{match[2]} id="{anchor}">{match[3]}</h{match[2]}>')
    if waiting:
        raise BookError(f"{page.source}: no heading follows the help keys {waiting}")
    return "".join(pieces) + body[begin:]


def unique(anchor, taken):
    """As forges number headings of the same words."""
    number, found = 0, anchor
    while found in taken:
        number += 1
        found = f"{anchor}-{number}"
    return found


def finished(body):
    """Tables as the help window draws them; no comments."""
    body = re.sub(r"<!--.*?-->\n?", "", body, flags=re.S)
    return body.replace("<table>", '<table border="1" cellspacing="0" cellpadding="4">')


def picture_size(path):
    """Width and height of a PNG, in pixels."""
    with open(path, "rb") as file:
        head = file.read(24)
    if head[:8] != b"\x89PNG\r\n\x1a\n":
        raise BookError(f"{path} is no PNG")
    return struct.unpack(">II", head[16:24])


def picture_tag(name, path, alt, has_dark):
    """A picture that is shown no wider than the help window is, in dark surroundings its dark twin."""
    width = min(WIDEST, picture_size(path)[0])
    tag = f'<img src="pictures/{name}" alt="{alt}" width="{width}">'
    if not has_dark:
        return tag
    dark = name.replace(".png", "-dark.png")
    return f'<picture><source srcset="pictures/{dark}" media="(prefers-color-scheme: dark)">{tag}</picture>'
