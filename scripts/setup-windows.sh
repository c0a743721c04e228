#!/usr/bin/env bash
# Installs what the Windows programs are built and tested with, on a Debian machine.
#   scripts/setup-windows.sh [--jobs N]   everything: the tools, and the toolkit, which is built once; a build that was
#                                     broken off goes on where it was
#   scripts/setup-windows.sh tools    the cross-compiler and Wine: enough for all but the windows and velmorad
#   scripts/setup-windows.sh prefix   prints the folder that holds the toolkit and installs nothing
# The toolkit is built from the distribution's own source package, in the version of the installed native
# one, whose tools it uses. It is kept in VELMORA_WINDOWS_CACHE (~/.cache/velmora-windows by default), with that package in
# the folder "source" and the licences of its parts in "toolkit-parts.txt".
set -euo pipefail
cd "$(dirname "$0")/.."
source scripts/install-missing.sh

toolchain=$PWD/cmake/mingw-w64.cmake
cache=${VELMORA_WINDOWS_CACHE:-${XDG_CACHE_HOME:-$HOME/.cache}/velmora-windows}
options=(
  -DBUILD_SHARED_LIBS=OFF -DCMAKE_BUILD_TYPE=Release
  -DQT_HOST_PATH=/usr -DQT_HOST_PATH_CMAKE_DIR="/usr/lib/$(uname -m)-linux-gnu/cmake"
  -DQT_BUILD_EXAMPLES=OFF -DQT_BUILD_TESTS=OFF -DQT_BUILD_TOOLS_BY_DEFAULT=OFF
  -DINPUT_opengl=no
)
# The header that tablet events need is not in Debian's package.
for feature in opengl vulkan network sql xml dbus concurrent printsupport tabletevent icu glib openssl; do
  options+=("-DFEATURE_$feature=OFF")
done
for library in zlib pcre2 freetype harfbuzz png jpeg doubleconversion; do
  options+=("-DFEATURE_system_$library=OFF")
done
options+=(-DFEATURE_testlib=ON)

toolkit_version() { dpkg-query -W -f='${source:Version}' "qt6-base-dev:$(dpkg --print-architecture)"; }

# The folder changes with the version and with the options, so that neither can be stale.
toolkit_prefix() {
  local key
  key=$(printf '%s\n' "${options[@]}" | sha256sum | cut -c 1-12)
  echo "$cache/qt-$(toolkit_version)-$key"
}

install_tools() { install_missing g++-mingw-w64-x86-64-posix wine wine64 googletest "$@"; }

# Offers the source packages of the same places that the binary packages come from.
offer_source_packages() {
  local target=/etc/apt/sources.list.d/velmora-src
  if [[ "$(apt-get indextargets --format '$(CREATED_BY)' 2>/dev/null)" == *Sources* ]]; then
    return
  fi
  if compgen -G '/etc/apt/sources.list.d/*.sources' > /dev/null; then
    # An empty line parts the entries of two files.
    awk 'FNR == 1 && NR > 1 { print "" } { sub(/^Types:.*/, "Types: deb-src"); print }' \
      /etc/apt/sources.list.d/*.sources | as_root tee "$target.sources" > /dev/null
  fi
  local file lists=()
  for file in /etc/apt/sources.list /etc/apt/sources.list.d/*.list; do
    [[ ! -f $file ]] || lists+=("$file")
  done
  if ((${#lists[@]} > 0)); then
    sed -nE 's/^deb /deb-src /p' "${lists[@]}" | as_root tee "$target.list" > /dev/null
  fi
  as_root apt-get update -q
}

# Whoever gets the programs has a right to the toolkit's source as it was built, so that it stays beside it.
fetch_source() {
  local prefix=$1
  [[ ! -e $prefix/source ]] || return 0
  offer_source_packages
  rm -rf "$prefix/source.part"
  mkdir -p "$prefix/source.part"
  (cd "$prefix/source.part" && apt-get source -q --download-only "qt6-base=$(toolkit_version)" > "$prefix/source.log" 2>&1) || {
    cat "$prefix/source.log"
    exit 1
  }
  rm "$prefix/source.log"
  mv "$prefix/source.part" "$prefix/source"
}

# require_room FOLDER: the build is large, and a disk that is full after half an hour is no good news.
require_room() {
  local megabytes=4000 free
  free=$(df -BM --output=avail "$1" | tail -1 | tr -dc 0-9)
  echo "Building the toolkit for Windows, once: some twenty minutes on two cores; 3 GB in $1 meanwhile, 0.2 GB then."
  if ((free < megabytes)); then
    echo "There are only $free MB left; $megabytes MB are wanted. VELMORA_WINDOWS_CACHE names another folder." >&2
    exit 1
  fi
}

# build_toolkit [JOBS]
build_toolkit() {
  local prefix work
  prefix=$(toolkit_prefix)
  work=$prefix.work
  [[ ! -e $prefix/complete || ! -e $prefix/toolkit-parts.txt || ! -e $prefix/source ]] || return 0
  fetch_source "$prefix"
  mkdir -p "$work"
  if [[ ! -e $work/unpacked ]]; then
    rm -rf "$work/source"
    dpkg-source --no-check -x "$prefix"/source/*.dsc "$work/source" > /dev/null
    touch "$work/unpacked"
  fi
  packaging/windows/toolkit_parts.py "$work/source" > "$work/toolkit-parts.txt"
  mv "$work/toolkit-parts.txt" "$prefix"
  if [[ ! -e $prefix/complete ]]; then
    require_room "$cache"
    cmake -G Ninja -S "$work/source" -B "$work/build" -DCMAKE_TOOLCHAIN_FILE="$toolchain" \
      -DCMAKE_INSTALL_PREFIX="$prefix" -DCMAKE_C_COMPILER_LAUNCHER=ccache \
      -DCMAKE_CXX_COMPILER_LAUNCHER=ccache "${options[@]}" > "$work/configure.log" 2>&1 || {
      tail -50 "$work/configure.log"
      exit 1
    }
    cmake --build "$work/build" ${1:+--parallel "$1"}
    cmake --install "$work/build" > "$work/install.log"
    touch "$prefix/complete"
  fi
  rm -rf "$work"
}

usage() {
  echo "usage: scripts/setup-windows.sh [--jobs N | tools | prefix]" >&2
  exit 2
}

case "${1:-}" in
  prefix) toolkit_prefix ;;
  tools) install_tools ;;
  '' | --jobs)
    [[ $# == 0 || ${2:-} =~ ^[1-9][0-9]*$ ]] || usage
    scripts/setup.sh tests
    install_tools dpkg-dev nsis cmark-gfm zip
    build_toolkit "${2:-}"
    ;;
  *) usage ;;
esac
