# Tests of the example mdct from the outside: python3 mdct_test.py PATH-OF-THE-EXAMPLE
# They check what it prints about sounds that are made here: the errors, and the frequency of a tone.
import math
import os
import random
import re
import subprocess
import sys
import tempfile
import unittest

sys.dont_write_bytecode = True  # the tree stays clean
import sound_files

EXAMPLE = ""
RATE = 16000


class Mdct(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.path = os.path.join(folder.name, "sound.wav")

    def run_on(self, samples, *arguments):
        """One dictionary of the figures for each precision."""
        with open(self.path, "wb") as file:
            file.write(sound_files.wav([samples, [7] * len(samples)], rate=RATE))
        done = subprocess.run([EXAMPLE, self.path, *map(str, arguments)], capture_output=True, timeout=60)
        self.assertEqual((done.returncode, done.stderr), (0, b""))
        line = (r"(?P<bits>\d+) bits: (?P<frames>\d+) frames of (?P<bins>\d+) bins, strongest at (?P<at>\S+) Hz; "
                r"largest error (?P<largest>\S+), relative error (?P<relative>\S+)")
        found = [{name: float(word) for name, word in re.fullmatch(line, text).groupdict().items()}
                 for text in done.stdout.decode().splitlines()]
        self.assertEqual([figures["bits"] for figures in found], [64, 32])
        return found

    def test_noise_comes_back(self):
        source = random.Random(1)
        samples = [source.randrange(-32768, 32768) for _ in range(10007)]
        for n in (2, 4, 64, 1024, 16384):
            for figures, largest, relative in zip(self.run_on(samples, n), (1e-14, 5e-6), (1e-15, 5e-7)):
                self.assertEqual((figures["frames"], figures["bins"]), (-(-10007 // n) + 1, n))
                self.assertTrue(0 < figures["largest"] < largest, figures)
                self.assertTrue(0 < figures["relative"] < relative, figures)

    def test_a_tone_is_in_its_bin(self):
        for n, k in ((64, 10), (1024, 333)):
            samples = [round(20000 * math.cos(math.pi * (i + 0.5) * (k + 0.5) / n)) for i in range(20 * n)]
            for figures in self.run_on(samples, *([] if n == 1024 else [n])):
                self.assertAlmostEqual(figures["at"], (k + 0.5) * RATE / (2 * n), delta=0.06)

    def test_short_and_silent_sounds(self):
        for samples in ([1000], [0] * 5000):
            for figures in self.run_on(samples):
                self.assertLess(figures["largest"], 1e-7)

    def test_refusals(self):
        self.run_on([1] * 8)
        with open(self.path, "rb") as file:
            whole = file.read()
        cut = self.path + ".cut"
        with open(cut, "wb") as file:
            file.write(whole[:-6])
        for arguments, status, says in (
                ([], 2, "mdct FILE [N]"), (["a", "b", "c"], 2, "mdct FILE [N]"),
                ([self.path, "60"], 2, "power of two"), ([self.path, "9"], 2, "power of two"),
                ([self.path, "131072"], 2, "65536"), ([self.path, "many"], 2, "N many: not a whole number"),
                ([self.path, "64x"], 2, "N 64x: not a whole number"), ([self.path, ""], 2, "N ''"),
                ([self.path + "x"], 1, "No such file"), ([self.path + "\x1b[31m"], 1, "sound.wav?[31m"),
                ([cut], 3, "samples that are good: 6")):
            done = subprocess.run([EXAMPLE, *arguments], capture_output=True, timeout=60)
            self.assertEqual(done.returncode, status)
            self.assertRegex(done.stderr.decode(), r"\A[^\n]+\n\Z")
            self.assertIn(says, done.stderr.decode())


if __name__ == "__main__":
    EXAMPLE = os.path.abspath(sys.argv.pop(1))
    unittest.main()
