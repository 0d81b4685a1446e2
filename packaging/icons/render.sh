#!/usr/bin/env bash
# Draws the icon in each size. The smallest sizes have a drawing of their own, because the outlines of
# the large drawing would be thinner than a pixel.
set -euo pipefail
cd "$(dirname "$0")"

for size in 16 22 24 32 48 64 128 256; do
  drawing=fundlet.svg
  [ "$size" -gt 24 ] || drawing=fundlet-small.svg
  rsvg-convert --width "$size" --height "$size" --output "fundlet-$size.png" "$drawing"
done

# Windows takes its pictures from one file; the large ones may be kept as they are.
icotool --create --output=fundlet.ico fundlet-{16,24,32,48}.png --raw=fundlet-{64,128,256}.png
