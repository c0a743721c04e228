"""Installs the built programs into a folder and looks at what stands there, as the system's own tools see it.

install_test.py BUILD_FOLDER
"""

import configparser
import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile
import unittest

BUILD = sys.argv[1]
PREFIX = re.search(r"^CMAKE_INSTALL_PREFIX:PATH=(.*)$", (pathlib.Path(BUILD) / "CMakeCache.txt").read_text(), re.M)[1]
# The most that the system's own judgement of a unit may be: 0 is locked away, 10 is open to all.
MOST_EXPOSED = 2.0


def tool(*command):
    """What a tool of the system says, and its status."""
    done = subprocess.run(command, capture_output=True, text=True)
    return done.returncode, done.stdout + done.stderr


class Install(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        folder = tempfile.TemporaryDirectory()
        cls.addClassCleanup(folder.cleanup)
        subprocess.run(["cmake", "--install", BUILD], env={**os.environ, "DESTDIR": folder.name},
                       check=True, capture_output=True)
        cls.root = pathlib.Path(folder.name)
        cls.tree = cls.root / PREFIX.lstrip("/")

    def find(self, name):
        self.assertTrue((self.tree / name).is_file(), name)
        return self.tree / name

    def test_every_program_answers(self):
        self.find("bin/velmora-cable")
        for name in ("velmora", "velmorad", "velmora-organiser", "velmora-files", "velmora-doctor"):
            status, said = tool(self.find("bin/" + name), "--version")
            self.assertEqual((status, said.split()[0]), (0, name))

    def test_manual_pages_and_completions_lie_where_they_are_looked_for(self):
        for name in ("velmora", "velmorad", "velmora-organiser", "velmora-files", "velmora-doctor", "velmora-cable"):
            self.find(f"share/man/man1/{name}.1")
            self.find(f"share/bash-completion/completions/{name}")
            self.find(f"share/zsh/vendor-completions/_{name}")
            self.find(f"share/fish/vendor_completions.d/{name}.fish")
        self.find("share/man/man5/Velmora.ini.5")

    def test_the_example_of_a_configuration_is_what_a_first_start_writes(self):
        example = self.find("share/doc/velmora-server/examples/Velmora.ini")
        written = self.tree / "first" / "Velmora.ini"
        written.parent.mkdir()
        tool(self.find("bin/velmorad"), "--config", written, "--port", "/dev/null/none")
        self.assertEqual(example.read_bytes(), written.read_bytes())

    def test_texts_are_ready_made_in_each_language(self):
        for language in ("en", "de", "es", "fr", "it", "nl"):
            self.find(f"share/velmora/languages/Velmora.{language}.ini")

    def test_wireshark_can_be_given_the_dissector_and_its_profile(self):
        for name in ("organiser.lua", "Velmora/colorfilters", "Velmora/preferences"):
            self.find("share/velmora/wireshark/" + name)

    def test_the_licence_goes_along_once(self):
        self.find("share/doc/velmora/LICENSE")
        self.assertEqual(list(self.tree.rglob("copyright")), [], "packages have it in their own form")

    def test_the_desktop_starts_what_is_installed(self):
        entry = self.find("share/applications/velmora.desktop")
        self.assertEqual(tool("desktop-file-validate", entry), (0, ""))
        desktop = configparser.ConfigParser(interpolation=None)
        desktop.read(entry)
        self.find("bin/" + desktop["Desktop Entry"]["Exec"])
        actions = desktop["Desktop Entry"]["Actions"].rstrip(";").split(";")
        self.assertEqual(desktop.sections(), ["Desktop Entry", *("Desktop Action " + action for action in actions)])
        for action in actions:
            self.find("bin/" + desktop["Desktop Action " + action]["Exec"].split()[0])
        icon = desktop["Desktop Entry"]["Icon"]
        for size in (16, 24, 32, 48, 64, 128, 256):
            self.find(f"share/icons/hicolor/{size}x{size}/apps/{icon}.png")
        self.find(f"share/icons/hicolor/scalable/apps/{icon}.svg")

    def test_catalogues_find_the_desktop_entry(self):
        metainfo = self.find("share/metainfo/org.velmora.Velmora.metainfo.xml")
        status, said = tool("appstreamcli", "validate", "--no-net", metainfo)
        self.assertEqual(status, 0, said)
        launched = re.search(r'type="desktop-id">(.*)<', metainfo.read_text())[1]
        self.find("share/applications/" + launched)

    def test_units_start_what_is_installed(self):
        for name in ("velmorad.service", "velmorad@.service"):
            unit = self.find("lib/systemd/system/" + name).read_text()
            self.assertNotIn("@VELMORA", unit)
            program, *arguments = re.search(r"^ExecStart=(.*)$", unit, re.M)[1].split()
            self.assertEqual(program, PREFIX + "/bin/velmorad")
            self.assertIn("--stay-in-folder", arguments)
            documentation = re.search(r"^Documentation=man:velmorad\(1\) file://(.*)$", unit, re.M)[1]
            self.assertTrue((self.root / documentation.lstrip("/")).is_file(), documentation)

    def test_units_give_the_server_little_to_harm(self):
        if shutil.which("systemd-analyze") is None:
            self.skipTest("this system has no systemd")
        for name in ("velmorad.service", "velmorad@.service"):
            _, said = tool("systemd-analyze", "security", "--offline=true", self.find("lib/systemd/system/" + name))
            self.assertLess(float(re.search(r"exposure level for .*: ([0-9.]+)", said)[1]), MOST_EXPOSED)

    def test_an_instance_has_a_configuration_and_a_folder_of_its_own(self):
        unit = self.find("lib/systemd/system/velmorad@.service").read_text()
        start = re.search(r"^ExecStart=(.*)$", unit, re.M)[1]
        self.assertIn("--config /etc/velmora/%i.ini --folder /var/lib/velmora/%i ", start)

    def test_the_service_has_its_user_and_its_folders(self):
        self.assertIn("\nm velmora dialout\n", self.find("lib/sysusers.d/velmora.conf").read_text())
        self.assertIn("/etc/velmora", self.find("lib/tmpfiles.d/velmora.conf").read_text())
        self.assertIn('TAG+="uaccess"', self.find("lib/udev/rules.d/70-velmora.rules").read_text())

    def test_documents_link_to_what_is_there(self):
        pages = list((self.tree / "share/doc/velmora/docs").glob("*.html"))
        self.assertGreater(len(pages), 5)
        anchors = {page: set(re.findall(r'id="([^"]+)"', page.read_text())) for page in pages}
        for page in pages:
            for link, anchor in re.findall(r'(?:href|src)="([^":#]*)(?:#([^"]*))?"', page.read_text()):
                target = page.parent / link if link else page
                self.assertTrue(target.exists(), f"{page.name} links to {link}")
                if anchor:
                    self.assertIn(anchor, anchors[target], f"{page.name} links to {link}#{anchor}")


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
