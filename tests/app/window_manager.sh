#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 Tafelkasse developers
# SPDX-License-Identifier: GPL-3.0-or-later
#
# The program under a window manager that minimizes, as on every desktop (openbox): the about
# window comes back from minimized by each of its three ways, "Über…", Ctrl+I and the menu item,
# always the same window; Esc hides it. The restart warning has no title the window manager
# could show. Ends by the main window's close box (Alt+F4 to the window manager) with exit code 0.
# Usage: window_manager.sh PROGRAM
set -euo pipefail
program=$1
here=$(cd "$(dirname "$0")" && pwd)
source "$here/drive.sh"
own_desktop 1280x900x24 "$0" "$@"

openbox --sm-disable &
wm=$!
"$program" &
pid=$!
trap 'kill $pid $wm 2>/dev/null || true' EXIT
until_true "the window manager" xprop -root -notype _NET_SUPPORTING_WM_CHECK >/dev/null 2>&1

main=$(window '^Tafelkasse Version')
settled "$main" >/dev/null
eval "$(xdotool getwindowgeometry --shell "$main")"
top=$((HEIGHT - 616)) # the content area's top in the window, below the menu bar

minimized() { xprop -id "$1" _NET_WM_STATE | grep -q _NET_WM_STATE_HIDDEN; }
keys '^Tafelkasse Version' ctrl+i
about=$(window '^Tafelkasse$')
for way in button shortcut menu; do
    xdotool windowminimize --sync "$about"
    until_true "the about window to be minimized" minimized "$about"
    case "$way" in
    button) xdotool mousemove --window "$main" 79 $((top + 30)) click 1 ;;
    shortcut) keys '^Tafelkasse Version' ctrl+i ;;
    menu) keys '^Tafelkasse Version' alt+e Up Return ;;
    esac
    [ "$(window '^Tafelkasse$')" = "$about" ] || { echo "$way: not the same about window"; exit 1; }
    ! minimized "$about" || { echo "$way: the about window stays minimized"; exit 1; }
done
keys_and_gone '^Tafelkasse$' Escape
keys '^Tafelkasse Version' ctrl+i
[ "$(window '^Tafelkasse$')" = "$about" ] || { echo "Esc closed the about window instead of hiding it"; exit 1; }

# One game, so that a restart can be asked for; the warning is the window without a name.
keys '^Tafelkasse Version' ctrl+e
keys_and_gone '^ Ergebnisse eingeben: $' 1 0 Return
keys '^Tafelkasse Version' ctrl+n
warning=$(window '^$')
for name in WM_NAME _NET_WM_NAME; do
    xprop -id "$warning" "$name" | grep -q 'not found' || { echo "the warning has a $(xprop -id "$warning" "$name")"; exit 1; }
done
keys_and_gone '^$' Escape
keys '^Tafelkasse Version' alt+F4
ended_well $pid
