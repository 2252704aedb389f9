#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 Tafelkasse developers
# SPDX-License-Identifier: GPL-3.0-or-later
#
# Presses a window's close box the way a window manager does: by sending it the
# WM_DELETE_WINDOW message. The test X server runs without a window manager, so
# nobody else would. Usage: close_window.py WINDOW_ID
import ctypes
import ctypes.util
import sys


class ClientMessage(ctypes.Structure):
    _fields_ = [("type", ctypes.c_int), ("serial", ctypes.c_ulong), ("send_event", ctypes.c_int),
                ("display", ctypes.c_void_p), ("window", ctypes.c_ulong), ("message_type", ctypes.c_ulong),
                ("format", ctypes.c_int), ("data", ctypes.c_long * 5)]


class Event(ctypes.Union):
    _fields_ = [("client", ClientMessage), ("pad", ctypes.c_long * 24)]


x11 = ctypes.cdll.LoadLibrary(ctypes.util.find_library("X11") or "libX11.so.6")
x11.XOpenDisplay.restype = ctypes.c_void_p
x11.XOpenDisplay.argtypes = [ctypes.c_char_p]
x11.XInternAtom.restype = ctypes.c_ulong
x11.XInternAtom.argtypes = [ctypes.c_void_p, ctypes.c_char_p, ctypes.c_int]
x11.XSendEvent.argtypes = [ctypes.c_void_p, ctypes.c_ulong, ctypes.c_int, ctypes.c_long, ctypes.POINTER(Event)]
x11.XFlush.argtypes = [ctypes.c_void_p]
x11.XCloseDisplay.argtypes = [ctypes.c_void_p]

display = x11.XOpenDisplay(None)
if not display:
    sys.exit("no X display")
window = int(sys.argv[1])
event = Event()
event.client.type = 33  # ClientMessage
event.client.window = window
event.client.message_type = x11.XInternAtom(display, b"WM_PROTOCOLS", False)
event.client.format = 32
event.client.data[0] = x11.XInternAtom(display, b"WM_DELETE_WINDOW", False)
event.client.data[1] = 0  # CurrentTime
x11.XSendEvent(display, window, False, 0, ctypes.byref(event))
x11.XFlush(display)
x11.XCloseDisplay(display)
