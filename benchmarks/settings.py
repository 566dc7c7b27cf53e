"""What the settings of the floating-point unit do to errors, as `accuracy --mixed --control` prints them.

settings.py write FILE.csv                     of 32-bit Windows: writes benchmarks/results/accuracy-x87.md
settings.py hold TRIALS PROGRAM ARGUMENT ...   runs the program so that it makes so many trials of each routine, under
                                               every setting: none may be above what is known of it

With registers of 64 and of 53 bits, to nearest, that is the proved bound. A step that rounds in one direction is off by
twice as much at most, and so is a result. With registers of 24 bits every step of 64f is off by 2^-24 of itself and no
longer by 2^-53: the bounds of 64f hold in that unit, and for 32f beside those of 32f. The tables of a plan are computed
by the system's sine and cosine; what these give with registers of 24 bits, no bound knows.
"""
import csv
import math
import subprocess
import sys

from tree_files import has_prime_from_11, read, write

RESULTS, BOUNDS = "benchmarks/results/accuracy-x87.md", "benchmarks/results/bounds.csv"
ELEMENTS = ["64f", "32f"]
BITS = {"extended": 64, "double": 53, "single": 24}  # of the x87 unit
OTHER_BITS = {"sse2": 53}
DIRECTIONS = {"": "to nearest", "_down": "down", "_up": "up", "_zero": "towards zero"}


def within(family, first, last):
    return lambda record: record.family == family and first <= record.length <= last


def dft(names, primes):
    return lambda record: record.family.startswith(names) and has_prime_from_11(record.length) == primes


GROUPS = {
    "complex, no prime from 11 up": dft("complex", False),
    "complex, a prime from 11 up": dft("complex", True),
    "real, no prime from 11 up": dft("real", False),
    "real, a prime from 11 up": dft("real", True),
    "Hartley, no prime from 11 up": dft("hartley", False),
    "Hartley, a prime from 11 up": dft("hartley", True),
    "Walsh-Hadamard, orders 1 to 7": within("wht", 1, 7),
    "Walsh-Hadamard, orders 8 to 13": within("wht", 8, 13),
    "DCT-IV, 2 to 32 points": within("dct4", 2, 32),
    "DCT-IV, 64 to 65536 points": within("dct4", 64, 65536),
}


class Record:
    """A routine at one flag under one setting. `greatest` is the error that bounds are for."""

    def __init__(self, fields):
        self.family, self.element, length, self.flag, setting, trials, pooled, worst, greatest = fields
        self.length, self.trials = int(length), int(trials)
        self.pooled, self.worst, self.greatest = float(pooled), float(worst), float(greatest)
        name, *direction = setting.split("_")
        self.bits, self.direction = {**BITS, **OTHER_BITS}[name], "".join("_" + word for word in direction)

    @property
    def unit(self):
        """What a figure is to be divided by: with registers of 24 bits, 64f is told in units of 2^-24 too."""
        return 2.0 ** 29 if (self.bits, self.element) == (24, "64f") else 1


def bound_of(record, bounds):
    """What no trial of this setting may be above, in the unit of the element; or None."""
    key = record.family, str(record.length), record.flag
    if record.bits > 24:
        bound = bounds[(record.element, *key)]
    elif record.family == "dct4" and record.length > 32:
        return None
    else:
        bound = bounds[("64f", *key)] * record.unit + (bounds[("32f", *key)] if record.element == "32f" else 0)
    return bound if record.direction == "" else 2 * bound


def read_bounds():
    return {(row["element"], row["family"], row["length"], row["factor"]): float(row["bound"])
            for row in csv.DictReader(read(BOUNDS).splitlines())}


def records_in(text):
    return [Record(row) for row in csv.reader(text.splitlines())]


def up(figure):
    return f"{math.ceil(round(figure * 100, 6)) / 100:.2f}"


INTRODUCTION = """\
# Accuracy under the settings of the x87 unit

    scripts/accuracy

The 32-bit DLL under the control words that a program may have set: registers of 64, 53 and 24 bits, rounding to
nearest, down, up and towards zero. {trials} inputs to each routine, a quarter of them noise, half of them rows of a
transform, a quarter three values or fewer. A plan is built under the setting that it is used under. Each cell has three
figures, the greatest of all lengths and flags: the relative L2 error pooled over all inputs; that of the worst call;
and the greatest error of one output, as a share of what is proved of it.

Errors are in units of 2^-53 for 64f and 2^-24 for 32f; with registers of 24 bits, in units of 2^-24 for both.

What is proved: with registers of 64 and of 53 bits and to nearest, the [bounds](bounds.md). In another direction a step
is off by twice as much, and twice the bound holds. With registers of 24 bits each step rounds to 24 bits whatever the
element is. So the bounds of 64f hold in units of 2^-24, and the sum of that and of the bound of 32f holds for 32f;
nothing is proved of plans above 32 points, since the system computes their tables with those registers.
"""


def document(records, bounds):
    lines = [INTRODUCTION.format(trials=records[0].trials)]
    for bits in BITS.values():
        for element in ELEMENTS:
            lines += [f"## Registers of {bits} bits, {element}", "",
                      "| pooled, worst, share of what is proved | " + " | ".join(DIRECTIONS.values()) + " |",
                      "|---|--:|--:|--:|--:|"]
            for name, belongs in GROUPS.items():
                cells = []
                for direction in DIRECTIONS:
                    here = [r for r in records if belongs(r) and (r.bits, r.element, r.direction) ==
                            (bits, element, direction)]
                    pooled, worst = max(r.pooled / r.unit for r in here), max(r.worst / r.unit for r in here)
                    shares = [r.greatest / bound_of(r, bounds) for r in here if bound_of(r, bounds) is not None]
                    cells.append(", ".join([up(pooled), up(worst), *([up(max(shares))] if shares else [])]))
                lines.append(f"| {name} | {' | '.join(cells)} |")
            lines.append("")
    return "\n".join(lines)


def above(records, bounds):
    """Says which trials are above what is known of their setting."""
    faults = 0
    for record in records:
        bound = bound_of(record, bounds)
        if bound is not None and not record.greatest <= bound:
            faults += 1
            print(f"{record.family} {record.length} {record.element} {record.flag}, {record.bits} bits "
                  f"{DIRECTIONS[record.direction]}: an error of {record.greatest} is above {bound}")
    return faults


def hold(trials, *program):
    text = subprocess.run([*program, "--mixed", "--control", trials], stdout=subprocess.PIPE, check=True,
                          text=True).stdout
    records, bounds = records_in(text), read_bounds()
    faults = above(records, bounds)
    seen = {(r.bits, r.direction) for r in records}
    settings = len(DIRECTIONS) * (len(BITS) if 64 in {bits for bits, _ in seen} else len(OTHER_BITS))
    if len(seen) != settings or len(records) != settings * len(bounds):
        faults += 1
        print(f"{len(records)} figures of {len(seen)} settings; due are {settings * len(bounds)} of {settings}")
    print(f"{len(records)} figures of {settings} settings, {faults} faults")
    return 1 if faults else 0


def main():
    verb, *files = sys.argv[1:] or [""]
    if verb == "write" and len(files) == 1:
        with open(files[0], encoding="utf-8") as file:
            records = records_in(file.read())
        bounds = read_bounds()
        write(RESULTS, document(records, bounds))
        return 1 if above(records, bounds) else 0
    if verb == "hold" and len(files) >= 2:
        return hold(*files)
    sys.exit(__doc__)


sys.exit(main())
