#!/usr/bin/env bash
# Builds and runs every test. With CI=true in the environment warnings are errors, and the layout of the
# code, the linter, the tests under the sanitizers and a short run of each fuzzer come first, and the Windows
# programs that need no window toolkit are built and tested too.
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/setup.sh tests

jobs=$(nproc)
options=(-DCMAKE_BUILD_TYPE=RelWithDebInfo -DVELMORA_TESTS=ON)
if [[ "${CI:-}" == true ]]; then
  options+=(-DVELMORA_WERROR=ON)
  scripts/check-format.sh
  scripts/fuzz.sh 5
  scripts/build.sh build-sanitize -DCMAKE_BUILD_TYPE=Debug -DVELMORA_TESTS=ON -DVELMORA_WERROR=ON \
    -DVELMORA_SANITIZE=ON
  ctest --test-dir build-sanitize --output-on-failure -j "$jobs" -LE e2e --quiet
  echo "Tests under the address and undefined-behaviour sanitizers: passed."
fi
scripts/build.sh build "${options[@]}"
if [[ "${CI:-}" == true ]]; then
  scripts/lint.sh
fi
ctest --test-dir build --output-on-failure -j "$jobs" --progress
if [[ "${CI:-}" == true ]]; then
  scripts/test-windows.sh core
fi
