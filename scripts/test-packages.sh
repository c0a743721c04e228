#!/usr/bin/env bash
# Tries the Debian packages as an owner would: makes them, has lintian look at them, and in a minimal Debian that has
# nothing yet installs them, serves a file with the guide's own lines, upgrades, removes and purges them.
#   scripts/test-packages.sh                 all of that
#   scripts/test-packages.sh --arch arm64    those for 64-bit ARM, on such a Debian; the end-to-end tests with their
#                                            programs come first
#   scripts/test-packages.sh --reproducible  makes them twice besides, in two folders, and compares their bytes
# Ends with 3 where root may not make namespaces (in some containers), or not have other machines' programs run. What it takes stands in scripts/bare-machine.sh.
set -euo pipefail
cd "$(dirname "$0")/.."
source scripts/bare-machine.sh

suite=bookworm
twice=false
architecture=
arguments=("$@")
while (($# > 0)); do
  if [[ $1 == --reproducible ]]; then
    twice=true
  elif [[ $* == "--arch arm64"* ]]; then
    architecture=arm64
    shift
  else
    echo "usage: scripts/test-packages.sh [--arch arm64] [--reproducible]" >&2
    exit 2
  fi
  shift
done
bare_as_root "${arguments[@]}"
scripts/setup.sh bare
scripts/setup.sh "${architecture:-packages}"
export SOURCE_DATE_EPOCH=${SOURCE_DATE_EPOCH:-$(git -c safe.directory="$PWD" log -1 --format=%ct)}

kind=(${architecture:+--arch "$architecture"})
folder=build-package${architecture:+-$architecture}
if [[ -n $architecture ]]; then
  can_emulate "$architecture" || {
    echo "test-packages: this system cannot be asked to run programs for $architecture, so nothing was tested" >&2
    exit 3
  }
fi
scripts/package.sh "${kind[@]}" "$folder" > /dev/null
packages=("$folder"/packages/*.deb)
echo "Made: ${packages[*]##*/}"
lintian --allow-root --fail-on error,warning "${packages[@]}"
echo "lintian has nothing to say against them."

if $twice; then
  other=$(mktemp -d)
  trap 'rm -rf "$other"' EXIT
  scripts/package.sh "${kind[@]}" "$other/elsewhere" > /dev/null
  for package in "${packages[@]}"; do
    cmp "$package" "$other/elsewhere/packages/${package##*/}"
  done
  rm -rf "$other"
  echo "Two builds in two folders give the same bytes."
fi

if [[ -n $architecture ]]; then
  scripts/setup.sh tests
  scripts/build.sh build -DBUILD_TESTING=ON -- e2e_tests
  # The emulator starts no program by vfork, and has a file of its own where standard input was closed.
  beyond='AProgramRunsAfterEachCompleteFile|AServerWithoutStandardStreamsKeepsItsLines'
  VELMORA_E2E_BUILD=$PWD/$folder ctest --test-dir build --output-on-failure -j "$(nproc)" -L e2e -R '[.]' -E "$beyond" --progress
fi

bare_begin
# The guide's lines for a first try, as they stand there.
sed -n '/^## A first try/,/^## /s/^    //p' docs/headless.md > "$work/lines"
[[ $(wc -l < "$work/lines") -eq 4 ]] || {
  echo "test-packages: docs/headless.md has no four lines under \"A first try\"" >&2
  exit 1
}
mkdir "$machine/root/new" "$machine/root/old"
cp "${packages[@]}" "$machine/root/new"
cp "$work/lines" scripts/try-packages.sh "$machine/root"
# What is installed before: the same packages with a lower version.
for package in "${packages[@]}"; do
  dpkg-deb -R "$package" "$work/package"
  sed -i 's/^Version: .*/Version: 0.0.1/; s/(= [0-9.]*)/(= 0.0.1)/' "$work/package/DEBIAN/control"
  dpkg-deb --root-owner-group -b "$work/package" "$machine/root/old/${package##*/}" > /dev/null
  rm -rf "$work/package"
done
bare_run 'cd; bash try-packages.sh'
echo "The packages can be installed, used, upgraded, removed and purged on a bare $suite: ${SECONDS} s."
