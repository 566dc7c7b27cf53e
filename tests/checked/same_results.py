"""Whether the checked library returns and writes what the library does, export by export.

same_results.py [--run WORD ...] DIGESTS LIBRARY CHECKED

What runs the program, where the machine itself cannot, is given word by word: --run PROGRAM --run ARGUMENT.
"""
import subprocess
import sys

FAMILIES = ["zulgDFTFwd", "zulgDFTInv", "zulgHartley", "zulgWHT", "zulgenGet"]


def main():
    words, launcher = sys.argv[1:], []
    while words[:1] == ["--run"]:
        launcher, words = launcher + words[1:2], words[2:]
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
