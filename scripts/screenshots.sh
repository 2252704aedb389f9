#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 Tafelkasse developers
# SPDX-License-Identifier: GPL-3.0-or-later
#
# Takes the README's pictures again: the main window after a few games and the results
# dialog, on a desktop of its own. Run after a build: scripts/screenshots.sh [PROGRAM]
set -euo pipefail
source "$(dirname "$0")/../tests/app/drive.sh"
own_desktop 1280x900x24 "$0" "$@"
cd "$(dirname "$0")/.."
program=${1:-build/src/app/tafelkasse}
out=docs/screenshots
export LANG=de_DE.UTF-8 TZ=Europe/Berlin
mkdir -p "$out"

# A window's colours and pixels' hash (-silent: import rings the bell otherwise); settled waits until
# they are more than one colour, alike in two grabs, and other than a fingerprint given (drawn anew).
picture() { import -silent -window "$1" -format '%k %#' info:- 2>/dev/null; }
settled() { # window [fingerprint of the picture it must leave behind]
    last_picture=''
    until_true "a finished picture of window $1" same_picture_twice "$@" && echo "$last_picture"
}
same_picture_twice() {
    local before=$last_picture
    last_picture=$(picture "$1")
    [ "$last_picture" = "$before" ] && [ "${before%% *}" -gt 1 ] 2>/dev/null && [ "$before" != "${2:-}" ]
}

"$program" &
pid=$!
trap 'kill $pid 2>/dev/null || true' EXIT

# A game: the four scores, then Mah Jongg and East counted from 1; the places are the
# dialog's own, from its upper left corner. The sheet must show the game before it goes on.
game() {
    local w rows=(92 140 189 237) k empty sheet
    sheet=$(picture "$main")
    keys '^Tafelkasse Version' ctrl+e
    w=$(window '^ Ergebnisse eingeben: $')
    empty=$(settled "$w")
    timeout "$wait_limit" xdotool windowfocus --sync "$w"
    eval "$(xdotool getwindowgeometry --shell "$w" | sed 's/^/D_/')"
    for k in 0 1 2 3; do
        xdotool mousemove $((D_X + 180)) $((D_Y + rows[k] + 11)) click 1 type --delay 20 "${@:k+1:1}"
    done
    xdotool mousemove $((D_X + 285)) $((D_Y + rows[$5 - 1] + 10)) click 1
    xdotool mousemove $((D_X + 429)) $((D_Y + rows[$6 - 1] + 10)) click 1
    if [ -n "${7:-}" ]; then
        settled "$w" "$empty" >/dev/null
        import -window "$w" "$out/$7"
    fi
    keys_and_gone '^ Ergebnisse eingeben: $' Return
    settled "$main" "$sheet" >/dev/null
}

main=$(window '^Tafelkasse Version x vom 16\.11\.2019$')
settled "$main" >/dev/null
eval "$(xdotool getwindowgeometry --shell "$main")"
top=$((Y + HEIGHT - 616))
xdotool mousemove $((X + 216)) $((top + 30)) click 1
keys_and_gone '^Namen der MitspielerInnen$' A n n a Tab B e r t Tab C l a r a Tab D i e t e r Tab Tab Tab 2 0 Return

game 24 8 116 40 3 1
game 0 36 12 8 2 2
game 52 4 0 16 1 3 ergebnisse.png
import -window "$main" "$out/spielstand.png"
keys '^Tafelkasse Version' ctrl+q
ended_well $pid
echo "pictures in $out"
