#!/usr/bin/env python3
"""shipped.py PROGRAM: the program that is delivered is the optimised one, whatever was built after it.

The builds for sanitizers and fuzzers lay out programs of their own; none of them may stand in the delivered folder."""

import pathlib
import sys

STRANGERS = (b'__asan_', b'__ubsan_', b'__sanitizer_', b'LLVMFuzzer')
MOST = 16 << 20  # bytes; a sanitized program has twice as many


def main():
    program = pathlib.Path(sys.argv[1])
    content = program.read_bytes()
    found = [name.decode() for name in STRANGERS if name in content]
    if len(content) > MOST:
        found.append(f'{len(content)} bytes')
    print(f'{program.name}: {len(content)} bytes, ' + (', '.join(found) or 'nothing foreign in it'))
    sys.exit(1 if found else 0)


if __name__ == '__main__':
    main()
