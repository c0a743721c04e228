#!/usr/bin/env bash
# Measures how soon the window answers its user while a file is saved and loaded: at each rate, and over a line
# without one. The windows of transfers, with as many as are remembered, and of the protocol monitor are open.
# Prints one line a rate.
#   bench/window_answers.sh [BUILD_FOLDER [SECONDS]]
# Each rate takes about SECONDS each way. The windows are drawn on the display that DISPLAY names, by default on
# an Xvfb of this script's own.
set -euo pipefail
cd "$(dirname "$0")/.."
build=$(realpath "${1:-build}")
seconds=${2:-10}
source bench/line.sh
export XDG_DATA_HOME=$work/data
mkdir "$work/data"

if [[ -z "${DISPLAY:-}" ]]; then
  Xvfb -displayfd 3 -screen 0 1280x1024x24 -nolisten tcp -noreset 3> "$work/display" 2> /dev/null &
  until [[ -s "$work/display" ]]; do sleep 0.05; done
  DISPLAY=:$(< "$work/display")
  export DISPLAY
fi
export QT_QPA_PLATFORM=xcb

# start_window DEVICE BAUD
start_window() {
  cat > "$work/config/Velmora.ini" << END
[Settings]
Port=40
Baud=$2
AutoStart=True
DownloadPath=$work/psion
[Ports]
COM40=$1
END
  "$build/bench/velmora-window-answers" > "$work/answers" 2> "$work/window.log" &
  server=$!
  until [[ -s "$work/answers" ]]; do
    kill -0 "$server" || { cat "$work/window.log" >&2; exit 1; }
    sleep 0.02
  done
}

# transfer NAME BAUD RECORDS [OPTIONS OF THE CABLE …]
transfer() {
  local name=$1 baud=$2 records=$3
  shift 3
  awk -v count="$records" 'BEGIN {
    for (i = 0; i < count; ++i) printf "%-60s\r\n", "record " i }' > "$work/some"
  start_cable "$name" "$@"
  start_window "$work/$name-pc" "$baud"
  organiser "$work/$name-handheld" --baud "$baud" save "$work/some" --as SOME
  organiser "$work/$name-handheld" --baud "$baud" load SOME -o "$work/back"
  cmp "$work/some" "$work/back"
  stop_server
  stop_cable "$work/$name-cable.log"
}

# A thousand remembered transfers, as the first one was remembered.
transfer first 115200 1
history=$(find "$work" -name Transfers.jsonl)
line=$(head -1 "$history")
for ((i = 0; i < 1000; ++i)); do printf '%s\n' "$line"; done > "$history.many"
mv "$history.many" "$history"

for baud in 300 1200 2400 9600 19200 57600 115200; do
  transfer "at-$baud" "$baud" $((baud * seconds / 10 / 90 + 1)) --baud "$baud"
  echo "$baud baud: $(tail -1 "$work/answers")"
done
transfer unlimited 115200 $((seconds * 5000))
echo "no speed limit: $(tail -1 "$work/answers")"
