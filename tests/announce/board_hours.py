#!/usr/bin/env python3
"""Lets the board run for two simulated hours with every announcement on and measures what that takes.

    board_hours.py GTDRIVE PROGRAM_FOLDER WAVS [--any-memory]

Fails when the two hours take more than LIMIT seconds of the processor, when the driver's memory or its number of
open files has grown over them, or when a kind of announcement was never heard. Builds that check memory themselves keep
what was released for a while: --any-memory leaves its growth out.
"""

import json
import os
import pathlib
import shutil
import subprocess
import sys
import tempfile

LIMIT = 5.0  # seconds of the processor
GROWTH = 512  # kB that the allocator may keep for itself
STEP = 10  # minutes
WARM_UP = 60  # minutes before the first measure: both boards, all six kinds, every buffer at its size
HOURS = 2


class Driver:
    def __init__(self, program, folder):
        self.process = subprocess.Popen(
            [program, str(folder)], stdin=subprocess.PIPE, stdout=subprocess.PIPE, text=True, bufsize=1
        )

    def do(self, command):
        """The value lines of a command; raises when it was not simply done."""
        self.process.stdin.write(command + "\n")
        self.process.stdin.flush()
        values = []
        while True:
            line = self.process.stdout.readline().rstrip("\n")
            if line == "ok":
                return values
            if not line or line == "ended" or line.startswith(("modal ", "error: ")):
                raise SystemExit(f"{command}: {line or 'the driver is gone'}")
            values.append(line)

    def value(self, command):
        return json.loads(self.do(command)[0])

    def seconds(self):
        fields = pathlib.Path(f"/proc/{self.process.pid}/stat").read_text().rsplit(")", 1)[1].split()
        return (int(fields[11]) + int(fields[12])) / os.sysconf("SC_CLK_TCK")

    def memory(self):
        for line in pathlib.Path(f"/proc/{self.process.pid}/status").read_text().splitlines():
            if line.startswith("VmRSS:"):
                return int(line.split()[1])
        raise SystemExit("no VmRSS")

    def files(self):
        return len(os.listdir(f"/proc/{self.process.pid}/fd"))


def heard(sounds):
    """How often each of the channels 1 to 6 began to speak."""
    counts = dict.fromkeys(range(1, 7), 0)
    for operation in sounds:
        if operation[0] in ("PlayDXSound", "PlayEcho") and operation[1] in counts:
            counts[operation[1]] += 1
    return counts


def run(driver, minutes):
    """Lets the board run, one half of the time for each of its modes."""
    total = dict.fromkeys(range(1, 7), 0)
    for done in range(0, minutes, STEP):
        if done in (0, minutes // 2):
            driver.do("click MainForm.switchButton(1)")
        driver.do(f"advance {STEP * 60000}")
        for kind, count in heard(driver.value("sounds")).items():
            total[kind] += count
    return total


def main(arguments):
    any_memory = "--any-memory" in arguments
    program, source, wavs = [a for a in arguments if not a.startswith("--")]
    with tempfile.TemporaryDirectory() as scratch:
        folder = pathlib.Path(scratch) / "Gatewise"
        shutil.copytree(source, folder)
        shutil.copytree(wavs, folder / "Wavs")
        driver = Driver(program, folder)
        driver.do("now 2002-06-17 07:00:00")
        driver.do("start")
        run(driver, WARM_UP)

        before = driver.seconds(), driver.memory(), driver.files()
        counts = run(driver, HOURS * 60)
        after = driver.seconds(), driver.memory(), driver.files()
        driver.do("sounds")
        driver.process.stdin.close()
        driver.process.wait()

    seconds, memory, files = (late - early for early, late in zip(before, after))
    print(f"{HOURS} hours in {seconds:.2f} s; memory {before[1]} kB {memory:+d}; open files {before[2]} {files:+d}")
    print("announcements by kind:", counts)
    faults = []
    if seconds > LIMIT:
        faults.append(f"took {seconds:.2f} s of the processor, more than {LIMIT}")
    if memory > GROWTH and not any_memory:
        faults.append(f"memory grew by {memory} kB")
    if files > 0:
        faults.append(f"{files} more files are open")
    faults += [f"kind {kind} was never announced" for kind, count in counts.items() if count == 0]
    for fault in faults:
        print("fault:", fault)
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
