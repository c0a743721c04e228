#!/usr/bin/env python3
"""Tells what the tests reach of each folder of src/.

    scripts/coverage-report.py COVERAGE.INFO LIMITS [FOLDER …]

COVERAGE.INFO is what llvm-cov exports in the form of lcov. LIMITS names a folder of src/ a line with the shares of
lines and of branches that are wanted, in percent. Fails when a folder is below them. What is missing is listed of the
folders that want all, or of those that are named.
"""

import collections
import os
import pathlib
import sys

ROOT = pathlib.Path(__file__).resolve().parents[1]
UNREACHABLE = "// unreachable: "


def read_limits(text):
    """The wanted shares (lines, branches) by folder; # begins a remark."""
    limits = {}
    for line in text.splitlines():
        words = line.split("#")[0].split()
        if words:
            folder, lines, branches = words
            limits[folder] = (float(lines), float(branches))
    return limits


def read_coverage(text, root=ROOT):
    """For each file of src/: how often each line ran, and each branch of it was taken."""
    source = os.path.join(root, "")
    files = {}
    for record in text.splitlines():
        kind, _, value = record.partition(":")
        if kind == "SF":
            name = os.path.normpath(value).removeprefix(source)
            lines, branches = files.setdefault(name, ({}, {}))
        elif kind == "DA":
            line, count = value.split(",")[:2]
            lines[int(line)] = max(lines.get(int(line), 0), int(count))
        elif kind == "BRDA":
            line, block, branch, taken = value.split(",")
            place = (int(line), block, branch)
            branches[place] = max(branches.get(place, 0), 0 if taken == "-" else int(taken))
    return {name: found for name, found in files.items() if name.startswith("src/")}


def read_source(path):
    """The lines of a file by number."""
    text = path.read_text(encoding="utf-8") if path.exists() else ""
    return dict(enumerate(text.splitlines(), 1))


def unreachable_lines(source):
    """The lines that say why no test reaches them, with the reason."""
    return {number: line.split(UNREACHABLE)[1] for number, line in source.items() if UNREACHABLE in line}


def of_source(branches, source):
    """The branches that somebody wrote: a switch over all values has another one, past its cases."""
    return {place: taken for place, taken in branches.items()
            if not source.get(place[0], "").lstrip().startswith("switch (")}


class Folder:
    """What the tests reach of one folder: lines and branches, of how many, and what they miss."""

    def __init__(self):
        self.lines = self.lines_reached = 0
        self.branches = self.branches_reached = 0
        self.missing = []

    def add(self, name, lines, branches, left_out):
        of_line = collections.defaultdict(list)
        for (line, _, _), taken in branches.items():
            of_line[line].append(taken > 0)
        for line, count in sorted(lines.items()):
            if line in left_out:
                continue
            reached = of_line[line]
            self.lines += 1
            self.lines_reached += count > 0
            self.branches += len(reached)
            self.branches_reached += sum(reached)
            if count == 0:
                self.missing.append(f"{name}:{line}: not reached")
            elif not all(reached):
                self.missing.append(f"{name}:{line}: {sum(reached)} of {len(reached)} branches")


def folder_of(name, limits):
    """The longest of the folders with limits that holds the file, or its folder below src/."""
    holding = [folder for folder in limits if name.startswith(folder + "/")]
    return max(holding, key=len) if holding else "/".join(name.split("/")[:2])


def share(reached, whole):
    """In percent, rounded down to hundredths; of nothing, all is reached."""
    return reached * 10000 // whole / 100 if whole else 100.0


def report(coverage, limits, named, root=ROOT):
    """Prints the report; whether every folder is as wanted."""
    folders = collections.defaultdict(Folder)
    unreachable = []
    for name, (lines, branches) in sorted(coverage.items()):
        source = read_source(root / name)
        left_out = unreachable_lines(source)
        unreachable += [f"{name}:{line}: {why}" for line, why in left_out.items()]
        folders[folder_of(name, limits)].add(name, lines, of_source(branches, source), left_out)
    missed = [folder for folder in limits if folder not in folders]
    print(f"{'':16}    lines    wanted  branches    wanted")
    for name, folder in sorted(folders.items()):
        shares = (share(folder.lines_reached, folder.lines), share(folder.branches_reached, folder.branches))
        wanted = limits.get(name)
        columns = [f"{shares[i]:8.2f}% {f'{wanted[i]:8.2f}%' if wanted else '':9}" for i in range(2)]
        print(f"{name:16}", *columns)
        if wanted and any(shares[i] < wanted[i] for i in range(2)):
            missed.append(name)
    for name, folder in sorted(folders.items()):
        if name in named or (not named and limits.get(name) == (100, 100)):
            print(*folder.missing, sep="\n", end="\n" if folder.missing else "")
    print(f"{len(unreachable)} lines say why no test can reach them", *unreachable, sep="\n")
    if missed:
        print(f"Coverage: below what is wanted in {', '.join(missed)}")
    else:
        reached = sum(folder.branches_reached for folder in folders.values())
        print(f"Coverage: {reached} of {sum(f.branches for f in folders.values())} branches, every folder as wanted")
    return not missed


def main(coverage_file, limits_file, *named):
    """The exit status."""
    coverage = read_coverage(pathlib.Path(coverage_file).read_text(encoding="utf-8"))
    limits = read_limits(pathlib.Path(limits_file).read_text(encoding="utf-8"))
    return 0 if report(coverage, limits, named) else 1


if __name__ == "__main__":
    if len(sys.argv) < 3:
        sys.exit(__doc__)
    sys.exit(main(*sys.argv[1:]))
