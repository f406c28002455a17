#!/usr/bin/env bash
# The program for Windows with its window, under Wine: the version, the tour with its pictures, every transcript through the
# real window, a printed plan, the board on a screen, starts and ends. Wants what `./package windows` leaves, and the preset release;
# without either, or without Wine, nothing is played.
set -euo pipefail
cd "$(dirname "$0")/../.."
tried=$PWD/build/package-windows/tried
[ -e "$tried/gatewise.exe" ] || { echo "Without ./package windows there is no window to play."; exit 0; }
command -v wine >/dev/null || { echo "Without Wine the window is built, not played."; exit 0; }
scratch=$PWD/build/windows/scratch-window
mkdir -p "$scratch"
export WINEPREFIX=${WINEPREFIX:-$PWD/build/windows/scratch/wine} WINEDEBUG=-all WINEDLLOVERRIDES="mscoree,mshtml="
wineserver -p30 2>/dev/null || true
[ -e "$WINEPREFIX/system.reg" ] || { mkdir -p "$WINEPREFIX"; wine wineboot --init >/dev/null 2>&1; }

version=$(sed -n 's/^project(.* VERSION \([0-9.]*\) .*/\1/p' CMakeLists.txt)
said=$(wine "$tried/gatewise.exe" --version 2>/dev/null | tr -d '\r')
[ "$said" = "Gatewise Terminal $version" ] || { echo "gatewise.exe --version says: $said" >&2; exit 1; }

# The pictures of the tour, here and there.
rm -rf "$scratch/tour"
wine "$tried/tour.exe" "Z:$scratch/tour" >"$scratch/tour.log" 2>/dev/null || { tail -20 "$scratch/tour.log" >&2; exit 1; }
[ -e build/release/tour/board.png ] || QT_QPA_PLATFORM=offscreen build/release/bin/tour build/release/tour >/dev/null
python3 -B tests/windows/pictures.py build/release/tour "$scratch/tour"

mapfile -t window < <(find tests/scripts -name '*.gts' | sort | while read -r script; do
  grep -q "^$(basename "$script" .gts) " tests/scripts/without-window.txt || echo "$script"
done)
python3 -B tests/windows/transcripts.py build/release/bin/scripts_runner build/release/tests/scripts/Gatewise \
  build/release/bin/gtwindow "$tried/gtwindow.exe" "$scratch" "${window[@]}"

# From the key to the sheet: what was handed to the printer stands in the pages.
rm -rf "$scratch/printed"
wine "$tried/check_window.exe" "Z:$scratch/printed" 2>"$scratch/printed.log" || { tail -20 "$scratch/printed.log" >&2; exit 1; }
python3 -B tests/windows/printed.py "$scratch/printed/Printout 1.pdf" "$scratch/printed/Printout 1.txt"

# Wine's programs share the screen of the first one: those before had none.
leave_screen() {
  wineserver -k || true
  wineserver -w
}

if command -v Xvfb >/dev/null; then
  leave_screen
  python3 -B tests/windows/starts.py "$tried" "$tried/check_services.exe" "$scratch/starts"
  leave_screen
  tools/package/first_board.py --picture "$scratch/board.png" wine "$tried/gatewise.exe" 2>/dev/null
fi
