#!/usr/bin/env bash
# Builds the Windows programs and tests them under Wine: the unit tests, then the end-to-end tests, which also
# need a native build. Wine has a Windows of its own for it, in build-windows/wine.
#   scripts/test-windows.sh        everything, on a display of its own
#   scripts/test-windows.sh core   what needs no window toolkit; the server of the end-to-end tests is native
set -euo pipefail
cd "$(dirname "$0")/.."
what=${1:-all}
if [[ "$what" != all && "$what" != core ]]; then
  echo "usage: scripts/test-windows.sh [core]" >&2
  exit 2
fi

if [[ -z "${VELMORA_TEST_DISPLAY:-}" ]]; then
  scripts/setup.sh tests
  if [[ "$what" == core ]]; then
    scripts/build-windows.sh core
  else
    scripts/build-windows.sh programs
  fi
  # Whatever kind of native build is there already will do.
  scripts/build.sh build -DBUILD_TESTING=ON -- e2e_tests
  if [[ "$what" == all ]]; then
    VELMORA_TEST_DISPLAY=own exec xvfb-run --auto-servernum --server-args="-screen 0 1280x1024x24" \
      scripts/test-windows.sh all
  fi
  unset DISPLAY
fi

jobs=$(nproc)
work=$PWD/build-windows/wine
logs=$work/logs
export WINEPREFIX=$work/prefix WINEDEBUG=-all
# Wine takes the names of files for texts in this encoding.
export LC_ALL=C.UTF-8
# A zone in which a wrong sign, a forgotten half hour and a forgotten summer show.
export TZ=America/St_Johns
# Nothing of this user's is linked into the prefix, and nothing asks to be downloaded or changes the menus.
export HOME=$work/home WINEDLLOVERRIDES="mscoree=;mshtml=;winemenubuilder.exe="

end_wineserver() {
  wineserver -k || true
  wineserver -w || true
}

# Wine's server would inherit the output of the first program and hold it open, so it is started by itself. It
# opens the ports, and must not get past another program's hold on one because it runs as root.
start_wineserver() {
  local command=(wineserver --persistent)
  if ((EUID == 0)) && command -v setpriv > /dev/null; then
    command=(setpriv --bounding-set=-sys_admin --inh-caps=-sys_admin "${command[@]}")
  fi
  "${command[@]}" < /dev/null >> "$logs/wineserver.log" 2>&1
}

make_prefix() {
  # A run that was killed left its server behind.
  [[ ! -d "$WINEPREFIX" ]] || end_wineserver
  rm -rf "$work"
  mkdir -p "$logs" "$WINEPREFIX" "$HOME"
  trap end_wineserver EXIT
  start_wineserver
  wineboot -i < /dev/null > "$logs/wineboot.log" 2>&1 || {
    cat "$logs/wineboot.log"
    exit 1
  }
}

# unit_tests NAME COMMAND …: runs CTest by a command and keeps what the test programs printed.
unit_tests() {
  local log=$logs/$1.log status=0
  shift
  "$@" --test-dir build-windows --output-on-failure || status=1
  cp build-windows/Testing/Temporary/LastTest.log "$log"
  return "$status"
}

# end_to_end_tests SHARDS [VARIABLE=VALUE …] -- [OPTION …]: runs the native test program against the Windows
# programs, in a number of processes.
end_to_end_tests() {
  local shards=$1 settings=() processes=() i status=0
  shift
  while [[ "$1" != -- ]]; do
    settings+=("$1")
    shift
  done
  shift
  for ((i = 0; i < shards; ++i)); do
    env "${settings[@]}" VELMORA_E2E_WINDOWS="$PWD/build-windows/bin" GTEST_TOTAL_SHARDS="$shards" \
      GTEST_SHARD_INDEX="$i" build/tests/e2e_tests "$@" > "$logs/end-to-end-$i.log" 2>&1 &
    processes+=($!)
  done
  for ((i = 0; i < shards; ++i)); do
    wait "${processes[i]}" || {
      status=1
      grep -v -e '^\[ RUN ' -e '^\[       OK ' "$logs/end-to-end-$i.log" || true
    }
  done
  return "$status"
}

# count LOG … : adds up what the test programs said at their ends, GoogleTest's and the toolkit's.
count() {
  sed 's/\r$//' "$@" | awk '
    /^\[==========\] [0-9]+ tests? from .* ran\./ { ran += $2 }
    /^\[  PASSED  \] [0-9]+ tests?\./ { passed += $4 }
    /^\[  SKIPPED \] [0-9]+ tests?, listed below:/ { skipped += $4 }
    /^\[  FAILED  \] [0-9]+ tests?, listed below:/ { failed += $4 }
    /^Totals: [0-9]+ passed, / { ran += $2 + $4 + $6; passed += $2; failed += $4; skipped += $6 }
    END { printf "%d run, %d passed, %d skipped, %d failed\n", ran, passed, skipped, failed }'
}

failed=0
make_prefix
unit_tests unit ctest -j "$jobs" --label-exclude comport --no-tests=error || failed=1
# This script starts Wine's server itself.
end_wineserver
# Each program has a cable of its own to pull.
for tests in serial_comport_tests organiser_comport_tests; do
  unit_tests "ports-$tests" scripts/with-com-ports.sh ctest --tests-regex "^$tests\$" --no-tests=error || failed=1
done
end_wineserver
start_wineserver
if [[ "$what" == core ]]; then
  # Those in which the Organiser or velmora-files has a part.
  end_to_end_tests "$jobs" VELMORA_E2E_SERVER=native -- --gtest_filter='TransferTest.*:FileServiceTest.*:ServicesTest.*:FilesToolTest.*:FaultsTest.*AtOnce:StopTest.AnOrganiserThat*:StopTest.WithoutAServer*' || failed=1
else
  # One after the other: the prefix has one configuration file.
  end_to_end_tests 1 -- || failed=1
fi

echo
echo "Tests of the Windows programs under Wine (logs: build-windows/wine/logs)"
echo "  unit tests:             $(count "$logs/unit.log")"
echo "  unit tests on ports:    $(count "$logs"/ports-*.log)"
echo "  end-to-end tests:       $(count "$logs"/end-to-end-*.log)"
if ((failed)); then
  echo "  FAILED"
fi
exit "$failed"
