#!/usr/bin/env bash
# Measures how much of a line the built programs use: at each rate, and with short records, where it counts how
# soon the server answers. Prints one line a figure: ten bits a byte of every frame that is exchanged, against
# the clock.
#   bench/line_share.sh [BUILD_FOLDER]
#   bench/line_share.sh --wine WINDOWS_BUILD_FOLDER [BUILD_FOLDER]
# With --wine the server is velmorad.exe, whose COM port is added to the Wine prefix WINEPREFIX; only the short
# records are measured then, since the rates are the line's.
set -euo pipefail
cd "$(dirname "$0")/.."
windows=
if [[ "${1:-}" == --wine ]]; then
  windows=$(realpath "$2")
  shift 2
fi
build=$(realpath "${1:-build}")
source bench/line.sh

com_port=$([[ -z "$windows" ]] || echo "${WINEPREFIX:-$HOME/.wine}/dosdevices/com97")
# start_server DEVICE [OPTIONS …]
start_server() {
  if [[ -n "$windows" ]]; then
    ln -sfn "$1" "$com_port"
    # Programs that Wine starts beside it live on, and would keep the cable from its end.
    (
      exec {hold}>&-
      WINEDEBUG=-all exec wine "$windows/bin/velmorad.exe" --port COM97 --config "Z:$work/Velmora.ini" \
        --folder "Z:$work/psion" "${@:2}" > "$work/server.log" 2>&1
    ) &
  else
    "$build/bin/velmorad" --port "$1" --folder "$work/psion" "${@:2}" > "$work/server.log" 2>&1 &
  fi
  server=$!
  until grep -q "Waiting for link" "$work/server.log"; do
    kill -0 "$server" || { cat "$work/server.log" >&2; exit 1; }
    sleep 0.002
  done
}

# records LENGTH COUNT: lines of so many characters.
records() { awk -v n="$1" -v count="$2" 'BEGIN {
  for (i = 0; i < count; ++i) { line = i; while (length(line) < n) line = line "x"; printf "%s\r\n", substr(line, 1, n) } }'; }

# run_once BAUD LENGTH RECORDS save|load: sets elapsed and cpu (nanoseconds), carried and answer_time.
runs=0
run_once() {
  local name=run$((runs += 1)) begin busy_before
  records "$2" "$3" > "$work/some"
  cp "$work/some" "$work/psion/Some.odb"
  start_cable "$name" --baud "$1"
  start_server "$work/$name-pc" --baud "$1"
  busy_before=$(busy)
  begin=$(now)
  if [[ $4 == save ]]; then
    organiser "$work/$name-handheld" --baud "$1" save "$work/some" --as SOME
  else
    organiser "$work/$name-handheld" --baud "$1" load SOME -o "$work/back"
    cmp "$work/some" "$work/back"
  fi
  elapsed=$(($(now) - begin))
  cpu=$(($(busy) - busy_before))
  stop_server
  stop_cable "$work/$name-cable.log"
}

# A long and a short run are compared, so that what happens once (starting the programs, setting up the link)
# drops out. An exchange of a record carries some thirty bytes beside it.
# share BAUD LENGTH save|load
share() {
  local bytes_a_second=$(($1 / 10)) short_elapsed short_carried
  local records_a_second=$((bytes_a_second / ($2 + 30) + 1))
  run_once "$1" "$2" $((records_a_second * 2)) "$3"
  short_elapsed=$elapsed
  short_carried=$carried
  run_once "$1" "$2" $((records_a_second * 12)) "$3"
  awk -v baud="$1" -v n="$2" -v direction="$3" -v ns=$((elapsed - short_elapsed)) \
    -v bytes=$((carried - short_carried)) -v answer="$answer_time" -v cpu=$((100000 * cpu / elapsed)) 'BEGIN {
    printf "%d baud, %s, records of %d bytes: %.1f %% of the line, an answer after %.2f ms, %.2f %% of a core\n",
      baud, direction, n, 1e9 * bytes * 10 / baud / (ns / 100), answer / 1000, cpu / 1000 }'
}

for length in 60 24 8; do
  for direction in save load; do
    share 9600 $length $direction
  done
done
if [[ -n "$windows" ]]; then
  rm -f "$com_port"
  exit
fi
for baud in 1200 2400 19200 38400 57600 115200; do
  for direction in save load; do
    share $baud 26 $direction
  done
done
