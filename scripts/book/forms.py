"""What the pages of the tools must say: every labelled part of the tool's form, every prompt and message of its program.

A page names them in comments:

    <!-- form: dialogs/breakline/Dlg_QT_Breakline.ui -->      no field of it is missing, and none is told that it lacks
    <!-- program: tools/breakline.lsp -->                      all its prompts and messages are told
"""

import re
import xml.etree.ElementTree as ElementTree

from book.contents import TOP

# On every dialog; told once, in the chapter about dialogs.
COMMON = {"ok", "cancel", "close", "help"}
LABELLED = {"QLabel", "QCheckBox", "QRadioButton", "QPushButton", "QToolButton", "QGroupBox"}


def plain_label(text):
    return re.sub(r"\s+", " ", text.replace("&", "")).strip().strip(":.").strip()


def labels(form):
    """What stands on the parts of a form that a person sees, in its order."""
    found = []
    for widget in ElementTree.parse(TOP / form).iter("widget"):
        if widget.get("class") not in LABELLED:
            continue
        for each in widget.findall("property"):
            if each.get("name") in ("text", "title") and each.find("string") is not None:
                label = plain_label(each.find("string").text or "")
                if len(label) > 1 and label.lower() not in COMMON and label not in found:
                    found.append(label)
    return found


def texts_of_dialog(form):
    """All texts that the dialog of a form may show: those of the form, its sources, and what tools share."""
    texts = {plain_label(string.text or "") for string in ElementTree.parse(TOP / form).iter("string")}
    for source in [*(TOP / form).parent.glob("*.cpp"), *(TOP / "state").glob("**/*.cpp")]:
        for literal in re.findall(r'"((?:[^"\\]|\\.)*)"', source.read_text(encoding="utf-8")):
            texts.add(plain_label(literal))
    return {text.lower() for text in texts}


def messages(form):
    """What the dialog of a form says in sentences, without what stands for a value."""
    own = (TOP / form).with_suffix(".cpp")
    others = {path.with_suffix(".cpp") for path in own.parent.glob("*.ui")} - {own}
    found = []
    for source in sorted(set(own.parent.glob("*.cpp")) - others):
        for call in re.findall(r'\b(?:tr|QT_TR_NOOP)\(\s*((?:"(?:[^"\\]|\\.)*"\s*)+)', source.read_text(encoding="utf-8")):
            text = "".join(re.findall(r'"((?:[^"\\]|\\.)*)"', call)).replace('\\"', '"').strip()
            if re.match(r"[A-Z%].* .*[.?!]$", text) and not text.endswith("..."):
                found.append(text)
    return found


def bold(text):
    """What a page has in bold, as labels are compared."""
    return [plain_label(each) for each in re.findall(r"\*\*(.+?)\*\*", text, flags=re.S)]


def program_texts(path):
    """Prompts and sentences of a Lisp program, as a page has them."""
    found = []
    for literal in re.findall(r'"((?:[^"\\]|\\.)*)"', (TOP / path).read_text(encoding="utf-8")):
        text = literal.replace("\\n", " ").replace('\\"', '"').strip()
        is_prompt = re.match(r"[A-Z].*(: ?| <)$", text) and len(text.split()) > 2
        is_sentence = re.match(r"[A-Z]\S* .*\.$", text)
        if is_prompt or is_sentence:
            found.append(re.sub(r"( \[.*)|( <)?$", "", text.rstrip(": ")).strip())
    return found


def is_told(text, everything):
    """Whether a page has a message, whatever stands for its values."""
    pieces = (piece.strip(" .,<>").lower() for piece in re.split(r"%\d", text))
    return all(piece in everything for piece in pieces)


def complaints(page):
    """What the page of a tool says too little or too much, a sentence each."""
    told = {each.lower() for each in bold(page.text)}
    everything = re.sub(r"[*`\\]", "", " ".join(page.text.split())).lower()
    for form in re.findall(r"<!-- form: (\S+) -->", page.text):
        known = texts_of_dialog(form)
        for label in labels(form):
            if label.lower() not in told:
                yield f"{page.source.name}: the field \"{label}\" of {form} is not told"
        for message in messages(form):
            if not is_told(message, everything):
                yield f"{page.source.name}: the message \"{message}\" of {form} is not told"
        for field in fields(page.text):
            if field.lower() not in known:
                yield f"{page.source.name}: there is no \"{field}\" in {form}"
    for program in re.findall(r"<!-- program: (\S+) -->", page.text):
        for text in program_texts(program):
            if not is_told(text, everything):
                yield f"{page.source.name}: \"{text}\" of {program} is not told"


def fields(text):
    """What the first cells of the tables of fields have in bold."""
    for table in re.findall(r"^\| field \|.*\n\|[-|]+\n((?:\|.*\n)*)", text, flags=re.M):
        for row in table.splitlines():
            yield from bold(row.split("|")[1])
