#!/usr/bin/env bash
# Writes pictures of every window, light and dark, at 1280 x 720, 1366 x 768 and 1920 x 1080 and, as a
# full-HD screen shows them, at 150 and 200 per cent, from the real windows: scripts/pictures.sh [FOLDER].
# With --guide also those of the user guide, small, into docs/guide/pictures; with --guide-only just these.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
guide=
screens="1280x720@1 1366x768@1 1920x1080@1 1280x720@1.5 960x540@2"
themes="light dark"
case "${1:-}" in
  --guide) guide=docs/guide/pictures; shift ;;
  --guide-only) guide=docs/guide/pictures; screens=1366x768@1; themes=light; shift ;;
esac
folder=${1:-build-pictures}

cmake --preset test >/dev/null
cmake --build --preset test --target window_pictures horoscope_pictures transit_pictures
export QT_QPA_PLATFORM=offscreen
for theme in $themes; do
  for screen in $screens; do
    into="$folder/$theme-$screen"
    mkdir -p "$into/horoscope"
    export ORVEX_THEME=$theme ORVEX_PICTURE_SIZE=${screen%@*} QT_SCALE_FACTOR=${screen#*@}
    build-test/tests/window_pictures "$into"
    build-test/tests/transit_pictures "$into"
    build-test/tests/horoscope_pictures "$into/horoscope"
  done
done
echo "Pictures lie in $folder."

# The guide's own names are those that its pages ask for.
[ -n "$guide" ] || exit 0
mkdir -p "$guide"
for name in $(grep -ohE 'pictures/[a-z-]+\.png' docs/guide/*.md README.md | sort -u | sed 's|pictures/||'); do
  from="$folder/light-1366x768@1/$name"
  [ -f "$from" ] || from="$folder/light-1366x768@1/horoscope/$name"
  convert "$from" -strip +dither -colors 64 -define png:compression-level=9 "PNG8:$guide/$name"
done
echo "Pictures of the guide lie in $guide."
