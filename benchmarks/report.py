"""Reads the records of one run of scripts/bench and writes its table, pictures and figures.

report.py RECORDS RESULTS COMMAND

RECORDS holds *.json of the program bench and x87.* of the program cycles; RESULTS/DATE-MACHINE.md, .json and *.svg are
written. COMMAND is the command line that the report shows. If builds of the library are compared without peers, the
name ends with -builds, and there are no pictures.
"""
import collections
import datetime
import glob
import json
import os
import re
import subprocess
import sys

TREE = os.path.dirname(os.path.dirname(os.path.abspath(__file__)))
sys.path.insert(0, os.path.join(TREE, "tests", "machine"))

import floors  # noqa: E402
import measurements  # noqa: E402
import plots  # noqa: E402
import tables  # noqa: E402
from binary import Library  # noqa: E402

ORDER = list(tables.TITLES)

Item = collections.namedtuple("Item", "size ours figures floor code_bytes")


def exported_name(family, element, size):
    """What a contest times; the name of a plan's routine has the length added."""
    width = "64" if element == "double" else "32"
    if family == "dct4":
        return f"zulgDCT4_{width}f/{size}"
    key = ("WHT", size.bit_length() - 1, width) if family == "wht" else (floors.KERNELS.get(family), size, width)
    return floors.EXPORTS[key]["name"] if key in floors.EXPORTS else None


def machine():
    text = subprocess.run(["lscpu"], check=True, capture_output=True, text=True, env={"LC_ALL": "C"}).stdout
    fields = dict(re.findall(r"^([^:]+):\s+(.*)$", text, re.M))
    return {key: fields.get(key, "") for key in
            ("Model name", "CPU family", "Model", "CPU(s)", "L1i cache", "L1d cache", "L2 cache", "L3 cache",
             "Hypervisor vendor")}


def compiler():
    return subprocess.run(["c++", "--version"], check=True, capture_output=True, text=True).stdout.splitlines()[0]


def families_of(contests, library):
    """(family, element) -> items by size, in the order of the report."""
    found = collections.defaultdict(list)
    for contest, figures in contests.items():
        if contest.count("/") != 2 or "zulgenpx" not in figures:
            continue
        family, element, size = contest.split("/")
        size = int(size)
        counts = floors.counts(family, size)
        name = exported_name(family, element, size)
        code_bytes = None
        if family in floors.KERNELS and name in library.exports:
            routine = library.routine(library.kernels(library.slot_address(name))[-1])
            code_bytes = sum(instruction.size for instruction in routine)
        found[family, element].append(
            Item(size, figures["zulgenpx"], figures, floors.scalar(*counts) if counts else None, code_bytes))
    keys = sorted(found, key=lambda key: (ORDER.index(key[0]) if key[0] in ORDER else len(ORDER), key[1]))
    return {key: sorted(found[key]) for key in keys}


def steps_of(cycles):
    """(family, element) -> (size, cycles, steps, spread) of the 32-bit library."""
    found = collections.OrderedDict()
    for family in [*floors.KERNELS, "wht", "dct4"]:
        for element in ("double", "single"):
            for size in floors.LENGTHS if family in floors.KERNELS else [1 << digits for digits in range(1, 17)]:
                name = exported_name(family, element, size)
                if name in cycles:
                    found.setdefault((family, element), []).append(
                        (size, cycles[name][0], floors.x87(*floors.counts(family, size)), cycles[name][1]))
    return found


def compact(contests, cycles, about):
    """The figures without the single repetitions: nanoseconds, cycles, spread."""
    def short(value):
        return float(f"{value:.4g}")
    return {"about": about,
            "columns": ["nanoseconds", "cycles", "spread"],
            "contests": {contest: {name: [short(value) for value in figure] for name, figure in sorted(figures.items())}
                         for contest, figures in sorted(contests.items())},
            "x87": {name: [short(value) for value in values] for name, values in sorted(cycles.items())}}


def document(about, families, loads, steps, stem):
    yield f"# Timings, {about['date']}, {about['machine']['Model name']}"
    yield ""
    yield f"    {about['command']}"
    yield ""
    yield "; ".join(f"{key} {value}" for key, value in about["machine"].items() if value) + "."
    yield f"{about['compiler']}; {about['processes']} processes."
    yield ""
    yield ("Times are of one call. Ratios are peer time over ours: above 1 we lead. How it is measured and how to read "
           "it: [README](../README.md).")
    for picture in ("packaged", "ratio", "floor", "batches", "sizes"):
        if os.path.exists(f"{stem}-{picture}.svg"):
            yield f"\n![{picture}]({os.path.basename(stem)}-{picture}.svg)"
    for title, table in (("Summary", tables.summary(families)),
                         ("Other builds: their time over that of this one", tables.builds_table(families))):
        lines = list(table)
        if lines:
            yield f"\n## {title}\n"
            yield from lines
    dispatched = list(tables.dispatch_text({key: items for key, items in families.items()
                                            if key[0].startswith("dispatch_")}))
    if dispatched:
        yield "\n## Dispatchers\n"
        yield from dispatched
    if loads:
        yield "\n## Loading and unloading a library\n"
        yield from tables.load_text(loads)
    if steps:
        yield "\n## 32-bit DLL in wine: cycles over steps, from N = 5\n"
        yield from tables.x87_table(steps)
    for (family, element), items in families.items():
        if not family.startswith("dispatch_"):
            yield f"\n## {tables.TITLES.get(family, family)}, {element}\n"
            yield from tables.family_table(items)
    if steps:
        for title, is_kernel in (("lengths", True), ("sizes", False)):
            part = {key: values for key, values in steps.items() if (key[0] in floors.KERNELS) == is_kernel}
            if part:
                yield f"\n## 32-bit DLL in wine: cycles / steps, by {title}\n"
                yield from tables.x87_lengths(part)


def main():
    records, results, command = sys.argv[1:]
    paths = sorted(glob.glob(os.path.join(records, "*.json")))
    contests = measurements.settle(paths)
    cycles = measurements.settle_cycles(sorted(glob.glob(os.path.join(records, "x87.*"))))
    about = {"date": datetime.date.today().isoformat(), "command": command, "machine": machine(),
             "compiler": compiler(), "processes": len({path.rsplit(".", 2)[1] for path in paths})}
    families = families_of(contests, Library(os.path.join(TREE, "build/native/libzulgenpx-7.0.so"), "objdump"))
    about_machine = about["machine"]
    slug = re.sub(r"[^a-z0-9]+", "-", about_machine["Model name"].lower()).strip("-")
    name = f"{about['date']}-{slug}-family-{about_machine['CPU family']}-model-{about_machine['Model']}"
    has_builds = any(tables.other_builds(items) for items in families.values())
    has_peers = any(peer in figures for figures in contests.values() for peer, _ in tables.PEERS)
    os.makedirs(results, exist_ok=True)
    stem = os.path.join(results, f"{name}-builds" if has_builds and not has_peers else name)
    for picture in glob.glob(f"{stem}-*.svg"):  # of an earlier run on the same day
        os.remove(picture)
    if has_peers or not has_builds:
        plots.packaged(families, f"{stem}-packaged.svg")
        plots.ratios(families, f"{stem}-ratio.svg")
        plots.floors(families, f"{stem}-floor.svg")
        plots.batches(families, f"{stem}-batches.svg")
        plots.over_size(families, f"{stem}-sizes.svg")
    with open(f"{stem}.json", "w", encoding="utf-8") as file:
        json.dump(compact(contests, cycles, about), file, separators=(",", ":"))
        file.write("\n")
    with open(f"{stem}.md", "w", encoding="utf-8") as file:
        file.write("\n".join(document(about, families, contests.get("load", {}), steps_of(cycles), stem)) + "\n")
    for line in tables.builds_table(families):
        print(line)
    print(f"{stem}.md")


if __name__ == "__main__":
    main()
