#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 Tafelkasse developers
# SPDX-License-Identifier: GPL-3.0-or-later
#
# What a screen reader learns of one window of the running program, read through the
# accessibility bus as Orca reads it: every control that takes the keyboard has a name, the
# names and ties that tell alike controls apart are there, and a window is announced as one.
# Waits for the window to appear on the bus; prints what is wrong and fails.
# Usage: screen_reader.py main|warning|about, or screen_reader.py results PLAYER1 PLAYER2 PLAYER3 PLAYER4
import sys
import time

import pyatspi

WARNING = "Damit werden alle bisherigen Ergebnisse gelöscht und die Tabelle beginnt von vorne!"
TITLES = {"main": "Tafelkasse Version x vom 16.11.2019", "results": " Ergebnisse eingeben: ", "warning": WARNING,
          "about": "Tafelkasse"}


def find_window(title, seconds=60):
    deadline = time.monotonic() + seconds
    while time.monotonic() < deadline:
        desktop = pyatspi.Registry.getDesktop(0)
        for app in filter(None, desktop):
            if app.name == "Tafelkasse":
                for window in filter(None, app):
                    if window.name == title:
                        return window
        time.sleep(0.2)
    sys.exit(f"no window named {title!r} on the accessibility bus")


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


problems = check(sys.argv[1], sys.argv[2:])
for problem in problems:
    print(f"{sys.argv[1]}: {problem}")
sys.exit(1 if problems else 0)
