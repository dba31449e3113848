"""The book as a folder of pages, with the tables that the help window finds its way by.

contents.tsv   depth, address, title: the tree of contents
topics.tsv     key, address: what F1 asks for, "9101", "command line", "function car", "variable osmode", "window layers"
search.tsv     address, title of the page, heading, text: a line a section, and one a row of the reference
"""

import html
import re
import shutil

from book.contents import BOOK

PAGE = """<!DOCTYPE html>
<html lang="en">
<head>
<meta charset="utf-8">
<meta name="viewport" content="width=device-width">
<title>{title}</title>
<link rel="stylesheet" href="style.css">
</head>
<body>
{around}
{body}
{around}
</body>
</html>
"""


def write_book(book, folder):
    """Writes all files of the book; what else the folder holds goes."""
    if folder.is_symlink():
        folder.unlink()
    elif folder.is_dir():
        shutil.rmtree(folder)
    (folder / "pictures").mkdir(parents=True)
    shutil.copy(BOOK / "style.css", folder)
    for name, path in book.pictures.items():
        shutil.copy(path, folder / "pictures" / name)
    for number, page in enumerate(book.pages):
        write_page(folder, page.name, page.title, page.html, around(book.pages, number))
    write_page(folder, "index", "Ortakit", contents_html(book.pages), around_of([]))
    write_page(folder, "keywords", "Index", keywords_html(book.pages), around_of([("index", "Contents")]))
    write_table(folder / "contents.tsv", contents_rows(book.pages))
    write_table(folder / "topics.tsv", sorted(topics(book.pages).items()))
    write_table(folder / "search.tsv", [row for page in book.pages for row in sections(page)])


def write_page(folder, name, title, body, line):
    text = PAGE.format(title=html.escape(plain(title)), body=body, around=line)
    (folder / f"{name}.html").write_text(text, encoding="utf-8")


def write_table(path, rows):
    lines = ("\t".join(re.sub(r"\s+", " ", str(cell)) for cell in row) for row in rows)
    path.write_text("".join(line + "\n" for line in lines), encoding="utf-8")


def plain(text):
    """Of a heading in Markdown or a piece of HTML, its words."""
    return html.unescape(re.sub(r"<[^>]+>", "", text)).replace("`", "")


def around(pages, number):
    """The line above and below a page that leads to its neighbours."""
    places = [("index", "Contents"), ("keywords", "Index")]
    if number > 0:
        places.append((pages[number - 1].name, f"Before: {plain(pages[number - 1].title)}"))
    if number + 1 < len(pages):
        places.append((pages[number + 1].name, f"Next: {plain(pages[number + 1].title)}"))
    return around_of(places)


def around_of(places):
    links = (f'<a href="{name}.html">{html.escape(text)}</a>' for name, text in places)
    return f'<p class="around">{" | ".join(links)}</p>' if places else ""


def summary(page):
    """The first sentence of a page."""
    first = re.search(r"<p>(.*?)</p>", page.html, flags=re.S)
    return re.split(r"(?<=[.!?])\s", re.sub(r"</?a[^>]*>", "", first[1]).strip())[0] if first else ""


def contents_html(pages):
    pieces, part = ["<h1>Ortakit</h1>\n<p>Drafting tools for CAD drawings, and a workbench that they run in.</p>"], None
    for page in pages:
        if page.part != part:
            pieces.append(("</ul>\n" if part is not None else "") + f"<h2>{page.part}</h2>\n<ul>")
            part = page.part
        what = f": {summary(page)}" if summary(page) and not page.parent else ""
        pieces.append(f'<li><a href="{page.name}.html">{html.escape(plain(page.title))}</a>{what}</li>')
    return "\n".join(pieces) + '</ul>\n<p><a href="keywords.html">Index</a></p>'


def contents_rows(pages):
    part = None
    yield 0, "index.html", "Contents"
    for page in pages:
        if page.part != part:
            part = page.part
            yield 0, "", part
        yield (2 if page.parent else 1), f"{page.name}.html", plain(page.title)
    yield 0, "keywords.html", "Index"


def topics(pages):
    """What F1 asks for -> where that is. What two pages claim is the first one's."""
    found = {}
    for page in pages:
        for key, anchor in page.keys.items():
            found.setdefault(key, f"{page.name}.html" + (f"#{anchor}" if anchor else ""))
    return found


def keywords_html(pages):
    """All headings and all rows of the reference, in alphabetical order."""
    entries = {(plain(page.title), page.name + ".html") for page in pages}
    for page in pages:
        for anchor, title in re.findall(r'<h[23] id="([^"]+)">(.*?)</h', page.html):
            entries.add((f"{plain(title)} ({plain(page.title)})", f"{page.name}.html#{anchor}"))
    for key, place in topics(pages).items():
        kind, _, name = key.partition(" ")
        if kind in ("command", "variable", "function"):
            entries.add((f"{name if kind == 'function' else name.upper()} ({kind})", place))
    letters = {}
    for text, place in sorted(entries, key=lambda entry: (entry[0].lower(), entry[1])):
        letter = text[0].upper() if text[0].isalpha() else "Signs"
        letters.setdefault(letter, []).append(f'<a href="{place}">{html.escape(text)}</a>')
    blocks = (f"<h2>{letter}</h2>\n<p>{'<br>'.join(links)}</p>" for letter, links in letters.items())
    return "<h1>Index</h1>\n" + "\n".join(blocks)


def sections(page):
    """The rows of the search table."""
    title = plain(page.title)
    pieces = re.split(r'<h[1-4] id="([^"]*)">(.*?)</h[1-4]>', page.html)
    for anchor, heading, body in zip(pieces[1::3], pieces[2::3], pieces[3::3]):
        rows = re.split(r'<td id="([^"]*)">(.*?)</td>', body)
        address = f"{page.name}.html#{anchor}"
        yield address, title, plain(heading), words(rows[0])
        for row, name, rest in zip(rows[1::3], rows[2::3], rows[3::3]):
            yield f"{page.name}.html#{row}", title, plain(name), words(rest)


def words(body):
    return " ".join(plain(re.sub(r"<(br|p|li|td|th|pre|h\d)\b", r" <\1", body)).split())
