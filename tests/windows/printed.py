#!/usr/bin/env python3
"""printed.py PAGES.pdf TEXT: every line of the text stands on the pages, and a typeface of one width is in the file."""

import re
import subprocess
import sys


def run(*words):
    return subprocess.run(words, stdout=subprocess.PIPE, check=True).stdout.decode("utf-8")


def main():
    pages, text = sys.argv[1:3]
    words = " ".join(run("pdftotext", "-layout", pages, "-").split())
    with open(text, encoding="cp1252", newline="") as file:
        lines = [" ".join(line.split()) for line in file.read().split("\r\n")]
    missing = [line for line in lines if line not in words]
    fonts = run("pdffonts", pages)
    if not re.search(r"yes +(yes|no) +yes", fonts):
        missing.append(f"no typeface travels with the pages:\n{fonts}")
    print(*missing, sep="\n", end="\n" if missing else "")
    print(f"{len(lines)} lines of a plan stand on the pages")
    sys.exit(1 if missing or len(lines) < 20 else 0)


if __name__ == "__main__":
    main()
