"""The man page of gt1 names the options that the program understands, and the pages are clean for groff.

    man.py PROJECT BUILD_FOLDER
"""

import pathlib
import re
import shutil
import subprocess
import sys

project, build = pathlib.Path(sys.argv[1]), pathlib.Path(sys.argv[2])
understood = {word for source in (project / "tools" / "gt1").glob("*.cpp")
              for word in re.findall(r'word == "(--[a-z-]+)"|!= "(--[a-z-]+)"', source.read_text(encoding="utf-8"))
              for word in word if word}
page = (build / "man" / "gt1.1").read_text(encoding="utf-8").replace("\\-", "-")
named = set(re.findall(r"--[a-z-]+", page))
faults = [f"only in {where}: {sorted(words)}" for where, words in
          (("the program", understood - named), ("the page", named - understood)) if words]
if not understood:
    faults.append("the program understands no option")
if shutil.which("groff"):
    for name in ("gatewise.1", "gtdrive.1", "gt1.1"):
        said = subprocess.run(["groff", "-ww", "-man", "-z", "-Tutf8", build / "man" / name], capture_output=True, text=True)
        if said.returncode or said.stderr:
            faults.append(said.stderr)
sys.exit("\n".join(faults) or 0)
