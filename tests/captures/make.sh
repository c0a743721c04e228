#!/usr/bin/env bash
# Records the captures of this folder anew with the built programs: each is the conversation of a server that has
# just been started, with an empty download folder.
#   tests/captures/make.sh [BUILD_FOLDER]
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
build=$(cd "${1:-$here/../../build}" && pwd)
bin=$build/bin
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
export HOME=$work XDG_CONFIG_HOME=$work/config TZ=UTC
cd "$work"
# The cable lasts until its standard input ends.
mkfifo open-end
exec 9<> open-end

printf 'Ann Example\t12 High Street\t555 1234\r\nBob\t\t\r\nC\xf6lestine\t\x10\x10\r\n' > contacts
printf 'MAIN:\r\nLOCAL a%%\r\na%%=1\r\nPRINT a%%\r\n' > procedure
printf '\x00\x01\x10\x10\x03plain bytes\xff\x10' > bytes
printf 'one line\r\nanother line\r\n' > lines
printf "A1 'Sum\nB1 12\nC2 =B1*2.5\n" > cells
# 4 bytes of code, their sum, one word to relocate, its sum.
printf '\x00\x04\x12\x34\x10\xaa\x01\x00\x00\x01\x00\x00\x00\x00' > boot

# record NAME COMMAND …: one conversation for each command, whose words are parted by blanks.
record() {
  local name=$1 cable server command
  shift
  mkdir -p folder
  "$build/tools/velmora-cable" --link pc handheld < open-end > cable.log &
  cable=$!
  until [[ -e handheld ]]; do sleep 0.05; done
  "$bin/velmorad" --port "$work/pc" --folder folder --capture "$work/$name.pcapng" > server.log 2>&1 &
  server=$!
  until grep -q "Waiting for link" server.log; do sleep 0.05; done
  for command in "$@"; do
    # shellcheck disable=SC2086
    "$bin/velmora-organiser" --device "$work/handheld" $command > organiser.log 2>&1 || sed "s/^/$name: /" organiser.log
  done
  kill "$server" || true  # EXIT ends it
  wait "$server" || true
  kill "$cable" && wait "$cable" || true
  mv "$name.pcapng" "$here/"
  rm -rf folder pc handheld
}

record data "save contacts --as MEMO" "load MEMO"
record procedure "save procedure --as MAIN --type procedure" "load MAIN --type procedure" "save bytes --as BLOCK --type block:3" \
  "load BLOCK --type block:3"
record files "write NOTES.TXT lines --text" "read NOTES.TXT --text" "write RAW.DAT bytes" "read RAW.DAT --seek 2:-6"
record folder "save contacts --as MEMO" "save contacts --as A.LONGER.NAME" "dir" "dir M* --long"
record sheet "formats" "sheet-save cells --as PLAN --format wks" "sheet-load PLAN --format wks"
record boot "write CODE.BIN boot" "boot CODE --address 2000"
record clock "time" "gmt" "timeinfo"
record refused "load NONE" "service NOSUCH"
record exit "exit"
record noise "--corrupt 0.15 --seed 3 save contacts --as MEMO" "--corrupt 0.08 --seed 4 load MEMO"
record repeats "--drop 0.08 --duplicate 0.1 --seed 5 save contacts --as MEMO" "--drop 0.08 --seed 6 dir"
