#!/usr/bin/env python3
"""idle.py PROGRAM DELIVERED_FOLDER [SECONDS]: what the program as it ships takes of a core while nobody touches it.

Off screen, with a sound device that mixes and plays to nobody, in a folder of its own; the start is over before the
measurement begins. Fails above 2 % on the board with its hall, above 0.5 % where nothing is to be heard: on the board with all
sounds muted, on the main page.
"""

import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile
import time

# Page, StatusBoard and Muted of GT.cfg, percent of a core.
MOST = (('board', '1', '0', 2.0), ('muted board', '1', '1', 0.5), ('main page', '0', '0', 0.5))
START = 5  # seconds


def processor_seconds(process):
    fields = pathlib.Path(f'/proc/{process}/stat').read_text(encoding='ascii').rsplit(')', 1)[1].split()
    return (int(fields[11]) + int(fields[12])) / os.sysconf('SC_CLK_TCK')


def lay_out(folder, program, delivered, board, muted):
    """An installed program below a folder that starts with the board or without; returns the program."""
    own = folder / 'bin' / program.name
    own.parent.mkdir()
    shutil.copy2(program, own)
    shared = folder / 'share' / 'gatewise'
    shared.mkdir(parents=True)
    for part in ('Wavs', 'Data', 'help', 'Fonts', 'Images'):
        (shared / part).symlink_to(delivered / part)
    settings = (delivered / 'GT.cfg').read_bytes()
    settings = re.sub(rb'StatusBoard=\d', b'StatusBoard=' + board.encode(), settings)
    (shared / 'GT.cfg').write_bytes(settings + f'\r\n[Gatewise]\r\nMuted={muted}\r\n'.encode())
    return own


def idle_percent(program, delivered, board, muted, seconds):
    with tempfile.TemporaryDirectory() as name:
        own = lay_out(pathlib.Path(name), program, delivered, board, muted)
        surroundings = dict(os.environ, QT_QPA_PLATFORM='offscreen', ALSOFT_DRIVERS='null', HOME=name,
                            XDG_DATA_HOME=f'{name}/user')
        with subprocess.Popen([own], env=surroundings, stderr=subprocess.DEVNULL) as running:
            time.sleep(START)
            before = processor_seconds(running.pid)
            time.sleep(seconds)
            percent = 100 * (processor_seconds(running.pid) - before) / seconds
            ended = running.poll() is not None
            running.kill()
    if ended:
        sys.exit('the program has ended by itself')
    return percent


def main():
    program, delivered = (pathlib.Path(name).resolve() for name in sys.argv[1:3])
    seconds = float(sys.argv[3]) if len(sys.argv) > 3 else 20
    above = False
    for page, board, muted, most in MOST:
        percent = idle_percent(program, delivered, board, muted, seconds)
        print(f'{page}: {percent:.2f} % of a core')
        above = above or percent > most
    sys.exit(above)


if __name__ == '__main__':
    main()
