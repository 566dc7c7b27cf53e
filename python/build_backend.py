"""Makes the wheel and the source archive of the package, with the standard library alone.

The shared libraries go into the wheel if they are there: in the folder that the environment variable
ZULGENPX_LIBRARY_DIR names, or in build/native of the checkout. The wheel is then for the machine that they are for.
Without them it is for any machine, and the package looks for an installed library. The same files make the same bytes;
their time is SOURCE_DATE_EPOCH, or the first that a zip archive can hold.
"""

from __future__ import annotations

import base64
import gzip
import hashlib
import io
import os
import runpy
import tarfile
import time
import tomllib
import zipfile
from typing import Any, Mapping, Optional

FOLDER = os.path.dirname(os.path.abspath(__file__))
FOLDER_VARIABLE = "ZULGENPX_LIBRARY_DIR"
PACKAGE = "zulgenpx"
# A wheel has all files of one of these lists.
LIBRARIES = (
    ("libzulcore-7.0.so", "libzulgenpx-7.0.so", "libzulgenpx-batch-7.0.so"),
    ("zulcore-7.0.dll", "zulgenpx-7.0.dll", "zulgenpx-batch-7.0.dll"),
)
# What pip calls the machine that the header of a library names.
PLATFORMS = {
    ("ELF", 3, 32): "linux_i686",
    ("ELF", 62, 64): "linux_x86_64",
    ("ELF", 183, 64): "linux_aarch64",
    ("ELF", 243, 64): "linux_riscv64",
    ("PE", 0x14C, 0): "win32",
    ("PE", 0x8664, 0): "win_amd64",
    ("PE", 0xAA64, 0): "win_arm64",
}
FIRST_TIME = 315532800  # 1980-01-01

Settings = Optional[Mapping[str, Any]]


class BuildError(Exception):
    """What is wrong, in one line."""


def project() -> dict[str, Any]:
    with open(os.path.join(FOLDER, "pyproject.toml"), "rb") as file:
        found: dict[str, Any] = tomllib.load(file)["project"]
    return found


def seconds() -> int:
    text = os.environ.get("SOURCE_DATE_EPOCH", str(FIRST_TIME))
    try:
        return max(int(text), FIRST_TIME)
    except ValueError:
        raise BuildError(f"SOURCE_DATE_EPOCH is {text!r}, which is no number of seconds") from None


def read(*path: str) -> bytes:
    with open(os.path.join(FOLDER, *path), "rb") as file:
        return file.read()


def license_text() -> bytes:
    """Of the source archive, or of the checkout."""
    for path in ("LICENSE", os.path.join(os.pardir, "LICENSE")):
        if os.path.isfile(os.path.join(FOLDER, path)):
            return read(path)
    raise BuildError(f"there is no LICENSE in {FOLDER} or above it")


def package_files() -> list[str]:
    """Sources of the package, without what a build or an import has left there."""
    return sorted(name for name in os.listdir(os.path.join(FOLDER, PACKAGE)) if name.endswith((".py", ".typed")))


def machine_of(path: str) -> Any:
    """What the package's own file tells of a library; the package itself would load the libraries."""
    return runpy.run_path(os.path.join(FOLDER, PACKAGE, "_machine.py"))["machine_of"](path)


def platform_of(path: str) -> str:
    found = PLATFORMS.get(machine_of(path))
    if found is None:
        raise BuildError(f"{path} is no shared library of a machine that wheels are made for")
    return found


def libraries() -> tuple[str, list[str]]:
    """The platform of the wheel, and the paths of the libraries."""
    chosen = os.environ.get(FOLDER_VARIABLE)
    folder = chosen or os.path.normpath(os.path.join(FOLDER, os.pardir, "build", "native"))
    for names in LIBRARIES:
        paths = [os.path.join(folder, name) for name in names]
        there = [path for path in paths if os.path.isfile(path)]
        if not there:
            continue
        missing = [name for name, path in zip(names, paths) if path not in there]
        if missing:
            raise BuildError(f"{folder} has {os.path.basename(there[0])} but no {missing[0]}")
        platforms = {path: platform_of(path) for path in paths}
        if len(set(platforms.values())) > 1:
            described = ", ".join(f"{os.path.basename(path)} for {name}" for path, name in platforms.items())
            raise BuildError(f"the libraries of {folder} are for several machines: {described}")
        return platforms[paths[0]], paths
    if chosen:
        raise BuildError(f"there is no {LIBRARIES[0][2]} in {folder}, which {FOLDER_VARIABLE} names")
    return "any", []


def metadata() -> bytes:
    about = project()
    lines = [
        "Metadata-Version: 2.1",
        f"Name: {about['name']}",
        f"Version: {about['version']}",
        f"Summary: {about['description']}",
        f"License: {about['license']}",
        "License-File: LICENSE",
        "Classifier: Typing :: Typed",
        f"Requires-Python: {about['requires-python']}",
        *(f"Requires-Dist: {needed}" for needed in about["dependencies"]),
        "Description-Content-Type: text/markdown",
        "",
    ]
    return "\n".join(lines).encode() + b"\n" + read(about["readme"])


def wheel_file(tag: str) -> bytes:
    is_pure = str(tag.endswith("-any")).lower()
    return f"Wheel-Version: 1.0\nGenerator: {PACKAGE}\nRoot-Is-Purelib: {is_pure}\nTag: {tag}\n".encode()


def info_folder() -> str:
    return f"{PACKAGE}-{project()['version']}.dist-info"


def info_files(tag: str) -> dict[str, bytes]:
    return {"LICENSE": license_text(), "METADATA": metadata(), "WHEEL": wheel_file(tag)}


def write_wheel(folder: str, platform: str, contents: Mapping[str, bytes]) -> str:
    tag = f"py3-none-{platform}"
    info = info_folder()
    files = dict(sorted(contents.items()))
    files.update((f"{info}/{name}", text) for name, text in info_files(tag).items())
    record = io.StringIO()
    for name, content in files.items():
        digest = base64.urlsafe_b64encode(hashlib.sha256(content).digest()).rstrip(b"=").decode()
        record.write(f"{name},sha256={digest},{len(content)}\n")
    record.write(f"{info}/RECORD,,\n")
    files[f"{info}/RECORD"] = record.getvalue().encode()

    year, month, day, hour, minute, second = time.gmtime(seconds())[:6]
    date = year, month, day, hour, minute, second
    name = f"{PACKAGE}-{project()['version']}-{tag}.whl"
    with zipfile.ZipFile(os.path.join(folder, name), "w", zipfile.ZIP_DEFLATED) as archive:
        for path, content in files.items():
            entry = zipfile.ZipInfo(path, date)
            entry.compress_type = zipfile.ZIP_DEFLATED
            entry.create_system = 3  # its permissions are those of Unix, wherever it is made
            entry.external_attr = (0o100755 if path.endswith((".so", ".dll")) else 0o100644) << 16
            archive.writestr(entry, content)
    return name


def get_requires_for_build_wheel(config_settings: Settings = None) -> list[str]:
    return []


def get_requires_for_build_editable(config_settings: Settings = None) -> list[str]:
    return []


def get_requires_for_build_sdist(config_settings: Settings = None) -> list[str]:
    return []


def prepare_metadata_for_build_wheel(metadata_directory: str, config_settings: Settings = None) -> str:
    info = info_folder()
    os.makedirs(os.path.join(metadata_directory, info))
    for name, content in info_files(f"py3-none-{libraries()[0]}").items():
        with open(os.path.join(metadata_directory, info, name), "wb") as file:
            file.write(content)
    return info


prepare_metadata_for_build_editable = prepare_metadata_for_build_wheel


def build_wheel(
    wheel_directory: str, config_settings: Settings = None, metadata_directory: Optional[str] = None
) -> str:
    platform, paths = libraries()
    contents = {f"{PACKAGE}/{name}": read(PACKAGE, name) for name in package_files()}
    contents.update((f"{PACKAGE}/{os.path.basename(path)}", read(path)) for path in paths)
    return write_wheel(wheel_directory, platform, contents)


def build_editable(
    wheel_directory: str, config_settings: Settings = None, metadata_directory: Optional[str] = None
) -> str:
    """A wheel that only says where the package is; the package finds the libraries of its checkout."""
    return write_wheel(wheel_directory, "any", {f"{PACKAGE}.pth": f"{FOLDER}\n".encode()})


def build_sdist(sdist_directory: str, config_settings: Settings = None) -> str:
    version = project()["version"]
    top = f"{PACKAGE}-{version}"
    files = {name: read(name) for name in ("README.md", "build_backend.py", "pyproject.toml")}
    files.update((f"{PACKAGE}/{name}", read(PACKAGE, name)) for name in package_files())
    files["LICENSE"] = license_text()
    files["PKG-INFO"] = metadata()
    packed = io.BytesIO()
    with tarfile.open(fileobj=packed, mode="w", format=tarfile.PAX_FORMAT) as archive:
        for name, content in sorted(files.items()):
            entry = tarfile.TarInfo(f"{top}/{name}")
            entry.size, entry.mtime, entry.mode = len(content), seconds(), 0o644
            archive.addfile(entry, io.BytesIO(content))
    name = f"{top}.tar.gz"
    with open(os.path.join(sdist_directory, name), "wb") as file:
        with gzip.GzipFile("", "wb", fileobj=file, mtime=seconds()) as archive_file:
            archive_file.write(packed.getvalue())
    return name
