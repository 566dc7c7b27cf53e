"""Runs scripts/release in a small tree that is ready for a release, and in the same tree with one thing wrong. Builds
are those of a fake cmake, which writes files of given content.

release_test.py SOURCE_FOLDER BUILD_FOLDER
"""
import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile

# What the quick checks read.
COPIED = ["CMakeLists.txt", "CHANGELOG.md", "README.md", ".gitignore", "scripts", "include", "boundary", "companion",
          "cmake", "batch", "bindings"]
CHECKS = ["tree", "changelog", "versions", "tests", "generated", "interface", "bytes"]
QUICK = CHECKS[:3]

FAKE_CMAKE = """#!/bin/sh
# `cmake --build` of a target in the clone at hand: libraries of the content that the test gives.
[ "$1" = --build ] || exit 0
[ -z "$FAKE_BUILD_FAILS" ] || exit 1
mkdir -p "build/$3"
[ "$FAKE_CONTENT" != folder ] || FAKE_CONTENT=$PWD
for name in libzulgenpx-7.0.so libzulcore-7.0.so libzulgenpx-batch-7.0.so zulgenpx-7.0.dll zulcore-7.0.dll; do
    echo "$FAKE_CONTENT" >"build/$3/$name"
done
printf '#!/bin/sh\\nexit %s\\n' "${FAKE_GENERATE:-0}" >"build/$3/generate"
chmod +x "build/$3/generate"
"""

failures = []


class Tree:
    """A repository with one commit."""

    def __init__(self, source, folder):
        self.path, self.fakes = folder / "tree", folder / "fakes"
        self.path.mkdir(parents=True)
        self.fakes.mkdir()
        for name in COPIED:
            if (source / name).is_dir():
                shutil.copytree(source / name, self.path / name, ignore=shutil.ignore_patterns("__pycache__"))
            else:
                shutil.copy(source / name, self.path / name)
        self.change("CHANGELOG.md", r"^## .*$", "## 7.0 (of the test)")
        self.executable("cmake", FAKE_CMAKE)
        self.executable("dpkg-query", "#!/bin/sh\necho install ok installed\n")  # the real one is slow
        self.git("init", "-q")
        self.commit()

    def executable(self, name, text):
        (self.fakes / name).write_text(text, encoding="ascii")
        (self.fakes / name).chmod(0o755)

    def git(self, *words):
        subprocess.run(["git", "-c", "user.name=test", "-c", "user.email=test@example.org", "-c", "safe.directory=*",
                        *words], cwd=self.path, check=True, stdin=subprocess.DEVNULL)

    def commit(self):
        self.git("add", "-A")
        self.git("commit", "-q", "-m", "test: a tree")

    def change(self, name, old, new):
        path = self.path / name
        text, count = re.subn(old, new, path.read_text(encoding="utf-8"), count=1, flags=re.M)
        if count != 1:
            raise ValueError(f"{name} has no {old}")
        path.write_text(text, encoding="utf-8")

    def release(self, *words, **environment):
        result = subprocess.run(
            [str(self.path / "scripts/release"), *words], stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
            stderr=subprocess.STDOUT, text=True, check=False,
            env=dict(os.environ, PATH=f"{self.fakes}{os.pathsep}{os.environ['PATH']}", **environment))
        return result.returncode, result.stdout.splitlines()


def expect(condition, what, found):
    if not condition:
        print(f"{what}: {found}")
        failures.append(what)


def expect_lines(what, found, code, *starts):
    """One line for each check, of which we know the beginning and for a failure a word of the reason."""
    found_code, lines = found
    right = found_code == code and len(lines) == len(starts) and all(
        line.startswith(start) and word in line for line, (start, word) in zip(lines, starts))
    expect(right, what, found)


def broken(tree, what, name, old, new, check, word, committed=True):
    """One thing is wrong: that check fails and says the word, and the other quick ones do not."""
    before = (tree.path / name).read_text(encoding="utf-8")
    tree.change(name, old, new)
    if committed:
        tree.commit()
    expect_lines(what, tree.release(*QUICK), 1,
                 *[(f"FAILED  {each}: ", word) if each == check else (f"ok      {each}: ", "") for each in QUICK])
    (tree.path / name).write_text(before, encoding="utf-8")
    if committed:
        tree.commit()


def main():
    source, build = pathlib.Path(sys.argv[1]).resolve(), pathlib.Path(sys.argv[2])
    with tempfile.TemporaryDirectory(prefix="release-", dir=build) as name:
        tree = Tree(source, pathlib.Path(name).resolve())
        code, lines = tree.release("--list")
        expect(code == 0 and [line.split(":")[0] for line in lines] == CHECKS, "--list", lines)
        code, lines = tree.release("tree", "another")
        expect(code == 1 and len(lines) == 1 and "no check another" in lines[0], "an unknown check", lines)
        expect_lines("ready", tree.release(*QUICK), 0, *[(f"ok      {each}: ", "") for each in QUICK])

        broken(tree, "a change", "README.md", r"\Z", "\n", "tree", "README.md", committed=False)
        broken(tree, "the heading", "CHANGELOG.md", r"^## 7\.0", "## Unreleased", "changelog", "Unreleased")
        broken(tree, "a later heading", "CHANGELOG.md", r"^## 7\.0", "## 7.01", "changelog", "7.01")
        for file, old, new, word in (
                ("include/zulgenpx.h", "ZULG_VERSION_MINOR 0", "ZULG_VERSION_MINOR 1", "MINOR"),
                ("boundary/version.cpp", r"\.major = 7", ".major = 8", "major"),
                ("boundary/version.cpp", r"zulgenpx-7\.0\.dll", "zulgenpx-7.1.dll", "7.1"),
                ("boundary/version.cpp", r"\.build = \d+", ".build = 1", "FILEVERSION"),
                ("boundary/version.cpp", r"7\.0 build", "7.1 build", "7.1 build"),
                ("boundary/library.rc", r"^PRODUCTVERSION 7, 0", "PRODUCTVERSION 7, 1", "PRODUCTVERSION"),
                ("boundary/library.rc", r'"FileVersion", "7, 0', '"FileVersion", "7, 2', "FileVersion"),
                ("companion/zulcore.rc", r"^FILEVERSION 7, 0", "FILEVERSION 7, 1", "zulcore.rc"),
                ("bindings/heads/zulgenpx.pas", r"libzulgenpx-7\.0", "libzulgenpx-6.9", "zulgenpx-6.9")):
            broken(tree, f"{file} with {new}", file, old, new, "versions", word)

        ok, bad = [(f"ok      {each}: ", "") for each in CHECKS], [(f"FAILED  {each}: ", "") for each in CHECKS]
        expect_lines("same bytes", tree.release("generated", "bytes", FAKE_CONTENT="same"), 0, ok[4], ok[6])
        expect_lines("other bytes", tree.release("bytes", FAKE_CONTENT="folder"), 1, (bad[6][0], "differ"))
        expect_lines("a build", tree.release("generated", "bytes", FAKE_BUILD_FAILS="yes"), 1,
                     (bad[4][0], "build failed"), (bad[6][0], "failed"))
        expect_lines("generate check", tree.release("generated", FAKE_GENERATE="1"), 1, (bad[4][0], "see build/"))
        # This tree has no tests/abi, and the fake builds no library.
        expect_lines("interface", tree.release("interface"), 1, (bad[5][0], "see build/"))
        for code in ("0", "1"):
            (tree.path / "scripts/test").write_text(f"#!/bin/sh\nexit {code}\n", encoding="ascii")
            expect_lines("tests", tree.release("tests"), int(code), (ok, bad)[int(code)][3])
    print(f"{len(failures)} failures")
    return 1 if failures else 0


sys.exit(main())
