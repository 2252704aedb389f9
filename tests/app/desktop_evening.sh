#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 Tafelkasse developers
# SPDX-License-Identifier: GPL-3.0-or-later
#
# Plays an evening on a desktop of its own, under a window manager that minimizes (openbox), with
# the program under strace and its accessibility on, as when a screen reader runs. On the way, the
# main window, the results dialog, the about window and the restart warning are read through the
# accessibility bus (screen_reader.py); the about window comes back from minimized by each of its
# three ways, always the same window, and goes by Esc; the restart warning has no title that the
# window manager could show; the main window's close box ends the program. At the end it fails if
# the program created, wrote, renamed or deleted any file, or if the X server did not hear its bell
# exactly once, before the restart's warning. The caches of the desktop's fonts and the runtime
# directory are not the program's own and are left out. The session bus, the accessibility bus,
# the X server and the window manager are not the program either: they run outside the trace.
# Usage: desktop_evening.sh PROGRAM
set -euo pipefail
program=$1
here=$(cd "$(dirname "$0")" && pwd)
source "$here/drive.sh"
own_desktop 1280x900x24 "$0" "$@"
trace=$(mktemp) bells=$(mktemp)
openbox --sm-disable &
wm=$!
/usr/bin/python3 "$here/bells.py" >"$bells" &
hearing=$!
trap 'kill ${pid:-} $wm $hearing 2>/dev/null || true; rm -f "$trace" "$bells"' EXIT
until_true "the window manager" xprop -root -notype _NET_SUPPORTING_WM_CHECK >/dev/null 2>&1
until_true "the bell to be heard" grep -q recording "$bells"

# Debian's Python, which has the accessibility bindings, whatever python3 comes first in PATH.
reader() { /usr/bin/python3 "$here/screen_reader.py" "$@"; }

QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1 strace -f -qq -o "$trace" \
    -e trace=open,openat,creat,rename,renameat,renameat2,unlink,unlinkat,mkdir,mkdirat,rmdir,truncate,link,linkat,symlink,symlinkat \
    "$program" &
pid=$!

main=$(window '^Tafelkasse Version x vom 16\.11\.2019$')
settled "$main" >/dev/null
reader main
eval "$(xdotool getwindowgeometry --shell "$main")"
top=$((HEIGHT - 616)) # the content area's top in the window, below the menu bar
click() { xdotool mousemove --window "$main" "$1" $((top + $2)) click 1; } # at a place of the content

# Names and carry-overs: the button "Namen eingeben", then a name and a carry-over.
click 216 30
keys_and_gone '^Namen der MitspielerInnen$' A n n a Tab Tab Tab Tab Tab Tab 2 5 Return
# Three games and a correction, by the shortcuts.
for score in 1 2 3; do
    keys '^Tafelkasse Version' ctrl+e
    [ "$score" != 1 ] || reader results Anna "Spieler 2" "Spieler 3" "Spieler 4"
    keys_and_gone '^ Ergebnisse eingeben: $' "$score" 0 Return
done
keys '^Tafelkasse Version' ctrl+k
keys_and_gone '^Korrektur letzte Eingabe$' 4 Return
# The text size; the about window, minimized and brought back by "Über…", Ctrl+I and the menu
# item, hidden by a click anywhere and by Esc; printing cancelled; then the restart confirmed. The
# confirmation has no title, so it goes by an empty name.
click 326 586
click 326 586
keys '^Tafelkasse Version' ctrl+i
about=$(window '^Tafelkasse$')
reader about
minimized() { xprop -id "$about" _NET_WM_STATE | grep -q _NET_WM_STATE_HIDDEN; }
back() { [ "$(visible '^Tafelkasse$')" = "$about" ] && ! minimized; } # the same window, shown
for way in "click 79 30" "keys ^Tafelkasse.Version ctrl+i" "keys ^Tafelkasse.Version alt+e Up Return"; do
    xdotool windowminimize --sync "$about"
    until_true "the about window to be minimized" minimized
    $way
    until_true "$way to bring back the about window" back
done
keys_and_gone '^Tafelkasse$' Escape
keys '^Tafelkasse Version' ctrl+i
[ "$(window '^Tafelkasse$')" = "$about" ] || { echo "Esc closed the about window instead of hiding it"; exit 1; }
settled "$about" >/dev/null
xdotool mousemove --window "$about" 20 20 click 1
gone '^Tafelkasse$'
keys '^Tafelkasse Version' ctrl+p
keys_and_gone '^Drucken$' Escape
keys '^Tafelkasse Version' ctrl+n
until_true "the bell before the warning" grep -q '^bell' "$bells"
reader warning
for name in WM_NAME _NET_WM_NAME; do
    xprop -id "$(window '^$')" "$name" | grep -q 'not found' || { echo "the warning has a $name"; exit 1; }
done
keys_and_gone '^$' Return
keys '^Tafelkasse Version' alt+F4

ended_well $pid

# What the evening touched: opens for writing or creating, and the calls that change names.
changes=$(grep -E 'O_WRONLY|O_RDWR|O_CREAT|O_TRUNC|creat\(|rename|unlink|mkdir|rmdir|truncate|link\(|linkat|symlink' "$trace" \
    | grep -v -E '= -1 E' \
    | grep -v -E "\"(/dev/|/proc/|$HOME/\.cache/|$XDG_RUNTIME_DIR/)" || true)
opened=$(grep -c -E 'open(at)?\(' "$trace" || true)
echo "$opened opens traced"
[ "$opened" -gt 100 ] || { echo "the trace is too short to mean anything"; exit 1; }
if [ -n "$changes" ]; then
    echo "the program changed files:"
    echo "$changes"
    exit 1
fi
rang=$(grep -c '^bell' "$bells" || true)
[ "$rang" -eq 1 ] || { echo "the bell rang $rang times, not once"; exit 1; }
