"""Holds the binary interface of the libraries against its committed description: names, arguments, records, values.

abi.py check --build FOLDER [--cc COMPILER]    what differs, and how to accept it
abi.py write [--cc COMPILER]                   accepts the headers as they are

The libraries ship without types. So a stand-in is compiled for each, of the prototypes in the public headers, with
empty routines and with debug information; libabigail describes it and compares. That the library exports exactly the
names of the description is checked with the library itself.
"""
import argparse
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile

sys.path.insert(0, str(pathlib.Path(__file__).parent.parent / "header"))
from prototypes import prototypes

HERE = pathlib.Path(__file__).resolve().parent
SOURCE = HERE.parent.parent

# Library: its headers, and the version that its symbols have once they have one.
LIBRARIES = {
    "libzulgenpx-7.0.so": (["zulgenpx.h", "zulgenpx_routines.h"], "ZULGENPX_7.0"),
    "libzulgenpx-batch-7.0.so": (["zulgenpx_batch.h", "zulgenpx_batch_routines.h"], "ZULGENPX_BATCH_7.0"),
}


def described(library):
    return HERE / (library.removesuffix(".so") + ".abi")


def run(*command, allowed=(0,), folder=None):
    try:
        result = subprocess.run([str(word) for word in command], stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
                                stderr=subprocess.STDOUT, text=True, check=False, cwd=folder)
    except FileNotFoundError as error:
        raise RuntimeError(f"a package is missing (scripts/common.sh, packages_abi): {error}") from error
    if result.returncode not in allowed:
        raise RuntimeError(f"{' '.join(map(str, command))} ends with {result.returncode}: {result.stdout}")
    return result.returncode, result.stdout


def describe(library, include, compiler, folder):
    """Path of the description of a stand-in made from the headers of the folder `include`."""
    headers, _ = LIBRARIES[library]
    declared = prototypes("".join((include / name).read_text(encoding="ascii") for name in headers))
    source, stand_in, description = folder / "stand_in.c", folder / library, folder / (library + ".abi")
    source.write_text("".join([f'#include "{headers[0]}"\n']
                              + [f"{returned} ZULG_CALL {name}({arguments}) {{\n    return 0;\n}}\n"
                                 for returned, name, arguments in declared]),
                      encoding="ascii")
    # A header of this system would bring its own types into the description.
    (folder / "system").mkdir(exist_ok=True)
    (folder / "system/stdint.h").write_text(
        "".join(f"typedef __{name.upper()}_TYPE__ {name}_t;\n" for name in ("uint8", "uint32", "int32", "int64")),
        encoding="ascii")
    run(compiler, "-g", "-O0", "-std=c11", "-fPIC", "-shared", "-fno-eliminate-unused-debug-types", "-I", include,
        "-isystem", folder / "system", source.name, f"-Wl,-soname,{library}", "-o", stand_in, folder=folder)
    # All types, so that the values of statuses and flags are among them.
    run("abidw", "--load-all-types", "--no-show-locs", "--no-corpus-path", "--no-comp-dir-path", "--no-elf-needed",
        "--no-parameter-names", "--type-id-style", "hash", "--out-file", description, stand_in)
    return description


def difference(old, new):
    """What abidiff says, or nothing."""
    code, text = run("abidiff", "--non-reachable-types", old, new, allowed=range(256))
    return f"abidiff ends with {code}\n{text}" if code else ""


def symbols(library):
    """Names and their versions that a library exports, and its own name."""
    _, text = run("readelf", "-W", "--dyn-syms", library)
    rows = [line.split() for line in text.splitlines() if re.match(r"\s*\d+:", line)]
    exported = [row[7] for row in rows if len(row) >= 8 and row[6] not in ("UND", "ABS")]
    _, text = run("readelf", "-W", "-d", library)
    return {tuple(re.split("@+", name + "@" * ("@" not in name))[:2]) for name in exported}, re.search(
        r"SONAME\)\s+Library soname: \[(.*)\]", text).group(1)


def check_library(path, failures):
    """The library that ships: its names are those of the description."""
    library = path.name
    text = described(library).read_text(encoding="ascii")
    due = set(re.findall(r"<elf-symbol name='(\w+)'", text))
    found, soname = symbols(path)
    names, versions = {name for name, _ in found}, {version for _, version in found}
    if names != due or not due:
        failures.append(f"{library}: its names and those of {described(library).name} differ: "
                        f"{sorted(names ^ due)[:5]}")
    if f"soname='{soname}'" not in text or soname != library:
        failures.append(f"{library}: it calls itself {soname}")
    if versions not in ({""}, {LIBRARIES[library][1]}):
        failures.append(f"{library}: the versions of its symbols are {sorted(versions)}")


def check_changes_are_seen(compiler, folder, failures):
    """A change of a prototype, of a record, or of a value does not pass."""
    changes = {
        "an argument": ("zulgenpx_batch_routines.h", r"(zulgBatchWHTGetBufferSize_64f\()int32_t", r"\1int64_t"),
        "a routine": ("zulgenpx_batch_routines.h", r".*zulgBatchWHTGetBufferSize_32f\(.*\n", ""),
        "a field": ("zulgenpx.h", r"int32_t majorBuild;", "int64_t majorBuild;"),
        "a value": ("zulgenpx.h", r"StatusFlagError = -16", "StatusFlagError = -17"),
    }
    library = "libzulgenpx-batch-7.0.so"  # the smaller one; it has all types
    for number, (what, (file, old, new)) in enumerate(changes.items()):
        include = folder / f"include{number}"
        shutil.copytree(SOURCE / "include", include)
        text, count = re.subn(old, new, (include / file).read_text(encoding="ascii"))
        (include / file).write_text(text, encoding="ascii")
        if count != 1 or not difference(described(library), describe(library, include, compiler, folder)):
            failures.append(f"a change of {what} is not seen")


def check(args, folder):
    failures = []
    for library in LIBRARIES:
        text = difference(described(library), describe(library, SOURCE / "include", args.cc, folder))
        if text:
            failures.append(f"{library}: the headers are not what {described(library).name} says\n{text}"
                            f"To accept them: python3 tests/abi/abi.py write")
        check_library(pathlib.Path(args.build) / library, failures)
    check_changes_are_seen(args.cc, folder, failures)
    for failure in failures:
        print(failure)
    print(f"{len(LIBRARIES)} libraries, {len(failures)} failures")
    return 1 if failures else 0


def write(args, folder):
    for library in LIBRARIES:
        shutil.copy(describe(library, SOURCE / "include", args.cc, folder), described(library))
    return 0


def main():
    parser = argparse.ArgumentParser()
    verbs = parser.add_subparsers(dest="verb", required=True)
    for verb in ("check", "write"):
        of_verb = verbs.add_parser(verb)
        of_verb.add_argument("--cc", default="cc")
        if verb == "check":
            of_verb.add_argument("--build", required=True)
    args = parser.parse_args()
    with tempfile.TemporaryDirectory(prefix="abi-") as folder:
        try:
            return (check if args.verb == "check" else write)(args, pathlib.Path(folder))
        except (OSError, RuntimeError) as error:
            print(f"abi.py: {error}")
            return 1


sys.exit(main())
