#!/usr/bin/env bash
# Installs what the Windows programs are built and tested with, on a Debian machine.
#   scripts/setup-windows.sh          everything: the tools, and the toolkit, which is built once
#   scripts/setup-windows.sh tools    the cross-compiler and Wine: enough for all but the windows and velmorad
#   scripts/setup-windows.sh prefix   prints the folder that holds the toolkit and installs nothing
# The toolkit is built from the distribution's own source package, in the version of the installed native
# one, whose tools it uses. It is kept in VELMORA_WINDOWS_CACHE (~/.cache/velmora-windows by default).
set -euo pipefail
cd "$(dirname "$0")/.."

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

as_root=()
if ((EUID != 0)); then
  as_root=(sudo)
fi

toolkit_version() { dpkg-query -W -f='${source:Version}' qt6-base-dev; }

# The folder changes with the version and with the options, so that neither can be stale.
toolkit_prefix() {
  local key
  key=$(printf '%s\n' "${options[@]}" | sha256sum | cut -c 1-12)
  echo "$cache/qt-$(toolkit_version)-$key"
}

install_tools() {
  local package missing=()
  for package in g++-mingw-w64-x86-64-posix wine wine64 googletest "$@"; do
    if [[ "$(dpkg-query -W -f='${db:Status-Status}' "$package" 2>/dev/null || true)" != installed ]]; then
      missing+=("$package")
    fi
  done
  if ((${#missing[@]} > 0)); then
    echo "Installing: ${missing[*]}"
    "${as_root[@]}" apt-get update -q
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
      apt-get install -qy --no-install-recommends "${missing[@]}"
  fi
}

# Offers the source packages of the same places that the binary packages come from.
offer_source_packages() {
  local target=/etc/apt/sources.list.d/velmora-src
  if [[ "$(apt-get indextargets --format '$(CREATED_BY)' 2>/dev/null)" == *Sources* ]]; then
    return
  fi
  if compgen -G '/etc/apt/sources.list.d/*.sources' > /dev/null; then
    # An empty line parts the entries of two files.
    awk 'FNR == 1 && NR > 1 { print "" } { sub(/^Types:.*/, "Types: deb-src"); print }' \
      /etc/apt/sources.list.d/*.sources | "${as_root[@]}" tee "$target.sources" > /dev/null
  fi
  local file lists=()
  for file in /etc/apt/sources.list /etc/apt/sources.list.d/*.list; do
    [[ ! -f $file ]] || lists+=("$file")
  done
  if ((${#lists[@]} > 0)); then
    sed -nE 's/^deb /deb-src /p' "${lists[@]}" | "${as_root[@]}" tee "$target.list" > /dev/null
  fi
  "${as_root[@]}" apt-get update -q
}

build_toolkit() {
  local prefix work version source
  prefix=$(toolkit_prefix)
  if [[ -e $prefix/complete ]]; then
    return
  fi
  version=$(toolkit_version)
  work=$cache/work
  offer_source_packages
  rm -rf "$work"
  mkdir -p "$work"
  echo "Building the toolkit for Windows, once; this takes about twenty minutes on two cores."
  (cd "$work" && apt-get source -q "qt6-base=$version" > source.log 2>&1) || {
    cat "$work/source.log"
    exit 1
  }
  source=$(find "$work" -mindepth 1 -maxdepth 1 -type d -name 'qt6-base-*')
  cmake -G Ninja -S "$source" -B "$work/build" -DCMAKE_TOOLCHAIN_FILE="$toolchain" \
    -DCMAKE_INSTALL_PREFIX="$prefix" -DCMAKE_C_COMPILER_LAUNCHER=ccache \
    -DCMAKE_CXX_COMPILER_LAUNCHER=ccache "${options[@]}" > "$work/configure.log" 2>&1 || {
    tail -50 "$work/configure.log"
    exit 1
  }
  cmake --build "$work/build"
  cmake --install "$work/build" > "$work/install.log"
  touch "$prefix/complete"
  rm -rf "$work"
}

case "${1:-}" in
  prefix) toolkit_prefix ;;
  tools) install_tools ;;
  '')
    scripts/setup.sh tests
    install_tools dpkg-dev nsis cmark-gfm zip
    build_toolkit
    ;;
  *)
    echo "usage: scripts/setup-windows.sh [tools|prefix]" >&2
    exit 2
    ;;
esac
