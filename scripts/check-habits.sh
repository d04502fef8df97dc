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

# A header that one file of src/ includes, and no other.
owned() {
  local what=$1 include="# *include *[<\"]${2//./\\.}" owner=$3
  forbid "$what" "$include" "$owner"
  grep -qE "$include" "$owner" || fault "$what" "$owner does not include $2; name its new owner here."
}

numbers=(src/core/exact_numbers.cpp src/core/date_text.cpp)
forbid "Numbers become text in core/exact_numbers alone:" \
  '\b((l?l?round|nearbyint|l?l?rint)[fl]? *\(|std::(l?l?round|nearbyint|l?l?rint)\b|v?[fsd]?n?printf\b|sto(d|f|i|ld)\b|strto(d|f|ld)\b|ato[fil]\b|std::to_string\b|setprecision\b)' "${numbers[@]}"
forbid "Nothing depends on the locale of the machine:" '\b(setlocale|std::locale)\b' none
owned "Only the gateway knows the ephemeris library:" swephexp.h src/astro/ephemeris_gateway.cpp
owned "Only the store knows its engine:" sqlite3.h src/core/store.cpp
owned "Only the calendar file knows its library:" libical/ical.h src/transit/calendar_file.cpp
owned "Only the export knows the spreadsheet library:" xlsxwriter.h src/practice/export_list.cpp
forbid "Only the outline knows the PDF library:" '# *include *[<"]qpdf/' src/ui/painting/pdf_outline.cpp
forbid "Below the windows nothing knows Qt:" '# *include *[<"]Q' 'src/ui/.*'

globs=$(git ls-files '*CMakeLists.txt' '*.cmake' | xargs grep -niE 'file *\( *GLOB' || true)
[ -z "$globs" ] || fault "Sources are listed one by one:" "$globs"

twice=$(python3 scripts/twice-named.py)
[ -z "$twice" ] || fault "A name of two files that are compiled together:" "$twice"

long=$(git ls-files 'src/*.cpp' 'src/*.h' 'tests/*.cpp' 'tests/*.h' 'tests/*.py' | xargs wc -l | awk '$1 > 500 && $2 != "total"')
[ -z "$long" ] || fault "Files of more than 500 lines:" "$long"

if command -v clang-format-14 >/dev/null; then
  unformatted=$(git ls-files '*.cpp' '*.h' | xargs clang-format-14 --dry-run 2>&1 | grep -oE '^[^:]+' | sort -u || true)
  [ -z "$unformatted" ] || fault "Not in the project's format (clang-format-14 -i):" "$unformatted"
fi

[ "$faults" -eq 0 ] || { echo "$faults habit(s) broken."; exit 1; }
echo "Habits kept."
