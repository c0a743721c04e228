#!/usr/bin/env bash
# Builds with clang and the address and undefined-behaviour sanitizers into build-sanitize:
# scripts/build-sanitize.sh [TARGET …]. Tests and fuzzers share one build of the program, which also counts the
# branches that they take.
set -euo pipefail
cd "$(dirname "$0")/.."
# Stack traces need lines, not variables. The fuzzers are several times faster with the first optimisations, which take
# as long as compiling does: too long for the seconds that they run in CI.
optimisation=-O1
[[ "${CI:-}" != true ]] || optimisation=-O0
# Several sources at a time compile much faster than one by one. That hides a missing #include, which the other
# builds find.
scripts/build.sh build-sanitize -DCMAKE_BUILD_TYPE=Debug -DCMAKE_CXX_FLAGS_DEBUG="$optimisation -g1" \
  -DCMAKE_CXX_COMPILER=clang++ -DVELMORA_LLD=ON -DBUILD_TESTING=ON \
  -DVELMORA_FUZZ=ON -DVELMORA_SANITIZE=ON -DVELMORA_COVERAGE=ON \
  -DCMAKE_UNITY_BUILD=ON -DCMAKE_UNITY_BUILD_BATCH_SIZE=16 -- "$@" \
  > build-sanitize.log 2>&1 || {
  tail -40 build-sanitize.log
  exit 1
}
mv build-sanitize.log build-sanitize/build.log
