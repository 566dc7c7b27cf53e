"""Holds docs/promises.md against the tree: every promise has a test, a figure and a command, and all tests and commands
that it names are there.

promises.py TREE BUILD_FOLDER
"""
import json
import os
import re
import subprocess
import sys

DOCUMENT = "docs/promises.md"
FEWEST = 20


def rows_of(text):
    """Line number and cells of each promise."""
    for number, line in enumerate(text.splitlines(), 1):
        if line.startswith("| ") and not line.startswith("| promise |"):
            yield number, [cell.strip().replace("\\|", "|") for cell in re.split(r"(?<!\\)\|", line.strip("|"))]


def tests_of(build):
    """Each test of ctest and the program that it runs, if it is one of the build."""
    listed = subprocess.run(["ctest", "--show-only=json-v1"], cwd=build, stdout=subprocess.PIPE,
                            stderr=subprocess.DEVNULL, check=True, text=True).stdout
    return {test["name"]: test.get("command", []) for test in json.loads(listed)["tests"]}


def cases_of(tree):
    """The tests of all programs, as Suite.Test."""
    cases = set()
    for folder, _, files in os.walk(os.path.join(tree, "tests")):
        for name in files:
            if name.endswith((".cpp", ".h")):
                with open(os.path.join(folder, name), encoding="utf-8") as file:
                    cases.update(".".join(found) for found in
                                 re.findall(r"^(?:TYPED_)?TEST(?:_[FP])?\((\w+),\s*(\w+)\)", file.read(), re.MULTILINE))
    return cases


class Check:
    def __init__(self, tree, build):
        self.tree, self.build, self.failures = tree, build, 0
        self.tests, self.cases = tests_of(build), cases_of(tree)

    def fail(self, number, what):
        print(f"{DOCUMENT}:{number}: {what}")
        self.failures += 1

    def holders(self, number, cell):
        """Names in code type: a test of ctest, and after a colon the cases in its program."""
        names = re.findall(r"`([^`]+)`", cell)
        if not names:
            self.fail(number, "no test holds this promise")
        for name in names:
            if "." in name:
                if name not in self.cases:
                    self.fail(number, f"there is no test {name}")
            elif name not in self.tests:
                self.fail(number, f"ctest has no test {name}")

    def command(self, number, cell):
        found = re.fullmatch(r"`([^`]+)`", cell)
        if found is None:
            self.fail(number, "no command repeats this promise")
            return
        command = found.group(1)
        chosen = re.fullmatch(r"ctest --preset native -R '(.+)'", command)
        program = re.match(r"build/native/(\S+)", command)
        script = re.match(r"(?:python3 (?:-B )?)?((?:scripts|tests|benchmarks)/\S+)", command)
        if chosen:
            if not any(re.search(chosen.group(1), name) for name in self.tests):
                self.fail(number, f"no test has a name like {chosen.group(1)}")
        elif program:
            path = os.path.join(self.build, program.group(1))
            if not os.access(path, os.X_OK):
                self.fail(number, f"there is no program {path}")
                return
            self.chosen_cases(number, path, command)
        elif not script or not os.path.exists(os.path.join(self.tree, script.group(1))):
            self.fail(number, f"nothing is known of the command {command}")

    def chosen_cases(self, number, path, command):
        """The filter of a command must leave something."""
        found = re.search(r"--gtest_filter='([^']+)'", command)
        if found is None:
            return
        listed = subprocess.run([path, "--gtest_list_tests", f"--gtest_filter={found.group(1)}"],
                                stdout=subprocess.PIPE, check=True, text=True).stdout
        if not re.search(r"^  \S", listed, re.MULTILINE):
            self.fail(number, f"{found.group(1)} chooses no test")


def main():
    tree, build = sys.argv[1:]
    check = Check(tree, build)
    with open(os.path.join(tree, DOCUMENT), encoding="utf-8") as file:
        rows = list(rows_of(file.read()))
    for number, cells in rows:
        if len(cells) != 4 or not all(cells):
            check.fail(number, f"a promise, its test, its figure and its command are due: {cells}")
            continue
        check.holders(number, cells[1])
        check.command(number, cells[3])
    print(f"{len(rows)} promises, {check.failures} failures")
    return 1 if check.failures or len(rows) < FEWEST else 0


sys.exit(main())
