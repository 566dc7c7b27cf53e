"""Tests of what scripts/tune is made of, without its script: which rows are settled from given times, and whether the
alternatives of one length can be built and told apart. No time that is measured here is looked at.

tuning_test.py SOURCE_FOLDER BUILD_FOLDER CMAKE
"""
import collections
import pathlib
import subprocess
import sys
import tempfile
import unittest

SOURCE, BUILD, CMAKE = pathlib.Path(sys.argv[1]), pathlib.Path(sys.argv[2]), sys.argv[3]
sys.dont_write_bytecode = True  # the tree stays clean
sys.path.insert(0, str(SOURCE / "benchmarks" / "tuning"))
import tuning


def times(**ticks):
    """One kernel at one place."""
    return {("kernel", "double", "0"): ticks}


class Settled(unittest.TestCase):
    def rows(self, **ticks):
        return {choice: round(gain, 6) for choice, gain in tuning.settled(times(**ticks)).items()}

    def test_a_choice_that_gains_less_has_no_row(self):
        self.assertEqual(self.rows(plain=104.9, bisection=100, speed=104, both=101), {})
        self.assertEqual(self.rows(plain=105, bisection=100, speed=104, both=101), {"bisection": 5})
        self.assertEqual(self.rows(plain=90, bisection=100, speed=95, both=97), {})

    def test_each_of_two_rows_gains_beside_the_other(self):
        self.assertEqual(self.rows(plain=130, bisection=120, speed=110, both=100), {"bisection": 10, "speed": 20})
        self.assertEqual(self.rows(plain=130, bisection=120, speed=104, both=100), {"speed": 25})

    def test_long_kernels_have_no_choice_of_flags(self):
        self.assertEqual(self.rows(plain=112, bisection=100), {"bisection": 12})

    def test_kernels_and_places_count_by_their_geometric_mean(self):
        kernels = {("kernel", "double", place): {"plain": ticks, "bisection": 100}
                   for place, ticks in (("0", 80), ("21", 245))}
        self.assertAlmostEqual(tuning.settled(kernels)["bisection"], 40)

    def test_the_least_time_of_all_processes_counts(self):
        with tempfile.TemporaryDirectory(dir=BUILD) as folder:
            records = []
            for number, ticks in enumerate((7, 5, 6)):
                records.append(pathlib.Path(folder, str(number)))
                records[-1].write_text(f"hartley 9 Hartley double plain.21 {ticks}.00\n", encoding="ascii")
            self.assertEqual(tuning.least_times(records)["hartley", 9]["Hartley", "double", "21"], {"plain": 5})


class Alternatives(unittest.TestCase):
    def test_are_built_for_one_length(self):
        with tempfile.TemporaryDirectory(prefix="tuning-", dir=BUILD) as name:
            folder = pathlib.Path(name)
            tuning.prepare(folder, {"--length": "9"})
            texts = {alternative: self.built(folder / alternative) for alternative in ("plain", "both")}
            self.assertNotEqual(*texts.values())
            modules = [f"{alternative}.0={folder}/{alternative}/build/libafter_0.so" for alternative in texts]
            lines = subprocess.run([BUILD / "tune_times", "0", *modules], check=True, capture_output=True,
                                   text=True).stdout.splitlines()
            found = collections.Counter(tuple(line.split()[:4]) for line in lines)
            kernels = {"real_forward": ("DFTFwd_RToCCS",), "real_inverse": ("DFTInv_CCSToR",),
                       "hartley": ("Hartley",)}
            self.assertEqual(found, {(text, "9", kernel, element): 2 for text, routines in kernels.items()
                                     for kernel in routines for element in ("single", "double")})

    def built(self, alternative):
        """The text of a kernel whose two orders differ."""
        def run(*words, **options):
            subprocess.run(words, check=True, stdout=subprocess.DEVNULL, **options)
        run(BUILD / "generate", "write", cwd=alternative)
        run(CMAKE, "-S", SOURCE / "benchmarks" / "tuning", "-B", alternative / "build", "-G", "Ninja",
            "-DCMAKE_BUILD_TYPE=Release", f"-DALTERNATIVE={alternative}")
        run(CMAKE, "--build", alternative / "build", "--target", "after_0")
        return (alternative / "kernels" / "hartley" / "dht_9.h").read_text(encoding="utf-8")


unittest.main(argv=sys.argv[:1])
