# The families wht and dct4: their sizes, bins, scales and refusals.
import csv
import ctypes
import io
import itertools
import math
import random
import re
import resource

from definitions import (FAMILIES, FLAGS, SCALES_OF_INVOLUTIONS, check_error, dct4_bin, dct4_cosine, library,
                         pattern, walsh_hadamard)
import sound_files
from tool import ToolTest, limited, main, numbers, run


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
                       preexec_fn=limited(resource.RLIMIT_AS, most))
            self.assertEqual((done.returncode, done.stderr), (0, b""))
        with open(self.path("long.csv"), encoding="ascii") as file:
            next(file)
            largest = max(file, key=lambda row: float(row[row.rindex(",") + 1:]))
        self.assertEqual(largest.split(",")[2], "777777")

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


if __name__ == "__main__":
    main()
