"""The book from its documents to finished pages."""

from book import forms
from book.contents import BOOK, read_pages
from book.links import Links
from book.markup import to_html


def made_book(folder=BOOK):
    """The pages with their HTML, and what is wrong with them."""
    pages = read_pages(folder)
    for page in pages:
        to_html(page)
    book = Links(pages)
    for page in pages:
        book.resolve(page)
        book.complaints += forms.complaints(page)
    return book
