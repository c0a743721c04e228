#!/usr/bin/env bash
# Makes the Debian packages of this machine's kind: velmora, velmora-server and velmora-doc.
#   scripts/package.sh [FOLDER [CMAKE_OPTION …]]     builds in FOLDER, build-package by default; they lie in FOLDER/packages
# The same commit gives the same bytes, in whatever folder: times in the packages are those of the commit.
set -euo pipefail
cd "$(dirname "$0")/.."

folder=${1:-build-package}
shift $(($# > 0 ? 1 : 0))
scripts/setup.sh packages
if [[ -z ${SOURCE_DATE_EPOCH:-} ]]; then
  SOURCE_DATE_EPOCH=$(git -c safe.directory="$PWD" log -1 --format=%ct 2> /dev/null || stat -c %Y CHANGELOG.md)
fi
export SOURCE_DATE_EPOCH

scripts/build.sh "$folder" -DCMAKE_BUILD_TYPE=Release -DCMAKE_CXX_FLAGS_RELEASE="-O2 -DNDEBUG" \
  -DCMAKE_INSTALL_PREFIX=/usr -DVELMORA_MANUALS=ON -DBUILD_TESTING=OFF \
  -DVELMORA_COMMIT="$(git -c safe.directory="$PWD" rev-parse --short=12 HEAD 2> /dev/null || true)" "$@" -- all
rm -rf "$folder/packages" "$folder/_CPack_Packages"
cpack --config "$folder/CPackConfig.cmake" -G DEB > "$folder/packages.log" || {
  cat "$folder/packages.log"
  exit 1
}
ls "$folder"/packages/*.deb
