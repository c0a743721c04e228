#!/usr/bin/env bash
# Proves the README's commands on a machine that has nothing yet: makes a minimal Debian with git alone in it, clones
# the last commit there, and runs scripts/demo.sh in an empty environment. Whatever is missing, scripts/setup.sh forgot.
#   scripts/test-bare.sh [SUITE]          SUITE is bookworm by default; trixie works as well
#   scripts/test-bare.sh [SUITE] --whole  runs scripts/test.sh there, too
# Ends with 3 where root may not make the namespaces that it works in (in some containers). What it takes stands in
# scripts/bare-machine.sh.
set -euo pipefail
cd "$(dirname "$0")/.."
source scripts/bare-machine.sh

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
bare_as_root "$@"
scripts/setup.sh bare
bare_begin

# Compiled objects are kept from run to run; the packages are what is tested, and are not.
shared=$cache/$suite.ccache
shared_at=/root/.cache/ccache
git -c safe.directory="$PWD" bundle create -q "$machine/root/velmora.bundle" HEAD
bare_run 'cd; git clone -q velmora.bundle velmora; cd velmora; for command; do "$command"; done' "${commands[@]}"
echo
echo "A bare $suite runs ${commands[*]}: ${SECONDS} s."
