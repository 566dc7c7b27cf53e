"""The table of a target's choices, for scripts/tune: makes the alternatives that are timed, and writes the table.

tuning.py prepare FOLDER [--family FAMILY] [--length N]    a folder for each alternative, with a table of its own
tuning.py settle RECORDS... [--check]                      the table, from what tune_times printed

An alternative is a table with a row for each text, or with no row. Of the alternatives of a text the fastest counts in
which each row gains: without it, and with the other row of the text if there is one, the time is longer by LEAST_GAIN
percent or more. That figure stands beside the row. It is the geometric mean over the kernels of the text, both elements
and the places at which a kernel lies in the code. The time of a kernel at a place is the least that any process had.
"""
import collections
import datetime
import math
import pathlib
import re
import shutil
import sys

TREE = pathlib.Path(__file__).resolve().parents[2]
TARGET = pathlib.Path("targets", "x86_64")
TABLE = TREE / TARGET / "tuning.txt"
LEAST_GAIN = 5
# The order of steps serves every target. On x87 the frame of this one would exceed the 1 KB that the header promises.
NOT_BISECTED = {("real_forward", 61)}

ALTERNATIVES = {"plain": (), "bisection": ("bisection",), "speed": ("speed",), "both": ("bisection", "speed")}
# Texts with one real number to a register, of families that have no other form.
TEXT = re.compile(r'"kernels/((?!complex/)\w+)/\w+\.h scalar \w+ (\d+) (\d+) ')

HEAD = """\
# What this machine likes: the choices for a text of kernels that are settled by measurement. scripts/tune writes this
# file. A text without a row has its steps block by block and is compiled with kernel_compile_flags.
#
#   family, length   the text, as `generate show FAMILY LENGTH` takes it
#   choice           bisection: its steps are ordered by recursive bisection
#                    speed: it is compiled with fast_kernel_compile_flags (target.cmake); not for long kernels
#   gain             by how many percent its kernels take longer without this row; {least} at least
#
# {written}
#
# family       length  choice     gain
"""


def all_texts():
    """(family, length) -> whether the target compiles the text by its launcher for long kernels."""
    flags = (TREE / TARGET / "target.cmake").read_text(encoding="utf-8")
    long_steps = int(re.search(r"set\(long_kernel_steps (\d+)\)", flags).group(1))
    texts = (TREE / "kernels" / "texts.cmake").read_text(encoding="utf-8")
    return {(family, int(length)): int(steps) >= long_steps for family, length, steps in TEXT.findall(texts)}


def rows_of(path):
    """(family, length) -> choice -> gain."""
    table = collections.defaultdict(dict)
    for line in path.read_text(encoding="utf-8").splitlines():
        columns = line.split("#")[0].split()
        if columns:
            family, length, choice, gain = columns
            table[family, int(length)][choice] = gain
    return table


def write_if_changed(path, text):
    if not path.exists() or path.read_text(encoding="utf-8") != text:
        path.write_text(text, encoding="utf-8")


def prepare(folder, options):
    texts = {text: is_long for text, is_long in all_texts().items()
             if options.get("--family", text[0]) == text[0] and options.get("--length", str(text[1])) == str(text[1])}
    if not texts:
        sys.exit("no text of " + " ".join(options.values()))
    for alternative, choices in ALTERNATIVES.items():
        target = folder / alternative / TARGET
        target.mkdir(parents=True, exist_ok=True)
        for file in (TREE / TARGET).iterdir():
            if file.is_file() and file.name != TABLE.name:
                shutil.copy2(file, target)
        taken = [text for text, is_long in texts.items()
                 if not ("speed" in choices and is_long) and not ("bisection" in choices and text in NOT_BISECTED)]
        write_if_changed(target / TABLE.name, "".join(
            f"{family} {length} {choice} 0\n" for family, length in taken for choice in choices))
        write_if_changed(folder / alternative / "texts.txt", "".join(
            f"{family} {length}\n" for family, length in taken))


def least_times(records):
    """(family, length) -> (kernel, element, place) -> alternative -> ticks."""
    times = collections.defaultdict(lambda: collections.defaultdict(dict))
    for record in records:
        for line in pathlib.Path(record).read_text(encoding="ascii").splitlines():
            family, length, kernel, element, module, ticks = line.split()
            alternative, place = module.split(".")
            of_module = times[family, int(length)][kernel, element, place]
            of_module[alternative] = min(float(ticks), of_module.get(alternative, math.inf))
    return times


def gain(kernels, taken, instead):
    """By how many percent `instead` takes longer than `taken`."""
    logarithms = [math.log(ticks[instead] / ticks[taken]) for ticks in kernels.values()]
    return 100 * math.expm1(sum(logarithms) / len(logarithms))


def settled(kernels):
    """choice -> gain, of the alternative that is taken."""
    timed = set.intersection(*(set(ticks) for ticks in kernels.values()))
    best, rows_of_best = "plain", {}
    for alternative in ALTERNATIVES:
        if alternative not in timed:
            continue
        choices = ALTERNATIVES[alternative]
        rows = {}
        for choice in choices:
            others = tuple(other for other in choices if other != choice)
            instead = next(name for name, its_choices in ALTERNATIVES.items() if its_choices == others)
            rows[choice] = gain(kernels, alternative, instead)
        if all(value >= LEAST_GAIN for value in rows.values()) \
                and gain(kernels, alternative, best) > 0:
            best, rows_of_best = alternative, rows
    return rows_of_best


def machine():
    text = pathlib.Path("/proc/cpuinfo").read_text(encoding="ascii")
    fields = dict(re.findall(r"^([^:\n]+?)\s*:\s*(.*)$", text, re.M))
    return f"{fields['model name']}, family {fields['cpu family']}, model {fields['model']}"


def settle(records, is_check):
    before, times = rows_of(TABLE), least_times(records)
    texts = all_texts()
    table = {}
    for text in texts:
        table[text] = before.get(text, {})
        if text in times:
            table[text] = {choice: f"{value:.0f}" for choice, value in settled(times[text]).items()}
    for text in sorted(times, key=list(texts).index):
        family, length = text
        for choice in sorted({*table[text], *before.get(text, {})}):
            old, new = before.get(text, {}).get(choice, "no row"), table[text].get(choice, "no row")
            print(f"{family:<12} {length:>7}  {choice:<9} {new:>6}   before: {old}")
    if is_check:
        return
    part = "all texts" if len(times) == len(texts) else f"the last time {len(times)} of the {len(texts)} texts"
    head = HEAD.format(least=LEAST_GAIN, written=f"Measured {datetime.date.today()} on {machine()}: {part}.")
    TABLE.write_text(head + "".join(f"{family:<12} {length:>8}  {choice:<9} {value:>5}\n"
                                    for (family, length), rows in table.items()
                                    for choice, value in sorted(rows.items())), encoding="utf-8")
    print(f"{TABLE.relative_to(TREE)}: {sum(map(len, table.values()))} rows")


def main(verb, *words):
    if verb == "prepare":
        prepare(pathlib.Path(words[0]), dict(zip(words[1::2], words[2::2])))
    else:
        settle([word for word in words if word != "--check"], "--check" in words)


if __name__ == "__main__":
    main(*sys.argv[1:])
