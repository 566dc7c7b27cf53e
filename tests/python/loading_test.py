"""Where the libraries are looked for, and what is said of a missing or a wrong one. Each import is one process."""
import os
import shutil
import struct
import subprocess
import sys
import tempfile
import unittest

import support

CORE, MAIN, BATCH = support.LIBRARY_NAMES


class Loading(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory(dir=support.FOLDER)
        self.addCleanup(folder.cleanup)
        self.folder = os.path.realpath(folder.name)

    def path(self, *parts):
        return os.path.join(self.folder, *parts)

    def copy_libraries(self, *folder, names=support.LIBRARY_NAMES):
        os.makedirs(self.path(*folder), exist_ok=True)
        for name in names:
            shutil.copy(os.path.join(support.LIBRARIES, name), self.path(*folder))

    def copy_package(self, *folder):
        shutil.copytree(os.path.join(support.PYTHON, "zulgenpx"), self.path(*folder, "zulgenpx"),
                        ignore=shutil.ignore_patterns("__pycache__", "*.so"))
        return self.path(*folder)

    def change(self, name, at, value):
        """Writes two bytes of a file."""
        with open(self.path(name), "r+b") as file:
            file.seek(at)
            file.write(struct.pack("<H", value))

    def imported(self, package=support.PYTHON, chosen=None, search=None,
                 program="import zulgenpx; print(zulgenpx._library.batch._name)"):
        """What a process that imports the package from that folder prints; or, if it ends so, its ImportError."""
        environment = {name: value for name, value in os.environ.items()
                       if name not in ("ZULGENPX_LIBRARY_DIR", "LD_LIBRARY_PATH", "PYTHONPATH")}
        environment["PYTHONPATH"] = package
        if chosen is not None:
            environment["ZULGENPX_LIBRARY_DIR"] = chosen
        if search is not None:
            environment["LD_LIBRARY_PATH"] = search
        done = subprocess.run([sys.executable, "-B", "-c", program], env=environment, cwd="/", capture_output=True,
                              text=True, check=False)
        if done.returncode == 0:
            return done.stdout.strip()
        kind, _, text = done.stderr.partition("\nImportError: ")
        self.assertTrue(kind.startswith("Traceback"), done.stderr)
        self.assertNotIn("another exception occurred", done.stderr)
        self.assertEqual(text.count("\n"), 1, done.stderr)
        return text.strip()

    def test_the_folder_that_is_named(self):
        self.copy_libraries()
        self.assertEqual(self.imported(chosen=self.folder), self.path(BATCH))

    def test_the_folder_of_the_package(self):
        package = self.copy_package()
        self.copy_libraries("zulgenpx")
        self.assertEqual(self.imported(package), self.path("zulgenpx", BATCH))
        self.assertEqual(self.imported(package, chosen=""), self.path("zulgenpx", BATCH))
        # The named folder alone counts.
        self.assertEqual(self.imported(package, chosen="/none"), f"zulgenpx: there is no {MAIN} in /none")

    def test_the_build_folder_of_a_checkout(self):
        package = self.copy_package("tree", "python")
        self.copy_libraries("tree", "build", "native")
        self.assertIn("is not in", self.imported(package))
        os.mkdir(self.path("tree", "include"))
        shutil.copy(os.path.join(support.TREE, "include", "zulgenpx_batch.h"), self.path("tree", "include"))
        self.assertEqual(self.imported(package), self.path("tree", "build", "native", BATCH))

    def test_the_loader_of_the_system(self):
        package = self.copy_package("package")
        self.copy_libraries("system")
        self.assertEqual(self.imported(package, search=self.path("system")), BATCH)

    def test_libraries_of_one_folder_belong_together(self):
        """The batch library takes the main one beside it, even if the search path has another."""
        self.copy_libraries("chosen")
        self.copy_libraries("other")
        program = ("import zulgenpx; print(sorted(line.split()[-1] for line in open('/proc/self/maps')"
                   f" if line.strip().endswith('/{MAIN}') and ' r-xp ' in line))")
        self.assertEqual(self.imported(chosen=self.path("chosen"), search=self.path("other"), program=program),
                         str([self.path("chosen", MAIN)]))

    def test_nothing_is_there(self):
        package = self.copy_package()
        self.assertEqual(
            self.imported(package),
            f"zulgenpx: {BATCH} is not in {self.path('zulgenpx')}, and the system's loader says: {MAIN}: cannot open "
            "shared object file: No such file or directory; ZULGENPX_LIBRARY_DIR can name its folder")

    def test_one_is_missing(self):
        for missing in (MAIN, BATCH):
            self.copy_libraries(missing, names=[name for name in support.LIBRARY_NAMES if name != missing])
            self.assertEqual(self.imported(chosen=self.path(missing)),
                             f"zulgenpx: there is no {missing} in {self.path(missing)}")
        self.copy_libraries("core", names=(MAIN, BATCH))
        self.assertEqual(
            self.imported(chosen=self.path("core")),
            f"zulgenpx: {self.path('core', MAIN)} cannot be loaded: {CORE}: cannot open shared object file: "
            "No such file or directory")

    def test_of_another_machine(self):
        for name in support.LIBRARY_NAMES:
            for number, machine in ((183, "AArch64"), (40, "ELF machine 40"), (62, None)):
                self.copy_libraries()
                self.change(name, 18, number)
                said = self.imported(chosen=self.folder)
                if machine is None:
                    self.assertEqual(said, self.path(BATCH))
                else:
                    self.assertEqual(said, f"zulgenpx: {self.path(name)} is for {machine}, this Python for x86-64")

    def test_of_another_width(self):
        self.copy_libraries()
        self.change(MAIN, 4, 0x0101)
        self.change(MAIN, 18, 3)
        self.assertEqual(self.imported(chosen=self.folder),
                         f"zulgenpx: {self.path(MAIN)} is for 32-bit x86, this Python for x86-64")

    def test_for_windows(self):
        self.copy_libraries()
        head = b"MZ".ljust(60, b"\0") + struct.pack("<I", 64) + b"PE\0\0" + struct.pack("<H", 0x14C)
        with open(self.path(BATCH), "wb") as file:
            file.write(head + bytes(99))
        self.assertEqual(self.imported(chosen=self.folder),
                         f"zulgenpx: {self.path(BATCH)} is for 32-bit Windows, this Python for x86-64")

    def test_no_library(self):
        for content in (b"", b"hello\n", b"\x7fELF", b"MZ" + bytes(100)):
            self.copy_libraries()
            with open(self.path(MAIN), "wb") as file:
                file.write(content)
            self.assertEqual(self.imported(chosen=self.folder), f"zulgenpx: {self.path(MAIN)} is no shared library")

    def test_of_another_kind(self):
        """A library that has the name but not the routines."""
        self.copy_libraries()
        shutil.copy(self.path(CORE), self.path(MAIN))
        os.remove(self.path(BATCH))
        shutil.copy(self.path(CORE), self.path(BATCH))
        self.assertEqual(self.imported(chosen=self.folder),
                         f"zulgenpx: {self.path(MAIN)} has no zulgenGetLibVersion")

    def test_of_another_release(self):
        """The record of the release is found by its bytes, and the release changed."""
        self.copy_libraries()
        with open(self.path(MAIN), "rb") as file:
            content = file.read()
        record = struct.pack("<4i4s", 7, 0, 205, 544, b"px")
        self.assertEqual(content.count(record), 1)
        self.change(MAIN, content.index(record), 8)
        self.assertEqual(self.imported(chosen=self.folder),
                         f"zulgenpx: {self.path(MAIN)} is release 8.0, this package is for 7.0")

    def test_without_a_routine(self):
        self.copy_libraries()
        with open(self.path(BATCH), "rb") as file:
            content = file.read()
        name = b"\0zulgBatchHartley_64f\0"
        self.assertEqual(content.count(name), 1)
        with open(self.path(BATCH), "wb") as file:
            file.write(content.replace(name, name.replace(b"Hartley", b"Hartlex")))
        self.assertEqual(self.imported(chosen=self.folder),
                         f"zulgenpx: {self.path(BATCH)} has no zulgBatchHartley_64f")

    def test_version(self):
        self.copy_libraries()
        program = "import zulgenpx; print(tuple(zulgenpx.library_version()), zulgenpx.__version__)"
        self.assertEqual(self.imported(chosen=self.folder, program=program),
                         "(7, 0, 205, 544, 'px', 'zulgenpx-7.0.dll', '7.0 build 205.58', 'Apr 18 2011') 7.0")


if __name__ == "__main__":
    unittest.main()
