#!/bin/bash
# Renders the SVG files of windows by a renderer of others and compares them with the PNG
# files of the same windows: the two writers must show the same picture, but for the letters.
#
# svg_test.sh LINTAVO PYTHON WINDOW...
set -euo pipefail

tool=$1
python=$2
shift 2

scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT

for window in "$@"; do
  name=$(basename "$window" .aqz)
  "$tool" draw "$window" --no-dims -o "$scratch/$name.svg"
  "$tool" draw "$window" --no-dims -o "$scratch/$name.png" --width 400
  rsvg-convert -w 400 -b white "$scratch/$name.svg" -o "$scratch/$name.svg.png"
  "$python" "$(dirname "$0")/support/compare_png.py" "$scratch/$name.png" "$scratch/$name.svg.png" ||
    { echo "svg_test: $name differs" >&2; exit 1; }
done
echo "svg_test: in order"
