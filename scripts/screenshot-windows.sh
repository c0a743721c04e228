#!/usr/bin/env bash
# Takes the picture of the Windows program: velmora.exe under Wine, while a virtual Organiser saves a file.
#   scripts/screenshot-windows.sh [PICTURE]      after scripts/build-windows.sh
set -euo pipefail
cd "$(dirname "$0")/.."
picture=$(realpath "${1:-docs/images/windows.png}")

if [[ -z "${VELMORA_PICTURE_STAGE:-}" ]]; then
  # On a display, a Windows and ports of its own.
  scripts/setup.sh pictures
  work=$(mktemp -d)
  export WINEPREFIX=$work/wine WINEDEBUG=-all WINEDLLOVERRIDES='mscoree,mshtml=;winemenubuilder.exe='
  trap 'wineserver -k || true; rm -rf "$work"' EXIT
  VELMORA_PICTURE_STAGE=display xvfb-run --auto-servernum --server-args="-screen 0 560x460x24" "$0" "$picture"
  ls -l "$picture"
  exit
fi
if [[ "$VELMORA_PICTURE_STAGE" == display ]]; then
  wineboot -i > /dev/null 2>&1 < /dev/null
  # Those that every Windows has.
  cp /usr/share/wine/fonts/{tahoma,tahomabd,marlett}.ttf "$WINEPREFIX/drive_c/windows/Fonts"
  wineserver -k || true
  VELMORA_PICTURE_STAGE=ports exec scripts/with-com-ports.sh "$0" "$picture"
fi

mkdir "$WINEPREFIX/drive_c/Psion"
settings=$(echo "$WINEPREFIX"/drive_c/users/*/AppData/Roaming | tr ' ' '\n' | grep -v /Public/)/Velmora.ini
printf '%s\r\n' '; The configuration of the picture: its port is the cable, and serving begins at once. A file of' \
  '; less than a hundred bytes would be replaced by the default one.' '[Settings]' \
  "Port=${VELMORA_TEST_PORT#COM}" 'Baud=9600' 'AutoStart=True' 'DownloadPath=C:\Psion' > "$settings"
# Wine's desktop gives the window a frame, as no window manager runs.
wine explorer /desktop=Velmora,560x460 "$PWD/build-windows/bin/velmora.exe" > /dev/null 2>&1 < /dev/null &
organiser() {
  wine build-windows/bin/velmora-organiser.exe --device "$VELMORA_TEST_FAR_PORT" "$@" > /dev/null 2>&1 < /dev/null
}

file=$WINEPREFIX/drive_c/contacts.txt
printf 'Babbage\t1 Dorset St\t01 2345\r\nLovelace\t12 St James Sq\t01 6789\r\n' > "$file"
until organiser save 'C:\contacts.txt' --as CONTACTS; do :; done
for i in $(seq 20000); do printf 'Entry %d\tthe quick brown fox jumps over the lazy dog\r\n' "$i"; done > "$file"
organiser save 'C:\contacts.txt' --as JOURNAL &
saving=$!
saved() { stat -c %s "$WINEPREFIX/drive_c/Psion/Journal.odb" 2> /dev/null || echo 0; }
until (($(saved) > 20000)); do sleep 0.1; done
import -window root "$picture"
kill "$saving" 2> /dev/null || true
