"""What came of each mutant, a line each, so that a run that was broken off goes on where it was."""

import collections

# A mutant is gone when its place in the sources has changed since.
KILLED, SURVIVED, NO_BUILD, GONE = "killed", "survived", "does not compile", "gone"


class Journal:
    """A file of lines: result, how, name, between tabs. The last line of a mutant counts."""

    def __init__(self, path):
        self.path = path
        self.results = {}
        if path.exists():
            for line in path.read_text(encoding="utf-8").splitlines():
                result, _, name = line.split("\t")
                self.results[name] = result

    def add(self, name, result, how=""):
        self.results[name] = result
        self.path.parent.mkdir(parents=True, exist_ok=True)
        with self.path.open("a", encoding="utf-8") as out:
            print(result, how, name, sep="\t", file=out)

    def names(self, result):
        return [name for name, found in self.results.items() if found == result]

    def counts(self, folder=""):
        """How often each result is in the journal, of the mutants below a folder."""
        return collections.Counter(result for name, result in self.results.items() if name.startswith(folder))
