#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 Tafelkasse developers
# SPDX-License-Identifier: GPL-3.0-or-later
#
# Takes the README's pictures again: the main window after a few games and the results
# dialog, in a private X server. Run after a build: scripts/screenshots.sh [PROGRAM]
set -euo pipefail
cd "$(dirname "$0")/.."
program=${1:-build/src/app/tafelkasse}
out=docs/screenshots

if [ -z "${DISPLAY:-}" ] || [ "${TAFELKASSE_OWN_X:-}" != 1 ]; then
    exec env TAFELKASSE_OWN_X=1 xvfb-run -a -s "-screen 0 1280x900x24" "$0" "$@"
fi
unset QT_QPA_PLATFORM
export LANG=de_DE.UTF-8 TZ=Europe/Berlin
mkdir -p "$out"

"$program" &
pid=$!
trap 'kill $pid 2>/dev/null || true' EXIT

source tests/app/drive.sh
# A game: the four scores, then Mah Jongg and East counted from 1; the places are the
# dialog's own, from its upper left corner.
game() {
    local w rows=(92 140 189 237) k
    keys '^Tafelkasse Version' ctrl+e
    w=$(window '^ Ergebnisse eingeben: $')
    eval "$(xdotool getwindowgeometry --shell "$w" | sed 's/^/D_/')"
    for k in 0 1 2 3; do
        xdotool mousemove $((D_X + 180)) $((D_Y + rows[k] + 11)) click 1 type --delay 20 "${@:k+1:1}"
    done
    xdotool mousemove $((D_X + 285)) $((D_Y + rows[$5 - 1] + 10)) click 1
    xdotool mousemove $((D_X + 429)) $((D_Y + rows[$6 - 1] + 10)) click 1
    [ -n "${7:-}" ] && import -window "$w" "$out/$7"
    xdotool key Return
    sleep 0.3
}

main=$(window '^Tafelkasse Version x vom 16\.11\.2019$')
sleep 1
eval "$(xdotool getwindowgeometry --shell "$main")"
top=$((Y + HEIGHT - 616))
xdotool mousemove $((X + 216)) $((top + 30)) click 1
keys '^Namen der MitspielerInnen$' A n n a Tab B e r t Tab C l a r a Tab D i e t e r Tab Tab Tab 2 0 Return

game 24 8 116 40 3 1
game 0 36 12 8 2 2
game 52 4 0 16 1 3 ergebnisse.png
import -window "$main" "$out/spielstand.png"
keys '^Tafelkasse Version' ctrl+q
wait $pid
echo "pictures in $out"
