"""Puts mutants into a source: many at a time, of which one is chosen when the program starts."""

import re

SWITCH = "VELMORA_MUTANT"  # the environment variable with the number of the mutant that is to run
HEAD = f"""#include <cstdlib>
static const int kRunningMutant = std::getenv("{SWITCH}") ? std::atoi(std::getenv("{SWITCH}")) : 0;
"""


def with_mutant(text, mutant):
    """The source with one mutant in it."""
    return text[: mutant.start] + mutant.replacement + text[mutant.end :]


def with_mutants(text, tokens, numbered):
    """The source with many mutants, which must be in functions. A function then is a switch with a copy of its body
    for each mutant, and with the true one. `numbered` has the mutants by their numbers from 1."""
    by_function = {}
    for number, mutant in numbered.items():
        by_function.setdefault(mutant.function, []).append((number, mutant))
    parts, at = [HEAD, line_mark(1, next(iter(numbered.values())).path)], 0
    for function in sorted(by_function, key=lambda each: each.opening):
        start, end = tokens[function.opening].start, tokens[function.closing].end
        parts += [text[at:start], "{ switch (kRunningMutant) {\n"]
        for number, mutant in by_function[function]:
            body = text[start : mutant.start] + mutant.replacement + text[mutant.end : end]
            parts += [f"case {number}:\n", line_mark(1, f"mutant-{number}"), body, "\nbreak;\n"]
        parts += ["default:\n", line_mark(text.count("\n", 0, start) + 1, mutant.path), text[start:end], "\n} }\n"]
        parts.append(line_mark(text.count("\n", 0, end) + 1, mutant.path))
        at = end
    return "".join(parts + [text[at:]])


def line_mark(line, name):
    """Tells the compiler what to call the lines from the next one on."""
    return f'#line {line} "{name}"\n'


def not_compiling(messages):
    """The numbers of the mutants that the compiler's messages name."""
    return {int(number) for number in re.findall(r"mutant-(\d+)", messages)}
