#!/usr/bin/env bash
# Builds the fuzzers and runs them, each with its inputs in fuzz/corpus/NAME and the words in fuzz/NAME.dict:
#   scripts/fuzz.sh [SECONDS] [NAME …]  each for so long (60), as many at a time as there are processors
#   scripts/fuzz.sh --corpus [NAME …]   every input in fuzz/corpus once
#   scripts/fuzz.sh --seeds [NAME …]    makes first inputs from what the tests use, then as --merge
#   scripts/fuzz.sh --merge [NAME …]    puts new inputs into fuzz/corpus: of all, the fewest and shortest that reach
#                                       as much as all of them
#   scripts/fuzz.sh --hours N [NAME …]  one after the other in short turns, until they have used N hours of
#                                       processor time; then as --merge, with a table of what was done. Goes on
#                                       where it was broken off.
# New inputs wait in build-sanitize/corpus; one that shows a fault is left as build-sanitize/NAME-crash-….
set -euo pipefail
cd "$(dirname "$0")/.."

# run NAME OPTION …: runs a fuzzer, whose words stay in its log; shows their end when it found something.
run() {
  local name=$1 log=build-sanitize/fuzz/$1.log options=(-timeout=60 -rss_limit_mb=2048 -print_final_stats=1)
  shift
  [[ ! -e "fuzz/$name.dict" ]] || options+=("-dict=fuzz/$name.dict")
  case $name in
    formula_* | display_value_* | map_filename_* | mode_string_* | number_locale_*) options+=(-max_len=256) ;;
    ini_*) options+=(-max_len=8192) ;;
    # Every input reaches many edges; weighing how rare each is would take a third of the time.
    dispatcher_*) options+=(-max_len=4096 -entropic=0) ;;
    *) options+=(-max_len=4096) ;;
  esac
  mkdir -p "build-sanitize/corpus/$name" "fuzz/corpus/$name"
  if ! "build-sanitize/fuzz/$name" "${options[@]}" -artifact_prefix="build-sanitize/$name-" "$@" < /dev/null \
    > "$log" 2>&1; then
    tail -60 "$log"
    echo "$name failed"
    return 1
  fi
}

# What the log of a fuzzer tells: how many inputs it ran; how many edges of the code there are; how many its first
# inputs reached.
inputs() { sed -n 's/^stat::number_of_executed_units: *//p' "build-sanitize/fuzz/$1.log"; }
edges() { sed -n 's/^INFO: Loaded .*(\([0-9]*\) inline 8-bit counters).*/\1/p' "build-sanitize/fuzz/$1.log"; }
reached() { sed -n 's/.*INITED cov: \([0-9]*\) .*/\1/p' "build-sanitize/fuzz/$1.log"; }

kept() { find "fuzz/corpus/$1" -type f 2> /dev/null | wc -l; }

# fuzz NAME SECONDS
fuzz() {
  run "$1" -max_total_time="$2" "build-sanitize/corpus/$1" "fuzz/corpus/$1" || return 1
  echo "$1: $(inputs "$1") inputs in $2 s, no finding"
}

try_corpus() {
  if (($(kept "$1") == 0)); then
    echo "$1: fuzz/corpus/$1 has no inputs"
    return 1
  fi
  run "$1" -runs=0 "fuzz/corpus/$1" || return 1
  echo "$1: $(kept "$1") inputs, no finding"
}

# Which edges an input reaches is enough for what is kept; how often, too, would make it several times as much.
merge() {
  local fewest=build-sanitize/fewest/$1
  rm -rf "$fewest"
  mkdir -p "$fewest"
  run "$1" -merge=1 -use_counters=0 "$fewest" "fuzz/corpus/$1" "build-sanitize/corpus/$1" || return 1
  rm -rf "fuzz/corpus/$1"
  mv "$fewest" "fuzz/corpus/$1"
  echo "$1: $(kept "$1") inputs kept"
}

# A line "NAME INPUTS SECONDS" for each turn of a run over hours.
record=build-sanitize/fuzz-hours
turn=120 # seconds

# used: a line "SECONDS NAME INPUTS" for each fuzzer, the one with the least processor time first.
used() {
  { printf '%s 0 0\n' "${names[@]}"; cat "$record"; } | awk -v fuzzers=${#names[@]} '
    NR <= fuzzers || $1 in seconds { inputs[$1] += $2; seconds[$1] += $3 }
    END { for (name in seconds) printf "%.1f %s %d\n", seconds[name], name, inputs[name] }' | sort -n
}

# used_hours HOURS: whether they have used so many.
used_hours() { used | awk -v hours="$1" '{ sum += $1 } END { exit sum < hours * 3600 }'; }

# take_turn NAME: one turn, and its line in the record.
take_turn() {
  local TIMEFORMAT='%U %S'
  { time fuzz "$1" "$turn"; } 2> "$record.time" || return 1
  echo "$1 $(inputs "$1") $(awk '{ print $1 + $2 }' "$record.time")" >> "$record"
}

# take_turns HOURS: fails at the end when there was a finding; the other fuzzers go on after it.
take_turns() {
  local names=("${names[@]}") name findings=0
  while ((${#names[@]} > 0)) && ! used_hours "$1"; do
    name=$(used | awk 'NR == 1 { print $2 }')
    if ! take_turn "$name"; then
      findings=$((findings + 1))
      mapfile -t names < <(printf '%s\n' "${names[@]}" | grep -vx "$name")
    fi
  done
  return $((findings > 0))
}

table() {
  local seconds name tried
  printf '\n| Fuzzer | Inputs run | Processor time | Inputs kept | Edges reached |\n|---|---|---|---|---|\n'
  while read -r seconds name tried; do
    run "$name" -runs=0 "fuzz/corpus/$name" || return 1
    echo "| \`$name\` | $tried | $seconds s | $(kept "$name") | $(reached "$name") of $(edges "$name") |"
  done < <(used | sort -k 2)
}

# each FUNCTION [ARGUMENT]: calls it for every fuzzer, as many at a time as there are processors.
each() {
  export -f run inputs kept fuzz try_corpus merge
  printf '%s\0' "${names[@]}" | xargs -0 -P "$(nproc)" -I '{}' bash -c "set -euo pipefail; $1 {} ${2:-}"
}

command=fuzz
argument=60
case ${1:-} in
  --corpus | --merge | --seeds) command=${1#--} && shift ;;
  --hours) command=hours && argument=${2:?how many hours} && shift 2 ;;
  [0-9]*) argument=$1 && shift ;;
esac

scripts/build-sanitize.sh fuzzers
names=("$@")
if ((${#names[@]} == 0)); then
  for program in build-sanitize/fuzz/*_fuzz; do
    names+=("$(basename "$program")")
  done
fi

what="fuzzers: ${#names[@]}"
case $command in
  fuzz)
    each fuzz "$argument"
    echo "$what, each for $argument s: no finding"
    ;;
  corpus)
    each try_corpus
    echo "$what, inputs of their corpora: $(find fuzz/corpus -type f | wc -l): no finding"
    ;;
  merge | seeds)
    [[ $command == merge ]] || build-sanitize/fuzz/fuzz_seeds build-sanitize/corpus
    each merge
    echo "$what; fuzz/corpus has $(find fuzz/corpus -type f | wc -l) inputs"
    ;;
  hours)
    touch "$record"
    result="no finding"
    take_turns "$argument" || result="FINDINGS, see above"
    for name in "${names[@]}"; do
      merge "$name"
    done
    table
    echo
    echo "$what; $(used | awk '{ inputs += $3; sum += $1 } END { printf "%.0f inputs in %.2f hours of processor time", inputs, sum / 3600 }'): $result"
    mv "$record" "$record.last"
    [[ "$result" == "no finding" ]]
    ;;
esac
