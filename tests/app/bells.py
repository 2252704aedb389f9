#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 Tafelkasse developers
# SPDX-License-Identifier: GPL-3.0-or-later
#
# Hears the X server's bell: records, through the RECORD extension, every Bell request that any
# client sends, and writes "bell" for each; "recording" first, once it hears. Runs until killed.
import sys

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
    elif reply.category == record.FromClient:
        data = reply.data
        while len(data) >= 4:  # one or more requests, each as long as its length field says in words
            if data[0] == BELL:
                print("bell", flush=True)
            data = data[max(4, 4 * int.from_bytes(data[2:4], sys.byteorder)):]


server.record_enable_context(context, heard)
