#!/usr/bin/env python3
"""Random walks of a person through the real window.

walk.py GTWINDOW PROGRAM_FOLDER WALKS EVENTS [FIRST]

Each walk plays so many events at controls in sight, drawn from its own number (from FIRST on, else from 1), and looks
at the screen in front after every tenth. A walk that leaves the program starts it anew and goes on. Fails when the window
shows something else than its form holds, when the tool ends badly, or when a run of many events holds ever more memory.
Prints events a second and the most memory that a run has won in its second half.
"""

import json
import os
import random
import shutil
import subprocess
import sys
import tempfile
import time

LOOK = 10  # events between two looks
NEVER_WRITTEN = ("Images", "Fonts", "help")  # folders of the program that a walk only reads


class Desk:
    """The tool on a fresh copy of a program folder."""

    def __init__(self, tool, program, scratch):
        folder = os.path.join(scratch, "Gatewise")
        shutil.rmtree(folder, ignore_errors=True)
        shutil.copytree(program, folder, symlinks=True, ignore=shutil.ignore_patterns(*NEVER_WRITTEN))
        for name in NEVER_WRITTEN:
            if os.path.isdir(os.path.join(program, name)):
                os.symlink(os.path.abspath(os.path.join(program, name)), os.path.join(folder, name))
        home = dict(os.environ, HOME=folder)  # dialogs begin there, and nowhere in the files of whoever walks
        self.tool = subprocess.Popen([tool, folder], stdin=subprocess.PIPE, stdout=subprocess.PIPE, text=True, encoding="utf-8",
                                     env=home)
        self.ended = False
        self.said = []
        self.held = []  # megabytes after every look

    def say(self, command):
        """The value lines of an answer and its closing line."""
        self.said.append(command)
        self.tool.stdin.write(command + "\n")
        self.tool.stdin.flush()
        values = []
        while True:
            line = self.tool.stdout.readline()
            if not line:
                sys.exit(f"the tool ended at: {command}")
            line = line.rstrip("\n")
            if line in ("ok", "ended") or line.startswith(("modal ", "error: ")):
                self.ended = line == "ended"
                if line.startswith("error: window differs"):
                    sys.exit("\n".join(self.said[-2 * LOOK :] + [line]))
                return values, line
            values.append(line)

    def start(self, number):
        self.say(f"seed {number}")
        self.say("start")

    def leave(self):
        """The tool's end, which the program's own end may have brought about."""
        if not self.ended:
            self.tool.stdin.write("quit\n")
            self.tool.stdin.flush()
        if self.tool.wait() != 0:
            sys.exit("\n".join(self.said[-2 * LOOK :] + [f"the tool ended with {self.tool.returncode}"]))

    def memory(self):
        with open(f"/proc/{self.tool.pid}/status", encoding="ascii") as status:
            return next(int(line.split()[1]) / 1024 for line in status if line.startswith("VmRSS:"))


def event(draw, screen, controls):
    """A command at a control of the screen that shows and can be used."""
    sight = [name for name, c in controls.items() if c["visible"] and c["enabled"] and "interval" not in c]
    if not sight:
        return "advance 500"
    name = draw.choice(sight)
    control = controls[name]
    full = f"{screen}.{name}"
    if "rows" in control or ("items" in control and "itemdata" in control):
        count = len(control.get("rows", control.get("items", [])))
        if count and "path" not in control:
            return f"choose {full} {draw.randrange(count)}"
    if "min" in control:
        return f"slide {full} {draw.randint(control['min'], control['max'])}"
    if set(control) == {"visible", "enabled", "text"} and draw.random() < 0.7:
        return f"type {full} {draw.choice(['KATL', 'boston', 'x', '', 'Ada'])}"
    word = draw.choice(["click", "click", "move", "move", "dblclick", "rightdown", "key", "advance"])
    if word == "key":
        return f"key {full} {draw.choice(['enter', 'space', 'escape'])}"
    return f"advance {draw.choice([100, 500, 5000])}" if word == "advance" else f"{word} {full}"


def growth(held):
    """Megabytes won between the middle of a run and its end; too many end the walk."""
    if len(held) < 2 * LOOK:
        return 0
    middle, end = held[len(held) // 2], held[-1]
    if end > middle * 1.5 + 20:
        sys.exit(f"{middle:.0f} MB in the middle and {end:.0f} MB at the end")
    return end - middle


def walk(tool, program, number, events):
    """Plays one walk; the most memory that one of its runs has won."""
    draw = random.Random(number)
    most = 0
    with tempfile.TemporaryDirectory() as scratch:
        desk = None
        controls, screen = {}, ""
        for i in range(events):
            if desk is None:
                desk = Desk(tool, program, scratch)
                desk.start(number)
            if i % LOOK == 0 or not controls:
                shown = json.loads(desk.say("shown")[0][0])
                screen = shown[0]
                controls = json.loads(desk.say(f"dump {screen}")[0][0])
                desk.held.append(desk.memory())
            desk.say(event(draw, screen, controls))
            if desk.ended or i == events - 1:
                desk.leave()
                most = max(most, growth(desk.held))
                desk, controls = None, {}
    return most


def main():
    tool, program = sys.argv[1:3]
    walks, events = map(int, sys.argv[3:5])
    begun = time.perf_counter()
    first = int(sys.argv[5]) if len(sys.argv) > 5 else 1
    most = 0
    for number in range(first, first + walks):
        print(f"walk {number}", file=sys.stderr)
        most = max(most, walk(tool, program, number, events))
    print(f"{walks} walks, {walks * events / (time.perf_counter() - begun):.0f} events a second, {most:.1f} MB won at most")


if __name__ == "__main__":
    main()
