#!/usr/bin/env bash
# The main job, end to end: builds, starts the server, and lets a virtual Organiser save and load files over
# a line of two pseudo-terminals. With a display the server's window is shown; without one it is drawn all the
# same, and its picture in the middle of a transfer is left as build/demo/window.png. What else is left:
# build/demo/psion (the PC's side) and build/demo/organiser (what came back), compared at the end, and
# build/demo/demo.pcapng (what passed over the line).
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/setup.sh
scripts/build.sh build -DCMAKE_BUILD_TYPE=RelWithDebInfo -- velmorad velmora-organiser velmora-files \
  velmora-cable velmora-demo-window

bin=$PWD/build/bin
demo=$PWD/build/demo
rm -rf "$demo"
mkdir -p "$demo"/{psion,organiser}

# The cable ends when its standard input closes, so nothing is left behind however this script ends.
mkfifo "$demo/hold"
build/tools/velmora-cable --link "$demo/pc" "$demo/handheld" < "$demo/hold" > "$demo/cable.log" &
exec 3> "$demo/hold"
until [[ -e "$demo/handheld" ]]; do sleep 0.05; done

export XDG_CONFIG_HOME="$demo/config"
"$bin/velmorad" --port "$demo/pc" --folder "$demo/psion" --capture "$demo/demo.pcapng" > "$demo/server.log" 2>&1 &
server=$!
trap 'kill $server 2> /dev/null || true; exec 3>&-' EXIT
until grep -q "Waiting for link" "$demo/server.log"; do
  kill -0 $server 2> /dev/null || { cat "$demo/server.log"; exit 1; }
  sleep 0.05
done

organiser() {
  echo
  echo "\$ velmora-organiser $*"
  "$bin/velmora-organiser" --device "$demo/handheld" "$@"
}

printf 'Babbage\t1 Dorset St\t01 2345\r\nLovelace\t12 St James Sq\t01 6789\r\n' > "$demo/organiser/contacts.txt"
printf 'hello:\r\nPRINT "HELLO FROM"\r\nPRINT "THE PC"\r\nGET\r\n' > "$demo/organiser/hello.txt"

cd "$demo/organiser"
organiser save contacts.txt --as CONTACTS
organiser load CONTACTS -o contacts-again.txt
organiser save hello.txt --as HELLO --type procedure
organiser load HELLO --type procedure -o hello-again.txt
printf '%s\r\n' "A1 'Item" "B1 'Price" "C1 'Number" "D1 'Total" "A2 'Tea" "B2 1.25" "C2 4" "D2 =B2*C2" "A3 'Cup" \
  "B3 3" "C3 2" "D3 =B3*C3" "D4 =SUM(D2:D3)" > sheet.txt
organiser sheet-save sheet.txt --as BUDGET --format wks
organiser sheet-load BUDGET --format wks -o sheet-again.txt
echo
echo "\$ velmora-files show Budget.wks"
"$bin/velmora-files" show "$demo/psion/Budget.wks"
echo
echo "\$ wks2csv -F Budget.wks        # another program's view of it"
wks2csv -F "$demo/psion/Budget.wks"
organiser timeinfo
organiser dir --long
organiser tour

kill $server
wait $server
echo
echo "\$ velmora-files capture demo.pcapng | tail"
"$bin/velmora-files" capture "$demo/demo.pcapng" | tail

# The same server behind its window.
mkdir -p "$XDG_CONFIG_HOME"
printf '%s\r\n' '; The configuration of the demonstration: its port is the cable, and serving begins at once.' \
  '[Settings]' 'Port=40' 'Baud=9600' 'AutoStart=True' "DownloadPath=$demo/psion" \
  '[Ports]' "COM40=$demo/pc" > "$XDG_CONFIG_HOME/Velmora.ini"
if [[ -z "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]]; then
  export QT_QPA_PLATFORM=offscreen
fi
"$demo/../tools/velmora-demo-window" "$demo/window.png" > "$demo/window.log" 2>&1 &
server=$!
for i in $(seq 300); do printf 'Entry %d\tthe quick brown fox jumps over the lazy dog\r\n' "$i"; done > journal.txt
organiser save contacts.txt --as CONTACTS
organiser save journal.txt --as JOURNAL
organiser load JOURNAL -o journal-again.txt
cmp journal.txt journal-again.txt
kill $server
wait $server
[[ -s "$demo/window.png" ]]
echo
echo "The window while a file came in: build/demo/window.png"
echo
echo "What the server showed meanwhile (build/demo/server.log):"
sort -u "$demo/server.log" | head -12 | sed 's/^/    /'
echo
cmp contacts.txt contacts-again.txt && cmp hello.txt hello-again.txt && cmp sheet.txt sheet-again.txt
cmp contacts.txt "$demo/psion/Contacts.odb" && cmp hello.txt "$demo/psion/Hello.opl"
echo "Every file came back as it went. They are in build/demo/psion:"
ls -l "$demo/psion" | sed 1d
