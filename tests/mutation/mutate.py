"""Puts one small fault after another into the texts of kernels and asks the tests whether they see it: each mutant is
compiled alone, and the digests of what its kernels give are compared with the committed list of tests/same_bits. A
mutant is killed if one digest differs or if its kernel crashes. What does not compile is no mutant. What survives and
computes the same all the same is listed in equivalent.txt, with the reason.

mutate.py TREE BUILD COUNT [SEED [SECONDS]]    so many faults, or as many as there is time for; prints those that
                                               survive, and a table for the results

A fault is one of these:
    sign       a sum becomes a difference, or a difference a sum
    operands   the operands of a difference are exchanged
    constant   a constant is multiplied by 1 + 2^-40
    factor     a product takes another constant of the text
    slot       an input or an output is that of the next number
    lanes      a shuffle, or a change of signs, has two lanes exchanged or one sign more
    step       a step works on the result of the step before it in place of its own operand
"""
import collections
import concurrent.futures
import os
import random
import re
import subprocess
import sys
import tempfile
import time

TARGETS = {"x86_64": ["-march=x86-64", "-mfpmath=sse", "-mno-sse3"],
           "x86_64_v3": ["-march=x86-64", "-mavx2", "-mno-fma"]}
# Not optimised: the bits are the same, and a mutant takes a part of the time.
FLAGS = ["-std=c++20", "-O0", "-fPIC", "-w", "-ffp-contract=off", "-fno-exceptions", "-fno-rtti"]
FAMILIES = {"DFTFwd_CToC": "c", "DFTInv_CToC": "c"}


class Text:
    """The source that the build makes of one text, and the kernels in it."""

    def __init__(self, tree, build, target, path):
        self.target, self.path = target, path
        self.header = path[:-3] + "h"
        with open(os.path.join(build, target, path), encoding="utf-8") as file:
            self.source = file.read()
        with open(os.path.join(tree, self.header), encoding="utf-8") as file:
            self.lines = file.read().split("\n")
        self.kernels = re.findall(r"kernel<Family::(\w+), (\d+), (\w+)>", self.source)

    def entries(self):
        for family, length, element in self.kernels:
            suffix = ("32f" if element == "float" else "64f") + FAMILIES.get(family, "")
            name = f"zulg{family}_{length}_{suffix}"
            arguments = f"(const {element}* a, {element}* b, std::int32_t f)"
            # By another name: the header declares this one with elements of its own types.
            yield name, (f'int own_{name}{arguments} __asm__("{name}");\nint own_{name}{arguments} '
                         f"{{ return zulg::kernel<zulg::Family::{family}, {length}, {element}>(a, b, f); }}\n")


def texts_of(tree, build):
    for target in TARGETS:
        for folder, _, files in sorted(os.walk(os.path.join(build, target, "kernels"))):
            for name in sorted(files):
                if name.endswith(".cpp"):
                    yield Text(tree, build, target, os.path.relpath(os.path.join(folder, name),
                                                                    os.path.join(build, target)))



def mutants_of(text):
    """Kind, number of the line and the line that takes its place, for every fault that the text can have."""
    constants = [n for n, line in enumerate(text.lines) if re.match(r"\s+[\d.]+(e-?\d+)?,  // c\[", line)]
    for n in constants:
        value = re.match(r"\s+([\d.e-]+),", text.lines[n]).group(1)
        yield "constant", n, text.lines[n].replace(value, repr(float(value) * (1 + 2.0 ** -40)), 1)
    before = None
    for n, line in enumerate(text.lines):
        step = re.match(r"(\s+const \w+ (\w+) = )(\w+) ([+-]) (\w+);$", line)
        product = re.match(r"(\s+const \w+ (\w+) = c\[)(\d+)(.*\] \* \w+;)$", line)
        slot = re.match(r"(.*\bio\.\w+\()(\d+)(.*)$", line)
        lanes = re.match(r"(.*\b(?:shuffled|flipped|transposed|blended|mixed)\w*<)([\d, ]+)(>.*)$", line)
        if step:
            head, name, a, sign, b = step.groups()
            yield "sign", n, f"{head}{a} {'-' if sign == '+' else '+'} {b};"
            if sign == "-" and a != b:
                yield "operands", n, f"{head}{b} - {a};"
            if before not in (None, a, b):
                yield "step", n, f"{head}{before} {sign} {b};"
            before = name
        elif product and len(constants) > 1:
            head, name, which, rest = product.groups()
            yield "factor", n, f"{head}{(int(which) + 1) % len(constants)}{rest}"
        elif slot:
            yield "slot", n, f"{slot.group(1)}{int(slot.group(2)) + 1}{slot.group(3)}"
        elif lanes:
            numbers = [int(word) for word in lanes.group(2).split(",")]
            if "flipped" in lanes.group(1):
                numbers[0] = 1 - numbers[0]
            elif len(set(numbers)) > 1:
                i, j = next((i, j) for i in range(len(numbers)) for j in range(i) if numbers[i] != numbers[j])
                numbers[i], numbers[j] = numbers[j], numbers[i]
            else:
                continue
            yield "lanes", n, f"{lanes.group(1)}{', '.join(map(str, numbers))}{lanes.group(3)}"


class Killer:
    def __init__(self, tree, build, folder):
        self.tree, self.digests, self.folder = tree, os.path.join(build, "digests"), folder
        for target in TARGETS:  # what all texts of a target include, compiled before
            header = os.path.join(folder, target, "kernel/kernel_body.h.gch")
            os.makedirs(os.path.dirname(header))
            subprocess.run([*self.compiler(target), "-x", "c++-header",
                            os.path.join(tree, "kernel/kernel_body.h"), "-o", header], check=True)
        with open(os.path.join(tree, "tests/same_bits/digests.txt"), encoding="ascii") as file:
            self.due = dict(line.rstrip("\n").rsplit(" ", 1) for line in file if not line.startswith("#"))

    def compiler(self, target):
        return ["g++", *FLAGS, *TARGETS[target], f"-I{self.folder}/{target}", f"-I{self.tree}",
                f"-I{self.tree}/targets/{target}"]

    def outcome(self, text, mutant):
        """How a mutant ends: survives, compiler, crash or bits. Without a mutant, the text as it is."""
        with tempfile.TemporaryDirectory() as folder:
            lines = list(text.lines)
            if mutant is not None:
                lines[mutant[1]] = mutant[2]
            header = os.path.join(folder, text.header)
            os.makedirs(os.path.dirname(header))
            with open(header, "w", encoding="utf-8") as file:
                file.write("\n".join(lines))
            source = os.path.join(folder, "mutant.cpp")
            with open(source, "w", encoding="utf-8") as file:
                file.write(text.source + "".join(entry for _, entry in text.entries()))
            library = os.path.join(folder, "mutant.so")
            compiled = subprocess.run(
                [*self.compiler(text.target), "-shared", "-iquote", folder, source, "-o", library],
                stderr=subprocess.PIPE, check=False)
            if compiled.returncode != 0:
                return "compiler"
            for name, _ in text.entries():
                try:
                    done = subprocess.run([self.digests, library, name], stdout=subprocess.PIPE,
                                          stderr=subprocess.DEVNULL, text=True, timeout=60, check=False)
                except subprocess.TimeoutExpired:
                    return "crash"
                if done.returncode != 0:
                    return "crash"
                found = dict(line.rsplit(" ", 1) for line in done.stdout.splitlines() if line.startswith(name + " "))
                due = {key: digest for key, digest in self.due.items() if key.startswith(name + " ")}
                if not due or not found:
                    return "no digest"
                if found != due:
                    return "bits"
        return "survives"


def main():
    tree, build = (os.path.abspath(path) for path in sys.argv[1:3])
    count, seed = int(sys.argv[3]), int(sys.argv[4]) if len(sys.argv) > 4 else 1
    with tempfile.TemporaryDirectory() as folder:
        return mutate(tree, build, count, seed, float(sys.argv[5]) if len(sys.argv) > 5 else float("inf"), folder)


def mutate(tree, build, count, seed, seconds, folder):
    started = time.time()
    killer = Killer(tree, build, folder)
    texts = list(texts_of(tree, build))
    choose = random.Random(seed)
    # Longer texts take longer to compile and are no other; a third of the mutants is in those.
    short = [text for text in texts if len(text.lines) <= 250]
    long = [text for text in texts if len(text.lines) > 250]
    chosen, known = [], set()
    faults = {}
    while len(chosen) < count:
        text = choose.choice(long if choose.random() < 0.33 else short)
        mutants = faults.setdefault((text.target, text.path), list(mutants_of(text)))
        kind = choose.choice(sorted({mutant[0] for mutant in mutants}))
        mutant = choose.choice([mutant for mutant in mutants if mutant[0] == kind])
        key = (text.target, text.path, mutant[1], mutant[2])
        if key not in known:
            known.add(key)
            chosen.append((text, mutant))
    # The judge itself: texts as they are must survive.
    for text in choose.sample(short, 3):
        if (outcome := killer.outcome(text, None)) != "survives":
            sys.exit(f"{text.target} {text.path} as it is: {outcome}")
    table = collections.defaultdict(collections.Counter)
    survivors, equivalent = [], []
    with open(os.path.join(tree, "tests/mutation/equivalent.txt"), encoding="utf-8") as file:
        reasons = dict(line.rstrip("\n").split(" | ") for line in file if not line.startswith("#"))

    def judged(pair):
        return killer.outcome(*pair) if time.time() - started < seconds else None

    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        for (text, mutant), outcome in zip(chosen, pool.map(judged, chosen)):
            if outcome is None:
                continue
            name = f"{text.target} {text.header}:{mutant[1] + 1}: {mutant[2].strip()}"
            if outcome == "survives" and name in reasons:
                outcome = "equivalent"
                equivalent.append(f"{name}: {reasons[name]}")
            elif outcome in ("survives", "no digest"):
                survivors.append(f"{name} ({outcome})")
            table[mutant[0]][outcome] += 1
    outcomes = ["bits", "crash", "equivalent", "survives"]

    def row(name, counts):
        print(f"| {name} | {sum(counts[o] for o in outcomes)} | " + " | ".join(str(counts[o]) for o in outcomes) + " |")

    print("| fault | mutants | other bits | a crash | equivalent | survives |\n|---|" + "--:|" * 5)
    for kind in sorted(table):
        row(kind, table[kind])
    whole = sum(table.values(), collections.Counter())
    row("all", whole)
    print(f"\nBeside these, {whole['compiler']} faults did not compile.", end=" ")
    print(f"Texts: {len(texts)}. Seed: {seed}. {time.time() - started:.0f} s.\n")
    print("Equivalent: " + ("none." if not equivalent else "\n\n- " + "\n- ".join(equivalent)) + "\n")
    print("Survivors: " + ("none." if not survivors else "\n\n- " + "\n- ".join(survivors)))
    return 1 if survivors else 0


sys.exit(main())
