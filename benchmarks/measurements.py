"""Reads the records of several runs of the benchmark programs and settles on one figure for each participant.

In one process the figure is the median over its repetitions. The addresses of code and data in physical memory are
settled when a process starts, and the time of a long kernel depends on them. So several processes are timed, and the
best of their medians counts, for ours and for the peers alike. `spread` tells how much slower the worst of them is.
"""
import collections
import json
import re
import statistics

# A repetition counts if the core kept its clock and was not shared: additions per cycle, measured beside it.
LARGEST_DRIFT, LEAST_WIDTH = 0.02, 1.9

Figure = collections.namedtuple("Figure", "nanoseconds cycles spread")

NANOSECONDS = {"ns": 1, "us": 1e3, "ms": 1e6, "s": 1e9}


def repetitions(path):
    """(name, nanoseconds, cycles) of each repetition that counts; cycles are 0 where no clock was taken."""
    with open(path, encoding="utf-8") as file:
        record = json.load(file)
    for run in record["benchmarks"]:
        if run["run_type"] != "iteration":
            continue
        if run.get("error_occurred"):
            raise SystemExit(f"{path}: {run['name']}: {run.get('error_message')}")
        if run.get("drift", 0) > LARGEST_DRIFT or run.get("width", 2) < LEAST_WIDTH:
            continue
        # The time of our thread alone, except where a benchmark takes the time itself.
        time = run["real_time"] if "manual_time" in run["run_name"] else run["cpu_time"]
        nanoseconds = time * NANOSECONDS[run["time_unit"]]
        name = re.sub(r"/(manual_time|iterations:\d+)", "", run["run_name"])
        yield name, nanoseconds, nanoseconds * run.get("clock", 0)


def settle(paths):
    """contest -> participant -> Figure."""
    medians = collections.defaultdict(list)
    for path in paths:
        values = collections.defaultdict(list)
        for name, nanoseconds, cycles in repetitions(path):
            values[name].append((nanoseconds, cycles))
        for name, pairs in values.items():
            medians[name].append(tuple(statistics.median(column) for column in zip(*pairs)))
    contests = collections.defaultdict(dict)
    for name, pairs in medians.items():
        measure = 1 if pairs[0][1] else 0
        best = min(pairs, key=lambda pair: pair[measure])
        worst = max(pair[measure] for pair in pairs)
        contest, participant = name.rsplit("/", 1)
        contests[contest][participant] = Figure(best[0], best[1], worst / best[measure] - 1)
    return contests


def settle_cycles(paths):
    """exported name -> (cycles, spread), from what the program `cycles` prints."""
    medians = collections.defaultdict(list)
    for path in paths:
        with open(path, encoding="ascii") as file:
            for line in file:
                name, cycles = line.split()
                medians[name].append(float(cycles))
    return {name: (min(values), max(values) / min(values) - 1) for name, values in medians.items()}
