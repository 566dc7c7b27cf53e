# What the tool says of itself and of its runs: routines, timings, progress, reports, completion and manual.
import json
import os
import re
import shutil
import subprocess
import sys

import sound_files
import tool
from tool import ToolTest, main, numbers, open_terminal, run, start

sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "machine"))
import catalogue

CATALOGUE = os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "..", "docs", "catalogue.json")


class Info(ToolTest):
    def setUp(self):
        super().setUp()
        with open(CATALOGUE, encoding="utf-8") as file:
            self.catalogue = json.load(file)

    def test_list(self):
        due = [entry["name"] for name in ("exports", "batches") for entry in self.catalogue[name]]
        self.assertEqual(self.ok("info", "--list").decode().split(), due)
        library = json.loads(self.ok("info", "--json"))
        self.assertEqual((library["exports"], library["batches"]),
                         (len(self.catalogue["exports"]), len(self.catalogue["batches"])))

    def test_one_routine_of_each_family(self):
        seen = {}
        for entry in self.catalogue["exports"] + self.catalogue["batches"]:
            transforms = any(one["name"] == "pSrc" for one in entry["arguments"])
            seen.setdefault((entry.get("family"), "counts" in entry, transforms, "Batch" in entry["name"]), entry)
        self.assertGreater(len(seen), 20)
        for entry in seen.values():
            found = json.loads(self.ok("info", entry["name"], "--json"))
            formula, nanoseconds = found.pop("formula"), found.pop("nanoseconds", None)
            for error in found.pop("error_bounds", {}).values():
                self.assertGreater(error["bound"], 0, entry["name"])
            self.assertEqual(found, entry)
            if entry.get("length") and "counts" in entry:
                self.assertGreater(nanoseconds, 0, entry["name"])
            text = self.ok("info", entry["name"]).decode()
            self.assertTrue(text.startswith("routine         " + entry["name"] + "\n"))
            self.assertEqual("\ncomputes " in text, formula != "", entry["name"])
            self.assertEqual(formula != "", any(one["name"] == "pSrc" for one in entry["arguments"]), entry["name"])
            for argument in entry["arguments"]:
                self.assertIn(argument["name"], text)
            for name, count in entry.get("counts", {}).items():
                self.assertIn(f"{name} {count}", text)

    def test_formulas(self):
        for name, word in (("zulgDFTFwd_CToC_8_64fc", "exp(-2 pi i n k / N)"),
                           ("zulgDFTInv_CToC_8_64fc", "exp(+2 pi i n k"),
                           ("zulgWHT_3_32f", "N = 2^order"), ("zulgDCT4_64f", "(n + 1/2)"),
                           ("zulgHartley_8_64f", "cos(2 pi n k / N) + sin"), ("zulgWHT_64f", "(-1)^"),
                           ("zulgDFTFwd_RToCCS_8_64f", "k = 0 to N/2"), ("zulgDFTInv_CCSToR_8_64f", "conj X[k]")):
            self.assertIn(word, self.ok("info", name).decode(), name)

    def test_a_name_that_is_nearly_right(self):
        self.refused("info", "zulgHartly_64f", says="perhaps zulgHartley_64f")
        self.refused("info", "entirely different", says="--list prints their names")


class Bench(ToolTest):
    def test_figures(self):
        for family, lengths in (("complex", [2, 15, 64]), ("real", [5, 8]), ("hartley", [3]), ("wht", [8, 512]),
                                ("dct4", [4, 128])):
            words = ["bench", "--family", family, "--lengths", ",".join(map(str, lengths)), "--time", "1e-5"]
            found = json.loads(self.ok(*words, "--json"))
            self.assertEqual((found["family"], [row["length"] for row in found["rows"]]), (family, lengths))
            for row in found["rows"]:
                for name in ("single_32", "single_64", "many_32", "many_64"):
                    self.assertGreater(row[name], 0)
            lines = self.ok(*words).decode().splitlines()
            self.assertEqual(len(lines), 2 + len(lengths))
            for line, length in zip(lines[2:], lengths):
                self.assertRegex(line, rf"^ *{length}( +\d+\.\d){{4}}$")

    def test_all_lengths(self):
        rows = json.loads(self.ok("bench", "--family", "real", "--time", "1e-5", "--json"))["rows"]
        due = sorted({kernel["length"] for kernel in catalogue.kernels() if kernel["family"] == "DFTFwd_RToCCS"})
        self.assertEqual([row["length"] for row in rows], due)


class Reports(ToolTest):
    def test_reports_as_json(self):
        sound = self.path("a.wav", sound_files.wav([[100] * 130], rate=8000))
        out = self.path("a.csv")
        for command in ("transform", "spectrogram", ""):
            words = [*([command] if command else []), sound, "--length", 20, "--hop", 10, "--output", out, "--json"]
            report = json.loads(self.ok(*words))
            self.assertEqual({name: report[name] for name in ("input", "samples", "frames", "rate", "length", "output",
                                                              "damage")},
                             {"input": sound, "samples": 130, "frames": 12, "rate": 8000, "length": 20, "output": out,
                              "damage": []})
            self.assertNotIn("relative_error", report)
        report = json.loads(self.ok(sound, "--length", 20, "--check", "--json"))
        self.assertLess(report["relative_error"], 1e-15)
        cut = self.path("cut.wav", sound_files.wav([[100] * 130])[:-20])
        report = json.loads(run(cut, "--length", 20, "--allow-damaged", "--output", out, "--json").stdout)
        self.assertEqual(len(report["damage"]), 1)
        self.assertRegex(report["damage"][0], "samples that are good: 120")
        # A report beside a spectrum on standard output goes to standard error.
        done = run(sound, "--length", 20, "--format", "csv", "--json")
        self.assertTrue(done.stdout.startswith(b"frame,"))
        self.assertEqual(json.loads(done.stderr)["samples"], 130)

    def test_progress_tells_rate_and_remaining_time(self):
        head = bytearray(sound_files.wav([[0] * 8], bits=8, rate=8000))
        count = 1_200_000_000
        head[4:8], head[40:44] = (36 + count).to_bytes(4, "little"), count.to_bytes(4, "little")
        path = self.path("long.wav", bytes(head))
        os.truncate(path, 44 + count)
        ours, theirs = open_terminal(self)
        # Even on a fast machine this takes longer than the second after which the line appears.
        running = start(path, "--length", 64, "--hop", 2, "--output", "/dev/null", stderr=theirs)
        os.close(theirs)
        text = b""
        while text.count(b"\r") < 4:
            text += os.read(ours, 4096)
        running.terminate()
        running.communicate(timeout=60)
        os.close(ours)
        lines = text.decode().split("\r")
        self.assertEqual(lines[0], "")
        for line in lines[1:3]:
            self.assertRegex(line, r"^zulspectrum: \[#*\.*\] \d+ %, \d+ times real time, (\d+:)?\d+:\d\d left\x1b\[K$")
            self.assertEqual(len(re.search(r"\[([#.]+)\]", line)[1]), 24)


class Shells(ToolTest):
    def test_scripts_are_valid(self):
        for shell in ("bash", "zsh", "fish"):
            script = self.path("script", self.ok("completion", shell))
            program = shutil.which(shell)
            if program:
                done = subprocess.run([program, "-n", script], capture_output=True, check=False, timeout=60)
                self.assertEqual((done.returncode, done.stderr), (0, b""), shell)
            self.assertEqual(self.ok("completion", shell, "--output", self.path("again")), b"")
            self.assertEqual(tool.content_of(self.path("again")), tool.content_of(script))

    def test_bash_completes(self):
        script = self.path("script", self.ok("completion", "bash"))

        def completions(*words):
            line = " ".join(f"'{word}'" for word in words)
            program = (f". {script}; COMP_WORDS=(zulspectrum {line}); COMP_CWORD={len(words)}; _zulspectrum; "
                       'printf "%s\\n" "${COMPREPLY[@]}"')
            done = subprocess.run(["bash", "-c", program], capture_output=True, check=True, cwd=self.folder.name,
                                  timeout=60)
            return sorted(done.stdout.decode().split())

        self.assertEqual(completions("tr"), ["transform"])
        self.assertEqual(completions("transform", "--len"), ["--length"])
        self.assertEqual(completions("inverse", "--enc"), ["--encoding"])
        self.assertEqual(completions("transform", "--enc"), [])
        self.assertEqual(completions("batch", "sc"), ["script"])
        self.assertIn("--columns", completions("--c"))
        self.assertEqual(completions("layout", "--"), ["--help", "--json"])

    def test_every_option_is_in_help_manual_and_completion(self):
        manual = self.ok("manual").decode()
        scripts = {shell: self.ok("completion", shell).decode() for shell in ("bash", "zsh", "fish")}
        for command in ("", "transform", "spectrogram", "inverse", "batch", "layout", "info", "bench", "completion"):
            text = self.ok(*([command] if command else []), "--help").decode()
            self.assertTrue(text.startswith(("Usage", "Short-time")) or "Usage: zulspectrum" in text)
            options = re.findall(r"(?m)^ +(?:-\w,)?--(\w+)", text)
            self.assertGreaterEqual(len(options), 2, text)
            for option in options:
                self.assertIn(r".It Fl h , Fl Fl help" if option == "help" else "Fl Fl " + option, manual)
                self.assertIn("--" + option, scripts["bash"])
                self.assertIn("--" + option, scripts["zsh"])
                self.assertIn("-l " + option, scripts["fish"])

    def test_manual(self):
        program = shutil.which("mandoc")
        if not program:
            self.skipTest("mandoc is not installed")
        for words, name in ((["manual"], b"zulspectrum"), (["manual", "--mpi"], b"zulspectrum-mpi")):
            page = self.ok(*words)
            self.assertIn(b"\n.Nm " + name + b"\n.Nd ", page)
            done = subprocess.run([program, "-T", "lint", "-W", "warning", self.path("page.1", page)],
                                  capture_output=True, check=False, timeout=60)
            self.assertEqual((done.returncode, done.stdout), (0, b""))


if __name__ == "__main__":
    main()
