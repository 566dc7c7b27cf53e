"""Installs the library into a folder of the build, and links programs with what is there alone, as its users do. On
Windows it links with both import libraries, and then with both made anew from the installed .def.

consumers.py --source TREE --build FOLDER --cmake CMAKE --cc COMPILER [tools of Windows]
"""
import argparse
import os
import shutil
import subprocess
import sys


def parsed():
    parser = argparse.ArgumentParser()
    for name in ("source", "build", "cmake", "cc"):
        parser.add_argument(f"--{name}", required=True)
    for name in ("emulator", "dlltool", "llvm-dlltool", "clang", "lld-link"):
        parser.add_argument(f"--{name}")
    return parser.parse_args()


def done(*words):
    subprocess.run(words, check=True)


class Installation:
    """bin, lib and include below a folder of its own."""

    def __init__(self, args):
        self.args = args
        self.prefix = os.path.join(args.build, "consumers")
        shutil.rmtree(self.prefix, ignore_errors=True)
        subprocess.run([args.cmake, "--install", args.build, "--prefix", self.prefix], check=True,
                       stdout=subprocess.DEVNULL)
        self.consumer = os.path.join(args.source, "tests/consumers/consumer.c")
        self.flags = ["-Wall", "-Wextra", "-Werror", "-O1", "-I", self.path("include"), "-I", args.source]

    def path(self, *parts):
        return os.path.join(self.prefix, *parts)

    def files(self):
        return {os.path.relpath(os.path.join(folder, name), self.prefix)
                for folder, _, names in os.walk(self.prefix) for name in names}

    def gcc(self, name, *libraries):
        program = self.path("bin", name)
        os.makedirs(os.path.dirname(program), exist_ok=True)
        done(self.args.cc, *self.flags, self.consumer, "-o", program, *libraries)
        return program

    def clang(self, name, library):
        """Needs no header and no library of another vendor: ExitProcess comes from an import library made here."""
        args, program = self.args, self.path("bin", name)
        system, compiled = self.path("system"), self.path("consumer.obj")
        with open(system + ".def", "w", encoding="ascii") as file:
            file.write("LIBRARY KERNEL32.dll\nEXPORTS\n    ExitProcess@4\n")
        done(args.llvm_dlltool, "-m", "i386", "-k", "-d", system + ".def", "-l", system + ".lib")
        done(args.clang, "--target=i686-pc-windows-msvc", "-ffreestanding", "-DFREESTANDING", *self.flags, "-c",
             self.consumer, "-o", compiled)
        done(args.lld_link, "/nologo", "/nodefaultlib", "/subsystem:console", "/entry:start", f"/out:{program}",
             compiled, library, system + ".lib")
        return program


def windows_programs(installation):
    args, path = installation.args, installation.path
    gnu, microsoft = path("remade.dll.a"), path("remade.lib")
    done(args.dlltool, "-k", "-d", path("lib/zulgenpx.def"), "-l", gnu)
    done(args.llvm_dlltool, "-m", "i386", "-k", "-d", path("lib/zulgenpx.def"), "-l", microsoft)
    return [installation.gcc("gcc.exe", "-L", path("lib"), "-lzulgenpx"),
            installation.gcc("gcc_remade.exe", gnu),
            installation.clang("clang.exe", path("lib/zulgenpx.lib")),
            installation.clang("clang_remade.exe", microsoft)]


def main():
    args = parsed()
    installation = Installation(args)
    due = {"include/zulgenpx.h", "include/zulgenpx_routines.h"}
    if args.emulator:
        due |= {"bin/zulgenpx-7.0.dll", "lib/libzulgenpx.dll.a", "lib/zulgenpx.lib", "lib/zulgenpx.def"}
    else:
        due |= {"lib/libzulgenpx-7.0.so"}
    missing, linkers_own = due - installation.files(), "lib/libzulgenpx-7.0.dll.a"
    if missing or linkers_own in installation.files():
        print(f"not installed: {sorted(missing)}; must not be installed: {linkers_own}")
        return 1

    if args.emulator:
        programs = windows_programs(installation)
    else:
        programs = [installation.gcc("cc", "-L", installation.path("lib"), "-l:libzulgenpx-7.0.so",
                                     "-Wl,-rpath,$ORIGIN/../lib")]
    failed = 0
    for program in programs:
        code = subprocess.run([args.emulator, program] if args.emulator else [program], check=False).returncode
        print(f"{os.path.basename(program)}: {code}, due is 42")
        failed += code != 42
    return 1 if failed else 0


sys.exit(main())
