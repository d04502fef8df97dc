#!/usr/bin/env bash
# Writes pictures of every window, light and dark, at 1366 x 768 and at 200 per cent, from the real
# windows: scripts/pictures.sh [FOLDER]. With --guide also those of the user guide, small, into
# docs/guide/pictures.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
guide=
if [ "${1:-}" = "--guide" ]; then guide=docs/guide/pictures; shift; fi
folder=${1:-build-pictures}

cmake --preset test >/dev/null
cmake --build --preset test --target window_pictures horoscope_pictures transit_pictures
export QT_QPA_PLATFORM=offscreen
for theme in light dark; do
  for scale in 1 2; do
    into="$folder/$theme-${scale}00"
    mkdir -p "$into/horoscope"
    ORVEX_THEME=$theme QT_SCALE_FACTOR=$scale build-test/tests/window_pictures "$into"
    ORVEX_THEME=$theme QT_SCALE_FACTOR=$scale build-test/tests/transit_pictures "$into"
    ORVEX_THEME=$theme QT_SCALE_FACTOR=$scale build-test/tests/horoscope_pictures "$into/horoscope"
  done
done
echo "Pictures lie in $folder."

# The guide's own names are those that its pages ask for.
[ -n "$guide" ] || exit 0
mkdir -p "$guide"
for name in $(grep -ohE 'pictures/[a-z-]+\.png' docs/guide/*.md | sort -u | sed 's|pictures/||'); do
  from="$folder/light-100/$name"
  [ -f "$from" ] || from="$folder/light-100/horoscope/$name"
  convert "$from" -strip +dither -colors 64 -define png:compression-level=9 "PNG8:$guide/$name"
done
echo "Pictures of the guide lie in $guide."
