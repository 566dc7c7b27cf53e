"""What the tests of the site share: arguments, and a list of failures."""
import argparse
import pathlib
import subprocess
import sys


def parsed():
    parser = argparse.ArgumentParser()
    for name in ("source", "build"):
        parser.add_argument(f"--{name}", type=pathlib.Path, required=True)
    for name, usual in (("cc", "cc"), ("cxx", "c++"), ("objdump", "objdump")):
        parser.add_argument(f"--{name}", default=usual)
    args = parser.parse_args()
    sys.path.insert(0, str(args.source / "site"))
    return args


def graphs_into(args, folder):
    """The graphs of the generator as JSON."""
    subprocess.run([args.build / "generate", "graphs", folder], check=True, cwd=args.source, stdout=subprocess.DEVNULL)


def compile_command(args, language, source, program, optimization):
    """Compiles one program in C or C++ with the built libraries."""
    compiler = [args.cc, "-std=c11"] if language == "c" else [args.cxx, "-std=c++20"]
    warnings = ["-Wall", "-Wextra", "-Werror"]
    libraries = [f"-L{args.build}", "-l:libzulgenpx-batch-7.0.so", "-l:libzulgenpx-7.0.so", "-lm"]
    return [*compiler, optimization, *warnings, f"-I{args.source}/include", source, "-o", program, *libraries,
            f"-Wl,-rpath,{args.build}"]


class Failures:
    def __init__(self):
        self.found, self.checked = [], 0

    def expect(self, holds, what):
        self.checked += 1
        if not holds:
            self.found.append(what)

    def end(self, words):
        for failure in self.found[:20]:
            print(failure)
        print(f"{self.checked} checks of {words}, {len(self.found)} failures")
        sys.exit(1 if self.found or not self.checked else 0)
