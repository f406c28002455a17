#!/usr/bin/env python3
"""Measures every recording of the program folder and reports each one that is not fit to be played or joined.

    check_recordings.py --wavs DIR --tables DIR [--sample DIR]

DIR of --wavs is the finished folder, DIR of --tables that of the texts; with --sample, every airport and airline of
the sample tables has to be spoken too. Nothing of the renderer is used here: what it measures, this measures anew.
"""

import argparse
import csv
import math
import struct
import sys
from pathlib import Path

from check_hall import check_hall

RATE = 8000
HEADER_SIZE = 44
VOICES = ("Male", "Female")
SILENCE = 128

PHRASES = [f"ann{number}" for number in range(1, 12)] + ["welcome"]
NUMBERS = [str(number) for number in range(100)] + [f"0{number}" for number in range(10)]

# Spoken time in seconds, silence at the ends not counted.
SPOKEN_BOUNDS = {"phrases": (0.10, 4.0), "numbers": (0.12, 1.1), "cities": (0.25, 1.8), "airlines": (0.7, 2.4)}
# Silence in ms that may stand before and behind the speech beyond what the tables ask for. What is not above QUIET
# counts as silence here, a weak "f" or "th" at a word's edge too.
SLACK_BEFORE = 110
SLACK_AFTER = 260
QUIET = 2

LOUDNESS_SPREAD_DB = 1.0
LOUDNESS_BOUNDS_DB = (-18.0, -14.0)
PEAK = 126


class Report:
    """Collects faults; fault(name, text) is one line of the outcome."""

    def __init__(self):
        self.faults = []

    def fault(self, name, text):
        self.faults.append(f"{name}: {text}")


def canonical_header(size):
    """The only header a recording may have in front of size bytes of samples."""
    return (b"RIFF" + struct.pack("<I", size + 36) + b"WAVEfmt " + struct.pack("<IHHIIHH", 16, 1, 1, RATE, RATE, 1, 8)
            + b"data" + struct.pack("<I", size))


def read_samples(path, name, report):
    """The bytes behind the header, or None when they cannot be measured."""
    if not path.is_file():
        report.fault(name, "is missing")
        return None
    data = path.read_bytes()
    size = len(data) - HEADER_SIZE
    if size <= 0:
        report.fault(name, f"is only {len(data)} bytes long")
        return None
    expected = canonical_header(size)
    wrong = [at for at in range(HEADER_SIZE) if data[at] != expected[at]]
    if wrong:
        report.fault(name, f"header differs at offset {wrong[0]}")
    if size % 2:
        report.fault(name, f"has an odd number of samples, {size}")
    return data[HEADER_SIZE:]


def decibels(power):
    return 10.0 * math.log10(max(power, 1e-12))


def power_of(samples):
    """Mean square, full scale 1."""
    return sum((sample - SILENCE) ** 2 for sample in samples) / len(samples) / (127.0 * 127.0)


def speech_level(samples):
    """Level in dB of the 20 ms windows, one every 5 ms, that lie within 20 dB of the loudest."""
    padded = bytes([SILENCE]) * 160 + samples + bytes([SILENCE]) * 160
    powers = [power_of(padded[at : at + 160]) for at in range(0, len(padded) - 160, 40)]
    active = [power for power in powers if power >= max(powers) / 100.0]
    return decibels(sum(active) / len(active))


def check_peak(samples, name, report):
    loudest = max(abs(sample - SILENCE) for sample in samples)
    if loudest > PEAK:
        report.fault(name, f"clips: a sample lies {loudest} from silence")
    if loudest < 8:
        report.fault(name, "is silent")


def check_piece(samples, kind, lead, pause, name, report):
    """One spoken piece: silence at its ends, spoken time. lead and pause in ms."""
    check_peak(samples, name, report)
    loud = [at for at, sample in enumerate(samples) if abs(sample - SILENCE) > QUIET]
    if not loud:
        return
    before = loud[0] * 1000 / RATE
    after = (len(samples) - 1 - loud[-1]) * 1000 / RATE
    spoken = (loud[-1] + 1 - loud[0]) / RATE
    if not lead <= before <= lead + SLACK_BEFORE:
        report.fault(name, f"speech starts after {before:.0f} ms, wanted {lead} to {lead + SLACK_BEFORE}")
    if not pause <= after <= pause + SLACK_AFTER:
        report.fault(name, f"{after:.0f} ms of silence at the end, wanted {pause} to {pause + SLACK_AFTER}")
    shortest, longest = SPOKEN_BOUNDS[kind]
    if not shortest <= spoken <= longest:
        report.fault(name, f"speaks {spoken:.2f} s, wanted {shortest} to {longest}")
    for end in (samples[0], samples[-1]):
        if abs(end - SILENCE) > 3:
            report.fault(name, f"begins or ends {abs(end - SILENCE)} from silence: the join would click")


def read_rows(path):
    with open(path, newline="", encoding="utf-8") as source:
        return list(csv.DictReader(source))


def expected_pieces(tables, report):
    """Every spoken piece: list of (name below the voice folder, kind, lead, pause)."""
    pieces = []
    for kind, below in (("phrases", ""), ("numbers", ""), ("cities", "Cities/"), ("airlines", "Airlines/")):
        rows = read_rows(tables / f"{kind}.csv")
        for row in rows:
            pieces.append((below + row["key"], kind, int(row.get("lead") or 0), int(row.get("pause") or 0)))
        wanted = {"phrases": PHRASES, "numbers": NUMBERS}.get(kind, [])
        for key in set(wanted) - {row["key"] for row in rows}:
            report.fault(f"{kind}.csv", f"has no row for {key}")
    return pieces


def check_voices(wavs, tables, report):
    """All pieces of both voices, and that they are equally loud. Returns (count, softest, loudest)."""
    levels = {}
    for voice in VOICES:
        for below, kind, lead, pause in expected_pieces(tables, report):
            name = f"{voice}/{below}.wav"
            samples = read_samples(wavs / name, name, report)
            if samples is not None:
                check_piece(samples, kind, lead, pause, name, report)
                levels[name] = speech_level(samples)
    if not levels:
        report.fault("voices", "no recording could be measured")
        return 0, 0.0, 0.0
    middle = sorted(levels.values())[len(levels) // 2]
    if not LOUDNESS_BOUNDS_DB[0] <= middle <= LOUDNESS_BOUNDS_DB[1]:
        report.fault("voices", f"speak at {middle:.1f} dB, wanted {LOUDNESS_BOUNDS_DB}")
    for name, found in levels.items():
        if abs(found - middle) > LOUDNESS_SPREAD_DB / 2.0:
            report.fault(name, f"is at {found:.1f} dB, the others at {middle:.1f}")
    return len(levels), min(levels.values()), max(levels.values())


def check_short_sound(wavs, name, bounds, report):
    samples = read_samples(wavs / name, name, report)
    if samples is None:
        return
    check_peak(samples, name, report)
    seconds = len(samples) / RATE
    if not bounds[0] <= seconds <= bounds[1]:
        report.fault(name, f"lasts {seconds:.2f} s, wanted {bounds[0]} to {bounds[1]}")
    for end in (samples[0], samples[-1]):
        if abs(end - SILENCE) > 3:
            report.fault(name, "does not start and end in silence")


def check_sample(wavs, sample, report):
    """Every airport and airline of the sample set is spoken. Returns how many there are."""
    count = 0
    for table, column, below in (("airports.csv", "iata", "Cities"), ("airlines.csv", "code", "Airlines")):
        if not (sample / table).is_file():
            continue
        for row in read_rows(sample / table):
            row = {name.strip().lower(): value for name, value in row.items() if name}
            if column not in row:
                report.fault(table, f"has no column '{column}'")
                break
            count += 1
            for voice in VOICES:
                name = f"{voice}/{below}/{row[column].strip().lower()}.wav"
                if not (wavs / name).is_file():
                    report.fault(name, f"is missing, but stands in the sample's {table}")
    return count


def main():
    parser = argparse.ArgumentParser(description="Measures every recording.")
    parser.add_argument("--wavs", type=Path, required=True)
    parser.add_argument("--tables", type=Path, required=True)
    parser.add_argument("--sample", type=Path)
    options = parser.parse_args()
    report = Report()
    count, softest, loudest = check_voices(options.wavs, options.tables, report)
    check_short_sound(options.wavs, "Announcements.wav", (0.6, 2.5), report)
    check_short_sound(options.wavs, "click.wav", (0.02, 0.15), report)
    seconds, level, alike = check_hall(options.wavs / "Ambience.wav", report)
    spoken = check_sample(options.wavs, options.sample, report) if options.sample else 0
    print(f"{count} spoken recordings at {softest:.2f} to {loudest:.2f} dB; ambience {seconds:.1f} s at {level:.1f} dB, "
          f"ears alike {alike:.2f}; {spoken} airports and airlines of the sample set")
    for fault in report.faults:
        print(fault, file=sys.stderr)
    return 1 if report.faults else 0


if __name__ == "__main__":
    sys.exit(main())
