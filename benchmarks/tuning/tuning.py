"""The tables of what lane texts like, for scripts/tune: makes the alternatives that are timed, and writes the tables.

tuning.py prepare FOLDER [--folder TEXTS] [--length N]    a folder for each alternative, with tables of its own; prints
                                                          their names
tuning.py settle RECORDS... [--check]                     the tables, from what tune_times printed

An alternative is made of two choices: whether a text has the order of steps that is usual for its form or the other
one, and whether the compiler keeps that order or may change it. Each choice that is not the usual one is a row of a
table, and a text has those rows that save the most time, where each row saves LEAST_GAIN percent or more: without it
its kernels take longer by the figure that the row tells. That figure is the geometric mean over the kernels of the
text, both elements, all levels that take it, and the places at which a kernel lies in the code. The time of a kernel at
a place is the least that any process had.
"""
import collections
import datetime
import math
import pathlib
import re
import sys

TREE = pathlib.Path(__file__).resolve().parents[2]
LEAST_GAIN = 3
OTHER_ORDER = {"pairs": "bisection", "lines": "blocks"}  # than the usual one of the form
TEXT = re.compile(r'"kernels/(\w+)/\w+\.h (pairs|lines) \w+ (\d+) ')

# The alternatives, by the choices that are not the usual ones.
ALTERNATIVES = {"usual": set(), "other": {"order"}, "scheduled": {"compiler"}, "both": {"order", "compiler"}}

PATHS = {"order": pathlib.Path("targets", "x86_64", "tuning.txt"),
         "compiler": pathlib.Path("targets", "x86_64_v3", "scheduled.txt")}
HEADS = {"order": """\
# What this machine likes: texts in lanes whose order of steps is settled by measurement. scripts/tune writes this file.
# A text without a row has the usual order of its form: two lanes block by block, four by recursive bisection.
#
#   folder, length   the text: that of this length in kernels/FOLDER
#   order            blocks or bisection: the other one
#   gain             by how many percent its kernels take longer without this row; {least} at least
#
# {written}
#
# folder               length  order      gain
""", "compiler": """\
# What this machine likes: texts in lanes whose steps the compiler may put into another order, so that fewer of them
# wait for each other. scripts/tune writes this file. Kernels of all other texts keep the order of the text.
#
#   folder, length   the text: that of this length in kernels/FOLDER
#   gain             by how many percent its kernels take longer without this row; {least} at least
#
# {written}
#
# folder               length  gain
"""}


def all_texts():
    """(folder, length) -> the order that is not usual."""
    texts = (TREE / "kernels" / "texts.cmake").read_text(encoding="utf-8")
    return {(folder, int(length)): OTHER_ORDER[form] for folder, form, length in TEXT.findall(texts)}


def row(choice, text, order, gain):
    columns = f"{text[0]:<20} {text[1]:>8}"
    return f"{columns}  {order:<9} {gain:>5}\n" if choice == "order" else f"{columns}  {gain:>4}\n"


def rows_of(path):
    """(folder, length) -> gain."""
    rows = {}
    for line in path.read_text(encoding="utf-8").splitlines() if path.exists() else ():
        columns = line.split("#")[0].split()
        if columns:
            rows[columns[0], int(columns[1])] = columns[-1]
    return rows


def write_if_changed(path, text):
    if not path.exists() or path.read_text(encoding="utf-8") != text:
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_text(text, encoding="utf-8")


def prepare(folder, options):
    texts = {text: order for text, order in all_texts().items()
             if options.get("--folder", text[0]) == text[0] and options.get("--length", str(text[1])) == str(text[1])}
    if not texts:
        sys.exit("no text of " + " ".join(options.values()))
    for alternative, choices in ALTERNATIVES.items():
        for choice, path in PATHS.items():
            write_if_changed(folder / alternative / path, "".join(
                row(choice, text, order, 0) for text, order in texts.items() if choice in choices))
        write_if_changed(folder / alternative / "texts.txt", "".join(
            f"{name} {length}\n" for name, length in texts))
    return ALTERNATIVES.keys()


def least_times(records):
    """(folder, length) -> (kernel, element, place) -> alternative -> ticks."""
    times = collections.defaultdict(lambda: collections.defaultdict(dict))
    for record in records:
        for line in pathlib.Path(record).read_text(encoding="ascii").splitlines():
            folder, length, kernel, element, module, ticks = line.split()
            alternative, place = module.split(".")
            of_module = times[folder, int(length)][kernel, element, place]
            of_module[alternative] = min(float(ticks), of_module.get(alternative, math.inf))
    return times


def settled(kernels):
    """The rows of a text, choice -> gain."""
    means = {alternative: math.fsum(math.log(ticks[alternative]) for ticks in kernels.values()) / len(kernels)
             for alternative in ALTERNATIVES}
    least = math.log1p(LEAST_GAIN / 100) - 1e-12
    best = min(ALTERNATIVES, key=lambda name: means[name] + least * len(ALTERNATIVES[name]))
    gains = {}
    for choice in ALTERNATIVES[best]:
        without = next(name for name in ALTERNATIVES if ALTERNATIVES[name] == ALTERNATIVES[best] - {choice})
        gains[choice] = 100 * math.expm1(means[without] - means[best])
    return gains


def machine():
    text = pathlib.Path("/proc/cpuinfo").read_text(encoding="ascii")
    fields = dict(re.findall(r"^([^:\n]+?)\s*:\s*(.*)$", text, re.M))
    return f"{fields['model name']}, family {fields['cpu family']}, model {fields['model']}"


def settle(records, is_check):
    times, texts = least_times(records), all_texts()
    gains = {text: settled(kernels) for text, kernels in times.items()}
    part = "all texts" if len(times) == len(texts) else f"the last time {len(times)} of the {len(texts)} texts"
    for choice, path in PATHS.items():
        before, table = rows_of(TREE / path), {}
        for text in texts:
            if text in gains and choice in gains[text]:
                table[text] = f"{gains[text][choice]:.0f}"
            elif text in before and text not in times:
                table[text] = before[text]
            if text in table or text in before:
                print(f"{choice:<9}" + row(choice, text, texts[text], table.get(text, "no row")).rstrip() +
                      f"   before: {before.get(text, 'no row')}")
        if is_check:
            continue
        written = f"Measured {datetime.date.today()} on {machine()}: {part}."
        head = HEADS[choice].format(least=LEAST_GAIN, written=written)
        (TREE / path).write_text(head + "".join(row(choice, text, texts[text], gain) for text, gain in table.items()),
                                 encoding="utf-8")
        print(f"{path}: {len(table)} rows")


def main(verb, *words):
    if verb == "prepare":
        print(*prepare(pathlib.Path(words[0]), dict(zip(words[1::2], words[2::2]))))
    else:
        settle([word for word in words if word != "--check"], "--check" in words)


if __name__ == "__main__":
    main(*sys.argv[1:])
