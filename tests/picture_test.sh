#!/bin/bash
# Compares pictures of windows with the ones of tests/data/pictures, within a tolerance: a
# graphics library may paint an edge a little otherwise. They carry no letters, as fonts
# differ between machines. What differs is left in a folder for a look;
# scripts/accept-pictures takes it as right.
#
# picture_test.sh LINTAVO PYTHON
set -euo pipefail

tool=$1
python=$2
cd "$(dirname "$0")"

made=$(mktemp -d)
differing=0
for reference in data/pictures/*.png; do
  name=$(basename "$reference")
  "$tool" draw "../examples/windows/${name%.png}.aqz" --no-dims --width 160 -o "$made/$name"
  "$python" support/compare_png.py "$reference" "$made/$name" || {
    echo "picture_test: $made/$name differs from tests/$reference" >&2
    differing=1
  }
done
[ "$differing" -eq 0 ] || exit 1
rm -r "$made"
echo "picture_test: in order"
