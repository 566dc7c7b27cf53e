"""Whether the checked library returns and writes what the library does, export by export.

same_results.py DIGESTS LIBRARY CHECKED
"""
import subprocess
import sys

FAMILIES = ["zulgDFTFwd", "zulgDFTInv", "zulgHartley", "zulgWHT", "zulgenGet"]


def main():
    program, library, checked = sys.argv[1:]
    lines, different = 0, 0
    for family in FAMILIES:
        due, found = (subprocess.run([program, file, family], stdout=subprocess.PIPE, check=True, text=True)
                      .stdout.splitlines() for file in (library, checked))
        for wanted, given in zip(due, found, strict=True):
            lines += 1
            if wanted != given:
                different += 1
                print(f"{given}, due is {wanted}")
    print(f"{lines} digests compared, {different} differ")
    return 1 if different or lines < 4000 else 0


sys.exit(main())
