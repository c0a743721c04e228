"""Completes command lines in the shells with what the build makes for them.

completions_test.py BUILD_FOLDER
"""

import os
import pathlib
import shutil
import subprocess
import sys
import tempfile
import unittest

MANUAL = pathlib.Path(sys.argv[1]).resolve() / "manual"
PROGRAMS = ("velmora", "velmorad", "velmora-organiser", "velmora-files", "velmora-doctor", "velmora-cable")

# Stands for the programs, which would list this machine's ports and this user's folder.
PROGRAM = """#!/bin/sh
case $1 in
--list-ports)
  echo 'Port  Device        Adapter        State  Lasting name for --port'
  echo 'COM5  /dev/ttyUSB0  FTDI, the one  free   usb:0403:6001:A50285BI'
  echo '      /dev/ttyQ9    other          in use by cat (7)  /dev/ttyQ9'
  ;;
--print-config)
  echo "$HOME/Velmora.ini"
  echo "default  [Settings] DownloadPath=$HOME/Psion Files"
  echo 'default  [Settings] DataFileType=0'
  ;;
esac
"""

BASH = """
source "$1"
shift
COMP_WORDS=("$@")
COMP_CWORD=$(($# - 1))
"_${1//-/_}"
printf '%s\\n' "${COMPREPLY[@]}"
"""

# Types a line into a shell with a terminal of its own, presses Tab, and tells what stands there then.
ZSH = """
zmodload zsh/zpty
zpty typed zsh -f -i
zpty -w typed "PS1= PS2=; unsetopt zle_bracketed_paste 2>/dev/null; fpath=($1 \\$fpath)"
zpty -w typed "autoload -Uz compinit && compinit -u -D"
zpty -w typed 'tell() { print -r -- "<<$BUFFER>>"; BUFFER=; zle accept-line }; zle -N tell; bindkey "^X" tell'
zpty -w typed 'print -r -- rea""dy'
zpty -r typed output '*ready*'
zpty -n -w typed "$2"$'\\t\\x18'
zpty -r typed output '*>>*'
print -r -- ${${output##*<<}%%>>*}
"""


class Completions(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.home = pathlib.Path(folder.name)
        for name in PROGRAMS:
            path = self.home / "bin" / name
            path.parent.mkdir(exist_ok=True)
            path.write_text(PROGRAM)
            path.chmod(0o755)
        (self.home / "Psion Files").mkdir()
        (self.home / "Psion Files" / "MEMO.odb").touch()
        (self.home / "Psion Files" / "Other one.txt").touch()
        (self.home / "here.ini").touch()
        (self.home / "tray").mkdir()
        self.environment = {"PATH": f"{self.home}/bin:/usr/bin:/bin", "HOME": str(self.home), "LC_ALL": "C.UTF-8",
                            "TERM": "dumb"}

    def run_shell(self, *command):
        done = subprocess.run(command, capture_output=True, text=True, env=self.environment, cwd=self.home, timeout=60)
        self.assertEqual(done.stderr, "", command)
        return done.stdout.splitlines()


class Bash(Completions):
    def complete(self, *words):
        return self.run_shell("bash", "--norc", "-c", BASH, "bash", MANUAL / words[0], *words)

    def test_options_and_commands(self):
        self.assertEqual(self.complete("velmorad", "--st"), ["--stay-in-folder"])
        self.assertEqual(self.complete("velmora-organiser", "sheet"), ["sheet-save", "sheet-load"])
        self.assertEqual(self.complete("velmora-files", "boot", ""), ["make", "check"])
        self.assertIn("--relocations", self.complete("velmora-files", "boot", "make", "--r"))
        self.assertEqual(self.complete("velmora-organiser", "save", "x", "--dev"), ["--device"])

    def test_the_command_stands_behind_options_with_values(self):
        self.assertEqual(self.complete("velmora-organiser", "--baud", "load", "--device", "=", "x", "save", "--as"),
                         ["--as"])

    def test_ports(self):
        for words in (("velmorad", "--port", ""), ("velmora-organiser", "--device", "=")):
            self.assertEqual(self.complete(*words), ["/dev/ttyQ9", "/dev/ttyUSB0"])

    def test_files_and_folders(self):
        self.assertEqual(self.complete("velmorad", "--config", "he"), ["here.ini"])
        self.assertEqual(self.complete("velmorad", "--folder", "t"), ["tray"])
        self.assertEqual(self.complete("velmora-organiser", "save", "he"), ["here.ini"])

    def test_load_offers_the_files_of_the_served_folder(self):
        self.assertEqual(sorted(self.complete("velmora-organiser", "load", "")), ["MEMO.odb", "Other one.txt"])

    def test_other_values_have_nothing_to_offer(self):
        self.assertEqual(self.complete("velmorad", "--baud", ""), [""])


@unittest.skipIf(shutil.which("fish") is None, "this system has no fish")
class Fish(Completions):
    def complete(self, line):
        script = MANUAL / (line.split()[0] + ".fish")
        offered = self.run_shell("fish", "--no-config", "-c", f"source {script}; complete -C '{line}'")
        return [each.split("\t")[0] for each in offered]

    def test_options_and_commands(self):
        self.assertEqual(self.complete("velmorad --st"), ["--stay-in-folder"])
        self.assertEqual(sorted(self.complete("velmora-organiser sheet")), ["sheet-load", "sheet-save"])
        self.assertEqual(sorted(self.complete("velmora-files boot ")), ["check", "make"])
        self.assertEqual(self.complete("velmora-files boot make --rel"), ["--relocations"])

    def test_ports(self):
        self.assertEqual(self.complete("velmorad --port "), ["/dev/ttyQ9", "/dev/ttyUSB0"])

    def test_files_and_folders(self):
        self.assertEqual(self.complete("velmorad --config he"), ["here.ini"])
        self.assertEqual(self.complete("velmorad --folder t"), ["tray/"])

    def test_load_offers_the_files_of_the_served_folder(self):
        self.assertIn("MEMO.odb", self.complete("velmora-organiser load "))


@unittest.skipIf(shutil.which("zsh") is None, "this system has no zsh")
class Zsh(Completions):
    def complete(self, line):
        return self.run_shell("zsh", "-f", "-c", ZSH, "zsh", MANUAL, line)

    def test_options_and_commands(self):
        self.assertEqual(self.complete("velmorad --st"), ["velmorad --stay-in-folder "])
        self.assertEqual(self.complete("velmora-organiser --baud 9600 shee"), ["velmora-organiser --baud 9600 sheet-"])
        self.assertEqual(self.complete("velmora-files boot m"), ["velmora-files boot make "])
        self.assertEqual(self.complete("velmora-files boot make --rel"), ["velmora-files boot make --relocations="])

    def test_ports(self):
        self.assertEqual(self.complete("velmorad --port /dev/ttyU"), ["velmorad --port /dev/ttyUSB0 "])
        self.assertEqual(self.complete("velmora-organiser load M --device=/dev/ttyQ"),
                         ["velmora-organiser load M --device=/dev/ttyQ9 "])

    def test_files_and_folders(self):
        self.assertEqual(self.complete("velmorad --config he"), ["velmorad --config here.ini "])
        self.assertEqual(self.complete("velmorad --folder t"), ["velmorad --folder tray/"])

    def test_load_offers_the_files_of_the_served_folder(self):
        self.assertEqual(self.complete("velmora-organiser load ME"), ["velmora-organiser load MEMO.odb "])


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
