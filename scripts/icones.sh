#!/usr/bin/env bash
# Redraws the PNG sizes of the program's icon from desktop/icones/sorvelo.svg
# (ImageMagick). The PNGs are kept in the repository, so that building and
# installing need no SVG renderer.
set -euo pipefail
cd "$(dirname "$0")/../desktop/icones"
for lado in 16 24 32 48 64 128 256; do
  mkdir -p "${lado}x${lado}"
  convert -background none sorvelo.svg -resize "${lado}x${lado}" -strip "PNG32:${lado}x${lado}/sorvelo.png"
done
