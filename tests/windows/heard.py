#!/usr/bin/env python3
"""heard.py TONES.wav CLICK.wav ORIGINAL.wav: what a sound card got of the tones that check_directsound plays.

Every tone has a pitch of its own and half of the full scale; by that it is found, whenever it was played. A volume of -2000
is a tenth, a pan takes from one side alone, a rate raises the pitch, a duplicate has its own volume, a loop goes on until
it is stopped. The sound of the keys comes as it stands in its file.
"""

import array
import math
import sys
import wave

WINDOW = 2400  # frames: a twentieth of a second, so that every pitch turns a whole number of times in it
LONG = 0.333   # seconds that a tone lasts

# Pitch in Hz: what is left of it on either side.
TONES = {600: (0.5, 0.5), 800: (0.05, 0.05), 1000: (0.0, 0.5), 1200: (0.5, 0.158), 1400: (0.5, 0.5),
         1600: (0.158, 0.158), 1800: (0.5, 0.5), 2000: (0.5, 0.5)}
LOOP, AFTER_LOOP = 1800, 2000
NEAR = 0.1     # of what is expected
SILENT = 0.002 # of the full scale


def windows_of(path):
    """Pieces of the recording, each as its two sides; those of pure silence are left out.

    The samples are floats, whatever the recording's head says of them."""
    with wave.open(path) as file:
        if (file.getframerate(), file.getnchannels(), file.getsampwidth()) != (48000, 2, 4):
            sys.exit(f"{path} is {file.getparams()}")
        samples = array.array("f", file.readframes(file.getnframes()))
    pieces = (samples[at : at + 2 * WINDOW] for at in range(0, len(samples) - 2 * WINDOW, 2 * WINDOW))
    return [(piece[0::2], piece[1::2]) for piece in pieces if any(piece)]


def weights(pitch):
    """Cosine and sine of the pitch below a bell, which keeps other pitches out."""
    bell = [(1 - math.cos(2 * math.pi * i / WINDOW)) * 2 / WINDOW for i in range(WINDOW)]
    turn = [2 * math.pi * pitch * i / 48000 for i in range(WINDOW)]
    return [b * math.cos(t) for b, t in zip(bell, turn)], [b * math.sin(t) for b, t in zip(bell, turn)]


def level(side, wave_of_pitch):
    return math.hypot(*(sum(map(float.__mul__, part, side)) for part in wave_of_pitch))


def levels(pieces, tones):
    """For each pitch its level on both sides in every piece."""
    return {pitch: [tuple(level(side, pair) for side in piece) for piece in pieces]
            for pitch, pair in ((pitch, weights(pitch)) for pitch in tones)}


def complaints(found, tones):
    for pitch, wanted in tones.items():
        loudest = max(found[pitch], key=max, default=(0, 0))
        if any(abs(is_ - must) > max(NEAR * must, SILENT) for is_, must in zip(loudest, wanted)):
            yield f"{pitch} Hz: {loudest[0]:.4f} and {loudest[1]:.4f}, not {wanted}"


def seconds(pieces):
    """How long a tone is heard at least half as loud as ever."""
    loudest = max(max(piece) for piece in pieces)
    return sum(max(piece) > loudest / 2 for piece in pieces) * WINDOW / 48000


def complaints_of_loop(found):
    if seconds(found[LOOP]) < 2 * LONG:
        yield f"the loop is heard for {seconds(found[LOOP]):.2f} s"
    if any(max(old) > SILENT and max(new) > 0.4 for old, new in zip(found[LOOP], found[AFTER_LOOP])):
        yield "the loop goes on beside what follows"


def sounds_of(path):
    """Rate and samples, but for those of silence: a busy machine puts some between."""
    with wave.open(path) as file:
        return file.getframerate(), [one for one in array.array("h", file.readframes(file.getnframes())) if one]


def complaints_of_click(heard, original):
    """The program ends when it has been heard for as long as it lasts: on a busy machine a little of it is left."""
    (rate, sounds), (wanted_rate, wanted) = sounds_of(heard), sounds_of(original)
    if rate != wanted_rate or len(sounds) < len(wanted) / 10 or sounds != wanted[: len(sounds)]:
        yield "the sound of the keys is another than in its file"


def main():
    tones, click, original = sys.argv[1:4]
    found = levels(windows_of(tones), TONES)
    wrong = [*complaints(found, TONES), *complaints_of_loop(found), *complaints_of_click(click, original)]
    print(*wrong, sep="\n", end="\n" if wrong else "")
    print(f"{len(TONES)} tones and the sound of the keys were listened to")
    sys.exit(1 if wrong else 0)


if __name__ == "__main__":
    main()
