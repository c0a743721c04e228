#!/usr/bin/env bash
# Measures the built programs over the cable: records a second, memory of the server, time from its start to
# serving. Prints one line a figure.
#   bench/end_to_end.sh [BUILD_FOLDER]
set -euo pipefail
cd "$(dirname "$0")/.."
build=$(realpath "${1:-build}")
source bench/line.sh

# start_server DEVICE [OPTIONS …]
start_server() {
  "$build/bin/velmorad" --port "$1" --folder "$work/psion" "${@:2}" > "$work/server.log" 2>&1 &
  server=$!
  until grep -q "Waiting for link" "$work/server.log"; do sleep 0.002; done
}

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

stop_server
stop_cable "$work/fast-cable.log"
start_cable again
start=$(now)
start_server "$work/again-pc"
echo "start to serving, configured: $((($(now) - start) / 1000000)) ms"
stop_server
stop_cable "$work/again-cable.log"
