"""Runs a test program on the library of one level, or says that this processor does not have the level.

level.py LEVEL LIBRARY PROGRAM [ARGUMENT ...]     exit code 77 if the level is missing
"""
import os
import sys

NEEDS = {"x86_64": set(), "x86_64_v3": {"avx2"}}


def flags():
    with open("/proc/cpuinfo", encoding="ascii", errors="replace") as file:
        return next((set(line.split(":")[1].split()) for line in file if line.startswith("flags")), set())


def main():
    level, library, *command = sys.argv[1:]
    missing = NEEDS[level] - flags()
    if missing:
        print(f"skipped: this processor has no {', '.join(sorted(missing))}")
        return 77
    os.environ["ZULG_TEST_LIBRARY"] = library
    os.execv(command[0], command)


sys.exit(main())
