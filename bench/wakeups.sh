#!/usr/bin/env bash
# Counts how often the built servers wake up in each state in which nothing happens, and what processor time
# that takes. Prints one line a figure.
#   bench/wakeups.sh [BUILD_FOLDER [SECONDS]]
# The window is shown on the display that QT_QPA_PLATFORM names, by default on none.
set -euo pipefail
cd "$(dirname "$0")/.."
build=$(realpath "${1:-build}")
seconds=${2:-20}
source bench/line.sh
export QT_QPA_PLATFORM=${QT_QPA_PLATFORM:-offscreen}

# write_configuration AUTOSTART: for both programs; no text is longer than the display, so that none scrolls.
write_configuration() {
  cat > "$work/config/Velmora.ini" << END
[Settings]
Port=40
Baud=9600
AutoStart=$1
DownloadPath=$work/psion
[Ports]
COM40=$work/silent-pc
[DisplayStrings]
Welcome="Welcome"," "
END
}

# count WHAT: lets the server settle and watches it.
count() {
  local woken_before busy_before
  sleep 3
  woken_before=$(wakeups)
  busy_before=$(busy)
  sleep "$seconds"
  awk -v what="$1" -v woken=$(($(wakeups) - woken_before)) -v ns=$(($(busy) - busy_before)) -v s="$seconds" \
    'BEGIN { printf "%s: %.2f wake-ups a second, %.3f %% of a core\n", what, woken / s, ns / s / 1e7 }'
}

start_cable silent
exec {handheld}<> "$work/silent-handheld"
cat <&"$handheld" >> "$work/heard" &
reader=$!

# await_link_requests: until the server sends them.
await_link_requests() {
  : > "$work/heard"
  until [[ -s "$work/heard" ]]; do sleep 0.01; done
}
# Sets up the link as the Organiser does that has nothing to say: a DATA frame without a payload.
link_up() { printf '\x16\x10\x02\x01\x19\x10\x03\xc0\x5a' >&"$handheld"; }

write_configuration True
"$build/bin/velmorad" > "$work/velmorad.log" 2>&1 &
server=$!
await_link_requests
count "velmorad, waiting for a link"
link_up
count "velmorad, link up and silent"
stop_server

"$build/bin/velmora" 2> /dev/null &
server=$!
await_link_requests
count "velmora, waiting for a link"
link_up
count "velmora, link up and silent"
stop_server

write_configuration False
"$build/bin/velmora" 2> /dev/null &
server=$!
count "velmora, offline"
stop_server
kill "$reader"
