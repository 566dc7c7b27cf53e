"""The library installed into a folder of its own, and the ways to make programs with what is there."""
import os
import pathlib
import shutil
import subprocess

SOURCES = pathlib.Path(__file__).resolve().parent
# Windows has no C++ runtime of this compiler: a program brings its own.
OWN_RUNTIME = ("-static-libgcc", "-static-libstdc++")
WORKED = 42  # what each program returns, and neither a loader nor a fault does


class Fault(Exception):
    """What is wrong, in a line or two."""


def done(*words, **options):
    """Runs a command and gives what it prints."""
    ran = subprocess.run([str(word) for word in words], capture_output=True, text=True, **options)
    if ran.returncode != 0:
        raise Fault(f"{' '.join(str(word) for word in words)}\n{ran.stdout}{ran.stderr}")
    return ran.stdout


class Installation:
    """What `cmake --install` puts below a prefix, moved to another place after that, and a folder for programs."""

    def __init__(self, args):
        self.args = args
        self.folder = pathlib.Path(args.build) / "consumers"
        shutil.rmtree(self.folder, ignore_errors=True)
        first = self.folder / "first"
        done(args.cmake, "--install", args.build, "--prefix", first)
        self.prefix = self.folder / "moved"
        first.rename(self.prefix)
        self.lib = self.prefix / args.libdir
        self.include = self.prefix / "include"
        self.paths = ["-I", self.include, "-L", self.lib]
        # Programs of other systems find the libraries in a folder that they name. On Windows these are beside them.
        self.beside = [] if args.emulator else [f"-Wl,-rpath,{self.lib}"]
        self.has_batch = args.machine != "i386"
        self.flags = ["-Wall", "-Wextra", "-Werror", "-O1"]

    def files(self):
        return {str(path.relative_to(self.prefix)) for path in self.prefix.rglob("*") if not path.is_dir()}

    def program(self, name):
        """Where a program is made: in a folder that has nothing else."""
        folder = self.folder / "programs" / name
        shutil.rmtree(folder, ignore_errors=True)
        folder.mkdir(parents=True)
        return folder / (name + (".exe" if self.args.emulator else ""))

    def compiled(self, name, source, *options, standard="c99"):
        """A program of one source, compiled and linked in one command."""
        program = self.program(name)
        is_cpp = source.endswith(".cpp")
        if is_cpp and self.args.emulator:
            options = (*options, *OWN_RUNTIME)
        done(self.args.cxx if is_cpp else self.args.cc, f"-std={'c++20' if is_cpp else standard}", *self.flags,
             SOURCES / source, "-o", program, *options, cwd=program.parent)
        return program

    def run(self, program):
        """Runs it in its folder. On Windows the libraries are copied there; elsewhere it finds them by itself."""
        words = [str(program)]
        if self.args.emulator:
            for dll in (self.prefix / "bin").glob("*.dll"):
                shutil.copy(dll, program.parent)
            words = [self.args.emulator, *words]
        code = subprocess.run(words, cwd=program.parent, check=False).returncode
        if code != WORKED:
            raise Fault(f"{program} ends with {code}, due is {WORKED}")

    def pkg_config(self, *words):
        found = dict(os.environ, PKG_CONFIG_LIBDIR=str(self.lib / "pkgconfig"))
        return done(self.args.pkg_config, *words, env=found).split()

    def cmake_project(self, name, source, *options):
        """A folder in which the project in `source` is built."""
        built = self.program(name).parent
        toolchain = [f"-DCMAKE_TOOLCHAIN_FILE={self.args.toolchain}"] if self.args.toolchain else []
        done(self.args.cmake, "-S", SOURCES / source, "-B", built, "-G", "Ninja", "-DCMAKE_BUILD_TYPE=Release",
             f"-DCMAKE_C_COMPILER={self.args.cc}", f"-DCMAKE_CXX_COMPILER={self.args.cxx}", f"-DSOURCES={SOURCES}",
             *toolchain, *options)
        return built
