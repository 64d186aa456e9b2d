#!/bin/sh
# SPDX-License-Identifier: GPL-3.0-or-later
# Renders the program's icon from its SVG into the PNG sizes that are installed beside it.
# Needs rsvg-convert (Debian's librsvg2-bin); run it after changing the SVG.
set -eu
cd "$(dirname "$0")/../data/desktop"
id=io.github.quillmere.Quillmere
for size in 16 32 48 64 128 256; do
  mkdir -p "icons/${size}x${size}"
  rsvg-convert -w "$size" -h "$size" "$id.svg" -o "icons/${size}x${size}/$id.png"
done
