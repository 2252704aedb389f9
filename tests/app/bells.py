#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 Tafelkasse developers
# SPDX-License-Identifier: GPL-3.0-or-later
#
# Hears the X server's bell through the RECORD extension: prints "recording" once it listens, then
# "bell" for every Bell request of any client, until killed.
from Xlib import display
from Xlib.ext import record

BELL = 104  # the core request's major opcode

server = display.Display()
context = server.record_create_context(0, [record.AllClients], [{
    "core_requests": (BELL, BELL), "core_replies": (0, 0), "ext_requests": (0, 0, 0, 0),
    "ext_replies": (0, 0, 0, 0), "delivered_events": (0, 0), "device_events": (0, 0),
    "errors": (0, 0), "client_started": False, "client_died": False}])


def heard(reply):
    if reply.category == record.StartOfData:
        print("recording", flush=True)
    elif reply.category == record.FromClient:  # only Bell requests, each one word long
        print("bell\n" * (len(reply.data) // 4), end="", flush=True)


server.record_enable_context(context, heard)
