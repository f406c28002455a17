#!/usr/bin/env python3
"""on_screen.py COMMAND...: runs a command on a screen of its own that no hardware shows; ends as it does."""

import os
import pathlib
import subprocess
import sys
import tempfile

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[2] / "tools" / "package"))
import first_board


def main():
    with tempfile.TemporaryDirectory() as folder:
        screen = first_board.Screen(folder)
        try:
            ran = subprocess.run(sys.argv[1:], env={**os.environ, "DISPLAY": screen.name}, check=False)
        finally:
            screen.close()
    sys.exit(ran.returncode)


if __name__ == "__main__":
    main()
