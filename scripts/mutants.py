# SPDX-License-Identifier: MIT
"""Finds the mutants of C++ and GLSL sources: small faults that a test should notice.

The sources are split into tokens but not parsed. What is no operator beyond doubt is left alone: because all files are
formatted in the same way, a binary operator has a space on both sides, and a template bracket, a pointer or a reference
has not.
"""
import re
from dataclasses import dataclass

ARITHMETIC = {"+": "-", "-": "+", "*": "/", "/": "*", "%": "*"}
ASSIGNMENT = {"+=": "-=", "-=": "+=", "*=": "/=", "/=": "*="}
STEP = {"++": "--", "--": "++"}
COMPARISON = {"<": ["<=", ">="], "<=": ["<", ">"], ">": [">=", "<="], ">=": [">", "<"], "==": ["!="], "!=": ["=="]}
LOGICAL = {"&&": "||", "||": "&&"}
TRUTH = {"true": "false", "false": "true"}

# Their absence changes no result.
SILENT_CALLS = {"reserve", "shrink_to_fit", "squeeze", "Q_ASSERT", "Q_UNUSED", "assert"}
NO_CALL = {"return", "throw", "delete", "new", "using", "case", "goto", "static_assert", "co_return"}
DECLARATIONS = {"namespace", "class", "struct", "union", "enum"}

TOKEN = re.compile(
    r"""(?P<space>\s+)
    |(?P<comment>//[^\n]*|/\*.*?\*/)
    |(?P<directive>(?:(?<=\n)|(?<!.)(?<!\n))\#(?:\\\n|[^\n])*)
    |(?P<text>(?:u8|[uUL])?R"(?P<mark>[^\s()\\]*)\(.*?\)(?P=mark)"\w*|(?:u8|[uUL])?"(?:\\.|[^"\\\n])*"\w*
        |(?:u8|[uUL])?'(?:\\.|[^'\\\n])+'\w*)
    |(?P<number>0[xXbB][0-9a-fA-F']+\w*|(?:\d[\d']*\.?\d*|\.\d+)(?:[eE][+-]?\d+)?\w*)
    |(?P<word>[A-Za-z_]\w*)
    |(?P<operator><=>|<<=|>>=|->\*|\.\.\.|::|->|\+\+|--|<<|>>|<=|>=|==|!=|&&|\|\||[-+*/%&|^]=|.)""",
    re.VERBOSE | re.DOTALL,
)


@dataclass(frozen=True)
class Token:
    kind: str
    text: str
    start: int
    spaced_before: bool
    spaced_after: bool

    @property
    def end(self):
        return self.start + len(self.text)

    @property
    def ends_operand(self):
        return self.kind in ("number", "text") or (self.kind == "word" and self.text != "operator"
                                                   and self.text not in NO_CALL) or self.text in (")", "]", "}")


@dataclass(frozen=True)
class Mutant:
    path: str
    start: int
    line: int
    column: int
    kind: str
    before: str
    after: str

    def apply(self, text):
        """Returns the text of the file with the fault."""
        assert text.startswith(self.before, self.start)
        return text[: self.start] + self.after + text[self.start + len(self.before) :]


def tokens_of(text):
    """Splits the text into tokens, without comments, directives and white space."""
    tokens = []
    for match in TOKEN.finditer(text):
        if match.lastgroup not in ("space", "comment", "directive"):
            before, after = text[max(match.start() - 1, 0)], text[match.end() : match.end() + 1]
            kind = "text" if match.lastgroup == "mark" else match.lastgroup
            tokens.append(Token(kind, match[0], match.start(), before.isspace(), after.isspace()))
    return tokens


def number_mutants(text):
    """Returns other numbers: twice or one more, zero, and the opposite."""
    digits = re.fullmatch(r"(0[xXbB][0-9a-fA-F']+|[\d.']+(?:[eE][+-]?\d+)?)(\w*)", text)
    if not digits:
        return []
    number, suffix = digits[1].replace("'", ""), digits[2]
    if number[:2].lower() in ("0x", "0b"):
        value = int(number, 0)
        return [f"{value + 1:#x}{suffix}", f"0{suffix}"] if value else [f"1{suffix}"]
    if re.search(r"[.eE]", number):
        value = float(number)
        return [f"{2 * value!r}{suffix}", f"0.0{suffix}", f"(-{text})"] if value else [f"1.0{suffix}"]
    if "f" in suffix.lower() or (len(number) > 1 and number[0] == "0"):
        return []
    value = int(number)
    opposite = [] if "u" in suffix.lower() else [f"(-{text})"]
    return [f"{value + 1}{suffix}", f"0{suffix}", *opposite] if value else [f"1{suffix}"]


class Finder:
    """Collects the mutants of one file."""

    def __init__(self, path, text):
        self.path = path
        self.text = text
        self.tokens = tokens_of(text)
        self.mutants = []
        self.partner = self.matching_brackets()
        self.ignored = self.ignored_tokens()

    def find(self):
        for index in range(len(self.tokens)):
            if index not in self.ignored:
                self.operator(index)
                self.constant(index)
                self.condition(index)
        self.calls()
        return self.mutants

    def at(self, index):
        if 0 <= index < len(self.tokens):
            return self.tokens[index]
        return Token("end", "", len(self.text), True, True)

    def add(self, kind, first, last, *replacements):
        start = self.at(first).start
        before = self.text[start : self.at(last).end]
        line = self.text.count("\n", 0, start) + 1
        column = start - self.text.rfind("\n", 0, start)
        self.mutants += [Mutant(self.path, start, line, column, kind, before, after) for after in replacements]

    def matching_brackets(self):
        partner, opened = {}, []
        for index, token in enumerate(self.tokens):
            if token.kind == "operator" and token.text in ("(", "[", "{"):
                opened.append(index)
            elif token.kind == "operator" and token.text in (")", "]", "}") and opened:
                partner[index] = opened.pop()
                partner[partner[index]] = index
        return partner

    def ignored_tokens(self):
        """Statements without code that runs, and pure virtual functions."""
        ignored = set()
        for index, token in enumerate(self.tokens):
            if token.text in ("static_assert", "using", "template"):
                end = index
                while self.at(end).text not in (";", "{", "class", "struct", ""):
                    end += 1
                ignored.update(range(index, end))
            if token.text == "=" and self.at(index + 1).text == "0" and self.at(index - 1).text in (")", "const"):
                ignored.add(index + 1)
        return ignored

    def operator(self, index):
        token, following = self.at(index), self.at(index + 1)
        if token.kind != "operator" or self.at(index - 1).text == "operator":
            return
        binary = token.spaced_before and token.spaced_after and self.at(index - 1).ends_operand
        joins_texts = "text" in (self.at(index - 1).kind, following.kind)
        if binary and token.text in ARITHMETIC and not joins_texts:
            self.add("arithmetic", index, index, ARITHMETIC[token.text])
        elif binary and token.text in ASSIGNMENT and not joins_texts:
            self.add("arithmetic", index, index, ASSIGNMENT[token.text])
        elif binary and token.text in COMPARISON:
            self.add("comparison", index, index, *COMPARISON[token.text])
        elif binary and token.text in LOGICAL:
            self.add("logical", index, index, LOGICAL[token.text])
        elif token.text in STEP and not self.is_step_of_loop(index):
            self.add("arithmetic", index, index, STEP[token.text])
        elif token.text == "-" and not token.spaced_after and following.kind == "word":
            if not self.at(index - 1).ends_operand:
                self.add("arithmetic", index, index, "")
        elif token.text == "!" and not token.spaced_after:
            self.add("logical", index, index, "")

    def is_step_of_loop(self, index):
        """An endless loop would only take time."""
        opened = [b for b, e in self.partner.items() if b < index < e and self.at(b).text == "("]
        return bool(opened) and self.at(max(opened) - 1).text == "for"

    def in_template_brackets(self, index):
        before, after = self.at(index - 1), self.at(index + 1)
        opened = before.text == "<" and not before.spaced_after
        closed = after.text in (">", ">>") and not after.spaced_before
        return opened or closed

    def constant(self, index):
        token = self.at(index)
        if self.in_template_brackets(index):
            return
        if token.kind == "number":
            self.add("constant", index, index, *number_mutants(token.text))
        elif token.kind == "word" and token.text in TRUTH:
            self.add("constant", index, index, TRUTH[token.text])

    def condition(self, index):
        """The negated condition of an if statement."""
        opening = index + 1
        if self.at(index).text != "if" or self.at(opening).text != "(" or opening not in self.partner:
            return
        first, last = opening + 1, self.partner[opening] - 1
        texts = [token.text for token in self.tokens[first : last + 1]]
        if ";" in texts:
            first += texts.index(";") + 1
        elif "=" in texts:
            return
        before = self.text[self.at(first).start : self.at(last).end]
        self.add("logical", first, last, f"!({before})")

    def calls(self):
        scopes = []
        head = []
        for index, token in enumerate(self.tokens):
            boundary = not head and scopes and scopes[-1]
            if boundary or self.ends_header(index - 1):
                self.call(index)
            if token.text == "{":
                names = head[: head.index("(")] if "(" in head else head
                scopes.append(not DECLARATIONS.intersection(names))
                head = []
            elif token.text == "}":
                if scopes:
                    scopes.pop()
                head = []
            else:
                head = [] if token.text == ";" else [*head, token.text]

    def ends_header(self, index):
        """Whether a statement without braces follows: the token ends "if (...)", "for (...)" or is "else"."""
        if self.at(index).text == ")":
            opening = self.partner.get(index, 0)
            return self.at(opening - 1).text in ("if", "for", "while")
        return self.at(index).text == "else"

    def call(self, first):
        """Adds the statement that starts here if it is only a call, such as "a::b(c)", "a->b<T>(c)" or "emit a(b)"."""
        index = first + 1 if self.at(first).text == "emit" else first
        name, called, joined = "", False, True
        while self.at(index).text != ";":
            token = self.at(index)
            if token.kind == "word" and joined and token.text not in NO_CALL:
                name, called, joined = token.text, False, False
            elif token.text in ("(", "[") and index in self.partner and name:
                called = token.text == "("
                index = self.partner[index]
            elif token.text == "<" and not token.spaced_before and not token.spaced_after:
                while self.at(index).text not in (">", ";", ""):
                    index += 1
            elif token.text in ("::", ".", "->"):
                joined = True
            else:
                return
            index += 1
        if called and name not in SILENT_CALLS:
            self.add("call", first, index - 1, "")


def mutants_of(path, text):
    """Returns all mutants of a file, in the order of their positions."""
    return sorted(Finder(path, text).find(), key=lambda mutant: (mutant.start, mutant.kind, mutant.after))


def sample(mutants, random):
    """Returns mutants in random order, one for each place and kind."""
    places = {}
    for mutant in mutants:
        places.setdefault((mutant.path, mutant.start, mutant.kind), []).append(mutant)
    chosen = [random.choice(group) for group in places.values()]
    random.shuffle(chosen)
    return chosen
