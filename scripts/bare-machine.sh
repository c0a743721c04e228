#!/usr/bin/env bash
# Makes a minimal Debian in a folder, a machine that has nothing yet, and runs commands there. Sourced by the scripts that
# try something on such a machine: they set `suite`, and for another kind of machine than this one `architecture`, call
# bare_begin and then bare_run.
# Takes root (asks sudo for it), an archive of Debian in apt's configuration, and 4 GB. The minimal system is kept in
# VELMORA_BARE_CACHE (~/.cache/velmora-bare by default) and may be deleted.

cache=${VELMORA_BARE_CACHE:-${XDG_CACHE_HOME:-$HOME/.cache}/velmora-bare}

# bare_as_root ARGUMENT …: becomes root with the script's arguments; ends with 3 where namespaces may not be made.
bare_as_root() {
  if ((EUID != 0)); then
    exec sudo VELMORA_BARE_CACHE="$cache" "$0" "$@"
  fi
  unshare --mount --pid --fork true || {
    echo "${0##*/}: root may not make namespaces here, so nothing was tested" >&2
    exit 3
  }
}

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

# can_emulate ARCHITECTURE: asks the system to run another machine's programs under QEMU, wherever they lie.
can_emulate() {
  local registered=/proc/sys/fs/binfmt_misc
  declare -A names=([arm64]=aarch64)
  local name=qemu-${names[$1]}
  [[ -e $registered/register ]] || mount -t binfmt_misc binfmt_misc "$registered" 2> /dev/null || return 1
  [[ -e $registered/$name ]] || cat "/usr/lib/binfmt.d/$name.conf" > "$registered/register" 2> /dev/null
}

make_base() {
  local mirror
  mirror=$(archive)
  [[ -n $mirror ]] || {
    echo "${0##*/}: apt's configuration names no archive of this system's release" >&2
    exit 1
  }
  echo "Making a minimal $suite${architecture:+ for $architecture}, once."
  in_namespace debootstrap ${architecture:+--arch="$architecture"} --variant=minbase --include=git,ca-certificates \
    "$suite" "$work/base" "$mirror" > "${base%.tar}.log" || {
    tail -20 "${base%.tar}.log" >&2
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

# Makes the machine in the folder `machine`, which goes when the script ends. One script at a time has one.
bare_begin() {
  base=$cache/$suite${architecture:+-$architecture}.tar
  mkdir -p "$cache"
  exec 9> "$cache/$suite.lock"
  flock 9
  work=$(mktemp -d "$cache/work.XXXXXX")
  trap 'rm -rf --one-file-system "$work"' EXIT
  [[ -e $base ]] || make_base
  machine=$work/machine
  mkdir "$machine"
  tar -C "$machine" -xpf "$base"
  copy_network
}

# Within the namespace: mounts what a machine has, and `shared`, when it is set, on the folder `shared_at` there.
enter() {
  mount -t proc proc "$machine/proc"
  mount -t sysfs -o ro sysfs "$machine/sys"
  mount -t devpts -o newinstance,ptmxmode=0666,mode=0620 devpts "$machine/dev/pts"
  if [[ -n ${shared:-} ]]; then
    mkdir -p "$shared" "$machine$shared_at"
    mount --bind "$shared" "$machine$shared_at"
  fi
  exec chroot "$machine" env -i HOME=/root PATH=/usr/local/sbin:/usr/local/bin:/usr/sbin:/usr/bin:/sbin:/bin \
    bash -euo pipefail -c "$@"
}

# bare_run SCRIPT [ARGUMENT …]: runs a text of bash there, in an empty environment; $1 … are the arguments.
bare_run() {
  local script=$1
  shift
  export -f enter
  export machine shared shared_at
  in_namespace bash -euc 'enter "$@"' - "$script" - "$@" 9>&-
}
