"""Whether the checked library returns and writes what the library does, export by export.

same_results.py [--run WORD ...] DIGESTS LIBRARY CHECKED

--run: what runs the programs where the machine itself cannot (tests/launcher.py).
"""
import os
import subprocess
import sys

sys.path.insert(0, os.path.dirname(os.path.dirname(os.path.abspath(__file__))))
from launcher import launcher_and_rest  # noqa: E402

FAMILIES = ["zulgDFTFwd", "zulgDFTInv", "zulgHartley", "zulgWHT", "zulgenGet"]


def main():
    launcher, words = launcher_and_rest(sys.argv[1:])
    program, library, checked = words
    lines, different = 0, 0
    for family in FAMILIES:
        due, found = (subprocess.run([*launcher, program, file, family], stdout=subprocess.PIPE, check=True,
                                     text=True).stdout.splitlines() for file in (library, checked))
        for wanted, given in zip(due, found, strict=True):
            lines += 1
            if wanted != given:
                different += 1
                print(f"{given}, due is {wanted}")
    print(f"{lines} digests compared, {different} differ")
    return 1 if different or lines < 4000 else 0


sys.exit(main())
