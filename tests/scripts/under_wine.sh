#!/usr/bin/env bash
# under_wine.sh PROGRAM_FOLDER: the driver of the preset `windows` in the place of the computer's own.
set -euo pipefail
here=$(cd "$(dirname "$0")/../.." && pwd)
export WINEDEBUG=-all
wine "$here/build/windows/bin/gtdrive.exe" "$@" | tr -d '\r'
