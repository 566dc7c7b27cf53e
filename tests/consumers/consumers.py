"""Programs of users: each is made in an empty folder with nothing but what is installed, in one of the ways in which
people link, and run.

consumers.py --source TREE --build FOLDER --cmake CMAKE --cc COMPILER --cxx COMPILER [tools; see below]
"""
import argparse
import re
import sys

from installation import SOURCES, Fault, Installation, done
from part_of_a_project import parts_of_projects
from static_library import static_library
from windows import windows_programs


def parsed():
    parser = argparse.ArgumentParser()
    for name in ("source", "build", "cmake", "cc", "cxx", "libdir", "pkg-config"):
        parser.add_argument(f"--{name}", required=True)
    for name in ("emulator", "toolchain", "dlltool", "llvm-dlltool", "machine", "clang", "lld-link", "digests",
                 "python"):
        parser.add_argument(f"--{name}", default="")
    return parser.parse_args()


def installed_files(place):
    """What the tree has, and what it must not have."""
    due = {"include/zulgenpx.h", "include/zulgenpx_routines.h", "share/doc/zulgenpx/LICENSE"}
    lib = place.args.libdir
    due |= {f"{lib}/{name}" for name in ("pkgconfig/zulgenpx.pc", "cmake/zulgenpx/zulgenpx-config.cmake",
                                         "cmake/zulgenpx/zulgenpx-config-version.cmake")}
    if place.args.emulator:
        due |= {"bin/zulgenpx-7.0.dll", "bin/zulcore-7.0.dll", f"{lib}/libzulgenpx.dll.a", f"{lib}/zulgenpx.lib",
                f"{lib}/zulgenpx.def"}
    else:
        due |= {f"{lib}/{name}" for name in (
            "libzulgenpx-7.0.so", "libzulgenpx.so", "libzulcore-7.0.so", "libzulgenpx.a", "libzulgenpx-batch-7.0.so",
            "libzulgenpx-batch.so", "pkgconfig/zulgenpx-static.pc")}
    if place.has_batch:
        due |= {"include/zulgenpx_batch.h", "include/zulgenpx_batch_routines.h", f"{lib}/pkgconfig/zulgenpx-batch.pc"}
    if place.has_batch and place.args.emulator:
        due |= {"bin/zulgenpx-batch-7.0.dll", f"{lib}/libzulgenpx-batch.dll.a", f"{lib}/zulgenpx-batch.lib",
                f"{lib}/zulgenpx-batch.def"}
    if due - place.files():
        raise Fault(f"not installed: {sorted(due - place.files())}")
    if f"{lib}/libzulgenpx-7.0.dll.a" in place.files():
        raise Fault("the linker's own import library is installed")
    for file in place.lib.rglob("*"):
        if file.suffix in (".pc", ".cmake") and re.search(r"(?<![\w}/.])/(?!/)\w+/", file.read_text(encoding="utf-8")):
            raise Fault(f"{file} has an absolute path")


def plain_flags(place):
    paths, beside = place.paths, place.beside
    for name, source, standard, libraries in (
            ("plain_c99", "one_transform.c", "c99", ["-lzulgenpx"]),
            ("plain_c17", "one_transform.c", "c17", ["-lzulgenpx"]),
            ("plain_cpp20", "plan.cpp", "", ["-lzulgenpx"])):
        place.run(place.compiled(name, source, *paths, *libraries, *beside, standard=standard))
    if not place.args.emulator:
        place.run(place.compiled("plain_file", "one_transform.c", *paths, "-l:libzulgenpx-7.0.so", *beside))
    if place.has_batch:
        place.run(place.compiled("plain_batch", "batch.c", *paths, "-lzulgenpx-batch", "-lzulgenpx", *beside))


def every_name(place):
    """One program that names all routines."""
    place.run(place.compiled("every_name", "consumer.c", *place.paths, "-I", place.args.source, "-lzulgenpx",
                             *place.beside))


def by_pkg_config(place):
    if place.pkg_config("--modversion", "zulgenpx") != ["7.0"]:
        raise Fault("pkg-config gives another version")
    place.run(place.compiled("pkg_shared", "one_transform.c", *place.pkg_config("--cflags", "--libs", "zulgenpx"),
                             *place.beside))
    if place.has_batch:
        place.run(place.compiled("pkg_batch", "batch.c", *place.pkg_config("--cflags", "--libs", "zulgenpx-batch"),
                                 *place.beside))
    if place.args.emulator:
        return
    words = place.pkg_config("--cflags", "--libs", "zulgenpx-static")
    place.run(place.compiled("pkg_static", "plan.cpp", *words))
    place.run(place.compiled("pkg_static_whole", "plan.cpp", "-static", *words))


def by_find_package(place):
    components = ";".join(["static"] * (not place.args.emulator) + ["batch"] * place.has_batch)
    package = f"-Dzulgenpx_DIR={place.lib}/cmake/zulgenpx"
    built = place.cmake_project("find_package", "project", package, f"-DCOMPONENTS={components}")
    done(place.args.cmake, "--build", built)
    suffix = ".exe" if place.args.emulator else ""
    names = ["one_shared", "plan_shared"]
    if not place.args.emulator:
        names += ["one_static", "plan_static"]
    if place.has_batch:
        names.append("batch")
    for name in names:
        place.run(built / (name + suffix))
    try:
        place.cmake_project("find_package_refused", "project", package, "-DCOMPONENTS=harmonic")
    except Fault as fault:
        if "This zulgenpx has no harmonic." not in str(fault):
            raise
    else:
        raise Fault("an unknown component is accepted")


def loaded_by_name(place):
    """A program that is not linked with the library at all."""
    if place.args.emulator:
        return  # windows.py
    file = place.lib / "libzulgenpx-7.0.so"
    place.run(place.compiled("dlopen", "loads.c", f'-DLIBRARY="{file}"', "-ldl"))


def main():
    args = parsed()
    ways = [installed_files, plain_flags, every_name, by_pkg_config, by_find_package, loaded_by_name]
    ways += [windows_programs] if args.emulator else [static_library, parts_of_projects]
    place, failed = Installation(args), 0
    for way in ways:
        try:
            way(place)
            print(f"{way.__name__}: ok", flush=True)
        except Fault as fault:
            print(f"{way.__name__}: {fault}", flush=True)
            failed += 1
    return 1 if failed else 0


sys.exit(main())
