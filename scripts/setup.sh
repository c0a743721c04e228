#!/usr/bin/env bash
# Installs what is missing on a Debian or Ubuntu machine.
#   scripts/setup.sh          what it takes to build and run the programs
#   scripts/setup.sh tests    that, and what the tests and checks need
#   scripts/setup.sh valgrind both, and what looks for errors of memory in the running programs
#   scripts/setup.sh pictures that, and what takes pictures of a display
#   scripts/setup.sh packages what it takes to make Debian packages
#   scripts/setup.sh bare     that, and what makes a minimal system to try all this in
set -euo pipefail

packages=(g++ cmake ninja-build qt6-base-dev libcli11-dev nlohmann-json3-dev libudev-dev ccache libwps-tools fonts-dejavu-core)
if [[ "${1:-}" == tests || "${1:-}" == valgrind ]]; then
  packages+=(libgtest-dev libgmock-dev libbenchmark-dev clang clang-format clang-tidy libclang-rt-dev llvm
    xvfb xauth libxcb1-dev dbus-daemon tzdata gnumeric python3 desktop-file-utils appstream pandoc cmark-gfm man-db zsh fish reuse)
fi
if [[ "${1:-}" == valgrind ]]; then
  packages+=(valgrind)
fi
if [[ "${1:-}" == pictures ]]; then
  packages+=(xvfb xauth imagemagick fonts-wine)
fi
if [[ "${1:-}" == packages ]]; then
  packages+=(pandoc cmark-gfm dpkg-dev lintian)
fi
if [[ "${1:-}" == bare ]]; then
  packages+=(debootstrap)
fi

missing=()
for package in "${packages[@]}"; do
  if [[ "$(dpkg-query -W -f='${db:Status-Status}' "$package" 2>/dev/null || true)" != installed ]]; then
    missing+=("$package")
  fi
done
if ((${#missing[@]} == 0)); then
  exit 0
fi

as_root=()
if ((EUID != 0)); then
  as_root=(sudo)
fi
echo "Installing: ${missing[*]}"
"${as_root[@]}" apt-get update -q
"${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -qy --no-install-recommends "${missing[@]}"
