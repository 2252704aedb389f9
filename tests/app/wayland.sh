#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 Tafelkasse developers
# SPDX-License-Identifier: GPL-3.0-or-later
#
# wayland.sh PROGRAM: the program in weston nested in an X server (weston's headless backend has no
# seat to type with), with the platform forced and chosen by Qt: the compositor's keys maximize
# every window and make it fullscreen during an evening, which must end intact and with exit code
# 0. The accessibility bus tells which windows are shown and how wide, since no X server sees them.
set -euo pipefail
source "$(dirname "$0")/drive.sh"
own_desktop 1280x1000x24 "$0" "$@"

printf '[core]\nidle-time=0\n[shell]\nlocking=false\npanel-position=none\n' >"$HOME/weston.ini"
weston --config="$HOME/weston.ini" --backend=x11-backend.so --socket=tafelkasse --width=1200 --height=900 &
trap 'kill $(jobs -p) 2>/dev/null' EXIT
until_true "the compositor" test -S "$XDG_RUNTIME_DIR/tafelkasse"
timeout "$wait_limit" xdotool search --sync --onlyvisible --class weston windowfocus --sync
# shellcheck disable=SC2048,SC2086 # keys as words, to weston, which hands them to its focused window
press() { [ -z "$*" ] || xdotool key --delay 30 $*; }

main="Tafelkasse Version x vom 16.11.2019"
for forced in QT_QPA_PLATFORM=wayland ""; do
    echo "platform: ${forced:-chosen by Qt}"
    env ${forced:+"$forced"} XDG_SESSION_TYPE=wayland WAYLAND_DISPLAY=tafelkasse QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1 \
        "$1" &
    pid=$!
    # Each window by the keys that open it from the main window, its name and the keys that close it:
    # maximized, back, fullscreen, back, each time until it has the size of the compositor's 1200 by
    # 900 output (less its title bar when maximized).
    for window in "/$main/" "alt+e>Namen der Spieler  /Namen der MitspielerInnen/A n n a Return" "ctrl+e/ Ergebnisse eingeben: /1 0 Return" \
        "ctrl+k/Korrektur letzte Eingabe/Return" "ctrl+i/Tafelkasse/Escape" "ctrl+p/Drucken/Escape" \
        "ctrl+n/Damit werden alle bisherigen Ergebnisse gelöscht und die Tabelle beginnt von vorne!/Escape"; do
        IFS=/ read -r open name close <<<"$window"
        press "${open%%>*}"
        # "keys>item": the item of the menu that the keys open, chosen once the menu is shown. On a
        # busy machine the menu has once stayed shut after the main window's fullscreen, the window
        # active: then it is closed, if it opened unannounced, and the keys are pressed once more.
        if [[ $open == *">"* ]]; then
            reader item "${open#*>}" 20 || { press Escape "${open%%>*}"; reader item "${open#*>}"; }
            press Return
        fi
        reader active "$name"
        press super+shift+m
        reader active "$name" 1100
        press super+shift+m super+shift+f
        reader active "$name" 1200
        press super+shift+f
        reader active "$name" 0 1099
        press "$close"
        reader active "$main"
    done
    reader sheet $'Spiel Nr. 1\n  Mahjongg sagte: Anna'
    press ctrl+q
    ended_well $pid
done
