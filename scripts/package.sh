#!/usr/bin/env bash
# Makes the Debian packages: velmora, velmora-server and velmora-doc.
#   scripts/package.sh [--arch arm64] [FOLDER [CMAKE_OPTION …]]
# for this kind of machine or another one, in FOLDER, build-package or build-package-arm64 by default; they lie in
# FOLDER/packages then. The same commit gives the same bytes, in whatever folder: times in the packages are those of
# the commit.
set -euo pipefail
cd "$(dirname "$0")/.."

folder=build-package
what=packages
options=()
if [[ ${1:-} == --arch ]]; then
  what=${2:?which kind of machine}
  [[ $what == arm64 ]] || {
    echo "package: only arm64 is built on other machines, not $what" >&2
    exit 2
  }
  folder+=-$what
  # dpkg-shlibdeps reads the programs of another machine with that machine's tools.
  export DEB_HOST_ARCH=$what
  options=(-DCMAKE_TOOLCHAIN_FILE="cmake/$what.cmake" -DCPACK_DEBIAN_PACKAGE_ARCHITECTURE="$what")
  shift 2
fi
folder=${1:-$folder}
shift $(($# > 0 ? 1 : 0))
scripts/setup.sh "$what"
if [[ -z ${SOURCE_DATE_EPOCH:-} ]]; then
  SOURCE_DATE_EPOCH=$(git -c safe.directory="$PWD" log -1 --format=%ct 2> /dev/null || stat -c %Y CHANGELOG.md)
fi
export SOURCE_DATE_EPOCH

scripts/build.sh "$folder" -DCMAKE_BUILD_TYPE=Release -DCMAKE_CXX_FLAGS_RELEASE="-O2 -DNDEBUG" \
  -DCMAKE_INSTALL_PREFIX=/usr -DVELMORA_MANUALS=ON -DBUILD_TESTING=OFF \
  -DVELMORA_COMMIT="$(git -c safe.directory="$PWD" rev-parse --short=12 HEAD 2> /dev/null || true)" \
  "${options[@]}" "$@" -- all
rm -rf "$folder/packages" "$folder/_CPack_Packages"
cpack --config "$folder/CPackConfig.cmake" -G DEB > "$folder/packages.log" || {
  cat "$folder/packages.log"
  exit 1
}
ls "$folder"/packages/*.deb
