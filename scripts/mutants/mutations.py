"""Makes small faults of the kinds that people make, each in one place of a source."""

import bisect
import dataclasses
import re

import functions
import tokens as cutter

# What each operator is mistaken for.
OPERATORS = {
    "<": "<=", "<=": "<", ">": ">=", ">=": ">", "==": "!=", "!=": "==",
    "&&": "||", "||": "&&", "+": "-", "-": "+", "+=": "-=", "-=": "+=",
}  # fmt: skip
STEPS = {"++": "--", "--": "++"}
WORDS = {"true": "false", "false": "true"}
# What a statement that can be dropped does not begin with: the others are declarations or have statements in them.
KEPT = set(
    "if for while do switch case default else try catch const constexpr static auto using typedef struct class enum "
    "namespace template public private protected".split()
)
DROPPED = {"return", "break", "continue", "throw", "delete"}
INTEGER = re.compile(r"(0[xX][0-9a-fA-F']+|[0-9][0-9']*)[uUlLzZ]*")


@dataclasses.dataclass(frozen=True)
class Mutant:
    """One change: text[start:end] of the source becomes `replacement`."""

    path: str  # relative to the tree
    line: int  # from 1
    column: int  # from 1, in characters
    start: int
    end: int
    replacement: str
    change: str  # in words
    function: functions.Function | None  # which can be chosen when the program runs; None is for the compiler

    @property
    def name(self):
        return f"{self.path}:{self.line}:{self.column}: {self.change}"

    @property
    def folder(self):
        return self.path.rpartition("/")[0]


def mutants(path, text):
    """All mutants of a source, by their place."""
    return sorted(_Maker(path, text).run(), key=lambda mutant: (mutant.start, mutant.end, mutant.change))


class _Maker:
    def __init__(self, path, text):
        self.path, self.text = path, text
        self.tokens = cutter.cut(text)
        self.partners = cutter.partners(self.tokens)
        self.functions = functions.find(self.tokens, self.partners)
        self.lines = [0] + [match.end() for match in re.finditer("\n", text)]

    def run(self):
        found = []
        for index in range(len(self.tokens)):
            function = self.function_at(index)
            found += self.exchanged(index)
            if function:
                found += self.negated(index) + self.turned(index, function) + self.dropped(index, function)
        return found

    def function_at(self, index):
        for function in self.functions:
            if function.opening < index < function.closing:
                return function
        return None

    def mutant(self, first, last, replacement, change):
        """A change of the tokens from first to last."""
        start, end = self.tokens[first].start, self.tokens[last].end
        line = bisect.bisect_right(self.lines, start)
        function = self.function_at(first)
        if function and function.is_constant:
            function = None
        return Mutant(
            self.path, line, start - self.lines[line - 1] + 1, start, end, replacement, change, function
        )

    def source(self, first, last):
        """The tokens from first to last as they stand, in one line."""
        return " ".join(self.text[self.tokens[first].start : self.tokens[last].end].split())

    def text_of(self, index):
        return self.tokens[index].text if 0 <= index < len(self.tokens) else ""

    def exchanged(self, index):
        """A token for another: an operator, a truth value, a constant for the next one."""
        token = self.tokens[index]
        replacement = WORDS.get(token.text)
        if token.kind == "sign":
            replacement = STEPS.get(token.text)
            if self.stands_alone(token):
                replacement = OPERATORS.get(token.text)
        elif token.kind == "number" and INTEGER.fullmatch(token.text):
            replacement = f"({token.text} + 1)"
        elif token.kind == "character" and token.text.startswith("'"):
            replacement = f"char({token.text} + 1)"
        if replacement is None:
            return []
        return [self.mutant(index, index, replacement, f"{token.text} becomes {replacement}")]

    def stands_alone(self, token):
        """Whether a sign is an operator between two values. The layout of the sources puts blanks around those, and
        none around signs of pointers, references and templates on both sides."""
        return self.text[token.start - 1 : token.start].isspace() and self.text[token.end : token.end + 1].isspace()

    def negated(self, index):
        """The condition of an if or a loop is negated."""
        if self.text_of(index) not in ("if", "while") or self.text_of(index + 1) != "(":
            return []
        closing = self.partners[index + 1]
        first = index + 2
        for part in self.level(first, closing):
            if self.text_of(part) == ";":
                first = part + 1
        if any(self.text_of(part) == "=" for part in self.level(first, closing)):
            return []  # a declaration
        condition = self.text[self.tokens[first].start : self.tokens[closing - 1].end]
        return [self.mutant(first, closing - 1, f"!({condition})", f"negated: {self.source(first, closing - 1)}")]

    def turned(self, index, function):
        """A function returns the other truth value."""
        if not function.is_bool or self.text_of(index) != "return":
            return []
        end = self.statement_end(index)
        if end is None or end == index + 1 or self.text_of(index + 1) in WORDS:
            return []
        value = self.text[self.tokens[index + 1].start : self.tokens[end - 1].end]
        return [self.mutant(index + 1, end - 1, f"!({value})", f"turned: {self.source(index, end)}")]

    def dropped(self, index, function):
        """A statement is left out, unless it is the last one and gives the function's value or ends a switch."""
        if not self.begins_statement(index) or self.text_of(index) in KEPT or self.declares(index):
            return []
        end = self.statement_end(index)
        if end is None or (self.text_of(index) == "return" and end + 1 == function.closing):
            return []
        if self.text_of(index) == "break" and self.closes_switch(end + 1):
            return []
        return [self.mutant(index, end, ";", f"dropped: {self.source(index, end)}")]

    def closes_switch(self, index):
        """Whether a brace ends a switch, or a case with braces of its own that is the last one."""
        if self.text_of(index) != "}":
            return False
        before = self.partners[index] - 1
        if self.text_of(before) == ":":
            return self.closes_switch(index + 1)
        return self.text_of(before) == ")" and self.text_of(self.partners[before] - 1) == "switch"

    def begins_statement(self, index):
        before = self.text_of(index - 1)
        if before in (";", "{", "}"):
            token = self.tokens[index]
            return token.kind == "word" or token.text in ("++", "--", "*")
        return before == ":" and self.ends_label(index - 1)

    def ends_label(self, index):
        while index >= 0 and self.text_of(index) not in (";", "{", "}", "?"):
            if self.text_of(index) in ("case", "default"):
                return True
            index -= 1
        return False

    def declares(self, index):
        """Whether a statement begins with a type: a name, and behind it another or a sign of a type."""
        if self.text_of(index) in DROPPED or self.tokens[index].kind != "word":
            return False
        while self.text_of(index + 1) == "::":
            index += 2
        following = self.tokens[index + 1]
        return following.kind == "word" or following.text in ("*", "&", "&&", "<", "{")

    def statement_end(self, index):
        """The semicolon of the statement that begins here, None when it is no statement."""
        while index < len(self.tokens):
            text = self.text_of(index)
            if text == ";":
                return index
            if text in cutter.OPENING:
                index = self.partners[index]
            elif text in (")", "]", "}"):
                return None
            index += 1
        return None

    def level(self, first, last):
        """The indices from first on and before last that are not in brackets."""
        while first < last:
            yield first
            first = self.partners.get(first, first) + 1
