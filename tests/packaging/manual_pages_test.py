"""Reads the manual pages as the build makes them with the programs that show them.

manual_pages_test.py BUILD_FOLDER
"""

import os
import pathlib
import re
import shutil
import subprocess
import sys
import unittest

BUILD = pathlib.Path(sys.argv[1])
PAGES = sorted((BUILD / "manual").glob("*.[15]"))
PROGRAMS = ("velmora", "velmorad", "velmora-organiser", "velmora-files", "velmora-doctor", "velmora-cable")


def program(name):
    return next(path for path in (BUILD / "bin" / name, BUILD / "tools" / name) if path.exists())


def shown(page, *options):
    """What man shows of a page, and what it has to complain of."""
    environment = {**os.environ, "LC_ALL": "C.UTF-8", "MANWIDTH": "90", "MAN_KEEP_FORMATTING": "", "MANPAGER": "cat"}
    done = subprocess.run(["man", "--warnings", *options, "-l", page], capture_output=True, text=True, env=environment)
    return re.sub(".\b", "", done.stdout), done.stderr


def words(text):
    """A text without its line breaks and hyphens of the page."""
    return " ".join(re.sub("\u2010\n *", "", text).split()).replace("\u2010", "-")


@unittest.skipIf(shutil.which("man") is None, "this system shows no manual pages")
class ManualPages(unittest.TestCase):
    def test_every_program_and_the_configuration_have_one(self):
        names = [page.name for page in PAGES]
        self.assertEqual(names, sorted([name + ".1" for name in PROGRAMS] + ["Velmora.ini.5"]))

    def test_they_are_shown_without_a_warning(self):
        for page in PAGES:
            text, complaints = shown(page, "--no-hyphenation")
            self.assertEqual(complaints, "", page.name)
            self.assertIn("NAME", text)

    def test_lists_of_pages_tell_what_each_is(self):
        for page in PAGES:
            name = page.stem
            told = subprocess.run(["lexgrog", page], capture_output=True, text=True).stdout
            self.assertRegex(told, f'"{re.escape(name)} - .+"')

    def test_a_page_has_every_line_of_the_help(self):
        for name in PROGRAMS:
            page = words(shown(BUILD / "manual" / (name + ".1"), "--no-hyphenation")[0])
            said = subprocess.run([program(name), "--help"], capture_output=True, text=True).stdout
            helped = 0
            for line in said.splitlines():
                for part in re.split(r"  +", line.strip()):
                    if line.startswith("  ") and not part.startswith("-") and " " in part:
                        helped += 1
                        self.assertIn(part, page, name)
            self.assertGreater(helped, 1, name)

    def test_commands_stand_there_with_their_options(self):
        page = words(shown(BUILD / "manual" / "velmora-organiser.1", "--no-hyphenation")[0])
        self.assertIn("save [options] file Save a file on the server.", page)
        self.assertIn("--as name", page)
        page = words(shown(BUILD / "manual" / "velmora-files.1", "--no-hyphenation")[0])
        self.assertIn("boot make [options] code", page)

    def test_the_configuration_page_has_every_key(self):
        document = (pathlib.Path(__file__).parents[2] / "docs/configuration.md").read_text()
        page = words(shown(BUILD / "manual" / "Velmora.ini.5", "--no-hyphenation")[0])
        keys = re.findall(r"^\| `(\w+)` \|", document, re.M)
        self.assertGreater(len(keys), 30)
        for key in keys:
            self.assertIn(f" {key}", page)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
