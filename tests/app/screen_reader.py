#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 Tafelkasse developers
# SPDX-License-Identifier: GPL-3.0-or-later
#
# What a screen reader learns of one window of the running program, read through the
# accessibility bus as Orca reads it: every control that takes the keyboard has a name, the
# names and ties that tell alike controls apart are there, and a window is announced as one.
# Waits for the window to appear on the bus; prints what is wrong and fails. Where no X server
# shows the windows (on Wayland), the bus also tells which are shown, have the keyboard and how wide,
# and what the sheet says: "active" waits for a window that is at least (and at most) that wide,
# "gone" until none of the name is shown, "sheet" until the sheet holds the text.
# Usage: screen_reader.py main|warning|about, or screen_reader.py results PLAYER1 PLAYER2 PLAYER3 PLAYER4,
# or screen_reader.py active NAME [MIN_WIDTH [MAX_WIDTH]] | gone NAME | sheet TEXT
import sys
import time

import pyatspi

WARNING = "Damit werden alle bisherigen Ergebnisse gelöscht und die Tabelle beginnt von vorne!"
TITLES = {"main": "Tafelkasse Version x vom 16.11.2019", "results": " Ergebnisse eingeben: ", "warning": WARNING,
          "about": "Tafelkasse"}


def windows():
    for app in filter(None, pyatspi.Registry.getDesktop(0)):
        if app.name == "Tafelkasse":
            yield from filter(None, app)


def wait_for(what, test):
    deadline = time.monotonic() + 60
    while not (found := test()):
        if time.monotonic() > deadline:
            shown = [(w.name, width(w)) for w in windows() if w.getState().contains(pyatspi.STATE_SHOWING)]
            sys.exit(f"waited 60 s in vain for {what}; shown: {shown}")
        time.sleep(0.1)
    return found


def find_window(title):
    return wait_for(f"a window named {title!r}", lambda: next((w for w in windows() if w.name == title), None))


def width(window):
    return window.queryComponent().getExtents(pyatspi.DESKTOP_COORDS).width


def sheet_text():
    for window in windows():
        for node in pyatspi.findAllDescendants(window, lambda n: n.name == "Spielstand"):
            return node.queryText().getText(0, -1).replace("\u2029", "\n")
    return ""


def below(node):
    for child in filter(None, node):
        yield child
        yield from below(child)


def names_of(node, relation):
    return sorted(t.name for r in node.getRelationSet() if r.getRelationType() == relation
                  for t in (r.getTarget(i) for i in range(r.getNTargets())))


def check(which, players):
    window = find_window(TITLES[which])
    nodes = list(below(window))
    by_role = lambda role: [n for n in nodes if n.getRole() == role]
    problems = [f"{n.getRoleName()} without a name" for n in nodes
                if n.getState().contains(pyatspi.STATE_FOCUSABLE) and not n.name.strip()]
    if window.getRole() not in (pyatspi.ROLE_FRAME, pyatspi.ROLE_DIALOG, pyatspi.ROLE_WINDOW):
        problems.append(f"the window is announced as a {window.getRoleName()}")
    if which == "main":
        sizes = ["größer", "kleiner", "Standard"]
        label = [n for n in by_role(pyatspi.ROLE_LABEL) if n.name == "Darstellung:"]
        buttons = [n for n in by_role(pyatspi.ROLE_PUSH_BUTTON) if n.name in sizes]
        if len(label) != 1 or names_of(label[0], pyatspi.RELATION_LABEL_FOR) != sorted(sizes):
            problems.append("'Darstellung:' is not the label of the three size buttons")
        problems += [f"{b.name!r} is not labelled by 'Darstellung:'" for b in buttons
                     if names_of(b, pyatspi.RELATION_LABELLED_BY) != ["Darstellung:"]]
    elif which == "results":
        for group, choice in (("Mah Jongg", "Mah Jongg"), ("Osten", "Osten")):
            panels = [n for n in by_role(pyatspi.ROLE_PANEL) if n.name == group]
            radios = [n.name for n in below(panels[0]) if n.getRole() == pyatspi.ROLE_RADIO_BUTTON] if panels else []
            expected = [f"{player}: {choice}" for player in players]
            if radios != expected:
                problems.append(f"the group {group!r} holds {radios}, not {expected}")
    return problems


which, args = sys.argv[1], sys.argv[2:]
if which in ("active", "gone", "sheet"):
    least, most = [int(n) for n in args[1:]] + [0, 10**6][len(args[1:]):]
    shown = lambda w: w.getState().contains(pyatspi.STATE_SHOWING)
    wait_for(f"{which} {args}", {
        "active": lambda: any(shown(w) and w.name == args[0] and w.getState().contains(pyatspi.STATE_ACTIVE)
                              and least <= width(w) <= most for w in windows()),
        "gone": lambda: not any(shown(w) and w.name == args[0] for w in windows()),
        "sheet": lambda: args[0] in sheet_text()}[which])
    sys.exit(0)
problems = check(which, args)
for problem in problems:
    print(f"{sys.argv[1]}: {problem}")
sys.exit(1 if problems else 0)
