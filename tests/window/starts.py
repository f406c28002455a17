#!/usr/bin/env python3
"""starts.py PROGRAM DELIVERED_FOLDER: the program as it is started, without a display.

A second start hands over to the first one; the lock of a program that was killed is taken over; pipes in the place of
pictures and fonts do not hold the start; nothing comes into the delivered folder."""

import os
import pathlib
import shutil
import subprocess
import sys
import tempfile

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[1] / 'support'))
from handover import a_second_start_hands_over, wait_for


class Place:
    """An installed program with a user of its own."""

    def __init__(self, folder, program, delivered):
        self.program = folder / 'bin' / program.name
        self.program.parent.mkdir()
        shutil.copy2(program, self.program)
        shared = folder / 'share' / 'gatewise'
        shared.mkdir(parents=True)
        for part in ('Wavs', 'Data', 'help', 'GT.cfg'):
            if (delivered / part).exists():
                (shared / part).symlink_to(delivered / part)
        for part in ('Fonts', 'Images'):
            (shared / part).mkdir()
            for file in (delivered / part).iterdir():
                (shared / part / file.name).symlink_to(file)
        self.shared = shared
        self.user = folder / 'user' / 'Gatewise Terminal'
        self.environment = dict(os.environ, QT_QPA_PLATFORM='offscreen', ALSOFT_DRIVERS='null',
                                XDG_DATA_HOME=str(folder / 'user'), HOME=str(folder))

    def start(self):
        return subprocess.Popen([self.program], env=self.environment, stderr=subprocess.PIPE, text=True)

    def owner(self):
        lock = self.user / 'gatewise.lock'
        lines = lock.read_text().splitlines() if lock.exists() else []
        return int(lines[0]) if lines else None


def main():
    program, delivered = (pathlib.Path(name).resolve() for name in sys.argv[1:])
    before = sorted((path, path.stat().st_mtime) for path in delivered.rglob('*'))
    with tempfile.TemporaryDirectory() as name:
        place = Place(pathlib.Path(name), program, delivered)
        picture = sorted(place.shared.glob('Images/Dispatch_BG*'))[0]
        font = sorted(place.shared.glob('Fonts/*.ttf'))[0]
        for file in (picture, font):
            file.unlink()
        place.user.mkdir(parents=True)
        for pipe in (picture, font, place.user / 'GT.cfg', place.shared / 'Fonts' / 'pipe.ttf'):
            os.mkfifo(pipe)
        first = a_second_start_hands_over(place.start, place.user, lambda program: place.owner() == program.pid)
        first.kill()
        first.wait()
        third = place.start()
        wait_for('the start after a kill', lambda: place.owner() == third.pid)
        third.kill()
        third.wait()
    if before != sorted((path, path.stat().st_mtime) for path in delivered.rglob('*')):
        sys.exit('the delivered folder has changed')
    print('a second start hands over, a third takes over')


if __name__ == '__main__':
    main()
