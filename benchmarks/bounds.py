"""The proved error bounds beside the greatest errors that trials have shown.

bounds.py write BOUNDS X86_64 WIN32  from what `generate bounds` and, on the two targets, `accuracy --mixed` print: the
                                     table benchmarks/results/bounds.csv, its summary bounds.md, and the header's table
bounds.py renew GENERATE             runs the generator: the same with its bounds, and the trials that the table has
bounds.py check GENERATE             runs the generator: whether bounds, summary, header and table still agree, no trial
                                     of the table is above its bound, and half of the bounds are at most 20 times the
                                     worst trial
bounds.py hold ACCURACY TRIALS       makes so many trials of each routine: none may be above its bound in the table
"""
import csv
import math
import os
import re
import statistics
import subprocess
import sys

from tree_files import TREE, has_prime_from_11, read, write

TABLE, SUMMARY, HEADER = "benchmarks/results/bounds.csv", "benchmarks/results/bounds.md", "include/zulgenpx.h"
PLOT = "benchmarks/results/bounds.svg"
MEDIAN_DUE = 20
ELEMENTS = ["64f", "32f"]
FACTORS = ["none", "root", "whole"]
SETTINGS = ["sse2", "extended", "double"]


class Row:
    """A transform at one element and factor: its bound, and the worst trial of all machines and inputs."""

    def __init__(self, family, element, length, factor, bound, worst=0.0):
        self.family, self.element, self.length, self.factor = family, element, int(length), factor
        self.bound, self.worst = float(bound), float(worst)

    @property
    def key(self):
        return self.family, self.element, self.length, self.factor

    def line(self):
        return f"{self.family},{self.element},{self.length},{self.factor},{self.bound:.3f},{self.worst:.3f}"


def rows_in(text):
    return [Row(*fields) for fields in csv.reader(text.splitlines()) if fields[0] != "family"]


def trials_in(text):
    """Key, greatest error and number of inputs of each line that `accuracy` prints, of settings that bounds are for."""
    for family, element, length, factor, setting, inputs, _, _, greatest in csv.reader(text.splitlines()):
        if setting in SETTINGS:
            yield (family, element, int(length), factor), float(greatest), int(inputs)


def printed_by(*command):
    return subprocess.run(command, stdout=subprocess.PIPE, check=True, text=True).stdout


def within(family, first, last):
    return lambda row: row.family == family and first <= row.length <= last


def dft(names, primes):
    return lambda row: row.family.startswith(names) and has_prime_from_11(row.length) == primes


GROUPS = {
    "complex, Hartley, no prime >= 11": dft(("complex", "hartley"), False),
    "complex, Hartley, a prime >= 11": dft(("complex", "hartley"), True),
    "real forward, no prime >= 11": dft("real_forward", False),
    "real forward, a prime >= 11": dft("real_forward", True),
    "real inverse, no prime >= 11": dft("real_inverse", False),
    "real inverse, a prime >= 11": dft("real_inverse", True),
    "Walsh-Hadamard, orders 1 to 7": within("wht", 1, 7),
    "Walsh-Hadamard, orders 8 to 11": within("wht", 8, 11),
    "Walsh-Hadamard, orders 12 and 13": within("wht", 12, 13),
    "DCT-IV, 2 to 32 points": within("dct4", 2, 32),
    "DCT-IV, 64 to 2048 points": within("dct4", 64, 2048),
    "DCT-IV, 4096 to 65536 points": within("dct4", 4096, 65536),
}
FAMILIES = {"complex_forward": "complex forward", "complex_inverse": "complex inverse", "real_forward": "real forward",
            "real_inverse": "real inverse", "hartley": "Hartley"}


def up(figure, digits):
    return f"{math.ceil(round(figure * 10 ** digits, 6)) / 10 ** digits:.{digits}f}"


def pair(rows, digits=2):
    """The greatest bound of these rows and their worst trial."""
    if not rows:
        return "", ""
    return up(max(row.bound for row in rows), digits), up(max(row.worst for row in rows), digits)


def columns(rows):
    for element in ELEMENTS:
        here = [row for row in rows if row.element == element]
        yield [row for row in here if row.factor == "none"]
        yield here if any(row.factor != "none" for row in here) else []


def median(rows):
    return statistics.median(row.bound / row.worst for row in rows)


INTRODUCTION = """\
# Error bounds

    scripts/bounds

Every bound here is proved: no input, and no way in which steps are rounded, gives a greater error, as long as nothing
is so large that it overflows or so small that it is no normal number. It is computed from the graph of the transform
(`generator/errors/error_bound.h` tells how), with the constants as they are stored. The DCT-IV above 32 points is bound
pass by pass, tables and splits included (`generator/errors/dct4_bound.h`).

The measure is the greatest error of one output over the root mean square of the input times sqrt(N), which is the
2-norm of the input, and over the factor: in units of 2^-53 for 64f and 2^-24 for 32f. The error of a complex output is
its modulus. Each cell has two figures: the bound, and the worst of {inputs} trials of each routine on x86-64 and of
{inputs_win32} on 32-bit Windows (2^26/N of the DCT-IV from 4096 points on). A quarter of the inputs is noise. Half are
rows of a transform in a hundredth of noise, so that nearly all of an input goes into one output. A quarter has three
values or fewer. *Factor 1*: the flag is 8. *Any flag*: the greatest figure of all flags. Figures are rounded up.

The layouts of a real spectrum give the same bits; Pack is measured. All targets and levels give the same bits, but for
32-bit Windows, where a step is rounded to 64 bits, or to 53, and once more to 53 where its result is kept in memory:
the bounds are for such a step. With registers of 64 bits, one use of a value may find it in its register and another
one in memory, rounded once more. The bounds count that as well; without it, some would be up to 7 % smaller. The worst
trial is that of x86-64 and of 32-bit Windows, its registers at 64 and at 53 bits. [Other settings of its
unit](accuracy-x87.md) are no part of the bounds.

![Bounds and worst trials by length](bounds.svg)

Half of the {count} bounds are at most {all:.1f} times the worst trial: {64f:.1f} times in 64f, {32f:.1f} times in 32f.
"""


def summary(rows, inputs, inputs_win32):
    medians = {element: median([row for row in rows if row.element == element]) for element in ELEMENTS}
    lines = [INTRODUCTION.format(inputs=inputs, inputs_win32=inputs_win32, count=len(rows), all=median(rows),
                                 **medians),
             "## Greatest figures", "",
             "| bound, worst | 64f, factor 1 | 64f, any flag | 32f, factor 1 | 32f, any flag |",
             "|---|--:|--:|--:|--:|"]
    for name, belongs in GROUPS.items():
        cells = [", ".join(pair(chosen)).strip(", ") for chosen in columns([row for row in rows if belongs(row)])]
        lines.append(f"| {name} | {' | '.join(cells)} |")
    for element in ELEMENTS:
        lines += ["", f"## {element}", "", "| N | " + " | ".join(f"{name} | any flag" for name in FAMILIES.values())
                  + " |", "|--:" + "|--:" * 10 + "|"]
        here = [row for row in rows if row.element == element]
        for length in range(2, 65):
            cells = []
            for family in FAMILIES:
                same = [row for row in here if (row.family, row.length) == (family, length)]
                cells += [", ".join(pair([row for row in same if row.factor == "none"])), ", ".join(pair(same))]
            lines.append(f"| {length} | {' | '.join(cells)} |")
        lines += ["", "| points | Walsh-Hadamard | any flag | DCT-IV |", "|--:|--:|--:|--:|"]
        for order in range(1, 17):
            wht = [row for row in here if (row.family, row.length) == ("wht", order)]
            dct4 = [row for row in here if (row.family, row.length) == ("dct4", 1 << order)]
            cells = [", ".join(pair(chosen)).strip(", ")
                     for chosen in ([row for row in wht if row.factor == "none"], wht, dct4)]
            lines.append(f"| {1 << order} | {' | '.join(cells)} |")
    return "\n".join(lines) + "\n"


FIRST_OF_HEADER = "                                             64f, times 2^-53"


def header_lines(rows):
    lines = [FIRST_OF_HEADER + "                32f, times 2^-24",
             "                                         factor 1        any flag        factor 1        any flag"]
    for name, belongs in GROUPS.items():
        cells = [pair(chosen) for chosen in columns([row for row in rows if belongs(row)])]
        lines.append(f"     {name:33}" + " ".join(f"{bound:>8} {worst:>6}" for bound, worst in cells))
    return [line.rstrip() for line in lines]


def header_place():
    lines = read(HEADER).split("\n")
    start = next(i for i, line in enumerate(lines) if line.startswith(FIRST_OF_HEADER))
    return lines, start, lines.index("", start)


def plot(rows):
    """Bound and worst trial of each length, at factor 1."""
    from plots import plt, LINES, mark_primes, save  # pylint: disable=import-outside-toplevel
    figure, both = plt.subplots(2, 1, figsize=(9, 6.4), sharex=True, constrained_layout=True)
    figure.suptitle("Greatest error of an output over the input's root mean square times sqrt(N): proved bound (lines) "
                    "and worst of 100,000 trials (dots)", fontsize=9)
    for axes, element, unit in zip(both, ELEMENTS, ("2^-53", "2^-24")):
        mark_primes(axes)
        for family, (name, colour) in LINES.items():
            here = [row for row in rows if (row.family, row.element, row.factor) == (family, element, "none")]
            axes.plot([row.length for row in here], [row.bound for row in here], color=colour, lw=1, label=name)
            axes.plot([row.length for row in here], [row.worst for row in here], color=colour, lw=0, marker="o", ms=2.5)
        axes.set_yscale("log", base=2)
        axes.yaxis.set_major_formatter(lambda tick, _: f"{tick:g}")
        axes.set_ylabel(f"{element}, times {unit}")
        axes.set_xlim(1, 65)
    both[0].legend(ncol=4, loc="upper left")
    both[1].set_xlabel("length; primes are shaded")
    save(figure, os.path.join(TREE, PLOT))


def above(trials, bounds):
    """Says which trials are above their bounds. A transform without a bound has none to be above of."""
    faults = 0
    for key, greatest, _ in trials:
        if key in bounds and greatest > bounds[key].bound:
            faults += 1
            print(f"{' '.join(map(str, key))}: an error of {greatest} is above the bound {bounds[key].bound}")
    return faults


def write_all(bounds, paths):
    rows = {row.key: row for row in rows_in(read(os.path.abspath(bounds)))}
    fewest = []
    for path in paths:
        counts = []
        for key, greatest, inputs in trials_in(read(os.path.abspath(path))):
            rows[key].worst = max(rows[key].worst, greatest)
            if key[0] != "dct4" or key[2] < 4096:
                counts.append(inputs)
        fewest.append(min(counts))
    missing = [key for key, row in rows.items() if row.worst == 0]
    if missing:
        sys.exit(f"no trial of {missing[0]}, nor of {len(missing) - 1} more")
    return write_pages(list(rows.values()), fewest)


def inputs_told():
    """The numbers of inputs that the summary tells, on x86-64 and on 32-bit Windows."""
    return re.search(r"the worst of (\d+) trials of each routine on x86-64 and of\s(\d+)", read(SUMMARY)).groups()


def renew(generate):
    worst = {row.key: row.worst for row in rows_in(read(TABLE))}
    rows = rows_in(printed_by(generate, "bounds"))
    for row in rows:
        row.worst = worst[row.key]
    return write_pages(rows, inputs_told())


def write_pages(table, fewest):
    write(TABLE, "\n".join(["family,element,length,factor,bound,worst", *(row.line() for row in table)]) + "\n")
    write(SUMMARY, summary(table, *fewest))
    lines, start, end = header_place()
    write(HEADER, "\n".join(lines[:start] + header_lines(table) + lines[end:]))
    plot(table)
    return 0


def check(generate):
    rows = rows_in(read(TABLE))
    faults = 0

    def fail(what):
        nonlocal faults
        faults += 1
        print(what)

    due = {row.key: row for row in rows_in(printed_by(generate, "bounds"))}
    if list(due) != [row.key for row in rows]:
        fail(f"{TABLE} has other rows than `generate bounds`")
    for row in rows:
        if row.key in due and abs(row.bound - due[row.key].bound) > 0.0011:  # the last place, rounded otherwise
            fail(f"{TABLE} has the bound {row.bound} of {row.key}; due is {due[row.key].bound}")
        if not 0 < row.worst <= row.bound:
            fail(f"{' '.join(map(str, row.key))}: the worst trial, {row.worst}, is not below the bound {row.bound}")
    if median(rows) > MEDIAN_DUE:
        fail(f"half of the bounds are more than {median(rows)} times the worst trial")
    inputs = inputs_told()
    if read(SUMMARY) != summary(rows, *inputs):
        fail(f"{SUMMARY} is not what {TABLE} says")
    lines, start, end = header_place()
    if lines[start:end] != header_lines(rows):
        fail(f"{HEADER}, line {start + 1}, is not what {TABLE} says")
    if int(inputs[0]) < 100000:
        fail(f"{inputs[0]} trials are too few")
    print(f"{len(rows)} bounds, {faults} faults")
    return 1 if faults else 0


def hold(accuracy, inputs):
    bounds = {row.key: row for row in rows_in(read(TABLE))}
    trials = list(trials_in(printed_by(accuracy, "--mixed", inputs)))
    faults = above(trials, bounds)
    held = {key for key, _, _ in trials} & set(bounds)
    if held != set(bounds):
        print(f"{len(bounds) - len(held)} transforms have had no trial")
        faults += 1
    print(f"{len(held)} bounds, {faults} faults")
    return 1 if faults else 0


def main():
    verb, *files = sys.argv[1:] or [""]
    if verb == "write" and len(files) == 3:
        return write_all(files[0], files[1:])
    if verb == "renew" and len(files) == 1:
        return renew(files[0])
    if verb == "check" and len(files) == 1:
        return check(files[0])
    if verb == "hold" and len(files) == 2:
        return hold(*files)
    sys.exit(__doc__)


sys.exit(main())
