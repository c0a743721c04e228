#!/usr/bin/env python3
"""Opens the worksheets that velmora-files writes with wks2csv and ssconvert and compares what they find."""

import argparse
import csv
import io
import pathlib
import subprocess
import tempfile
import unittest

TOOLS = None

# A row with every kind of cell: what it is written from, what wks2csv -F makes of it in the common dialect
# (its references count a header line, so row 1 is its row 2), and its value. No value has more than six
# digits: wks2csv prints no more.
VALUES = [("3", 3), ("4", 4), ("5.5", 5.5), ("-0.125", -0.125), ("123456", 123456), ("two words", "two words")]
FORMULAS = [
    ("($A$1+$B$1)*$C$1", "=($A$2+$B$2)*$C$2", 38.5),
    ("$A$1-$B$1-$C$1", "=$A$2-$B$2-$C$2", -6.5),
    ("$A$1-($B$1-$C$1)", "=$A$2-($B$2-$C$2)", 4.5),
    ("-$A$1**2", "=-($A$2^2)", -9),
    ("($A$1*$B$1)+1", "=$A$2*$B$2+1", 13),
    ("MOD($E$1+3,$B$1)", "=Mod($E$2+3;$B$2)", 3),
    ("CHOOSE(2,$A$1,$B$1)", "=Choose(2;$A$2;$B$2)", 4),
    ("IF($A$1>2 AND $B$1>2,10,20)", "=IF(And($A$2>2;$B$2>2);10;20)", 10),
    ("SUM($A$1:$C$1)", "=Sum($A$2:$C$2)", 12.5),
    ("ROUND($A$1/7,2)", "=Round($A$2/7;2)", 0.43),
    ("5.0E-1*$A$1", "=0.5*$A$2", 1.5),
    ("SUM($A$1,MAX($B$1,$C$1))", "=Sum($A$2;Max($B$2;$C$2))", 8.5),
]
# References that move with their cell; these stand from column S on.
RELATIVE = [("A1+B1", "=A2+B2"), ("$A1*B$1", "=$A2*B$2"), ("SUM(A1:C1)", "=Sum(A2:C2)")]


def dif_source():
    """A DIF file with the cells above in one row: formulas go in as indicators."""
    items = ["-1,0", "BOT"]
    for text, value in VALUES:
        items += ["1,0", f'"{text}"'] if isinstance(value, str) else [f"0,{text}", "V"]
    for formula in [row[0] for row in FORMULAS + RELATIVE]:
        items += ["0,0", formula]
    count = len(VALUES) + len(FORMULAS) + len(RELATIVE)
    head = ["TABLE", "0,1", '""', "VECTORS", f"0,{count}", '""', "TUPLES", "0,1", '""', "DATA", "0,0", '""']
    return "\r\n".join(head + items + ["-1,0", "EOD", ""])


def number_or_text(field):
    try:
        return float(field)
    except ValueError:
        return field


class Worksheets(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)
        (self.folder / "source.dif").write_text(dif_source(), newline="")

    def run_tool(self, *command):
        done = subprocess.run([str(part) for part in command], cwd=self.folder, capture_output=True, text=True,
                              check=False)
        self.assertEqual(done.returncode, 0, done.stderr)
        return done.stdout

    def convert(self, out, *options, source="source.dif"):
        self.run_tool(TOOLS.files, "sheet", source, out, "--locale", "C", *options)
        return out

    def wks2csv(self, name, *options):
        """The rows below the header line that wks2csv puts in front."""
        return list(csv.reader(io.StringIO(self.run_tool(TOOLS.wks2csv, *options, name))))[1:]

    def gnumeric(self, name):
        self.run_tool(TOOLS.ssconvert, "--recalc", name, "read.csv")
        return list(csv.reader(io.StringIO((self.folder / "read.csv").read_text())))

    def assert_values(self, fields, expected):
        self.assertEqual(len(fields), len(expected), fields)
        for field, value in zip(fields, expected):
            if isinstance(value, str):
                self.assertEqual(field, value)
            else:
                self.assertAlmostEqual(number_or_text(field), value, places=9)

    def test_libwps_reads_the_values_of_both_dialects(self):
        for dialect in ("own", "common"):
            name = self.convert(f"{dialect}.wks", "--to-dialect", dialect)
            row = self.wks2csv(name)[0]
            self.assert_values(row[:len(VALUES)], [value for _, value in VALUES])

    def test_libwps_reads_the_formulas_of_the_common_dialect(self):
        row = self.wks2csv(self.convert("common.wks", "--to-dialect", "common"), "-F")[0]
        self.assertEqual(row[len(VALUES):], [row[1] for row in FORMULAS + RELATIVE])

    def test_libwps_reads_own_formulas_without_their_parentheses(self):
        row = self.wks2csv(self.convert("own.wks"), "-F")[0]
        self.assertEqual(row[len(VALUES)], "=$A$2+$B$2*$C$2", "what the common dialect is for")
        self.assertEqual(row[len(VALUES) + 8], "=Sum($A$2:$C$2)")

    def test_gnumeric_computes_the_formulas_of_the_common_dialect(self):
        row = self.gnumeric(self.convert("common.wks", "--to-dialect", "common"))[0]
        known = len(VALUES) + len(FORMULAS)
        self.assert_values(row[:known], [value for _, value in VALUES] + [row[2] for row in FORMULAS])

    def test_gnumeric_reads_dif(self):
        row = self.gnumeric(self.convert("values.dif"))[0]
        self.assert_values(row[:len(VALUES)], [value for _, value in VALUES])

    def test_gnumeric_reads_csv(self):
        row = self.gnumeric(self.convert("values.csv"))[0]
        self.assert_values(row[:len(VALUES)], [value for _, value in VALUES])

    def test_the_csv_of_both_programs_comes_back_in(self):
        name = self.convert("common.wks", "--to-dialect", "common")
        wanted = [value for _, value in VALUES]
        (self.folder / "libwps.csv").write_text(self.run_tool(TOOLS.wks2csv, name))
        self.gnumeric(name)
        for made, row in (("libwps.csv", 1), ("read.csv", 0)):
            self.convert("back.tab", "--separator", "auto", source=made)
            lines = (self.folder / "back.tab").read_text().splitlines()
            self.assert_values(lines[row].split("\t")[:len(wanted)], wanted)

    def test_gnumerics_dif_comes_back_in(self):
        self.run_tool(TOOLS.ssconvert, self.convert("values.csv"), "gnumeric.dif")
        self.convert("back.tab", source="gnumeric.dif")
        row = (self.folder / "back.tab").read_text().splitlines()[0].split("\t")
        self.assert_values(row[:len(VALUES)], [value for _, value in VALUES])


if __name__ == "__main__":
    parser = argparse.ArgumentParser(description=__doc__)
    for tool in ("files", "wks2csv", "ssconvert"):
        parser.add_argument(f"--{tool}", required=True, help=f"path of {tool}")
    TOOLS = parser.parse_args()
    unittest.main(argv=["worksheets.py"], verbosity=2)
