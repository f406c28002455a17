#!/usr/bin/env bash
# wine.sh: plays every transcript with the Windows driver under Wine; says which ones answer otherwise.
set -euo pipefail
cd "$(dirname "$0")/../.."
if ! command -v wine >/dev/null; then
  echo "Without Wine the Windows driver is built only."
  exit 0
fi
export WINEDEBUG=-all WINEPREFIX="$PWD/build/windows/wine"
mkdir -p "$WINEPREFIX" build/windows/scratch
wine wineboot --init >/dev/null 2>&1 || true
play() {
  local said
  if ! said=$(build/release/bin/scripts_runner tests/scripts/under_wine.sh build/release/tests/scripts/Gatewise \
    build/windows/scratch "$1" 2>&1); then
    printf '%s\n%s\n' "$1" "$said"
    return 1
  fi
}
export -f play
find tests/scripts -name '*.gts' -print0 | sort -z | xargs -0 -P "$(nproc)" -I{} bash -c 'play "$1"' play {}
echo "transcripts under Wine: $(find tests/scripts -name '*.gts' | wc -l)"
