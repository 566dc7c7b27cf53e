"""Asks emulated processors whether they have what the level of AVX2 needs. Each of those that have not lacks one thing:
the system's support of wide registers, AVX, or AVX2.

processors.py EMULATOR PROGRAM
"""
import subprocess
import sys

DUE = {"Nehalem": "no", "SandyBridge": "no", "Haswell": "yes", "Haswell,-avx2": "no", "Haswell,-avx": "no",
       "Haswell,-xsave": "no"}


def main():
    emulator, program = sys.argv[1:]
    faults = 0
    for processor, due in DUE.items():
        done = subprocess.run([emulator, "-cpu", processor, program], stdout=subprocess.PIPE, stderr=subprocess.DEVNULL,
                              text=True, check=False)
        if done.stdout.strip() != due:
            print(f"{processor}: {done.stdout.strip() or 'nothing'} (exit code {done.returncode}), due is {due}")
            faults += 1
    return 1 if faults else 0


sys.exit(main())
