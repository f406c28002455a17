#!/usr/bin/env python3
"""Compares the pictures of two tours by structure.

pictures.py FOLDER OTHER_FOLDER

Both have the same pictures of the same sizes, and of each picture no tile of 32 pixels looks like another screen: the mean
lightness of every tile is close to that of the other. Letters may be drawn a little bolder; a text that is missing, a
font that fell back to another, a control that stands elsewhere show.
"""

import pathlib
import struct
import sys
import zlib

TILE = 32
FAR = 24      # of 255, between the means of a tile
TILES = 0.01  # the share of tiles that may be farther apart: a blinking sign, a second that has passed

# What shows a folder of the person at the desk, by picture (left, top, right, bottom): it has another name on every computer.
PERSONAL = {"programs.png": (336, 194, 540, 490)}


def unfiltered(data, width, height, channels):
    """The rows of a PNG picture of eight bits a channel."""
    stride = width * channels
    rows, before, at = [], bytearray(stride), 0
    for _ in range(height):
        kind, row = data[at], bytearray(data[at + 1 : at + 1 + stride])
        at += 1 + stride
        for i in range(stride if kind else 0):
            left = row[i - channels] if i >= channels else 0
            up = before[i]
            corner = before[i - channels] if i >= channels else 0
            if kind == 1:
                row[i] = (row[i] + left) & 255
            elif kind == 2:
                row[i] = (row[i] + up) & 255
            elif kind == 3:
                row[i] = (row[i] + (left + up) // 2) & 255
            else:
                guess = left + up - corner
                away = (abs(guess - left), abs(guess - up), abs(guess - corner))
                row[i] = (row[i] + (left, up, corner)[away.index(min(away))]) & 255
        rows.append(row)
        before = row
    return rows


def read(path):
    data = path.read_bytes()
    at, packed = 8, b""
    while at < len(data):
        length, kind = struct.unpack(">I4s", data[at : at + 8])
        body = data[at + 8 : at + 8 + length]
        if kind == b"IHDR":
            width, height, depth, colour = struct.unpack(">IIBB", body[:10])
        elif kind == b"IDAT":
            packed += body
        at += 12 + length
    if depth != 8 or colour not in (2, 6):
        sys.exit(f"{path}: not a picture of the tour")
    channels = 3 if colour == 2 else 4
    return width, height, channels, unfiltered(zlib.decompress(packed), width, height, channels)


def tiles(picture, personal):
    """The mean of the green of every tile that does not lie in what is personal."""
    width, height, channels, rows = picture
    out = []
    for top in range(0, height, TILE):
        for left in range(0, width, TILE):
            right = min(left + TILE, width)
            if personal[0] < right and left < personal[2] and personal[1] < top + TILE and top < personal[3]:
                continue
            values = [value for row in rows[top : top + TILE] for value in row[left * channels + 1 : right * channels : channels]]
            out.append(sum(values) / len(values))
    return out


def complaint(one, other):
    mine, theirs = read(one), read(other)
    if mine[:2] != theirs[:2]:
        return f"{one.name}: {mine[0]}x{mine[1]} here, {theirs[0]}x{theirs[1]} there"
    personal = PERSONAL.get(one.name, (0, 0, 0, 0))
    apart = [abs(a - b) > FAR for a, b in zip(tiles(mine, personal), tiles(theirs, personal))]
    if sum(apart) > TILES * len(apart):
        return f"{one.name}: {sum(apart)} of {len(apart)} tiles look different"
    return None


def main():
    here, there = map(pathlib.Path, sys.argv[1:3])
    names = sorted(path.name for path in here.glob("*.png") if "@2x" not in path.name)
    others = sorted(path.name for path in there.glob("*.png") if "@2x" not in path.name)
    complaints = [f"not in both: {name}" for name in sorted(set(names) ^ set(others))]
    complaints += filter(None, (complaint(here / name, there / name) for name in names if name in others))
    print(*complaints, sep="\n", end="\n" if complaints else "")
    print(f"{len(names)} pictures of the tour compared")
    sys.exit(1 if complaints or not names else 0)


main()
