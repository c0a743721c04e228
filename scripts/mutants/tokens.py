"""Cuts C++ into tokens, as far as a maker of small changes needs them."""

import dataclasses
import re

TOKEN = re.compile(
    r"""
    (?P<space>\s+)
  | (?P<comment>//(?:\\\n|[^\n])*|/\*.*?\*/)
  | (?P<directive>(?m:^)[ \t]*\#(?:\\\n|[^\n])*)
  | (?P<string>(?:u8|[uUL])?R"(?P<mark>[^\s()\\]{0,16})\(.*?\)(?P=mark)"|(?:u8|[uUL])?"(?:\\.|[^"\\\n])*")
  | (?P<character>(?:u8|[uUL])?'(?:\\.|[^'\\\n])+')
  | (?P<number>\.?\d(?:[eEpP][+-]|'?\w|\.)*)
  | (?P<word>[A-Za-z_]\w*)
  | (?P<sign><=>|<<=|>>=|->\*|\.\.\.|->|\+\+|--|<<|>>|<=|>=|==|!=|&&|\|\||[-+*/%&|^]=|::|.)
    """,
    re.VERBOSE | re.DOTALL,
)


@dataclasses.dataclass(frozen=True)
class Token:
    """A token with its place in the text; kind is a group of TOKEN."""

    kind: str
    text: str
    start: int

    @property
    def end(self):
        return self.start + len(self.text)


def cut(text):
    """The tokens of a source, without blanks, comments, preprocessor lines and what is for Windows only."""
    tokens, at, conditions = [], 0, []
    while at < len(text):
        found = TOKEN.match(text, at)
        kind = found.lastgroup if found.lastgroup != "mark" else "string"
        if kind == "directive":
            _follow(found.group().split(), conditions)
        elif kind not in ("space", "comment") and WINDOWS not in conditions:
            tokens.append(Token(kind, found.group(), at))
        at = found.end()
    return tokens


WINDOWS, ELSEWHERE = "#ifdef _WIN32", "#ifndef _WIN32"


def _follow(directive, conditions):
    """Keeps the conditions under which the source behind a directive is compiled, the innermost last."""
    if directive[0] in ("#if", "#ifdef", "#ifndef"):
        conditions.append(" ".join(directive))
    elif directive[0] == "#endif":
        conditions.pop()
    elif directive[0] in ("#else", "#elif"):
        conditions.append({WINDOWS: ELSEWHERE, ELSEWHERE: WINDOWS}.get(conditions.pop(), ""))


OPENING = {"(": ")", "[": "]", "{": "}"}


def partners(tokens):
    """The index of the closing token by that of each opening bracket ( [ {, and the other way round."""
    found, open_ = {}, []
    for index, token in enumerate(tokens):
        if token.kind != "sign":
            continue
        if token.text in OPENING:
            open_.append(index)
        elif open_ and token.text == OPENING[tokens[open_[-1]].text]:
            found[index] = open_.pop()
            found[found[index]] = index
    return found
