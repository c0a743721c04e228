#!/usr/bin/env bash
# Installs packages of Debian that are not there yet, as root or by sudo. Sourced by the scripts that set a machine up.

# is_installed PACKAGE: for this kind of machine, or for the one that its name ends in, as in libudev-dev:arm64.
is_installed() {
  local kind
  kind="($(dpkg --print-architecture)|all)"
  [[ $1 != *:* ]] || kind=${1#*:}
  dpkg-query -W -f='${Architecture} ${db:Status-Status}\n' "$1" 2> /dev/null | grep -qE "^$kind installed$"
}

as_root() {
  if ((EUID == 0)); then
    "$@"
  else
    sudo "$@"
  fi
}

# install_missing PACKAGE …: does nothing, and asks for no password, when all are there.
install_missing() {
  local package missing=()
  for package in "$@"; do
    is_installed "$package" || missing+=("$package")
  done
  ((${#missing[@]} > 0)) || return 0
  echo "Installing: ${missing[*]}"
  if [[ "${missing[*]}" == *:arm64* ]]; then
    as_root dpkg --add-architecture arm64
  fi
  as_root apt-get update -q
  as_root env DEBIAN_FRONTEND=noninteractive apt-get install -qy --no-install-recommends "${missing[@]}"
}
