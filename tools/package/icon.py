"""Packs PNG pictures into one Windows icon.

    icon.py OUT.ico PICTURE.png...      each square, at most 256 pixels wide
"""

import pathlib
import struct
import sys


def width_of(png):
    if png[:8] != b"\x89PNG\r\n\x1a\n":
        sys.exit("not a PNG picture")
    return struct.unpack(">I", png[16:20])[0]


def icon(pictures):
    """The bytes of an icon file: a directory of 16 bytes a picture, then the pictures as they are."""
    offset = 6 + 16 * len(pictures)
    directory = struct.pack("<HHH", 0, 1, len(pictures))
    for png in pictures:
        size = width_of(png) % 256  # 256 is written as 0
        directory += struct.pack("<BBBBHHII", size, size, 0, 0, 1, 32, len(png), offset)
        offset += len(png)
    return directory + b"".join(pictures)


if __name__ == "__main__":
    pathlib.Path(sys.argv[1]).write_bytes(icon([pathlib.Path(name).read_bytes() for name in sys.argv[2:]]))
