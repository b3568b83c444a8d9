#!/bin/sh
# Draws the icons anew after a change of desktop/pictures/reelora.svg. They are committed so that a build needs no
# renderer and cross-compiles; a widget test compares them with the drawing.
set -eu
cd -- "$(dirname -- "$0")"
for side in 16 22 24 32 48 64 128 256; do
  rsvg-convert -w "$side" -h "$side" ../../desktop/pictures/reelora.svg -o "$side.png"
done
