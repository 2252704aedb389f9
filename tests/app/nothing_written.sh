#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 Tafelkasse developers
# SPDX-License-Identifier: GPL-3.0-or-later
#
# Plays an evening in a real X server with the program under strace, then fails if it
# created, wrote, renamed or deleted any file. The caches of the desktop's fonts and the
# runtime directory are not the program's own and are left out.
# Usage: nothing_written.sh PROGRAM
set -euo pipefail
program=$1

if [ -z "${DISPLAY:-}" ] || [ "${TAFELKASSE_OWN_X:-}" != 1 ]; then
    exec env TAFELKASSE_OWN_X=1 xvfb-run -a -s "-screen 0 1280x900x24" "$0" "$@"
fi
unset QT_QPA_PLATFORM
work=$(mktemp -d)
trap 'kill $pid 2>/dev/null || true; rm -rf "$work"' EXIT
export HOME=$work/home XDG_RUNTIME_DIR=$work/runtime XDG_CACHE_HOME=$work/home/.cache
mkdir -p "$HOME" "$XDG_RUNTIME_DIR" && chmod 700 "$XDG_RUNTIME_DIR"

strace -f -qq -o "$work/trace" \
    -e trace=open,openat,creat,rename,renameat,renameat2,unlink,unlinkat,mkdir,mkdirat,rmdir,truncate,link,linkat,symlink,symlinkat \
    "$program" &
pid=$!

source "$(dirname "$0")/drive.sh"

main=$(window '^Tafelkasse Version x vom 16\.11\.2019$')
[ -n "$main" ] || { echo "no main window appeared"; exit 1; }
sleep 1
eval "$(xdotool getwindowgeometry --shell "$main")"
top=$((Y + HEIGHT - 616)) # the content area's top, below the menu bar

# Names and carry-overs: the button "Namen eingeben", then a name and a carry-over.
xdotool mousemove $((X + 216)) $((top + 30)) click 1
keys '^Namen der MitspielerInnen$' A n n a Tab Tab Tab Tab Tab Tab 2 5 Return
# Three games and a correction, by the shortcuts.
for score in 1 2 3; do
    keys '^Tafelkasse Version' ctrl+e
    keys '^ Ergebnisse eingeben: $' "$score" 0 Return
done
keys '^Tafelkasse Version' ctrl+k
keys '^Korrektur letzte Eingabe$' 4 Return
# The text size, the about window, printing cancelled, then the restart confirmed.
xdotool mousemove $((X + 326)) $((top + 586)) click 1 click 1
keys '^Tafelkasse Version' ctrl+i
about=$(window '^Tafelkasse$')
eval "$(xdotool getwindowgeometry --shell "$about" | sed 's/^/ABOUT_/')"
xdotool mousemove $((ABOUT_X + 20)) $((ABOUT_Y + 20)) click 1
sleep 0.3
keys '^Tafelkasse Version' ctrl+p
sleep 2
xdotool key Escape
sleep 0.5
keys '^Tafelkasse Version' ctrl+n
sleep 0.5
xdotool key Return
sleep 0.5
keys '^Tafelkasse Version' ctrl+q

timeout 20 tail --pid=$pid -f /dev/null || { echo "the program did not end"; exit 1; }
rc=0
wait $pid || rc=$?
echo "exit code $rc"
[ "$rc" -eq 0 ]

# What the evening touched: opens for writing or creating, and the calls that change names.
changes=$(grep -E 'O_WRONLY|O_RDWR|O_CREAT|O_TRUNC|creat\(|rename|unlink|mkdir|rmdir|truncate|link\(|linkat|symlink' "$work/trace" \
    | grep -v -E '= -1 E' \
    | grep -v -E "\"(/dev/|/proc/|$work/home/\.cache/|$work/runtime/)" || true)
opened=$(grep -c -E 'open(at)?\(' "$work/trace" || true)
echo "$opened opens traced"
[ "$opened" -gt 100 ] || { echo "the trace is too short to mean anything"; exit 1; }
if [ -n "$changes" ]; then
    echo "the program changed files:"
    echo "$changes"
    exit 1
fi
