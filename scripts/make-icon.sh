#!/usr/bin/env bash
# Makes the Windows programs' icon and the installer's side picture from our drawing (needs librsvg2-bin and
# imagemagick). Run it after changing packaging/artwork/velmora.svg and commit what it makes.
set -euo pipefail
cd "$(dirname "$0")/../packaging"

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

# The sizes that the shell asks for: lists, title bars and the taskbar at each scale, large and huge icons.
pictures=()
for size in 16 24 32 48 64 128 256; do
  rsvg-convert -w $size -h $size artwork/velmora.svg -o "$work/$size.png"
  pictures+=("$work/$size.png")
done
convert "${pictures[@]}" windows/velmora.ico

# The wizard wants this very size, and a bitmap of the old form.
rsvg-convert -w 132 -h 132 artwork/velmora.svg -o "$work/drawing.png"
rsvg-convert -w 132 artwork/name.svg -o "$work/name.png"
convert -size 164x314 gradient:'#f4f7f9-#c3d5de' \
  "$work/drawing.png" -gravity north -geometry +0+64 -composite \
  "$work/name.png" -gravity north -geometry +0+216 -composite \
  -colors 256 -type palette BMP3:windows/wizard.bmp
