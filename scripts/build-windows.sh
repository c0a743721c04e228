#!/usr/bin/env bash
# Cross-builds the Windows programs into build-windows/bin, and their tests.
#   scripts/build-windows.sh            everything, then the installer, the archive, and the source that goes with them
#   scripts/build-windows.sh programs   everything but the installer and the archive
#   scripts/build-windows.sh core       what needs no window toolkit, built for tests only: quick, not optimised
set -euo pipefail
cd "$(dirname "$0")/.."
what=${1:-all}

options=(-DCMAKE_TOOLCHAIN_FILE="$PWD/cmake/mingw-w64.cmake" -DCMAKE_CROSSCOMPILING_EMULATOR=wine
  -DBUILD_TESTING=ON)
if [[ "${CI:-}" == true ]]; then
  options+=(-DVELMORA_WERROR=ON)
fi
case "$what" in
  core)
    scripts/setup.sh tests
    scripts/setup-windows.sh tools
    options+=(-DVELMORA_TOOLKIT=OFF -DCMAKE_BUILD_TYPE=Debug -DCMAKE_CXX_FLAGS_DEBUG=-O0 -DVELMORA_LLD=ON
      -DCMAKE_UNITY_BUILD=ON -DCMAKE_UNITY_BUILD_BATCH_SIZE=16)
    ;;
  all | programs)
    scripts/setup-windows.sh
    # The linker strips the programs.
    options+=(-DVELMORA_TOOLKIT=ON -DCMAKE_BUILD_TYPE=Release -DCMAKE_CXX_FLAGS_RELEASE="-O2 -DNDEBUG"
      -DCMAKE_UNITY_BUILD=OFF -DVELMORA_LLD=OFF -DCMAKE_EXE_LINKER_FLAGS_RELEASE=-s
      -DCMAKE_PREFIX_PATH="$(scripts/setup-windows.sh prefix)" -DQT_HOST_PATH=/usr
      -DQT_HOST_PATH_CMAKE_DIR="/usr/lib/$(uname -m)-linux-gnu/cmake")
    ;;
  *)
    echo "usage: scripts/build-windows.sh [programs|core]" >&2
    exit 2
    ;;
esac

scripts/build.sh build-windows "${options[@]}"
if [[ "$what" == all ]]; then
  cmake --build build-windows --target package
  version=$(sed -n 's/^project(Velmora VERSION \([0-9.]*\).*/\1/p' CMakeLists.txt)
  scripts/windows-source.sh "build-windows/Velmora-$version-windows-source.tar"
fi
ls -l build-windows/bin/*.exe
