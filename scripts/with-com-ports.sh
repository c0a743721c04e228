#!/bin/bash
# Runs a command with serial ports for Windows programs under Wine, made of pseudo-terminals:
#
#   scripts/with-com-ports.sh COMMAND [ARGUMENT …]
#
#   COM57, COM58   the two ends of a cable
#   COM59          the end of a cable that is pulled when the file VELMORA_TEST_PULL is made
#   COM60          in use by another program
#   COM61          missing
#
# The command finds their names in VELMORA_TEST_PORT, VELMORA_TEST_FAR_PORT, VELMORA_TEST_PULLED_PORT,
# VELMORA_TEST_HELD_PORT and VELMORA_TEST_MISSING_PORT. The ports are added to the Wine prefix WINEPREFIX, with
# numbers above those that Wine gives to this machine's own, and removed again; VELMORA_CABLE names the cable
# program, which belongs to a native build. Only one command at a time can use a prefix in this way.
set -euo pipefail
root=$(cd "$(dirname "$0")/.." && pwd)

if [ $# -eq 0 ]; then
    sed -n '2,/^set /{/^set /d;s/^# \{0,1\}//;p}' "$0" >&2
    exit 2
fi
cable=${VELMORA_CABLE:-$root/build/tools/velmora-cable}
prefix=${WINEPREFIX:-$HOME/.wine}
if [ ! -x "$cable" ]; then
    echo "with-com-ports: $cable is missing; build it natively (target velmora-cable) or set VELMORA_CABLE" >&2
    exit 2
fi
if [ ! -d "$prefix/dosdevices" ]; then
    echo "with-com-ports: $prefix is no Wine prefix; make it with: wineboot -i" >&2
    exit 2
fi

folder=$(mktemp -d)
ports=$prefix/dosdevices
programs=()
# shellcheck disable=SC2317  # called by the trap
cleanup() {
    for program in "${programs[@]}"; do
        kill "$program" 2>/dev/null || true
    done
    wait
    rm -rf "$folder"
    rm -f "$ports"/com{57,58,59,60}
}
trap cleanup EXIT
trap 'exit 130' INT
trap 'exit 143' TERM

# cable NAME OPTION … LINK1 LINK2: starts a cable and waits until its links are there.
start_cable() {
    local output=$folder/$1
    shift
    mkfifo "$output"
    # The cable ends with its standard input: the pipe that nobody writes to lives as long as this script.
    "$cable" "$@" <"$folder/hold" >"$output" 9<&- &
    programs+=($!)
    exec 8<"$output"
    read -r _ <&8
    read -r _ <&8
    # What it prints at its end needs a reader.
    cat <&8 >/dev/null 9<&- &
    programs+=($!)
    exec 8<&-
}
mkfifo "$folder/hold"
exec 9<>"$folder/hold"
rm -f "$ports"/com{57,58,59,60,61}
start_cable plain --link "$ports/com57" "$ports/com58"
start_cable pulled --link "$ports/com59" "$folder/unused"
pulled_cable=${programs[-2]}
start_cable held --held --link "$ports/com60" "$folder/unused2"

pull=$folder/pull
{
    until [ -e "$pull" ] || ! kill -0 $$; do sleep 0.05; done
    kill "$pulled_cable"
} 2>/dev/null 9<&- &
programs+=($!)

# Wine's server opens the ports for all programs. It must not be so privileged that it gets past another
# program's hold, and its own messages do not belong among the command's.
timeout 20 wineserver -w >/dev/null 2>&1 || true
if [ "$(id -u)" -eq 0 ] && command -v setpriv >/dev/null; then
    setpriv --bounding-set=-sys_admin --inh-caps=-sys_admin wineserver >/dev/null 2>&1 9<&- || true
else
    wineserver >/dev/null 2>&1 9<&- || true
fi

export VELMORA_TEST_PORT=COM57 VELMORA_TEST_FAR_PORT=COM58 VELMORA_TEST_PULLED_PORT=COM59
export VELMORA_TEST_HELD_PORT=COM60 VELMORA_TEST_MISSING_PORT=COM61
VELMORA_TEST_PULL=Z:$pull
export VELMORA_TEST_PULL
status=0
"$@" 9<&- || status=$?
exit $status
