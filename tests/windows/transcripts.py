#!/usr/bin/env python3
"""Plays transcripts in a driver that was built for Windows, under Wine, and in this machine's own.

transcripts.py RUNNER PROGRAM_FOLDER OWN_DRIVER WINDOWS_DRIVER SCRATCH_FOLDER TRANSCRIPT...

Both must answer what the transcript says, and leave the same files, byte for byte but for the letter of the drive, the
slashes of paths and the settings that keep a path's first two characters. Those that without-wine.txt names are left out.
"""

import concurrent.futures
import os
import pathlib
import re
import shutil
import subprocess
import sys

HERE = pathlib.Path(__file__).resolve().parent


def left_out():
    lines = (HERE / "without-wine.txt").read_text(encoding="utf-8").splitlines()
    return {line.split()[0] for line in lines if line and not line.startswith("#")}


def same_paths(content, folder):
    """The content with the folder, however it is written, as one word, and what follows it in forward slashes."""
    text = content.replace(b"\\", b"/")
    text = text.replace(b"Z:" + folder, b"$APP").replace(folder, b"$APP")
    return re.sub(rb"Drive=(Z:|/.)(?=\r?\n)", b"Drive=$A", text)


def files_of(folder):
    return {path.relative_to(folder): path for path in folder.rglob("*") if path.is_file()}


def differences(own, windows, folder):
    """What the program left differently in the two folders."""
    mine, theirs = files_of(own), files_of(windows)
    out = [f"    only {where}: {name}" for where, names in (("here", mine.keys() - theirs.keys()),
                                                            ("under Wine", theirs.keys() - mine.keys()))
           for name in sorted(names)]
    for name in sorted(mine.keys() & theirs.keys()):
        one, other = mine[name].read_bytes(), theirs[name].read_bytes()
        if one != other and same_paths(one, folder) != same_paths(other, folder):
            out.append(f"    not the same: {name}")
    return out


def play(runner, program, drivers, scratch, script):
    """What went wrong, as lines; files that were the program's own and are the same are not kept."""
    place = scratch / script.stem
    kept = scratch / (script.stem + ".own")
    shutil.rmtree(kept, ignore_errors=True)
    for options, driver in zip((["--keep"], ["--keep", "--wine"]), drivers):
        ran = subprocess.run([runner, *options, driver, program, scratch, script], stdout=subprocess.PIPE,
                             stderr=subprocess.DEVNULL, check=False)
        if ran.returncode != 0:
            return [f"{script}: {driver}", ran.stdout.decode("utf-8", "replace")]
        if not kept.exists():
            place.rename(kept)
    found = differences(kept / "Gatewise", place / "Gatewise", os.fsencode(place / "Gatewise"))
    if found:
        return [f"{script}: other files", *found]
    shutil.rmtree(kept)
    shutil.rmtree(place)
    return []


def main():
    runner, program, own, windows, scratch = (pathlib.Path(word).resolve() for word in sys.argv[1:6])
    if shutil.which("wine") is None:
        print("Without Wine nothing is played here.")
        return 0
    scripts = [path for path in map(pathlib.Path, sys.argv[6:]) if path.stem not in left_out()]
    scratch.mkdir(parents=True, exist_ok=True)
    os.environ.setdefault("WINEPREFIX", str(scratch / "wine"))
    os.environ.update(WINEDEBUG="-all", WINEDLLOVERRIDES="mscoree,mshtml=")
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as several:
        results = list(several.map(lambda script: play(runner, program, (own, windows), scratch, script), scripts))
    failed = [result for result in results if result]
    for lines in failed:
        print(*lines, sep="\n")
    print(f"{len(scripts) - len(failed)} of {len(scripts)} transcripts pass under Wine with the same files")
    return 1 if failed or not scripts else 0


if __name__ == "__main__":
    sys.exit(main())
