#!/usr/bin/env bash
# Builds optimised programs and prints every figure of docs/development/performance.md.
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/setup.sh tests
scripts/build.sh build-bench -DCMAKE_BUILD_TYPE=Release -DVELMORA_BENCH=ON -DBUILD_TESTING=OFF
export QT_QPA_PLATFORM=offscreen
for program in build-bench/bench/*_bench; do
  echo
  echo "== $(basename "$program")"
  "$program" --benchmark_min_time=0.3 2> /dev/null
done
for script in end_to_end line_share wakeups window_answers; do
  echo
  echo "== bench/$script.sh"
  "bench/$script.sh" build-bench
done
