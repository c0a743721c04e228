#!/usr/bin/env bash
# Makes a release of the last commit: runs every test, makes the packages of each system, their checksums, and the notes
# out of the changelog. It publishes nothing; all lies in build-release then.
#   scripts/release.sh            everything
#   scripts/release.sh --check    only looks whether the tree is ready for a release
# Before: give the project its version in CMakeLists.txt, and the changelog's first heading the day, "## 1.2.3 (2026-12-24)".
set -euo pipefail
cd "$(dirname "$0")/.."

refuse() {
  echo "release: $1" >&2
  exit 1
}

case $* in
  '' | --check) ;;
  *)
    echo "usage: scripts/release.sh [--check]" >&2
    exit 2
    ;;
esac
[[ -z $(git status --porcelain) ]] || refuse "there are changes that are not committed"
version=$(sed -n 's/^project(Velmora VERSION \([0-9.]*\).*/\1/p' CMakeLists.txt)
heading=$(grep -m 1 '^## ' CHANGELOG.md)
[[ $heading =~ ^"## $version ("[0-9]{4}-[0-9]{2}-[0-9]{2}")"$ ]] ||
  refuse "the changelog begins with \"$heading\", not with \"## $version (YEAR-MONTH-DAY)\""
[[ ${1:-} != --check ]] || exit 0

CI=true scripts/test.sh
scripts/test-packages.sh --reproducible
scripts/test-packages.sh --arch arm64
scripts/build-windows.sh

release=build-release/velmora-$version
rm -rf "$release"
mkdir -p "$release"
cp build-package/packages/*.deb build-package-arm64/packages/*_arm64.deb "$release"
cp build-windows/Velmora-setup.exe build-windows/Velmora-"$version"-windows-{x86_64.zip,source.tar} "$release"
git archive --prefix="velmora-$version/" HEAD | gzip --best --no-name > "$release/velmora-$version.tar.gz"
# The notes are the changelog's part about this version.
sed '1,/^## /d; /^## /,$d' CHANGELOG.md > "$release/notes.md"
(cd "$release" && sha256sum -- *.deb *.exe *.zip *.tar *.tar.gz > SHA256SUMS)
echo "Release $version of $(git rev-parse --short=12 HEAD):"
ls -l "$release"
