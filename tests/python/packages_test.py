"""Wheel, source archive and installation, without a registry and without a network."""
import base64
import hashlib
import os
import shutil
import subprocess
import sys
import tarfile
import tempfile
import unittest
import zipfile

import support

sys.path.insert(0, support.PYTHON)
import build_backend  # noqa: E402

CORE, MAIN, BATCH = support.LIBRARY_NAMES
SOURCES = sorted(name for name in os.listdir(os.path.join(support.PYTHON, "zulgenpx"))
                 if name.endswith((".py", ".typed")))
PROGRAM = ("import numpy as np, zulgenpx; print(zulgenpx._library.batch._name, zulgenpx.__file__, "
           "np.allclose(zulgenpx.fft(np.eye(5)), np.fft.fft(np.eye(5))))")


class Folder(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory(dir=support.FOLDER)
        self.addCleanup(folder.cleanup)
        self.folder = os.path.realpath(folder.name)

    def path(self, *parts):
        return os.path.join(self.folder, *parts)

    def made(self, *parts):
        os.makedirs(self.path(*parts))
        return self.path(*parts)

    def run_checked(self, *command, **environment):
        variables = {"PATH": os.environ["PATH"], "HOME": self.folder, "PYTHONDONTWRITEBYTECODE": "1",
                     "PIP_NO_INDEX": "1", "PIP_NO_CACHE_DIR": "1", "PIP_DISABLE_PIP_VERSION_CHECK": "1", **environment}
        done = subprocess.run(command, env=variables, cwd=self.folder, stdout=subprocess.PIPE, stderr=subprocess.STDOUT,
                              text=True, check=False)
        self.assertEqual(done.returncode, 0, done.stdout)
        return done.stdout


class Wheels(Folder):
    """The build backend by itself."""

    def setUp(self):
        super().setUp()
        self.before = {name: os.environ.get(name) for name in ("ZULGENPX_LIBRARY_DIR", "SOURCE_DATE_EPOCH")}
        self.addCleanup(self.restore)
        self.set(ZULGENPX_LIBRARY_DIR=support.LIBRARIES, SOURCE_DATE_EPOCH=None)

    def restore(self):
        self.set(**self.before)

    @staticmethod
    def set(**variables):
        for name, value in variables.items():
            if value is None:
                os.environ.pop(name, None)
            else:
                os.environ[name] = value

    def copied_backend(self):
        """The package in a folder that belongs to no checkout."""
        folder = self.path("copy")
        shutil.copytree(support.PYTHON, folder, ignore=shutil.ignore_patterns("__pycache__"))
        shutil.copy(os.path.join(support.TREE, "LICENSE"), folder)
        real = build_backend.FOLDER
        build_backend.FOLDER = folder
        self.addCleanup(setattr, build_backend, "FOLDER", real)

    def assert_refused(self, line, call, *arguments):
        with self.assertRaises(build_backend.BuildError) as caught:
            call(*arguments)
        self.assertEqual(str(caught.exception), line)
        self.assertEqual([name for name in os.listdir(self.folder) if name.endswith((".whl", ".gz"))], [])

    def test_what_is_in_a_wheel(self):
        name = build_backend.build_wheel(self.folder)
        self.assertEqual(name, "zulgenpx-7.0-py3-none-linux_x86_64.whl")
        with zipfile.ZipFile(self.path(name)) as archive:
            info = "zulgenpx-7.0.dist-info/"
            names = archive.namelist()
            self.assertEqual(names, sorted(f"zulgenpx/{one}" for one in [*SOURCES, *support.LIBRARY_NAMES]) + [
                info + one for one in ("LICENSE", "METADATA", "WHEEL", "RECORD")])
            for one in support.LIBRARY_NAMES:
                with open(os.path.join(support.LIBRARIES, one), "rb") as file:
                    self.assertEqual(archive.read(f"zulgenpx/{one}"), file.read())
            rows = [line.split(",") for line in archive.read(info + "RECORD").decode().splitlines()]
            self.assertEqual([row[0] for row in rows], names)
            for row in rows[:-1]:
                content = archive.read(row[0])
                self.assertEqual(int(row[2]), len(content))
                algorithm, _, digest = row[1].partition("=")
                self.assertEqual(base64.urlsafe_b64decode(digest + "="), hashlib.new(algorithm, content).digest())
            self.assertIn("Root-Is-Purelib: false\nTag: py3-none-linux_x86_64\n", archive.read(info + "WHEEL").decode())
            metadata = archive.read(info + "METADATA").decode()
            for line in ("Name: zulgenpx", "Version: 7.0", "Requires-Dist: numpy>=1.23", "License: MIT"):
                self.assertIn(line + "\n", metadata.partition("\n\n")[0] + "\n")
            self.assertTrue(metadata.partition("\n\n")[2].startswith("# zulgenpx for Python"))
        os.mkdir(self.path("info"))
        self.assertEqual(build_backend.prepare_metadata_for_build_wheel(self.path("info")), info.rstrip("/"))
        self.assertEqual(sorted(os.listdir(self.path("info", info))), ["LICENSE", "METADATA", "WHEEL"])

    def test_the_same_bytes(self):
        def digests():
            folder = tempfile.mkdtemp(dir=self.folder)
            names = [build_backend.build_wheel(folder), build_backend.build_sdist(folder)]
            return [hashlib.sha256(open(os.path.join(folder, name), "rb").read()).hexdigest() for name in names]

        first = digests()
        self.copied_backend()
        for folder, _, names in os.walk(self.path("copy")):
            for name in names:  # later files of other permissions
                os.chmod(os.path.join(folder, name), 0o600)
                os.utime(os.path.join(folder, name), (2e9, 2e9))
        self.assertEqual(digests(), first)
        self.set(SOURCE_DATE_EPOCH="1700000000")
        later = digests()
        self.assertEqual(digests(), later)
        self.assertNotEqual(later[0], first[0])
        self.assertNotEqual(later[1], first[1])
        self.set(SOURCE_DATE_EPOCH="today")
        self.assert_refused("SOURCE_DATE_EPOCH is 'today', which is no number of seconds", build_backend.build_sdist,
                            self.folder)

    def test_without_libraries(self):
        self.copied_backend()
        self.set(ZULGENPX_LIBRARY_DIR=None)
        name = build_backend.build_wheel(self.folder)
        self.assertEqual(name, "zulgenpx-7.0-py3-none-any.whl")
        with zipfile.ZipFile(self.path(name)) as archive:
            self.assertEqual([one for one in archive.namelist() if one.endswith(".so")], [])
            self.assertIn(b"Root-Is-Purelib: true\nTag: py3-none-any\n", archive.read("zulgenpx-7.0.dist-info/WHEEL"))

    def test_other_machines(self):
        """The wheel is for the machine that the libraries are for."""
        for number, platform in ((183, "linux_aarch64"), (243, "linux_riscv64")):
            folder = self.made(platform)
            for name in support.LIBRARY_NAMES:
                with open(os.path.join(folder, name), "wb") as file:
                    file.write(b"\x7fELF\2\1\1".ljust(18, b"\0") + bytes([number, 0]) + bytes(100))
            self.set(ZULGENPX_LIBRARY_DIR=folder)
            self.assertEqual(build_backend.build_wheel(folder), f"zulgenpx-7.0-py3-none-{platform}.whl")

    def test_refusals(self):
        folder = self.made("libraries")
        self.set(ZULGENPX_LIBRARY_DIR=folder)
        says = f"there is no {BATCH} in {folder}, which ZULGENPX_LIBRARY_DIR names"
        self.assert_refused(says, build_backend.build_wheel, self.folder)
        for name in support.LIBRARY_NAMES:
            shutil.copy(os.path.join(support.LIBRARIES, name), folder)
        os.remove(os.path.join(folder, MAIN))
        self.assert_refused(f"{folder} has {CORE} but no {MAIN}", build_backend.build_wheel, self.folder)
        path = os.path.join(folder, MAIN)
        for content in (b"", b"text", b"\x7fELF\2\1\1".ljust(18, b"\0") + b"\xff\xff"):
            with open(path, "wb") as file:
                file.write(content)
            self.assert_refused(f"{path} is no shared library of a machine that wheels are made for",
                                build_backend.build_wheel, self.folder)
        with open(path, "wb") as file:
            file.write(b"\x7fELF\2\1\1".ljust(18, b"\0") + b"\xb7\0")
        self.assert_refused(f"the libraries of {folder} are for several machines: {CORE} for linux_x86_64, {MAIN} for "
                            f"linux_aarch64, {BATCH} for linux_x86_64", build_backend.build_wheel, self.folder)

    def test_source_archive(self):
        name = build_backend.build_sdist(self.folder)
        self.assertEqual(name, "zulgenpx-7.0.tar.gz")
        with tarfile.open(self.path(name)) as archive:
            names = archive.getnames()
            archive.extractall(self.folder)
        self.assertEqual(names, sorted(f"zulgenpx-7.0/{one}" for one in [
            "LICENSE", "PKG-INFO", "README.md", "build_backend.py", "pyproject.toml",
            *(f"zulgenpx/{source}" for source in SOURCES)]))
        # A wheel of the archive is the wheel of the checkout.
        wheel = build_backend.build_wheel(self.made("first"))
        program = f"import build_backend; build_backend.build_wheel({self.made('second')!r})"
        self.run_checked(sys.executable, "-c", program, PYTHONPATH=self.path("zulgenpx-7.0"),
                         ZULGENPX_LIBRARY_DIR=support.LIBRARIES)
        contents = [open(self.path(one, wheel), "rb").read() for one in ("first", "second")]
        self.assertEqual(contents[0], contents[1])


class Installed(Folder):
    """pip in an environment of its own, which sees the packages of the system."""

    def test_pip(self):
        before = self.tree()
        # It sees pip, too, so that none has to be put there.
        self.run_checked(sys.executable, "-m", "venv", "--system-site-packages", "--without-pip", self.path("venv"))
        python = self.path("venv", "bin", "python3")
        pip = (python, "-m", "pip", "--quiet")
        packages = os.path.realpath(self.run_checked(
            python, "-c", "import sysconfig; print(sysconfig.get_path('platlib'))").strip())

        # From the checkout: the build is one of its own, as pip makes it by default.
        self.run_checked(*pip, "install", support.PYTHON, ZULGENPX_LIBRARY_DIR=support.LIBRARIES)
        installed = os.path.join(packages, "zulgenpx")
        self.assertEqual(self.run_checked(python, "-c", PROGRAM),
                         f"{os.path.join(installed, BATCH)} {os.path.join(installed, '__init__.py')} True\n")
        self.assertIn("Version: 7.0\n", self.run_checked(python, "-m", "pip", "show", "zulgenpx"))
        self.run_checked(*pip, "uninstall", "--yes", "zulgenpx")
        self.assertEqual([name for name in os.listdir(packages) if "zulgenpx" in name], [])

        # The same in place: the package is that of the checkout.
        self.run_checked(*pip, "install", "--editable", support.PYTHON, ZULGENPX_LIBRARY_DIR=support.LIBRARIES)
        self.assertEqual(
            self.run_checked(python, "-c", PROGRAM, ZULGENPX_LIBRARY_DIR=support.LIBRARIES),
            f"{support.LIBRARIES}/{BATCH} {support.PYTHON}/zulgenpx/__init__.py True\n")
        self.run_checked(*pip, "uninstall", "--yes", "zulgenpx")

        # A wheel without libraries looks for an installed one.
        shutil.copytree(support.PYTHON, self.path("copy"), ignore=shutil.ignore_patterns("__pycache__"))
        shutil.copy(os.path.join(support.TREE, "LICENSE"), self.path("copy"))
        self.run_checked(*pip, "wheel", "--no-deps", "--wheel-dir", self.folder, self.path("copy"))
        self.run_checked(*pip, "install", self.path("zulgenpx-7.0-py3-none-any.whl"))
        self.assertEqual(self.run_checked(python, "-c", PROGRAM, LD_LIBRARY_PATH=support.LIBRARIES).split()[::2],
                         [BATCH, "True"])
        self.assertEqual(self.tree(), before)

    def test_what_pip_says_of_wrong_libraries(self):
        folder = self.made("none")
        done = subprocess.run(
            [sys.executable, "-m", "pip", "wheel", "--no-deps", "--wheel-dir", self.folder, support.PYTHON],
            env={**os.environ, "ZULGENPX_LIBRARY_DIR": folder, "HOME": self.folder, "PYTHONDONTWRITEBYTECODE": "1",
                 "PIP_NO_INDEX": "1"},
            capture_output=True, text=True, check=False)
        self.assertNotEqual(done.returncode, 0)
        said = [line.strip() for line in (done.stdout + done.stderr).splitlines() if "BuildError" in line]
        self.assertEqual(said[-1].partition("BuildError: ")[2],
                         f"there is no {BATCH} in {folder}, which ZULGENPX_LIBRARY_DIR names")

    @staticmethod
    def tree():
        """All files of the package's folder: a build must leave nothing there."""
        return sorted(os.path.join(folder, name) for folder, _, names in os.walk(support.PYTHON) for name in names
                      if "__pycache__" not in folder)


if __name__ == "__main__":
    unittest.main()
