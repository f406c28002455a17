#!/usr/bin/env python3
"""The renderer on a small set of tables: what it makes, what it leaves alone, how it fails.

    test_voices.py RENDERER TABLES SYNTH
"""

import os
import shutil
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

RENDERER, TABLES, SYNTH = Path(sys.argv[1]), Path(sys.argv[2]), Path(sys.argv[3])
sys.path.insert(0, str(RENDERER.parent))

import recording  # noqa: E402
import voices  # noqa: E402

SMALL = {
    "phrases.csv": "key,text,lead,pause\nann10,nine [to] Boston,100,50\n",
    "numbers.csv": "key,text\n12,number [twelve] forty\n",
    "cities.csv": "key,text\nlim,flight to [Lima].\n",
    "airlines.csv": "key,text\nx0,[Orrery Airways flight] nine\n",
    "pronunciations.csv": "word,phones\nlima,l iy1 m ax0\n",
}
SPOKEN = ["ann10", "12", "Cities/lim", "Airlines/x0"]
EVERYTHING = 2 * len(SPOKEN) + len(voices.SYNTHESISED)


class Renderer(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = Path(folder.name)
        self.tables, self.wavs = self.folder / "tables", self.folder / "Wavs"
        self.tables.mkdir()
        for name, text in SMALL.items():
            self.table(name, text)

    def table(self, name, text):
        (self.tables / name).write_text(text, encoding="ascii")

    def render(self, path=os.environ["PATH"]):
        """Runs the renderer; returns (exit code, number of recordings made, what it complained of)."""
        result = subprocess.run(
            [sys.executable, str(RENDERER), "--tables", str(self.tables), "--wavs", str(self.wavs), "--state",
             str(self.folder / "state.json"), "--synth", str(SYNTH)],
            capture_output=True, text=True, check=False, env={**os.environ, "PATH": path})
        made = int(result.stdout.split()[2]) if result.stdout.startswith("voices: made") else 0
        return result.returncode, made, result.stderr

    def test_makes_everything_once(self):
        self.assertEqual(self.render(), (0, EVERYTHING, ""))
        for voice in voices.VOICES:
            for name in SPOKEN:
                self.assertGreater((self.wavs / voice / f"{name}.wav").stat().st_size, 500)
        self.assertEqual(self.render(), (0, 0, ""))

    def test_same_bytes_every_time(self):
        self.render()
        first = {path.relative_to(self.wavs): path.read_bytes() for path in self.wavs.rglob("*.wav")}
        shutil.rmtree(self.wavs)
        self.render()
        second = {path.relative_to(self.wavs): path.read_bytes() for path in self.wavs.rglob("*.wav")}
        self.assertEqual(len(first), EVERYTHING)
        self.assertEqual(first, second)

    def test_remakes_what_is_missing_or_was_left_empty(self):
        self.render()
        (self.wavs / "Male/12.wav").unlink()
        (self.wavs / "Female/Cities/lim.wav").write_bytes(b"")
        (self.wavs / "click.wav").unlink()
        # The three sounds that are not speech are one run of one program, yet only the lost one counts.
        self.assertEqual(self.render(), (0, 3, ""))
        self.assertGreater((self.wavs / "Female/Cities/lim.wav").stat().st_size, 500)

    def test_changed_row_remakes_only_itself(self):
        self.render()
        self.table("numbers.csv", "key,text\n12,number [thirteen] forty\n")
        self.assertEqual(self.render(), (0, 2, ""))

    def test_row_that_is_gone_takes_its_recordings_along(self):
        self.render()
        self.table("cities.csv", "key,text\n")
        self.assertEqual(self.render(), (0, 0, ""))
        self.assertFalse((self.wavs / "Male/Cities/lim.wav").exists())
        self.assertTrue((self.wavs / "Male/12.wav").exists())

    def test_changed_pronunciation_remakes_speech(self):
        self.render()
        self.table("pronunciations.csv", "word,phones\n")
        self.assertEqual(self.render(), (0, 2 * len(SPOKEN), ""))

    def test_bad_tables_are_named(self):
        for name, text, complaint in (
            ("numbers.csv", "key,text\n12,twelve\n", "brackets"),
            ("numbers.csv", "key,text\n../12,[twelve]\n", "cannot be the name"),
            ("numbers.csv", "key,text\n12,[twelve]\n12,[twelve]\n", "more than one row for: 12"),
            ("cities.csv", "key,text\nlim,to [...]\n", "nothing to speak"),
        ):
            with self.subTest(complaint):
                self.table(name, text)
                code, _, error = self.render()
                self.table(name, SMALL[name])
                self.assertEqual(code, 1)
                self.assertIn(complaint, error)
                self.assertEqual(error.count("\n"), 1, error)

    def test_missing_tool_is_named_in_one_line(self):
        code, _, error = self.render(path=str(self.folder))
        self.assertEqual(code, 1)
        self.assertEqual(error, "voices: the recordings need flite, which is not installed\n")

    def test_one_fault_does_not_lose_the_rest(self):
        self.table("airlines.csv", "key,text\nx0,[...] nine\n")
        self.assertEqual(self.render()[0], 1)
        self.table("airlines.csv", SMALL["airlines.csv"])
        code, made, _ = self.render()
        self.assertEqual(code, 0)
        self.assertLess(made, EVERYTHING)


class Recording(unittest.TestCase):
    def test_frame(self):
        self.assertEqual(voices.split_frame("flight [twelve] forty"), ("flight ", "twelve", " forty"))

    def test_trim_keeps_a_short_rest(self):
        samples = [0.0] * 1000 + [0.5] * 100 + [0.0] * 1000
        self.assertEqual(len(recording.trim(samples)), 100 + recording.FADE_IN + recording.FADE_OUT)

    def test_limiter_is_below_full_scale(self):
        self.assertEqual(recording.limit(0.3), 0.3)
        self.assertLessEqual(recording.limit(50.0), recording.LIMITER_CEILING)
        self.assertEqual(recording.limit(-50.0), -recording.limit(50.0))

    def test_finish_is_even_with_the_asked_for_silence(self):
        samples = [0.2 if at % 20 < 10 else -0.2 for at in range(801)]
        data = recording.finish(samples, 100, 50)
        self.assertEqual(len(data) % 2, 0)
        self.assertEqual(data[:800], b"\x80" * 800)
        self.assertEqual(data[-400:], b"\x80" * 400)
        self.assertGreater(max(data), 140)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
