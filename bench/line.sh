# shellcheck shell=bash disable=SC2034,SC2154  # what it sets is for the scripts, and they set build and server
# For the scripts of this folder: the built programs on a cable. They set build, the build folder, before.
# A folder of its own, $work, with the download folder and the configuration goes at the end, as does all
# that was started.
work=$(mktemp -d)
export XDG_CONFIG_HOME=$work/config
mkdir "$work/psion" "$work/config"
cleanup() {
  # shellcheck disable=SC2046  # a word for each job
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
# stop_cable LOG: sets carried to the bytes that went either way, answer_time to the microseconds that half of
# the server's answers took at most.
stop_cable() {
  exec {hold}>&-
  wait "$cable"
  carried=$(awk '/^carried/ { print $2 + $3 }' "$1")
  answer_time=$(awk '/^answers/ { print $4 }' "$1")
}
organiser() { "$build/bin/velmora-organiser" --device "$1" "${@:2}" > /dev/null; }

# Of all threads of the server: nanoseconds on a processor, and the number of wake-ups.
busy() { cat "/proc/$server/task/"*/schedstat | awk '{ sum += $1 } END { printf "%.0f", sum }'; }
wakeups() { cat "/proc/$server/task/"*/status | awk '/^voluntary_ctxt_switches/ { sum += $2 } END { printf "%.0f", sum }'; }
stop_server() {
  kill "$server"
  wait "$server" || true
}
