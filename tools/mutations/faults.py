"""The faults that can be put into a C++ text, one at a time: where each goes, and what may stand there instead."""

import dataclasses
import re

TOKEN = re.compile(
    r"""
    (?P<comment> //[^\n]* | /\*.*?\*/ )
  | (?P<directive> ^[ \t]*\#(?:\\\n|[^\n])* )
  | (?P<raw> R"(?P<fence>[^(\s]*)\(.*?\)(?P=fence)" )
  | (?P<text> "(?:[^"\\\n]|\\.)*" | '(?:[^'\\\n]|\\.)+' )
  | (?P<number> \.?\d(?:[eEpP][+-]|'(?=\w)|[\w.])* )
  | (?P<name> [A-Za-z_]\w* )
  | (?P<space> \s+ )
  | (?P<sign> <=> | << | >> | :: | -> | \+\+ | -- | && | \|\| | [-+*/%&|^!=<>]= | . )
    """,
    re.VERBOSE | re.DOTALL | re.MULTILINE,
)

SWAPS = {
    "==": ["!="], "!=": ["=="], "<": ["<=", ">="], "<=": ["<", ">"], ">": [">=", "<="], ">=": [">", "<"],
    "&&": ["||"], "||": ["&&"], "+": ["-"], "-": ["+"], "*": ["/"], "/": ["*"], "%": ["*"],
    "+=": ["-="], "-=": ["+="], "++": ["--"], "--": ["++"], "true": ["false"], "false": ["true"],
}  # fmt: skip
UNSPACED = {"++", "--", "true", "false"}  # another sign without a space on both sides belongs to a type or stands alone

OPENING = {"(": ")", "[": "]", "{": "}"}
DECLARING = {
    "using", "namespace", "class", "struct", "enum", "union", "template", "typedef", "friend", "public", "private",
    "protected", "static_assert", "case", "default", "if", "else", "for", "while", "do", "switch", "try", "catch",
    "return", "throw", "const", "constexpr", "static", "auto", "extern", "inline", "virtual", "explicit", "operator",
}  # fmt: skip
NO_CALLS = {"if", "while", "for", "switch", "catch", "sizeof", "alignof", "decltype", "noexcept", "return", "operator"}
ALREADY_EMPTY = {"{}", "0", "false", "nullptr", '""', "std::nullopt"}


@dataclasses.dataclass(frozen=True)
class Fault:
    """Replaces text[start:end] by one of the alternatives."""

    kind: str
    start: int
    end: int
    alternatives: tuple


@dataclasses.dataclass(frozen=True)
class Token:
    kind: str
    text: str
    start: int
    end: int


class Source:
    """A text as tokens: without comments and directives, each bracket with its partner."""

    def __init__(self, text):
        self.text = text
        self.tokens = []
        for match in TOKEN.finditer(text):
            if match.lastgroup == "fence":
                continue
            if match.lastgroup not in ("comment", "directive", "space"):
                self.tokens.append(Token(match.lastgroup, match.group(), match.start(), match.end()))
        self.partner = {}
        standing = []
        for index, token in enumerate(self.tokens):
            if token.text in OPENING:
                standing.append(index)
            elif standing and token.text == OPENING[self.tokens[standing[-1]].text]:
                self.partner[standing.pop()] = index

    def at(self, index):
        return self.tokens[index].text if 0 <= index < len(self.tokens) else ""

    def between(self, first, last):
        """The text from token `first` to token `last`, both included."""
        return self.text[self.tokens[first].start : self.tokens[last].end]

    def is_spaced(self, index):
        token = self.tokens[index]
        return self.text[token.start - 1 : token.start].isspace() and self.text[token.end : token.end + 1].isspace()


def find(text):
    """All faults of a text, in its order."""
    source = Source(text)
    faults = [*swaps(source), *constants(source), *texts(source), *negations(source), *drops(source)]
    faults += [*exchanges(source), *emptied(source)]
    return sorted(faults, key=lambda fault: (fault.start, fault.end, fault.kind))


def swaps(source):
    for index, token in enumerate(source.tokens):
        if token.text in SWAPS and token.kind in ("sign", "name"):
            if token.text in UNSPACED or source.is_spaced(index):
                yield Fault("operator", token.start, token.end, tuple(SWAPS[token.text]))
        elif token.text == "!" and not source.is_spaced(index):
            yield Fault("operator", token.start, token.end, ("",))


def constants(source):
    for token in source.tokens:
        number = re.fullmatch(r"(0[xX][0-9a-fA-F]+|[0-9']*\.?[0-9]+(?:[eE][+-]?[0-9]+)?\.?)([A-Za-z_]*)", token.text)
        if token.kind != "number" or not number:
            continue
        digits, suffix = number.groups()
        plain = digits.replace("'", "")
        if re.fullmatch(r"[0-9]+", plain):
            alternatives = [str(int(plain) + 1)] + ([str(int(plain) - 1)] if int(plain) > 0 else [])
        elif plain.lower().startswith("0x"):
            alternatives = [hex(int(plain, 16) + 1)]
        else:
            alternatives = [repr(float(plain) + 1)]
        yield Fault("constant", token.start, token.end, tuple(one + suffix for one in alternatives))


def texts(source):
    for index, token in enumerate(source.tokens):
        if token.kind != "text":
            continue
        # The name of a control repeats the member's own, which tools/check sees to.
        if any(source.at(near) == token.text[1:-1] for near in range(index - 6, index)):
            continue
        yield Fault("text", token.start, token.end, ('\'~\'',) if token.text[0] == "'" else (token.text[:-1] + '~"',))


def negations(source):
    for index, token in enumerate(source.tokens):
        if token.text not in ("if", "while") or source.at(index + 1) != "(" or index + 1 not in source.partner:
            continue
        first, last = index + 2, source.partner[index + 1] - 1
        for inner in range(first, last):
            if source.at(inner) == ";" and not any(a < inner < b for a, b in source.partner.items() if a > index + 1):
                first = inner + 1
        yield Fault("negation", source.tokens[first].start, source.tokens[last].end,
                    (f"!({source.between(first, last)})",))


def drops(source):
    """Whole statements: calls, assignments, jumps. What declares something is left alone; without it nothing builds."""
    functions = function_bodies(source)
    for index, token in enumerate(source.tokens):
        if not begins(source, index) or not any(first < index < last for first, last in functions):
            continue
        end = statement_end(source, index)
        if end is None:
            continue
        jumps = end == index + 1 and token.text in ("return", "break", "continue")
        acts = any(one.text in ("(", "=", "+=", "-=", "++", "--") for one in source.tokens[index:end])
        if jumps or (acts and not declares(source, index, end)):
            yield Fault("statement", token.start, source.tokens[end].start, ("",))


def begins(source, index):
    """Whether a statement that is no block begins here."""
    before = source.at(index - 1)
    after_label = before == ":" and "case" in (source.at(index - 3), source.at(index - 5))
    after_condition = before == ")" and ends_condition(source, index - 1)
    return source.at(index) != "{" and (before in (";", "{", "}", "else") or after_label or after_condition)


def declares(source, index, end):
    """Whether a statement is a declaration: `Type name...`, where signs of the type may cling to it."""
    if source.at(index) in DECLARING:
        return True
    statement = source.between(index, end - 1)
    return re.match(r"[\w:]+(?:<[^;=()]*>)?[&*]*(?:\s+[&*]*\w+)+\s*(?:[={(\[]|$)", statement) is not None


def statement_end(source, index):
    """The token of the semicolon that ends the statement which begins at `index`; none if a block comes first."""
    while index < len(source.tokens):
        text = source.at(index)
        if text in OPENING:
            if index not in source.partner:
                return None
            index = source.partner[index] + 1
            continue
        if text in (")", "]", "}"):
            return None
        if text == ";":
            return index
        index += 1
    return None


def ends_condition(source, closing):
    opening = next((a for a, b in source.partner.items() if b == closing), None)
    return opening is not None and source.at(opening - 1) in ("if", "while", "for")


def function_bodies(source):
    heads = (")", "const", "override", "noexcept", "else", "do", "try", "mutable")
    return [(opening, closing) for opening, closing in source.partner.items()
            if source.at(opening) == "{" and source.at(opening - 1) in heads]  # fmt: skip


def exchanges(source):
    for opening, closing in source.partner.items():
        before = source.tokens[opening - 1] if opening else None
        if source.at(opening) != "(" or before is None or before.kind != "name" or before.text in NO_CALLS:
            continue
        arguments = split_arguments(source, opening, closing)
        if arguments is None or len(arguments) < 2:
            continue
        alternatives = []
        for number, (one, other) in enumerate(zip(arguments, arguments[1:])):
            first, second = source.between(*one), source.between(*other)
            if first == second:
                continue
            written = [source.between(*argument) for argument in arguments]
            written[number], written[number + 1] = second, first
            alternatives.append(", ".join(written))
        if alternatives:
            yield Fault("arguments", source.tokens[opening].end, source.tokens[closing].start, tuple(alternatives))


def split_arguments(source, opening, closing):
    """The arguments of a call as pairs of tokens; none for a list of parameters."""
    arguments, first, index, angles = [], opening + 1, opening + 1, 0
    while index <= closing:
        text = source.at(index)
        if text in OPENING and index in source.partner:
            index = source.partner[index] + 1
            continue
        if text == "<" and not source.is_spaced(index):
            angles += 1
        elif text in (">", ">>") and angles and not source.is_spaced(index):
            angles -= len(text)
        elif (text == "," and angles == 0) or index == closing:
            if index == first:
                return None
            arguments.append((first, index - 1))
            first = index + 1
        elif source.tokens[index].kind == "name" and index + 1 < closing:
            following = source.tokens[index + 1]
            clings = following.text in ("&", "*", "&&") and not source.is_spaced(index + 1)
            if following.kind == "name" or clings:
                return None
        index += 1
    return arguments


def emptied(source):
    for index, token in enumerate(source.tokens):
        if token.text != "return" or source.at(index + 1) == ";":
            continue
        end = statement_end(source, index + 1)
        if end is not None and source.between(index + 1, end - 1) not in ALREADY_EMPTY:
            yield Fault("result", source.tokens[index + 1].start, source.tokens[end].start, ("{}",))
