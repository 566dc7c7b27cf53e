"""Makes the ZIP for Windows, and makes and runs programs with what is in it and nothing else.

windows_zip.py TREE BUILD_FOLDER SYSTEM COMPILER EMULATOR
"""
import pathlib
import shutil
import subprocess
import sys
import zipfile

from packing import done, made_twice

FILES = {"bin/zulgenpx-7.0.dll", "bin/zulcore-7.0.dll", "include/zulgenpx.h", "include/zulgenpx_routines.h",
         "include/zulgenpx.hpp", "lib/zulgenpx.def", "lib/zulgenpx.lib", "lib/libzulgenpx.dll.a",
         "lib/cmake/zulgenpx/zulgenpx-config.cmake", "lib/pkgconfig/zulgenpx.pc", "share/doc/zulgenpx/LICENSE",
         "share/doc/zulgenpx/README.md", "share/doc/zulgenpx/CHANGELOG.md", "share/zulgenpx/Zulgenpx.cs",
         "share/zulgenpx/zulgenpx.pas", "share/zulgenpx/zulgenpx.bas", "share/zulgenpx/README.md"}
OF_BATCHES = {"bin/zulgenpx-batch-7.0.dll", "include/zulgenpx_batch.h", "include/zulgenpx_batch_routines.h",
              "lib/zulgenpx-batch.def", "lib/zulgenpx-batch.lib", "lib/libzulgenpx-batch.dll.a"}


def main():
    tree, build, system, compiler, *emulator = sys.argv[1:]
    tree, build = pathlib.Path(tree).resolve(), pathlib.Path(build).resolve()
    made = made_twice(tree, build, system)
    name = f"zulgenpx-7.0-{system}"
    if set(made) != {f"{name}.zip"}:
        sys.exit(f"made are {sorted(made)}")

    folder = build / "packages" / "unpacked"
    shutil.rmtree(folder, ignore_errors=True)
    with zipfile.ZipFile(made[f"{name}.zip"]) as archive:
        archive.extractall(folder)
    place = folder / name
    found = {path.relative_to(place).as_posix() for path in place.rglob("*") if path.is_file()}
    due = FILES | OF_BATCHES if system == "win64" else FILES
    if due - found or (system == "win32" and OF_BATCHES & found):
        sys.exit(f"missing: {sorted(due - found)}; all that is there: {sorted(found)}")
    for library in place.glob("bin/*.dll"):
        if library.read_bytes() != (build / library.name).read_bytes():
            sys.exit(f"{library.name} is not the one that is built")

    programs = folder / "programs"
    programs.mkdir()
    for library in place.glob("bin/*.dll"):
        shutil.copy(library, programs)
    sources = {"one_transform.c": "zulgenpx"}
    if system == "win64":
        sources["batch.c"] = "zulgenpx-batch"
    for source, library in sources.items():
        program = programs / source.replace(".c", ".exe")
        done(compiler, "-Wall", "-Werror", "-I", place / "include", tree / "tests/consumers" / source,
             "-L", place / "lib", f"-l{library}", "-lzulgenpx", "-o", program)
        ran = subprocess.run([*emulator, str(program)], stdin=subprocess.DEVNULL, check=False, cwd=programs)
        print(f"{source}: {ran.returncode}")
        if ran.returncode != 42:
            sys.exit(f"{source} ends with {ran.returncode}")


main()
