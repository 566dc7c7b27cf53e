"""Makes benchmarks/results/accuracy.md of what the program accuracy has printed, and puts the same figures into
docs/accuracy.md and the header, or looks whether these still say the same.

accuracy.py write FILE.csv ...    one file for each target that has bits of its own
accuracy.py plot                  draws accuracy.svg beside it, from its tables
accuracy.py check
"""
import csv
import math
import os
import sys

from tree_files import TREE, has_prime_from_11, read, write

RESULTS, PLOT = "benchmarks/results/accuracy.md", "benchmarks/results/accuracy.svg"
PAGE, HEADER = "docs/accuracy.md", "include/zulgenpx.h"

ELEMENTS = ["64f", "32f"]
DFT = {"complex_forward": "complex forward", "complex_inverse": "complex inverse", "real_forward": "real forward",
       "real_inverse": "real inverse", "hartley": "Hartley"}
MACHINES = {"sse2": "x86-64", "extended": "32-bit DLL", "double": "32-bit DLL, registers set to round to double"}


def within(family, first, last):
    return lambda record: record.family == family and first <= record.length <= last


# What page and header tell apart.
GROUPS = {
    "complex, no prime from 11 up": lambda r: r.family.startswith("complex") and not has_prime_from_11(r.length),
    "complex, a prime from 11 up": lambda r: r.family.startswith("complex") and has_prime_from_11(r.length),
    "real, forward": lambda r: r.family == "real_forward",
    "real, inverse": lambda r: r.family == "real_inverse",
    "Hartley": lambda r: r.family == "hartley",
    "Walsh-Hadamard, orders 1 to 7": within("wht", 1, 7),
    "Walsh-Hadamard, orders 8 to 11": within("wht", 8, 11),
    "Walsh-Hadamard, orders 12 and 13": within("wht", 12, 13),
    "DCT-IV, 2 to 32 points": within("dct4", 2, 32),
    "DCT-IV, 64 to 2048 points": within("dct4", 64, 2048),
    "DCT-IV, 4096 to 65536 points": within("dct4", 4096, 65536),
}


class Record:
    """One line of the program: a routine, at one flag, on one machine."""

    def __init__(self, fields):
        self.family, self.element, length, self.flag, registers, trials, pooled, worst, *_ = fields
        self.machine = MACHINES[registers]
        self.length, self.trials = int(length), int(trials)
        self.pooled, self.worst = float(pooled), float(worst)


def records_of(path):
    with open(path, encoding="utf-8") as file:
        return [Record(row) for row in csv.reader(file)]


def greatest(records):
    """Pooled and worst."""
    return max(r.pooled for r in records), max(r.worst for r in records)


def rounded_up(pair):
    return ", ".join(f"{math.ceil(round(figure * 100, 6)) / 100:.2f}" for figure in pair)


def columns(records):
    """At factor 1 and at any flag, for each element."""
    for element in ELEMENTS:
        of_element = [r for r in records if r.element == element]
        yield greatest([r for r in of_element if r.flag == "none"])
        yield greatest(of_element)


def summary_rows(records):
    rows = ["| pooled, worst | 64f, factor 1 | 64f, any flag | 32f, factor 1 | 32f, any flag |",
            "|---|--:|--:|--:|--:|"]
    for name, belongs in GROUPS.items():
        cells = [rounded_up(pair) for pair in columns([r for r in records if belongs(r)])]
        if name.startswith("DCT-IV"):
            cells[1] = cells[3] = ""
        rows.append(f"| {name} | {' | '.join(cells)} |")
    return rows


def length_rows(records):
    rows = ["| N, DCT-IV | 64f | 32f |", "|--:|--:|--:|"]
    dct4 = [r for r in records if r.family == "dct4"]
    for length in sorted({r.length for r in dct4}):
        cells = [rounded_up(greatest([r for r in dct4 if (r.length, r.element) == (length, element)]))
                 for element in ELEMENTS]
        rows.append(f"| {length} | {' | '.join(cells)} |")
    return rows


def cells_of(row):
    return [cell.strip() for cell in row.strip().strip("|").split("|")]


def header_lengths(rows):
    """The DCT-IV by length as the header has it."""
    cells = [cells_of(row) for row in rows[2:]]
    lines = ["     N          " + "".join(f"{cell[0]:>6}" for cell in cells)]
    for i, element in enumerate(ELEMENTS, 1):
        for j, figure in enumerate(("pooled", "worst")):
            head = element if j == 0 else ""
            lines.append(f"     {head:4}{figure:7}" + "".join(f"{cell[i].split(', ')[j]:>6}" for cell in cells))
    return lines


def details(records):
    for machine in MACHINES.values():
        for element in ELEMENTS:
            here = [r for r in records if (r.machine, r.element) == (machine, element)]
            if not here:
                continue
            yield from [f"## {machine}, {element}", "", "| N | " + " | ".join(
                f"{name} | any flag" for name in DFT.values()) + " |", "|--:" + "|--:" * 10 + "|"]
            for length in sorted({r.length for r in here if r.family in DFT}):
                cells = []
                for family in DFT:
                    same = [r for r in here if (r.family, r.length) == (family, length)]
                    for chosen in ([r for r in same if r.flag == "none"], same):
                        cells.append("{:.2f}, {:.2f}".format(*greatest(chosen)))
                yield f"| {length} | {' | '.join(cells)} |"
            yield from ["", "| points | Walsh-Hadamard | any flag | DCT-IV | inputs |", "|--:|--:|--:|--:|--:|"]
            for order in range(1, 17):
                wht = [r for r in here if (r.family, r.length) == ("wht", order)]
                dct4 = [r for r in here if (r.family, r.length) == ("dct4", 1 << order)]
                cells = ["{:.2f}, {:.2f}".format(*greatest(chosen)) if chosen else ""
                         for chosen in ([r for r in wht if r.flag == "none"], wht, dct4)]
                yield f"| {1 << order} | {' | '.join(cells)} | {(wht + dct4)[0].trials} |"
            yield ""


INTRODUCTION = """\
# Accuracy

    scripts/accuracy

Relative L2 errors, in units of 2^-53 for 64f and 2^-24 for 32f. Each cell has two figures. *Pooled* is the root of all
squared errors over all squared results, over all inputs. *Worst* is the greatest error of a single call: what {inputs}
inputs to each routine have shown (2^28/N from 4096 points on), and no bound. Inputs are normally distributed; each
is multiplied by a factor between sqrt(1/2) and sqrt(2), drawn anew. *Factor 1*: the flag is 8. *Any flag*: the greatest
figure of all four flags, beside results of the exact factor, so that the rounding of the stored factor and of the
product are part of the error.

The layouts of a real spectrum give the same bits; Pack is measured. Both levels of x86-64, 64-bit Windows, 64-bit ARM,
standard C++ on any machine and WebAssembly give the same bits, which the tests `same_bits` hold, so that all of them
have the figures of x86-64. The DCT-IV above 32 points is the same over the same tables; those come from the machine's
sine and cosine, which agree within one unit of the last place. On 32-bit Windows the registers of the processor are
wider than a double, unless the program has set them to round to double; both are measured, and [other
settings](accuracy-x87.md) beside them.

![Pooled and worst errors by length](accuracy.svg)

## Summary

The greatest figures of all lengths and targets, rounded up.
"""


def document(records):
    return "\n".join([INTRODUCTION.format(inputs=max(r.trials for r in records)), *summary_rows(records), "",
                      *length_rows(records), "", *details(records)])


def pooled_and_worst(machine, element):
    """Of each family, lists of lengths, pooled and worst errors at factor 1, from the tables."""
    lines = read(RESULTS).split(f"## {machine}, {element}\n")[1].strip().split("\n\n")[0].split("\n")
    found = {family: ([], [], []) for family in DFT}
    for line in lines[2:]:
        length, *cells = cells_of(line)
        for family, cell in zip(DFT, cells[::2]):
            for figures, figure in zip(found[family], (length, *cell.split(", "))):
                figures.append(float(figure))
    return found


def plot():
    """Pooled and worst errors of each length, a column for each machine."""
    from plots import plt, LINES, mark_primes, save  # pylint: disable=import-outside-toplevel
    figure, grid = plt.subplots(len(ELEMENTS), len(MACHINES), figsize=(13, 6.4), sharex=True, sharey="row",
                                constrained_layout=True)
    figure.suptitle("Relative L2 errors at factor 1: pooled (lines) and worst call (dotted) of 100,000 inputs",
                    fontsize=9)
    for row, element, unit in zip(grid, ELEMENTS, ("2^-53", "2^-24")):
        for axes, machine in zip(row, MACHINES.values()):
            mark_primes(axes)
            found = pooled_and_worst(machine, element)
            for family, (name, colour) in LINES.items():
                lengths, pooled, worst = found[family]
                axes.plot(lengths, pooled, color=colour, lw=1, label=name)
                axes.plot(lengths, worst, color=colour, lw=0.8, ls=":")
            axes.set_xlim(1, 65)
            axes.set_ylim(bottom=0)
            if element == ELEMENTS[0]:
                axes.set_title(machine, fontsize=9)
        row[0].set_ylabel(f"{element}, times {unit}")
    for axes in grid[-1]:
        axes.set_xlabel("length; primes are shaded")
    grid[0][0].legend(loc="upper left")
    save(figure, os.path.join(TREE, PLOT))


def blocks():
    """The summary and the lengths as they are in the results."""
    text = read(RESULTS).splitlines()
    found = []
    for title in ("| pooled, worst |", "| N, DCT-IV |"):
        start = next(i for i, line in enumerate(text) if line.startswith(title))
        found.append(text[start:text.index("", start)])
    return found


def places():
    """File, lines that are due there, and the beginning of the first of them."""
    summary, lengths = blocks()
    return [(PAGE, summary, "| pooled, worst |"),
            (HEADER, header_lengths(lengths), "     N               2     4 ")]


def main():
    verb, *files = sys.argv[1:] or ["", ""]
    if verb == "write" and files:
        write(RESULTS, document([record for path in files for record in records_of(path)]))
        plot()
    elif verb == "plot" and not files:
        return plot()
    elif verb != "check" or files:
        sys.exit(__doc__)
    differ = 0
    for name, due, beginning in places():
        lines = read(name).split("\n")
        start = next(i for i, line in enumerate(lines) if line.startswith(beginning))
        end = lines.index("", start)
        if lines[start:end] == due:
            continue
        differ += 1
        if verb == "write":
            write(name, "\n".join(lines[:start] + due + lines[end:]))
            print(f"{name} is written anew")
        else:
            print(f"{name}, line {start + 1}, is not what {RESULTS} says:")
            print("\n".join(due))
    return 1 if differ and verb == "check" else 0


sys.exit(main())
