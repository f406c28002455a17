#!/usr/bin/env bash
# Plays every transcript with the driver for Windows under Wine, in a plain folder, in one whose name no code page holds
# and in one that is deeper than most programs can go; then the sound device and the
# services of the system. Takes a minute on two cores.
# Wants the presets release and windows built. Without Wine, or where it does not start, nothing is played.
set -euo pipefail
cd "$(dirname "$0")/../.."
if ! command -v wine >/dev/null; then
  echo "Without Wine the core for Windows is built, not played."
  exit 0
fi
scratch=$PWD/build/windows/scratch
mkdir -p "$scratch"
export WINEPREFIX=${WINEPREFIX:-$scratch/wine} WINEDEBUG=-all WINEDLLOVERRIDES="mscoree,mshtml="
wineserver -p30 2>/dev/null || true # one for all; it ends half a minute after the last program
[ -e "$WINEPREFIX/system.reg" ] || wine wineboot --init >/dev/null 2>&1 || true
if ! wine cmd /c exit 2>/dev/null; then
  echo "Wine does not start on this computer: the core for Windows is built, not played."
  exit 0
fi

play() { # scratch folder, transcripts
  python3 -B tests/windows/transcripts.py build/release/bin/scripts_runner build/release/tests/scripts/Gatewise \
    build/release/bin/gtdrive build/windows/bin/gtdrive.exe "$@"
}

mapfile -t all < <(find tests/scripts -name '*.gts' | sort)
# The driver's words cannot say a folder that is not of the program's page: those that name none.
mapfile -t anywhere < <(grep -L '\$APP' "${all[@]}" | awk 'NR % 6 == 1')
play "$scratch" "${all[@]}"
play "$scratch/Łódź 東京" "${anywhere[@]}"
deep=$(printf 'deeper-and-%.0s' {1..15})
play "$scratch/$deep/$deep" "${anywhere[@]}"
rm -rf "$scratch/Łódź 東京" "${scratch:?}/$deep"

# The sound device without a sound card, then with one that writes down what it gets.
check_sound() { # where its head says that sound goes, words of the check
  local card=$scratch/card.conf
  printf '%s\n' "$1" >"$card"
  shift
  ALSA_CONFIG_PATH=$card PULSE_SERVER=unix:/nowhere wine build/windows/bin/check_directsound.exe "Z:$scratch/sound" "$@" 2>/dev/null
}
writes_down() { printf 'pcm.nothing { type null }\npcm.!default { type file slave.pcm nothing format wav file "%s" }' "$1"; }
is_heard() {
  rm -f "$scratch"/heard-*.wav
  check_sound "$(writes_down "$scratch/heard-tones.wav")" "Z:$scratch/heard-tones.wav" &&
    check_sound "$(writes_down "$scratch/heard-click.wav")" "Z:$scratch/heard-click.wav" click &&
    python3 -B tests/windows/heard.py "$scratch"/heard-{tones,click}.wav "$scratch/sound/click.wav"
}
rm -rf "${scratch:?}/sound"
check_sound ""
# A busy computer mixes too late now and then: one of three tries is whole.
is_heard || is_heard || is_heard
rm -rf "${scratch:?}/sound" # its folders are deep
rm -rf "${scratch:?}/services" # its folders are deeper than the library takes away
screen=()
if command -v Xvfb >/dev/null; then screen=(tests/windows/on_screen.py); fi
"${screen[@]}" wine build/windows/bin/check_services.exe "Z:$scratch/services" 2>/dev/null
