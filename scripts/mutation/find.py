"""Finds the small changes that can be made to a C++ source, by patterns on its lines of code."""

import dataclasses
import hashlib
import re

TURNED = {" < ": " <= ", " <= ": " < ", " > ": " >= ", " >= ": " > ", " == ": " != ", " != ": " == ",
          " && ": " || ", " || ": " && "}
RECKONED = {" + ": " - ", " - ": " + ", " * ": " / ", " / ": " * ", " % ": " / ", " += ": " -= ",
            " -= ": " += "}
TOKENS = re.compile(
    r'(?P<comment>//[^\n]*|/\*.*?\*/)'
    r'|(?P<raw>R"(?P<mark>[^()\s]*)\(.*?\)(?P=mark)")'
    r'|(?P<text>"(?:[^"\\\n]|\\.)*")'
    r"|(?P<letter>(?<![0-9A-Fa-f])'(?:[^'\\\n]|\\.)+')", re.DOTALL)
NUMBER = re.compile(r"(?<![\w.'])(0x[0-9A-Fa-f]+|\d[\d']*)(?=[\s,;:)\]}.uUlLFf]|$)")
ESCAPE = re.compile(r"\\(?:x[0-9A-Fa-f]+|[0-7]{1,3}|.)|%[-+0 #]*[\d*]*(?:\.[\d*]+)?[a-z]")
CALL = re.compile(r"\s+(?!return\b|throw\b|else\b|co_|delete\b|case\b|default\b)[A-Za-z_][\w:.\[\]]*(?:->[\w.]+)*\(.*\);$")
ASSIGNMENT = re.compile(r"\s+[A-Za-z_][\w.\[\]()]*(?:->[\w.]+)* [-+|&]?= .*[^{(,];$")
LEAVING = re.compile(r"\s+(?:break|continue|return);$")
ROW = re.compile(r"\s*\{.*\},?$")
# What changes speed or what the compiler checks, and nothing that a program does.
PASSED_OVER = re.compile(r"\s*(?:#|using |namespace |template|extern )|\breserve\(|\barray<|shrink_to_fit")


@dataclasses.dataclass(frozen=True)
class Mutant:
    file: str
    line: int  # from 1
    operator: str
    before: str  # the line, without the blanks around it
    after: str
    copy: int  # 1 for the first such change of this file, 2 for the same on a like line below it
    place: int  # where in the line's mutants of this operator, from 1
    line_after: str  # the whole line
    above: str  # the line of code above, without the blanks around it

    @property
    def name(self):
        return f"{self.file}:{self.line}:{self.operator}" + (f".{self.place}" if self.place > 1 else "")

    def rank(self, seed):
        """Its place in an order by chance, which stays when code above the line moves it."""
        what = f"{seed}|{self.file}|{self.operator}|{self.before}|{self.after}|{self.copy}"
        return hashlib.sha256(what.encode()).hexdigest()

    def line_rank(self, seed):
        """The same for its line, so that a line of many numbers counts no more than another."""
        return hashlib.sha256(f"{seed}|{self.file}|{self.before}|{self.copy}".encode()).hexdigest()


def hide(source):
    """The source with comments blank and each character inside a text as a quotation mark, which keeps
    every place; and the places of texts and letters as (begin, end) of what is between the marks."""
    hidden = list(source)
    texts = []
    for token in TOKENS.finditer(source):
        blank, begin, end = " ", token.start(), token.end()
        if token.lastgroup != "comment" and token["comment"] is None:
            blank, begin, end = '"', begin + 1, end - 1
            if token["raw"] is None:
                texts.append((begin, end))
        for place in range(begin, end):
            if source[place] != "\n":
                hidden[place] = blank
    return "".join(hidden), texts


def cells(row):
    """The cells of a row in braces, as (begin, end)."""
    found, depth, begin = [], 0, None
    for place, character in enumerate(row):
        if character in "{([":
            depth += 1
            if depth == 1:
                begin = place + 1
        elif character in "})]" or (character == "," and depth == 1):
            if depth == 1 and begin is not None:
                found.append((begin, place))
                begin = place + 1
            if character != ",":
                depth -= 1
    return found


def other_letter(text, letter):
    """A text with one letter in its middle changed, or None. A letter ('x') changes as it is."""
    if letter:
        if len(text) != 1:
            return None
        return chr(ord(text) + 1) if text.isalnum() and text not in "9zZ" else "~"
    kept = {place for escape in ESCAPE.finditer(text) for place in range(*escape.span())}
    places = [place for place, c in enumerate(text) if c.isascii() and c.isalpha() and place not in kept]
    if not places:
        return None
    place = places[len(places) // 2]
    new = "q" if text[place] != "q" else "x"
    return text[:place] + (new.upper() if text[place].isupper() else new) + text[place + 1:]


def balanced(text):
    depth = 0
    for character in text:
        depth += (character == "(") - (character == ")")
        if depth < 0:
            return False
    return depth == 0


def conditions(line):
    """(operator, begin, end, new) for each condition of a hidden line that can be turned."""
    turned = False
    for match in re.finditer(r" (?:<=?|>=?|==|!=|&&|\|\|)(?: |$)", line):
        old = match.group().rstrip() + " "
        yield "condition", match.start(), match.start() + len(old.rstrip()), TURNED[old].rstrip()
        turned = True
    for match in re.finditer(r"(?<![\w!<>=\"])!(?=[\w(])", line):
        yield "condition", match.start(), match.end(), ""
        turned = True
    for match in re.finditer(r"\b(?:true|false)\b", line):
        yield "condition", *match.span(), "false" if match.group() == "true" else "true"
    match = re.search(r"\b(?:if|while) \((.*)\)(?: \{| return.*;| continue;| break;|$)", line)
    if match and not turned and ";" not in match[1] and balanced(match[1]):
        yield "condition", match.start(1), match.end(1), "!({0})"


def bounds(line):
    for match in NUMBER.finditer(line):
        digits = match.group().replace("'", "")
        new = hex(int(digits, 16) + 1) if digits.startswith("0x") else str(int(digits) + 1)
        yield "bound", *match.span(), new
    for match in re.finditer(r" (?:[-+]=?|[*/%]) ", line):
        yield "bound", *match.span(), RECKONED[match.group()]


def dropped(line, begins):
    """`begins` tells whether the line begins a statement."""
    if begins and (LEAVING.match(line) or (balanced(line) and (CALL.match(line) or ASSIGNMENT.match(line)))):
        yield "drop", len(line) - len(line.lstrip()), len(line), "{}"


def neighbours_cell(lines, number):
    """The last cell of a table's row that is a name and differs from the cell of the row beside it."""
    if not ROW.match(lines[number]):
        return
    mine = cells(lines[number])
    for other in (number - 1, number + 1):
        if not 0 <= other < len(lines) or not ROW.match(lines[other]):
            continue
        theirs = cells(lines[other])
        if len(theirs) != len(mine) or len(mine) < 2:
            continue
        for (begin, end), (from_, to) in reversed(list(zip(mine, theirs))):
            old, new = lines[number][begin:end], lines[other][from_:to]
            if old.strip() != new.strip() and re.fullmatch(r"\s*[A-Za-z_][\w:]*", new) and '"' not in old:
                yield "cell", begin, end, new
                return


def statement_begins(lines, number):
    """Whether the last code before this line ends a statement, a block or a label."""
    for above in range(number - 1, -1, -1):
        text = lines[above].strip()
        if text:
            return text[-1] in ";{}:" and not text.startswith(("case", "default")) or text[-1] == ")" and \
                re.match(r"(?:\} else )?(?:if|for|while) \(", text) is not None
    return False


def code_above(hidden, real, number):
    return next((real[above].strip() for above in range(number - 1, -1, -1) if hidden[above].strip()), "")


def checked_by_compiler(lines):
    """The numbers of the lines that belong to a static_assert."""
    inside = False
    for number, line in enumerate(lines):
        inside = inside or "static_assert" in line
        if inside:
            yield number
        inside = inside and ";" not in line


def find(file, source):
    """The mutants of a source, in the order of its lines."""
    hidden, texts = hide(source)
    lines, real = hidden.split("\n"), source.split("\n")
    passed_over = set(checked_by_compiler(lines))
    changes = [[] for _ in lines]
    starts = [0]
    for line in real:
        starts.append(starts[-1] + len(line) + 1)
    for number, line in enumerate(lines):
        line = line.rstrip()
        changes[number] += conditions(line)
        changes[number] += bounds(line)
        changes[number] += dropped(line, statement_begins(lines, number))
        changes[number] += neighbours_cell(lines, number)
    number = 0
    for begin, end in texts:
        while starts[number + 1] <= begin:
            number += 1
        new = other_letter(source[begin:end], source[begin - 1] == "'")
        if new is not None:
            changes[number].append(("text", begin - starts[number], end - starts[number], new))
    mutants, copies = [], {}
    for number, line in enumerate(real):
        if number in passed_over or PASSED_OVER.match(line) or PASSED_OVER.search(lines[number]):
            continue
        places = {}
        for operator, begin, end, new in changes[number]:
            after = line[:begin] + new.replace("{0}", line[begin:end]) + line[end:]
            what = (operator, line.strip(), after.strip())
            copies[what] = copies.get(what, 0) + 1
            places[operator] = places.get(operator, 0) + 1
            mutants.append(Mutant(file, number + 1, operator, line.strip(), after.strip(), copies[what],
                                  places[operator], after, code_above(lines, real, number)))
    return mutants


def changed(source, mutant):
    lines = source.split("\n")
    lines[mutant.line - 1] = mutant.line_after
    return "\n".join(lines)
