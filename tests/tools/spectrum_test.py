# Tests of zulspectrum from the outside: python3 spectrum_test.py PATH-OF-THE-TOOL
# Spectra are compared with sums that are computed here; nothing but the standard library is used.
import cmath
import csv
import ctypes
import io
import itertools
import math
import operator
import os
import pty
import random
import re
import resource
import select
import struct
import subprocess
import sys
import tempfile
import time
import unittest

sys.dont_write_bytecode = True  # the tree stays clean
import sound_files

sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "machine"))
import catalogue

TOOL = ""
LENGTHS = sorted({kernel["length"] for kernel in catalogue.kernels()} - {None})
FLAGS = {  # name, number: scale forward
    ("forward", "1"): lambda n: 1 / n,
    ("backward", "2"): lambda n: 1,
    ("ortho", "4"): lambda n: 1 / math.sqrt(n),
    ("none", "8"): lambda n: 1,
}
# The margins around the plot of a picture.
LEFT, TOP, RIGHT, BOTTOM = 72, 40, 112, 44


def run(*arguments, given=None, **more):
    if given is None:
        more["stdin"] = subprocess.DEVNULL
    more = {"stdout": subprocess.PIPE, "stderr": subprocess.PIPE, **more}
    return subprocess.run([TOOL, *map(str, arguments)], input=given, timeout=120, **more)


def numbers(values):
    return "\n".join(map(repr, values)).encode()


def cosine(length, k, count, amplitude=1.0, phase=0.0):
    return [amplitude * math.cos(2 * math.pi * k * n / length + phase) for n in range(count)]


def dft(frame):
    n = len(frame)
    return [sum(x * cmath.exp(-2j * math.pi * (i * k % n) / n) for i, x in enumerate(frame)) for k in range(n)]


def hartley(frame):
    return [bin.real - bin.imag for bin in dft(frame)]


FAMILIES = {  # of lengths 2 to 64; name: the forward and the inverse routine, and the bins of a frame without scale
    "complex": ("zulgDFTFwd_CToC_64fc", "zulgDFTInv_CToC_64fc", dft),
    "real": ("zulgDFTFwd_RToCCS_64f", "zulgDFTInv_CCSToR_64f", lambda frame: dft(frame)[:len(frame) // 2 + 1]),
    "hartley": ("zulgHartley_64f", "zulgHartley_64f", hartley),
}


ALL_FAMILIES = [*FAMILIES, "wht", "dct4"]
SCALES_OF_INVOLUTIONS = {words: FLAGS["forward", "1"] if words[0] == "backward" else scale
                         for words, scale in FLAGS.items()}


def pattern(k, n):
    """Row k of the Walsh-Hadamard matrix of n points in natural order."""
    return [(-1) ** bin(j & k).count("1") for j in range(n)]


def walsh_hadamard(frame):
    n = len(frame)
    if n == 1:
        return list(frame)
    low, high = walsh_hadamard(frame[:n // 2]), walsh_hadamard(frame[n // 2:])
    return [a + b for a, b in zip(low, high)] + [a - b for a, b in zip(low, high)]


def dct4_cosine(k, n):
    """The cosine of bin k in the DCT-IV of n points. The angles, in units of pi/(4 n), repeat after 8 n of them."""
    return [math.cos(math.pi * ((2 * i + 1) * (2 * k + 1) % (8 * n)) / (4 * n)) for i in range(n)]


def dct4_bin(frame, k):
    return math.fsum(map(operator.mul, frame, dct4_cosine(k, len(frame))))


def library():
    return ctypes.CDLL(os.path.join(os.path.dirname(os.path.abspath(TOOL)), "libzulgenpx-7.0.so"))


def transformed(routine, values, length):
    """What a routine of the library gives, without scale; None when it has no such length."""
    given, result = (ctypes.c_double * 130)(*values), (ctypes.c_double * 130)()
    status = getattr(library(), routine)(given, result, length, 8)
    assert status in (0, -6), (routine, length, status)
    return list(result) if status == 0 else None


def brightness(point):
    return 2 * point[0] + 7 * point[1] + point[2]


def open_terminal(test):
    """A pseudo-terminal's two ends; without /dev/pts, as in a bare changed root, there is none to test with."""
    try:
        return pty.openpty()
    except OSError as error:
        return test.skipTest(f"no pseudo-terminal on this machine: {error}")


class ToolTest(unittest.TestCase):
    def setUp(self):
        self.folder = tempfile.TemporaryDirectory()
        self.addCleanup(self.folder.cleanup)

    def path(self, name, content=None):
        path = os.path.join(self.folder.name, name)
        if content is not None:
            with open(path, "wb") as file:
                file.write(content)
        return path

    def ok(self, *arguments, given=None):
        done = run(*arguments, given=given)
        self.assertEqual((done.returncode, done.stderr), (0, b""), arguments)
        return done.stdout

    def table(self, *arguments, given=None):
        """CSV output as a list of dictionaries."""
        text = self.ok(*arguments, "--format", "csv", given=given).decode()
        self.assertTrue(text.endswith("\n"))
        return list(csv.DictReader(io.StringIO(text)))

    def refused(self, *arguments, says, given=None, **more):
        done = run(*arguments, given=given, **more)
        line = done.stderr.decode()
        self.assertNotEqual(done.returncode, 0, arguments)
        self.assertGreater(done.returncode, 0, "killed")
        self.assertRegex(line, r"\Azulspectrum: [^\n]+\n\Z")
        for word in [says] if isinstance(says, str) else says:
            self.assertIn(word, line)
        return line


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


def check_error(report):
    return float(re.search(r"relative error +(\S+) after", report.decode())[1])


class WalshHadamard(ToolTest):
    ARGUMENTS = "-", "--family", "wht"

    def test_orders_are_those_of_the_library(self):
        ask, bytes_wanted, source, orders = library().zulgWHTGetBufferSize_64f, ctypes.c_int32(), random.Random(5), []
        for order in range(-1, 22):
            if ask(order, ctypes.byref(bytes_wanted)) != 0:
                self.refused(*self.ARGUMENTS, "--order", order, given=b"1 " * 9,
                             says=["--order %d: no transform of this order" % order, "the orders 1-13"])
                continue
            n = 2 ** order
            samples = [source.uniform(-1, 1) for _ in range(n)]
            given = numbers(samples)
            text = self.ok(*self.ARGUMENTS, "--order", order, "--flag", "none", "--format", "csv", given=given)
            self.assertEqual(self.ok(*self.ARGUMENTS, "--length", n, "--flag", "none", "--format", "csv", given=given),
                             text)
            rows = list(csv.DictReader(io.StringIO(text.decode())))
            for k, (row, due) in enumerate(zip(rows, walsh_hadamard(samples), strict=True)):
                self.assertEqual((row["bin"], row["im"]), (str(k), "0"))
                self.assertAlmostEqual(float(row["re"]), due, delta=1e-13)
                self.assertEqual(float(row["magnitude"]), abs(float(row["re"])))
            self.assertEqual(sorted(int(row["sequency"]) for row in rows), list(range(n)))
            for k in source.sample(range(n), min(n, 40)):
                signs = pattern(k, n)
                self.assertEqual(int(rows[k]["sequency"]), sum(a != b for a, b in zip(signs, signs[1:])), (order, k))
            self.assertLess(check_error(self.ok(*self.ARGUMENTS, "--order", order, "--check", given=given)), 2e-15)
            orders.append(order)
        self.assertEqual(orders, list(range(1, 14)))

    def test_a_pattern_lands_in_its_bin_at_each_flag(self):
        for order, k in ((5, 11), (9, 300)):  # without and with a buffer
            n = 2 ** order
            given = numbers([0.5 * sign for sign in pattern(k, n)])
            for words, scale in SCALES_OF_INVOLUTIONS.items():
                for word, precision in itertools.product(words, (64, 32)):
                    rows = self.table(*self.ARGUMENTS, "--order", order, "--flag", word, "--precision", precision,
                                      given=given)
                    for row in rows:
                        due = 0.5 * n * scale(n) if int(row["bin"]) == k else 0
                        self.assertAlmostEqual(float(row["re"]), due, delta=1e-6 * n * scale(n))

    def test_whole_numbers_are_exact(self):
        source = random.Random(6)
        samples = [source.randrange(-1000, 1000) for _ in range(8192)]
        rows = self.table(*self.ARGUMENTS, "--order", 13, "--flag", "none", "--precision", 32, given=numbers(samples))
        self.assertEqual([float(row["re"]) for row in rows], walsh_hadamard(samples))

    def test_check_error_is_small_in_many_frames(self):
        source = random.Random(7)
        given = numbers([source.uniform(-1, 1) for _ in range(1000)])
        for order, words in itertools.product((6, 8), FLAGS):
            for precision, limit in ((64, 1e-15), (32, 3e-7)):
                report = self.ok(*self.ARGUMENTS, "--order", order, "--hop", 45, "--flag", words[0], "--check",
                                 "--precision", precision, given=given)
                self.assertIn(b" of %d points each way" % 2 ** order, report)
                self.assertLess(check_error(report), limit)
                self.assertGreater(check_error(report), 0)

    def test_shape(self):
        given = b"1 2 3 4 5 6 7 9"
        text = self.ok(*self.ARGUMENTS, "--order", 2, "--format", "csv", given=given).decode()
        self.assertEqual(text.splitlines(), ["frame,time,bin,sequency,re,im,magnitude", "0,0,0,0,2.5,0,2.5",
                                             "0,0,1,3,-0.5,0,0.5", "0,0,2,1,-1,0,1", "0,0,3,2,0,0,0",
                                             "1,4,0,0,6.75,0,6.75", "1,4,1,3,-0.75,0,0.75", "1,4,2,1,-1.25,0,1.25",
                                             "1,4,3,2,0.25,0,0.25"])
        text = self.ok(*self.ARGUMENTS, "--order", 2, given=given).decode()
        self.assertIn("family wht, length 4, flag backward,", text)
        self.assertRegex(text, "# bin +sequency +re +im +magnitude\n")
        # A sequency counts sign changes in a frame, so that the sample rate does not change it.
        path = self.path("four.wav", sound_files.wav([[1, 2, 3, 4]], rate=16000))
        self.assertEqual([row["sequency"] for row in self.table(path, "--family", "wht", "--order", 2)],
                         ["0", "3", "1", "2"])

    def test_columns_are_straight_at_any_order(self):
        for order in (2, 13):
            lines = self.ok(*self.ARGUMENTS, "--order", order, given=b"1 " * 2 ** order).decode().splitlines()
            ends = {tuple(word.end() for word in re.finditer(r"[^ ]+", line))
                    for line in lines if re.match("# +bin| ", line)}
            self.assertEqual(len({end[-5:] for end in ends}), 1)

    def test_default_is_the_default_length(self):
        self.assertEqual(len(self.table(*self.ARGUMENTS, given=b"1 " * 64)), 64)

    def test_refusals(self):
        for arguments, says in (
                (["--length", 60], ["--length 60: not a power of two", "the orders 1-13"]),
                (["--length", 0], "--length 0: not a power of two"),
                (["--length", -8], "--length -8: not a power of two"),
                (["--length", 1], "--length 1: no transform of this length"),
                (["--length", 16384], ["--length 16384: no transform of this length", "the orders 1-13"]),
                (["--length", 2 ** 30], "--length 1073741824: no transform of this length"),
                (["--order", 31], "--order 31: no transform of this order"),
                (["--order", 1000000], "--order 1000000: no transform of this order"),
                (["--order", -2147483648], "--order -2147483648: no transform of this order"),
                (["--order", "many"], ["--order", "many"]),
                (["--order", 4, "--length", 16], ["--order 4", "--length 16", "one of them is enough"]),
                (["--order", 4, "--flag", 3], ["--flag 3", "none of 1, 2, 4, 8"])):
            self.refused(*self.ARGUMENTS, *arguments, given=b"1 2 3 4 " * 16, says=says)
        for family in [*FAMILIES, "dct4"]:
            self.refused("-", "--family", family, "--order", 4, given=b"1 " * 64,
                         says=["--order 4", "the %s family has no orders" % family, "--length"])
        self.refused(*self.ARGUMENTS, "--order", 4, given=b"1 " * 15, says=["too few samples: 15", "takes 16"])


class Dct4(ToolTest):
    ARGUMENTS = "-", "--family", "dct4"
    LONGEST = 2 ** 20

    def test_every_power_of_two_gives_its_bins(self):
        source, n = random.Random(8), 2
        while n <= 2 ** 16:
            samples = [source.uniform(-1, 1) for _ in range(n)]
            norm = math.sqrt(n * sum(x * x for x in samples))
            for precision, tolerance in ((64, 1e-15), (32, 3e-7)):
                rows = self.table(*self.ARGUMENTS, "--length", n, "--precision", precision, given=numbers(samples))
                self.assertEqual([int(row["bin"]) for row in rows], list(range(n)))
                for k in range(n) if n <= 64 else [0, n - 1, *source.sample(range(n), 6)]:
                    self.assertAlmostEqual(float(rows[k]["re"]), dct4_bin(samples, k), delta=tolerance * norm)
                    self.assertEqual(float(rows[k]["magnitude"]), abs(float(rows[k]["re"])))
                    self.assertEqual((rows[k]["im"], float(rows[k]["frequency"])), ("0", (k + 0.5) / (2 * n)))
            n *= 2

    def test_a_cosine_lands_in_its_bin(self):
        for n, k in ((2, 1), (32, 5), (64, 0), (4096, 1234)):
            for row in self.table(*self.ARGUMENTS, "--length", n, given=numbers(dct4_cosine(k, n))):
                self.assertAlmostEqual(float(row["re"]), n / 2 if int(row["bin"]) == k else 0, delta=1e-12)

    def test_check_error_is_small_in_many_frames(self):
        source = random.Random(9)
        given = numbers([source.uniform(-1, 1) for _ in range(9000)])
        for n, (precision, limit) in itertools.product((2, 16, 64, 1024, 8192), ((64, 2e-15), (32, 5e-7))):
            report = self.ok(*self.ARGUMENTS, "--length", n, "--hop", n // 2, "--check", "--precision", precision,
                             given=given)
            self.assertIn(b" of %d points each way" % n, report)
            self.assertLess(check_error(report), limit)
            self.assertGreater(check_error(report), 0)

    def test_frames_do_not_mix(self):
        frames = [dct4_cosine(k, 128) for k in (3, 90)]
        rows = self.table(*self.ARGUMENTS, "--length", 128, given=numbers(sum(frames, [])))
        strong = [(row["frame"], row["bin"]) for row in rows if float(row["magnitude"]) > 1e-10]
        self.assertEqual(strong, [("0", "3"), ("1", "90")])

    def test_lengths_that_are_no_powers_of_two(self):
        for n in (-8, 0, 3, 5, 6, 9, 17, 33, 60, 65, 129, 257, 1025, 4097, 65537, self.LONGEST + 1):
            self.refused(*self.ARGUMENTS, "--length", n, given=b"1 " * 2048,
                         says=["--length %d: not a power of two" % n, "the powers of two 2-%d" % self.LONGEST])
        self.refused(*self.ARGUMENTS, "--length", 1, given=b"1 1", says="--length 1: no transform of this length")

    def test_lengths_too_long_for_a_frame(self):
        for n in (2 * self.LONGEST, 2 ** 26, 2 ** 27, 2 ** 29, 2 ** 30):
            self.refused(*self.ARGUMENTS, "--length", n, given=b"1 " * 100,
                         says=["--length %d: too long for one frame" % n, "2-%d" % self.LONGEST])
        self.refused(*self.ARGUMENTS, "--length", 2 ** 31, given=b"1 " * 100, says="--length")

    def test_the_longest_frame_needs_little_memory(self):
        samples = dct4_cosine(777777, self.LONGEST)
        path = self.path("long.wav", sound_files.wav([samples], bits=32, floating=True))
        most = 256 << 20  # bytes
        for arguments in (["--check", "--output", self.path("long.csv")], ["--output", self.path("long.png")]):
            done = run(path, "--family", "dct4", "--length", self.LONGEST, *arguments,
                       preexec_fn=lambda: resource.setrlimit(resource.RLIMIT_AS, (most, most)))
            self.assertEqual((done.returncode, done.stderr), (0, b""))
        with open(self.path("long.csv"), encoding="ascii") as file:
            largest = max(csv.DictReader(file), key=lambda row: float(row["magnitude"]))
        self.assertEqual(largest["bin"], "777777")

    def test_no_scale(self):
        for word in ("forward", "backward", "ortho", "none", "8", "3", "sideways"):
            self.refused(*self.ARGUMENTS, "--flag", word, given=b"1 " * 64,
                         says=["--flag %s" % word, "the dct4 family has no scale"])
        text = self.ok(*self.ARGUMENTS, "--length", 4, given=b"1 2 3 4").decode()
        self.assertIn("family dct4, length 4, hop 4,", text)
        self.assertNotIn("flag", text)

    def test_frequencies_of_sound(self):
        path = self.path("four.wav", sound_files.wav([[1, 2, 3, 4]], rate=16000))
        rows = self.table(path, "--family", "dct4", "--length", 4)
        self.assertEqual([row["frequency"] for row in rows], ["1000", "3000", "5000", "7000"])


class Tables(ToolTest):
    def frames(self, count, *arguments):
        return [int(row["frame"]) for row in self.table("-", *arguments, given=numbers(range(count)))
                if row["bin"] == "0"]

    def test_csv_shape(self):
        text = self.ok("-", "--length", 4, "--format", "csv", given=b"1 2 3 4 5 6 7 8").decode().splitlines()
        self.assertEqual(text[0], "frame,time,bin,frequency,re,im,magnitude")
        self.assertEqual(text[1:5], ["0,0,0,0,10,0,10", "0,0,1,0.25,-2,2,2.8284271247461903", "0,0,2,0.5,-2,0,2",
                                     "0,0,3,-0.25,-2,-2,2.8284271247461903"])
        self.assertEqual([line.split(",")[:3] for line in text[5:]], [["1", "4", str(k)] for k in range(4)])

    def test_real_family_ends_in_the_middle(self):
        text = self.ok("-", "--length", 4, "--family", "real", "--format", "csv", given=b"1 2 3 4 5 6 7 9").decode()
        self.assertEqual(text.splitlines()[1:], ["0,0,0,0,10,0,10", "0,0,1,0.25,-2,2,2.8284271247461903",
                                                 "0,0,2,0.5,-2,0,2", "1,4,0,0,27,0,27",
                                                 "1,4,1,0.25,-2,3,3.605551275463989", "1,4,2,0.5,-3,0,3"])
        rows = self.table("-", "--length", 5, "--family", "real", given=b"1 2 3 4 5")
        self.assertEqual([row["frequency"] for row in rows], ["0", "0.2", "0.4"])

    def test_text_holds_the_same_numbers_as_csv(self):
        given = numbers(cosine(20, 3, 50))
        text = self.ok("-", "--length", 20, given=given).decode()
        lines = [line.split() for line in text.splitlines() if line and line[0] != "#"]
        rows = self.table("-", "--length", 20, given=given)
        self.assertEqual(lines, [[row[name] for name in ("bin", "frequency", "re", "im", "magnitude")] for row in rows])
        self.assertIn("# frame 2 at sample 40\n", text)

    def test_frames_cover_all_samples_once_they_can(self):
        for count, hop, due in ((96, 16, 6), (97, 16, 7), (100, 8, 12), (96, 8, 11), (97, 1, 82), (90, 40, 3),
                                (100, 40, 3), (120, 40, 3), (121, 40, 4), (16, 1, 1), (17, 1000, 1)):
            self.assertEqual(self.frames(count, "--length", 16, "--hop", hop), list(range(due)), (count, hop))

    def test_last_frame_is_filled_up_with_zeros(self):
        for hop, last in ((4, [5, 6, 0, 0]), (3, [4, 5, 6, 0]), (5, [6, 0, 0, 0])):
            rows = self.table("-", "--length", 4, "--hop", hop, given=b"1 2 3 4 5 6")[-4:]
            for row, due in zip(rows, dft(last), strict=True):
                self.assertAlmostEqual(complex(float(row["re"]), float(row["im"])), due, delta=1e-14)

    def test_text_input(self):
        plain = self.ok("-", "--length", 6, given=b"1 -2 0.5 3e2 7 -8")
        for given in (b"# a comment\n1,-2,\t.5\r\n+300 #3\n7\n\n-8.0", b"1 -2 5e-1,,3E+2\f7\v-8#end",
                      b"\n1\n-2 .5 300 7 -8\n"):
            self.assertEqual(self.ok("-", "--length", 6, given=given), plain)
        path = self.path("numbers", b"1 -2 .5 300 7 -8")
        self.assertEqual(self.ok(path, "--length", 6).replace(path.encode(), b"standard input"), plain)

    def test_numbers_through_a_named_pipe(self):
        path = self.path("pipe")
        os.mkfifo(path)
        feeder = subprocess.Popen(["sh", "-c", 'echo 1 2 3 4 > "$1"', "sh", path])
        self.assertEqual(len(self.table(path, "--length", 4)), 4)
        feeder.wait()


class Sounds(ToolTest):
    def test_wav_widths_and_channels(self):
        n, k = 48, 6
        for bits in (8, 16, 24, 32):
            top = 2 ** (bits - 1)
            quiet = [round(top / 4 * x) for x in cosine(n, 1, 10 * n)]
            tone = [round(top / 2 * x) for x in cosine(n, k, 10 * n)]
            path = self.path("sound.wav", sound_files.wav([quiet, tone], rate=48000, bits=bits))
            rows = self.table(path, "--length", n, "--channel", 2)
            self.assertEqual(len(rows), 10 * n)
            for row in rows:
                due = n / 4 if int(row["bin"]) in (k, n - k) else 0
                self.assertAlmostEqual(float(row["magnitude"]), due, delta=n / top)
            self.assertEqual(float(rows[k]["frequency"]), 6000)
            self.assertEqual(float(rows[n]["time"]), 0.001)
            self.assertAlmostEqual(float(self.table(path, "--length", n)[1]["magnitude"]), n / 8, delta=n / top)

    def test_long_sound_is_read_in_order(self):
        samples = [i % 30011 - 15000 for i in range(50000)]
        path = self.path("long.wav", sound_files.wav([samples]))
        rows = self.table(path, "--length", 2, "--hop", 977)
        for row in rows[0:-2:2]:
            start = int(row["frame"]) * 977
            self.assertEqual(float(row["re"]) * 32768, samples[start] + samples[start + 1])

    def test_flac_equals_wav(self):
        samples = [round(20000 * math.sin(i * i / 999)) for i in range(1024)]
        wav = self.path("a.wav", sound_files.wav([samples]))
        flac = self.path("a.flac", sound_files.flac(samples))
        self.assertEqual(self.table(flac), self.table(wav))

    def test_content_decides_the_kind(self):
        path = self.path("tone.txt", sound_files.wav([[1000] * 64]))
        self.assertEqual(float(self.table(path)[0]["re"]), 64 * 1000 / 32768)

    def test_samples_that_are_no_numbers(self):
        for value, says in ((math.nan, "not a number"), (math.inf, "infinite"), (-math.inf, "infinite")):
            path = self.path("odd.wav", sound_files.wav([[0.5, 0.25] * 4000 + [value, 0.5]], bits=32, floating=True))
            self.refused(path, "--length", 8, says=["odd.wav", "sample 8000 is " + says])

    def test_memory_does_not_grow_with_the_input(self):
        head = sound_files.wav([[0] * 8], bits=8)
        count = 100_000_000
        path = self.path("zeros.wav", head[:4] + struct.pack("<I", 36 + count) + head[8:40] + struct.pack("<I", count))
        os.truncate(path, 44 + count)
        most = 256 << 20  # bytes; all samples as numbers would take three times as much
        done = run(path, "--output", self.path("zeros.png"),
                   preexec_fn=lambda: resource.setrlimit(resource.RLIMIT_AS, (most, most)))
        self.assertEqual((done.returncode, done.stderr), (0, b""))


class Pictures(ToolTest):
    def plot(self, data, columns, bins):
        """The plot without its margins, checked for its size, and the pixels of one column and of one bin."""
        rows = sound_files.png_rows(data)
        bins = bins if bins <= 512 else 512  # neighbours share a row, the same number in each row at the lengths here
        across, down = -(-768 // columns), 512 // bins
        self.assertEqual((len(rows[0]), len(rows)), (LEFT + columns * across + RIGHT, TOP + bins * down + BOTTOM))
        return [row[LEFT:LEFT + columns * across] for row in rows[TOP:TOP + bins * down]], across, down

    def brightest(self, plot, across, down, column):
        line = [brightness(plot[y][column * across + across // 2]) for y in range(down // 2, len(plot), down)]
        return len(line) - 1 - line.index(max(line))

    def test_bright_row_is_the_bin_and_time_goes_right(self):
        n = 16
        samples = [round(9000 * x) for k in (2, 7) for x in cosine(n, k, 5 * n)]
        path, out = self.path("two.wav", sound_files.wav([samples], rate=16000)), self.path("two.png")
        for family in FAMILIES:
            self.assertEqual(self.ok(path, "--length", n, "--family", family, "--output", out), b"")
            with open(out, "rb") as file:
                plot, across, down = self.plot(file.read(), columns=10, bins=9)
            self.assertEqual([self.brightest(plot, across, down, c) for c in range(10)], [2] * 5 + [7] * 5)

    def test_rows_are_in_the_order_of_sequency(self):
        n = 16
        patterns = [pattern(k, n) for k in range(n)]
        plot, across, down = self.plot(self.ok("-", "--family", "wht", "--order", 4, "--format", "png",
                                               given=numbers(sum(patterns, []))), columns=n, bins=n)
        for column, signs in enumerate(patterns):
            changes = sum(a != b for a, b in zip(signs, signs[1:]))
            self.assertEqual(self.brightest(plot, across, down, column), changes)

    def test_rows_of_the_dct4(self):
        n = 16
        plot, across, down = self.plot(self.ok("-", "--family", "dct4", "--length", n, "--format", "png",
                                               given=numbers(sum((dct4_cosine(k, n) for k in range(n)), []))),
                                       columns=n, bins=n)
        self.assertEqual([self.brightest(plot, across, down, column) for column in range(n)], list(range(n)))

    def test_many_bins_share_rows(self):
        n = 4096
        tones = [dct4_cosine(k, n) for k in (5, 1000, 4095)]
        # All power in one bin of eight, or in equal parts in all eight: the rows are alike.
        tones.append([math.sqrt(8) * x for x in dct4_cosine(803, n)])
        tones[3] = [x + sum(y) for x, *y in zip(tones[3], *(dct4_cosine(k, n) for k in range(2400, 2408)))]
        plot, across, down = self.plot(self.ok("-", "--family", "dct4", "--length", n, "--format", "png",
                                               given=numbers(sum(tones, []))), columns=4, bins=n)
        self.assertEqual([self.brightest(plot, across, down, column) for column in range(3)], [0, 125, 511])
        rows = [line[-1] for line in plot]
        self.assertEqual(rows[511 - 100], rows[511 - 300])
        self.assertEqual([y for y in range(512) if brightness(rows[y]) > brightness(rows[0]) + 100],
                         [511 - 300, 511 - 100])

    def test_words_and_marks_of_the_axis(self):
        """The marks are left of the plot; their distances tell what is numbered."""
        def marks(*arguments):
            rows = sound_files.png_rows(self.ok("-", "--format", "png", *arguments, given=b"1 " * 1024))
            light = [y for y in range(TOP - 8, len(rows) - BOTTOM + 8) if brightness(rows[y][LEFT - 5]) > 1500]
            return [y for y in light if y - 1 not in light], rows[:TOP - 10]
        wht, sequency = marks("--family", "wht", "--order", 10)
        self.assertEqual(wht, [TOP + 512 - 1 - y for y in (500, 400, 300, 200, 100, 0)])  # 1000 .. 0, two to a row
        small, _ = marks("--family", "wht", "--order", 1)
        self.assertEqual(len(small), 2)  # 0 and 1: there are no halves of sequencies
        dct4, cycles = marks("--family", "dct4", "--length", 1024)
        self.assertEqual(len(dct4), 11)  # 0, 0.05 .. 0.5 at the upper edge
        self.assertEqual((dct4[0], dct4[-1]), (TOP - 1, TOP + 512 - 1))
        self.assertNotEqual(sequency, cycles)

    def test_pixels_of_a_bin_are_alike(self):
        plot, across, down = self.plot(self.ok("-", "--length", 8, "--format", "png", given=numbers(cosine(8, 1, 24))),
                                       columns=3, bins=5)
        tone = {plot[y][x] for y in range(3 * down, 4 * down) for x in range(len(plot[0]))}
        rest = {plot[y][x] for y in range(0, 3 * down) for x in range(len(plot[0]))}
        self.assertEqual((len(tone), len(rest)), (1, 1))
        self.assertGreater(brightness(tone.pop()), brightness(rest.pop()) + 1000)

    def test_many_frames_share_columns(self):
        n = 4
        samples = cosine(n, 0, 5000 * n) + cosine(n, 2, 5000 * n)
        # 10000 frames, eight to a column.
        plot, across, down = self.plot(self.ok("-", "--length", n, "--format", "png", given=numbers(samples)),
                                       columns=1250, bins=3)
        self.assertEqual([self.brightest(plot, across, down, c) for c in (0, 1, 624, 625, 1248, 1249)],
                         [0, 0, 0, 2, 2, 2])

    def test_mean_power_of_a_partial_column(self):
        n = 2
        # 1537 frames: pairs, and a last column with one frame, of the same level.
        plot, across, down = self.plot(self.ok("-", "--length", n, "--format", "png", given=b"1 1 " * 1537),
                                       columns=769, bins=2)
        self.assertEqual(plot[-1][0], plot[-1][-1])

    def test_silence_is_dark(self):
        plot, _, _ = self.plot(self.ok("-", "--length", 4, "--format", "png", given=b"0 " * 8), columns=2, bins=3)
        colours = {point for row in plot for point in row}
        self.assertEqual(len(colours), 1)
        self.assertLess(max(colours.pop()), 60)


def layout_rule(n):
    """What each slot holds, by layout."""
    middle, even = "R%d" % (n // 2), n % 2 == 0
    ccs = {0: "R0", 1: "0"} | ({n: middle, n + 1: "0"} if even else {})
    pack = {0: "R0"} | ({n - 1: middle} if even else {})
    perm = {0: "R0"} | ({1: middle} if even else {})
    for k in range(1, (n + 1) // 2):
        for layout, real in ((ccs, 2 * k), (pack, 2 * k - 1), (perm, 2 * k if even else 2 * k - 1)):
            layout |= {real: "R%d" % k, real + 1: "I%d" % k}
    return {"CCS": ccs, "Pack": pack, "Perm": perm}


class Layouts(ToolTest):
    def layouts(self, n):
        """What each slot holds, by layout, read as a person does: the number of a slot is above it."""
        found = {"CCS": {}, "Pack": {}, "Perm": {}}
        for line in self.ok("layout", n).decode().split("\n"):
            self.assertLessEqual(len(line), 80)
            self.assertEqual(line, line.rstrip())
            if not line:
                continue
            name, *cells = re.finditer(r"\S+", line)
            if name[0] == "slot":
                numbers_above = {cell.start(): int(cell[0]) for cell in cells}
                continue
            for cell in cells:
                slot = numbers_above[cell.start()]
                self.assertNotIn(slot, found[name[0]])
                found[name[0]][slot] = cell[0]
        return found

    def test_short_length(self):
        self.assertEqual(self.ok("layout", 4), b"slot  0   1   2   3   4   5\n"
                                               b"CCS   R0  0   R1  I1  R2  0\n"
                                               b"Pack  R0  R1  I1  R2\n"
                                               b"Perm  R0  R2  R1  I1\n")

    def test_every_length_is_as_the_rule_says(self):
        for n in LENGTHS:
            rule = layout_rule(n)
            self.assertEqual(self.layouts(n), rule, n)
            self.assertEqual([sorted(layout) for layout in rule.values()],
                             [list(range(count)) for count in (n // 2 * 2 + 2, n, n)])

    def test_library_fills_the_slots_as_the_layout_says(self):
        source, compared = random.Random(4), 0
        for n in LENGTHS:
            samples = [source.uniform(-1, 1) for _ in range(n)]
            bins = dft(samples)
            for name, slots in self.layouts(n).items():
                values = transformed("zulgDFTFwd_RTo%s_64f" % name, samples, n)
                for slot, held in slots.items() if values else ():
                    if held == "0":
                        self.assertEqual(str(values[slot]), "0.0", (n, name, slot))
                        continue
                    due = bins[int(held[1:])]
                    self.assertAlmostEqual(values[slot], due.real if held[0] == "R" else due.imag, delta=1e-13)
                    compared += 1
        self.assertGreater(compared, 1000)

    def test_refusals(self):
        for word in ("65", "1", "0", "-4"):
            self.refused("layout", word, says=["layout " + word, "2 to 64"])
        for word in ("many", "4.5", "99999999999999"):
            self.refused("layout", word, says=["N", word])
        self.refused("layout", says="N is required")
        self.refused("layout", "4", "5", says="5")
        self.refused("layout", "4", "--check", says="--check")
        self.refused("--length", "8", "layout", "4", says=["layout", "first word", "./layout"])
        self.refused("-", "layout", "4", says=["layout", "first word", "./layout"], given=b"1 2 3 4 " * 16)
        with open("/dev/full", "wb") as full:
            self.refused("layout", "8", stdout=full, says="cannot write standard output")

    def test_files_of_the_name_layout(self):
        folder = self.folder.name
        self.path("layout", b"1 2 3 4")
        done = run("./layout", "--length", 4, "--output", "layout", cwd=folder)
        self.assertEqual(done.returncode, 2)
        self.assertIn(b"--output layout: that is the input itself", done.stderr)
        done = run("-", "--length", 4, "--format", "csv", "--output", "layout", given=b"1 2 3 4", cwd=folder)
        self.assertEqual((done.returncode, done.stderr), (0, b""))
        with open(os.path.join(folder, "layout"), "rb") as file:
            self.assertTrue(file.read().startswith(b"frame,"))

    def test_help(self):
        text = self.ok("layout", "--help").decode()
        for word in ("2 to 64", "R3", "I3"):
            self.assertIn(word, text)


class Options(ToolTest):
    def test_help_and_version(self):
        text = self.ok("--help").decode()
        for family in ALL_FAMILIES:
            self.assertIn(family + " is the ", text)
        for word in ("--length", "--order", "--family", "--flag", "--hop", "--window", "--channel", "--precision",
                     "--format", "--output", "--check", "--version", "filled up with zeros", "layout"):
            self.assertIn(word, text)

        class Version(ctypes.Structure):
            _fields_ = [(name, ctypes.c_int32) for name in ("major", "minor", "major_build", "build")] + [
                ("cpu", ctypes.c_char * 4), ("name", ctypes.c_char_p), ("version", ctypes.c_char_p),
                ("date", ctypes.c_char_p)]
        ask = library().zulgenGetLibVersion
        ask.restype = ctypes.POINTER(Version)
        version = ask().contents
        text = self.ok("--version").decode()
        for word in (version.name.decode(), version.version.decode(), version.date.decode(), version.cpu.decode(),
                     "%d.%d.%d.%d" % (version.major, version.minor, version.major_build, version.build)):
            self.assertIn(word, text)

    def test_format_follows_the_suffix(self):
        for name, start in (("a.txt", b"# standard input"), ("a.csv", b"frame,"), ("a.png", b"\x89PNG"), ("a", b"# ")):
            path = self.path(name)
            self.assertEqual(self.ok("-", "--length", 4, "--output", path, given=b"1 2 3 4"), b"")
            with open(path, "rb") as file:
                self.assertTrue(file.read().startswith(start), name)
        path = self.path("b.png")
        self.ok("-", "--length", 4, "--format", "csv", "--output", path, given=b"1 2 3 4")
        with open(path, "rb") as file:
            self.assertTrue(file.read().startswith(b"frame,"))

    def test_progress_only_on_a_terminal(self):
        ours, theirs = open_terminal(self)
        tool = subprocess.Popen([TOOL, "-", "--length", "2", "--output", "/dev/null"], stdin=subprocess.PIPE,
                                stderr=theirs)
        os.close(theirs)
        time.sleep(1.2)
        tool.communicate(b"0.5 " * 300000, timeout=60)
        text = b""
        while select.select([ours], [], [], 0.2)[0]:
            try:
                text += os.read(ours, 4096)
            except OSError:  # the other end is closed
                break
        os.close(ours)
        self.assertEqual(tool.returncode, 0)
        self.assertRegex(text, rb"\rzulspectrum: \d+ samples")
        self.assertTrue(text.endswith(b"\r\x1b[K"))
        self.assertNotIn(b"\n", text)


class Errors(ToolTest):
    def test_command_line(self):
        for arguments, says in (
                ([], "INPUT"),
                (["-", "--nonsense"], "--nonsense"),
                (["-", "second"], "second"),
                (["-", "--length"], "--length"),
                (["-", "--length", "many"], ["--length", "many"]),
                (["-", "--length", "65"], ["--length 65", "no transform of this length", "64"]),
                (["-", "--length", "0"], ["--length 0", "no transform of this length"]),
                (["-", "--length", "-4"], ["--length -4", "no transform of this length"]),
                (["-", "--length", "99999999999999"], "--length"),
                (["-", "--family", "fancy"], ["--family fancy", "no such family", *ALL_FAMILIES]),
                (["-", "--flag", "3"], ["--flag 3", "none of 1, 2, 4, 8"]),
                (["-", "--flag", "0"], ["--flag 0", "none of 1, 2, 4, 8"]),
                (["-", "--flag", "sideways"], ["--flag sideways", "backward"]),
                (["-", "--flag", "2x"], "--flag 2x"),
                (["-", "--hop", "0"], "--hop"),
                (["-", "--window", "door"], ["--window", "door"]),
                (["-", "--channel", "0"], "--channel"),
                (["-", "--channel", "2"], ["--channel 2", "only channel 1"]),
                (["-", "--precision", "16"], ["--precision", "16"]),
                (["-", "--format", "gif"], ["--format", "gif"]),
                (["-", "--output", "x.gif"], ["x.gif", "--format"])):
            self.refused(*arguments, given=b"1 2 3 4 " * 100, says=says)
        self.assertFalse(os.path.exists("x.gif"))

    def test_unreadable_input(self):
        self.refused(self.path("missing.wav"), says=["cannot read", "missing.wav", "No such file"])
        self.refused(self.folder.name, says=["cannot read", "folder"])
        self.refused(self.path("odd\nname"), says="odd?name")
        if os.geteuid() != 0:
            path = self.path("locked.wav", b"1 2 3")
            os.chmod(path, 0)
            self.refused(path, says=["cannot read", "Permission denied"])

    def test_unsupported_input(self):
        for content in (bytes(range(256)) * 8, b"\x7fELF" + bytes(200)):
            self.refused(self.path("strange.wav", content), says=["strange.wav", "neither a sound file"])

    def test_wrong_numbers_are_reported_with_their_line(self):
        path = self.path("numbers.txt", b"1 2\n# three\n\n3 4, five 6\n")
        self.refused(path, "--length", 2, says=["numbers.txt, line 4: 'five' is not a number"])
        for word in ("0x10", "1.5.2", "nan", "inf", "--1", "+-1", "1e", "+", "\x01\x02", "x" * 2000, "é"):
            line = self.refused("-", "--length", 2, given=("1\n2\n" + word).encode(), says=["line 3", "not a number"])
            self.assertLess(len(line), 150)
        for word in ("1e999", "7" * 2000):
            self.refused("-", "--length", 2, given=b"1 " + word.encode(),
                         says=["line 1: '" + word[:40], "beyond the range"])

    def test_too_few_samples(self):
        self.refused("-", "--length", 16, given=b"", says="standard input: it is empty")
        self.refused("-", "--length", 16, given=b"# nothing", says=["too few samples: 0", "takes 16"])
        self.refused("-", "--length", 16, given=b"1 2 3", says=["too few samples: 3", "takes 16"])
        self.refused(self.path("empty"), says="No such file")
        self.refused(self.path("empty", b""), says="empty: it is empty")
        self.refused(self.path("short.wav", sound_files.wav([[1] * 63])), says=["short.wav", "too few samples: 63"])

    def test_channels(self):
        path = self.path("mono.wav", sound_files.wav([[1] * 100]))
        self.refused(path, "--channel", 2, says=["--channel 2", "mono.wav has 1 channel"])

    def test_damaged_sound_is_refused(self):
        data = sound_files.flac([round(9000 * math.sin(i)) for i in range(2048)])
        self.refused(self.path("cut.flac", data[:len(data) // 2]), says=["cut.flac", "damaged", "samples that are good: 768"])

    def test_output_that_cannot_be_written(self):
        given = b"1 2 3 4 " * 64
        self.refused("-", "--output", self.path("no/such.csv"), given=given, says=["cannot write", "No such file"])
        self.refused("-", "--output", self.folder.name, "--format", "csv", given=given, says="cannot write")

    def test_full_disk(self):
        given = b"1 2 3 4 " * 64
        for format_name in ("text", "csv", "png"):
            self.refused("-", "--format", format_name, "--output", "/dev/full", given=given,
                         says="cannot write /dev/full: No space left on device")
            with open("/dev/full", "wb") as full:
                self.refused("-", "--format", format_name, given=given, stdout=full,
                             says="cannot write standard output: No space left on device")
        for arguments in (["-", "--check"], ["--help"], ["--version"]):
            with open("/dev/full", "wb") as full:
                self.refused(*arguments, given=given, stdout=full, says="cannot write standard output")

    def test_files_survive_a_refused_run(self):
        path = self.path("kept.csv", b"precious")
        self.refused("-", "--output", path, given=b"1 2", says="too few")
        self.refused("-", "--length", 65, "--output", path, given=b"1 2", says="--length 65")
        with open(path, "rb") as file:
            self.assertEqual(file.read(), b"precious")
        path = self.path("input.txt", b"1 2 3 4")
        self.refused(path, "--length", 4, "--output", path, says="that is the input itself")

    def test_picture_is_not_sent_to_a_terminal(self):
        ours, theirs = open_terminal(self)
        self.refused("-", "--format", "png", given=b"1 2 3 4 " * 64, stdout=theirs, says=["terminal", "--output"])
        os.close(theirs)
        os.close(ours)


if __name__ == "__main__":
    TOOL = os.path.abspath(sys.argv.pop(1))
    unittest.main()
