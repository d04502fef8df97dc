#!/usr/bin/env bash
# The whole path in a real window under Xvfb: start, add a client with keys, its horoscope opens,
# the second start is refused, close; then the demonstration. Usage: whole_path_test.sh ORVEX ORVEX-CLI
set -euo pipefail
orvex=$1
cli=$2
work=$(mktemp -d)
trap 'kill ${program:-} ${server:-} 2>/dev/null || true; rm -rf "$work"' EXIT
export HOME=$work XDG_CONFIG_HOME=$work/config ORVEX_HOME=$work/home QT_QPA_PLATFORM=xcb
unset DISPLAY WAYLAND_DISPLAY DBUS_SESSION_BUS_ADDRESS

fail() { echo "$1" >&2; exit 1; }

words=$("$orvex" --now garbage 2>&1) && fail "started at no moment"
grep -q '"garbage" is no moment' <<<"$words" || fail "no word of the moment: $words"
words=$("$orvex" --home "" 2>&1) && fail "started in a folder without a name"
grep -q "a folder is needed" <<<"$words" || fail "no word of the folder: $words"

words=$("$orvex" 2>&1) && fail "started without a display"
[ "$(wc -l <<<"$words")" -eq 1 ] || fail "not one line without a display: $words"
grep -q display <<<"$words" || fail "no word of the display: $words"

Xvfb -displayfd 3 -screen 0 1366x768x24 3>"$work/display" 2>/dev/null &
server=$!
for _ in $(seq 100); do [ -s "$work/display" ] && break; sleep 0.1; done
export DISPLAY=:$(cat "$work/display")

await() { timeout 30 xdotool search --sync --onlyvisible --name "$1" | head -n 1; }

# The key goes to the window that has the focus. Without a window manager a window that comes up at
# the same moment (the splash) can take it away, so it is given anew and the key pressed again.
press_for() {
  local window=$1 key=$2 title=$3 found=""
  for _ in $(seq 10); do
    xdotool windowfocus "$window"
    sleep 0.2
    xdotool key "$key"
    found=$(timeout 3 xdotool search --sync --onlyvisible --name "$title" | head -n 1) || true
    if [ -n "$found" ]; then echo "$found"; return; fi
  done
}

# The splash has the same name; the main window is the wide one.
main_window() {
  for _ in $(seq 100); do
    for id in $(xdotool search --onlyvisible --name '^Orvex\+$' 2>/dev/null); do
      eval "$(xdotool getwindowgeometry --shell "$id" 2>/dev/null)"
      if [ "${WIDTH:-0}" -gt 900 ]; then echo "$id"; return; fi
    done
    sleep 0.1
  done
}

"$orvex" &
program=$!
main=$(main_window)
[ -n "$main" ] || fail "no main window"
dialog=$(press_for "$main" ctrl+n '^Add Client$')
[ -n "$dialog" ] || fail "no client dialog"
xdotool windowfocus --sync "$dialog"
xdotool type "First Client"
xdotool key Return
horoscope=$(await 'First Client')
[ -n "$horoscope" ] || fail "no horoscope"

grep -q "First Client" <<<"$("$cli" client list)" || fail "the client was not stored"
timeout 20 "$orvex" >/dev/null 2>&1 &
second=$!
sleep 3
[ "$(xdotool search --onlyvisible --name '^Orvex\+$' | wc -l)" -ge 2 ] || fail "no word of the second start"
kill "$second" 2>/dev/null || true

xdotool windowfocus --sync "$main"
# The window goes on the key, before the key comes up.
xdotool key ctrl+q || true
for _ in $(seq 50); do kill -0 "$program" 2>/dev/null || break; sleep 0.1; done
kill -0 "$program" 2>/dev/null && fail "the program did not end with its main window"
wait "$program" || fail "the program ended with an error"
export XDG_DATA_HOME=$work/data
"$orvex" --demo &
program=$!
demo=$(await 'demonstration')
[ -n "$demo" ] || fail "no demonstration"
xdotool windowfocus --sync "$demo"
xdotool key ctrl+q || true
wait "$program" || fail "the demonstration ended with an error"
grep -q "Albert Einstein" <<<"$("$cli" --demo client list)" || fail "the demonstration has no clients"
grep -q "Albert Einstein" <<<"$("$cli" client list)" && fail "the demonstration filled the own home"

[ -z "$(find "$work/home" "$work/config" "$work/data" -type f -perm /077)" ] || fail "files that others may read"
echo "The whole path was walked."
