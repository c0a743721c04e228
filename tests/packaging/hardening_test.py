"""Reads from the programs as they were built what makes a fault in them harder to exploit.

hardening_test.py CONFIGURATION SOURCE_FOLDER BUILD_FOLDER PROGRAM …: ELF programs are read with readelf, Windows programs
by hand. CONFIGURATION is CMake's; a program that is not built as "Release" may name its sources.
"""

import pathlib
import re
import struct
import subprocess
import sys
import unittest

CONFIGURATION, SOURCES, BUILD = sys.argv[1:4]
PROGRAMS = [pathlib.Path(name) for name in sys.argv[4:]]

# Flags of a program's optional header (Microsoft PE format, "DLL characteristics").
HIGH_ENTROPY_VA = 0x0020
DYNAMIC_BASE = 0x0040
NX_COMPAT = 0x0100
RELOCATIONS_STRIPPED = 0x0001  # of the file header: then it cannot lie elsewhere after all

ENDBR64 = bytes.fromhex("f30f1efa")  # where an indirect branch may land


def is_elf(program):
    return program.read_bytes().startswith(b"\x7fELF")


def readelf(option, program):
    return subprocess.run(["readelf", "--wide", option, program], capture_output=True, text=True, check=True).stdout


class Hardening(unittest.TestCase):
    def test_there_are_programs(self):
        self.assertGreaterEqual(len(PROGRAMS), 2)

    @unittest.skipUnless(CONFIGURATION == "Release", "this is no release")
    def test_no_path_of_the_build_machine_is_in_a_program(self):
        for program in PROGRAMS:
            image = program.read_bytes()
            for folder in (SOURCES, BUILD):
                self.assertFalse(folder.encode() in image, program.name)


@unittest.skipUnless(all(map(is_elf, PROGRAMS)), "the programs are another system's")
class ElfHardening(unittest.TestCase):
    def expect_in(self, output_of, pattern):
        """What readelf prints, with an option, of each program has the pattern."""
        for program in PROGRAMS:
            self.assertTrue(re.search(pattern, readelf(output_of, program)), program.name)

    def test_a_program_lies_at_a_random_address(self):
        self.expect_in("--dynamic", r"FLAGS_1.*\bPIE\b")

    def test_every_address_is_bound_at_the_start_and_then_read_only(self):
        self.expect_in("--dynamic", r"FLAGS_1.*\bNOW\b")
        self.expect_in("--segments", r"GNU_RELRO")

    def test_the_stack_is_no_code(self):
        self.expect_in("--segments", r"GNU_STACK.* RW ")

    def test_stacks_and_indices_are_guarded(self):
        self.expect_in("--dyn-syms", r"UND __stack_chk_fail@")
        self.expect_in("--dyn-syms", r"UND \w+__glibcxx_assert_fail\w+@")

    def test_the_library_checks_what_it_is_called_with(self):
        # A C++ program calls few of the functions that have a checked form; all open files.
        self.expect_in("--dyn-syms", r"UND __(\w+_chk|open(64)?_2)@")

    def test_indirect_branches_land_where_they_may(self):
        for program in PROGRAMS:
            if "X86-64" in readelf("--file-header", program):
                self.assertGreater(program.read_bytes().count(ENDBR64), 100, program.name)


@unittest.skipIf(any(map(is_elf, PROGRAMS)), "the programs are another system's")
class WindowsHardening(unittest.TestCase):
    def test_a_program_may_lie_anywhere_and_data_is_no_code(self):
        for program in PROGRAMS:
            image = program.read_bytes()
            (header,) = struct.unpack_from("<I", image, 0x3C)
            self.assertEqual(image[header : header + 4], b"PE\0\0")
            (kind,) = struct.unpack_from("<H", image, header + 4 + 18)
            (characteristics,) = struct.unpack_from("<H", image, header + 4 + 20 + 70)
            self.assertFalse(kind & RELOCATIONS_STRIPPED, program.name)
            for flag in (HIGH_ENTROPY_VA, DYNAMIC_BASE, NX_COMPAT):
                self.assertTrue(characteristics & flag, f"{program.name} {flag:#x}")


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
