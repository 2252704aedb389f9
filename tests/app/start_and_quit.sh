#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 Tafelkasse developers
# SPDX-License-Identifier: GPL-3.0-or-later
#
# Starts the built program on a desktop of its own, waits for its main window, keeps a
# screenshot, ends it by "Quit" and checks that it ends with exit code 0. (The window manager's
# test ends it by its close box.)
# Usage: start_and_quit.sh PROGRAM SCREENSHOT
set -euo pipefail
program=$1 screenshot=$2
here=$(cd "$(dirname "$0")" && pwd)
source "$here/drive.sh"
own_desktop 2600x1900x24 "$0" "$@"

"$program" &
pid=$!
trap 'kill $pid 2>/dev/null || true' EXIT

main=$(window '^Tafelkasse Version x vom 16\.11\.2019$')
# What the window asks of a window manager: a close box and a minimize button but no maximize
# button (the window grows by hand), and the program's own icon, in sizes up to 128 pixels.
read -r _ _ _ functions decorations _ < <(xprop -id "$main" _MOTIF_WM_HINTS | tr -d ',')
(((functions & 0x11) == 0 && (functions & 0x28) == 0x28 && (decorations & 0x41) == 0)) ||
    { echo "the window offers to maximize: $functions $decorations"; exit 1; }
[[ $(xprop -id "$main" _NET_WM_ICON) == *"Icon (128 x 128)"* ]] || { echo "the window lacks its icon"; exit 1; }
settled "$main" >/dev/null
import -silent -window root "$screenshot"

# At a scale factor (a high-resolution screen) the window is as many times larger in pixels.
scale=${QT_SCALE_FACTOR:-1}
eval "$(xdotool getwindowgeometry --shell "$main")"
[ "$WIDTH" -ge $((896 * scale)) ] || { echo "window $WIDTH pixels wide at scale $scale"; exit 1; }

# First the system's print dialog, opened and cancelled: in the sanitizer build whatever it left
# behind would show as a leak when the program ends.
keys '^Tafelkasse Version' ctrl+p
keys_and_gone '^Drucken$' Escape
# "Quit" stands in the lower right corner: 97 from the right edge, 30 from the bottom.
xdotool mousemove $((X + WIDTH - 97 * scale)) $((Y + HEIGHT - 30 * scale)) click 1

ended_well $pid
trap - EXIT
[ -s "$screenshot" ]
