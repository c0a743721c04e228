#!/usr/bin/env bash
# Proves the README's commands on a machine that has nothing yet: makes a minimal Debian with git alone in it, clones
# the last commit there, and runs scripts/demo.sh in an empty environment. Whatever is missing, scripts/setup.sh forgot.
#   scripts/test-bare.sh [SUITE]          SUITE is bookworm by default; trixie works as well
#   scripts/test-bare.sh [SUITE] --whole  runs scripts/test.sh there, too
# Ends with 3 where root may not make the namespaces that it works in (in some containers).
# Takes root (asks sudo for it), an archive of Debian in apt's configuration, and 4 GB. The minimal system is kept in
# VELMORA_BARE_CACHE (~/.cache/velmora-bare by default) and may be deleted.
set -euo pipefail
cd "$(dirname "$0")/.."

suite=bookworm
commands=(scripts/demo.sh)
for argument; do
  case $argument in
    --whole) commands+=(scripts/test.sh) ;;
    -*)
      echo "usage: scripts/test-bare.sh [SUITE] [--whole]" >&2
      exit 2
      ;;
    *) suite=$argument ;;
  esac
done
cache=${VELMORA_BARE_CACHE:-${XDG_CACHE_HOME:-$HOME/.cache}/velmora-bare}
if ((EUID != 0)); then
  exec sudo VELMORA_BARE_CACHE="$cache" "$0" "$@"
fi
unshare --mount --pid --fork true || {
  echo "test-bare: root may not make namespaces here, so nothing was tested" >&2
  exit 3
}
scripts/setup.sh bare

# in_namespace COMMAND …: the command's mounts are seen by nobody else and end with it, as its processes do, so that
# nothing of this machine can be in the folder when it is removed.
in_namespace() {
  unshare --mount --pid --fork --kill-child "$@"
}

# The archive that this machine installs its own packages from.
archive() {
  local codename
  codename=$(sed -n 's/^VERSION_CODENAME=//p' /etc/os-release)
  apt-get indextargets --format '$(REPO_URI)' 'Created-By: Packages' 'Component: main' "Release: $codename" | head -1
}

make_base() {
  local mirror
  mirror=$(archive)
  [[ -n $mirror ]] || {
    echo "test-bare: apt's configuration names no archive of this system's release" >&2
    exit 1
  }
  echo "Making a minimal $suite, once."
  in_namespace debootstrap --variant=minbase --include=git,ca-certificates "$suite" "$work/base" "$mirror" \
    > "$cache/$suite.log" || {
    tail -20 "$cache/$suite.log" >&2
    exit 1
  }
  tar -C "$work/base" --one-file-system -cf "$work/base.tar" .
  mv "$work/base.tar" "$base"
}

# What this machine needs to reach the archive, the new one needs, too.
copy_network() {
  local own
  cp -L /etc/resolv.conf /etc/hosts "$machine/etc/"
  apt-config dump | grep -E '^Acquire::(https?::|Check-)' > "$machine/etc/apt/apt.conf.d/90-network" || true
  for own in /usr/local/share/ca-certificates/*.crt; do
    [[ ! -e $own ]] || cat "$own" >> "$machine/etc/ssl/certs/ca-certificates.crt"
  done
}

# Compiled objects are kept from run to run; the packages are what is tested, and are not.
enter() {
  mount -t proc proc "$machine/proc"
  mount -t sysfs -o ro sysfs "$machine/sys"
  mount -t devpts -o newinstance,ptmxmode=0666,mode=0620 devpts "$machine/dev/pts"
  mount --bind "$cache/$suite.ccache" "$machine/root/.cache/ccache"
  exec chroot "$machine" env -i HOME=/root PATH=/usr/local/sbin:/usr/local/bin:/usr/sbin:/usr/bin:/sbin:/bin \
    bash -euc 'cd; git clone -q velmora.bundle velmora; cd velmora; for command; do "$command"; done' - "$@"
}

base=$cache/$suite.tar
mkdir -p "$cache/$suite.ccache"
exec 9> "$cache/$suite.lock"
flock 9
work=$(mktemp -d "$cache/work.XXXXXX")
trap 'rm -rf --one-file-system "$work"' EXIT
[[ -e $base ]] || make_base

machine=$work/machine
mkdir "$machine"
tar -C "$machine" -xpf "$base"
mkdir -p "$machine/root/.cache/ccache"
copy_network
git -c safe.directory="$PWD" bundle create -q "$machine/root/velmora.bundle" HEAD
export -f enter
export machine cache suite
in_namespace bash -euc 'enter "$@"' - "${commands[@]}" 9>&-
echo
echo "A bare $suite runs ${commands[*]}: ${SECONDS} s."
