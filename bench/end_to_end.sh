#!/usr/bin/env bash
# Measures the built programs over the cable: records a second, how much of a line of each rate is used, idle
# load and memory of the server, time from its start to serving. Prints one line a figure.
#   bench/end_to_end.sh [BUILD_FOLDER]
set -euo pipefail
cd "$(dirname "$0")/.."
build=$(realpath "${1:-build}")
work=$(mktemp -d)
export XDG_CONFIG_HOME=$work/config
mkdir "$work/psion" "$work/config"
cleanup() {
  kill $(jobs -p) 2> /dev/null || true
  wait
  rm -rf "$work"
}
trap cleanup EXIT

now() { date +%s%N; }

# start_cable NAME [OPTIONS …]: makes $work/NAME-pc and $work/NAME-handheld.
start_cable() {
  local name=$1
  shift
  mkfifo "$work/$name-hold"
  "$build/tools/velmora-cable" "$@" --link "$work/$name-pc" "$work/$name-handheld" \
    < "$work/$name-hold" > "$work/$name-cable.log" &
  cable=$!
  exec {hold}> "$work/$name-hold"
  until [[ -e "$work/$name-handheld" ]]; do sleep 0.01; done
}
# stop_cable: sets carried to the bytes that went either way.
stop_cable() {
  local log=$1
  exec {hold}>&-
  wait "$cable"
  carried=$(awk '/^carried/ { print $2 + $3 }' "$log")
}
# start_server DEVICE [OPTIONS …]
start_server() {
  "$build/bin/velmorad" --port "$1" --folder "$work/psion" "${@:2}" > "$work/server.log" 2>&1 &
  server=$!
  until grep -q "Waiting for link" "$work/server.log"; do sleep 0.002; done
}
organiser() { "$build/bin/velmora-organiser" --device "$1" "${@:2}" > /dev/null; }

awk 'BEGIN { for (i = 0; i < 20000; ++i) printf "record %d\tsome street 12\t01 2345\r\n", i }' > "$work/many"
start_cable fast
start=$(now)
start_server "$work/fast-pc"
echo "start to serving, first start, writes the configuration file: $((($(now) - start) / 1000000)) ms"

start=$(now)
organiser "$work/fast-handheld" save "$work/many" --as MANY
echo "records saved a second: $((20000 * 1000000000 / ($(now) - start)))"
start=$(now)
organiser "$work/fast-handheld" load MANY -o "$work/back"
echo "records loaded a second: $((20000 * 1000000000 / ($(now) - start)))"
cmp "$work/many" "$work/back"
echo "resident memory: $(awk '/VmRSS/ { print $2 }' /proc/$server/status) kB"

busy() { awk '{ print $1 }' "/proc/$server/schedstat"; }  # nanoseconds on a processor
before=$(busy)
sleep 20
echo "idle, waiting for a link: $(awk -v ns=$(($(busy) - before)) 'BEGIN { printf "%.2f", ns / 20e9 * 100 }') % of a core"
kill $server
wait $server
stop_cable "$work/fast-cable.log"
start_cable again
start=$(now)
start_server "$work/again-pc"
echo "start to serving, configured: $((($(now) - start) / 1000000)) ms"
kill $server
wait $server
stop_cable "$work/again-cable.log"

# Ten bits a byte of every frame that is exchanged, against the clock. A long and a short run are compared,
# so that what happens once (starting the programs, setting up the link) drops out.
# slow_run BAUD RECORDS save|load: sets elapsed (nanoseconds) and carried (bytes).
slow_run() {
  local name=$3$1-$2 begin
  head -n "$2" "$work/many" > "$work/some"
  cp "$work/some" "$work/psion/Some.odb"
  start_cable "$name" --baud "$1"
  start_server "$work/$name-pc" --baud "$1"
  begin=$(now)
  if [[ $3 == save ]]; then
    organiser "$work/$name-handheld" --baud "$1" save "$work/some" --as SOME
  else
    organiser "$work/$name-handheld" --baud "$1" load SOME -o "$work/back"
    cmp "$work/some" "$work/back"
  fi
  elapsed=$(($(now) - begin))
  kill $server
  wait $server
  stop_cable "$work/$name-cable.log"
}
for baud in 1200 2400 9600; do
  for direction in save load; do
    slow_run $baud $((baud / 192)) $direction
    short_elapsed=$elapsed
    short_carried=$carried
    slow_run $baud $((baud / 27)) $direction
    awk -v baud=$baud -v direction=$direction -v ns=$((elapsed - short_elapsed)) \
      -v bytes=$((carried - short_carried)) 'BEGIN {
      ideal = bytes * 10 / baud
      printf "%d baud, %s: %d bytes in %.3f s, ideal %.3f s: %.2f %%\n", baud, direction, bytes, ns / 1e9,
        ideal, 100 * ideal / (ns / 1e9)
    }'
  done
done
