"""Reads the includes of every room and fails on an arrow that does not run down, and on a cycle inside a room.

    arrows.py PROJECT       checks src/
    arrows.py --self-test   checks that a wrong arrow, a form out of place and a cycle are seen
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
    "unpack": {"import", "platform"},
    "sound": {"platform"},
    "sound_openal": {"sound", "platform"},
    "sound_directsound": {"sound", "platform"},
}
JOBS = {"board", "plan", "selection", "export", "programs", "simulator", "gt1", "import", "unpack", "logbook", "sound",
        "schedule", "platform"}
# The storeys of the program itself. Forms are seen from the pages upwards and nowhere else.
ROOMS["session"] = JOBS
ROOMS["work"] = ROOMS["session"] | {"session"}
ROOMS["pages"] = ROOMS["work"] | {"work", "forms"}
ROOMS["input"] = ROOMS["pages"] | {"pages"}
ROOMS["app"] = ROOMS["input"] | {"input"}
ROOMS["window"] = ROOMS["app"] | {"app", "sound_openal", "sound_directsound"}

INCLUDE = re.compile(r'^\s*#\s*include\s+"([^"/]+)/([^"]+)"')
TOOLKIT = re.compile(r'^\s*#\s*include\s+[<"](Q[A-Z]\w*|Qt\w*/|AL/)')


def sources(project):
    """(path, room, module) of each file: a module is a header and the source of its name."""
    for path in sorted((project / "src").rglob("*")):
        if path.suffix in (".h", ".cpp"):
            inside = path.relative_to(project / "src")
            yield path, inside.parts[0], str(inside.with_suffix("").relative_to(inside.parts[0]))


def cycles(arrows):
    """The groups of modules that reach each other, each as a sorted list."""
    reach = {}
    for start in arrows:
        seen, open_ends = set(), list(arrows[start])
        while open_ends:
            module = open_ends.pop()
            if module not in seen:
                seen.add(module)
                open_ends += arrows.get(module, ())
        reach[start] = seen
    groups = {tuple(sorted(m for m in reach[start] if start in reach.get(m, ())))
              for start in arrows if start in reach[start]}
    return sorted(list(group) for group in groups)


def faults(project):
    found = []
    inside = {}  # room -> module -> modules of the same room that it includes
    for path, room, module in sources(project):
        if room not in ROOMS:
            found.append(f"{path}: unknown room {room}")
            continue
        own = inside.setdefault(room, {}).setdefault(module, set())
        for number, line in enumerate(path.read_text(encoding="utf-8").splitlines(), 1):
            hit = INCLUDE.match(line)
            if hit and hit.group(1) != room and hit.group(1) not in ROOMS[room]:
                found.append(f"{path}:{number}: {room} may not look into {hit.group(1)}")
            if hit and hit.group(1) == room and hit.group(2) != module + ".h":
                own.add(hit.group(2).removesuffix(".h"))
            if TOOLKIT.match(line) and room not in ("window", "sound_openal"):
                found.append(f"{path}:{number}: a toolkit below the window")
    for room, arrows in sorted(inside.items()):
        found += [f"{room}: a cycle of modules: {', '.join(group)}" for group in cycles(arrows)]
    return found


def self_test():
    files = {
        "board/Up.cpp": '#include "pages/Screens.h"\n#include <QWidget>\n#include "schedule/Records.h"\n',
        "work/Form.cpp": '#include "forms/Control.h"\n',
        "pages/A.h": '#include "pages/Base.h"\n',
        "pages/A.cpp": '#include "pages/A.h"\n#include "pages/B.h"\n',
        "pages/B.cpp": '#include "pages/B.h"\n#include "pages/A.h"\n',
        "pages/Top.cpp": '#include "pages/A.h"\n#include "pages/Base.h"\n',
    }
    with tempfile.TemporaryDirectory() as folder:
        for name, text in files.items():
            path = pathlib.Path(folder) / "src" / name
            path.parent.mkdir(parents=True, exist_ok=True)
            path.write_text(text)
        found = faults(pathlib.Path(folder))
    if len(found) != 4 or found[-1] != "pages: a cycle of modules: A, B":
        sys.exit(f"expected four faults, found: {found}")


if __name__ == "__main__":
    if sys.argv[1:] == ["--self-test"]:
        self_test()
    else:
        wrong = faults(pathlib.Path(sys.argv[1]))
        sys.exit("\n".join(wrong) if wrong else 0)
