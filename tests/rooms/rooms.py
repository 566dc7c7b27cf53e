"""Holds who includes whom: each room of the tree includes only rooms below it, and nothing includes the tests.

rooms.py SOURCE_FOLDER
"""
import pathlib
import re
import sys

# Room: the rooms that its files may include. A header of the target is found by its name alone.
RUN_TIME = {
    "include": {"include"},
    "kernel": {"include", "kernel", "target"},
    "targets": {"kernel", "wht", "dct4", "batch", "targets", "target"},
    "kernels": {"kernel"},
    "wht": {"kernel", "wht"},
    "dct4": {"kernel", "dct4"},
    "batch": {"include", "kernel", "wht", "dct4", "boundary", "batch", "target"},
    "boundary": {"include", "kernel", "wht", "dct4", "boundary", "target"},
    "checked": {"include", "boundary", "checked"},
    "companion": {"include"},
}
GENERATION_TIME = {
    "numbers": {"numbers"},
    "graph": {"numbers", "graph"},
    "errors": {"numbers", "graph", "errors"},
    "rules": {"numbers", "graph", "rules"},
    "output": {"numbers", "graph", "errors", "rules", "output"},
}
OF_THE_TARGET = {"value.h", "levels.h", "level_routines.h", "batch_levels.h", "batch_level_routines.h",
                 "entries.inc"}
# Included by a header beside it, or made in the build folder.
OF_THE_FOLDER = {"zulgenpx.h", "zulgenpx_routines.h", "zulgenpx_batch_routines.h", "many_texts.inc",
                 "zulgenpx.hpp", "zulgenpx_arrays.hpp", "zulgenpx_batch.h", "zulgenpx_batch_routines.hpp",
                 "zulgenpx_calls.hpp", "zulgenpx_dct4.hpp", "zulgenpx_routines.hpp", "zulgenpx_view.hpp"}


def includes(file):
    text = file.read_text(encoding="utf-8")
    for included in re.findall(r'^#include "([^"]+)"', text, re.MULTILINE):
        if included in OF_THE_TARGET:
            yield included, "target"
        elif included not in OF_THE_FOLDER:
            yield included, included.split("/")[0]


def faults_of(folder, rooms):
    files, faults = 0, []
    for room, allowed in rooms.items():
        for file in sorted((folder / room).rglob("*")):
            if file.suffix not in (".h", ".hpp", ".cpp", ".S", ".inc", ".rc"):
                continue
            files += 1
            faults += [f"{file.relative_to(folder)} includes {included}; {room} may include only "
                       + ", ".join(sorted(allowed)) for included, other in includes(file) if other not in allowed]
    return files, faults


def main():
    source = pathlib.Path(sys.argv[1])
    files, faults = faults_of(source, RUN_TIME)
    more_files, more_faults = faults_of(source / "generator", GENERATION_TIME)
    for fault in faults + more_faults:
        print(fault)
    print(f"{files + more_files} files, {len(faults + more_faults)} wrong includes")
    return 1 if faults or more_faults or files < 300 or more_files < 30 else 0


sys.exit(main())
