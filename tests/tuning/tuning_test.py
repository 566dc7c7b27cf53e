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


class Settled(unittest.TestCase):
    def gains(self, **ticks):
        """Of one kernel at one place."""
        gains = tuning.settled({("kernel", "double", "0"): ticks})
        return {choice: round(gain, 6) for choice, gain in gains.items()}

    def test_a_choice_that_gains_less_has_no_row(self):
        self.assertEqual(self.gains(usual=102.9, other=100, scheduled=120, both=120), {})
        self.assertEqual(self.gains(usual=103.5, other=100, scheduled=120, both=120), {"order": 3.5})
        self.assertEqual(self.gains(usual=103.5, other=120, scheduled=100, both=120), {"compiler": 3.5})
        self.assertEqual(self.gains(usual=90, other=100, scheduled=100, both=100), {})

    def test_each_of_two_choices_has_to_gain(self):
        self.assertEqual(self.gains(usual=110, other=105, scheduled=104, both=100), {"order": 4, "compiler": 5})
        self.assertEqual(self.gains(usual=110, other=105, scheduled=102, both=100), {"compiler": 7.843137})
        self.assertEqual(self.gains(usual=104, other=130, scheduled=130, both=100), {})

    def test_kernels_and_places_count_by_their_geometric_mean(self):
        kernels = {("kernel", "double", place): {"usual": ticks, "other": 100, "scheduled": 500, "both": 500}
                   for place, ticks in (("0", 80), ("21", 245))}
        self.assertAlmostEqual(tuning.settled(kernels)["order"], 40)

    def test_the_least_time_of_all_processes_counts(self):
        with tempfile.TemporaryDirectory(dir=BUILD) as folder:
            records = []
            for number, ticks in enumerate((7, 5, 6)):
                records.append(pathlib.Path(folder, str(number)))
                records[-1].write_text(f"hartley_pairs 9 Hartley double usual.21 {ticks}.00\n", encoding="ascii")
            self.assertEqual(tuning.least_times(records)["hartley_pairs", 9]["Hartley", "double", "21"], {"usual": 5})


class Tables(unittest.TestCase):
    def test_have_texts_of_kernels_and_gains_worth_a_row(self):
        for path in tuning.PATHS.values():
            rows = tuning.rows_of(SOURCE / path)
            self.assertTrue(rows, path)
            self.assertEqual(rows.keys() - tuning.all_texts().keys(), set(), path)
            for text, gain in rows.items():
                self.assertGreaterEqual(int(gain), tuning.LEAST_GAIN, text)


class Alternatives(unittest.TestCase):
    def test_are_built_for_one_length(self):
        with tempfile.TemporaryDirectory(prefix="tuning-", dir=BUILD) as name:
            folder = pathlib.Path(name)
            tuning.prepare(folder, {"--length": "25"})
            texts = {alternative: self.built(folder / alternative) for alternative in tuning.ALTERNATIVES}
            self.assertNotEqual(texts["usual"], texts["other"])
            self.assertEqual(texts["usual"], texts["scheduled"])
            self.assertEqual(texts["other"], texts["both"])
            self.assertEqual({name: self.may_change_order(folder / name) for name in texts},
                             {"usual": False, "other": False, "scheduled": True, "both": True})
            modules = [f"{alternative}.0={folder}/{alternative}/build/libafter_0.so" for alternative in texts]
            lines = subprocess.run([BUILD / "tune_times", "0", *modules], check=True, capture_output=True,
                                   text=True).stdout.splitlines()
            found = collections.Counter(tuple(line.split()[:4]) for line in lines)
            kernels = {"complex": ("DFTFwd_CToC", "DFTInv_CToC"), "real_forward": ("DFTFwd_RToCCS",),
                       "real_inverse": ("DFTInv_CCSToR",), "hartley": ("Hartley",)}
            levels = {"pairs": "x86_64"}
            if " avx2 " in pathlib.Path("/proc/cpuinfo").read_text(encoding="ascii", errors="replace"):
                levels["lines"] = "x86_64_v3"
            self.assertEqual(found, {(f"{family}_{form}", "25", f"{kernel}.{level}", element): 4
                                     for family, routines in kernels.items() for kernel in routines
                                     for form, level in levels.items() for element in ("single", "double")})

    def built(self, alternative):
        """The text of a kernel whose two orders differ."""
        def run(*words, **options):
            subprocess.run(words, check=True, stdout=subprocess.DEVNULL, **options)
        run(BUILD / "generate", "write", cwd=alternative)
        run(CMAKE, "-S", SOURCE / "benchmarks" / "tuning", "-B", alternative / "build", "-G", "Ninja",
            "-DCMAKE_BUILD_TYPE=Release", f"-DALTERNATIVE={alternative}")
        run(CMAKE, "--build", alternative / "build", "--target", "after_0")
        return (alternative / "kernels" / "hartley_lines" / "dht_25.h").read_text(encoding="utf-8")

    def may_change_order(self, alternative):
        return "-fsched-pressure" in (alternative / "build" / "build.ninja").read_text(encoding="utf-8")


unittest.main(argv=sys.argv[:1])
