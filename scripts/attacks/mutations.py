"""Ways to damage a drawing. Each takes the random numbers and the bytes, and gives other bytes."""

import re

HUGE = [b"1e308", b"-1e308", b"1e-320", b"nan", b"inf", b"-inf", b"99999999999999999999", b"-2147483649", b"2147483648",
        b"9223372036854775808", b"-0.0", b"1e999", b"0x7fffffff", b"1.7976931348623157e308", b"", b"1,5", b"--1"]
# Values of these are counts, of vertices, edges, rows, names.
COUNTS = {70, 71, 72, 73, 74, 75, 76, 77, 78, 90, 91, 92, 93, 94, 95, 96, 97, 98, 44, 45}
HANDLES = {5, 105, *range(320, 370), *range(390, 400)}


def tags(data):
    """The lines of a drawing in pairs: [code, value]."""
    lines = data.split(b"\n")
    return [lines[index:index + 2] for index in range(0, len(lines) - 1, 2)]


def joined(pairs):
    return b"".join(line + b"\n" for pair in pairs for line in pair)


def code_of(pair):
    text = pair[0].strip()
    return int(text) if re.fullmatch(rb"-?\d{1,9}", text) else None


def some(numbers, pairs, wanted):
    """A few tags that are wanted, at most ten."""
    found = [pair for pair in pairs if wanted(pair)]
    return numbers.sample(found, min(len(found), numbers.randint(1, 10)))


def flipped_bytes(numbers, data):
    damaged = bytearray(data)
    for _ in range(numbers.choice((1, 3, 10, 100))):
        damaged[numbers.randrange(len(damaged))] ^= 1 << numbers.randrange(8)
    return bytes(damaged)


def cut_anywhere(numbers, data):
    return data[:numbers.randrange(len(data))]


def cut_out(numbers, data):
    start = numbers.randrange(len(data))
    return data[:start] + data[start + numbers.choice((1, 10, 100, 10000)):]


def doubled_lines(numbers, data):
    lines = data.split(b"\n")
    for _ in range(numbers.choice((1, 5, 50))):
        start = numbers.randrange(len(lines))
        piece = lines[start:start + numbers.choice((1, 2, 20))]
        lines[start:start] = piece
    return b"\n".join(lines)


def removed_lines(numbers, data):
    lines = data.split(b"\n")
    for _ in range(numbers.choice((1, 5, 50))):
        start = numbers.randrange(len(lines))
        del lines[start:start + numbers.choice((1, 2, 20))]
        lines = lines or [b""]
    return b"\n".join(lines)


def shuffled_lines(numbers, data):
    pairs = tags(data)
    start = numbers.randrange(max(1, len(pairs) - 1))
    end = start + numbers.choice((3, 30, 300))
    piece = pairs[start:end]
    numbers.shuffle(piece)
    return joined(pairs[:start] + piece + pairs[end:])


def other_codes(numbers, data):
    pairs = tags(data)
    for pair in some(numbers, pairs, lambda pair: True):
        pair[0] = numbers.choice([b"0", b"-1", b"5", b"10", b"70", b"100", b"102", b"330", b"999", b"1001", b"1004",
                                  b"1071",
                                  b"99999", b"-99999", b"abc", b"", b"1e3", str(numbers.randint(0, 1071)).encode()])
    return joined(pairs)


def huge_numbers(numbers, data):
    pairs = tags(data)
    for pair in some(numbers, pairs, lambda pair: (code := code_of(pair)) is not None and 10 <= code < 300):
        pair[1] = numbers.choice(HUGE)
    return joined(pairs)


def wrong_counts(numbers, data):
    pairs = tags(data)
    for pair in some(numbers, pairs, lambda pair: code_of(pair) in COUNTS):
        pair[1] = str(numbers.choice((-1, 0, 1, 2, 255, 32767, 65536, 1000000, 2147483647, -2147483648))).encode()
    return joined(pairs)


def handles_to_themselves(numbers, data):
    """References to what refers to them, to handles that are not there, the same handle twice, none."""
    pairs = tags(data)
    known = [pair[1].strip() for pair in pairs if code_of(pair) in (5, 105)] or [b"1"]
    current = b"0"
    chosen = {id(pair) for pair in some(numbers, pairs, lambda pair: code_of(pair) in HANDLES)}
    for pair in pairs:
        if code_of(pair) in (5, 105):
            current = pair[1].strip()
        if id(pair) in chosen:
            pair[1] = numbers.choice((current, current, numbers.choice(known), b"0", b"FFFFFFFFFFFFFFFF", b"x", b"-1"))
    return joined(pairs)


def names_to_themselves(numbers, data):
    """Blocks that hold themselves or each other, entities on layers and of styles that are not there."""
    pairs = tags(data)
    names = [pair[1] for pair in pairs if code_of(pair) == 2] or [b"0"]
    for pair in some(numbers, pairs, lambda pair: code_of(pair) in (2, 3, 6, 7, 8)):
        pair[1] = numbers.choice([*numbers.sample(names, min(3, len(names))), b"", b"*U0", b"*Model_Space",
                                  b"a" * 5000])
    return joined(pairs)


def deep_nesting(numbers, data):
    depth = numbers.choice((50, 1000, 30000))
    kind = numbers.randrange(4)
    if kind == 0:  # control strings of extended data
        piece = b"1001\nACAD\n" + b"1002\n{\n" * depth + b"1002\n}\n" * numbers.choice((0, depth))
    elif kind == 1:  # braces of a paragraph
        piece = b"0\nMTEXT\n8\n0\n10\n1\n20\n1\n40\n1\n1\n" + b"{\\H2x;" * depth + b"a" + b"}" * depth + b"\n"
    elif kind == 2:  # groups of application data
        piece = b"102\n{ACAD_REACTORS\n" * depth
    else:  # expressions
        piece = b"0\nRTEXT\n8\n0\n10\n1\n20\n1\n40\n1\n70\n1\n1\n" + b"$(+,1," * depth + b"1" + b")" * depth + b"\n"
    place = data.find(b"ENTITIES\n")
    place = place + 9 if place >= 0 else numbers.randrange(len(data))
    return data[:place] + piece + data[place:]


def other_encoding(numbers, data):
    text = data.decode("utf-8", "surrogateescape")
    return numbers.choice((
        lambda: b"\xef\xbb\xbf" + data,
        lambda: b"\xff\xfe" + text.encode("utf-16-le", "replace"),
        lambda: b"\xfe\xff" + text.encode("utf-16-be", "replace"),
        lambda: data.replace(b"\r\n", b"\n").replace(b"\n", b"\r\n"),
        lambda: data.replace(b"\r\n", b"\n").replace(b"\n", b"\r"),
        lambda: data.replace(b"ANSI_1252", numbers.choice((b"ANSI_932", b"ANSI_936", b"gb18030", b"none", b""))),
        lambda: data.replace(b"e", numbers.choice((b"\xe9", b"\xc3\xa9", b"\xed\xa0\x80", b"\\U+D83D", b"\\M+18140"))),
        lambda: data.replace(b"\n", b" \n"),
    ))()


def nul_bytes(numbers, data):
    damaged = bytearray(data)
    for _ in range(numbers.choice((1, 10, 1000))):
        place = numbers.randrange(len(damaged))
        damaged[place:place + numbers.randint(0, 1)] = b"\0"
    return bytes(damaged)


def mixed_sections(numbers, data):
    """Sections that are missing, doubled, in another order, or without an end."""
    pieces = re.split(rb"(?m)(?=^ *0\r?\nSECTION\r?$)", data)
    choice = numbers.randrange(4)
    if choice == 0:
        numbers.shuffle(pieces)
    elif choice == 1:
        pieces.insert(numbers.randrange(len(pieces)), numbers.choice(pieces))
    elif choice == 2:
        del pieces[numbers.randrange(len(pieces))]
    else:
        pieces = [piece.replace(b"ENDSEC", b"ENDTAB") if numbers.random() < 0.3 else piece for piece in pieces]
    return b"".join(pieces) or b"0"


def long_lines(numbers, data):
    pairs = tags(data)
    for pair in some(numbers, pairs, lambda pair: True)[:3]:
        pair[numbers.randrange(2)] = numbers.choice((b"9", b" ", b"\\P", b"%%c", b"{",
                                                     b"\\")) * numbers.choice((300, 70000, 1000000))
    return joined(pairs)


MUTATIONS = {
    "flipped bytes": flipped_bytes, "cut anywhere": cut_anywhere, "pieces cut out": cut_out,
    "doubled lines": doubled_lines, "removed lines": removed_lines, "shuffled tags": shuffled_lines,
    "other group codes": other_codes, "huge numbers": huge_numbers, "wrong counts": wrong_counts,
    "handles to themselves": handles_to_themselves, "names to themselves": names_to_themselves,
    "deep nesting": deep_nesting, "other encodings": other_encoding, "NUL bytes": nul_bytes,
    "sections mixed": mixed_sections, "long lines": long_lines,
}
