#!/usr/bin/env python3
"""idle.py PROGRAM DELIVERED_FOLDER [SECONDS]: what the program as it ships takes of a core while nobody touches its board.

Off screen and without sound, in a folder of its own; the start is over before the measurement begins. Fails above 2 %.
"""

import os
import pathlib
import shutil
import subprocess
import sys
import tempfile
import time

MOST = 2.0  # percent of a core
START = 5  # seconds


def processor_seconds(process):
    fields = pathlib.Path(f'/proc/{process}/stat').read_text(encoding='ascii').rsplit(')', 1)[1].split()
    return (int(fields[11]) + int(fields[12])) / os.sysconf('SC_CLK_TCK')


def main():
    program, delivered = (pathlib.Path(name).resolve() for name in sys.argv[1:3])
    seconds = float(sys.argv[3]) if len(sys.argv) > 3 else 20
    with tempfile.TemporaryDirectory() as name:
        folder = pathlib.Path(name)
        own = folder / 'bin' / program.name
        own.parent.mkdir()
        shutil.copy2(program, own)
        shared = folder / 'share' / 'gatewise'
        shared.mkdir(parents=True)
        for part in ('Wavs', 'Data', 'help', 'GT.cfg', 'Fonts', 'Images'):
            (shared / part).symlink_to(delivered / part)
        surroundings = dict(os.environ, QT_QPA_PLATFORM='offscreen', ALSOFT_DRIVERS='null', HOME=name,
                            XDG_DATA_HOME=str(folder / 'user'))
        with subprocess.Popen([own], env=surroundings, stderr=subprocess.DEVNULL) as running:
            time.sleep(START)
            before = processor_seconds(running.pid)
            time.sleep(seconds)
            percent = 100 * (processor_seconds(running.pid) - before) / seconds
            ended = running.poll() is not None
            running.kill()
    if ended:
        sys.exit('the program has ended by itself')
    print(f'{percent:.2f} % of a core')
    sys.exit(percent > MOST)


if __name__ == '__main__':
    main()
