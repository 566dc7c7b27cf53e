"""Mutants of plans, passes, boundary and batches, and of the headers that these share with kernels. The build's objects
that see a mutant are compiled again, with little optimisation, and linked with all others: to a library, or to a test
that has sources of the library linked in. Short judges come first: the bits of some exports, then test programs.
"""
import os
import re
import subprocess
import sys

from build import Build
from faults import code_faults, text_faults

# Judges, short ones first:
#     bits PATTERN        digests of the exports whose names contain PATTERN
#     table               digests of the DCT-IV over tables of integers, with the plan's sources linked in
#     old PATTERN         digests of exports on an emulated processor without AVX
#     oldtable            digests over tables on that processor
#     processors          what the library asks emulated processors
#     plain               digests of the Walsh-Hadamard family as targets without lanes have it
#     run PROGRAM ...     a test program with the mutant in place of the library
#     link PROGRAM ...    a test program that has sources of the library linked in
#     own PROGRAM FOLDER ...  a test program whose own sources, in that folder of the build, see the mutant
WHOLE_DCT4 = "run dct4_test --gtest_filter=-*Stack*"
JUDGES = {
    r"dct4/(combine|fold|output|run|split|ports|lane_ports|in_lanes|[a-z]+_in_lanes)\.|dct4/bodies/":
        ["bits DCT4", "table", "link dct4_plain_test", WHOLE_DCT4, "oldtable"],
    r"dct4/rounded_once": ["link table_arguments_test", "link plan_test"],
    r"dct4/(arena|size)\.": ["link plan_test", "own plan_test tests/plan/", "run dct4_test --gtest_filter=*Size*"],
    r"dct4/": ["link plan_test", "bits DCT4", "table", "link table_arguments_test", WHOLE_DCT4,
               "own plan_test tests/plan/"],
    r"wht/(small|large)_orders": ["plain"],
    r"wht/": ["bits WHT", "plain", "run wht_test", "old WHT_9_32f", "run environment_test --gtest_filter=*WHT*"],
    r"boundary/(allocator_hook|load_entry|load_elf|shared_library_elf)\.":
        ["link hook_binding_test", "link hook_companion_test", "run hook_library_test"],
    r"boundary/": ["run boundary_test", "bits WHT", "bits "],
    r"batch/checks": ["run batch_test --gtest_filter=*Checks*:*Shapes*",
                      "own batch_test tests/batch/ --gtest_filter=BatchShapes*"],
    r"batch/": ["run batch_fast_shapes_test",
                "run batch_test --gtest_filter=*Checks*:*Shapes*:*Wht*:*Dct4*", "run batch_test --gtest_filter=*Fast*",
                "run batch_test --gtest_filter=-*Stack*:*Checks*:*Wht*:*Dct4*:*Fast*:*Errors*:*Threads*"],
    r"targets/": ["bits _5_", "run best_level_test", "old zulgDFTFwd_CToC_5_32fc",
                  "processors", "oldtable"],
    r"kernel/lanes": ["bits WHT", "bits DCT4", "table", "own texts_test tests/texts/"],
    r"kernel/": ["bits WHT", "bits DCT4", "table", "run boundary_test",
                 "run batch_test --gtest_filter=*Checks*:*Fast*:*Random*"],
}
# Files without a mutant: those that this target does not compile, those that are no code but declarations, and the
# ports of batches, which hundreds of objects see.
LEFT_OUT = (r"boundary/(entries|entry_call|load_levels|load_standard|settle\w*|\w*windows|static_names)\.|"
            r"batch/(entries|load|one_ports|many_ports|many|many_transforms|many_routines|many_texts)\.|"
            r".*entries\.inc$")
FOLDERS = ("boundary", "wht", "dct4", "batch")
LEVELS = ("has_avx2.h", "levels.h", "processor_level.cpp")
SECONDS = 60


def read_digests(path):
    digests = {}
    with open(path, encoding="ascii") as file:
        for line in file:
            if not line.startswith("#"):
                key, digest = line.rstrip("\n").rsplit(" ", 1)
                digests[key] = digest
    return digests


class Library:
    def __init__(self, tree, build, folder):
        self.tree, self.build = tree, Build(build)
        self.folder = folder
        os.makedirs(folder, exist_ok=True)
        bits = os.path.join(tree, "tests/same_bits")
        self.digests = read_digests(os.path.join(bits, "digests.txt"))
        self.table = read_digests(os.path.join(bits, "table_digests.txt"))
        self.build.join_kernels(folder)

    def mutants(self):
        paths = [f"{folder}/{name}" for folder in FOLDERS
                 for name in sorted(os.listdir(os.path.join(self.tree, folder)))
                 if re.search(r"\.(h|cpp)$", name) and not re.match(LEFT_OUT, f"{folder}/{name}")]
        for path in paths + [f"targets/x86_64/{name}" for name in LEVELS]:
            with open(os.path.join(self.tree, path), encoding="utf-8") as file:
                lines = file.read().split("\n")
            for fault in self.faults(path, lines):
                yield path, fault

    @staticmethod
    def faults(path, lines):
        return text_faults(lines) if "/bodies/" in path else code_faults(lines)

    def outcome(self, folder, path):
        """How a mutant ends: compiler, survives, or the judge that sees it."""
        objects = self.build.compile_users(folder, path)
        if objects is None:
            return "compiler"
        libraries = None
        for pattern, judges in JUDGES.items():
            if re.match(pattern, path):
                break
        for judge in judges:
            kind, *words = judge.split(" ")
            if kind not in ("link", "own") and libraries is None:
                libraries = self.build.link_libraries(folder, objects)
                if libraries is None:
                    return "compiler"
            if not self.passes(kind, words, folder, path, objects, libraries):
                return judge
        return "survives"

    def passes(self, kind, words, folder, path, objects, libraries):
        emulator = ["qemu-x86_64", "-cpu", "Nehalem"] if kind.startswith("old") else []
        if kind in ("bits", "old"):
            done = self.started([*emulator, self.build.path("digests"), libraries["main"], *words])
            return done is not None and self.same(done, self.digests)
        if kind in ("table", "oldtable"):
            program = self.build.link_program(folder, "table_digests", objects)
            done = program and self.started([*emulator, program, libraries["main"]])
            return bool(done) and self.same(done, self.table)
        if kind == "plain":
            done = self.plain_orders(folder)
            return done is not None and self.same(done, self.digests)
        if kind == "processors":
            levels, program = os.path.join(self.tree, "tests/levels"), os.path.join(folder, "has_avx2")
            subprocess.run(["g++", "-std=c++20", f"-I{folder}", f"-I{self.tree}", os.path.join(levels, "has_avx2.cpp"),
                            "-o", program], stderr=subprocess.DEVNULL, check=False)
            return self.started([sys.executable, os.path.join(levels, "processors.py"), "qemu-x86_64",
                                 program]) is not None
        if kind == "link":
            program = self.build.link_program(folder, words[0], objects)
            return program is not None and self.started([program, "--gtest_brief=1", *words[1:]]) is not None
        if kind == "own":
            compiled = self.build.compile_users(folder, path, words[1], ("-O0", "-w"))
            program = compiled and self.build.link_program(folder, words[0], compiled)
            return bool(program) and self.started([program, "--gtest_brief=1", *words[2:]]) is not None
        environment = {"ZULG_TEST_LIBRARY": libraries["main"], "ZULG_TEST_BATCH_LIBRARY": libraries["batch"],
                       "LD_LIBRARY_PATH": os.path.dirname(libraries["main"])}
        return self.started([self.build.path(words[0]), "--gtest_brief=1", *words[1:]], environment) is not None

    def plain_orders(self, folder):
        """What the orders print that are one number to a register, compiled for the target in plain C++."""
        entries = ['#include <cstdlib>\n#include "wht/wht.h"\nextern "C" void* zulMalloc(std::uint32_t n) '
                   '{ return std::malloc(n); }\nextern "C" void zulFree(void* p) { std::free(p); }\n']
        for order in range(1, 14):
            for element, suffix in (("float", "32f"), ("double", "64f")):
                arguments = f"(const {element}* a, {element}* b, std::int32_t f, {element}* c)"
                name = f"zulgWHT_{order}_{suffix}"
                entries.append(f'int own_{name}{arguments} __asm__("{name}");\nint own_{name}{arguments} '
                               f"{{ return zulg::wht<{order}, {element}>(a, b, f, c); }}\n")
        source, library = os.path.join(folder, "entries.cpp"), os.path.join(folder, "plain.so")
        with open(source, "w", encoding="ascii") as file:
            file.write("".join(entries))
        own = [path if os.path.exists(path) else os.path.join(self.tree, "wht", os.path.basename(path))
               for path in (os.path.join(folder, f"wht/{name}_orders.cpp") for name in ("small", "large"))]
        done = subprocess.run(["g++", "-std=c++20", "-O1", "-w", "-fPIC", "-ffp-contract=off", "-shared", f"-I{folder}",
                               f"-I{self.tree}", f"-I{self.tree}/targets/generic", source, *own, "-o", library],
                              stderr=subprocess.DEVNULL, check=False)
        return self.started([self.build.path("digests"), library, "zulgWHT_"]) if done.returncode == 0 else None

    @staticmethod
    def same(lines, due):
        found = dict(line.rsplit(" ", 1) for line in lines.splitlines() if " is missing" not in line)
        common = [key for key in found if key in due]
        return bool(common) and all(found[key] == due[key] for key in common)

    def started(self, command, environment=None):
        """What a program prints, or null if it fails, crashes or hangs."""
        try:
            done = subprocess.run(command, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True,
                                  errors="replace", timeout=SECONDS, check=False,
                                  env={**os.environ, **(environment or {})})
        except subprocess.TimeoutExpired:
            return None
        return done.stdout if done.returncode == 0 else None
