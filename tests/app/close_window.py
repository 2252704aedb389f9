#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 Tafelkasse developers
# SPDX-License-Identifier: GPL-3.0-or-later
#
# Presses a window's close box the way a window manager does: by sending it the
# WM_DELETE_WINDOW message. The test X server runs without a window manager, so
# nobody else would. Usage: close_window.py WINDOW_ID
import sys

from Xlib import X, display, protocol

screen = display.Display()
window = screen.create_resource_object("window", int(sys.argv[1]))
message = protocol.event.ClientMessage(window=window, client_type=screen.intern_atom("WM_PROTOCOLS"),
                                       data=(32, [screen.intern_atom("WM_DELETE_WINDOW"), X.CurrentTime, 0, 0, 0]))
window.send_event(message)
screen.flush()
