#!/usr/bin/env python3
"""The program for Windows as it is started, under Wine on a screen of its own.

starts.py PROGRAM_FOLDER CHECK_SERVICES SCRATCH_FOLDER

A second start hands over to the first one, the simulator is found by its word in the registry, F1 opens a page of the
help, a closed window ends the program, the lock of a program that was killed is taken over, and from a folder that cannot
be written the user's folder is used.
"""

import os
import pathlib
import shutil
import signal
import subprocess
import sys
import time

PROJECT = pathlib.Path(__file__).resolve().parents[2]
sys.path[:0] = [str(PROJECT / "tools" / "package"), str(PROJECT / "tests" / "support")]
import first_board
from handover import a_second_start_hands_over, wait_for

SIMULATOR_KEY = "HKLM\\SOFTWARE\\Microsoft\\Microsoft Games\\Flight Simulator\\8.0"
SIMULATOR = "C:\\Games\\FS2002"
KEY_F1 = "112"
CLASS = "Qt"


def wine(*words, **options):
    return subprocess.run(["wine", *map(str, words)], stderr=subprocess.PIPE, stdout=subprocess.PIPE, text=True, **options)


class Starts:
    def __init__(self, tried, check, scratch):
        self.check = check
        self.place = scratch / "My flights Łódź"
        shutil.rmtree(self.place, ignore_errors=True)
        shutil.copytree(tried, self.place)
        for name in ("gatewise.lock", "GT.cfg.new~"):
            (self.place / name).unlink(missing_ok=True)
        self.running = []
        self.mounted = False

    def start(self):
        program = subprocess.Popen(["wine", str(self.place / "gatewise.exe")], stderr=subprocess.PIPE, text=True)
        self.running.append(program)
        return program

    def press(self, *words):
        """Whether the window was there to get it."""
        return wine(self.check, *words).returncode == 0

    def is_locked(self, *_):
        return (self.place / "gatewise.lock").exists()

    def the_simulator_is_found(self):
        """Its installer left word in the branch of 32-bit programs; what was found is remembered at once."""
        def found():
            config = self.place / "GT.cfg"
            return config.exists() and f"FSPath={SIMULATOR}" in config.read_text(encoding="cp1252").splitlines()

        wait_for("the simulator", found)

    def f1_opens_the_help(self, opened):
        def page():
            self.press("press", CLASS, KEY_F1)
            time.sleep(1)
            return opened.exists() and opened.read_text(encoding="utf-8", errors="replace").strip().strip('"')

        name = wait_for("the help", page)
        if "\\help\\" not in name or not name.endswith(".htm"):
            sys.exit(f"F1 opens {name}")

    def ends_by_its_window(self, program):
        """False where another program works on the folder, and this one had no window."""
        closed = False

        def ended():
            nonlocal closed
            closed = self.press("close", CLASS) or closed
            time.sleep(1)
            return program.poll() is not None

        wait_for("the end of the program", ended)
        # Wine kills what takes long to go after its end.
        if program.returncode not in (0, -signal.SIGKILL):
            sys.exit(f"the program ends with {program.returncode}")
        return closed and "running already" not in program.stderr.read()

    def a_closed_window_ends(self, program):
        if not self.ends_by_its_window(program):
            sys.exit("the program has ended without a window")

    def a_lock_is_taken_over(self):
        killed = self.start()
        wait_for("the lock", self.is_locked)
        killed.kill()
        killed.wait()
        # It may take Wine a moment to see that a process has gone.
        wait_for("a start after a kill", lambda: self.ends_by_its_window(self.start()))

    def a_folder_that_cannot_be_written(self, users):
        before = sorted((path, path.stat().st_mtime) for path in self.place.rglob("*"))
        own = lambda: next(users.glob("*/AppData/Local/Gatewise Terminal/gatewise.lock"), None)
        self.protect()
        program = self.start()
        wait_for("a lock in the user's folder", own)
        self.a_closed_window_ends(program)
        if before != sorted((path, path.stat().st_mtime) for path in self.place.rglob("*")):
            sys.exit("the folder that cannot be written has changed")

    def protect(self):
        """Nobody writes into the folder any more: the administrator, who may do anything, needs it mounted so."""
        if os.geteuid() == 0:
            self.mounted = True
            subprocess.run(["mount", "--bind", self.place, self.place], check=True)
            subprocess.run(["mount", "-o", "remount,bind,ro", self.place], check=True)
            return
        for path in [self.place, *self.place.rglob("*")]:
            path.chmod(path.stat().st_mode & ~0o222)

    def end(self):
        for program in self.running:
            if program.poll() is None:
                program.kill()
                program.wait()
        if self.mounted:
            subprocess.run(["umount", "-l", self.place], check=True)


def associate(opened):
    """Pages of the help are opened by a command that writes down which."""
    opened.unlink(missing_ok=True)
    command = f'cmd /c echo "%1"> Z:{opened}'.replace("/", "\\").replace("cmd \\c", "cmd /c")
    root = "HKLM\\Software\\Classes\\"
    wine("reg", "add", root + ".htm", "/ve", "/d", "gatewise.tried", "/f")
    wine("reg", "add", root + "gatewise.tried\\shell\\open\\command", "/ve", "/d", command, "/f")


def install_simulator(games):
    """As much of a simulator as is looked for: a word in the registry, a file in its folder."""
    folder = games / "FS2002"
    folder.mkdir(parents=True, exist_ok=True)
    (folder / "FS2002.cfg").touch()
    wine("reg", "add", SIMULATOR_KEY, "/v", "EXE Path", "/d", SIMULATOR, "/f", "/reg:32")


def remove_simulator(games):
    """Other tests show the folders of the disk."""
    wine("reg", "delete", SIMULATOR_KEY, "/f", "/reg:32")
    shutil.rmtree(games, ignore_errors=True)


def main():
    tried, check, scratch = (pathlib.Path(word).resolve() for word in sys.argv[1:4])
    scratch.mkdir(parents=True, exist_ok=True)
    opened = scratch / "opened.txt"
    screen_folder = scratch / "screen"
    screen_folder.mkdir(exist_ok=True)
    screen = first_board.Screen(str(screen_folder))
    os.environ["DISPLAY"] = screen.name
    os.environ.pop("QT_QPA_PLATFORM", None)
    prefix = pathlib.Path(os.environ["WINEPREFIX"])
    games = prefix / "drive_c" / "Games"
    associate(opened)
    install_simulator(games)
    starts = Starts(tried, check, scratch)
    try:
        first = a_second_start_hands_over(starts.start, starts.place, starts.is_locked)
        starts.the_simulator_is_found()
        starts.f1_opens_the_help(opened)
        starts.a_closed_window_ends(first)
        starts.a_lock_is_taken_over()
        starts.a_folder_that_cannot_be_written(prefix / "drive_c" / "users")
    except SystemExit:
        (scratch / "failed.png").write_bytes(first_board.png(screen.look(), screen.line))
        raise
    finally:
        remove_simulator(games)
        starts.end()
        screen.close()
    print("one program on a folder, the simulator, help, end, a lock taken over, the user's folder: as they must be")


if __name__ == "__main__":
    main()
