"""Packages made by scripts/packages, twice, in two folders."""
import os
import pathlib
import shutil
import sys

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent.parent / "consumers"))
from installation import done


def made_twice(tree, build, target):
    """The files of one of two runs, which must be the same bytes. The folders are this target's: packages of others may
    be made at the same time."""
    made = []
    for name in ("first", "second"):
        folder = pathlib.Path(build).resolve() / "packages" / f"{target}-{name}"
        shutil.rmtree(folder, ignore_errors=True)
        done(f"{tree}/scripts/packages", "--built", target, env=dict(os.environ, ZULG_PACKAGES=str(folder)))
        made.append({path.name: path for path in (folder / target).iterdir()})
    first, second = made
    different = sorted(name for name in {*first, *second} if name not in first or name not in second
                       or first[name].read_bytes() != second[name].read_bytes())
    if different or not first:
        sys.exit(f"made twice, these are not the same: {different}")
    return first
