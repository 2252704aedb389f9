#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 Tafelkasse developers
# SPDX-License-Identifier: GPL-3.0-or-later
#
# desktop_evening.sh PROGRAM: an evening under a window manager that minimizes (openbox), the program
# under strace with its accessibility on, its windows read on the way as a screen reader does. It
# fails if the program changes a file (bus, X server and window manager run outside the trace), or
# if the X server does not hear its bell exactly once, before the restart's warning.
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
source "$here/drive.sh"
own_desktop 1280x900x24 "$0" "$@"
trace=$(mktemp) bells=$(mktemp)
openbox --sm-disable &
/usr/bin/python3 "$here/bells.py" >"$bells" &
trap 'kill $(jobs -p) 2>/dev/null; rm -f "$trace" "$bells"' EXIT
until_true "the window manager" xprop -root -notype _NET_SUPPORTING_WM_CHECK >/dev/null 2>&1
until_true "the bell to be heard" grep -q recording "$bells"

QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1 strace -f -qq -o "$trace" \
    -e trace=open,openat,creat,rename,renameat,renameat2,unlink,unlinkat,mkdir,mkdirat,rmdir,truncate,link,linkat,symlink,symlinkat \
    "$1" &
pid=$!
main=$(window '^Tafelkasse Version x vom 16\.11\.2019$')
reader main
eval "$(xdotool getwindowgeometry --shell "$main")"
click() { xdotool mousemove --window "$main" "$1" $((HEIGHT - 616 + $2)) click 1; } # below the menu bar

# "Namen eingeben", a name and a carry-over; three games and a correction by the shortcuts.
click 216 30
keys_and_gone '^Namen der MitspielerInnen$' A n n a Tab Tab Tab Tab Tab Tab 2 5 Return
for score in 1 2 3; do
    keys '^Tafelkasse Version' ctrl+e
    [ "$score" != 1 ] || reader results Anna "Spieler 2" "Spieler 3" "Spieler 4"
    keys_and_gone '^ Ergebnisse eingeben: $' "$score" 0 Return
done
keys '^Tafelkasse Version' ctrl+k
keys_and_gone '^Korrektur letzte Eingabe$' 4 Return
# The text size twice; the about window minimized and brought back, always the same window, by
# "Über…", Ctrl+I and the menu item; hidden by Esc and by a click anywhere.
click 326 586
click 326 586
keys '^Tafelkasse Version' ctrl+i
about=$(window '^Tafelkasse$')
reader about
minimized() { xprop -id "$about" _NET_WM_STATE | grep -q _NET_WM_STATE_HIDDEN; }
back() { [ "$(visible '^Tafelkasse$')" = "$about" ] && ! minimized; }
for way in "click 79 30" "keys ^Tafelkasse.Version ctrl+i" "keys ^Tafelkasse.Version alt+e Up Return"; do
    xdotool windowminimize --sync "$about"
    until_true "the about window to be minimized" minimized
    $way
    until_true "$way to bring back the about window" back
done
keys_and_gone '^Tafelkasse$' Escape
keys '^Tafelkasse Version' ctrl+i
[ "$(window '^Tafelkasse$')" = "$about" ] || fail "Esc closed the about window instead of hiding it"
xdotool mousemove --window "$about" 20 20 click 1
gone '^Tafelkasse$'
# Printing cancelled; the restart confirmed on a warning without a title.
keys '^Tafelkasse Version' ctrl+p
keys_and_gone '^Drucken$' Escape
keys '^Tafelkasse Version' ctrl+n
until_true "the bell before the warning" grep -q '^bell' "$bells"
reader warning
[ "$(xprop -id "$(window '^$')" WM_NAME _NET_WM_NAME | grep -c 'not found')" = 2 ] || fail "the warning has a title"
keys_and_gone '^$' Return
keys '^Tafelkasse Version' alt+F4
ended_well $pid

# Opens for writing or creating and the calls that change names, but for the desktop's font caches.
changes=$(grep -E 'O_WRONLY|O_RDWR|O_CREAT|O_TRUNC|creat\(|rename|unlink|mkdir|rmdir|truncate|link\(|linkat|symlink' "$trace" |
    grep -v -E '= -1 E' | grep -v -E "\"(/dev/|/proc/|$HOME/\.cache/|$XDG_RUNTIME_DIR/)" || true)
opened=$(grep -c -E 'open(at)?\(' "$trace" || true)
[ "$opened" -gt 100 ] || fail "$opened opens traced: too few to mean anything"
[ -z "$changes" ] || fail "the program changed files:"$'\n'"$changes"
[ "$(grep -c '^bell' "$bells")" = 1 ] || fail "the bell rang $(grep -c '^bell' "$bells") times, not once"
