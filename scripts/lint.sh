#!/usr/bin/env bash
# Runs clang-tidy with our .clang-tidy.
#   scripts/lint.sh         over everything below src/ as the build in build-sanitize/ compiles it, which is made first,
#                           and what is written for Windows as the one in build-windows/ does when there is one
#   scripts/lint.sh FILE …  over some sources, as the build in build/ compiles them
set -euo pipefail
cd "$(dirname "$0")/.."

# tidy FOLDER [OPTION …]: checks the sources on standard input.
tidy() {
  local folder=$1 log=$1/lint.log
  shift
  if ! xargs -r -P "$(nproc)" -n 1 clang-tidy -p "$folder" --quiet --config-file=.clang-tidy "$@" 2> "$log"; then
    grep -v 'warnings\? generated' "$log" >&2 || true
    return 1
  fi
}

# units FOLDER: what a build compiles of src/, but for what it makes itself: the sources one by one, or files that
# include several.
units() {
  sed -n "s|^ *\"file\": \"\($PWD/\($1/\)\?src/.*\.c[px][px]\)\".*|\1|p" "$1/compile_commands.json" | grep -v -e _autogen/ -e /generated/
}

# for_windows: of the units on standard input those that have code for Windows alone. The rest would be read twice.
for_windows() {
  local unit parts
  while read -r unit; do
    mapfile -t parts < <(echo "$unit" && sed -n 's|^#include "\(/.*\.cpp\)"|\1|p' "$unit")
    if [[ "${parts[*]}" == *win32* ]] || grep -q _WIN32 "${parts[@]}"; then
      echo "$unit"
    fi
  done
}

if (($# > 0)); then
  printf '%s\n' "$@" | tidy build
  exit
fi

failed=0
# Including sources is what files of several sources are for.
checks=--checks=-bugprone-suspicious-include
scripts/build-sanitize.sh
units build-sanitize | tidy build-sanitize "$checks" || failed=1
if [[ -e build-windows/compile_commands.json ]]; then
  # The linter knows the system's headers, but not where this compiler keeps those of the language.
  headers=$(x86_64-w64-mingw32-g++-posix -print-file-name=include/c++)
  # Win32 hands pointers over as integers.
  units build-windows | for_windows | tidy build-windows "$checks,-performance-no-int-to-ptr" \
    --extra-arg=--target=x86_64-w64-mingw32 --extra-arg="-isystem$headers" \
    --extra-arg="-isystem$headers/x86_64-w64-mingw32" || failed=1
fi
exit "$failed"
