"""The manifest for Flatpak fits the desktop's files: as much as can be said without its runtimes.

    flatpak.py PROJECT_FOLDER
"""

import json
import pathlib
import sys

KEYS = {"id", "runtime", "runtime-version", "sdk", "command", "finish-args", "modules"}
MODULE_KEYS = {"name", "buildsystem", "config-opts", "build-commands", "sources", "cleanup"}
BUILDS = {"cmake-ninja", "autotools", "simple"}


def complaints(project, manifest):
    if set(manifest) != KEYS:
        yield f"keys: {sorted(set(manifest) ^ KEYS)}"
    app = manifest["id"]
    linux = project / "packaging" / "linux"
    for file in (f"{app}.desktop", f"{app}.metainfo.xml.in"):
        if not (linux / file).exists():
            yield f"the id has no {file}"
    desktop = (linux / f"{app}.desktop").read_text(encoding="utf-8").splitlines()
    for line in (f"Exec={manifest['command']}", f"Icon={app}"):
        if line not in desktop:
            yield f"the desktop entry lacks {line}"
    yield from (f"no option: {word}" for word in manifest["finish-args"] if not word.startswith("--"))
    modules = manifest["modules"]
    if modules[-1]["name"] != "gatewise":
        yield "the program is not built last"
    for module in modules:
        name = module["name"]
        if not set(module) <= MODULE_KEYS or module["buildsystem"] not in BUILDS:
            yield f"{name}: an unknown key or way to build"
        if (module["buildsystem"] == "simple") != ("build-commands" in module):
            yield f"{name}: commands belong to the simple way alone"
        paths = [source["path"] for source in module["sources"]]
        wanted = ["../.."] if name == "gatewise" else [f"sources/{name}"]
        if paths != wanted:
            yield f"{name}: sources {paths}"
    options = (project / "CMakeLists.txt").read_text(encoding="utf-8")
    for option in modules[-1]["config-opts"]:
        word = option.removeprefix("-D").split("=")[0]
        if not word.startswith("CMAKE_") and f"option({word} " not in options:
            yield f"the build has no option {word}"


def main():
    project = pathlib.Path(sys.argv[1])
    manifest = json.loads((project / "packaging/flatpak/org.gatewise.terminal.json").read_text(encoding="utf-8"))
    found = list(complaints(project, manifest))
    sys.exit("\n".join(found) if found else 0)


main()
