#!/usr/bin/env bash
# Installs what building and running needs from Debian's packages; does nothing where all is there.
# With --dev also what checking the code needs.
set -euo pipefail

packages=(
  build-essential cmake ninja-build ccache pkg-config
  libswe-dev swe-basic-data swe-standard-data
  libsqlite3-dev libicu-dev libxlsxwriter-dev libfmt-dev nlohmann-json3-dev libcli11-dev
  libhowardhinnant-date-dev tzdata
  qt6-base-dev qt6-svg-dev fonts-dejavu-core fonts-open-sans fonts-sil-gentiumplus libqpdf-dev cmark-gfm
  libical-dev
  libgtest-dev libgmock-dev libbenchmark-dev python3
)
development=(clang-format-14 clang-tidy-14 clang-tools-14 locales unzip xvfb xdotool file tidy
  poppler-utils fonts-lohit-deva fonts-lohit-taml)
if [ "${1:-}" = "--dev" ]; then packages+=("${development[@]}"); fi

missing=()
for package in "${packages[@]}"; do
  state=$(dpkg-query -W -f='${Status}' "$package" 2>/dev/null || true)
  [ "$state" = "install ok installed" ] || missing+=("$package")
done
[ ${#missing[@]} -gt 0 ] || exit 0

as_root=()
if [ "$(id -u)" -ne 0 ]; then
  if ! command -v sudo >/dev/null; then
    echo "These packages are missing: ${missing[*]}" >&2
    echo "Please run this as root, or install sudo." >&2
    exit 1
  fi
  as_root=(sudo)
fi
echo "Installing: ${missing[*]}"
"${as_root[@]}" apt-get update -qq
"${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
  apt-get install -y -qq --no-install-recommends "${missing[@]}"
