#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 Tafelkasse developers
# SPDX-License-Identifier: GPL-3.0-or-later
#
# Start-up of Tafelkasse against the toolkit's floor, measured from outside: the program
# takes no options, so the clock runs from the moment the process is started until the X
# server maps a window with the program's title. At that moment the process is stopped,
# its peak resident memory (VmHWM) read, and it is killed. The two programs take turns,
# under one Xvfb that this script starts, after one unmeasured start of each.
#
# Usage: startup.py OURS FLOOR ROUNDS OUT.json [NAME=VALUE...]
# The NAME=VALUE pairs are added to the environment of the two programs.
import ctypes
import ctypes.util
import json
import os
import select
import signal
import statistics
import subprocess
import sys
import time

OUR_TITLE = "Tafelkasse Version x vom 16.11.2019"
FLOOR_TITLE = "Qt Widgets floor"

CreateNotify, MapNotify, PropertyNotify = 16, 19, 28
SubstructureNotifyMask, PropertyChangeMask = 1 << 19, 1 << 22


class AnyEvent(ctypes.Structure):
    _fields_ = [("type", ctypes.c_int), ("serial", ctypes.c_ulong), ("send_event", ctypes.c_int),
                ("display", ctypes.c_void_p), ("first", ctypes.c_ulong), ("second", ctypes.c_ulong)]


class Event(ctypes.Union):
    _fields_ = [("any", AnyEvent), ("pad", ctypes.c_long * 24)]


ErrorHandler = ctypes.CFUNCTYPE(ctypes.c_int, ctypes.c_void_p, ctypes.c_void_p)

x11 = ctypes.cdll.LoadLibrary(ctypes.util.find_library("X11") or "libX11.so.6")
x11.XOpenDisplay.restype = ctypes.c_void_p
x11.XOpenDisplay.argtypes = [ctypes.c_char_p]
x11.XDefaultRootWindow.restype = ctypes.c_ulong
x11.XDefaultRootWindow.argtypes = [ctypes.c_void_p]
x11.XSelectInput.argtypes = [ctypes.c_void_p, ctypes.c_ulong, ctypes.c_long]
x11.XConnectionNumber.argtypes = [ctypes.c_void_p]
x11.XPending.argtypes = [ctypes.c_void_p]
x11.XNextEvent.argtypes = [ctypes.c_void_p, ctypes.POINTER(Event)]
x11.XFlush.argtypes = [ctypes.c_void_p]
x11.XSync.argtypes = [ctypes.c_void_p, ctypes.c_int]
x11.XInternAtom.restype = ctypes.c_ulong
x11.XInternAtom.argtypes = [ctypes.c_void_p, ctypes.c_char_p, ctypes.c_int]
x11.XGetWindowProperty.argtypes = [ctypes.c_void_p, ctypes.c_ulong, ctypes.c_ulong, ctypes.c_long, ctypes.c_long,
                                   ctypes.c_int, ctypes.c_ulong, ctypes.POINTER(ctypes.c_ulong),
                                   ctypes.POINTER(ctypes.c_int), ctypes.POINTER(ctypes.c_ulong),
                                   ctypes.POINTER(ctypes.c_ulong), ctypes.POINTER(ctypes.c_void_p)]
x11.XFree.argtypes = [ctypes.c_void_p]
x11.XSetErrorHandler.argtypes = [ErrorHandler]
x11.XCloseDisplay.argtypes = [ctypes.c_void_p]


# A window can go before its name is read (Qt makes and drops helper windows at start);
# the default handler would end this script over such a BadWindow.
@ErrorHandler
def ignore_x_errors(_display, _event):
    return 0


class Server:
    """One Xvfb for the whole measurement, and a connection that watches the top-level windows."""

    def __init__(self):
        read_end, write_end = os.pipe()
        self.xvfb = subprocess.Popen(["Xvfb", "-displayfd", str(write_end), "-screen", "0", "1280x900x24",
                                      "-nolisten", "tcp"], pass_fds=[write_end], stderr=subprocess.DEVNULL)
        os.close(write_end)
        number = b""
        while not number.endswith(b"\n"):
            chunk = os.read(read_end, 16)
            if not chunk:
                sys.exit("Xvfb did not start")
            number += chunk
        os.close(read_end)
        self.name = ":" + number.decode().strip()
        x11.XSetErrorHandler(ignore_x_errors)
        self.display = x11.XOpenDisplay(self.name.encode())
        if not self.display:
            sys.exit("cannot open the X display " + self.name)
        self.root = x11.XDefaultRootWindow(self.display)
        self.net_wm_name = x11.XInternAtom(self.display, b"_NET_WM_NAME", False)
        self.wm_name = 39  # XA_WM_NAME
        x11.XSelectInput(self.display, self.root, SubstructureNotifyMask)
        x11.XSync(self.display, False)

    def title(self, window):
        for atom in (self.net_wm_name, self.wm_name):
            actual_type, actual_format = ctypes.c_ulong(), ctypes.c_int()
            items, after, data = ctypes.c_ulong(), ctypes.c_ulong(), ctypes.c_void_p()
            status = x11.XGetWindowProperty(self.display, window, atom, 0, 256, False, 0, ctypes.byref(actual_type),
                                            ctypes.byref(actual_format), ctypes.byref(items), ctypes.byref(after),
                                            ctypes.byref(data))
            if status == 0 and data.value:
                text = ctypes.string_at(data.value, items.value).decode("utf-8", "replace")
                x11.XFree(data)
                if text:
                    return text
        return None

    def drain(self):
        event = Event()
        x11.XSync(self.display, False)
        while x11.XPending(self.display):
            x11.XNextEvent(self.display, ctypes.byref(event))

    def wait_for_window(self, title, deadline):
        """The moment a window with that title is mapped, by the monotonic clock; None on timeout."""
        event = Event()
        mapped = set()
        fd = x11.XConnectionNumber(self.display)
        while True:
            while x11.XPending(self.display):
                x11.XNextEvent(self.display, ctypes.byref(event))
                kind = event.any.type
                if kind == CreateNotify:
                    # The title may come after the window: watch its properties too.
                    x11.XSelectInput(self.display, event.any.second, PropertyChangeMask)
                    x11.XFlush(self.display)
                    continue
                if kind == MapNotify:
                    window = event.any.second
                    mapped.add(window)
                elif kind == PropertyNotify:
                    window = event.any.first
                else:
                    continue
                if window in mapped and self.title(window) == title:
                    return time.monotonic()
            remaining = deadline - time.monotonic()
            if remaining <= 0:
                return None
            select.select([fd], [], [], remaining)

    def close(self):
        x11.XCloseDisplay(self.display)
        self.xvfb.terminate()
        self.xvfb.wait()


def peak_rss_kib(pid):
    with open(f"/proc/{pid}/status") as status:
        for line in status:
            if line.startswith("VmHWM:"):
                return int(line.split()[1])
    raise RuntimeError("no VmHWM for process %d" % pid)


def one_start(server, program, title, environment):
    server.drain()
    started = time.monotonic()
    process = subprocess.Popen([program], env=environment, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    shown = server.wait_for_window(title, started + 30)
    try:
        if shown is None:
            raise RuntimeError(f"{program}: no window titled '{title}' within 30 s")
        # Stopped at once, so that the memory read is that of the moment the window came.
        os.kill(process.pid, signal.SIGSTOP)
        rss = peak_rss_kib(process.pid)
    finally:
        process.kill()
        process.wait()
    return (shown - started) * 1000.0, rss


def main():
    ours, floor, rounds, out = sys.argv[1], sys.argv[2], int(sys.argv[3]), sys.argv[4]
    server = Server()
    environment = {k: v for k, v in os.environ.items() if not k.startswith("QT_")}
    environment.update(pair.split("=", 1) for pair in sys.argv[5:])
    environment["DISPLAY"] = server.name
    runs = {"ours": [], "floor": []}
    try:
        # One start of each first, unmeasured: the first start after a build reads the
        # libraries and the font cache from disk, every later one from memory.
        one_start(server, ours, OUR_TITLE, environment)
        one_start(server, floor, FLOOR_TITLE, environment)
        for _ in range(rounds):
            runs["ours"].append(one_start(server, ours, OUR_TITLE, environment))
            runs["floor"].append(one_start(server, floor, FLOOR_TITLE, environment))
    finally:
        server.close()
    result = {}
    for name, samples in runs.items():
        result[name] = {
            "runs": len(samples),
            "time_ms": [round(t, 2) for t, _ in samples],
            "peak_rss_kib": [m for _, m in samples],
            "median_time_ms": statistics.median(t for t, _ in samples),
            "median_peak_rss_kib": statistics.median(m for _, m in samples),
        }
    with open(out, "w") as f:
        json.dump(result, f, indent=1)


if __name__ == "__main__":
    main()
