"""Measures the loop of the hall: two minutes, 44.1 kHz, 16 bit, stereo, without a seam, and as wide as a hall."""

import array
import math
import struct
import sys

RATE = 44100
HEADER_SIZE = 44
FULL = 32767.0

SECONDS = 120.0
BOUNDS_DB = (-36.0, -26.0)
SEAM_DB = 2.5
# A hall is wide: what one ear hears must not be what the other hears.
MOST_ALIKE = 0.8
QUIETEST_SECOND_DB = -42.0


def canonical_header(size):
    return (b"RIFF" + struct.pack("<I", size + 36) + b"WAVEfmt " + struct.pack("<IHHIIHH", 16, 1, 2, RATE, 4 * RATE, 4, 16)
            + b"data" + struct.pack("<I", size))


def ears(data):
    """Samples of the left and the right ear."""
    samples = array.array("h", data[: len(data) // 4 * 4])
    if sys.byteorder == "big":
        samples.byteswap()
    return samples[0::2], samples[1::2]


def dot(left, right):
    return sum(map(int.__mul__, left, right)) / len(left) / (FULL * FULL)


def decibels(power):
    return 10.0 * math.log10(max(power, 1e-12))


def check_ear(side, samples, name, report):
    """Peak, centre and the seam of one ear."""
    if max(samples) >= FULL or min(samples) <= -FULL:
        report.fault(name, f"clips on the {side}")
    offset = sum(samples) / len(samples)
    if abs(offset) > 60:
        report.fault(name, f"is off centre by {offset:.0f} on the {side}")
    last, first = samples[-5 * RATE :], samples[: 5 * RATE]
    jumps = sorted(abs(a - b) for part in (last, first) for a, b in zip(part, part[1:]))
    usual, seam = jumps[len(jumps) * 99 // 100], abs(samples[-1] - samples[0])
    if seam > usual:
        report.fault(name, f"jumps by {seam} at the seam on the {side}, elsewhere 99 of 100 jumps are at most {usual}")
    begin, end = decibels(dot(first[:RATE], first[:RATE])), decibels(dot(last[-RATE:], last[-RATE:]))
    if abs(begin - end) > SEAM_DB:
        report.fault(name, f"first second is at {begin:.1f} dB on the {side}, last at {end:.1f}")


def check_hall(path, report):
    """Returns (seconds, level in dB, likeness of the ears from -1 to 1)."""
    name = path.name
    if not path.is_file():
        report.fault(name, "is missing")
        return 0.0, 0.0, 0.0
    data = path.read_bytes()
    size = len(data) - HEADER_SIZE
    if data[:HEADER_SIZE] != canonical_header(max(size, 0)):
        report.fault(name, "has another header than 16 bit stereo at 44.1 kHz")
    left, right = ears(data[HEADER_SIZE:])
    if len(left) < 12 * RATE:
        report.fault(name, "is too short to be measured")
        return 0.0, 0.0, 0.0
    seconds = len(left) / RATE
    if seconds < SECONDS:
        report.fault(name, f"lasts {seconds:.1f} s, wanted {SECONDS} at least")
    check_ear("left", left, name, report)
    check_ear("right", right, name, report)
    powers = dot(left, left), dot(right, right)
    level = decibels(sum(powers) / 2)
    if not BOUNDS_DB[0] <= level <= BOUNDS_DB[1]:
        report.fault(name, f"is at {level:.1f} dB, wanted {BOUNDS_DB}")
    alike = dot(left, right) / math.sqrt(max(powers[0] * powers[1], 1e-24))
    if alike > MOST_ALIKE:
        report.fault(name, f"sounds alike in both ears ({alike:.2f}), wanted at most {MOST_ALIKE}")
    for second in range(0, int(seconds), 5):
        part = left[second * RATE : (second + 1) * RATE]
        if decibels(dot(part, part)) < QUIETEST_SECOND_DB:
            report.fault(name, f"falls silent at second {second}")
    return seconds, level, alike
