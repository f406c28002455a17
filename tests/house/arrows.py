"""Reads the includes of every room and fails on an arrow that does not run down.

    arrows.py PROJECT       checks src/
    arrows.py --self-test   checks that a wrong arrow is seen
"""

import pathlib
import re
import sys
import tempfile

# Room -> rooms that it may include from, itself aside.
ROOMS = {
    "platform": set(),
    "forms": {"platform"},
    "schedule": {"platform"},
    "board": {"schedule", "platform"},
    "plan": {"schedule", "platform"},
    "selection": {"plan", "schedule", "platform"},
    "export": {"plan", "schedule", "platform"},
    "programs": {"plan", "schedule", "platform"},
    "simulator": {"plan", "schedule", "platform"},
    "gt1": {"plan", "schedule", "platform"},
    "import": {"gt1", "plan", "schedule", "platform"},
    "logbook": {"platform"},
    "sound": {"platform"},
    "sound_openal": {"sound", "platform"},
    "sound_directsound": {"sound", "platform"},
}
JOBS = {"board", "plan", "selection", "export", "programs", "simulator", "logbook", "sound", "schedule", "platform"}
ROOMS["state"] = JOBS | {"forms"}
ROOMS["screens"] = ROOMS["state"] | {"state"}
ROOMS["app"] = ROOMS["screens"] | {"screens"}
ROOMS["window"] = ROOMS["app"] | {"app", "sound_openal", "sound_directsound"}

INCLUDE = re.compile(r'^\s*#\s*include\s+"([^"/]+)/')
TOOLKIT = re.compile(r'^\s*#\s*include\s+[<"](Q[A-Z]\w*|Qt\w*/|AL/)')


def faults(project):
    found = []
    for path in sorted((project / "src").rglob("*")):
        if path.suffix not in (".h", ".cpp"):
            continue
        room = path.relative_to(project / "src").parts[0]
        if room not in ROOMS:
            found.append(f"{path}: unknown room {room}")
            continue
        for number, line in enumerate(path.read_text(encoding="utf-8").splitlines(), 1):
            hit = INCLUDE.match(line)
            if hit and hit.group(1) != room and hit.group(1) not in ROOMS[room]:
                found.append(f"{path}:{number}: {room} may not look into {hit.group(1)}")
            if TOOLKIT.match(line) and room not in ("window", "sound_openal"):
                found.append(f"{path}:{number}: a toolkit below the window")
    return found


def self_test():
    with tempfile.TemporaryDirectory() as folder:
        room = pathlib.Path(folder) / "src" / "board"
        room.mkdir(parents=True)
        (room / "Up.cpp").write_text('#include "screens/Screens.h"\n#include <QWidget>\n#include "schedule/Records.h"\n')
        found = faults(pathlib.Path(folder))
    if len(found) != 2:
        sys.exit(f"expected two faults, found: {found}")


if __name__ == "__main__":
    if sys.argv[1:] == ["--self-test"]:
        self_test()
    else:
        wrong = faults(pathlib.Path(sys.argv[1]))
        sys.exit("\n".join(wrong) if wrong else 0)
