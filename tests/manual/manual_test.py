#!/usr/bin/python3
"""The manual: what the program asks for has a page, what pages lead to is there, what they show works, and the scripts that
make it find what is wrong.

    manual_test.py --program PROGRAM [unittest's options]"""

import html
import os
import re
import shutil
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

sys.dont_write_bytecode = True
TOP = Path(__file__).resolve().parent.parent.parent
sys.path.insert(0, str(TOP / "scripts"))

from book import forms, output  # noqa: E402
from book.contents import BookError, read_pages  # noqa: E402
from book.examples import examples_of, lisp_checks  # noqa: E402
from book.making import made_book  # noqa: E402

PROGRAM = ""


def run(*arguments, folder=None, status=0):
    environment = dict(os.environ, QT_QPA_PLATFORM="offscreen", LC_ALL="C.UTF-8")
    result = subprocess.run([PROGRAM, *map(str, arguments)], cwd=folder, env=environment, text=True, capture_output=True,
                            timeout=60, check=False)
    if result.returncode != status:
        raise AssertionError(f"{arguments}: {result.returncode}\n{result.stdout}{result.stderr}")
    return result.stdout


class TheBook(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.book = made_book()
        cls.folder = tempfile.TemporaryDirectory()
        cls.addClassCleanup(cls.folder.cleanup)
        output.write_book(cls.book, Path(cls.folder.name) / "help")
        cls.pages = {path.name: path.read_text(encoding="utf-8")
                     for path in Path(cls.folder.name, "help").glob("*.html")}
        cls.topics = output.topics(cls.book.pages)

    def place_of(self, key):
        """The page of a key, after a look that its anchor is there."""
        address = self.topics.get(key.lower())
        self.assertIsNotNone(address, key)
        page, _, anchor = address.partition("#")
        if anchor:
            self.assertIn(f'id="{anchor}"', self.pages[page], key)
        return page

    def test_nothing_is_wrong_with_it(self):
        self.assertEqual(self.book.complaints, [])
        self.assertGreater(len(self.book.pages), 45)

    def test_links_and_pictures_are_there(self):
        for name, page in self.pages.items():
            for link in re.findall(r'href="([^"]+)"', page):
                file, _, anchor = html.unescape(link).partition("#")
                if not re.match(r"https?:|style\.css", link):
                    self.assertIn(file, self.pages, name)
                    self.assertTrue(not anchor or f'id="{anchor}"' in self.pages[file], f"{name}: {link}")
            for picture in re.findall(r'(?:src|srcset)="([^"]+)"', page):
                self.assertTrue(Path(self.folder.name, "help", picture).is_file(), f"{name}: {picture}")

    def test_all_pictures_are_used(self):
        texts = "".join(path.read_text(encoding="utf-8") for path in [*TOP.glob("*.md"), *TOP.glob("docs/**/*.md")])
        for picture in TOP.glob("docs/pictures/*.png"):
            self.assertIn(picture.name.replace("-dark.png", ".png"), texts)

    def test_all_that_the_program_names_has_a_place(self):
        for line in run("names").splitlines():
            kind, name = line.split("\t")[:2]
            self.place_of(f"{kind} {name}")

    def test_tools_have_a_page_each(self):
        pages = {}
        for tool in TOP.glob("tools/*.lsp"):
            for command in re.findall(r"^;;; menu: [^|]+\| (\w+)", tool.read_text(encoding="utf-8"), re.M):
                pages[command] = self.place_of(f"command {command}")
        self.assertGreater(len(pages), 25)
        self.assertEqual({command for command, page in pages.items() if page != f"{command.lower()}.html"}, {"LISPDUMP"})

    def test_dialogs_have_the_page_that_tells_their_fields(self):
        numbers = dict(re.findall(r'QLatin1String\("(\w+)"\), (\d+)',
                                  (TOP / "state/host/HelpTopicMap.cpp").read_text(encoding="utf-8")))
        told = {}
        for page in self.book.pages:
            for form in re.findall(r"<!-- form: (\S+) -->", page.text):
                told.setdefault(form, set()).add(f"{page.name}.html")
        self.assertEqual(set(told), {str(path.relative_to(TOP)) for path in TOP.glob("dialogs/*/*.ui")})
        for form, pages in told.items():
            source = (TOP / form).with_suffix(".cpp").read_text(encoding="utf-8")
            for name in set(re.findall(r'(?:QStringLiteral|QLatin1String)\("(\w+)"\)', source)) & set(numbers):
                key = f"dialog {Path(form).stem}".lower()
                self.assertIn(self.place_of(key if key in self.topics else numbers[name]), pages, form)

    def test_parts_of_the_window_have_a_place(self):
        names = {"startPage", "settingsWindow", "printDialog", "palette", "canvas", "menus"}
        for source in TOP.glob("host/app/window/**/*.cpp"):
            names |= set(re.findall(r'"(\w+(?:Panel|Dock))"', source.read_text(encoding="utf-8")))
        # An empty command line is about nothing: F1 shows the contents.
        for name in sorted(names - {"commandDock"}):
            self.place_of(f"window {name}")

    def test_examples_do_what_they_say(self):
        with tempfile.TemporaryDirectory() as folder:
            # Other tests open the samples where they are, and their locks come and go.
            shutil.copytree(TOP / "samples", Path(folder) / "samples", ignore=shutil.ignore_patterns(".*.lock"))
            for each in self.book.pages:
                if each.source.is_relative_to(TOP / "docs/manual"):
                    for example in examples_of(each):
                        with self.subTest(page=each.name, example=example.text[:60]):
                            self.play(example, Path(folder))

    def play(self, example, folder):
        if example.kind == "lisp":
            (folder / "example.lsp").write_text(lisp_checks(example.text), encoding="utf-8")
            self.assertEqual(run("lisp", folder / "example.lsp", "--drawing", folder / "samples/plan.dxf").strip(), "")
        elif example.kind == "session":
            (folder / "samples/example.session").write_text(example.text, encoding="utf-8")
            run("run", folder / "samples/example.session", "--out", folder / "out", "--home", folder / "home")
        elif example.kind == "sh":
            for line in example.text.splitlines():
                self.assertRegex(line, r"^ortakit ")
                run(*line.split("#")[0].split()[1:], "--home", folder / "home", folder=folder)


class WhatIsWrong(unittest.TestCase):
    """Books with a fault each."""

    def book(self, **documents):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        path = Path(folder.name)
        names = " ".join(documents)
        (path / "contents.txt").write_text("= Part\n" + "".join(f"{name}.md\n" for name in documents), encoding="utf-8")
        for name, text in documents.items():
            (path / f"{name}.md").write_text(text, encoding="utf-8")
        self.assertTrue(names)
        return path

    def test_is_told(self):
        for text, told in [
                ("[x](b.md)", "there is no file b.md"),
                ("[x](#nowhere)", "there is no #nowhere in a.md"),
                ("![](none.png)", "there is no picture none.png"),
                (f"![]({TOP}/docs/pictures/breakline.png)", "has no words"),
                ("[x](#title) [y](#part-two)\n\n## Part two", ""),
        ]:
            complaints = made_book(self.book(a=f"# Title\n\n{text}\n")).complaints
            self.assertEqual([told in each for each in complaints], [True] if told else [], text)

    def test_is_refused(self):
        for documents in [{"a": "no title"}, {"a": "# A\n\n<!-- help: 1 -->\n\nno heading behind"}]:
            with self.assertRaises(BookError):
                made_book(self.book(**documents))
        path = self.book(a="# A")
        (path / "contents.txt").write_text("?none.md\na.md\n", encoding="utf-8")
        self.assertEqual([page.name for page in read_pages(path)], ["a"])
        (path / "contents.txt").write_text("none.md\n", encoding="utf-8")
        with self.assertRaises(BookError):
            read_pages(path)
        (path / "contents.txt").write_text("a.md\na.md\n", encoding="utf-8")
        with self.assertRaises(BookError):
            read_pages(path)

    def test_fields_and_messages_of_tools_are_compared(self):
        form = "dialogs/textmask/Dlg_QT_TextMask.ui"
        fields = "".join(f"**{label}** " for label in forms.labels(form))
        said = " ".join(forms.messages(form)) + " Select texts to mask"
        for text, told in [
                (fields + said, []),
                (fields.replace("**Solid** ", "") + said, ['the field "Solid"']),
                (fields + said + "\n\n| field | x |\n|---|---|\n| **Offsets** | y |\n", ['there is no "Offsets"']),
                (fields + said.replace("to mask", ""), ['"Select texts to mask"']),
                (fields + said.replace("Wrong", "Odd"), ['the message "Wrong dimension value."']),
        ]:
            path = self.book(a=f"# A\n<!-- form: {form} -->\n<!-- program: tools/textmask.lsp -->\n\n{text}\n")
            complaints = made_book(path).complaints
            self.assertEqual(len(complaints), len(told), complaints)
            for what, complaint in zip(told, complaints):
                self.assertIn(what, complaint)

    def test_headings_and_rows_are_places(self):
        text = ("# A\n\n<!-- help: window X; 17 -->\n## Two words\n\n## Two words\n\n<!-- commands -->\n| a | b |\n|---|---|\n"
                "| *LINE | c\\|d |\n<!-- end -->\n")
        page = made_book(self.book(a=text)).pages[0]
        self.assertEqual(page.keys, {"window x": "two-words", "17": "two-words", "command *line": "command-_2a_line"})
        self.assertIn('<h2 id="two-words-1">', page.html)
        self.assertIn("<td>c|d</td>", page.html)
        self.assertEqual(list(output.sections(page))[-1], ("a.html#command-_2a_line", "A", "*LINE", "c|d"))

    def test_links_to_documents_say_their_titles(self):
        page = made_book(self.book(a="# A\n\n[b.md](b.md#more), [this](b.md)\n", b="# The other\n\n## More\n")).pages[0]
        self.assertIn('<a href="b.html#more">The other</a>, <a href="b.html">this</a>', page.html)

    def test_examples_are_marked(self):
        page = made_book(self.book(a="# A\n\n```sh\nrm x\n```\n")).pages[0]
        with self.assertRaises(BookError):
            examples_of(page)

    def test_examples_that_are_wrong_are_told(self):
        with tempfile.TemporaryDirectory() as folder:
            program = Path(folder, "x.lsp")
            for text, told in [("(+ 1 1) ; => 2\n", ""), ("(setq a 1)\n(+ a 1) ; => 3\n", "3 is wrong: 2"),
                               ('(strcat "a" "b") ; => "ab"\n', "")]:
                program.write_text(lisp_checks(text), encoding="utf-8")
                self.assertEqual(run("lisp", program, "--home", folder).strip(), told)


if __name__ == "__main__":
    PROGRAM = os.path.abspath(sys.argv.pop(sys.argv.index("--program") + 1))
    sys.argv.remove("--program")
    unittest.main(verbosity=0)
