"""The version stands in one place: what the build made of it says the same everywhere.

    version.py VERSION BUILD_FOLDER
"""

import pathlib
import subprocess
import sys

version, build = sys.argv[1], pathlib.Path(sys.argv[2])
wanted = {
    "org.gatewise.terminal.metainfo.xml": f'<release version="{version}" ',
    "man/gatewise.1": f'"Gatewise Terminal {version}"',
    "man/gtdrive.1": f'"Gatewise Terminal {version}"',
    "man/gt1.1": f'"Gatewise Terminal {version}"',
}
missing = [name for name, text in wanted.items() if text not in (build / name).read_text(encoding="utf-8")]
program = build / "Gatewise" / "gatewise"
if program.exists():
    said = subprocess.run([program, "--version"], stdout=subprocess.PIPE, check=True).stdout.decode()
    if said != f"Gatewise Terminal {version}\n":
        missing.append(f"{program.name} --version says {said!r}")
sys.exit(f"another version than {version}: {missing}" if missing else 0)
