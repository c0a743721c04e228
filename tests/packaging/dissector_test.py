"""Dissects the captures of the tests and holds what is found against what was recorded, field by field.

dissector_test.py SOURCE_FOLDER
"""

import os
import pathlib
import re
import subprocess
import sys
import tempfile
import unittest

SOURCE = pathlib.Path(sys.argv[1])
CAPTURES = SOURCE / "tests" / "captures"
WIRESHARK = SOURCE / "packaging" / "wireshark"
SERVICES = {
    "boot": {"FILE", "BOOT"}, "clock": {"TIME", "GMT", "TIMEINFO"}, "data": {"FTRAN"}, "exit": {"EXIT"},
    "files": {"FILE"}, "folder": {"FTRAN", "FILE"}, "noise": {"FTRAN"}, "procedure": {"FTRAN"},
    "refused": {"FTRAN", "NOSUCH"}, "repeats": {"FTRAN", "FILE"}, "sheet": {"PLANM", "PLAN"},
}


def dissect(name, *options, home=None):
    """What tshark prints of a capture; it must have nothing to say about the dissector."""
    command = ["tshark", "-2", "-X", f"lua_script:{WIRESHARK / 'organiser.lua'}", "-r", CAPTURES / f"{name}.pcapng"]
    done = subprocess.run([*command, *options], capture_output=True, text=True, check=True,
                          env={**os.environ, "HOME": home or "/nonexistent", "TZ": "UTC"})
    said = [line for line in done.stderr.splitlines() if line and not line.startswith("Running as user")]
    assert said == [], said
    return done.stdout


def rows(name, where, *fields):
    """The fields of the packets that a filter finds; of a packet that has a field twice both, parted by commas."""
    options = ["-Y", where, "-T", "fields", "-E", "separator=|"]
    for field in fields:
        options += ["-e", "organiser." + field]
    return [line.split("|") for line in dissect(name, *options).splitlines()]


def column(name, where, field):
    """All values of a field, in their order."""
    return [value for row in rows(name, where, field) for value in row[0].split(",") if value]


def check(body):
    """The CRC-16/ARC of a body, as tshark prints it."""
    register = 0
    for byte in body:
        register ^= byte
        for _ in range(8):
            register = register >> 1 ^ (0xA001 if register & 1 else 0)
    return f"0x{register:04x}"


class Dissector(unittest.TestCase):
    def test_every_capture_is_understood_to_its_end(self):
        self.assertEqual({path.stem for path in CAPTURES.glob("*.pcapng")}, set(SERVICES))
        for name, services in SERVICES.items():
            with self.subTest(capture=name):
                text = dissect(name, "-V")
                self.assertNotIn("Lua Error", text)
                self.assertNotIn("Malformed", text)
                self.assertNotIn("Bytes of no frame", text)
                self.assertEqual(set(re.findall(r"open service (\w+)$", text, re.M)), services)
                self.assertEqual("Check is right: False" in text, name == "noise")

    def test_a_link_request_and_its_answer(self):
        first = rows("clock", "frame.number <= 4 && organiser", "direction", "type", "sequence", "check", "check.good")
        self.assertEqual([row for row in first if row[0]], [
            ["from the server", "16", "0", check(b"\x01\x10"), "1"],
            ["from the Organiser", "16", "0", check(b"\x01\x10"), "1"],
            ["from the server", "0", "0", check(b"\x01\x00"), "1"]])

    def test_comments_stand_in_the_list(self):
        self.assertIn("state: wait link", dissect("clock"))
        self.assertIn("port closed", dissect("clock"))

    def test_clocks(self):
        texts = column("clock", "organiser.text", "text")
        self.assertEqual([len(text) for text in texts], [19, 19 + 2, 19 + 1 + 5 + 2])

    def test_records_of_a_data_file(self):
        self.assertEqual(rows("data", "organiser.operation == 0", "service", "mode", "file_type", "name"),
                         [["FTRAN", "1", "0", "MEMO"], ["FTRAN", "0", "0", "MEMO"]])
        self.assertEqual(len(rows("data", "organiser.operation == 2", "length")), 3)
        reads = rows("data", "organiser.operation == 3", "maximum")
        self.assertEqual(len(reads), 4)
        self.assertEqual(len({maximum for maximum, in reads}), 1)
        self.assertEqual(column("data", "organiser.code == 238 && organiser.direction == \"from the server\"", "code"),
                         ["238"])

    def test_escapes_are_taken_out(self):
        found = rows("data", "organiser.escapes > 0 && organiser.type == 24", "escapes", "length", "data")
        self.assertEqual(len(found), 2)
        for escapes, length, data in found:
            data = data.split(",")[-1]
            self.assertIn("2", escapes.split(","))
            self.assertTrue(data.endswith("6c657374696e65091010"), data)  # "…lestine", a tab, twice 10
            self.assertEqual(len(data) // 2, int(length.split(",")[-1]))

    def test_types_of_files(self):
        self.assertEqual(column("procedure", "organiser.operation == 0", "file_type"), ["1", "1", "3", "3"])

    def test_bytes_lines_and_seeking(self):
        self.assertEqual(rows("files", "organiser.operation == 0", "mode", "kind", "name"),
                         [["1", "1", "NOTES.TXT"], ["0", "1", "NOTES.TXT"], ["1", "0", "RAW.DAT"], ["0", "0", "RAW.DAT"]])
        self.assertEqual(rows("files", "organiser.seek.mode", "operation", "seek.mode", "seek.offset"), [["4", "2", "-6"]])
        self.assertEqual(column("files", "organiser.text", "text"), ["00000012"])

    def test_listings(self):
        self.assertEqual(rows("folder", "organiser.kind", "kind", "name"), [["2", "*"], ["3", "M*"]])

    def test_sheets(self):
        self.assertEqual(column("sheet", "organiser.service == \"PLANM\" && organiser.format", "format"),
                         ["2", "3", "4", "5", "6"])
        self.assertEqual(rows("sheet", "organiser.saves", "saves", "format", "name"),
                         [["1", "2", "PLAN"], ["0", "2", "PLAN"]])
        self.assertEqual(rows("sheet", "organiser.columns", "columns", "rows"), [["3", "2"]])
        cells = rows("sheet", "organiser.cell", "direction", "cell", "cell.type", "text")
        kept = [["A1", "34", "Sum"], ["B1", "135", "12"]]
        self.assertEqual([row[1:] for row in cells],
                         [*kept, ["C2", "135", "=B1*2.5"], *kept, ["C2", "135", "=B1*2.5E0"]])
        self.assertTrue(all("from the Organiser" in row[0] for row in cells[:3]))
        self.assertTrue(all(row[0] == "from the server" for row in cells[3:]))

    def test_boot_code(self):
        self.assertEqual(column("boot", "organiser.code_length", "code_length"), ["4"])
        self.assertEqual(column("boot", "organiser.address", "address"), ["0x2000", "0x2000"])
        self.assertEqual(column("boot", "organiser.service == \"BOOT\" && organiser.name", "name"), ["CODE"])

    def test_refusals_in_words(self):
        text = dissect("refused", "-V", "-Y", "organiser.refused")
        self.assertIn("Reason: no such file (189)", text)
        self.assertIn("Reason: invalid request or unknown service (190)", text)
        self.assertEqual(column("refused", "organiser.refused", "code"), ["189", "190"])

    def test_acknowledgements_find_their_frames(self):
        sent = rows("data", "organiser.ack_in", "ack_in")
        answered = rows("data", "organiser.ack_to", "ack_to", "ack_time")
        self.assertEqual(len(sent), len(rows("data", "organiser.type == 24", "type")))
        self.assertEqual(len(sent), len(answered))
        for _, time in answered:
            self.assertGreaterEqual(float(time), 0)

    def test_bad_frames_and_repeats(self):
        bad = rows("noise", "organiser.bad_check", "check.good")
        self.assertEqual(len(bad), 2)
        for good, in bad:
            self.assertIn("0", good.split(","))
        self.assertEqual(rows("data", "organiser.repeat", "repeat"), [])
        repeats = rows("repeats", "organiser.repeated && organiser.type == 24", "repeat")
        self.assertEqual(len(repeats), 4)

    def test_stray_bytes_and_frames_in_parts(self):
        with tempfile.TemporaryDirectory() as folder:
            # The first frame of the Organiser's, cut into two packets, with noise before it.
            hexdump = pathlib.Path(folder) / "line.txt"
            hexdump.write_text("I 000000 3f 3f 16 10 02 01\nI 000000 10 10 03 c0 1d 3f\n", encoding="ascii")
            capture = pathlib.Path(folder) / "line.pcapng"
            subprocess.run(["text2pcap", "-q", "-D", "-n", "-l", "147", hexdump, capture], check=True, capture_output=True)
            fields = ["-T", "fields", "-E", "separator=|"]
            for field in ("stray", "type", "check.good", "escapes"):
                fields += ["-e", "organiser." + field]
            done = subprocess.run(["tshark", "-2", "-X", f"lua_script:{WIRESHARK / 'organiser.lua'}", "-r", capture, *fields],
                                  capture_output=True, text=True, check=True)
            self.assertEqual(done.stdout.splitlines(), ["3f3f|||", "|||"])

    def test_the_profile_colours_every_kind_of_packet(self):
        rules = (WIRESHARK / "profile" / "colorfilters").read_text(encoding="utf-8").splitlines()
        for rule in (rule for rule in rules if rule.startswith("@")):
            where = rule.split("@")[2]
            with self.subTest(filter=where):
                dissect("noise", "-Y", where)  # a filter that is none is an error
        self.assertEqual(len([rule for rule in rules if rule.startswith("@")]), 6)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
