"""Makes the source archive. It must have all of the last commit, and the tree that is unpacked of it must configure and
build without a history.

source_archive.py TREE BUILD_FOLDER CMAKE
"""
import pathlib
import re
import shutil
import subprocess
import sys
import tarfile

from packing import done, made_twice


def main():
    tree, build, cmake = sys.argv[1:]
    tree, build = pathlib.Path(tree).resolve(), pathlib.Path(build).resolve()
    if subprocess.run(["git", "-C", str(tree), "rev-parse", "-q", "--verify", "HEAD"], capture_output=True,
                      check=False).returncode != 0:
        print("this tree was unpacked from an archive itself")
        return
    made = made_twice(tree, build, "source")
    name = "zulgenpx-7.0"
    if set(made) != {f"{name}.tar.gz"}:
        sys.exit(f"made are {sorted(made)}")

    folder = build / "packages" / "source"
    shutil.rmtree(folder, ignore_errors=True)
    with tarfile.open(made[f"{name}.tar.gz"]) as archive:
        archive.extractall(folder)
    place = folder / name
    found = {path.relative_to(place).as_posix() for path in place.rglob("*") if not path.is_dir()}
    committed = set(done("git", "-C", tree, "ls-tree", "-r", "--name-only", "-z", "HEAD").split("\0")) - {""}
    if found != committed:
        sys.exit(f"the archive and the commit differ in {sorted(found ^ committed)[:5]}")

    # A part of each kind is built, since the whole takes long, and the rest is planned.
    built = folder / "build"
    done(cmake, "-S", place, "-B", built, "-G", "Ninja", "-DBUILD_TESTING=OFF")
    done(cmake, "--build", built, "--target", "zulcore", "man_pages", "declarations",
         "CMakeFiles/zulgenpx.dir/boundary/version.cpp.o", "CMakeFiles/zulgenpx.dir/boundary/entries.S.o")
    commands = done("ninja", "-C", built, "-t", "commands", "libzulgenpx-7.0.so", "libzulgenpx-batch-7.0.so")
    sources = re.findall(r" -c (\S+)$", commands, re.MULTILINE)
    missing = [source for source in sources if not pathlib.Path(source).exists()]
    if len(sources) < 500 or missing:
        sys.exit(f"the libraries are built of {len(sources)} sources, of which are missing: {missing[:5]}")
    print(f"{len(found)} files; the libraries are built of {len(sources)} sources")


main()
