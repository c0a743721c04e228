"""The maker of mutants: what it changes in a source and what it leaves, and how mutants share one program."""

import pathlib
import re
import shutil
import subprocess
import sys
import tempfile
import types
import unittest

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[2] / "scripts/mutants"))
import journal
import mutations
import tokens
import trials
import variants


def made(text):
    """The mutants of a source, as name: what it becomes."""
    return {m.change: variants.with_mutant(text, m) for m in mutations.mutants("src/link/a.cpp", text)}


def changed(body, head="int f(int a, int b)"):
    """What becomes of a function's body, as the texts between its braces."""
    start, end = f"{head} {{ ", " }\n"
    return {text.removeprefix(start).removesuffix(end) for text in made(f"{start}{body}{end}").values()}


class Changes(unittest.TestCase):
    def test_an_operator_becomes_the_one_it_is_mistaken_for(self):
        for old, new in [("<", "<="), (">=", ">"), ("==", "!="), ("&&", "||"), ("+", "-")]:
            self.assertEqual(changed(f"return a {old} b;"), {f"return a {new} b;"})

    def test_a_step_and_a_sum_go_the_other_way(self):
        self.assertEqual(changed("++a;"), {"--a;", ";"})
        self.assertEqual(changed("a += b;"), {"a -= b;", ";"})

    def test_signs_of_types_are_no_operators(self):
        self.assertEqual(changed("std::vector<int> v; T&& x = *b; T* y = -b; return v;"), set())

    def test_a_constant_becomes_the_next_one(self):
        self.assertEqual(changed("return 0x7F;"), {"return (0x7F + 1);"})
        self.assertEqual(changed("return 32'768;"), {"return (32'768 + 1);"})
        self.assertEqual(changed("return 'x';"), {"return char('x' + 1);"})
        self.assertEqual(changed("return true;"), {"return false;"})
        self.assertEqual(changed("return 1.5;"), set())

    def test_a_condition_is_negated(self):
        self.assertEqual(changed("if (a) { }"), {"if (!(a)) { }"})
        self.assertEqual(changed("while (f(a, (b))) { }"), {"while (!(f(a, (b)))) { }"})

    def test_of_a_condition_with_a_declaration_only_the_condition_is_negated(self):
        self.assertEqual(changed("if (int c = f(a); c) { }"), {"if (int c = f(a); !(c)) { }"})
        self.assertEqual(changed("if (const auto c = f(a)) { }"), set())

    def test_a_returned_truth_value_is_turned(self):
        self.assertEqual(changed("return g(a) or b;", "bool f()"), {"return !(g(a) or b);"})
        self.assertEqual(changed("return g(a);", "std::optional<bool> f()"), set())

    def test_a_statement_is_dropped(self):
        self.assertEqual(changed("a = b; g(a); x.y->z(b);"), {
            "; g(a); x.y->z(b);",
            "a = b; ; x.y->z(b);",
            "a = b; g(a); ;",
        })  # fmt: skip
        self.assertIn("if (a == b) { ; } return a;", changed("if (a == b) { return b; } return a;"))
        self.assertEqual(changed("switch (a) { case X: g(); break; default: h(); }"), {
            "switch (a) { case X: ; break; default: h(); }",
            "switch (a) { case X: g(); ; default: h(); }",
            "switch (a) { case X: g(); break; default: ; }",
        })  # fmt: skip

    def test_the_break_that_ends_a_switch_stays(self):
        for end in ("break; } g();", "{ break; } } g();"):
            body = f"switch (a) {{ case X: break; case Y: {end}"
            self.assertEqual(changed(body), {body.replace("X: break", "X: "), body.replace("g();", ";")})
        self.assertIn("while (a) { if (b) { ; } }", changed("while (a) { if (b) { break; } }"))

    def test_a_statement_of_a_lambda_is_dropped_alone_and_with_it(self):
        self.assertEqual(changed("each([&] { g(a); });"), {"each([&] { ; });", ";"})

    def test_declarations_and_the_last_return_stay(self):
        self.assertEqual(changed("int c; T d(a); n::T<int> e; T& g = d; const T h(a); T{a}; return c;"), set())

    def test_strings_comments_and_preprocessor_lines_stay(self):
        self.assertEqual(made('#if A < 2 && \\\n    B == 1\n#endif\n// a < b; g();\n/* if (a)\n */\n'), {})
        self.assertEqual(changed(r'return "a < 1 \" && 2";'), set())
        self.assertEqual(changed('return R"x(a" < )" 1)x";'), set())

    def test_what_is_for_windows_only_stays(self):
        text = "#ifdef _WIN32\n#if A\nint a = 1;\n#endif\nint b = 2;\n#else\nint b = 3;\n#endif\nint c = 4;\n"
        self.assertEqual(list(made(text)), ["3 becomes (3 + 1)", "4 becomes (4 + 1)"])
        text = "#ifndef _WIN32\nint a = 1;\n#else\nint a = 2;\n#endif\n"
        self.assertEqual(list(made(text)), ["1 becomes (1 + 1)"])

    def test_the_place_is_told(self):
        names = [m.name for m in mutations.mutants("src/link/a.cpp", "int f() {\n    return a < b;\n}\n")]
        self.assertEqual(names, ["src/link/a.cpp:2:14: < becomes <="])


class Functions(unittest.TestCase):
    def in_functions(self, text):
        """Of the constants of a source: those that are changed in a function."""
        found = mutations.mutants("src/link/a.cpp", text)
        return [text[m.start : m.end] for m in found if m.function and text[m.start].isdigit()]

    def test_constants_outside_of_functions_are_the_compilers(self):
        text = "namespace n { int a = 1, b[] = {2}; struct S { int c = 3; int g() { h(4); } }; int f() { h(5); } }"
        self.assertEqual(self.in_functions(text), ["4", "5"])

    def test_what_the_compiler_may_compute_is_the_compilers(self):
        self.assertEqual(self.in_functions("constexpr int f() { return 1; } int g() { return 2; }"), ["2"])

    def test_initialisers_of_members_are_not_the_body(self):
        text = "S::S(int x) : a_{1}, b_(2) { g(3); } S::S() : T(4), c_{5} {} auto S::f() -> T { return 6; }"
        self.assertEqual(self.in_functions(text), ["3", "6"])


class Variants(unittest.TestCase):
    TEXT = (
        "#include <cstdio>\n"
        "namespace {\n"
        "int sign(int a) {\n"
        "    if (a < 0) {\n"
        "        return 7;\n"
        "    }\n"
        "    return 0;\n"
        "}\n"
        "}\n"
        'int main() { std::printf("%d %d %d", sign(-1), sign(0), __LINE__); }\n'
    )

    def numbered(self):
        found = [m for m in mutations.mutants("a.cpp", self.TEXT) if m.function]
        return dict(enumerate(found, 1))

    @unittest.skipUnless(shutil.which("c++"), "no compiler")
    def test_the_environment_chooses_the_mutant_of_one_program(self):
        numbered = self.numbered()
        with tempfile.TemporaryDirectory() as folder:
            source, program = pathlib.Path(folder) / "a.cpp", pathlib.Path(folder) / "a"
            source.write_text(variants.with_mutants(self.TEXT, tokens.cut(self.TEXT), numbered))
            subprocess.run(["c++", source, "-o", program], check=True)
            said = {
                number: subprocess.check_output([program], env={variants.SWITCH: str(number)}, text=True)
                for number in [0, *numbered]
            }
        self.assertEqual(said[0], "7 0 10")
        outcome = {numbered[number].change: text for number, text in said.items() if number}
        self.assertEqual(outcome["< becomes <="], "7 7 10")
        self.assertEqual(outcome["negated: a < 0"], "0 7 10")
        self.assertEqual(outcome["7 becomes (7 + 1)"], "8 0 10")
        self.assertEqual(outcome["dropped: return 7;"], "0 0 10")

    @unittest.skipUnless(shutil.which("c++"), "no compiler")
    def test_a_mutant_that_does_not_compile_is_named(self):
        numbered = self.numbered()
        broken = next(number for number, m in numbered.items() if m.change == "negated: a < 0")
        numbered[broken] = types.SimpleNamespace(**{**vars(numbered[broken]), "replacement": "a + "})
        text = variants.with_mutants(self.TEXT, tokens.cut(self.TEXT), numbered)
        done = subprocess.run(["c++", "-fsyntax-only", "-xc++", "-"], input=text, capture_output=True, text=True)
        self.assertEqual(variants.not_compiling(done.stderr), {broken})


class Results(unittest.TestCase):
    def test_the_last_result_of_a_mutant_counts(self):
        with tempfile.TemporaryDirectory() as folder:
            path = pathlib.Path(folder) / "new/journal"
            written = journal.Journal(path)
            written.add("src/link/a.cpp:1:1: first", journal.SURVIVED)
            written.add("src/link/a.cpp:1:2: second", journal.SURVIVED)
            written.add("src/link/a.cpp:1:1: first", journal.KILLED, "link_tests: Crc.KnownValues")
            read = journal.Journal(path)
        self.assertEqual(read.names(journal.SURVIVED), ["src/link/a.cpp:1:2: second"])
        self.assertEqual(read.counts("src/link/"), {journal.KILLED: 1, journal.SURVIVED: 1})
        self.assertEqual(read.counts("src/files/"), {})


class Outcomes(unittest.TestCase):
    def outcome(self, script, number="7"):
        """What is told of a test program that does this."""
        with tempfile.TemporaryDirectory() as folder:
            program = pathlib.Path(folder) / "build/tests/link_tests"
            program.parent.mkdir(parents=True)
            program.write_text(f"#!/bin/sh\n{script}\n")
            program.chmod(0o755)
            return trials.Trials(pathlib.Path(folder), pathlib.Path(folder)).outcome("link_tests", "*", number, 5)

    def test_a_program_that_passes_tells_nothing(self):
        self.assertEqual(self.outcome("true"), "")

    def test_the_test_that_failed_is_named(self):
        self.assertEqual(self.outcome('echo "[  FAILED  ] Crc.Known, where x (0 ms)"; exit 1'), "link_tests: Crc.Known")

    def test_a_crash_is_told_by_its_number(self):
        self.assertEqual(self.outcome("kill -6 $$"), "link_tests: ended with -6")

    def test_the_mutant_is_named_to_the_program(self):
        self.assertEqual(self.outcome(f'exit "${variants.SWITCH}"', "3"), "link_tests: ended with 3")

    def test_what_a_program_writes_is_its_own(self):
        self.assertEqual(self.outcome('test "$TMPDIR" = "$PWD" && touch left'), "")


class Programs(unittest.TestCase):
    TREE = pathlib.Path(__file__).resolve().parents[2]

    def test_every_test_program_of_a_folder_is_known(self):
        for folder, (own, _) in trials.PROGRAMS.items():
            tests = self.TREE / folder.replace("src", "tests")
            lists = "".join(path.read_text() for path in [tests / "CMakeLists.txt", *tests.glob("*.cmake")])
            built = {name for name in re.findall(r"velmora_test\((\w+)", lists) if not re.search("win32|comport", name)}
            self.assertEqual(set(own), built)

    def test_the_tests_of_a_sources_own_file_come_first(self):
        suites = trials.own_suites(self.TREE, "src/link/crc.cpp")
        self.assertRegex(suites, r"^\w+\.\*:\*/\w+\.\*:\w+/\*")
        self.assertEqual(trials.own_suites(self.TREE, "src/link/nothing.cpp"), "")


if __name__ == "__main__":
    unittest.main()
