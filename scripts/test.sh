#!/usr/bin/env bash
# Builds and runs every test. With --valgrind instead the end-to-end tests of transfers, the programs under valgrind.
# With CI=true in the environment warnings are errors, the layout of the code, the linter and a short run of each
# fuzzer come first, the unit tests run under the sanitizers, and the Windows programs that need no window toolkit
# are built and tested too.
set -euo pipefail
cd "$(dirname "$0")/.."
if [[ "${1:-}" == --valgrind ]]; then
  scripts/setup.sh valgrind
  scripts/build.sh build -DCMAKE_BUILD_TYPE=RelWithDebInfo -DBUILD_TESTING=ON -- e2e_tests
  logs=$PWD/build/valgrind
  rm -rf "$logs"
  mkdir "$logs"
  passed=true
  VELMORA_E2E_VALGRIND=$logs build/tests/e2e_tests --gtest_brief=1 \
    --gtest_filter='TransferTest.*:FileServiceTest.*:ServicesTest.*:SavedFilesTest.*:EarlierCopiesTest.*' || passed=false
  find "$logs" -type f -size +0 -exec cat {} +
  echo "valgrind: $(find "$logs" -type f | wc -l) programs run, $(find "$logs" -type f -size +0 | wc -l) with errors"
  $passed
  exit
fi
scripts/setup.sh tests
jobs=$(nproc)

if [[ "${CI:-}" != true ]]; then
  scripts/build.sh build -DCMAKE_BUILD_TYPE=RelWithDebInfo -DBUILD_TESTING=ON
  ctest --test-dir build --output-on-failure -j "$jobs" --progress
  exit
fi

# stage TEXT: says what begins, and when.
stage() { printf '\n== %s (after %d:%02d min)\n' "$1" $((SECONDS / 60)) $((SECONDS % 60)); }

stage "Layout of the code"
scripts/check-format.sh
stage "Fuzzers"
scripts/fuzz.sh --corpus
scripts/fuzz.sh 10
stage "Unit tests under the address and undefined-behaviour sanitizers, and what they reach"
scripts/coverage.sh
stage "Programs as they are released"
scripts/build.sh build -DCMAKE_BUILD_TYPE=Release -DCMAKE_CXX_FLAGS_RELEASE="-O2 -DNDEBUG" -DBUILD_TESTING=ON \
  -DVELMORA_WERROR=ON -DVELMORA_BENCH=ON -- programs e2e_tests benchmarks velmora-simulate
stage "Simulation"
VELMORA_SIMULATION_BUILD=build scripts/simulate.sh --seconds 30
stage "End-to-end tests"
# They wait for each other's lines more than for a processor.
ctest --test-dir build --output-on-failure -j "$((3 * jobs))" -L e2e --progress
stage "Windows"
scripts/test-windows.sh core
stage "Linter"
scripts/lint.sh
stage "All passed"
