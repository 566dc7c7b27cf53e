"""Measures which lines the tests reach, with gcov, and holds those that they do not reach against a list of reasons.

coverage.py measure TREE BUILD FOLDER   compiles the sources of a build anew in FOLDER, with counters, runs the tests on
                                        them, and prints the table for the results; fails at a line without a reason
coverage.py tell TREE BUILD FOLDER      the same without another run
coverage.py reasons TREE                holds that every line of uncovered.txt is in the tree; needs no build

The texts of transforms are left out: straight lines, all of which every call runs. Of the two levels the one of this
processor is measured.
"""
import collections
import json
import os
import re
import shutil
import subprocess
import sys

sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), "../mutation"))
from build import BATCH, KERNELS, LIBRARY, OWN, Build  # noqa: E402

FLAGS = ["-O0", "-w", "--coverage"]
GENERATOR_FLAGS = ["-O1", "-w", "--coverage"]  # it computes for minutes
LIST = "tests/coverage/uncovered.txt"
CHECKED = "libzulgenpx-7.0-checked.so"
FOLDERS = ("kernel", "targets/x86_64", "boundary", "wht", "dct4", "batch", "checked", "generator", "tools")
# Some kernels, so that ports and checks are counted: of each form and layout an odd and an even length.
PROBES = (r"CMakeFiles/zulgenpx_kernels_x86_64_v3\.dir/.*/(complex_(lines|pairs)/dft_(5|6|15|16)|"
          r"(real_\w+|hartley)_(pairs|lines)/\w+_(5|6|15|16|30|35))\.cpp\.o$")
# Texts of batches, for their ports.
BATCHES = (r"CMakeFiles/zulgenpx_batch_objects_x86_64_v3\.dir/x86_64_v3/batch/kernels/"
           r"(complex_pairs/dft_[3458]|(real_\w+|hartley)/\w+_[2345])\.cpp\.o$")
# Test programs, and what of them is run: counters take time.
PROGRAMS = {"boundary_test": "*", "wht_test": "*", "dct4_test": "-*Stack*:*Threads*:*EveryBody*:*Twice*",
            "best_level_test": "*", "memory_test": "*", "overlap_test": "*_5_*:*WHT*:*DCT4_64*",
            "batch_fast_shapes_test": "*", "batch_test": "*Checks*:*Wht*:*Dct4*:*ASource*:*InPlace*:*EveryShape*"}
LINKED = ["plan_test", "table_arguments_test", "dct4_plain_test", "hook_binding_test", "hook_companion_test"]


# What is thrown only if the program contradicts itself: no input leads there.
IMPOSSIBLE = re.compile(r"throw std::(logic_error|out_of_range)\(")


class Coverage:
    def __init__(self, tree, build, folder):
        self.tree, self.folder = tree, folder
        self.build = Build(build, everything=True)
        self.objects = {}
        os.makedirs(folder, exist_ok=True)
        self.counters = os.path.join(folder, "counters.o")
        subprocess.run(["gcc", "-O1", "-fPIC", "-fvisibility=hidden", "-c",
                        os.path.join(tree, "tests/coverage/counters.c"), "-o", self.counters], check=True)

    def compile(self, pattern, flags=FLAGS):
        """The objects whose names match, with counters."""
        chosen = [name for name in self.build.commands if re.match(pattern, name) and name not in self.objects]
        running = []
        for name in sorted(chosen):
            output = os.path.join(self.folder, name.replace("/", "#"))
            if os.path.exists(output):
                self.objects[name] = output
                continue
            command = self.build.compile_command(name, None, "", output, flags)
            running.append((name, output, subprocess.Popen(command, cwd=self.build.folder)))
            if len(running) == 2:
                self.finish(running.pop(0))
        for one in running:
            self.finish(one)

    def finish(self, one):
        name, output, process = one
        if process.wait() != 0:
            sys.exit(f"{name} does not compile")
        self.objects[name] = output

    def link(self, name):
        """Linked so that a program that is killed or stops itself leaves its counters whole."""
        wrapped = (f"-Wl,--wrap={routine}" for routine in ("__gcov_exit", "_exit", "abort", "raise"))
        path = self.build.link_program(self.folder, name, self.objects, ("--coverage", *wrapped, self.counters))
        if path is None:
            sys.exit(f"{name} does not link")
        return path

    def run(self, command, environment=None):
        """Runs a test. What it says does not matter here, but one that fails may stop short of lines."""
        done = subprocess.run(command, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, check=False, timeout=1200,
                              cwd=self.folder, env={**os.environ, **(environment or {})})
        if done.returncode != 0:
            print("with counters this fails:", *command, file=sys.stderr)

    def library(self):
        self.compile(OWN + "|" + PROBES + "|" + BATCHES + r"|CMakeFiles/zulgenpx_checked\.dir/")
        self.put_beside("libzulcore-7.0.so", "levels")
        libraries = {name: self.link(name) for name in (LIBRARY, BATCH)}
        environment = {"ZULG_TEST_LIBRARY": libraries[LIBRARY], "ZULG_TEST_BATCH_LIBRARY": libraries[BATCH],
                       "LD_LIBRARY_PATH": self.folder}
        self.run([self.build.path("digests"), libraries[LIBRARY]])
        self.run([self.build.path("table_digests"), libraries[LIBRARY]])
        for name, chosen in PROGRAMS.items():
            self.run([self.build.path(name), "--gtest_brief=1", f"--gtest_filter={chosen}"], environment)
        for name in LINKED:
            self.run([self.link(name), "--gtest_brief=1"], environment)
        # The checked library ends programs.
        checked = self.link(CHECKED)
        self.run([self.build.path("digests"), checked])
        for name, chosen in {"boundary_test": "*", "transforms_test": "*_15_*:*WHT_7_*:*DCT4_64_*",
                             "wht_test": "-*ARefusal*", "memory_test": "*", "dct4_test": "*InitAlloc*"}.items():
            self.run([self.build.path(name), "--gtest_brief=1", f"--gtest_filter={chosen}"],
                     {**environment, "ZULG_TEST_LIBRARY": checked})
        self.run([sys.executable, "-B", os.path.join(self.tree, "tests/checked/checked.py"), self.tree,
                  self.build.path("misuse"), self.build.path("misuse_of_memory")], environment)

    def put_beside(self, *names):
        """Programs find libraries in their own folder."""
        for name in names:
            target = os.path.join(self.folder, name)
            if not os.path.exists(target):
                os.symlink(self.build.path(name), target)

    def generator(self):
        self.compile("generator/", GENERATOR_FLAGS)
        generate, test = self.link("generate"), self.link("generator_test")
        subprocess.run([generate, "check"], cwd=self.tree, stdout=subprocess.DEVNULL, check=False)
        self.run([test, "--gtest_brief=1"])
        for test, command in self.tests().items():
            if any("/generate" in word for word in command) and test != "generated_text_is_current":
                self.run([generate if word == self.build.path("generate") else word for word in command])

    def tools(self):
        self.compile(r"tools/|tests/tools/CMakeFiles/status_test\.dir/__/__/tools/")
        self.put_beside("libzulcore-7.0.so", "levels", LIBRARY, BATCH)
        programs = {self.build.path(name): self.link(name)
                    for name in ("zulspectrum", "zulspectrum-mpi") if os.path.exists(self.build.path(name))}
        programs[self.build.folder] = self.build_with(programs)
        status = self.link("status_test")
        self.run([status])
        for test, command in self.tests().items():
            if test.startswith("zulspectrum") or test == "cluster":
                self.run([programs.get(word, word) for word in command])

    def build_with(self, programs):
        """A folder that looks like the build, with these programs in place of its own."""
        folder = os.path.join(self.folder, "build")
        shutil.rmtree(folder, ignore_errors=True)
        os.makedirs(folder)
        for name in os.listdir(self.build.folder):
            path = self.build.path(name)
            os.symlink(programs.get(path, path), os.path.join(folder, name))
        return folder

    def tests(self):
        listed = subprocess.run(["ctest", "--show-only=json-v1"], cwd=self.build.folder, stdout=subprocess.PIPE,
                                stderr=subprocess.DEVNULL, check=True, text=True).stdout
        return {test["name"]: test.get("command", []) for test in json.loads(listed)["tests"]}

    def lines(self):
        """How often each line of each file of ours was run."""
        counts = collections.defaultdict(lambda: collections.defaultdict(int))
        notes = sorted(name for name in os.listdir(self.folder) if name.endswith(".gcno"))
        for note in notes:
            done = subprocess.run(["gcov", "--json-format", "--stdout", os.path.join(self.folder, note)],
                                  stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, cwd=self.folder, check=True)
            for report in done.stdout.splitlines():
                if not report.strip():
                    continue
                for file in json.loads(report)["files"]:
                    path = file["file"]  # from the tree where the compiler is told so, else from the build's folder
                    if not os.path.exists(os.path.join(self.tree, path)):
                        path = os.path.normpath(os.path.join(self.build.folder, path))
                    path = os.path.relpath(os.path.join(self.tree, path), self.tree)
                    for line in file["lines"]:
                        counts[path][line["line_number"]] += line["count"]
        return counts


def folder_of(path):
    return next((folder for folder in FOLDERS if path.startswith(folder + "/") and "/bodies/" not in path), None)


def reasons_of(tree):
    """The reason of each listed line, by its path and what is in it."""
    reasons = {}
    with open(os.path.join(tree, LIST), encoding="utf-8") as file:
        for number, row in enumerate(file, 1):
            if row.startswith("#") or not row.strip():
                continue
            cells = row.rstrip("\n").split(" | ")
            if len(cells) < 3 or not cells[-1]:
                sys.exit(f"{LIST}:{number}: a row is a path, a line and a reason")
            reasons[cells[0], " | ".join(cells[1:-1])] = cells[-1]
    return reasons


def text_of(tree, path):
    with open(os.path.join(tree, path), encoding="utf-8") as file:
        return file.read().split("\n")


def check_reasons(tree):
    faults = 0
    for path, line in reasons_of(tree):
        if not os.path.exists(os.path.join(tree, path)):
            print(f"{LIST}: there is no file {path}")
        elif line not in (text.strip() for text in text_of(tree, path)):
            print(f"{LIST}: {path} has no line {line}")
        else:
            continue
        faults += 1
    return 1 if faults else 0


def measure(tree, build, folder, parts):
    coverage = Coverage(tree, build, folder)
    for part in parts:
        getattr(coverage, part)()
    counts = coverage.lines()
    reasons = reasons_of(tree)
    rows = collections.defaultdict(lambda: [0, 0, 0])
    missing, used = [], set()
    for path in sorted(counts):
        place = folder_of(path)
        if place is None:
            continue
        text = text_of(tree, path)
        for number, count in sorted(counts[path].items()):
            row = rows[place]
            key = path, text[number - 1].strip()
            if key[1] in ("}", "};") and not count:
                continue  # what is cleaned up when an exception passes
            row[0] += 1
            if count:
                row[1] += 1
            elif key in reasons or IMPOSSIBLE.search(key[1]):
                row[2] += 1
                used.add(key)
            else:
                missing.append(f"{path}:{number}: {key[1]}")
    print("| folder | lines | reached | share | with a reason | neither |\n|---|--:|--:|--:|--:|--:|")
    for place in FOLDERS:
        if place in rows:
            lines, reached, told = rows[place]
            print(f"| {place} | {lines} | {reached} | {100 * reached / lines:.1f} % | {told} | "
                  f"{lines - reached - told} |")
    print(f"\nRows of `{LIST}`: {len(reasons)}.\n")
    for path, line in (key for key in reasons if key not in used and key[0] in counts):
        print(f"Reached all the same, a row to be dropped: {path}: {line}\n")
    print("Lines that are neither reached nor listed: " + ("none." if not missing else "\n"))
    print("\n".join(f"    {line}" for line in missing))
    return 1 if missing else 0


def main():
    if sys.argv[1:2] == ["reasons"] and len(sys.argv) == 3:
        return check_reasons(os.path.abspath(sys.argv[2]))
    if sys.argv[1:2] in (["measure"], ["tell"]) and len(sys.argv) >= 5:
        tree, build, folder = (os.path.abspath(path) for path in sys.argv[2:5])
        parts = [] if sys.argv[1] == "tell" else sys.argv[5:] or ["library", "generator", "tools"]
        return measure(tree, build, folder, parts)
    sys.exit(__doc__.strip())


sys.exit(main())
