"""Reads the includes of every room and fails on an arrow that does not run down, and on a cycle inside a room.

The rooms and what they may look into are those of their libraries, as src/*/CMakeLists.txt links them.

    arrows.py PROJECT       checks src/
    arrows.py --self-test   checks that a wrong arrow, a form out of place and a cycle are seen
"""

import pathlib
import re
import sys
import tempfile

INCLUDE = re.compile(r'^\s*#\s*include\s+"([^"/]+)/([^"]+)"')
TOOLKIT = re.compile(r'^\s*#\s*include\s+[<"](Q[A-Z]\w*|Qt\w*/|AL/)')
ROOM = re.compile(r'gatewise_room\((\w+)([^)]*)\)')

# Forms are seen from the pages upwards and nowhere else, whatever a list of links says.
SEES_FORMS = {"forms", "pages", "input", "app", "window"}
# The program's own main names the device that the machine has.
DEVICES = {"sound_openal", "sound_directsound"}


def rooms_of(project):
    """Room -> rooms that it may include from, itself aside: what its library links, and what that links in turn."""
    links = {}
    for path in sorted((project / "src").glob("*/CMakeLists.txt")):
        for name, words in ROOM.findall(path.read_text(encoding="utf-8")):
            named = re.search(r"\bLINKS\s+([a-z0-9_\s]+)", words)
            links[name] = set(named.group(1).split()) if named else set()
    rooms = {}
    for room in links:
        seen, open_ends = set(), list(links[room])
        while open_ends:
            below = open_ends.pop()
            if below not in seen:
                seen.add(below)
                open_ends += links.get(below, ())
        rooms[room] = seen
    if "window" in rooms:
        rooms["window"] |= DEVICES
    return rooms


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
    rooms = rooms_of(project)
    found = [f"src/{room}: a circle of rooms" for room in rooms if room in rooms[room]]
    found += [f"src/{room}: links the forms" for room in rooms if "forms" in rooms[room] and room not in SEES_FORMS]
    inside = {}  # room -> module -> modules of the same room that it includes
    for path, room, module in sources(project):
        if room not in rooms:
            found.append(f"{path}: a room without a library: {room}")
            continue
        own = inside.setdefault(room, {}).setdefault(module, set())
        for number, line in enumerate(path.read_text(encoding="utf-8").splitlines(), 1):
            hit = INCLUDE.match(line)
            if hit and hit.group(1) != room and hit.group(1) not in rooms[room]:
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
        "schedule/CMakeLists.txt": "gatewise_room(schedule)",
        "forms/CMakeLists.txt": "gatewise_room(forms)",
        "board/CMakeLists.txt": "gatewise_room(board LINKS schedule SOURCES ${more})",
        "work/CMakeLists.txt": "gatewise_room(work\n  LINKS board)",
        "pages/CMakeLists.txt": "gatewise_room(pages LINKS work forms)",
        "session/CMakeLists.txt": "gatewise_room(session LINKS forms)",
        "board/Up.cpp": '#include "pages/Screens.h"\n#include <QWidget>\n#include "schedule/Records.h"\n',
        "work/Form.cpp": '#include "forms/Control.h"\n#include "schedule/Records.h"\n',
        "none/None.cpp": "",
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
    if len(found) != 6 or found[0] != "src/session: links the forms" or found[-1] != "pages: a cycle of modules: A, B":
        sys.exit(f"expected six faults, found: {found}")


if __name__ == "__main__":
    if sys.argv[1:] == ["--self-test"]:
        self_test()
    else:
        wrong = faults(pathlib.Path(sys.argv[1]))
        sys.exit("\n".join(wrong) if wrong else 0)
