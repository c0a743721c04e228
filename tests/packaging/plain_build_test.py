"""Configures as packagers do, on a machine with less than a developer's.

plain_build_test.py SOURCE_FOLDER
"""

import pathlib
import shutil
import subprocess
import sys
import tempfile
import unittest
import xml.etree.ElementTree

SOURCES = sys.argv[1]
# What a machine does not have, as CMake is told.
WITHOUT_TESTS = [f"-DCMAKE_DISABLE_FIND_PACKAGE_{name}=ON" for name in ("GTest", "benchmark", "Python3")]
WITHOUT_WINDOWS = [f"-DCMAKE_DISABLE_FIND_PACKAGE_Qt6{name}=ON" for name in ("Widgets", "Gui")]


class PlainBuild(unittest.TestCase):
    def configure(self, *options):
        """The rules that the build is made by; too long to be shown where one is not as it should be."""
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        done = subprocess.run(["cmake", "-S", SOURCES, "-B", folder.name, "-G", "Ninja", *options],
                              capture_output=True, text=True)
        self.assertEqual(done.returncode, 0, done.stderr)
        self.build = pathlib.Path(folder.name)
        return (self.build / "build.ninja").read_text() + (self.build / "CMakeFiles/rules.ninja").read_text()

    def test_the_programs_need_nothing_of_the_tests(self):
        self.assertTrue("build bin/velmora:" in self.configure(*WITHOUT_TESTS), "build bin/velmora:")

    def test_the_server_without_a_window_needs_no_widgets(self):
        rules = self.configure("-DVELMORA_DESKTOP=OFF", *WITHOUT_TESTS, *WITHOUT_WINDOWS)
        self.assertTrue("build bin/velmorad:" in rules, "build bin/velmorad:")
        self.assertFalse("build bin/velmora:" in rules, "build bin/velmora:")
        self.assertFalse("Widgets" in rules, "Widgets")

    def test_pages_of_other_tools_can_be_left_out(self):
        rules = self.configure("-DVELMORA_MANUALS=OFF", *WITHOUT_TESTS)
        for made in ("Velmora.ini.5", "documents/user-guide.html"):
            self.assertFalse(made in rules, made)
        self.assertTrue("manual/velmorad.1" in rules, "manual/velmorad.1")

    def test_windows_can_be_in_english_only(self):
        rules = self.configure("-DVELMORA_TRANSLATIONS=OFF", *WITHOUT_TESTS)
        self.assertFalse("velmora_de.qm" in rules, "velmora_de.qm")
        self.assertTrue("build bin/velmora:" in rules, "build bin/velmora:")

    def test_a_missing_tool_of_translators_is_told(self):
        options = ("-DVELMORA_TRANSLATIONS=ON", "-DVELMORA_LRELEASE=VELMORA_LRELEASE-NOTFOUND",
                   "-DCMAKE_IGNORE_PATH=/usr/lib/qt6/bin;/usr/bin", "-DCMAKE_CXX_COMPILER=/usr/bin/c++",
                   "-DCMAKE_MAKE_PROGRAM=" + shutil.which("ninja"))
        with tempfile.TemporaryDirectory() as build:
            done = subprocess.run(["cmake", "-S", SOURCES, "-B", build, "-G", "Ninja", *options],
                                  capture_output=True, text=True)
        self.assertNotEqual(done.returncode, 0)
        self.assertIn("qt6-l10n-tools", done.stderr)

    def test_the_packagers_launcher_is_left_alone(self):
        rules = self.configure("-DCMAKE_CXX_COMPILER_LAUNCHER=/usr/bin/nice", *WITHOUT_TESTS)
        self.assertTrue("/usr/bin/nice" in rules, "/usr/bin/nice")
        self.assertFalse("ccache" in rules, "ccache")

    def test_catalogues_are_given_the_pictures_that_somebody_publishes(self):
        self.configure("-DVELMORA_PICTURES=https://example.org/pictures", *WITHOUT_TESTS)
        metainfo = self.build / "packaging/org.velmora.Velmora.metainfo.xml"
        done = subprocess.run(["appstreamcli", "validate", "--no-net", metainfo], capture_output=True, text=True)
        self.assertEqual(done.returncode, 0, done.stdout)
        pictures = xml.etree.ElementTree.parse(metainfo).findall("screenshots/screenshot/image")
        self.assertEqual(len(pictures), 4)
        self.assertEqual(pictures[0].text, "https://example.org/pictures/main-window.png")


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
