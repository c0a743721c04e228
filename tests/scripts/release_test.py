"""A release is made of a tree that is ready for it, and of no other."""

import pathlib
import shutil
import subprocess
import tempfile
import unittest

SCRIPT = pathlib.Path(__file__).resolve().parents[2] / "scripts/release.sh"
READY = "# Changelog\n\n## 1.2.3 (2026-12-24)\n\n- New.\n"


class Release(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.tree = pathlib.Path(folder.name)
        (self.tree / "scripts").mkdir()
        shutil.copy(SCRIPT, self.tree / "scripts")
        (self.tree / "CMakeLists.txt").write_text("project(Velmora VERSION 1.2.3 LANGUAGES CXX)\n")
        (self.tree / "CHANGELOG.md").write_text(READY)
        self.git("init", "-q")
        self.commit()

    def git(self, *arguments):
        subprocess.run(["git", "-c", "user.name=n", "-c", "user.email=e", *arguments], cwd=self.tree, check=True)

    def commit(self):
        self.git("add", "-A")
        self.git("commit", "-qm", "All")

    def check(self, *arguments):
        done = subprocess.run(["scripts/release.sh", *arguments], cwd=self.tree, capture_output=True, text=True)
        return done.returncode, done.stderr

    def test_a_tree_that_is_ready(self):
        self.assertEqual(self.check("--check"), (0, ""))

    def test_changes_that_are_not_committed(self):
        (self.tree / "new").touch()
        self.assertEqual(self.check("--check"), (1, "release: there are changes that are not committed\n"))

    def test_a_changelog_of_another_version_or_without_its_day(self):
        for heading in ("## 1.2.4 (2026-12-24)", "## 1.2.3 (unreleased)"):
            (self.tree / "CHANGELOG.md").write_text(READY.replace("## 1.2.3 (2026-12-24)", heading))
            self.commit()
            status, said = self.check("--check")
            self.assertEqual(status, 1)
            self.assertIn(f'the changelog begins with "{heading}"', said)

    def test_words_that_it_does_not_know(self):
        self.assertEqual(self.check("--publish")[0], 2)


if __name__ == "__main__":
    unittest.main()
