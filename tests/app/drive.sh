# SPDX-FileCopyrightText: 2026 Tafelkasse developers
# SPDX-License-Identifier: GPL-3.0-or-later
# shellcheck shell=bash
#
# Driving the program in an X server without a window manager, for scripts that source this.
# Nothing here sleeps for a fixed time: each step waits until what it needs is on the screen,
# polling up to a deadline, so that a busy machine makes a run slower but not wrong.

wait_limit=60 # seconds for any one thing to happen

# own_desktop SCREEN SCRIPT ARGS...: runs the script again on a desktop of its own and exits
# with its exit code; within that run it returns at once. The desktop is an X server, a session
# bus (the toolkit finds one and launches none, as on a real desktop) and a home of its own, in
# which the XDG folders fall back to their defaults: nothing of the machine's user is touched.
# The X server picks a free display itself and tells its number, so that runs side by side, of
# this project or any other, cannot end up on the same display. It does not reset when its last
# client goes: a program that connects during a reset is turned away, and the polling here
# comes and goes all the time.
own_desktop() {
    if [ -n "${DISPLAY:-}" ] && [ "${TAFELKASSE_OWN_DESKTOP:-}" = 1 ]; then
        unset QT_QPA_PLATFORM
        return 0
    fi
    local rc=0
    desktop_home=$(mktemp -d)
    mkdir -m 700 "$desktop_home/runtime"
    Xvfb -displayfd 3 -screen 0 "$1" -nolisten tcp -noreset 3>"$desktop_home/display" 2>"$desktop_home/xvfb.log" &
    desktop_x=$!
    trap 'kill $desktop_x 2>/dev/null && wait $desktop_x; rm -rf "$desktop_home"' EXIT
    until_true "the X server to start" grep -qs '^[0-9]' "$desktop_home/display" \
        || { cat "$desktop_home/xvfb.log"; exit 1; }
    env -u XDG_CONFIG_HOME -u XDG_DATA_HOME -u XDG_CACHE_HOME -u XDG_STATE_HOME -u XAUTHORITY \
        TAFELKASSE_OWN_DESKTOP=1 DISPLAY=":$(cat "$desktop_home/display")" HOME="$desktop_home" \
        XDG_RUNTIME_DIR="$desktop_home/runtime" dbus-run-session -- bash "${@:2}" || rc=$?
    exit "$rc"
}

# Runs the command until it succeeds, or fails saying what did not happen in time and what
# the screen showed instead.
until_true() { # what is awaited, command...
    local what=$1 deadline=$((SECONDS + wait_limit)) w
    shift
    until "$@"; do
        if [ "$SECONDS" -ge "$deadline" ]; then
            echo "waited ${wait_limit} s in vain for $what" >&2
            for w in $(xdotool search --onlyvisible --classname '^tafelkasse$' 2>/dev/null); do
                echo "on the screen: $w '$(xdotool getwindowname "$w")'" >&2
            done
            return 1
        fi
        sleep 0.1
    done
}

# The program's visible windows whose titles match, one id a line; a window without a title has
# an empty one.
visible() { # title as an extended regular expression
    local w
    for w in $(xdotool search --onlyvisible --classname '^tafelkasse$' 2>/dev/null); do
        xdotool getwindowname "$w" 2>/dev/null | grep -qE -- "$1" && echo "$w"
    done
    return 0
}
is_open() { [ -n "$(visible "$1")" ]; }
is_gone() { [ -z "$(visible "$1")" ]; }

# The first visible window whose title matches, once it is there.
window() { # title
    until_true "a window titled '$1'" is_open "$1" && visible "$1" | head -n 1
}

# Returns once no window of that title is on the screen any more.
gone() { # title
    until_true "the window titled '$1' to close" is_gone "$1"
}

# Types into the window of that title, once it is there and has the keyboard.
keys() { # title, xdotool key arguments...
    local w
    w=$(window "$1") || return 1
    shift
    timeout "$wait_limit" xdotool windowfocus --sync "$w" key --delay 30 "$@"
}

# Types keys that close the dialog of that title, and returns when it has closed, so that the
# next key goes to a window that is no longer blocked by it.
keys_and_gone() { # title, xdotool key arguments...
    keys "$@" && gone "$1"
}

# A fingerprint of what the window shows: its number of colours and a hash of its pixels, taken
# without the bell that import rings otherwise.
picture() { import -silent -window "$1" -format '%k %#' info:- 2>/dev/null; }

# Waits until the window shows a finished picture and prints its fingerprint: more than one
# colour (it has been painted), the same in two grabs one after the other (the paint is not
# half through) and, if a fingerprint is given, another one (what was typed or entered before
# has been drawn).
settled() { # window, fingerprint of the picture it must have left behind
    last_picture=''
    until_true "a finished picture of window $1" same_picture_twice "$@" && echo "$last_picture"
}
same_picture_twice() {
    local now
    now=$(picture "$1")
    [ "$now" = "$last_picture" ] && [ "${now%% *}" -gt 1 ] 2>/dev/null && [ "$now" != "${2:-}" ] && return 0
    last_picture=$now
    return 1
}

# Waits until the process has ended, and fails unless it ended with exit code 0.
ended_well() { # pid
    local rc=0
    until_true "the program to end" has_ended "$1" || return 1
    wait "$1" || rc=$?
    echo "exit code $rc"
    [ "$rc" -eq 0 ]
}
has_ended() { ! kill -0 "$1" 2>/dev/null; }
