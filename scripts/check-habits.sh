#!/usr/bin/env bash
# Habits that the compiler does not watch. Each line it prints is a fault.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
faults=0

fault() {
  printf '%s\n%s\n\n' "$1" "$2"
  faults=$((faults + 1))
}

# Tells of every line in src/ (but for the files named after it) that matches.
forbid() {
  local what=$1 pattern=$2
  shift 2
  local found
  found=$(grep -rnE "$pattern" src --include='*.cpp' --include='*.h' | grep -vE "^($(IFS='|'; echo "$*")):" || true)
  [ -z "$found" ] || fault "$what" "$found"
}

numbers=(src/core/exact_numbers.cpp src/core/date_text.cpp)
forbid "Numbers become text in core/exact_numbers alone:" \
  '\b(std::round|std::lround|std::nearbyint|std::stod|std::stof|std::stoi|s?n?printf|std::to_string|std::setprecision)\b' "${numbers[@]}"
forbid "Nothing depends on the locale of the machine:" '\b(setlocale|std::locale)\b' none
forbid "Only the gateway knows the ephemeris library:" '#include <swephexp.h>' src/astro/ephemeris_gateway.cpp
forbid "Only the store knows its engine:" '#include <sqlite3.h>' src/core/store.cpp
forbid "Below the windows nothing knows Qt:" '#include <Q' 'src/ui/.*'

globs=$(grep -rn 'file(GLOB' CMakeLists.txt src tests bench --include=CMakeLists.txt || true)
[ -z "$globs" ] || fault "Sources are listed one by one:" "$globs"

long=$(git ls-files 'src/*.cpp' 'src/*.h' 'tests/*.cpp' 'tests/*.h' | xargs wc -l | awk '$1 > 500 && $2 != "total"')
[ -z "$long" ] || fault "Files of more than 500 lines:" "$long"

if command -v clang-format-14 >/dev/null; then
  unformatted=$(git ls-files '*.cpp' '*.h' | xargs clang-format-14 --dry-run 2>&1 | grep -oE '^[^:]+' | sort -u || true)
  [ -z "$unformatted" ] || fault "Not in the project's format (clang-format-14 -i):" "$unformatted"
fi

[ "$faults" -eq 0 ] || { echo "$faults habit(s) broken."; exit 1; }
echo "Habits kept."
