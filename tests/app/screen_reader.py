#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 Tafelkasse developers
# SPDX-License-Identifier: GPL-3.0-or-later
#
# What a screen reader learns of the running program through the accessibility bus, as Orca reads
# it. main|about|warning|results PLAYER...: in that window every control that takes the keyboard
# has a name, the window is announced as one, and the ties and names that tell alike controls apart
# are there. Where no X server sees the windows (Wayland) it waits instead: "active NAME [MIN [MAX]]"
# for a shown window with the keyboard so wide, "item NAME [SECONDS]" for a shown menu item, "sheet
# TEXT" until the sheet holds the text.
import sys
import time

import pyatspi

TITLES = {"main": "Tafelkasse Version x vom 16.11.2019", "results": " Ergebnisse eingeben: ", "about": "Tafelkasse",
          "warning": "Damit werden alle bisherigen Ergebnisse gelöscht und die Tabelle beginnt von vorne!"}


def windows():
    return [w for app in filter(None, pyatspi.Registry.getDesktop(0)) if app.name == "Tafelkasse"
            for w in filter(None, app)]


def width(window):
    return window.queryComponent().getExtents(pyatspi.DESKTOP_COORDS).width


def wait_for(what, test, seconds=60):
    deadline = time.monotonic() + seconds
    while not (result := test()):
        if time.monotonic() > deadline:
            shown = [(w.name, width(w)) for w in windows() if w.getState().contains(pyatspi.STATE_SHOWING)]
            sys.exit(f"waited {seconds} s in vain for {what}; shown: {shown}")
        time.sleep(0.1)
    return result


def found(node, role=None, name=None):
    return pyatspi.findAllDescendants(node, lambda n: role in (None, n.getRole()) and name in (None, n.name))


which, args = sys.argv[1], sys.argv[2:]
if which == "active":
    least, most = [int(n) for n in args[1:]] + [0, 10**6][len(args[1:]):]
    wait_for(f"{args[0]} active, {least} to {most} wide", lambda: any(
        w.name == args[0] and w.getState().contains(pyatspi.STATE_ACTIVE) and least <= width(w) <= most
        for w in windows()))
elif which == "item":
    wait_for(f"the menu item {args[0]!r} shown", lambda: any(n.getState().contains(pyatspi.STATE_SHOWING)
                                                              for w in windows()
                                                              for n in found(w, pyatspi.ROLE_MENU_ITEM, args[0])),
             *[int(n) for n in args[1:]])
elif which == "sheet":
    wait_for(f"the sheet to hold {args[0]!r}", lambda: any(
        args[0] in n.queryText().getText(0, -1).replace("\u2029", "\n")
        for w in windows() for n in found(w, name="Spielstand")))
else:
    window = wait_for(which, lambda: next((w for w in windows() if w.name == TITLES[which]), None))
    problems = [f"{n.getRoleName()} without a name" for n in found(window)
                if n.getState().contains(pyatspi.STATE_FOCUSABLE) and not n.name.strip()]
    if window.getRole() not in (pyatspi.ROLE_FRAME, pyatspi.ROLE_DIALOG, pyatspi.ROLE_WINDOW):
        problems.append(f"the window is announced as a {window.getRoleName()}")
    if which == "main":  # the one label that names the three size buttons, as their label
        ties = [sorted(r.getTarget(i).name for r in label.getRelationSet() for i in range(r.getNTargets())
                       if r.getRelationType() == pyatspi.RELATION_LABEL_FOR)
                for label in found(window, pyatspi.ROLE_LABEL, "Darstellung:")]
        if ties != [["Standard", "größer", "kleiner"]]:
            problems.append(f"'Darstellung:' labels {ties}, not the three size buttons")
    for group in ("Mah Jongg", "Osten") if which == "results" else ():
        panels = found(window, pyatspi.ROLE_PANEL, group)
        radios = [n.name for n in found(panels[0], pyatspi.ROLE_RADIO_BUTTON)] if panels else []
        if radios != [f"{player}: {group}" for player in args]:
            problems.append(f"the group {group!r} holds {radios}, not one for each of {args}")
    for problem in problems:
        print(f"{which}: {problem}")
    sys.exit(1 if problems else 0)
