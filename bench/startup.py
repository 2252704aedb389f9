#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 Tafelkasse developers
# SPDX-License-Identifier: GPL-3.0-or-later
#
# Start-up of Tafelkasse against the toolkit's floor, measured from outside: the program
# takes no options, so the clock runs from the moment the process is started until the X
# server maps a window with the program's title. At that moment the process is stopped,
# its peak resident memory (VmHWM) and the processor time of its threads read, and it is
# killed. The two programs take turns, under one Xvfb that this script starts, after one
# unmeasured start of each.
#
# Usage: startup.py OURS FLOOR ROUNDS OUT.json [NAME=VALUE...]
# The NAME=VALUE pairs are added to the environment of the two programs.
import ctypes
import json
import os
import select
import signal
import statistics
import subprocess
import sys
import time

from Xlib import X, Xatom, display, error

OUR_TITLE = "Tafelkasse Version x vom 16.11.2019"
FLOOR_TITLE = "Qt Widgets floor"


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
        self.display = display.Display(self.name)
        self.net_wm_name = self.display.intern_atom("_NET_WM_NAME")
        self.display.screen().root.change_attributes(event_mask=X.SubstructureNotifyMask)
        self.display.sync()

    def title(self, window):
        # A window can go before its name is read (Qt makes and drops helper windows at start).
        try:
            for atom in (self.net_wm_name, Xatom.WM_NAME):
                prop = window.get_full_property(atom, X.AnyPropertyType)
                if prop and prop.value:
                    value = prop.value
                    return value.decode("utf-8", "replace") if isinstance(value, bytes) else str(value)
        except error.BadWindow:
            pass
        return None

    def drain(self):
        self.display.sync()
        while self.display.pending_events():
            self.display.next_event()

    def wait_for_window(self, title, deadline):
        """The moment a window with that title is mapped, by the monotonic clock; None on timeout."""
        mapped = set()
        while True:
            while self.display.pending_events():
                event = self.display.next_event()
                if event.type == X.CreateNotify:
                    # The title may come after the window: watch its properties too.
                    event.window.change_attributes(event_mask=X.PropertyChangeMask, onerror=error.CatchError())
                    self.display.flush()
                    continue
                if event.type == X.MapNotify:
                    mapped.add(event.window.id)
                elif event.type != X.PropertyNotify:
                    continue
                if event.window.id in mapped and self.title(event.window) == title:
                    return time.monotonic()
            remaining = deadline - time.monotonic()
            if remaining <= 0:
                return None
            select.select([self.display], [], [], remaining)

    def close(self):
        self.display.close()
        self.xvfb.terminate()
        self.xvfb.wait()


def peak_rss_kib(pid):
    with open(f"/proc/{pid}/status") as status:
        for line in status:
            if line.startswith("VmHWM:"):
                return int(line.split()[1])
    raise RuntimeError("no VmHWM for process %d" % pid)


_libc = ctypes.CDLL(None, use_errno=True)


def cpu_ms(pid):
    """The processor time that all threads of the process have had, in ms, those that have ended
    included: unlike the time until the window shows, it does not grow while other work on the
    machine holds the processor."""
    clock = ctypes.c_int()
    if _libc.clock_getcpuclockid(pid, ctypes.byref(clock)) != 0:
        raise RuntimeError("no processor clock for process %d" % pid)
    return time.clock_gettime_ns(clock.value) / 1e6


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
        cpu = cpu_ms(process.pid)
    finally:
        process.kill()
        process.wait()
    return (shown - started) * 1000.0, rss, cpu


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
            "time_ms": [round(t, 2) for t, _, _ in samples],
            "peak_rss_kib": [m for _, m, _ in samples],
            "cpu_ms": [round(c, 2) for _, _, c in samples],
            "median_time_ms": statistics.median(t for t, _, _ in samples),
            "median_peak_rss_kib": statistics.median(m for _, m, _ in samples),
            "median_cpu_ms": statistics.median(c for _, _, c in samples),
        }
    with open(out, "w") as f:
        json.dump(result, f, indent=1)


if __name__ == "__main__":
    main()
