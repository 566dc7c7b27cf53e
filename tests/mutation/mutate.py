"""Puts one small fault after another into the sources of the library and asks the tests whether they see it.

mutate.py run TREE BUILD COUNT [SEED [SECONDS [PATH]]]   judges mutants until COUNT are known in
                                            BUILD/mutation/outcomes.txt, or the seconds are over; a mutant that is known
                                            is not judged again. With a pattern for paths, those of code in such files
mutate.py tell TREE BUILD                   prints tables of what is known, and those that survive
mutate.py reasons TREE                      holds that every mutant of equivalent.txt is one of its file

A mutant is killed if a test fails, if the bits of a result are not those of tests/same_bits, or if the program crashes
or hangs. What does not compile is no mutant. What survives because no result differs is in equivalent.txt, with the
reason. The faults are told in faults.py; who judges which source, in kernels.py and library.py.
"""
import collections
import os
import random
import re
import sys
import tempfile
import threading
import time

from faults import code_faults, text_faults
from kernels import TARGET_OF_FORM, Kernels, Probes
from library import Library

# How many mutants of one text are compiled together, and how often these are taken in place of one mutant of other
# code. One in ten is in a text of more than 150 steps, which takes longer to compile and is no other.
TOGETHER = 24
TEXTS = 0.5
LONG_TEXTS = 1 / 10


class Mutant:
    def __init__(self, judge, where, path, fault, subject):
        self.judge, self.path, self.subject = judge, path, subject
        self.kind, self.line, self.changed = fault
        self.name = f"{where}{path}:{self.line + 1}: {self.changed.strip() or '(nothing)'}"

    def put_into(self, tree, folder):
        """The changed file, in a folder that is searched before the tree."""
        with open(os.path.join(tree, self.path), encoding="utf-8") as file:
            lines = file.read().split("\n")
        lines[self.line] = self.changed
        path = os.path.join(folder, self.path)
        os.makedirs(os.path.dirname(path), exist_ok=True)
        with open(path, "w", encoding="utf-8") as file:
            file.write("\n".join(lines))

    def outcome(self, tree):
        with tempfile.TemporaryDirectory() as folder:
            self.put_into(tree, folder)
            return self.judge(folder, self.subject)


class Run:
    def __init__(self, tree, build, seed, folder, pattern):
        self.tree, self.pattern = tree, pattern
        self.kernels = Kernels(tree, os.path.join(build, "digests"), folder)
        self.probes = Probes(self.kernels)
        self.library = Library(tree, build, os.path.join(folder, "library"))
        self.choose = random.Random(seed)

    def mutants(self):
        """All mutants in the order in which they are judged: mixed, so that any number of them is a sample."""
        short = [text for text in self.kernels.texts if text.steps <= 150]
        long = [text for text in self.kernels.texts if text.steps > 150]
        code = [Mutant(self.judge_of_header, "", path, fault, path) for path, fault in self.probes.mutants()]
        code += [Mutant(self.library.outcome, "", path, fault, path) for path, fault in self.library.mutants()]
        code = [mutant for mutant in code if re.match(self.pattern or "", mutant.path)]
        self.choose.shuffle(code)
        while code or not self.pattern:
            if code and (self.pattern or self.choose.random() >= TEXTS):
                yield [code.pop()]
                continue
            text = self.choose.choice(long if self.choose.random() < LONG_TEXTS else short)
            of_kind = collections.defaultdict(list)
            for fault in self.kernels.faults_of(text):
                of_kind[fault[0]].append(fault)
            faults = {}
            for _ in range(TOGETHER):
                fault = self.choose.choice(of_kind[self.choose.choice(sorted(of_kind))])
                faults[fault[1:]] = fault
            yield [Mutant(self.kernels.outcome_of_text, f"{TARGET_OF_FORM[text.form]} ", text.path, fault, text)
                   for fault in faults.values()]

    def outcomes(self, mutants):
        """How each of some mutants ends: those of a text are judged together, and what is not killed once more."""
        found = None
        if len(mutants) > 1 and mutants[0].subject.families != ["WHT"]:
            with tempfile.TemporaryDirectory() as folder:
                found = self.kernels.outcomes_of_texts(
                    folder, mutants[0].subject, [(mutant.kind, mutant.line, mutant.changed) for mutant in mutants])
        for number, mutant in enumerate(mutants):
            outcome = found[number] if found else "survives"
            yield mutant, outcome if outcome != "survives" else mutant.outcome(self.tree)

    def judge_of_header(self, folder, path):
        """The kernels first; what they do not see is shown to all else that includes the header."""
        outcome = self.probes.outcome(folder, path)
        return outcome if outcome != "survives" else self.library.outcome(folder, path)


def outcomes_of(path):
    known = {}
    if os.path.exists(path):
        with open(path, encoding="utf-8") as file:
            for line in file:
                kind, outcome, name = line.rstrip("\n").split("\t")
                known[name] = kind, outcome
    return known


def run(tree, build, count, seed, seconds, pattern):
    started = time.time()
    path = os.path.join(build, "mutation", "outcomes.txt")
    os.makedirs(os.path.dirname(path), exist_ok=True)
    known = outcomes_of(path)
    lock = threading.Lock()
    with tempfile.TemporaryDirectory() as folder, open(path, "a", encoding="utf-8") as file:
        mutation = Run(tree, build, seed, folder, pattern)
        done = sum(outcome != "compiler" for _, outcome in known.values())

        mutants = mutation.mutants()

        def work():
            nonlocal done
            while True:
                with lock:
                    if done >= count or time.time() - started >= seconds:
                        return
                    chosen = next(mutants, None)
                    if chosen is None:
                        return
                    chosen = [mutant for mutant in chosen if mutant.name not in known]
                    known.update((mutant.name, None) for mutant in chosen)
                for mutant, outcome in mutation.outcomes(chosen):
                    with lock:
                        done += outcome != "compiler"
                        file.write(f"{mutant.kind}\t{outcome}\t{mutant.name}\n")
                        file.flush()

        threads = [threading.Thread(target=work) for _ in range(2)]
        for thread in threads:
            thread.start()
        for thread in threads:
            thread.join()
    return 0


def equivalents_of(tree):
    """The reason of each mutant in equivalent.txt."""
    reasons = {}
    with open(os.path.join(tree, "tests/mutation/equivalent.txt"), encoding="utf-8") as file:
        for line in file:
            if line.startswith("#") or not line.strip():
                continue
            name, bar, reason = line.rstrip("\n").rpartition(" | ")
            if not bar:
                sys.exit(f"equivalent.txt: no reason in: {line.strip()}")
            reasons[name] = reason
    return reasons


ENDS = ["other bits", "a failed test", "a crash", "equivalent", "survives"]


def end_of(name, outcome, reasons):
    if outcome == "survives":
        return "equivalent" if name in reasons else "survives"
    if outcome == "crash":
        return "a crash"
    is_bits = outcome in ("table", "oldtable", "plain") or outcome.startswith(("bits", "old "))
    return "other bits" if is_bits else "a failed test"


def folder_of(name):
    """kernels/complex of `generic kernels/complex/dft_5.h:12: ...`."""
    return os.path.dirname(name.split(":")[0].split(" ")[-1])


def tell(tree, build):
    known = outcomes_of(os.path.join(build, "mutation", "outcomes.txt"))
    reasons = equivalents_of(tree)
    by_kind, by_folder = (collections.defaultdict(collections.Counter) for _ in range(2))
    ends = {name: end_of(name, outcome, reasons) for name, (_, outcome) in known.items() if outcome != "compiler"}
    for name, end in ends.items():
        by_kind[known[name][0]][end] += 1
        by_folder[folder_of(name)][end] += 1
    for title, table in (("folder", by_folder), ("fault", by_kind)):
        print(f"| {title} | mutants | " + " | ".join(ENDS) + " |\n|---|" + "--:|" * (len(ENDS) + 1))
        for row in sorted(table):
            print(f"| {row} | {table[row].total()} | " + " | ".join(str(table[row][end]) for end in ENDS) + " |")
        whole = sum(table.values(), collections.Counter())
        print(f"| all | {whole.total()} | " + " | ".join(str(whole[end]) for end in ENDS) + " |\n")
    print(f"Beside these, {len(known) - len(ends)} faults did not compile.\n")
    print("The reasons of those that are equivalent are in `tests/mutation/equivalent.txt`.\n")
    survivors = sorted(name for name, end in ends.items() if end == "survives")
    print("Survivors: none." if not survivors else "Survivors:\n\n" + "\n".join(f"- `{name}`" for name in survivors))
    return 1 if survivors else 0


def check_reasons(tree):
    """Whether the mutants of equivalent.txt are still those of the sources: a line may have changed, or have moved."""
    faults = 0
    for name in equivalents_of(tree):
        where, line, changed = name.split(":", 2)
        path = os.path.join(tree, where.split(" ")[-1])
        if os.path.exists(path):
            with open(path, encoding="utf-8") as file:
                lines = file.read().split("\n")
            of_file = text_faults(lines) if "/bodies/" in path or "/kernels/" in path else code_faults(lines)
            if any((n + 1, text.strip() or "(nothing)") == (int(line), changed.strip()) for _, n, text in of_file):
                continue
        print(f"equivalent.txt: there is no such mutant: {name}")
        faults += 1
    return 1 if faults else 0


def main():
    if sys.argv[1:2] == ["reasons"] and len(sys.argv) == 3:
        return check_reasons(os.path.abspath(sys.argv[2]))
    if len(sys.argv) < 4:
        sys.exit(__doc__.strip())
    verb, tree, build, *numbers = sys.argv[1:]
    tree, build = os.path.abspath(tree), os.path.abspath(build)
    if verb == "run":
        count, seed, seconds, pattern = (numbers + [""] * 4)[:4]
        return run(tree, build, int(count), int(seed or 1), float(seconds or "inf"), pattern)
    if verb == "tell":
        return tell(tree, build)
    sys.exit(__doc__.strip())


if __name__ == "__main__":
    sys.exit(main())
