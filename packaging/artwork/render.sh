#!/usr/bin/env bash
# Renders the drawings into the pictures that the programs carry (needs librsvg2-bin). Run it after changing
# an SVG and commit what it makes.
set -euo pipefail
cd "$(dirname "$0")"
out=../../src/ui/qt/resources
for size in 16 24 32 48 64 128 256; do
  rsvg-convert -w $size -h $size velmora.svg -o $out/velmora-$size.png
done
for scale in 1 2 3; do
  suffix=$([[ $scale == 1 ]] || echo "@${scale}x")
  rsvg-convert -h $((28 * scale)) name.svg -o "$out/name$suffix.png"
done
