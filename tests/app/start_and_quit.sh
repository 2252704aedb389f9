#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 Tafelkasse developers
# SPDX-License-Identifier: GPL-3.0-or-later
#
# start_and_quit.sh PROGRAM: starts it on a desktop of its own, opens and cancels the print dialog
# (in the sanitizer build what that leaves behind shows as a leak) and ends it by "Quit", exit code 0.
set -euo pipefail
source "$(dirname "$0")/drive.sh"
own_desktop 2600x1900x24 "$0" "$@"
"$1" &
pid=$!
main=$(window '^Tafelkasse Version x vom 16\.11\.2019$')

# A close box and a minimize button but no maximize (the window grows by hand), the program's icon
# up to 128 pixels, and at a scale factor as many times the pixels.
read -r _ _ _ functions decorations _ < <(xprop -id "$main" _MOTIF_WM_HINTS | tr -d ',')
(((functions & 0x11) == 0 && (functions & 0x28) == 0x28 && (decorations & 0x41) == 0)) ||
    fail "the window offers to maximize: $functions $decorations"
[[ $(xprop -id "$main" _NET_WM_ICON) == *"Icon (128 x 128)"* ]] || fail "the window lacks its icon"
scale=${QT_SCALE_FACTOR:-1}
eval "$(xdotool getwindowgeometry --shell "$main")"
[ "$WIDTH" -ge $((896 * scale)) ] || fail "window $WIDTH pixels wide at scale $scale"

keys '^Tafelkasse Version' ctrl+p
keys_and_gone '^Drucken$' Escape
# "Quit" stands 97 pixels from the right edge and 30 from the bottom.
xdotool mousemove $((X + WIDTH - 97 * scale)) $((Y + HEIGHT - 30 * scale)) click 1
ended_well $pid
