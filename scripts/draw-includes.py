#!/usr/bin/env python3
"""Draws the folders of src/ and their arrows into docs/development/architecture.md, from the includes.

    scripts/draw-includes.py          draws the picture anew
    scripts/draw-includes.py --check  changes nothing, and fails when the picture is not the current one

An arrow is an include. Both fail when one points up, to a folder that is neither above nor below, to a file that does
not exist or, from a folder that must not know it, to the window toolkit.
"""

import pathlib
import re
import sys

# What lies directly below each folder; whatever lies below that is below it, too, and may be included. A folder within
# one that stands here belongs to it. Those that do not exist yet have their places.
BELOW = {
    "apps": ["ui/qt", "startup", "eventloop", "organiser", "files", "doctor"],
    "ui/qt": ["ui/win32"],
    "ui/win32": ["ui"],
    "ui": ["server"],
    "startup": ["server"],
    "organiser": ["services", "capture", "arguments"],
    "files": ["services", "capture", "arguments"],
    "server": ["services", "capture", "doctor"],
    "services": ["spreadsheet", "transfers", "link"],
    "capture": ["link"],
    "doctor": ["link", "arguments"],
    "eventloop": ["serial"],
    "transfers": ["link"],
    "link": ["serial"],
    "serial": ["platform"],
    "spreadsheet": ["base"],
    "platform": ["base"],
    "arguments": [],
    "base": [],
}
KNOW_TOOLKIT = {"apps", "ui/qt", "eventloop"}

INCLUDE = re.compile(r'^[ \t]*#[ \t]*include[ \t]*([<"])([^>"\n]+)[>"]', re.MULTILINE)
BEGIN, END = "<!-- drawn by scripts/draw-includes.py -->\n", "<!-- end of the drawing -->\n"


def layer_of(path):
    """The folder of BELOW that the path, relative to src/, lies in; None for a folder without a place."""
    for folder in path.parents:
        if folder.as_posix() in BELOW:
            return folder.as_posix()
    return None


def reach(folder, steps):
    """All folders that lie below one, by the steps from each folder to those directly below it."""
    return {found for step in steps.get(folder, ()) for found in {step} | reach(step, steps)}


def read_arrows(source):
    """The arrows (from, to) between folders below the folder `source`, and a line for each include that may not be."""
    arrows, faults = set(), []
    for path in sorted(source.rglob("*")):
        if path.suffix not in (".h", ".cpp"):
            continue
        name = path.relative_to(source)
        own = layer_of(name)
        if own is None:
            faults.append(f"{name}: {name.parent} has no place in the order of scripts/draw-includes.py")
            continue
        for mark, target in INCLUDE.findall(path.read_text(encoding="utf-8")):
            if mark == "<":
                if re.match(r"Q[A-Z]", target) and own not in KNOW_TOOLKIT:
                    faults.append(f"{name}: <{target}> is the toolkit's, which {own} does not know")
                continue
            if not (source / target).is_file():
                faults.append(f'{name}: "{target}" is no file below {source.name}/')
                continue
            other = layer_of(pathlib.PurePath(target))
            if other is None or other == own:
                continue
            arrows.add((own, other))
            if own in reach(other, BELOW):
                faults.append(f'{name}: "{target}" points up, from {own} to {other}')
            elif other not in reach(own, BELOW):
                faults.append(f'{name}: "{target}" points to {other}, which is not below {own}')
    return arrows, faults


def without_shortcuts(arrows):
    """The arrows without those that a way over other folders makes plain."""
    steps = {}
    for start, end in arrows:
        steps.setdefault(start, set()).add(end)
    return {
        (start, end) for start, end in arrows if not any(end in reach(step, steps) for step in steps[start])
    }


def picture(arrows):
    """The drawing, in the language that forges draw pictures from."""
    order = list(BELOW)

    def place(arrow):
        return order.index(arrow[0]), order.index(arrow[1])

    def box(folder):
        return f"{folder.replace('/', '-')}[{folder}]"

    lines = [f"  {box(start)} --> {box(end)}" for start, end in sorted(without_shortcuts(arrows), key=place)]
    return "\n".join(["```mermaid", "flowchart TD", *lines, "```", ""])


def main(root, check):
    """Checks the includes below `root`/src and draws them, or checks the drawing; the program's exit status."""
    arrows, faults = read_arrows(root / "src")
    if not faults:
        page = root / "docs/development/architecture.md"
        text = page.read_text(encoding="utf-8")
        head, rest = text.split(BEGIN)
        drawn = head + BEGIN + picture(arrows) + END + rest.split(END)[1]
        if drawn != text and check:
            faults.append(f"{page.name}: the picture is not the current one; scripts/draw-includes.py draws it")
        elif drawn != text:
            page.write_text(drawn, encoding="utf-8")
    for fault in faults:
        print(fault, file=sys.stderr)
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main(pathlib.Path(__file__).resolve().parent.parent, check=sys.argv[1:] == ["--check"]))
