#!/usr/bin/env bash
# Builds and starts the desktop program; arguments are handed on.
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/setup.sh
scripts/build.sh build -DCMAKE_BUILD_TYPE=RelWithDebInfo -- velmora
exec build/bin/velmora "$@"
