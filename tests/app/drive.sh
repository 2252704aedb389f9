# SPDX-FileCopyrightText: 2026 Tafelkasse developers
# SPDX-License-Identifier: GPL-3.0-or-later
#
# Driving the program in an X server without a window manager, for scripts that source this.

# The first visible window whose title matches, once it is there.
window() { timeout 20 xdotool search --sync --onlyvisible --name "$1" | head -n 1; }

# Types into the window of that title, once it is there and has the keyboard.
keys() { # title, xdotool key arguments...
    local w
    w=$(window "$1")
    shift
    xdotool windowfocus --sync "$w" key --delay 30 "$@"
    sleep 0.3
}
