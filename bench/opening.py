#!/usr/bin/env python3
"""Measures how programs open their windows: the time, the memory, and what they read of files.

opening.py RUNS NAME PROGRAM NAME PROGRAM...   under X, with nothing else on the screen

The programs are started in turn, so that other work of the machine slows all of them alike. The
ratios are to the first program. A window is mapped when the server says so, and on the screen when a
pixel near its bottom has taken its last colour. Reads are calls of read(), which leave out the
libraries, since those are mapped.
"""

import ctypes
import select
import statistics
import subprocess
import sys
import time

MAP_NOTIFY = 19
SUBSTRUCTURE_NOTIFY_MASK = 1 << 19
Z_PIXMAP = 2
ALL_PLANES = ctypes.c_ulong(-1)
LEAST_WIDTH = 700  # pixels; narrower windows are not those that are measured
SETTLING = 0.6  # seconds from the mapping until all is painted and the memory can be measured
COLUMNS = "mapped ms", "on screen ms", "resident MiB", "reads", "KiB read"


class MapEvent(ctypes.Structure):
    _fields_ = [("type", ctypes.c_int), ("serial", ctypes.c_ulong), ("send_event", ctypes.c_int),
                ("display", ctypes.c_void_p), ("event", ctypes.c_ulong),
                ("window", ctypes.c_ulong), ("padding", ctypes.c_long * 24)]


class Screen:
    def __init__(self):
        self.x = ctypes.CDLL("libX11.so.6")
        self.x.XOpenDisplay.restype = ctypes.c_void_p
        self.x.XDefaultRootWindow.restype = ctypes.c_ulong
        self.x.XGetImage.restype = ctypes.c_void_p
        self.x.XGetPixel.restype = ctypes.c_ulong
        # XGetGeometry fails for a window that has closed meanwhile.
        self.ignore_errors = ctypes.CFUNCTYPE(ctypes.c_int, ctypes.c_void_p, ctypes.c_void_p)(
            lambda *_: 0)
        self.x.XSetErrorHandler(self.ignore_errors)
        self.display = ctypes.c_void_p(self.x.XOpenDisplay(None))
        if not self.display:
            sys.exit("There is no X display.")
        self.root = ctypes.c_ulong(self.x.XDefaultRootWindow(self.display))
        self.x.XSelectInput(self.display, self.root, ctypes.c_long(SUBSTRUCTURE_NOTIFY_MASK))
        self.x.XSync(self.display, 0)

    def next_mapped(self, deadline):
        """Waits for the next window to be mapped: its left, top, width and height in pixels."""
        event = MapEvent()
        while True:
            while self.x.XPending(self.display):
                self.x.XNextEvent(self.display, ctypes.byref(event))
                if event.type == MAP_NOTIFY:
                    return self.geometry(event.window)
            left = deadline - time.perf_counter()
            if left <= 0 or not select.select([self.x.XConnectionNumber(self.display)], [], [],
                                              left)[0]:
                sys.exit("No window was mapped.")

    def geometry(self, window):
        root, numbers = ctypes.c_ulong(), [ctypes.c_int() for _ in range(6)]
        self.x.XGetGeometry(self.display, ctypes.c_ulong(window), ctypes.byref(root),
                            *[ctypes.byref(number) for number in numbers])
        return [number.value for number in numbers[:4]]

    def pixel(self, left, top):
        image = ctypes.c_void_p(self.x.XGetImage(self.display, self.root, left, top, 1, 1,
                                                 ALL_PLANES, Z_PIXMAP))
        value = self.x.XGetPixel(image, 0, 0)
        self.x.XDestroyImage(image)
        return value

    def last_change(self, left, top, deadline):
        """The time at which the pixel took the colour that it has at the deadline."""
        colour, changed = None, None
        while time.perf_counter() < deadline:
            now = self.pixel(left, top)
            if now != colour:
                colour, changed = now, time.perf_counter()
            time.sleep(0.0005)
        return changed

    def forget_events(self):
        self.x.XSync(self.display, 1)


def of_process(process, file, name):
    """A number from a file in the process's folder of /proc."""
    with open(f"/proc/{process.pid}/{file}") as lines:
        return next(int(line.split()[1]) for line in lines if line.startswith(name + ":"))


def open_once(screen, program):
    screen.forget_events()
    start = time.perf_counter()
    process = subprocess.Popen([program], stderr=subprocess.DEVNULL)
    try:
        while True:
            left, top, width, height = screen.next_mapped(start + 30)
            if width >= LEAST_WIDTH:
                break
        mapped = time.perf_counter()
        painted = screen.last_change(left + width // 2, top + height - 12, mapped + SETTLING)
        return ((mapped - start) * 1000, (painted - start) * 1000,
                of_process(process, "status", "VmRSS") / 1024,
                of_process(process, "io", "syscr"), of_process(process, "io", "rchar") / 1024)
    finally:
        process.terminate()
        process.wait()
        time.sleep(0.1)


def main():
    runs, names, programs = int(sys.argv[1]), sys.argv[2::2], sys.argv[3::2]
    screen = Screen()
    for program in programs:
        open_once(screen, program)  # so that its files are in the page cache
    found = {name: [] for name in names}
    for _ in range(runs):
        for name, program in zip(names, programs):
            found[name].append(open_once(screen, program))
    print(f"Opening of the window, {runs} runs in turn; the ratios are to {names[0]}.")
    print(f"{'':26}" + "".join(f"{column:>12}{'':8}" for column in COLUMNS).rstrip())
    for title, choose in (("median", statistics.median), ("least", min)):
        chosen = {name: [choose(column) for column in zip(*rows)] for name, rows in found.items()}
        for name, row in chosen.items():
            cells = [f"{value:12.1f} {value / base:6.2f}x"
                     for value, base in zip(row, chosen[names[0]])]
            print(f"{name + ', ' + title:26}" + "".join(cells))


main()
