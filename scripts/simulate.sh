#!/usr/bin/env bash
# Builds the simulation optimised and runs it; docs/reliability.md tells what it holds the server to.
# scripts/simulate.sh [--seconds N] [--transfers N] [--episodes N] [--seed S] [--journal FILE]
# Without a seed it takes one of the day and prints it; without a length it runs 60 seconds. Another build
# folder can be named in VELMORA_SIMULATION_BUILD.
set -euo pipefail
cd "$(dirname "$0")/.."
build=${VELMORA_SIMULATION_BUILD:-build-simulation}
arguments=("$@")
if [[ " $* " != *" --seed "* ]]; then
  arguments+=(--seed "$(date -u +%Y%m%d)0000")
fi
if [[ " $* " != *" --seconds "* && " $* " != *" --transfers "* && " $* " != *" --episodes "* ]]; then
  arguments+=(--seconds 60)
fi
if [[ -z "${VELMORA_SIMULATION_BUILD:-}" ]]; then
  scripts/setup.sh tests
  scripts/build.sh "$build" -DCMAKE_BUILD_TYPE=Release -DCMAKE_CXX_FLAGS_RELEASE="-O2 -DNDEBUG" -DVELMORA_TOOLKIT=OFF \
    -DBUILD_TESTING=ON -- velmora-simulate
fi
echo "velmora-simulate ${arguments[*]}"
exec "$build/tests/velmora-simulate" "${arguments[@]}"
