"""The licences of what the toolkit contains are told whole."""

import json
import pathlib
import subprocess
import sys
import tempfile
import unittest

SCRIPT = pathlib.Path(__file__).resolve().parents[2] / "packaging/windows/toolkit_parts.py"


class ToolkitParts(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.source = pathlib.Path(folder.name)

    def part(self, name, more, module="qtcore"):
        return {"Name": name, "QDocModule": module, "License": "Some Licence", "Copyright": "Copyright Ada"} | more

    def write(self, folder, told, **licences):
        (self.source / folder).mkdir(parents=True)
        (self.source / folder / "qt_attribution.json").write_text(told if isinstance(told, str) else json.dumps(told))
        for name, text in licences.items():
            (self.source / folder / name).write_text(text)

    def run_script(self):
        return subprocess.run([sys.executable, SCRIPT, self.source], capture_output=True, text=True)

    def test_each_part_comes_with_all_texts_of_its_licence(self):
        self.write("src/zip", self.part("Zip", {"Version": "1.2", "LicenseFile": "LICENCE"}), LICENCE="You may zip.\n")
        self.write("src/fonts", [self.part("Fonts", {"LicenseFiles": ["ONE", "TWO"]}, "qtgui"), self.part("Free", {})],
                   ONE="You may draw.", TWO="You may\n\nwrite.")
        done = self.run_script()
        self.assertEqual(done.returncode, 0, done.stderr)
        places = [done.stdout.index(text) for text in
                  ["Fonts\n=====", "    You may draw.", "    You may\n\n    write.", "Free\n====", "Zip 1.2\n", "    You may zip."]]
        self.assertEqual(places, sorted(places))
        self.assertEqual(done.stdout.count("Licence: Some Licence\nCopyright Ada"), 3)

    def test_what_is_not_linked_is_not_told(self):
        self.write("src/a", self.part("Linked", {}))
        self.write("src/b", self.part("Network", {}, "qtnetwork"))
        self.assertNotIn("Network", self.run_script().stdout)

    def test_texts_may_have_line_ends_in_them(self):
        self.write("src/a", json.dumps(self.part("Part", {"Copyright": "A@B"})).replace("@", "\n"))
        self.assertIn("A\nB", self.run_script().stdout)

    def test_a_licence_that_is_not_there_is_an_error(self):
        self.write("src/a", self.part("Part", {"LicenseFile": "GONE"}))
        done = self.run_script()
        self.assertNotEqual(done.returncode, 0)
        self.assertIn("GONE", done.stderr)

    def test_a_folder_that_is_no_toolkit_is_an_error(self):
        done = self.run_script()
        self.assertEqual(done.returncode, 1)
        self.assertIn("has no qt_attribution.json", done.stderr)


if __name__ == "__main__":
    unittest.main()
