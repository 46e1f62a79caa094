#!/usr/bin/env bash
# Renders the app icon's PNG sizes from its drawing, packaging/icons/dev.vexel.Vexel.svg,
# and the sidebar's symbols from theirs, packaging/icons/sidebar/*.svg.
# Run it after changing the drawing, and commit the PNGs (the build uses them as they are).
set -euo pipefail
cd "$(dirname "$0")/../packaging/icons"
for size in 16 22 24 32 48 64 128 256; do
  rsvg-convert -w "$size" -h "$size" dev.vexel.Vexel.svg -o "dev.vexel.Vexel-$size.png"
done
# The sidebar's own symbols, for icon themes that lack one: 16 px and 32 px for 2× screens.
cd sidebar
for drawing in *.svg; do
  for size in 16 32; do
    rsvg-convert -w "$size" -h "$size" "$drawing" -o "${drawing%.svg}-$size.png"
  done
done
