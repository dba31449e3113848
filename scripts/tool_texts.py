"""Texts of the Lisp tools and their catalogues in tools/languages: which texts the code has, and what a catalogue makes
of them. For scripts/translate and scripts/check-translations."""

import re
from pathlib import Path

TOP = Path(__file__).resolve().parent.parent
TOOLS = TOP / "tools"

STRING = r'"((?:[^"\\]|\\.)*)"'
TOKEN = re.compile(r';\|.*?\|;|;[^\n]*|' + STRING + r"|(?P<open>'?\()|(?P<close>\))|(?P<word>[^\s()'\";]+)|'", re.S)
SENTENCE = re.compile(r"[A-Z].* .*[a-z.]\.")

# Which arguments of a function are texts, counted from 1, and what is made of them before they are looked up.
PLAIN = ["{}"]
ARGUMENTS = {
    "kora_text": {1: PLAIN},
    "kora_count": {2: PLAIN, 3: PLAIN},
    "kora_choose": {1: PLAIN},
    "kora_refuse": {1: PLAIN},
    "kora_alert_message": {1: PLAIN},
    "kora_done": {1: PLAIN},
    "kora_number_of": {2: ["1 {}", "%1 {}s"]},
    "kora_also": {2: [", %1{}"]},
    "kora_done_with": {2: ["{}", "%1 {}.", "could not be {}", " %1 could not be {}."]},
    "multiviewsetup:doomed": {2: PLAIN},
    "multiviewsetup:ask_units": {1: PLAIN},
    "importblockattributes:list_row": {1: PLAIN},
    "importblockattributes:list_texts": {3: PLAIN, 4: PLAIN},
    "dimstyleimport:leave": {2: PLAIN},
    "redefinepaths:list": {2: PLAIN},
    "kora_initget": {1: ["words"]},
}
# Behind these words a list says what became of an entity.
OUTCOMES = ("done", "skipped")


def parse(code):
    """Lists of lists; a string is a tuple with its text as it is written, a word is a str."""
    stack = [[]]
    for match in TOKEN.finditer(code):
        if match["open"]:
            stack.append([])
        elif match["close"]:
            done = stack.pop()
            stack[-1].append(done)
        elif match["word"]:
            stack[-1].append(match["word"])
        elif match[1] is not None:
            stack[-1].append((match[1],))
    return stack[0]


def strings_of(form):
    """What an argument may be: itself, or the ends of an (if)."""
    if isinstance(form, tuple):
        return [form[0]]
    if isinstance(form, list) and form and form[0] == "if":
        return [text for part in form[2:] for text in strings_of(part)]
    return []


def texts_in(form):
    if isinstance(form, tuple):
        return {form[0]} if SENTENCE.fullmatch(form[0]) else set()
    if not isinstance(form, list) or not form:
        return set()
    found = set()
    for place, ways in ARGUMENTS.get(form[0] if isinstance(form[0], str) else "", {}).items():
        for text in strings_of(form[place]) if place < len(form) else []:
            found |= set(text.split(" ")) if ways == ["words"] else {way.format(text) for way in ways}
    parts = form[1:] if form[0] == "list" else form
    if len(parts) > 1 and isinstance(parts[1], tuple):
        first = parts[0]
        is_outcome = isinstance(first, tuple) and first[0] in OUTCOMES
        is_reason = isinstance(first, list) and first[:1] == ["lambda"] or isinstance(first, str) and re.search(
            r":is_|^kora_is_", first) and len(parts) == 2
        if is_outcome or is_reason:
            found.add(parts[1][0])
    return found.union(*(texts_in(part) for part in form))


def menu_texts(code):
    """The caption, the tip and the subject of the lines that the menus are made from."""
    found = set()
    for line in re.findall(r"^;+ *menu:(.*)$", code, re.M):
        parts = [part.strip() for part in line.split("|")]
        found |= {part.replace('"', '\\"') for part in (parts[0], *parts[2:]) if part}
    return found


def texts_of_tools():
    """All texts of the tools, as Lisp writes them."""
    found = {"of another kind"}
    for path in [*TOOLS.glob("*.lsp"), *(TOOLS / "support").glob("*.lsp")]:
        code = path.read_text(encoding="utf-8")
        found |= texts_in(parse(code)) | menu_texts(code)
    return {text for text in found if re.search("[A-Za-z]{2}", re.sub(r"%\d", "", text))}


def catalogue_file(language):
    return TOOLS / "languages" / f"{language}.lsp"


def read_catalogue(path):
    """Text -> its translation, empty where there is none yet."""
    if not path.is_file():
        return {}
    return {text: local or "" for text, local in
            re.findall(r"^ *\(" + STRING + r"(?: \. " + STRING + r")?\)$", path.read_text(encoding="utf-8"), re.M)}


def write_catalogue(path, texts, language):
    """Writes the texts in alphabetical order; what is not translated stands alone."""
    lines = [f';;; Texts of the tools, English and in the language "{language}". Kept by scripts/translate: a text without a',
             ";;; translation stands alone in its line. docs/languages.md says how they are written.", "'("]
    for text in sorted(texts, key=lambda each: (each.lower(), each)):
        lines.append(f'("{text}" . "{texts[text]}")' if texts[text] else f'("{text}")')
    path.parent.mkdir(exist_ok=True)
    path.write_text("\n".join([*lines, ")"]) + "\n", encoding="utf-8")
