#!/usr/bin/env bash
# Runs clang-tidy with our .clang-tidy over the sources of a finished build in build/.
# scripts/lint.sh [FILE …]; without files, everything below src/.
set -euo pipefail
cd "$(dirname "$0")/.."
files=("$@")
((${#files[@]} > 0)) || mapfile -t files < <(git ls-files 'src/*.cpp')
printf '%s\0' "${files[@]}" | xargs -0 -P "$(nproc)" -n 4 clang-tidy -p build --quiet 2> /dev/null
