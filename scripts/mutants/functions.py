"""Finds the bodies of functions among the tokens of a source."""

import dataclasses


@dataclasses.dataclass(frozen=True)
class Function:
    """A function by the indices of its tokens: those before the body, and the braces of the body."""

    head: int
    opening: int
    closing: int
    is_bool: bool  # whether it returns a bool
    is_constant: bool  # whether the compiler may need its value


def find(tokens, partners):
    """The functions that are not in functions, by their order. Lambdas belong to the function around them."""
    functions = []
    head = index = 0
    while index < len(tokens):
        text = tokens[index].text
        if text in ("(", "["):
            index = partners.get(index, index)
        elif text in (";", "}"):
            head = index + 1
        elif text == "{":
            closing = partners.get(index, index)
            before = [token.text for token in tokens[head:index]]
            if _is_scope(before):
                head = index + 1
            else:
                if _is_body(before):
                    functions.append(_function(head, index, closing, before))
                    head = closing + 1
                index = closing
        index += 1
    return functions


def _is_scope(before):
    words = set(before)
    return "namespace" in words or ("(" not in words and "=" not in words and bool(words & {"class", "struct"}))


def _is_body(before):
    """Whether a brace behind these tokens opens a function's body, not an initialiser."""
    if "(" not in before or "=" in before[: before.index("(")] or "enum" in before:
        return False
    if before[-1] in (")", "}", "const", "noexcept", "override"):
        return True
    # A name behind a single colon is a member's, with its initialiser.
    return "->" in before and ":" not in before


def _function(head, opening, closing, before):
    front = before[: before.index("(")]
    is_bool = any(word == "bool" and previous != "<" for previous, word in zip([""] + front, front))
    return Function(head, opening, closing, is_bool, bool({"constexpr", "consteval"} & set(before)))
