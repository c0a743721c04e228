"""The check of the includes: which arrows between folders it lets pass, and what it draws."""

import contextlib
import io
import pathlib
import runpy
import tempfile
import unittest

SCRIPT = runpy.run_path(str(pathlib.Path(__file__).resolve().parents[2] / "scripts/draw-includes.py"))


class DrawIncludes(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.root = pathlib.Path(folder.name)
        self.page = self.root / "docs/development/architecture.md"
        self.page.parent.mkdir(parents=True)
        self.page.write_text("before\n" + SCRIPT["BEGIN"] + SCRIPT["END"] + "after\n")
        for name in ("base/clock.h", "link/plp.h", "services/tools.h", "startup/settings.h", "ui/registry.h"):
            self.source(name, "")

    def source(self, name, text):
        path = self.root / "src" / name
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_text(text)

    def faults(self, check=False):
        """What the script says."""
        said = io.StringIO()
        with contextlib.redirect_stderr(said):
            status = SCRIPT["main"](self.root, check)
        self.assertEqual(status, 1 if said.getvalue() else 0)
        return said.getvalue()

    def test_an_include_that_points_down_is_drawn(self):
        self.source("services/tools.cpp", '#include "link/plp.h"\n')
        self.assertEqual(self.faults(), "")
        self.assertIn("  services[services] --> link[link]\n", self.page.read_text())
        self.assertTrue(self.page.read_text().endswith(SCRIPT["END"] + "after\n"))

    def test_an_include_that_points_up_is_refused(self):
        self.source("link/plp.cpp", '#include "base/clock.h"\n#include "services/tools.h"\n')
        self.assertEqual(self.faults(), 'link/plp.cpp: "services/tools.h" points up, from link to services\n')

    def test_an_include_of_a_folder_beside_is_refused(self):
        self.source("startup/settings.cpp", '#include "ui/registry.h"\n')
        self.assertIn("points to ui, which is not below startup", self.faults())

    def test_an_include_of_no_file_is_refused(self):
        self.source("link/plp.cpp", '#include "plp.h"\n')
        self.assertIn('"plp.h" is no file below src/', self.faults())

    def test_a_folder_without_a_place_is_refused(self):
        self.source("attic/old.cpp", "")
        self.assertIn("attic has no place", self.faults())

    def test_a_folder_inside_another_belongs_to_it(self):
        self.source("platform/posix/files.cpp", '#include "base/clock.h"\n')
        self.source("base/clock.cpp", '#include "base/clock.h"\n')
        self.assertEqual(self.faults(), "")
        self.assertIn("  platform[platform] --> base[base]\n```", self.page.read_text())

    def test_the_toolkit_is_for_the_windows_alone(self):
        self.source("ui/qt/window.cpp", "#include <QWidget>\n")
        self.assertEqual(self.faults(), "")
        self.source("link/plp.cpp", "#include <QTimer>\n")
        self.assertIn("link/plp.cpp: <QTimer>", self.faults())

    def test_an_arrow_that_a_longer_way_makes_plain_is_not_drawn(self):
        self.source("services/tools.cpp", '#include "link/plp.h"\n#include "base/clock.h"\n')
        self.source("link/plp.cpp", '#include "base/clock.h"\n')
        self.assertEqual(self.faults(), "")
        self.assertNotIn("services[services] --> base[base]", self.page.read_text())

    def test_a_picture_that_is_not_current_is_told_and_left_alone(self):
        self.source("services/tools.cpp", '#include "link/plp.h"\n')
        before = self.page.read_text()
        self.assertIn("architecture.md: the picture is not the current one", self.faults(check=True))
        self.assertEqual(self.page.read_text(), before)
        self.faults()
        self.assertEqual(self.faults(check=True), "")


if __name__ == "__main__":
    unittest.main()
