"""./run starts the program on what the toolkit can draw on, and says what is missing where that is nothing.

    desk.py PROJECT
"""

import pathlib
import subprocess
import sys
import tempfile

PROJECT = pathlib.Path(sys.argv[1])

X, WAYLAND, BOTH = {"DISPLAY": ":0"}, {"WAYLAND_DISPLAY": "wayland-0"}, {"DISPLAY": ":0", "WAYLAND_DISPLAY": "wayland-0"}
XCB, GENERIC, EGL, OFF = "libqxcb.so", "libqwayland-generic.so", "libqwayland-egl.so", "libqoffscreen.so"

# The desk, the plug-ins that are there: the platform, or a word of what is said instead.
CASES = [
    (X, [XCB, OFF], "xcb", ""),
    (X, [OFF], "", "libqt6gui6"),
    (X, [GENERIC], "", "libqt6gui6"),
    (WAYLAND, [XCB, GENERIC, EGL], "wayland", ""),
    (WAYLAND, [EGL], "wayland", ""),
    (WAYLAND, [XCB, OFF], "", "qt6-wayland"),
    (WAYLAND, [], "", "qt6-wayland"),
    (BOTH, [XCB, GENERIC], "wayland", ""),
    (BOTH, [XCB, OFF], "xcb", ""),
    (BOTH, [OFF], "", "qt6-wayland"),
    ({}, [XCB, GENERIC, OFF], "", "no display"),
    ({"WAYLAND_DISPLAY": "", "DISPLAY": ""}, [XCB, GENERIC], "", "no display"),
]


def ask(desk, plugins):
    with tempfile.TemporaryDirectory() as folder:
        platforms = pathlib.Path(folder, "platforms")
        platforms.mkdir()
        for name in plugins:
            (platforms / name).touch()
        # As ./run does it: a failure ends nothing.
        words = 'set -euo pipefail; . tools/setup/desk.sh; if on=$(desk_platform "$1"); then echo "$on"; fi; echo end'
        return subprocess.run(["bash", "-c", words, "desk", folder], cwd=PROJECT, env={"PATH": "/usr/bin:/bin", **desk},
                              capture_output=True, text=True)


faults = []
for desk, plugins, platform, said in CASES:
    done = ask(desk, plugins)
    wanted = f"{platform}\nend\n" if platform else "end\n"
    if done.returncode or done.stdout != wanted or bool(done.stderr) != bool(said) or said not in done.stderr:
        faults.append(f"{desk} with {plugins}: {done}")
sys.exit("\n".join(faults) or 0)
