"""The table of orders of the lane texts, for scripts/tune: makes the alternatives that are timed, and writes the table.

tuning.py prepare FOLDER [--folder TEXTS] [--length N]    a folder for each alternative, with a table of its own
tuning.py settle RECORDS... [--check]                     the table, from what tune_times printed

An alternative is a table with a row for each text, or with no row. A text gets its row if its kernels take longer by
LEAST_GAIN percent or more without it, and the row says by how many. That figure is the geometric mean over the kernels
of the text, both elements, all levels that take it, and the places at which a kernel lies in the code. The time of a
kernel at a place is the least that any process had.
"""
import collections
import datetime
import math
import pathlib
import re
import sys

TREE = pathlib.Path(__file__).resolve().parents[2]
TABLE = pathlib.Path("targets", "x86_64", "tuning.txt")
LEAST_GAIN = 5
OTHER_ORDER = {"pairs": "bisection", "lines": "blocks"}  # than the usual one of the form
TEXT = re.compile(r'"kernels/(\w+)/\w+\.h (pairs|lines) \w+ (\d+) ')

HEAD = """\
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
"""


def all_texts():
    """(folder, length) -> the order that is not usual."""
    texts = (TREE / "kernels" / "texts.cmake").read_text(encoding="utf-8")
    return {(folder, int(length)): OTHER_ORDER[form] for folder, form, length in TEXT.findall(texts)}


def rows_of(path):
    """(folder, length) -> gain."""
    rows = {}
    for line in path.read_text(encoding="utf-8").splitlines() if path.exists() else ():
        columns = line.split("#")[0].split()
        if columns:
            folder, length, _, gain = columns
            rows[folder, int(length)] = gain
    return rows


def write_if_changed(path, text):
    if not path.exists() or path.read_text(encoding="utf-8") != text:
        path.write_text(text, encoding="utf-8")


def prepare(folder, options):
    texts = {text: order for text, order in all_texts().items()
             if options.get("--folder", text[0]) == text[0] and options.get("--length", str(text[1])) == str(text[1])}
    if not texts:
        sys.exit("no text of " + " ".join(options.values()))
    for alternative in ("usual", "other"):
        tables = folder / alternative / TABLE
        tables.parent.mkdir(parents=True, exist_ok=True)
        write_if_changed(tables, "".join(f"{name} {length} {order} 0\n" for (name, length), order in texts.items()
                                         if alternative == "other"))
        write_if_changed(folder / alternative / "texts.txt", "".join(
            f"{name} {length}\n" for name, length in texts))


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
    """The gain of the row: by how many percent the usual order takes longer than the other one. None for no row."""
    logarithms = [math.log(ticks["usual"] / ticks["other"]) for ticks in kernels.values()]
    gain = 100 * math.expm1(sum(logarithms) / len(logarithms))
    return gain if gain >= LEAST_GAIN else None


def machine():
    text = pathlib.Path("/proc/cpuinfo").read_text(encoding="ascii")
    fields = dict(re.findall(r"^([^:\n]+?)\s*:\s*(.*)$", text, re.M))
    return f"{fields['model name']}, family {fields['cpu family']}, model {fields['model']}"


def settle(records, is_check):
    before, times, texts = rows_of(TREE / TABLE), least_times(records), all_texts()
    table = {}
    for text in texts:
        gain = settled(times[text]) if text in times else None
        if gain is not None:
            table[text] = f"{gain:.0f}"
        elif text in before and text not in times:
            table[text] = before[text]
        if text in table or text in before:
            print(f"{text[0]:<20} {text[1]:>8}  {texts[text]:<9} {table.get(text, 'no row'):>6}"
                  f"   before: {before.get(text, 'no row')}")
    if is_check:
        return
    part = "all texts" if len(times) == len(texts) else f"the last time {len(times)} of the {len(texts)} texts"
    head = HEAD.format(least=LEAST_GAIN, written=f"Measured {datetime.date.today()} on {machine()}: {part}.")
    (TREE / TABLE).write_text(head + "".join(f"{folder:<20} {length:>8}  {texts[folder, length]:<9} {value:>5}\n"
                                             for (folder, length), value in table.items()), encoding="utf-8")
    print(f"{TABLE}: {len(table)} rows")


def main(verb, *words):
    if verb == "prepare":
        prepare(pathlib.Path(words[0]), dict(zip(words[1::2], words[2::2])))
    else:
        settle([word for word in words if word != "--check"], "--check" in words)


if __name__ == "__main__":
    main(*sys.argv[1:])
