#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 Tafelkasse developers
# SPDX-License-Identifier: GPL-3.0-or-later
#
# Where no X server shows the program's windows (on Wayland), the accessibility bus does, as it
# does to a screen reader. Waits until a window of the program of that name is shown, has the
# keyboard and is at least (and at most) that wide, or until none is shown, or until the sheet holds
# a text; fails when that does not come.
# Usage: on_bus.py active NAME [MIN_WIDTH [MAX_WIDTH]] | on_bus.py gone NAME | on_bus.py sheet TEXT
import sys
import time

import pyatspi


def windows():
    for app in filter(None, pyatspi.Registry.getDesktop(0)):
        if app.name == "Tafelkasse":
            yield from (w for w in filter(None, app) if w.getState().contains(pyatspi.STATE_SHOWING))


def width(window):
    return window.queryComponent().getExtents(pyatspi.DESKTOP_COORDS).width


def sheet_text():
    for window in windows():
        for node in pyatspi.findAllDescendants(window, lambda n: n.name == "Spielstand"):
            text = node.queryText()
            return text.getText(0, text.characterCount)
    return ""


what, arg = sys.argv[1], sys.argv[2]
least, most = [int(n) for n in sys.argv[3:]] + [0, 10**6][len(sys.argv[3:]):]
tests = {
    "active": lambda: any(w.name == arg and w.getState().contains(pyatspi.STATE_ACTIVE) and least <= width(w) <= most
                          for w in windows()),
    "gone": lambda: all(w.name != arg for w in windows()),
    "sheet": lambda: arg in sheet_text().replace("\u2029", "\n"),
}
deadline = time.monotonic() + 60
while not tests[what]():
    if time.monotonic() > deadline:
        shown = [(w.name, width(w)) for w in windows()]
        sys.exit(f"waited 60 s in vain: {what} {arg!r} {sys.argv[3:]}; shown: {shown}")
    time.sleep(0.1)
