"""Tells whether two builds of the library give the same bits, export by export.

same_bits.py [--run WORD ...] compare DIGESTS LIBRARY OTHER   prints the exports that differ; exit code 1 if any do
same_bits.py [--run WORD ...] check DIGESTS LIBRARY FILE [KIND ...]   the same against a committed list
same_bits.py [--run WORD ...] write DIGESTS LIBRARY FILE      accepts the library's bits as that list

DIGESTS is the program digests.cpp. --run: what runs it where the machine itself cannot (tests/launcher.py). KIND is a
kind of input: moderate, wide, zeros, extreme. A list leaves out the DCT-IV above 32 points, which depends on each
machine's own sine and cosine.
"""
import os
import re
import subprocess
import sys

sys.path.insert(0, os.path.dirname(os.path.dirname(os.path.abspath(__file__))))
from launcher import launcher_and_rest  # noqa: E402


def digests(run, program, library):
    done = subprocess.run([*run, program, library], capture_output=True, text=True)
    if done.returncode != 0:
        sys.exit(f"{program} {library}: {done.stderr.strip()}")
    # The name, for some with a length after it, and the kind; then the digest.
    return dict(line.rsplit(" ", 1) for line in done.stdout.splitlines())


def has_table(key):
    length = re.match(r"zulgDCT4Init_\d+f (\d+) ", key)
    return length is not None and int(length[1]) > 32


def report(found, due, kinds):
    keys = [key for key in due if key.rsplit(" ", 1)[1] in kinds]
    different = [key for key in keys if found.get(key) != due[key]]
    for key in different[:40]:
        print(f"{key}: {found.get(key, 'missing')}, due is {due[key]}")
    if len(different) > 40:
        print(f"(and {len(different) - 40} more)")
    print(f"{len(keys)} digests compared, {len(different)} differ")
    return 1 if different or not keys else 0


def main():
    run, words = launcher_and_rest(sys.argv[1:])
    if len(words) < 4 or words[0] not in ("compare", "check", "write"):
        sys.exit(__doc__.strip())
    verb, program, library, other, *kinds = words
    kinds = kinds or ["moderate", "wide", "zeros", "extreme"]
    found = digests(run, program, library)
    if verb == "compare":
        return report(digests(run, program, other), found, kinds)
    if verb == "write":
        with open(other, "w", encoding="ascii") as file:
            file.write("# Written by same_bits.py write; do not edit. Export, kind of input, digest of its results.\n")
            file.writelines(f"{key} {digest}\n" for key, digest in found.items() if not has_table(key))
        return 0
    with open(other, encoding="ascii") as file:
        due = dict(line.rstrip("\n").rsplit(" ", 1) for line in file if not line.startswith("#"))
    status = report(found, due, kinds)
    if status != 0:
        print(f"To accept: python3 tests/same_bits/same_bits.py write {program} {library} {other}")
    return status


sys.exit(main())
