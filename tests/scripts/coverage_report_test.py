"""The report of what the tests reach: what it reads, what it leaves out, and when it fails."""

import contextlib
import io
import pathlib
import runpy
import tempfile
import unittest

SCRIPT = runpy.run_path(str(pathlib.Path(__file__).resolve().parents[2] / "scripts/coverage-report.py"))

INFO = """\
SF:/checkout/src/link/plp.cpp
DA:1,5
DA:2,0
DA:3,1
BRDA:1,0,0,5
BRDA:1,0,1,-
BRDA:3,0,0,1
BRDA:3,0,1,2
end_of_record
SF:/usr/include/c++/12/vector
DA:1,0
end_of_record
SF:/checkout/build/../src/ui/qt/frm.cpp
DA:7,1
end_of_record
"""


class CoverageReport(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.root = pathlib.Path(folder.name)

    def report(self, info, limits, *named):
        """Whether every folder is as wanted, and what is printed."""
        printed = io.StringIO()
        with contextlib.redirect_stdout(printed):
            good = SCRIPT["report"](
                SCRIPT["read_coverage"](info, "/checkout"), SCRIPT["read_limits"](limits), named, self.root
            )
        return good, printed.getvalue()

    def test_lines_and_branches_are_counted_by_folder(self):
        good, printed = self.report(INFO, "src/link 60 75  # a remark\n\nsrc/ui 100 100\n")
        self.assertTrue(good, printed)
        self.assertRegex(printed, r"src/link +66\.66% +60\.00% +75\.00% +75\.00%")
        self.assertRegex(printed, r"src/ui +100\.00% +100\.00% +100\.00% +100\.00%")
        self.assertNotIn("vector", printed)
        self.assertIn("3 of 4 branches, every folder as wanted", printed)

    def test_a_folder_below_its_share_of_lines_or_branches_fails(self):
        for limits in ("src/link 67 75\n", "src/link 60 76\n"):
            good, printed = self.report(INFO, limits)
            self.assertFalse(good)
            self.assertIn("below what is wanted in src/link", printed)

    def test_a_folder_without_code_fails(self):
        self.assertFalse(self.report(INFO, "src/gone 0 0\n")[0])

    def test_what_is_missing_is_listed_where_all_is_wanted_or_that_is_asked_for(self):
        missing = ["src/link/plp.cpp:1: 1 of 2 branches", "src/link/plp.cpp:2: not reached"]
        for limits, named in (("src/link 100 100\n", ()), ("src/link 0 0\n", ("src/link",))):
            for line in missing:
                self.assertIn(line, self.report(INFO, limits, *named)[1])
        self.assertNotIn(missing[0], self.report(INFO, "src/link 0 0\n")[1])

    def test_lines_that_say_why_they_are_unreachable_are_listed_and_left_out(self):
        source = self.root / "src/link/plp.cpp"
        source.parent.mkdir(parents=True)
        source.write_text("one;  // unreachable: the first\ntwo;  // unreachable: the second\nthree;\n")
        good, printed = self.report(INFO, "src/link 100 100\n")
        self.assertTrue(good, printed)
        self.assertIn("2 lines say why", printed)
        self.assertIn("src/link/plp.cpp:2: the second", printed)

    def test_the_way_past_all_cases_of_a_switch_is_no_branch(self):
        source = self.root / "src/link/plp.cpp"
        source.parent.mkdir(parents=True)
        source.write_text("    switch (state) {\n")
        self.assertIn("2 of 2 branches", self.report(INFO, "")[1])

    def test_a_line_that_one_program_reaches_is_reached(self):
        again = "SF:/checkout/src/link/plp.cpp\nDA:2,1\nBRDA:1,0,1,1\nend_of_record\n"
        self.assertTrue(self.report(INFO + again, "src/link 100 100\n")[0])

    def test_nothing_is_rounded_up(self):
        lines = "".join(f"DA:{number},{min(number, 2) - 1}\n" for number in range(1, 30001))
        self.assertFalse(self.report("SF:/checkout/src/link/b.cpp\n" + lines, "src/link 100 100\n")[0])


if __name__ == "__main__":
    unittest.main()
