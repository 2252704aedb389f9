#!/usr/bin/env bash
# SPDX-FileCopyrightText: 2026 Tafelkasse developers
# SPDX-License-Identifier: GPL-3.0-or-later
#
# The main window, the results dialog and the restart warning as a screen reader finds them
# through the desktop's accessibility bus (screen_reader.py), with the program on a desktop of
# its own, started as it is when a screen reader runs.
# Usage: screen_reader.sh PROGRAM
set -euo pipefail
program=$1
here=$(cd "$(dirname "$0")" && pwd)
source "$here/drive.sh"
own_desktop 1280x900x24 "$0" "$@"

QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1 "$program" &
pid=$!
trap 'kill $pid 2>/dev/null || true' EXIT
# Debian's Python, which has the accessibility bindings, whatever python3 comes first in PATH.
reader() { /usr/bin/python3 "$here/screen_reader.py" "$1"; }

window '^Tafelkasse Version x vom 16\.11\.2019$' >/dev/null
reader main
keys '^Tafelkasse Version' ctrl+e
reader results
keys_and_gone '^ Ergebnisse eingeben: $' Return
keys '^Tafelkasse Version' ctrl+n
reader warning
keys_and_gone '^Tafelkasse$' Escape
keys '^Tafelkasse Version' ctrl+q
ended_well $pid
trap - EXIT
