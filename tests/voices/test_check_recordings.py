#!/usr/bin/env python3
"""Breaks recordings in every way that matters and sees that the check names the broken one.

    test_check_recordings.py WAVS TABLES
"""

import array
import os
import shutil
import sys
import tempfile
import unittest
from pathlib import Path

import check_hall
import check_recordings as check

WAVS, TABLES = Path(sys.argv[1]), Path(sys.argv[2])


def with_header(samples):
    return check.canonical_header(len(samples)) + bytes(samples)


def louder(samples, gain):
    return bytes(min(255, max(0, 128 + round((sample - 128) * gain))) for sample in samples)


class BrokenRecordings(unittest.TestCase):
    """Each test breaks one file of a copy of the finished folder."""

    def setUp(self):
        self.folder = tempfile.TemporaryDirectory()
        self.addCleanup(self.folder.cleanup)
        self.wavs = Path(self.folder.name) / "Wavs"
        shutil.copytree(WAVS, self.wavs, copy_function=os.link)
        self.report = check.Report()

    def replace(self, name, data):
        """New bytes for a recording; the finished folder's own file stays as it is."""
        path = self.wavs / name
        path.unlink()
        path.write_bytes(data)

    def samples(self, name):
        return (self.wavs / name).read_bytes()[check.HEADER_SIZE :]

    def piece_faults(self, name, kind="numbers"):
        samples = check.read_samples(self.wavs / name, name, self.report)
        if samples is not None:
            check.check_piece(samples, kind, 0, 0, name, self.report)
        return self.report.faults

    def assert_fault(self, faults, *words):
        self.assertTrue(any(all(word in fault for word in words) for fault in faults), faults)

    def test_whole_folder_is_sound(self):
        check.check_voices(self.wavs, TABLES, self.report)
        check_hall.check_hall(self.wavs / "Ambience.wav", self.report)
        self.assertEqual(self.report.faults, [])

    def test_missing(self):
        (self.wavs / "Male/12.wav").unlink()
        self.assert_fault(self.piece_faults("Male/12.wav"), "Male/12.wav", "missing")

    def test_empty(self):
        self.replace("Male/12.wav", b"")
        self.assert_fault(self.piece_faults("Male/12.wav"), "Male/12.wav", "only 0 bytes")

    def test_header_alone(self):
        self.replace("Male/12.wav", with_header(b""))
        self.assert_fault(self.piece_faults("Male/12.wav"), "Male/12.wav", "only 44 bytes")

    def test_every_header_byte_counts(self):
        sound = (self.wavs / "Male/12.wav").read_bytes()
        for at in range(check.HEADER_SIZE):
            self.report = check.Report()
            self.replace("Male/12.wav", sound[:at] + bytes([sound[at] ^ 1]) + sound[at + 1 :])
            self.assert_fault(self.piece_faults("Male/12.wav"), f"offset {at}")

    def test_chunk_behind_the_data(self):
        self.replace("Male/12.wav", (self.wavs / "Male/12.wav").read_bytes() + b"LIST\x04\0\0\0INFO")
        self.assert_fault(self.piece_faults("Male/12.wav"), "header differs at offset 4")

    def test_odd_length(self):
        self.replace("Male/12.wav", with_header(self.samples("Male/12.wav") + b"\x80"))
        self.assert_fault(self.piece_faults("Male/12.wav"), "odd number")

    def test_clipping(self):
        self.replace("Male/12.wav", with_header(louder(self.samples("Male/12.wav"), 3.0)))
        self.assert_fault(self.piece_faults("Male/12.wav"), "clips")

    def test_silence(self):
        self.replace("Male/12.wav", with_header(b"\x80" * 3000))
        self.assert_fault(self.piece_faults("Male/12.wav"), "is silent")

    def test_silence_before_the_speech(self):
        self.replace("Male/12.wav", with_header(b"\x80" * 1200 + self.samples("Male/12.wav")))
        self.assert_fault(self.piece_faults("Male/12.wav"), "speech starts after")

    def test_silence_behind_the_speech(self):
        self.replace("Male/12.wav", with_header(self.samples("Male/12.wav") + b"\x80" * 2400))
        self.assert_fault(self.piece_faults("Male/12.wav"), "silence at the end")

    def test_too_short_and_too_long(self):
        samples = self.samples("Male/12.wav")
        self.replace("Male/12.wav", with_header(samples[:600]))
        self.assert_fault(self.piece_faults("Male/12.wav"), "speaks 0.")
        self.report = check.Report()
        self.replace("Male/12.wav", with_header(samples * 6))
        self.assert_fault(self.piece_faults("Male/12.wav"), "wanted 0.12 to 1.1")

    def test_cut_in_full_swing(self):
        samples = self.samples("Male/12.wav")
        loudest = max(range(len(samples)), key=lambda at: abs(samples[at] - 128))
        self.replace("Male/12.wav", with_header(samples[loudest:]))
        self.assert_fault(self.piece_faults("Male/12.wav"), "would click")

    def test_one_softer_than_the_others(self):
        self.replace("Female/Cities/jfk.wav", with_header(louder(self.samples("Female/Cities/jfk.wav"), 0.92)))
        check.check_voices(self.wavs, TABLES, self.report)
        self.assertEqual(len(self.report.faults), 1, self.report.faults)
        self.assert_fault(self.report.faults, "Female/Cities/jfk.wav", "dB, the others at")

    def hall_faults(self, change):
        """Puts a changed loop in the place of the finished one; `change` takes the samples of both ears in turns."""
        samples = array.array("h", self.samples("Ambience.wav"))
        data = change(samples).tobytes()
        self.replace("Ambience.wav", check_hall.canonical_header(len(data)) + data)
        check_hall.check_hall(self.wavs / "Ambience.wav", self.report)
        return self.report.faults

    def test_hall_with_a_seam(self):
        def change(samples):
            samples[-1] = samples[1] + 4000
            return samples

        self.assert_fault(self.hall_faults(change), "Ambience.wav", "at the seam", "right")

    def test_hall_that_fades(self):
        def change(samples):
            end = 2 * check_hall.RATE
            return samples[:-end] + array.array("h", [sample // 2 for sample in samples[-end:]])

        self.assert_fault(self.hall_faults(change), "Ambience.wav", "first second")

    def test_hall_too_short_and_off_centre(self):
        faults = self.hall_faults(lambda samples: array.array("h", [s + 99 for s in samples[: 40 * check_hall.RATE]]))
        self.assert_fault(faults, "lasts 20.0 s")
        self.assert_fault(faults, "off centre")

    def test_hall_of_one_ear(self):
        def change(samples):
            samples[1::2] = samples[0::2]
            return samples

        self.assert_fault(self.hall_faults(change), "alike in both ears")

    def test_hall_in_eight_bits(self):
        self.replace("Ambience.wav", with_header(self.samples("Announcements.wav") * 60))
        check_hall.check_hall(self.wavs / "Ambience.wav", self.report)
        self.assert_fault(self.report.faults, "Ambience.wav", "another header")

    def test_chime_that_never_ends(self):
        self.replace("Announcements.wav", with_header(self.samples("Announcements.wav") * 2))
        check.check_short_sound(self.wavs, "Announcements.wav", (0.6, 2.5), self.report)
        self.assert_fault(self.report.faults, "Announcements.wav", "lasts 3.40 s")

    def test_airport_and_airline_without_recording(self):
        sample = Path(self.folder.name) / "sample"
        sample.mkdir()
        (sample / "airports.csv").write_text("icao,iata\nKJFK,JFK\nQQQQ,QQQ\n", encoding="utf-8")
        (sample / "airlines.csv").write_text("code,name\nX0 ,One\nX9,Two\n", encoding="utf-8")
        self.assertEqual(check.check_sample(self.wavs, sample, self.report), 4)
        self.assertEqual(len(self.report.faults), 4, self.report.faults)
        self.assert_fault(self.report.faults, "Male/Cities/qqq.wav")
        self.assert_fault(self.report.faults, "Female/Airlines/x9.wav")

    def test_table_without_a_number(self):
        tables = Path(self.folder.name) / "tables"
        shutil.copytree(TABLES, tables)
        rows = (tables / "numbers.csv").read_text(encoding="utf-8").splitlines()
        kept = [row for row in rows if not row.startswith("07,")]
        (tables / "numbers.csv").write_text("\n".join(kept) + "\n", encoding="utf-8")
        check.expected_pieces(tables, self.report)
        self.assert_fault(self.report.faults, "numbers.csv", "07")


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
