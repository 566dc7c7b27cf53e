"""Takes the code out of the documents and proves that it is true: programs are compiled and run, those in C as C11 and
as C++17, and on the native target with the address sanitizer as well; there programs in Python are run, too. Lines for
the shell are run where that is quick, and otherwise what they name must be there. Links and paths must lead somewhere.

documents.py --source TREE --build FOLDER --cc COMPILER --cxx COMPILER [--emulator PROGRAM]
"""
import argparse
import glob
import os
import re
import shutil
import struct
import subprocess
import sys
import tempfile
import wave

import extents
import extract

DOCUMENTS = ["README.md", "CONTRIBUTING.md", "SECURITY.md", "docs/accuracy.md", "docs/architecture.md",
             "docs/clusters.md", "docs/compatibility.md", "docs/constructions.md", "docs/guide.md", "docs/install.md",
             "docs/promises.md", "docs/site.md", "docs/testing.md", "bindings/README.md", "kernels/README.md",
             "benchmarks/README.md", "tools/README.md", "python/README.md"]
HEADERS = ["include/zulgenpx.h", "include/zulgenpx.hpp", "include/zulgenpx_dct4.hpp", "include/zulgenpx_batch.hpp"]
WARNINGS = ["-Wall", "-Wextra", "-Werror", "-O2"]

# Shell lines that are not run, by how they begin: they build or install everything, time, write into the tree, or ask
# for a cluster.
NOT_RUN = ("scripts/", "cmake ", "build/native/bench", "build/native/generate write", "pip install",
           "benchmarks/python_times.py", "LD_PRELOAD=", "mpirun ", "podman ", "sbatch ", "kubectl ")

PYTHON = "/usr/bin/python3"  # the packaged one, which has NumPy


def parsed():
    parser = argparse.ArgumentParser()
    for name in ("source", "build", "cc", "cxx"):
        parser.add_argument(f"--{name}", required=True)
    parser.add_argument("--emulator")
    return parser.parse_args()


class Check:
    """Runs everything in a folder of its own, in which the tree looks as the documents say."""

    def __init__(self, args, folder):
        self.args, self.folder, self.failures = args, folder, []
        self.library = "zulgenpx-7.0.dll" if args.emulator else "libzulgenpx-7.0.so"
        for library in glob.glob(os.path.join(args.build, "*zul*-7.0.*")):
            if library.endswith((".so", ".dll")):
                shutil.copy(library, folder)
        os.symlink(os.path.join(args.source, "include"), os.path.join(folder, "include"))
        os.mkdir(os.path.join(folder, "build"))
        os.symlink(args.build, os.path.join(folder, "build", os.path.basename(args.build)))

    def path(self, *parts):
        return os.path.join(self.folder, *parts)

    def fail(self, where, what):
        print(f"{where}: {what}")
        self.failures.append(where)

    def run(self, where, command, **options):
        """The output of a command that must end with 0, or None."""
        options.setdefault("cwd", self.folder)
        result = subprocess.run(command, stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
                                stderr=subprocess.STDOUT, text=True, check=False, **options)
        if result.returncode == 0:
            return result.stdout
        self.fail(where, f"{command if isinstance(command, str) else ' '.join(command)} ends with "
                         f"{result.returncode}:\n{result.stdout}")
        return None

    def compare(self, program, where, output):
        if output is not None and program.printed != [line.strip() for line in output.splitlines()]:
            self.fail(where, f"prints {output!r} and not {program.printed}")

    def python(self, program):
        """The package of the tree with the built libraries, which are there on the native target only."""
        if self.args.emulator:
            return
        if not program.printed:
            self.fail(program.where, "does not say what it prints")
        environment = dict(os.environ, PYTHONPATH=os.path.join(self.args.source, "python"),
                           ZULGENPX_LIBRARY_DIR=self.folder)
        output = self.run(program.where, [PYTHON, "-B", "-c", program.text], env=environment)
        self.compare(program, program.where, output)

    def program(self, program):
        """What is C in both languages; natively the sanitizers as well."""
        if program.language == "python":
            self.python(program)
            return
        args = self.args
        uses_batches = "zulgenpx_batch.h" in program.text
        import_libraries = [os.path.join(args.build, "libzulgenpx.dll.a")]
        if uses_batches:
            import_libraries.insert(0, os.path.join(args.build, "libzulgenpx-batch.dll.a"))
        if args.emulator and not os.path.exists(import_libraries[0]):
            return  # 32-bit Windows has no batch library
        libraries = ["-l:libzulgenpx-batch-7.0.so"] * uses_batches + [f"-l:{self.library}"]
        link = [f"-L{self.folder}", "-Wl,-rpath,$ORIGIN", *libraries]
        if args.emulator:
            link = ["-static", *import_libraries]
        sanitizers = ["-fsanitize=address,undefined", "-fno-sanitize-recover=all", "-include", "checked.h", "-g"]
        ways = [("c", args.cc, ["-std=c11"], ".c"), ("cpp", args.cxx, ["-std=c++17"], ".cpp")]
        if program.language == "cpp":
            ways = [("cpp", args.cxx, ["-std=c++20"], ".cpp")]
            if not args.emulator:  # the headers check sizes themselves
                ways.append(("sanitized", args.cxx, ["-std=c++20"] + sanitizers[:2] + ["-g"], ".cpp"))
        elif not args.emulator:
            ways.append(("sanitized", args.cc, ["-std=c11"] + sanitizers, ".c"))
        with open(self.path("checked.h"), "w", encoding="utf-8") as file:
            file.write(extents.checked_header(program.text))
        for name, compiler, flags, ending in ways:
            where = f"{program.where}, {name}"
            source = self.path(name + ending)
            with open(source, "w", encoding="utf-8") as file:
                file.write(program.whole())
            executable = self.path(name + ".exe")
            if self.run(where, [compiler, *flags, *WARNINGS, "-Iinclude", source, "-o", executable, *link]) is None:
                continue
            run = [args.emulator, executable] if args.emulator else [executable]
            self.compare(program, where, self.run(where, run))

    def shell(self, where, line):
        """Runs the line, or looks whether what it names is there."""
        line = re.split(r"\s#|\s{3,}", line)[0].strip()
        if not line or line.startswith("#"):
            return
        if line.startswith(NOT_RUN):
            self.named(where, line)
        elif not self.args.emulator:
            # Programs of the build look at the tree; the tools read and write sounds beside them.
            folder = self.args.source if line.startswith("build/native/") else self.folder
            path = self.args.build + os.pathsep + os.environ["PATH"]
            line = re.sub("^build/native", self.args.build, line)
            self.run(where, line, shell=True, cwd=folder, env=dict(os.environ, PATH=path))

    def named(self, where, line):
        """Whether scripts and presets that a line names are there."""
        source = self.args.source
        with open(os.path.join(source, "CMakePresets.json"), encoding="utf-8") as file:
            presets = file.read()
        for script in re.findall(r"\bscripts/[a-z0-9-]+", line):
            if not os.access(os.path.join(source, script), os.X_OK):
                self.fail(where, f"there is no {script}")
        for preset in re.findall(r"--preset (\S+)", line):
            if f'"name": "{preset}"' not in presets:
                self.fail(where, f"there is no preset {preset}")

    def linking(self, where, text, program):
        """The command beside the program of the README, to the letter, on a file program.c."""
        commands = re.findall(r"`(cc program\.c [^`]*)`", text)
        if len(commands) != 1:
            self.fail(where, f"{len(commands)} commands link program.c")
        elif not self.args.emulator:
            with open(self.path("program.c"), "w", encoding="utf-8") as file:
                file.write(program.whole())
            if self.run(where, commands[0], shell=True) is not None:
                self.compare(program, where, self.run(where, ["./a.out"]))

    def paths(self, name, text):
        """Links of the document, and the paths that it names in code type."""
        source = self.args.source
        for link in re.findall(r"\]\(([^)#:]+)\)", text):
            if not os.path.exists(os.path.join(source, os.path.dirname(name), link)):
                self.fail(name, f"the link {link} leads nowhere")
        for path in re.findall(r"`([a-z0-9_]+/[A-Za-z0-9_./*-]*)`", text):
            if not path.startswith(("build/", "results/")) and not glob.glob(os.path.join(source, path)):
                self.fail(name, f"there is no {path}")


def sounds(check):
    """The recordings that the lines of the tools read: half a second of a rising tone."""
    frames = b"".join(struct.pack("<h", (i * i // 40) % 20001 - 10000) for i in range(4000))
    os.mkdir(check.path("recordings"))
    for name in ("voice.wav", "voice.flac", "recordings/voice.wav"):  # the reader goes by the content
        with wave.open(check.path(name), "wb") as file:
            file.setnchannels(1)
            file.setsampwidth(2)
            file.setframerate(8000)
            file.writeframes(frames)


def main():
    args = parsed()
    args.source, args.build = os.path.realpath(args.source), os.path.realpath(args.build)
    # Below the build folder: the emulator sees nothing else.
    with tempfile.TemporaryDirectory(prefix="documents-", dir=args.build) as folder:
        check = Check(args, folder)
        sounds(check)
        programs = 0
        for name in DOCUMENTS:
            with open(os.path.join(args.source, name), encoding="utf-8") as file:
                text = file.read()
            found, lines = extract.of_markdown(name, text)
            for program in found:
                check.program(program)
            if name == "README.md":
                check.linking("README.md", text, found[0])
            for where, line in lines:
                check.shell(where, line)
            check.paths(name, text)
            programs += len(found)
        for name in HEADERS:
            with open(os.path.join(args.source, name), encoding="utf-8") as file:
                found = extract.of_header(name, file.read())
            for program in found:
                check.program(program)
            programs += len(found)
            if not found:
                check.fail(name, "there is no example")
        print(f"{programs} programs, {len(check.failures)} failures")
        return 1 if check.failures or programs == 0 else 0


sys.exit(main())
