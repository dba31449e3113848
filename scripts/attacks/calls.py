"""External functions and the host's own with arguments that they do not expect."""

import re
import shutil

from attacks.bench import FALSE, SAMPLES, TOP, Bad, Fault

# They end the program, or wait as they are told to.
LEFT_OUT = {"exit", "quit", "while", "repeat", "trace", "untrace", "*error*"}
CALLS_AT_ONCE = 40


def names_in(pattern, folder, files):
    found = set()
    for path in sorted((TOP / folder).glob(files)):
        found |= set(re.findall(pattern, path.read_text(encoding="utf-8")))
    return sorted(name for name in found if name.lower() not in LEFT_OUT)


def module_functions():
    return names_in(r'function<[^>]+>\("([^"]+)"', "module", "LispFunctionTable.cpp")


def host_functions():
    pattern = r'\{"([^"\s]+)", \w+, Arity'
    return names_in(pattern, "host/lisp", "*.cpp") + names_in(pattern, "host/kernel/functions", "*.cpp")


def special_forms():
    return names_in(r'\{"([^"\s]+)", \w+\}', "host/lisp", "SpecialForms.cpp")


def tool_functions():
    return names_in(r"(?m)^\(defun\s+([^\s()]+)", "tools", "**/*.lsp")


def number(numbers):
    return numbers.choice(("0", "-1", "1", "2", "32767", "2147483647", "-2147483648", "99999999999", "0.0", "-0.0",
                           "1e308", "-1e308",
                           "1e-308", "3.5", "255", "65536"))


def text(numbers):
    return numbers.choice(('""', '"x"', '"plan.dxf"', '"no/such/file"', '"../up"', '"*"', '"%s%n%d"', '"\\\\"',
                           '"\\n\\t"', '"LINE"',
                           '"\\U+00E9"', '"(setq"', '"$(getvar,x)"', '"1,2,3"', '"~"', "(big)", '"`[@#.*~"', '"_X"',
                           '"DIMSTYLE"'))


def atom(numbers):
    return numbers.choice((number, number, text, text, lambda _: numbers.choice(
        ("nil", "T", "'x", "(entlast)", "(ssget \"_X\")", "(open \"plan.dxf\" \"r\")", "'(lambda (x) x)", "car", "gone",
         "empty",
         "'c:line", "pi", "(handent \"2F\")", "closed"))))(numbers)


def datum(numbers, depth=0):
    choice = numbers.random()
    if depth > 3 or choice < 0.6:
        return atom(numbers)
    if choice < 0.7:
        return f"(cons {datum(numbers, depth + 1)} {datum(numbers, depth + 1)})"
    if choice < 0.75:
        return numbers.choice(("(deep 3000)", "(long 3000)", "(entget (entlast))", "(tblnext \"LAYER\" T)"))
    return f"(list {' '.join(datum(numbers, depth + 1) for _ in range(numbers.randint(0, 4)))})"


PRELUDE = """(defun big (/ s) (setq s "x") (repeat 16 (setq s (strcat s s))) s)
(defun deep (n / l) (repeat n (setq l (list l))) l)
(defun long (n / l) (repeat n (setq l (cons n l))) l)
(command "_.LINE" "0,0" "1,1" "") (setq gone (entlast)) (entdel gone) (setq empty (ssadd))
(setq closed (open "closed.txt" "w")) (close closed)
"""


def call(numbers, name):
    words = " ".join(datum(numbers) for _ in range(numbers.choice((0, 1, 1, 2, 2, 3, 4, 9))))
    return f"({name} {words})"


def wrong_calls(names, attempt):
    """A few dozen calls; where a dialog ends the program they go on in another one."""
    shutil.copy(SAMPLES / "plan.dxf", attempt.work / "plan.dxf")
    names = names()
    if not names:
        raise RuntimeError("no functions were found")
    calls = [call(attempt.random, attempt.random.choice(names)) for _ in range(CALLS_AT_ONCE)]
    first = 0
    while first < len(calls):
        guarded = [f'(princ "\\n@{index}")\n(vl-catch-all-apply \'(lambda () {calls[index]}) nil)'
                   for index in range(first, len(calls))]
        (attempt.work / "calls.lsp").write_text(PRELUDE + "\n".join(guarded) + '\n(princ "\\n@end")\n',
                                                encoding="utf-8")
        ended = attempt.run("lisp", "calls.lsp", "--drawing", "plan.dxf", seconds=30, as_nobody=True)
        reached = re.findall(r"(?m)^@(\d+|end)", ended.output)
        if not reached:
            raise Bad(FALSE, f"the calls did not begin; {ended.brief()}")
        if reached[-1] == "end":
            return
        if ended.status == 0 or "nobody is there to answer" not in ended.errors:
            raise Bad(FALSE, f"ended in the midst of {calls[int(reached[-1])]}; {ended.brief()}")
        first = int(reached[-1]) + 1


def faults(bench):
    for kind, names, tries in (("of the module's functions", module_functions, 16),
                               ("of the host's functions", host_functions, 60),
                               ("of special forms", special_forms, 10),
                               ("of the tools' functions", tool_functions, 30)):
        def body(attempt, names=names):
            wrong_calls(names, attempt)
        yield Fault("calls", f"wrong calls {kind}", body, tries=tries)
