"""The command line of scripts/mutate.sh."""

import argparse
import itertools
import pathlib
import random
import sys

import journal
import mutations
import trials

TREE = pathlib.Path(__file__).resolve().parents[2]
FOLDER = TREE / "build-mutants"


def arguments():
    parser = argparse.ArgumentParser(
        prog="scripts/mutate.sh",
        description="Puts small faults into a copy of the program, one at a time, and tells which no test sees.",
    )
    add = parser.add_argument
    add("--sample", type=int, metavar="N", help="so many mutants, chosen by the seed (default: all)")
    add("--seed", type=int, default=1, metavar="S", help="the same seed chooses the same mutants (default: 1)")
    add("--folder", nargs="+", default=trials.FOLDERS, choices=trials.FOLDERS, metavar="DIR",
        help=f"only sources of these folders (default: {' '.join(trials.FOLDERS)})")  # fmt: skip
    add("--file", nargs="+", metavar="F", help="only these sources")
    add("--list", action="store_true", help="tell the mutants and try none")
    add("--journal", type=pathlib.Path, metavar="FILE",
        help="write what came of each mutant to FILE, and try none that is in it already")  # fmt: skip
    add("--again", type=pathlib.Path, metavar="FILE", help="try the survivors of this journal once more")
    options = parser.parse_args()
    known = sources(trials.FOLDERS)
    for path in options.file or []:
        if path not in known:
            parser.error(f"{path} is no source of {', '.join(trials.FOLDERS)} that is built here")
    return options


def sources(folders):
    """The sources of folders, relative to the tree, without those for Windows, which are not built here."""
    return [
        path.relative_to(TREE).as_posix()
        for folder in folders
        for path in sorted((TREE / folder).glob("*.cpp"))
        if not path.name.endswith("_win32.cpp")
    ]


def chosen(options, written):
    """The mutants to try, by their place. Survivors of the journal whose place is not what it was are told there."""
    found = []
    paths = options.file or sources(options.folder)
    for path in paths:
        found += mutations.mutants(path, (TREE / path).read_text(encoding="utf-8"))
    if options.again:
        survivors = {name for name in written.names(journal.SURVIVED) if name.partition(":")[0] in paths}
        found = [mutant for mutant in found if mutant.name in survivors]
        for name in sorted(survivors - {mutant.name for mutant in found}):
            print(f"gone: {name}")
            if not options.list:
                written.add(name, journal.GONE)
    if options.sample is not None and options.sample < len(found):
        kept = set(random.Random(options.seed).sample(range(len(found)), options.sample))
        found = [mutant for index, mutant in enumerate(found) if index in kept]
    return found


def try_all(mutants, written):
    """Tries mutants, source by source, and tells those that no test sees."""
    place = trials.Trials(TREE, FOLDER)
    place.prepare()
    for path, group in itertools.groupby(mutants, key=lambda mutant: mutant.path):
        for mutant, result, how in place.run(path, list(group)):
            written.add(mutant.name, result, how)
            if result == journal.SURVIVED:
                print(f"survived: {mutant.name}", flush=True)


def told(counts):
    made = counts[journal.KILLED] + counts[journal.SURVIVED]
    return f"{made} mutants, {counts[journal.KILLED]} killed, {counts[journal.SURVIVED]} survived"


def main():
    options = arguments()
    path = options.again or options.journal or FOLDER / "journal"
    if not (options.again or options.journal or options.list):
        path.unlink(missing_ok=True)
    written = journal.Journal(path)
    mutants = chosen(options, written)
    if options.list:
        for mutant in mutants:
            print(mutant.name)
        print(f"{len(mutants)} mutants")
        return 0
    try:
        try_all([m for m in mutants if options.again or m.name not in written.results], written)
    except trials.BuildFailure as failure:
        print(failure, file=sys.stderr)
        return 1
    for folder in trials.FOLDERS:
        counts = written.counts(folder + "/")
        if counts:
            print(f"{folder}: {told(counts)}")
    counts = written.counts()
    print(f"{told(counts)}; {counts[journal.NO_BUILD]} more do not compile")
    return 0


if __name__ == "__main__":
    sys.exit(main())
