#!/usr/bin/env bash
# Installs what is missing on a Debian or Ubuntu machine.
#   scripts/setup.sh          what it takes to build and run the programs
#   scripts/setup.sh tests    that, and what the tests and checks need
#   scripts/setup.sh valgrind both, and what looks for errors of memory in the running programs
#   scripts/setup.sh pictures that, and what takes pictures of a display
#   scripts/setup.sh packages the first, and what it takes to make Debian packages
#   scripts/setup.sh arm64    that, and what it takes to make them for 64-bit ARM and to run its programs here
#   scripts/setup.sh bare     the first, and what makes a minimal system to try all this in
set -euo pipefail
source "$(dirname "$0")/install-missing.sh"

packages=(g++ cmake ninja-build qt6-base-dev qt6-l10n-tools libcli11-dev nlohmann-json3-dev libudev-dev ccache libwps-tools fonts-dejavu-core)
if [[ "${1:-}" == tests || "${1:-}" == valgrind ]]; then
  packages+=(libgtest-dev libgmock-dev libbenchmark-dev clang clang-format clang-tidy libclang-rt-dev lld llvm
    xvfb xauth libxcb1-dev dbus-daemon at-spi2-core orca tzdata gnumeric python3 desktop-file-utils appstream pandoc cmark-gfm man-db zsh fish reuse tshark)
fi
if [[ "${1:-}" == valgrind ]]; then
  packages+=(valgrind)
fi
if [[ "${1:-}" == pictures ]]; then
  packages+=(xvfb xauth imagemagick fonts-wine)
fi
if [[ "${1:-}" == packages || "${1:-}" == arm64 ]]; then
  packages+=(pandoc cmark-gfm dpkg-dev lintian)
fi
if [[ "${1:-}" == arm64 ]]; then
  packages+=(g++-aarch64-linux-gnu qemu-user-static qt6-base-dev:arm64 libudev-dev:arm64)
fi
if [[ "${1:-}" == bare ]]; then
  packages+=(debootstrap)
fi

install_missing "${packages[@]}"
