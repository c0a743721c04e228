#!/usr/bin/env bash
# Builds the fuzzers and runs each for a number of seconds, as many at a time as there are processors:
# scripts/fuzz.sh [SECONDS] [NAME …]
set -euo pipefail
cd "$(dirname "$0")/.."
seconds=${1:-60}
(($# > 0)) && shift
scripts/build-sanitize.sh fuzzers

# fuzz PROGRAM SECONDS: one run; prints its log when it found something.
fuzz() {
  local name log
  name=$(basename "$1")
  log=build-sanitize/fuzz/$name.log
  mkdir -p "build-sanitize/corpus/$name"
  if ! "$1" -max_total_time="$2" -timeout=10 -rss_limit_mb=2048 -print_final_stats=1 \
    -artifact_prefix="build-sanitize/$name-" "build-sanitize/corpus/$name" > "$log" 2>&1; then
    tail -60 "$log"
    echo "$name failed"
    exit 1
  fi
  echo "$name: $(sed -n 's/^stat::number_of_executed_units: *//p' "$log") inputs in $2 s, no finding"
}
export -f fuzz

programs=()
for program in build-sanitize/fuzz/*_fuzz; do
  if (($# == 0)) || [[ " $* " == *" $(basename "$program") "* ]]; then
    programs+=("$program")
  fi
done
printf '%s\0' "${programs[@]}" | xargs -0 -P "$(nproc)" -I '{}' bash -c "set -euo pipefail; fuzz {} $seconds"
