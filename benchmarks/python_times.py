#!/usr/bin/python3
"""Times the Python package beside numpy.fft and scipy.fft, and prints the tables as Markdown.

python_times.py [--rows N ...] [--columns] [--repetitions N]

The libraries are found as the package finds them: those of build/native, or of ZULGENPX_LIBRARY_DIR. All take turns in
one process and one thread, in another order each time. Time is the thread's own processor time. Of the repetitions the
median counts, and of the ratios of one line the geometric mean. Results are compared before they are timed.
"""
import argparse
import math
import os
import platform
import random
import statistics
import sys
import time

TREE = os.path.dirname(os.path.dirname(os.path.abspath(__file__)))
sys.dont_write_bytecode = True
sys.path.insert(0, os.path.join(TREE, "python"))

import numpy as np  # noqa: E402
import scipy  # noqa: E402
import scipy.fft  # noqa: E402

import zulgenpx  # noqa: E402

LENGTHS = range(2, 65)
POWERS = [2**k for k in range(1, 12)]
SECONDS = 0.001  # of one repetition
SHOWN = (2, 4, 8, 15, 16, 31, 32, 45, 60, 64)


def dct4_of_scipy(x):
    return scipy.fft.dct(x, type=4)


# Name, our function, NumPy's, SciPy's, what it reads, lengths, the factor of SciPy's result.
TRANSFORMS = [
    ("fft", zulgenpx.fft, np.fft.fft, scipy.fft.fft, complex, LENGTHS, 1),
    ("ifft", zulgenpx.ifft, np.fft.ifft, scipy.fft.ifft, complex, LENGTHS, 1),
    ("rfft", zulgenpx.rfft, np.fft.rfft, scipy.fft.rfft, float, LENGTHS, 1),
    ("irfft", zulgenpx.irfft, np.fft.irfft, scipy.fft.irfft, complex, range(2, 34), 1),
    ("dct4", zulgenpx.dct4, None, dct4_of_scipy, float, POWERS, 2),
]


def timed(call, x, number):
    start = time.thread_time_ns()
    for _ in range(number):
        call(x)
    return (time.thread_time_ns() - start) / number


def medians(calls, x, repetitions):
    """Nanoseconds of one call, for each name."""
    numbers = {}
    for name, call in calls.items():
        once = min(timed(call, x, 3) for _ in range(3))
        numbers[name] = max(1, int(SECONDS * 1e9 / once))
    times = {name: [] for name in calls}
    for _ in range(repetitions):
        for name in random.sample(sorted(calls), len(calls)):
            times[name].append(timed(calls[name], x, numbers[name]))
    return {name: statistics.median(all_times) for name, all_times in times.items()}


def mean(values):
    return math.exp(statistics.fmean(map(math.log, values)))


def contest(transform, dtype, rows, axis, repetitions):
    """Median times by length: {length: {participant: nanoseconds}}."""
    name, ours, of_numpy, of_scipy, _, lengths, factor = transform
    source = np.random.default_rng(1)
    found = {}
    for length in lengths:
        shape = (length,) if rows == 1 else (rows, length) if axis == -1 else (length, rows)
        x = source.normal(size=shape)
        x = (x + 1j * source.normal(size=shape) if np.dtype(dtype).kind == "c" else x).astype(dtype)
        calls = {"ours": lambda a: ours(a, axis=axis)}
        if axis == -1:  # as it is usually written
            calls["ours"] = ours
            calls.update({"numpy": of_numpy} if of_numpy else {}, scipy=of_scipy)
        else:
            calls.update({"numpy": lambda a: of_numpy(a, axis=axis), "scipy": lambda a: of_scipy(a, axis=axis)})
        if np.dtype(dtype).itemsize == (8 if np.dtype(dtype).kind == "c" else 4) and name != "dct4":
            calls["in single"] = lambda a: ours(a, axis=axis, precision="single")
        right = of_scipy(x, axis=axis) if axis != -1 else of_scipy(x)
        for call in calls.values():
            result = call(x) * (1 if call is of_scipy else factor)
            if np.linalg.norm((result - right).ravel()) > 1e-5 * np.linalg.norm(right.ravel()):
                raise SystemExit(f"{name} of {length} points gives other results")
        found[length] = medians(calls, x, repetitions)
    return found


def ratios(found, peer, participant="ours"):
    return {length: times[peer] / times[participant] for length, times in found.items() if peer in times}


def summary(values):
    """Geometric mean, and the least of the ratios with its length."""
    if not values:
        return ""
    least = min(values, key=values.get)
    return f"{mean(values.values()):.2f} ({values[least]:.2f} at {least})"


def processor():
    with open("/proc/cpuinfo", encoding="ascii") as file:
        return next((line.partition(":")[2].strip() for line in file if line.startswith("model name")), "unknown")


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--rows", type=int, nargs="+", default=[1000, 1])
    parser.add_argument("--columns", action="store_true", help="go along the first of two axes")
    parser.add_argument("--repetitions", type=int, default=7)
    args = parser.parse_args()
    random.seed(1)

    print(f"{time.strftime('%Y-%m-%d')}, {processor()}; Python {platform.python_version()}, NumPy {np.__version__}, "
          f"SciPy {scipy.__version__};\none process, one thread and its own processor time, medians of "
          f"{args.repetitions} repetitions, by\n")
    print("    " + " ".join(["benchmarks/python_times.py", *sys.argv[1:]]) + "\n")
    print("Figures are the peer's time over ours: the geometric mean over all lengths, and the least with its length. "
          "Above 1 we\nlead. NumPy computes singles in double and so do we, unless single is asked for; SciPy computes "
          "them in single.\n")
    print("| transform | type | transforms in a call | NumPy | SciPy | SciPy, ours in single |")
    print("|---|---|---|--:|--:|--:|")
    details = []
    axis = 0 if args.columns else -1
    for rows in args.rows:
        for transform in TRANSFORMS:
            if axis == 0 and transform[0] == "dct4":  # its lengths make too large a matrix
                continue
            for is_single in (False, True):
                dtype = {complex: ("complex128", "complex64"), float: ("float64", "float32")}[transform[4]][is_single]
                found = contest(transform, dtype, rows, axis, args.repetitions)
                alone = {length: times["scipy"] / times["in single"] for length, times in found.items()
                         if "in single" in times}
                shape = "1" if rows == 1 else f"{rows}, {'rows' if axis == -1 else 'columns'}"
                print(f"| `{transform[0]}` | {dtype} | {shape} | {summary(ratios(found, 'numpy'))} | "
                      f"{summary(ratios(found, 'scipy'))} | {summary(alone)} |", flush=True)
                if transform[0] == "fft" and axis == -1:
                    details.append((f"`fft`, {dtype}, {shape}", found))
    for title, found in details:
        print(f"\n## {title}\n\nMicroseconds for a call.\n")
        names = [name for name in ("ours", "in single", "numpy", "scipy") if name in found[LENGTHS[0]]]
        print("| N | " + " | ".join(names) + " |\n|--:|" + "--:|" * len(names))
        for length in SHOWN:
            print(f"| {length} | " + " | ".join(f"{found[length][name] / 1000:.1f}" for name in names) + " |")


main()
