"""There is one version: what the project says, the programs, the packages and the documents say, too.

version_test.py BUILD_FOLDER
"""

import pathlib
import re
import subprocess
import sys
import unittest
import xml.etree.ElementTree

BUILD = pathlib.Path(sys.argv[1])
ROOT = pathlib.Path(__file__).resolve().parents[2]
VERSION = re.search(r"^project\(Velmora VERSION ([0-9.]+)", (ROOT / "CMakeLists.txt").read_text(), re.M)[1]
PROGRAMS = ("bin/velmora", "bin/velmorad", "bin/velmora-organiser", "bin/velmora-files", "bin/velmora-doctor", "tools/velmora-cable")


class Version(unittest.TestCase):
    def test_every_program_says_it(self):
        for program in PROGRAMS:
            said = subprocess.run([BUILD / program, "--version"], capture_output=True, text=True).stdout
            self.assertRegex(said, rf"^{pathlib.Path(program).name} {re.escape(VERSION)}( \([0-9a-f]+\))?\n$")

    def test_the_changelog_begins_with_it(self):
        headings = re.findall(r"^## (\S+) \(([^)]*)\)$", (ROOT / "CHANGELOG.md").read_text(), re.M)
        self.assertEqual(headings[0][0], VERSION)
        for _, date in headings[1:]:
            self.assertRegex(date, r"^\d{4}-\d\d-\d\d$", "only what comes next is unreleased")

    def test_catalogues_know_the_releases_of_the_changelog(self):
        metainfo = xml.etree.ElementTree.parse(BUILD / "packaging/org.velmora.Velmora.metainfo.xml")
        listed = [release.get("version") for release in metainfo.iter("release")]
        logged = re.findall(r"^## (\S+) ", (ROOT / "CHANGELOG.md").read_text(), re.M)
        self.assertEqual(listed, logged)

    def test_every_kind_of_package_has_it(self):
        configuration = (BUILD / "CPackConfig.cmake").read_text()
        self.assertIn(f'set(CPACK_PACKAGE_VERSION "{VERSION}")', configuration)
        self.assertIn("set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})",
                      (ROOT / "packaging/windows/package.cmake").read_text())
        self.assertIn(f"velmora ({VERSION}) ", (BUILD / "packaging/debian/changelog").read_text())

    def test_documents_name_packages_of_it(self):
        found = 0
        for page in (ROOT / "README.md", *(ROOT / "docs").glob("*.md")):
            for version in re.findall(r"velmora(?:-\w+)?_([0-9.]+)_\w+\.deb", page.read_text()):
                self.assertEqual(version, VERSION, page.name)
                found += 1
        self.assertGreater(found, 0)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
