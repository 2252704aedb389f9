#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 Tafelkasse developers
# SPDX-License-Identifier: GPL-3.0-or-later
#
# Starts the built program in a real X server, waits for its main window, keeps a
# screenshot, ends it as a person would and checks that it ends with exit code 0.
# Usage: start_and_quit.sh PROGRAM SCREENSHOT quit|close
set -euo pipefail
program=$1 screenshot=$2 way=$3
here=$(cd "$(dirname "$0")" && pwd)

if [ -z "${DISPLAY:-}" ] || [ "${TAFELKASSE_OWN_X:-}" != 1 ]; then
    exec env TAFELKASSE_OWN_X=1 xvfb-run -a -s "-screen 0 2600x1900x24" "$0" "$@"
fi
unset QT_QPA_PLATFORM

"$program" &
pid=$!
trap 'kill $pid 2>/dev/null || true' EXIT

window=$(timeout 30 xdotool search --sync --onlyvisible --name '^Tafelkasse Version x vom 16\.11\.2019$' | head -n 1)
[ -n "$window" ] || { echo "no main window appeared"; exit 1; }
sleep 1 # let the first paint finish before the picture is taken
import -window root "$screenshot"

# At a scale factor (a high-resolution screen) the window is as many times larger in pixels.
scale=${QT_SCALE_FACTOR:-1}
eval "$(xdotool getwindowgeometry --shell "$window")"
[ "$WIDTH" -ge $((896 * scale)) ] || { echo "window $WIDTH pixels wide at scale $scale"; exit 1; }

case "$way" in
quit)
    # First the system's print dialog, opened and cancelled: in the sanitizer build whatever
    # it left behind would show as a leak when the program ends.
    source "$here/drive.sh"
    keys '^Tafelkasse Version' ctrl+p
    [ -n "$(window '^Drucken$')" ] || { echo "no print dialog"; exit 1; }
    xdotool key Escape
    sleep 0.5
    # "Quit" stands in the lower right corner: 97 from the right edge, 30 from the bottom.
    xdotool mousemove $((X + WIDTH - 97 * scale)) $((Y + HEIGHT - 30 * scale)) click 1
    ;;
close)
    python3 "$here/close_window.py" "$window"
    ;;
esac

rc=0
timeout 20 tail --pid=$pid -f /dev/null || { echo "the program did not end"; exit 1; }
wait $pid || rc=$?
trap - EXIT
echo "exit code $rc"
[ "$rc" -eq 0 ]
[ -s "$screenshot" ]
