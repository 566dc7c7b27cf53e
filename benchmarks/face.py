"""Counts the instructions of a call, in C and through the C++ headers, the transform included, and prints a table.

face.py PROGRAM     PROGRAM: build/native/face; valgrind must be there
"""
import re
import subprocess
import sys


def instructions(program, way, calls):
    result = subprocess.run(
        ["valgrind", "--tool=callgrind", "--callgrind-out-file=/dev/null", program, way, str(calls)],
        stderr=subprocess.PIPE, text=True, check=True)
    return int(re.search(r"Collected : (\d+)", result.stderr).group(1))


def main():
    program = sys.argv[1]
    names = subprocess.run([program], stdout=subprocess.PIPE, text=True, check=False).stdout.split()
    print("| way | instructions of a call |\n|---|--:|")
    for name in names:
        # The difference leaves out what starting and loading take.
        count = (instructions(program, name, 2000) - instructions(program, name, 1000)) / 1000
        print(f"| {name} | {count:.0f} |")
    return 0


sys.exit(main())
