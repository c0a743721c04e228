#!/usr/bin/env bash
# Takes the pictures of the guide's first five minutes: velmora as a newcomer meets it, pressed through assistive
# technology, and a virtual Organiser that saves a file over a cable.
#   scripts/screenshots.sh --story [FOLDER]
# On a machine that has serial ports the first picture is another one: then the program finds a port by itself.
set -euo pipefail
cd "$(dirname "$0")/.."
if [[ -z "${VELMORA_STORY:-}" ]]; then
  scripts/setup.sh tests
  scripts/setup.sh pictures
  scripts/build.sh build -DCMAKE_BUILD_TYPE=RelWithDebInfo -DBUILD_TESTING=ON -- \
    velmora velmora-organiser velmora-cable velmora-screen-reader
  # A display and a login session of its own.
  VELMORA_STORY=1 exec xvfb-run --auto-servernum --server-args="-screen 0 1024x768x24" dbus-run-session -- "$0" "$@"
fi
mkdir -p "${1:-docs/images}"
folder=$(realpath "${1:-docs/images}")
build=$PWD/build
source bench/line.sh
# The user's folder has the same name in each picture.
export HOME=/tmp/anna
mkdir "$HOME"
trap 'cleanup; rm -rf /tmp/anna' EXIT
mkdir "$HOME/Documents"
export XDG_RUNTIME_DIR=$work/run XDG_DATA_HOME=$work/data
mkdir -m 700 "$XDG_RUNTIME_DIR"
unset QT_SCALE_FACTOR
export QT_QPA_PLATFORM=xcb QT_STYLE_OVERRIDE=fusion QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1 LC_ALL=C.UTF-8 TZ=UTC

# What the windows say, and a way to use them.
mkfifo "$work/orders"
"$build/tools/velmora-screen-reader" < "$work/orders" > "$work/heard" &
exec {orders}> "$work/orders"
heard=0
# await WORDS: until they are heard behind those that were awaited last.
await() {
  local found tries
  for ((tries = 0; tries < 600; ++tries)); do
    found=$(tail -n "+$((heard + 1))" "$work/heard" | grep -n -m 1 -F -e "$1" | cut -d : -f 1) || true
    if [[ -n "$found" ]]; then
      heard=$((heard + found))
      return
    fi
    sleep 0.05
  done
  echo "screenshots-story.sh: not heard: $1" >&2
  cat "$work/heard" >&2
  exit 1
}
press() {
  echo "press $1" >&"$orders"
  await "pressed $1"
}
# await_gone WORDS: until no window shows them.
await_gone() {
  local before
  while :; do
    before=$(wc -l < "$work/heard")
    echo list >&"$orders"
    await listed
    tail -n "+$((before + 1))" "$work/heard" | grep -q -F -e "$1" || return 0
  done
}
# picture WINDOW NAME: of the window with that title, once all of it is drawn.
picture() {
  sleep 1
  import -window "$1" -strip "$folder/$2.png"
}
await ready

# Started for the first time, with nothing plugged in.
cat > "$work/config/Velmora.ini" << END
; The configuration of the pictures. Its only port is the cable, which is not there at first.
[Settings]
Port=0
Baud=9600
[Ports]
COM1=$work/adapter-pc
END
"$build/bin/velmora" &
await "Plug in the adapter"
picture Velmora story-start

# Plugged in, and found by Setup.
start_cable adapter --baud 9600
press Setup
await "shows dialog: Velmora Setup"
await_gone "Testing the ports"
press Autostart
press OK
await "Waiting for link"
picture Velmora story-waiting

# A file is on its way.
for i in {1..60}; do printf 'Entry %d\tthe quick brown fox jumps over the lazy dog\r\n' "$i"; done > "$work/some"
organiser "$work/adapter-handheld" save "$work/some" --as CONTACTS &
saving=$!
await "Downloading file"
sleep 1
picture Velmora story-transfer
wait "$saving"

# It has arrived.
await "Save of Contacts.odb: complete"
picture Velmora story-done
press Transfers
await "frame: Velmora Transfers"
picture "Velmora Transfers" story-transfers
press "Shut down"
