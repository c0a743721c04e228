#!/usr/bin/env bash
# Puts the source of the Windows programs together, which is given wherever the installer is: the toolkit's, as it was
# built, and that of Velmora, with how to make the programs out of both. scripts/windows-source.sh FILE.tar
set -euo pipefail
cd "$(dirname "$0")/.."
file=$(realpath "${1:?the archive to be made}")
toolkit=$(scripts/setup-windows.sh prefix)
version=$(sed -n 's/^project(Velmora VERSION \([0-9.]*\).*/\1/p' CMakeLists.txt)
name=$(basename "$file" .tar)

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
mkdir -p "$work/$name/toolkit"
cp "$toolkit"/source/*.{dsc,tar.*} "$work/$name/toolkit"
# What is not committed is in the programs, too.
git archive --prefix="velmora-$version/" "$(git stash create | grep . || git rev-parse HEAD)" |
  gzip --best --no-name > "$work/$name/velmora-$version.tar.gz"
sed "s/@VERSION@/$version/g" packaging/windows/source-readme.txt > "$work/$name/README"
tar --sort=name --owner=0 --group=0 --numeric-owner --mtime="$(git log -1 --format=@%ct)" -C "$work" -cf "$file" "$name"
