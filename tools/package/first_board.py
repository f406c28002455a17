#!/usr/bin/env python3
"""Measures how long a program takes from its start to the first painted board, on a screen of its own.

first_board.py [--picture FILE.png] [--settle SECONDS] COMMAND...

Starts Xvfb, then the command, and looks at the screen's memory every few milliseconds. The board is painted when the
screen looks for the first time as it does in the end, but for clocks and what blinks; the end is when it has hardly
changed for some seconds. Ends the command then and prints the time.
"""

import argparse
import mmap
import os
import pathlib
import signal
import struct
import subprocess
import sys
import tempfile
import time
import zlib

WIDTH, HEIGHT = 1280, 1024
EVERY = 4 * 61  # one pixel in 61 is looked at
ALIKE = 0.995   # this share of them is the same


class Screen:
    """A display that no hardware shows; its pixels lie in a file."""

    def __init__(self, folder):
        reader, writer = os.pipe()
        self.server = subprocess.Popen(["Xvfb", "-displayfd", str(writer), "-screen", "0", f"{WIDTH}x{HEIGHT}x24",
                                        "-nolisten", "tcp", "-ac", "-fbdir", folder],
                                       pass_fds=[writer], stderr=subprocess.DEVNULL)
        os.close(writer)
        with os.fdopen(reader) as display:
            self.name = ":" + display.readline().strip()
        with open(pathlib.Path(folder) / "Xvfb_screen0", "rb") as file:
            self.memory = mmap.mmap(file.fileno(), 0, access=mmap.ACCESS_READ)
        header = struct.unpack(">25I", self.memory[:100])
        self.pixels, self.line = header[0] + 12 * header[19], header[12]

    def look(self):
        return self.memory[self.pixels : self.pixels + self.line * HEIGHT]

    def close(self):
        self.server.terminate()
        self.server.wait()


def sample(frame):
    """The green of every so many pixels."""
    return frame[1::EVERY]


def alike(one, other):
    return sum(map(int.__eq__, one, other)) / len(one)


def png(frame, line):
    rows = bytearray()
    for y in range(HEIGHT):
        row = frame[y * line : y * line + 4 * WIDTH]
        rgb = bytearray(3 * WIDTH)
        rgb[0::3], rgb[1::3], rgb[2::3] = row[2::4], row[1::4], row[0::4]
        rows += b"\0" + rgb

    def chunk(kind, content):
        return struct.pack(">I", len(content)) + kind + content + struct.pack(">I", zlib.crc32(kind + content))

    return (b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", struct.pack(">IIBBBBB", WIDTH, HEIGHT, 8, 2, 0, 0, 0)) +
            chunk(b"IDAT", zlib.compress(bytes(rows))) + chunk(b"IEND", b""))


def watch(screen, settle, limit):
    """The moments at which the screen changed, with what it showed; ends when it is at rest."""
    seen = [(0.0, sample(screen.look()))]
    begun = moved = time.monotonic()
    while time.monotonic() - begun < limit:
        now = sample(screen.look())
        if now != seen[-1][1]:
            at = time.monotonic()
            if alike(now, seen[-1][1]) < ALIKE:
                moved = at
            seen.append((at - begun, now))
        if len(seen) > 1 and time.monotonic() - moved > settle:
            break
        time.sleep(0.005)
    return seen


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("--picture")
    parser.add_argument("--settle", type=float, default=6)
    parser.add_argument("--limit", type=float, default=120)
    parser.add_argument("command", nargs=argparse.REMAINDER)
    chosen = parser.parse_args()
    with tempfile.TemporaryDirectory() as folder:
        screen = Screen(folder)
        environment = {**os.environ, "DISPLAY": screen.name, "QT_QPA_PLATFORM": os.environ.get("QT_QPA_PLATFORM", "")}
        environment = {name: value for name, value in environment.items() if value}
        program = subprocess.Popen(chosen.command, env=environment, start_new_session=True)
        try:
            seen = watch(screen, chosen.settle, chosen.limit)
            if chosen.picture:
                pathlib.Path(chosen.picture).write_bytes(png(screen.look(), screen.line))
        finally:
            os.killpg(program.pid, signal.SIGTERM)
            program.wait()
            screen.close()
    end = seen[-1][1]
    if len(seen) < 2 or not any(end):
        sys.exit("nothing was painted")
    first = next(at for at, shown in seen if alike(shown, end) >= ALIKE)
    print(f"first painted board after {first:.2f} s")


if __name__ == "__main__":
    main()
