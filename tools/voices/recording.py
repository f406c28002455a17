"""Samples of one recording: trimming, levelling, and the wave file they end in.

Samples are floats, full scale -1 to 1, at 8,000 Hz. The file holds 8-bit unsigned samples, silence is 128.
"""

import array
import itertools
import math
import os
import struct
import sys

RATE = 8000
HEADER_SIZE = 44

# Loudness is the level of the windows that carry speech, in dB below full scale.
TARGET_LOUDNESS = -16.0
WINDOW = 160
HOP = 40
WINDOW_GATE_DB = 20.0

# The limiter leaves samples below the knee alone and bends the rest towards the ceiling.
LIMITER_KNEE = 0.55
LIMITER_CEILING = 0.96

# What lies this far below the piece's peak at its ends counts as silence. As much of it is kept as the fades need,
# so that a consonant keeps its attack; a piece cut out of running speech is faded over about two periods of the voice.
TRIM_DB = 30.0
FADE_IN = 80
FADE_OUT = 120


def from_raw(data):
    """Samples from raw signed 16-bit little-endian bytes."""
    values = array.array("h")
    values.frombytes(data[: len(data) // 2 * 2])
    if sys.byteorder == "big":
        values.byteswap()
    return [value / 32768.0 for value in values]


def trim(samples):
    """The samples without the silence at their ends, but for a short rest that keeps attack and decay."""
    peak = max(map(abs, samples), default=0.0)
    gate = peak * 10.0 ** (-TRIM_DB / 20.0)
    loud = [index for index, sample in enumerate(samples) if abs(sample) > gate]
    if not loud:
        return []
    return samples[max(0, loud[0] - FADE_IN) : loud[-1] + 1 + FADE_OUT]


def fade(samples):
    """Both ends run to zero, so that joined pieces do not click."""
    faded = list(samples)
    for length, ends in ((FADE_IN, range(FADE_IN)), (FADE_OUT, range(-1, -FADE_OUT - 1, -1))):
        for step, index in enumerate(ends):
            if step < len(faded):
                faded[index] *= 0.5 - 0.5 * math.cos(math.pi * step / length)
    return faded


def loudness(samples):
    """Level in dB of the windows within WINDOW_GATE_DB of the loudest, so that silence and pauses do not count."""
    energies = list(itertools.accumulate((sample * sample for sample in samples), initial=0.0))
    energies = [0.0] * WINDOW + energies + [energies[-1]] * WINDOW
    powers = [(energies[at + WINDOW] - energies[at]) / WINDOW for at in range(0, len(energies) - WINDOW, HOP)]
    gate = max(powers) * 10.0 ** (-WINDOW_GATE_DB / 10.0)
    active = [power for power in powers if power >= gate]
    return 10.0 * math.log10(max(sum(active) / len(active), 1e-12))


def limit(sample):
    size = abs(sample)
    if size <= LIMITER_KNEE:
        return sample
    room = LIMITER_CEILING - LIMITER_KNEE
    return math.copysign(LIMITER_KNEE + room * math.tanh((size - LIMITER_KNEE) / room), sample)


def level(samples):
    """The samples at the target loudness. The limiter takes some away, so the gain is found in a few rounds."""
    gain_db, levelled = TARGET_LOUDNESS - loudness(samples), samples
    for _ in range(4):
        gain = 10.0 ** (gain_db / 20.0)
        levelled = [limit(sample * gain) for sample in samples]
        missing = TARGET_LOUDNESS - loudness(levelled)
        if abs(missing) < 0.05:
            break
        gain_db += missing
    return levelled


def finish(samples, lead_ms, pause_ms):
    """Trimmed, levelled bytes with the asked-for silence around them; an even number, as chunks of a wave are."""
    piece = level(fade(trim(samples)))
    body = bytes(min(255, max(0, 128 + round(sample * 127.0))) for sample in piece)
    data = b"\x80" * (lead_ms * RATE // 1000) + body + b"\x80" * (pause_ms * RATE // 1000)
    return data + b"\x80" * (len(data) % 2)


def write(path, data):
    """Writes the wave file: canonical header, data, nothing else. Replaces the file in one step."""
    header = struct.pack("<4sI4s4sIHHIIHH4sI", b"RIFF", len(data) + 36, b"WAVE", b"fmt ", 16, 1, 1, RATE, RATE, 1, 8,
                         b"data", len(data))
    fresh = f"{path}.new"
    with open(fresh, "wb") as target:
        target.write(header + data)
    os.replace(fresh, path)
