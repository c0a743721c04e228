#!/usr/bin/env bash
# Mutation test: puts small faults into a copy of the program, one at a time, and tells which of them no test sees:
# scripts/mutate.sh [--sample N] [--seed S] [--folder DIR …] [--file F …] [--journal FILE] [--again FILE] [--list]
# Nothing in the tree is changed; the copy, its build and the journal are in build-mutants/.
set -euo pipefail
cd "$(dirname "$0")/.."
exec python3 scripts/mutants "$@"
