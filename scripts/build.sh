#!/usr/bin/env bash
# Configures and builds: scripts/build.sh FOLDER [cmake options …] [-- targets …]
set -euo pipefail
cd "$(dirname "$0")/.."

folder=$1
shift
options=()
while (($# > 0)) && [[ "$1" != -- ]]; do
  options+=("$1")
  shift
done
(($# > 0)) && shift
cmake -S . -B "$folder" -G Ninja "${options[@]}" > "$folder.configure.log" 2>&1 || {
  cat "$folder.configure.log"
  exit 1
}
mv "$folder.configure.log" "$folder/configure.log"
cmake --build "$folder" ${1:+--target "$@"}
