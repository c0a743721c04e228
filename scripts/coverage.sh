#!/usr/bin/env bash
# Runs the unit tests under the sanitizers and tells for each folder of src/ how many of its lines and branches they
# took. Fails when a test does, or when a folder is below what tests/coverage-limits.txt asks for.
#   scripts/coverage.sh             the shares, and what is missing where all is wanted
#   scripts/coverage.sh FOLDER …    what is missing in these folders
#   scripts/coverage.sh --report …  the same of the tests' last run
# The compiler counts the branches of the source, so those of an exception's way out are no part of them. Lines that
# no test can reach say why ("// unreachable: …") and are listed. What is built for Windows alone is not counted.
set -euo pipefail
cd "$(dirname "$0")/.."
build=build-sanitize
counts=$build/counts
if [[ "${1:-}" == --report ]]; then
  shift
else
  scripts/setup.sh tests
  scripts/build-sanitize.sh
  rm -rf "$counts"
  # A file for each program; the processes of one program add up in it.
  LLVM_PROFILE_FILE=$PWD/$counts/%m.profraw \
    ctest --test-dir "$build" --output-on-failure -j "$(nproc)" -LE e2e --progress
fi

# The tools of the compiler that built it.
tool() { "$(clang++ -print-prog-name="$1")" "${@:2}"; }
tool llvm-profdata merge -sparse "$counts"/*.profraw -o "$counts/all.profdata"
# One program after the other: of what several have in a header, the exporter would tell only how the first fared.
for program in "$build"/tests/*; do
  if [[ -f $program && -x $program ]]; then
    tool llvm-cov export -format=lcov -instr-profile="$counts/all.profdata" "$program" 2> "$counts/export.log" || {
      cat "$counts/export.log" >&2
      exit 1
    }
  fi
done > "$counts/all.info"
scripts/coverage-report.py "$counts/all.info" tests/coverage-limits.txt "$@"
