#!/usr/bin/env bash
# Builds the fuzzers with clang and runs each for a number of seconds: scripts/fuzz.sh [SECONDS] [NAME …]
set -euo pipefail
cd "$(dirname "$0")/.."
seconds=${1:-60}
(($# > 0)) && shift
scripts/build.sh build-fuzz -DCMAKE_BUILD_TYPE=RelWithDebInfo -DCMAKE_CXX_COMPILER=clang++ -DVELMORA_TESTS=OFF \
  -DVELMORA_FUZZ=ON -- fuzzers > build-fuzz.log 2>&1 || { tail -40 build-fuzz.log; exit 1; }
mv build-fuzz.log build-fuzz/build.log
for program in build-fuzz/fuzz/*; do
  [[ -x "$program" && -f "$program" ]] || continue
  name=$(basename "$program")
  if (($# > 0)) && [[ " $* " != *" $name "* ]]; then
    continue
  fi
  mkdir -p "build-fuzz/corpus/$name"
  if ! "$program" -max_total_time="$seconds" -timeout=10 -rss_limit_mb=2048 -print_final_stats=1 \
    -artifact_prefix="build-fuzz/$name-" "build-fuzz/corpus/$name" > "build-fuzz/$name.log" 2>&1; then
    tail -60 "build-fuzz/$name.log"
    echo "$name failed"
    exit 1
  fi
  echo "$name: $(sed -n 's/^stat::number_of_executed_units: *//p' "build-fuzz/$name.log") inputs in $seconds s, no finding"
done
