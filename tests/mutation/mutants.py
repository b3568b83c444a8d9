"""Makes a copy of the system's folders in which each literal and each row of a table can be altered at run time.

The copy keeps the lines of the original. A constexpr declaration becomes const, so that its values are set when the
program starts; one that must stay constant is frozen, and what is in it is left out.
"""

import dataclasses
import pathlib
import re

FOLDERS = "screen browse find reports prefs opening filecopy help store forms runtime sort app".split()

TOKEN = re.compile(
    r"""(?P<directive>^[ \t]*\#[^\n]*?(?:\\\n[^\n]*?)*$)|(?P<comment>//[^\n]*|/\*.*?\*/)
    |(?P<text>"(?:\\.|[^"\\\n])*")|(?P<char>'(?:\\.|[^'\\\n])+')
    |(?P<number>0[xX][0-9a-fA-F']+|\d[\d']*(?:\.\d*)?)(?P<suffix>\w*)
    |(?P<word>[A-Za-z_]\w*)|(?P<space>\s+)|(?P<mark>::|->|.)""",
    re.S | re.M | re.X,
)
LITERALS = ("text", "char", "number")
LEFT_OUT = {
    "directive": "in a macro, a directive or an attribute",
    "case": "label of a case",
    "enum": "value of an enumerator",
    "check": "checked when compiled",
    "pure": "mark of a pure virtual function",
    "frozen": "needed when compiled",
    "refused": "does not compile altered",
}


@dataclasses.dataclass
class Token:
    kind: str
    text: str
    line: int
    column: int
    before: str = ""  # what the copy has in front of it and behind it
    after: str = ""
    out: str | None = None  # what the copy has in its place
    why: str = ""  # a key of LEFT_OUT


@dataclasses.dataclass
class Mutant:
    number: int
    file: str
    line: int
    column: int  # in the original, from 0
    was: str
    becomes: str
    source: str  # the line, and the last one before it that is not indented
    kind: str  # "literal" or "row"
    span: tuple = (0, 0)  # its place in the line of the copy

    @property
    def key(self):
        return f"{self.file}:{self.line}:{self.column}:{self.kind}:{self.was}"


@dataclasses.dataclass
class Constant:
    """A constexpr declaration: from its first token to its last."""

    key: str
    first: int
    last: int
    is_function: bool
    frozen: bool
    first_line: int
    last_line: int


class Source:
    """One file as tokens, and the declarations found in it."""

    def __init__(self, file, text, frozen):
        self.file, self.lines = file, text.split("\n")
        self.tokens = [token for token in self._tokens(text)]
        self.code = [i for i, t in enumerate(self.tokens) if t.kind not in ("space", "comment", "directive")]
        self.constants = []
        self._mark_left_out()
        self._find_constants(frozen)

    def _tokens(self, text):
        line, start = 1, 0
        for match in TOKEN.finditer(text):
            kind = match.lastgroup if match.lastgroup != "suffix" else "number"
            token = Token(kind, match.group(), line, match.start() - start)
            if token.kind == "word" and token.text in ("true", "false"):
                token.kind = "bool"
            yield token
            if "\n" in token.text:
                line += token.text.count("\n")
                start = match.start() + token.text.rfind("\n") + 1

    def around(self, line):
        heads = (head for head in reversed(self.lines[: line - 1]) if head[:1].isalpha())
        return next(heads, "") + "\n" + self.lines[line - 1]

    def literal(self, index):
        return self.tokens[index].kind in LITERALS + ("bool",)

    # Positions below are positions in self.code.
    def at(self, position):
        return self.tokens[self.code[position]].text if 0 <= position < len(self.code) else ""

    def close_of(self, position):
        """The bracket that closes the one at that position."""
        depth = 0
        for there in range(position, len(self.code)):
            depth += (self.at(there) in "([{") - (self.at(there) in ")]}")
            if depth == 0:
                return there
        raise ValueError(f"{self.file}: unbalanced brackets")

    def _close_of_template(self, position):
        depth = 0
        for there in range(position, len(self.code)):
            depth += (self.at(there) == "<") - (self.at(there) == ">")
            if depth == 0:
                return there
        raise ValueError(f"{self.file}: an unclosed template")

    def next_of(self, position, marks):
        while self.at(position) not in marks:
            position += 1
        return position

    def leave_out(self, first, last, why):
        for position in range(first, last + 1):
            token = self.tokens[self.code[position]]
            token.why = token.why or why

    def _mark_left_out(self):
        for token in self.tokens:
            token.why = "directive" if token.kind == "directive" else ""
        for here in range(len(self.code)):
            word = self.at(here)
            if word == "static_assert":
                end = self.next_of(self.close_of(here + 1), ";")
                self.leave_out(here, end, "check")
                for position in range(here, end + 1):
                    self.tokens[self.code[position]].out = ""
            elif word == "__attribute__":
                self.leave_out(here, self.close_of(here + 1), "directive")
            elif word == "case":
                self.leave_out(here, self.next_of(here, ":"), "case")
            elif word == "enum":
                opened = self.next_of(here, "{;")
                if self.at(opened) == "{":
                    self.leave_out(here, self.close_of(opened), "enum")
            elif word == "0" and self.at(here - 1) == "=" and self.at(here - 2) in (")", "const", "noexcept"):
                self.leave_out(here, here, "pure")
            elif word == "array" and self.at(here + 1) == "<":
                self.leave_out(here, self._close_of_template(here + 1), "frozen")
            elif word == "[" and self.at(here + 2) == "]" and self._declares(here - 1):
                self.leave_out(here, here + 2, "frozen")
            elif word == "constexpr" and self.at(here - 1) == "if":
                self.leave_out(here, self.close_of(here + 1), "frozen")

    def _declares(self, position):
        """Whether the name there comes right after a type."""
        before = self.tokens[self.code[position - 1]]
        return self.at(position).isidentifier() and before.kind == "word" and before.text != "return"

    def _find_constants(self, frozen):
        for here in range(len(self.code)):
            if self.at(here) not in ("constexpr", "consteval") or self.at(here - 1) == "if":
                continue
            mark = self._first_mark(here + 1)
            is_function = self.at(mark) == "("
            end = self._end_of(mark, is_function)
            key = f"{self.file}:{self.at(mark - 1)}"
            lines = (self.tokens[self.code[there]].line for there in (here, end))
            constant = Constant(key, self.code[here], self.code[end], is_function, key in frozen, *lines)
            self.constants.append(constant)
            if constant.frozen:
                self.leave_out(here, end, "frozen")
            else:
                self.tokens[self.code[here]].out = self._without_constexpr(here, is_function)
                self.leave_out(here, mark - 1, "frozen")  # the numbers of a type

    def _first_mark(self, position):
        """Where the name of the declared thing is over: ( of a function, = { ; or [ of a value."""
        depth = 0
        while depth or self.at(position) not in ("(", "=", "{", ";", "["):
            depth += (self.at(position) == "<") - (self.at(position) == ">")
            position += 1
        return position

    def _end_of(self, mark, is_function):
        if not is_function:
            while self.at(mark) != ";":
                mark = self.close_of(mark) + 1 if self.at(mark) in "([{" else mark + 1
            return mark
        end = self.next_of(self.close_of(mark), "{;")
        return self.close_of(end) if self.at(end) == "{" else end

    def _without_constexpr(self, here, is_function):
        if is_function:
            return "" if "inline" in (self.at(here - 1), self.at(here + 1)) else "inline"
        in_class = self.at(here - 1) == "static"
        return ("inline " if in_class else "") + ("" if self.at(here + 1) == "const" else "const")


def altered_text(literal):
    """The text with one character changed, the middle one if that can be."""
    if literal == '""':
        return '" "'
    spots = [m.start() for m in re.finditer(r"\\(?:x[0-9a-fA-F]+|.)|.", literal) if m.group()[0] not in '\\"']
    if not spots:
        return '"x' + re.sub(r"^\\(?:x[0-9a-fA-F]+|.)", "", literal[1:])
    spot = spots[len(spots) // 2]
    letter = literal[spot]
    if letter.isalpha() or letter.isdigit():
        changed = {"z": "y", "Z": "Y", "9": "8"}.get(letter) or chr(ord(letter) + 1)
    else:
        changed = "_" if letter != "_" else "-"
    return literal[:spot] + changed + literal[spot + 1 :]


class Copy:
    """Numbers the mutants of all files. refused: keys of mutants that the copy must do without."""

    def __init__(self, root, frozen, refused, folders=tuple(FOLDERS)):
        self.root, self.frozen, self.refused, self.folders = root, frozen, refused, folders
        self.mutants, self.left_out, self.constants, self.numbered = [], [], {}, 0

    def write(self, target):
        for folder in self.folders:
            (target / folder).mkdir(parents=True, exist_ok=True)
            for path in sorted((self.root / folder).iterdir()):
                if path.suffix in (".h", ".cpp"):
                    self._write_file(path, target / folder / path.name)

    def _write_file(self, path, target):
        source = Source(str(path.relative_to(self.root)), path.read_text(encoding="utf-8"), self.frozen)
        self.constants[source.file] = source.constants
        self.numbered = -(-self.numbered // 64) * 64  # a change of one file leaves the numbers of the others
        first = len(self.mutants)
        for index, token in enumerate(source.tokens):
            if token.kind == "directive" and "include" not in token.text and "pragma" not in token.text:
                for inner in TOKEN.finditer(token.text.lstrip(" \t#")):
                    if inner.lastgroup in LITERALS:
                        self.left_out.append((source.file, token.line, inner.group(), "directive"))
            elif source.literal(index):
                self._literal(source, index)
        for constant in source.constants:
            if not constant.is_function:
                self._rows(source, constant)
        text = self._text_of(source, self.mutants[first:])
        if not target.exists() or target.read_text(encoding="utf-8") != text:
            target.write_text(text, encoding="utf-8")

    def _add(self, source, token, was, becomes, kind):
        """The mutant, or nothing where it must not be."""
        self.numbered += 1  # one that is left out keeps its number, so that the others do
        mutant = Mutant(self.numbered, source.file, token.line, token.column, was, becomes,
                        source.around(token.line), kind)  # fmt: skip
        why = token.why or ("refused" if mutant.key in self.refused else "")
        if why:
            self.left_out.append((source.file, token.line, was, why))
            return None
        self.mutants.append(mutant)
        return mutant

    def _literal(self, source, index):
        token = source.tokens[index]
        if token.kind == "text":
            becomes = altered_text(token.text)
        else:
            step = 1000 if self._is_tab(source, token) else 1  # one more would often leave the order as it is
            becomes = {"bool": "!{}", "char": "char({} + 1)"}.get(token.kind, f"{{}} + {step}").format(token.text)
        mutant = self._add(source, token, token.text, becomes, "literal")
        if not mutant:
            return
        if token.kind == "text":
            self._text(source, index, mutant)
        else:
            token.out = f"mutation::At({mutant.number}, {token.text}, {becomes})"

    @staticmethod
    def _is_tab(source, token):
        """Whether it is the tab position in the ids of a control, { tab, help, topic }."""
        line = source.lines[token.line - 1]
        return re.search(r"\{ *$", line[: token.column]) and re.match(r"\d+, *\d+, *\d+ *\}", line[token.column :])

    def _text(self, source, index, mutant):
        """A text may go on in the tokens next to it: then the whole is wrapped once for each of them."""
        position = source.code.index(index)
        first = last = position
        while source.tokens[source.code[first - 1]].kind == "text":
            first -= 1
        while last + 1 < len(source.code) and source.tokens[source.code[last + 1]].kind == "text":
            last += 1
        words = [source.at(there) for there in range(first, last + 1)]
        words[position - first] = mutant.becomes
        opening, closing = source.tokens[source.code[first]], source.tokens[source.code[last]]
        opening.before = f"mutation::Text({mutant.number}, " + opening.before
        closing.after += ", " + " ".join(words) + ")"

    def _rows(self, source, constant):
        """Each element of a table becomes the next one, the last one the one before."""
        first = source.code.index(constant.first)
        equals = source._first_mark(first + 1)
        element = self._element_type(source, first, equals)
        opened = source.next_of(equals, "{=") if source.at(equals) == "[" else equals
        opened += source.at(opened) == "="
        if not element or source.at(opened) != "{":
            return
        if source.at(opened + 1) == "{" and source.close_of(opened + 1) == source.close_of(opened) - 1:
            opened += 1  # std::array = {{ ... }}
        rows = self._elements(source, opened)
        texts = [" ".join(source.at(there) for there in range(row[0], row[1] + 1)) for row in rows]
        for number, (begin, end) in enumerate(rows if len(rows) > 1 else []):
            if begin == end and source.literal(source.code[begin]):
                continue  # altered as a literal
            other = texts[number + 1] if number + 1 < len(rows) else texts[number - 1]
            tokens = source.tokens[source.code[begin]], source.tokens[source.code[end]]
            mutant = self._add(source, tokens[0], texts[number], other, "row") if texts[number] != other else None
            if mutant:
                is_struct = source.at(begin) == "{"
                made = element if is_struct else ""
                tokens[0].before = f"mutation::At<{element}>({mutant.number}, {made}" + tokens[0].before
                tokens[1].after += f", {made}{other})"

    @staticmethod
    def _element_type(source, first, equals):
        words = [source.at(there) for there in range(first + 1, equals)]
        if source.at(equals) == "[":
            return "".join(words[:-1]).replace("const", "const ")
        if words[:4] == ["std", "::", "array", "<"]:
            return "".join(words[4 : words.index(",")]).replace("constchar", "const char")
        return ""

    @staticmethod
    def _elements(source, opened):
        rows, begin, here = [], opened + 1, opened + 1
        closed = source.close_of(opened)
        while here <= closed:
            if here == closed or source.at(here) == ",":
                if begin < here:
                    rows.append((begin, here - 1))
                begin = here = here + 1
            else:
                here = source.close_of(here) + 1 if source.at(here) in "([{" else here + 1
        return rows

    @staticmethod
    def _text_of(source, mutants):
        text = ""
        starts = {(m.line, m.column, m.kind): m for m in mutants}
        for token in source.tokens:
            out = token.text if token.out is None else token.out
            out = token.before + out + token.after
            if token.out == "":
                out += "\n" * token.text.count("\n")
            column = len(text) - text.rfind("\n") - 1
            for kind in ("literal", "row"):
                if mutant := starts.get((token.line, token.column, kind)):
                    mutant.span = (column, column + len(out))
            text += out
        return text
