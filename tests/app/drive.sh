# SPDX-FileCopyrightText: 2026 Tafelkasse developers
# SPDX-License-Identifier: GPL-3.0-or-later
# shellcheck shell=bash
#
# Driving the program in an X server, for scripts that source this. Each step polls until what it
# needs is there, never sleeping a fixed time: a busy machine makes a run slower but not wrong.

wait_limit=60 # seconds for any one thing to happen

fail() { echo "$*" >&2; exit 1; }
# A step that fails without a word of its own still names itself, in a function or $(…) too.
set -E
trap 'echo "failed: $BASH_COMMAND (line $LINENO)" >&2' ERR

# own_desktop SCREEN SCRIPT ARGS...: runs the script again, and exits as it does, on a desktop of
# its own: an X server on a free display that it picks itself, not resetting when a poll
# disconnects, a session bus, a home in which the XDG folders take their defaults.
own_desktop() {
    [ "${TAFELKASSE_OWN_DESKTOP:-}" != 1 ] || { unset QT_QPA_PLATFORM; return 0; }
    desktop_home=$(mktemp -d)
    mkdir -m 700 "$desktop_home/runtime"
    Xvfb -displayfd 3 -screen 0 "$1" -nolisten tcp -noreset 3>"$desktop_home/display" &
    desktop_x=$!
    trap 'kill $desktop_x 2>/dev/null && wait $desktop_x; rm -rf "$desktop_home"' EXIT
    until_true "the X server to start" grep -qs '^[0-9]' "$desktop_home/display"
    env -u XDG_CONFIG_HOME -u XDG_DATA_HOME -u XDG_CACHE_HOME -u XDG_STATE_HOME -u XAUTHORITY \
        TAFELKASSE_OWN_DESKTOP=1 DISPLAY=":$(cat "$desktop_home/display")" HOME="$desktop_home" \
        XDG_RUNTIME_DIR="$desktop_home/runtime" dbus-run-session -- bash "${@:2}"
    exit
}

# Runs the command until it succeeds, or fails saying what did not happen and what was shown.
until_true() { # what is awaited, command...
    local deadline=$((SECONDS + wait_limit))
    until "${@:2}"; do
        [ "$SECONDS" -lt "$deadline" ] ||
            fail "waited $wait_limit s in vain for $1; shown: $(visible '' | xargs -r -n 1 xdotool getwindowname | paste -sd '|')"
        sleep 0.1
    done
}

# The program's shown windows whose titles match an extended regular expression, one id a line
# (a window without a title has an empty one); fails if there is none.
visible() {
    local w found=1
    for w in $(xdotool search --onlyvisible --classname '^tafelkasse$' 2>/dev/null || true); do
        xdotool getwindowname "$w" 2>/dev/null | grep -qE -- "$1" && echo "$w" && found=0
    done
    return $found
}
window() { until_true "a window titled '$1'" visible "$1" >/dev/null; visible "$1" | head -n 1; }
gone() { until_true "the window titled '$1' to close" eval "! visible '$1' >/dev/null"; }

# Types into the window of that title once it has the keyboard; keys_and_gone returns once the
# dialog has closed, so that the next key does not go to a window still blocked by it.
keys() { # title, xdotool key arguments...
    local w
    w=$(window "$1") && timeout "$wait_limit" xdotool windowfocus --sync "$w" key --delay 30 "${@:2}"
}
keys_and_gone() { keys "$@" && gone "$1"; }

# Debian's Python, which has the accessibility bindings, whatever python3 comes first in PATH.
reader() { /usr/bin/python3 "${BASH_SOURCE%/*}/screen_reader.py" "$@"; }

ended_well() { # pid; fails unless the program ends with exit code 0
    until_true "the program to end" eval "! kill -0 $1 2>/dev/null"
    wait "$1" || fail "the program ended with exit code $?"
}
