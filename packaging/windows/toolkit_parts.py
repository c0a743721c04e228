#!/usr/bin/env python3
"""Tells what other people's work the toolkit's libraries contain, with the texts of its licences.

    packaging/windows/toolkit_parts.py SOURCE > toolkit-parts.txt

SOURCE is the toolkit's unpacked source. Its qt_attribution.json files name each part, with the library that it is in and
the files of its licence. The parts of the libraries that the programs link are told, those for other systems among them.
"""

import json
import pathlib
import sys
import textwrap

LINKED = {"qtcore", "qtgui", "qtwidgets"}


def parts(source):
    """All (folder, attribution) of the linked libraries, by name."""
    found = []
    for file in source.rglob("qt_attribution.json"):
        # Texts in these files have line ends in them, which JSON does not know.
        told = json.loads(file.read_text(encoding="utf-8"), strict=False)
        for part in told if isinstance(told, list) else [told]:
            if part["QDocModule"] in LINKED:
                found.append((file.parent, part))
    return sorted(found, key=lambda one: one[1]["Name"].lower())


def licence_texts(folder, part):
    """The texts of a part's licence. A part in the public domain has none; a file that is not there is an error."""
    names = part.get("LicenseFiles", [part["LicenseFile"]] if "LicenseFile" in part else [])
    return [(folder / name).read_text(encoding="utf-8", errors="replace").strip() for name in names]


def told(folder, part):
    """A part as a text."""
    name = " ".join(filter(None, [part["Name"], part.get("Version")]))
    copyright = part.get("Copyright", "")
    lines = [name, "=" * len(name), "", part.get("QtUsage", ""), part.get("Homepage", ""), "",
             "Licence: " + part["License"], "\n".join(copyright) if isinstance(copyright, list) else copyright]
    for text in licence_texts(folder, part):
        lines += ["", textwrap.indent(text, "    ", lambda line: line.strip() != "")]
    return "\n".join(lines)


def main(source):
    found = parts(pathlib.Path(source))
    if not found:
        sys.exit(f"{source} has no qt_attribution.json of a linked library")
    print("What the libraries of the toolkit contain besides the toolkit's own work, and under which licences.\n")
    print("\n\n\n".join(told(*part) for part in found))


if __name__ == "__main__":
    main(*sys.argv[1:])
