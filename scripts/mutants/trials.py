"""Builds mutants in a copy of the tree and runs the tests over them."""

import itertools
import os
import pathlib
import re
import resource
import shutil
import signal
import subprocess

import journal
import tokens
import variants

# The test programs that see a folder: its own, then those of the folders that use it.
PROGRAMS = {
    "src/link": (["link_tests"], ["services_tests", "plan_tests", "organiser_tests", "server_tests"]),
    "src/services": (
        ["services_tests", "plan_tests", "services_tools_tests", "services_disk_tests"],
        ["organiser_tests", "server_tests", "files_tests"],
    ),
    "src/spreadsheet": (["spreadsheet_tests"], ["plan_tests", "files_tests"]),
    "src/serial": (
        ["serial_tests", "serial_posix_tests", "serial_port_list_tests"],
        ["link_tests", "server_tests", "organiser_tests"],
    ),
    "src/startup": (["startup_tests"], []),
    "src/files": (["files_tests"], []),
}
FOLDERS = list(PROGRAMS)

# A function that ends without its value is a fault that must show, and so is an index out of range. Nobody looks at
# warnings of mutants, nor debugs them.
FLAGS = "-O0 -w -D_GLIBCXX_ASSERTIONS -fsanitize=return -fsanitize-undefined-trap-on-error"
MEMORY = 4 << 30  # bytes
FILE_SIZE = 1 << 30  # bytes


class BuildFailure(Exception):
    """The copy does not build, with what the compiler said."""


class Trials:
    """A build of a copy of the tree, in which one source at a time has mutants."""

    def __init__(self, tree, folder):
        self.tree, self.copy, self.build = tree, folder / "tree", folder / "build"
        self.scratch = folder / "scratch"
        self.built = set()  # the programs that are made of the copy as it is
        self.numbers = itertools.count(1)  # of mutants; none is used twice, so a source may keep its mutants
        self.seconds = {}  # of processor time that each program takes without a mutant, by its name and filter

    def prepare(self):
        """Makes the copy like the tree. Files that are alike are not touched, so that they are not built again."""
        listed = subprocess.run(
            ["git", "ls-files", "-z", "--cached", "--others", "--exclude-standard"],
            cwd=self.tree, check=True, capture_output=True, text=True,
        ).stdout.split("\0")  # fmt: skip
        wanted = {name for name in listed if name and (self.tree / name).is_file()}
        if self.copy.is_dir():
            for path in list(self.copy.rglob("*")):
                if path.is_file() and path.relative_to(self.copy).as_posix() not in wanted:
                    path.unlink()
        for name in sorted(wanted):
            target = self.copy / name
            content = (self.tree / name).read_bytes()
            if not target.is_file() or target.read_bytes() != content:
                target.parent.mkdir(parents=True, exist_ok=True)
                target.write_bytes(content)
                shutil.copymode(self.tree / name, target)
        self._run(
            "cmake", "-S", str(self.copy), "-B", str(self.build), "-G", "Ninja", "-DCMAKE_BUILD_TYPE=None",
            f"-DCMAKE_CXX_FLAGS={FLAGS}", "-DVELMORA_TOOLKIT=OFF", "-DBUILD_TESTING=ON",
        )  # fmt: skip

    def _run(self, *command):
        done = subprocess.run(command, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True, errors="replace")
        if done.returncode != 0:
            raise BuildFailure(done.stdout)

    def _make(self, programs):
        """Builds programs with two processes, as a machine that others use may be asked to."""
        if not self.built.issuperset(programs):
            self._run("ninja", "-C", str(self.build), "-j2", *programs)
            self.built.update(programs)

    def _write(self, path, text):
        (self.copy / path).write_text(text, encoding="utf-8")
        self.built.clear()

    def run(self, path, mutants):
        """Tries mutants of one source; gives (mutant, result, how) for each when it is known."""
        text = (self.tree / path).read_text(encoding="utf-8")
        own, users = PROGRAMS[pathlib.PurePath(path).parent.as_posix()]
        self._make(own)
        stages = [(own, own_suites(self.tree, path)), (own, "*"), (users, "*")]
        for programs, suites in stages[:2]:
            self._measure(programs, suites)
        together = {next(self.numbers): mutant for mutant in mutants if mutant.function}
        yield from self._together(path, text, together, stages)
        for mutant in mutants:
            if not mutant.function:
                yield self._alone(path, text, mutant, stages)
                self._write(path, text)

    def _together(self, path, text, numbered, stages):
        while numbered:
            self._write(path, variants.with_mutants(text, tokens.cut(text), numbered))
            try:
                self._make(stages[0][0])
                break
            except BuildFailure as failure:
                named = variants.not_compiling(str(failure)) & set(numbered)
                if not named:
                    raise
                for number in named:
                    yield numbered.pop(number), journal.NO_BUILD, ""
                if not numbered:
                    self._write(path, text)
        for number, mutant in numbered.items():
            yield mutant, *self._tested(stages, str(number))

    def _alone(self, path, text, mutant, stages):
        self._write(path, variants.with_mutant(text, mutant))
        try:
            self._make(stages[0][0])
        except BuildFailure:
            return mutant, journal.NO_BUILD, ""
        return mutant, *self._tested(stages, "0")

    def _tested(self, stages, number):
        for programs, suites in stages:
            self._make(programs)
            for program in programs:
                how = self._killed_by(program, suites, number)
                if how:
                    return journal.KILLED, how
        return journal.SURVIVED, ""

    def _measure(self, programs, suites):
        """Runs programs without a mutant: they must pass, and what they take limits what a mutant may take."""
        for program in programs:
            if (program, suites) not in self.seconds:
                before = resource.getrusage(resource.RUSAGE_CHILDREN)
                how = self.outcome(program, suites, "0", 600)
                if how:
                    raise BuildFailure(f"{program} does not pass without a mutant: {how}")
                after = resource.getrusage(resource.RUSAGE_CHILDREN)
                self.seconds[program, suites] = (
                    after.ru_utime - before.ru_utime + after.ru_stime - before.ru_stime
                )

    def _killed_by(self, program, suites, number):
        """How a program sees the mutant, an empty text if it does not."""
        if not suites:
            return ""
        known = self.seconds.get((program, suites), 5)
        return self.outcome(program, suites, number, int(10 * known) + 5)

    def outcome(self, program, suites, number, seconds):
        """Runs a test program with limits: so many seconds of processor time, and more of waiting. An empty text if
        it passes, and how it failed otherwise."""
        shutil.rmtree(self.scratch, ignore_errors=True)
        self.scratch.mkdir(parents=True)

        def limit():
            resource.setrlimit(resource.RLIMIT_CPU, (seconds, seconds + 1))
            resource.setrlimit(resource.RLIMIT_AS, (MEMORY, MEMORY))
            resource.setrlimit(resource.RLIMIT_FSIZE, (FILE_SIZE, FILE_SIZE))
            resource.setrlimit(resource.RLIMIT_CORE, (0, 0))

        process = subprocess.Popen(
            [self.build / "tests" / program, f"--gtest_filter={suites}", "--gtest_fail_fast", "--gtest_brief=1"],
            cwd=self.scratch, start_new_session=True, preexec_fn=limit, stdin=subprocess.DEVNULL,
            stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True, errors="replace",
            env={**os.environ, variants.SWITCH: number, "TMPDIR": str(self.scratch)},
        )  # fmt: skip
        try:
            said = process.communicate(timeout=30 + 4 * seconds)[0]
        except subprocess.TimeoutExpired:
            os.killpg(process.pid, signal.SIGKILL)
            process.communicate()
            return f"{program}: did not end"
        if process.returncode == 0:
            return ""
        failed = re.search(r"\[  FAILED  \] (\S+?),? ", said)
        return f"{program}: {failed.group(1) if failed else f'ended with {process.returncode}'}"


def own_suites(tree, path):
    """The filter of the tests in a source's own test file; an empty text if there is none."""
    test = tree / path.replace("src/", "tests/", 1).replace(".cpp", "_test.cpp")
    if not test.is_file():
        return ""
    suites = set(re.findall(r"^(?:TYPED_)?TEST(?:_[FP])?\(\s*(\w+)", test.read_text(encoding="utf-8"), re.MULTILINE))
    return ":".join(f"{suite}.*:*/{suite}.*:{suite}/*" for suite in sorted(suites))
