#!/usr/bin/env python3
"""Takes the name of a folder out of libraries that were built below it.

forget_folder.py FOLDER FILE...

Messages about faults name the source they stand in by the whole path that the compiler was given. Such a text keeps its
place and what stands behind the folder's name.
"""

import pathlib
import re
import sys


def without(data, folder):
    """The bytes with every text that begins with the folder begun behind it, filled with NULs at its end."""
    text = re.compile(re.escape(folder.rstrip(b"/") + b"/") + rb"([^\0]*)\0")
    return text.sub(lambda found: found[1].ljust(len(found[0]), b"\0"), data)


def main():
    folder = sys.argv[1].encode()
    for path in map(pathlib.Path, sys.argv[2:]):
        old = path.read_bytes()
        new = without(old, folder)
        if new != old:
            path.write_bytes(new)


if __name__ == "__main__":
    main()
