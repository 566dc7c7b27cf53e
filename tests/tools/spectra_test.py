# The spectra of the families that have lengths 2 to 64, against sums by definition.
import itertools
import math
import os
import random
import re
import struct

from definitions import FAMILIES, FLAGS, LENGTHS, cosine, dft, hartley, transformed
from tool import ToolTest, main, numbers, run


class Spectra(ToolTest):
    def test_cosine_lands_in_its_bin_at_each_flag(self):
        n, k, amplitude = 32, 5, 0.5
        samples = cosine(n, k, n, amplitude)
        for family, (_, _, spectrum) in FAMILIES.items():
            for words, scale in FLAGS.items():
                if (family, words[0]) == ("hartley", "backward"):  # its own inverse
                    scale = FLAGS["forward", "1"]
                for word, (precision, tolerance) in itertools.product(words, (("64", 1e-14), ("32", 1e-6))):
                    rows = self.table("-", "--length", n, "--family", family, "--flag", word, "--precision", precision,
                                      given=numbers(samples))
                    self.assertEqual(len(rows), len(spectrum(samples)))
                    for row in rows:
                        due = amplitude * n / 2 * scale(n) if int(row["bin"]) in (k, n - k) else 0
                        self.assertAlmostEqual(float(row["magnitude"]), due, delta=tolerance * n)

    def test_lengths_are_those_of_the_library(self):
        source = random.Random(1)
        for family, (forward, inverse, spectrum) in FAMILIES.items():
            lengths = 0
            for n in LENGTHS:
                samples = [source.uniform(-1, 1) for _ in range(n)]
                arguments, given = ["-", "--length", n, "--family", family, "--flag", "none"], numbers(samples)
                there = transformed(forward, [], n) is not None
                back = transformed(inverse, [], n) is not None
                if not there:
                    self.refused(*arguments, given=given, says=["--length %d" % n, "no transform of this length"])
                    continue
                rows = self.table(*arguments, given=given)
                for row, due in zip(rows, spectrum(samples), strict=True):
                    self.assertAlmostEqual(complex(float(row["re"]), float(row["im"])), due, delta=1e-13)
                if not back:
                    self.refused(*arguments, "--check", given=given, says=["--check", "no transform of this length"])
                    continue
                report = self.ok(*arguments, "--check", given=given).decode()
                self.assertLess(float(re.search(r"relative error +(\S+) after", report)[1]), 1e-15)
                lengths += 1
            self.assertGreaterEqual(lengths, 35, family)

    def test_all_families_show_the_same_magnitudes(self):
        source = random.Random(3)
        for n, (precision, tolerance) in itertools.product((2, 15, 16), ((64, 1e-14), (32, 1e-6))):
            samples = [source.uniform(-1, 1) for _ in range(n)]
            tables = [self.table("-", "--length", n, "--family", family, "--flag", "ortho", "--precision", precision,
                                 given=numbers(samples)) for family in FAMILIES]
            due = [abs(bin) / math.sqrt(n) for bin in dft(samples)]
            for rows in zip(*tables):  # ends with the shortest
                self.assertEqual(len({(row["bin"], row["frequency"]) for row in rows}), 1)
                for row in rows:
                    self.assertAlmostEqual(float(row["magnitude"]), due[int(row["bin"])], delta=tolerance)

    def test_window(self):
        n = 16
        samples = [math.sin(i * i) for i in range(n)]
        weighted = [x * math.sin(math.pi * i / n) ** 2 for i, x in enumerate(samples)]
        rows = self.table("-", "--length", n, "--window", "hann", given=numbers(samples))
        for row, due in zip(rows, dft(weighted), strict=True):
            self.assertAlmostEqual(complex(float(row["re"]), float(row["im"])), due, delta=1e-13)

    def test_numbers_are_short_and_read_back(self):
        samples = [math.sin(i * i) for i in range(64)]
        for row in self.table("-", given=numbers(samples)):
            for name in ("re", "im", "magnitude", "frequency"):
                self.assertLessEqual(len(row[name]), len(repr(float(row[name]))))
        for row in self.table("-", "--precision", 32, given=numbers(samples)):
            for name in ("re", "im", "magnitude"):
                value = struct.unpack("f", struct.pack("f", float(row[name])))[0]
                self.assertLessEqual(len(row[name]), len("%.9g" % value))
                self.assertEqual(value, struct.unpack("f", struct.pack("f", float("%.9g" % value)))[0])

    def test_check_error_is_small(self):
        source = random.Random(2)
        samples = [source.uniform(-1, 1) for _ in range(1000)]
        for family, words in itertools.product(FAMILIES, FLAGS):
            for precision, limit in (("64", 1e-15), ("32", 1.5e-7)):
                report = self.ok("-", "--length", 60, "--hop", 45, "--window", "hann", "--flag", words[0], "--check",
                                 "--family", family, "--precision", precision, given=numbers(samples)).decode()
                found = dict(line.split(None, 1) for line in report.splitlines())
                self.assertEqual(found["input"], "standard input, 1000 samples")
                self.assertEqual(found["transforms"], "22 of 60 points each way")
                error = float(found["relative"].split()[1])
                self.assertLess(error, limit)
                self.assertGreater(error, 0)

    def test_check_beside_a_spectrum(self):
        done = run("-", "--length", 4, "--check", "--format", "csv", given=b"1 2 3 4")
        self.assertEqual((done.returncode, len(done.stdout.splitlines())), (0, 5))
        self.assertIn(b"relative error", done.stderr)
        path = self.path("out.csv")
        self.assertIn(b"relative error", self.ok("-", "--length", 4, "--check", "--output", path, given=b"1 2 3 4"))
        self.assertEqual(os.path.getsize(path), len(done.stdout))

    def test_check_of_silence(self):
        self.assertRegex(self.ok("-", "--length", 4, "--check", given=b"0 0 0 0").decode(), r"relative error +0 after")

    def test_hartley_bins(self):
        # 1 + 2 cos + 3 sin of one period: half of 2 and of 3 are added at bin 1 and subtracted at bin 5.
        samples = [1 + 2 * math.cos(math.pi * i / 3) + 3 * math.sin(math.pi * i / 3) for i in range(6)]
        rows = self.table("-", "--length", 6, "--family", "hartley", given=numbers(samples))
        both = math.sqrt(13) / 2
        for row, real, magnitude in zip(rows, (1, 2.5, 0, 0, 0, -0.5), (1, both, 0, 0, 0, both), strict=True):
            self.assertAlmostEqual(float(row["re"]), real, delta=1e-14)
            self.assertEqual(row["im"], "0")
            self.assertAlmostEqual(float(row["magnitude"]), magnitude, delta=1e-14)
        self.assertEqual([float(row["frequency"]) * 6 for row in rows], [0, 1, 2, 3, -2, -1])

    def test_hartley_magnitude_is_exact_at_bin_0_and_in_the_middle(self):
        rows = self.table("-", "--length", 4, "--family", "hartley", "--flag", "none", given=b"1 2 3 4.1")
        for k in (0, 2):
            self.assertEqual(float(rows[k]["magnitude"]), abs(float(rows[k]["re"])))


if __name__ == "__main__":
    main()
