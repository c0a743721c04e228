"""Every file of the project has a licence, and the licence is the one that the project names."""

import pathlib
import shutil
import subprocess
import unittest

ROOT = pathlib.Path(__file__).resolve().parents[2]


class Licences(unittest.TestCase):
    @unittest.skipIf(shutil.which("reuse") is None or not (ROOT / ".git").exists(),
                     "needs reuse, and a checkout, which tells what belongs to the project")
    def test_every_file_has_one(self):
        done = subprocess.run(["reuse", "--root", ROOT, "lint"], capture_output=True, text=True)
        self.assertEqual(done.returncode, 0, done.stdout + done.stderr)

    def test_the_project_and_its_parts_have_the_same(self):
        self.assertEqual((ROOT / "LICENSE").read_text(), (ROOT / "LICENSES/MIT.txt").read_text())
        holder = next(line for line in (ROOT / "LICENSE").read_text().splitlines() if line.startswith("Copyright"))
        self.assertIn(holder.removeprefix("Copyright (c) "), (ROOT / ".reuse/dep5").read_text())


if __name__ == "__main__":
    unittest.main()
