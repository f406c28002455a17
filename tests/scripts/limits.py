#!/usr/bin/env python3
"""Start-up time and peak memory of the program without its window.

limits.py GTDRIVE PROGRAM_FOLDER MILLISECONDS MEGABYTES

Times start-up up to the first board as the difference between a run that starts the program and one that does not,
each the quickest of several: what the machine does besides then counts little. Fails above the limits.
"""

import os
import shutil
import subprocess
import sys
import tempfile
import time

RUNS = 15


def peak(process):
    """MB that the process has held at most; what its parent held before it does not count here."""
    with open(f"/proc/{process.pid}/status", encoding="ascii") as status:
        for line in status:
            if line.startswith("VmHWM:"):
                return int(line.split()[1]) / 1024
    sys.exit("the system does not tell how much memory a process holds")


def run(driver, folder, *commands):
    """Seconds and peak memory in MB of one run, which must answer every command with ok."""
    begun = time.perf_counter()
    with subprocess.Popen([driver, folder], stdin=subprocess.PIPE, stdout=subprocess.PIPE, text=True) as process:
        for command in commands:
            process.stdin.write(command + "\n")
        process.stdin.flush()
        answers = [process.stdout.readline().strip() for _ in commands]
        seconds = time.perf_counter() - begun
        megabytes = peak(process)
    if process.returncode != 0 or any(answer != "ok" for answer in answers):
        sys.exit(f"the driver ended with {process.returncode} and answered {answers}")
    return seconds, megabytes


def main():
    driver, program = sys.argv[1:3]
    most_milliseconds, most_megabytes = map(float, sys.argv[3:5])
    with tempfile.TemporaryDirectory() as scratch:
        folder = os.path.join(scratch, "Gatewise")
        shutil.copytree(program, folder)
        started = [run(driver, folder, "start") for _ in range(RUNS)]
        ended = [run(driver, folder, "seed 1") for _ in range(RUNS)]
        # A whole turn over the board and onto the pass takes its memory too.
        used = run(driver, folder, "start", "click MainForm.statusboard_LABEL", "click MainForm.switchButton(1)",
                   "advance 120000", "click MainForm.switchButton(1)", "dblclick MainForm.city_LABEL(0)")
    milliseconds = 1000 * (min(seconds for seconds, _ in started) - min(seconds for seconds, _ in ended))
    megabytes = max(memory for _, memory in [*started, used])
    print(f"start-up {milliseconds:.1f} ms of {most_milliseconds:g}, peak memory {megabytes:.1f} MB of {most_megabytes:g}")
    sys.exit(milliseconds > most_milliseconds or megabytes > most_megabytes)


if __name__ == "__main__":
    main()
