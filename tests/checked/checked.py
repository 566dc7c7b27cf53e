"""Runs every misuse with the checked library: each must end in an abort after exactly one line, and each line that
SECURITY.md tells must come from one of them, numbers aside. What is right must not be stopped.

checked.py [--run WORD ...] TREE PROGRAM ...

--run: what runs the programs where the machine itself cannot (tests/launcher.py).
"""
import os
import re
import signal
import subprocess
import sys

sys.path.insert(0, os.path.dirname(os.path.dirname(os.path.abspath(__file__))))
from launcher import launcher_and_rest  # noqa: E402


def pattern(line):
    """A line of the document; another call may have other routines, names and numbers."""
    words = re.sub(r"zulg\w+", "ROUTINE", line)
    words = re.sub(r"\b(pSrc|pDst|pBuffer|plan|block)\b", "ARRAY", words)
    return re.sub(r"\b\d+f?\b", "NUMBER", words)


def run(*command):
    # A sanitizer looks for leaks at the end, which is none of this.
    environment = dict(os.environ, ASAN_OPTIONS="detect_leaks=0")
    done = subprocess.run(command, stdout=subprocess.PIPE, stderr=subprocess.PIPE, text=True, check=False,
                          env=environment)
    done.stderr = re.sub(r"(?m)^qemu: uncaught target signal .*\n", "", done.stderr)  # the emulator's own line
    return done


def main():
    launcher, words = launcher_and_rest(sys.argv[1:])
    tree, *programs = words
    with open(os.path.join(tree, "SECURITY.md"), encoding="utf-8") as file:
        told = {pattern(line): line for line in re.findall(r"`(zulg\w+: [^`]+)`", file.read())}
    seen, faults, count = set(), 0, 0
    for program in programs:
        listed = run(*launcher, program)
        if listed.returncode != 0 or listed.stderr:
            print(f"{program}: what is right ends with {listed.returncode}: {listed.stderr}")
            faults += 1
        for case in listed.stdout.splitlines():
            count += 1
            result = run(*launcher, program, case)
            found = re.fullmatch(r"zulgenpx: (zulg\w+: .+)\n", result.stderr)
            if result.returncode != -signal.SIGABRT or not found:
                print(f"{case}: ends with {result.returncode} and says {result.stderr!r}")
                faults += 1
            elif pattern(found.group(1)) not in told:
                print(f"{case}: SECURITY.md does not tell {found.group(1)}")
                faults += 1
            else:
                seen.add(pattern(found.group(1)))
    for missing in set(told) - seen:
        print(f"no misuse gives the line of SECURITY.md: {told[missing]}")
        faults += 1
    print(f"{count} misuses, {faults} faults")
    return 1 if faults or count < 20 else 0


sys.exit(main())
