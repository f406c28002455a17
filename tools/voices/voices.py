#!/usr/bin/env python3
"""Renders the recordings of the public address system from the tables in assets/voices.

    voices.py --tables DIR --wavs DIR --state FILE --synth PROGRAM [--jobs N]

Every table row becomes one recording in each voice. The announcement joiner copies the bytes from offset 44 of
each recording, so a recording is a bare 44-byte header with 8-bit mono samples at 8,000 Hz behind it and nothing
after them. The program PROGRAM makes the sounds that are not speech.

FILE remembers what each recording was made from: only recordings whose source changed, or which are missing or
empty, are made again, and recordings whose row is gone are deleted. The program leaves an empty file where it
looked in vain for a recording, hence "empty".
"""

import argparse
import csv
import hashlib
import json
import os
import re
import shutil
import subprocess
import sys
import tempfile
from concurrent.futures import ProcessPoolExecutor
from pathlib import Path

import recording

VOICES = {"Male": "rms", "Female": "slt"}

# An announcer speaks a little slower than flite.
PACE = "duration_stretch=1.1"

# Table, folder below the voice's, silence in ms behind each piece where the row names none.
TABLES = (
    ("phrases.csv", "", 0),
    ("numbers.csv", "", 25),
    ("cities.csv", "Cities", 90),
    ("airlines.csv", "Airlines", 20),
)

SYNTHESISED = ("Announcements.wav", "click.wav", "Ambience.wav")

# A voice in a large hall: rumble gone, quiet syllables raised, so that a sentence carries over the ambience.
HALL_EFFECTS = ["highpass", "140", "compand", "0.004,0.09", "6:-70,-70,-45,-30,-20,-14,0,-6", "0", "-30", "0.004"]


class VoicesError(Exception):
    """A fault in the tables or in the tools; its text is for the developer at the console."""


def run(command, **kwargs):
    result = subprocess.run(command, stdout=subprocess.PIPE, stderr=subprocess.PIPE, check=False, **kwargs)
    if result.returncode != 0:
        message = result.stderr.decode(errors="replace").strip()
        raise VoicesError(f"{Path(command[0]).name} failed: {message or result.returncode}")
    return result.stdout


def split_frame(text):
    """"flight [twelve] forty" -> ("flight ", "twelve", " forty"): the piece within, the context around it."""
    match = re.fullmatch(r"([^\[\]]*)\[([^\[\]]+)\]([^\[\]]*)", text)
    if not match:
        raise VoicesError(f"the text '{text}' needs its recorded part in one pair of brackets")
    return match.groups()


def read_tables(folder):
    """All recordings: list of dicts with name (below the voice folder, no extension), text, lead, pause (ms)."""
    rows = []
    for table, below, default_pause in TABLES:
        with open(folder / table, newline="", encoding="ascii") as source:
            for row in csv.DictReader(source):
                key = row["key"]
                if not re.fullmatch(r"[a-z0-9]+", key):
                    raise VoicesError(f"{table}: '{key}' cannot be the name of a recording")
                split_frame(row["text"])
                rows.append({
                    "name": f"{below}/{key}" if below else key,
                    "text": row["text"],
                    "lead": int(row.get("lead") or 0),
                    "pause": int(row.get("pause") or default_pause),
                })
    names = [row["name"] for row in rows]
    twice = sorted({name for name in names if names.count(name) > 1})
    if twice:
        raise VoicesError(f"more than one row for: {', '.join(twice)}")
    return rows


def write_lexicon(folder, target):
    with open(folder / "pronunciations.csv", newline="", encoding="ascii") as source:
        lines = [f"{row['word']} nil : {row['phones']}\n" for row in csv.DictReader(source)]
    target.write_text("".join(lines), encoding="ascii")


def phones_of(flite, text):
    spoken = run(flite + ["-ps", "-t", text, "none"]).decode().split() if text.strip(" .,:") else []
    return [phone for phone in spoken if phone != "pau"]


def speak(flite, text, target):
    """Speaks text into a wave file; returns the phones, without pauses, as (phone, start, end) in seconds."""
    phones, start = [], 0.0
    for entry in run(flite + ["-psdur", "-t", text, str(target)]).decode().split():
        phone, end = entry.rsplit(":", 1)
        if phone != "pau":
            phones.append((phone, start, float(end)))
        start = float(end)
    return phones


def cut_points(flite, text, target):
    """Speaks the whole text and finds where the bracketed part lies: (start, end) in seconds."""
    before, piece, after = split_frame(text)
    spoken = speak(flite, before + piece + after, target)
    counts = [len(phones_of(flite, part)) for part in (before, piece, after)]
    if sum(counts) != len(spoken):
        raise VoicesError(f"'{text}' is spoken differently as a whole and in parts: choose other words around it")
    if counts[1] == 0:
        raise VoicesError(f"'{text}' has nothing to speak in its brackets")
    first, last = counts[0], counts[0] + counts[1] - 1
    # A stop at a piece's outer edge releases after its label: leave the edges of the whole text to the trimming.
    start = spoken[first][1] if before.strip() else 0.0
    end = spoken[last][2] if after.strip(" .,:") else spoken[last][2] + 0.12
    return start, end


def render(job):
    """Makes one recording; a worker process of the pool runs this."""
    row, voice, lexicon, target = job
    flite = ["flite", "-voice", VOICES[voice], "--setf", PACE, "-add_lex", lexicon]
    with tempfile.TemporaryDirectory() as folder:
        spoken = Path(folder) / "spoken.wav"
        start, end = cut_points(flite, row["text"], spoken)
        # Cut last: filters that start in the middle of a word thump.
        raw = run(["sox", "-D", str(spoken), "-t", "raw", "-r", "8000", "-e", "signed", "-b", "16", "-c", "1", "-",
                   "gain", "-3", *HALL_EFFECTS, "rate", "-h", "8000", "trim", f"{start:.3f}", f"={end:.3f}"])
    samples = recording.from_raw(raw)
    if not samples:
        raise VoicesError(f"'{row['text']}' gave no sound")
    recording.write(target, recording.finish(samples, row["lead"], row["pause"]))


def digest(*parts):
    return hashlib.sha256("\0".join(str(part) for part in parts).encode()).hexdigest()


def recipe_digest(tables):
    """What all recordings depend on: this program and the pronunciations."""
    here = Path(__file__).resolve().parent
    sources = (here / "voices.py", here / "recording.py", tables / "pronunciations.csv")
    return digest(*(source.read_bytes() for source in sources))


def missing_tool():
    """A sentence on the first tool that is missing, or None."""
    for tool in ("flite", "sox"):
        if shutil.which(tool) is None:
            return f"the recordings need {tool}, which is not installed"
    offered = run(["flite", "-lv"]).decode().split()
    for voice in VOICES.values():
        if voice not in offered:
            return f"the recordings need flite's voice {voice}, which this flite does not have"
    return None


def load_state(path):
    try:
        return json.loads(path.read_text(encoding="utf-8"))
    except (OSError, ValueError):
        return {}


def save_state(path, state):
    path.parent.mkdir(parents=True, exist_ok=True)
    fresh = path.with_suffix(".new")
    fresh.write_text(json.dumps(state, indent=0, sort_keys=True), encoding="utf-8")
    os.replace(fresh, path)


def is_current(path, name, state, wanted):
    return state.get(name) == wanted and path.is_file() and path.stat().st_size > recording.HEADER_SIZE


def update_spoken(options, state, fresh):
    """Renders what is out of date. fresh receives each recording's digest once the recording exists."""
    recipe, stale = recipe_digest(options.tables), []
    for row in read_tables(options.tables):
        for voice in VOICES:
            name = f"{voice}/{row['name']}.wav"
            wanted = digest(recipe, voice, row["text"], row["lead"], row["pause"])
            if is_current(options.wavs / name, name, state, wanted):
                fresh[name] = wanted
            else:
                stale.append((name, wanted, row, voice))
    if not stale:
        return 0
    if trouble := missing_tool():
        raise VoicesError(trouble)
    with tempfile.TemporaryDirectory() as folder:
        lexicon = Path(folder) / "lexicon.txt"
        write_lexicon(options.tables, lexicon)
        for name, _, _, _ in stale:
            (options.wavs / name).parent.mkdir(parents=True, exist_ok=True)
        jobs = [(row, voice, str(lexicon), options.wavs / name) for name, _, row, voice in stale]
        with ProcessPoolExecutor(options.jobs) as pool:
            for (name, wanted, _, _), _ in zip(stale, pool.map(render, jobs, chunksize=4)):
                fresh[name] = wanted
    return len(stale)


def update_synthesised(options, state, fresh):
    wanted = digest(options.synth.read_bytes())
    stale = [name for name in SYNTHESISED if not is_current(options.wavs / name, name, state, wanted)]
    if stale:
        options.wavs.mkdir(parents=True, exist_ok=True)
        run([str(options.synth), str(options.wavs)])
    fresh.update({name: wanted for name in SYNTHESISED})
    return len(stale)


def parse_arguments():
    parser = argparse.ArgumentParser(description="Renders the recordings of the public address system.")
    parser.add_argument("--tables", type=Path, required=True, help="folder of the tables of texts")
    parser.add_argument("--wavs", type=Path, required=True, help="folder that receives the recordings")
    parser.add_argument("--state", type=Path, required=True, help="file that remembers what was made from what")
    parser.add_argument("--synth", type=Path, required=True, help="program that makes chime, click and ambience")
    parser.add_argument("--jobs", type=int, default=2, help="processes to use (default 2)")
    return parser.parse_args()


def main():
    options = parse_arguments()
    state, fresh = load_state(options.state), {}
    try:
        made = update_synthesised(options, state, fresh) + update_spoken(options, state, fresh)
    except (VoicesError, OSError, KeyError, ValueError) as error:
        print(f"voices: {error}", file=sys.stderr)
        return 1
    finally:
        if fresh != state:
            save_state(options.state, {**state, **fresh})
    for name in sorted(state.keys() - fresh.keys()):
        (options.wavs / name).unlink(missing_ok=True)
    if fresh != state:
        save_state(options.state, fresh)
    if made:
        print(f"voices: made {made} recordings in {options.wavs}")
    return 0


if __name__ == "__main__":
    sys.exit(main())
