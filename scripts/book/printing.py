"""The book as one document for the printer: a title, contents with page numbers, the pages as chapters."""

import html
import os
import re

from book.contents import BOOK
from book.output import plain


def printed_html(pages, version):
    """All pages in one, with links that lead within it."""
    pieces = ['<!DOCTYPE html><html lang="en"><head><meta charset="utf-8"><title>Ortakit</title>',
              f"<style>{(BOOK / 'style.css').read_text(encoding='utf-8')}</style></head><body class=\"printed\">",
              f'<div class="title"><h1>Ortakit</h1><p>The manual, version {html.escape(version)}</p></div>',
              table_of_contents(pages)]
    part = None
    for page in pages:
        if page.part != part:
            part = page.part
            pieces.append(f'<h1 class="part">{part}</h1>')
        pieces.append(f'<section id="{page.name}">{within_one(page)}</section>')
    return "\n".join(pieces) + "</body></html>"


def table_of_contents(pages):
    rows, part = [], None
    for page in pages:
        if page.part != part:
            part = page.part
            rows.append(f'<li class="part">{part}</li>')
        rows.append(f'<li><a href="#{page.name}">{html.escape(plain(page.title))}</a></li>')
    return f'<ul class="contents">{"".join(rows)}</ul>'


def within_one(page):
    """Names of anchors are unique on a page alone: each gets its page's name in front."""
    body = re.sub(r'\bid="([^"]*)"', rf'id="{page.name}--\1"', page.html)
    body = re.sub(r'href="([\w.-]+)\.html#([^"]*)"', r'href="#\1--\2"', body)
    return re.sub(r'href="([\w.-]+)\.html"', r'href="#\1"', body)


def write_pdf(book, folder, version, path):
    """Prints the book whose pages and pictures are in `folder`."""
    # Fonts are cut down with a time in them otherwise: the same sources give the same bytes.
    os.environ.setdefault("SOURCE_DATE_EPOCH", "0")
    from weasyprint import HTML
    HTML(string=printed_html(book.pages, version), base_url=str(folder) + "/").write_pdf(str(path))
