"""Finds and loads the shared libraries, and tells in one line why they cannot be loaded."""

from __future__ import annotations

import ctypes
import os
import sys
from typing import Callable, NamedTuple, Optional

from ._machine import machine_of

FOLDER_VARIABLE = "ZULGENPX_LIBRARY_DIR"

if sys.platform == "win32":
    MAIN, BATCH, CORE = "zulgenpx-7.0.dll", "zulgenpx-batch-7.0.dll", "zulcore-7.0.dll"
    _open = ctypes.WinDLL  # on 32-bit Windows a routine removes its arguments from the stack
else:
    MAIN, BATCH, CORE = "libzulgenpx-7.0.so", "libzulgenpx-batch-7.0.so", "libzulcore-7.0.so"
    _open = ctypes.CDLL

# The release whose routines this package calls.
RELEASE = (7, 0)


class Version(NamedTuple):
    """What the library that is loaded says about itself."""

    major: int
    minor: int
    major_build: int
    build: int
    target_cpu: str
    name: str
    version: str
    build_date: str


class _Record(ctypes.Structure):
    _fields_ = [
        ("major", ctypes.c_int32),
        ("minor", ctypes.c_int32),
        ("majorBuild", ctypes.c_int32),
        ("build", ctypes.c_int32),
        ("targetCpu", ctypes.c_char * 4),
        ("name", ctypes.c_char_p),
        ("version", ctypes.c_char_p),
        ("buildDate", ctypes.c_char_p),
    ]


# What the header of a file calls a machine, by kind of file, number of the machine and width of its addresses.
_MACHINES = {
    ("ELF", 3, 32): "32-bit x86",
    ("ELF", 40, 32): "32-bit ARM",
    ("ELF", 62, 32): "x32",
    ("ELF", 62, 64): "x86-64",
    ("ELF", 183, 64): "AArch64",
    ("ELF", 243, 64): "64-bit RISC-V",
    ("PE", 0x14C, 0): "32-bit Windows",
    ("PE", 0x8664, 0): "64-bit Windows",
    ("PE", 0xAA64, 0): "ARM64 Windows",
}


def _machine(path: str) -> Optional[tuple[str, int, int]]:
    try:
        return machine_of(path)
    except OSError:
        return None


def _called(machine: tuple[str, int, int]) -> str:
    return _MACHINES.get(machine, f"{machine[0]} machine {machine[1]}")


def _foreign(path: str) -> Optional[str]:
    """Why the file at `path` is none that this Python can load; None if its header is as it should be."""
    found, own = _machine(path), _machine(os.path.realpath(sys.executable))
    if found is None:
        return f"{path} is no shared library"
    if own is not None and found != own:
        return f"{path} is for {_called(found)}, this Python for {_called(own)}"
    return None


def _first_line(error: BaseException) -> str:
    return (str(error).splitlines() or [type(error).__name__])[0]


def _folders() -> list[str]:
    """Where the libraries may be, besides where the system's loader looks."""
    chosen = os.environ.get(FOLDER_VARIABLE)
    if chosen:
        return [chosen]
    package = os.path.dirname(os.path.abspath(__file__))
    folders = [package]
    tree = os.path.dirname(os.path.dirname(package))
    if os.path.isfile(os.path.join(tree, "include", "zulgenpx_batch.h")):  # the package of a checkout
        folders.append(os.path.join(tree, "build", "native"))
    return folders


def _load_of(folder: str) -> tuple[ctypes.CDLL, ctypes.CDLL]:
    """The main and the batch library of a folder."""
    loaded = []
    # The main library comes first: the batch library then takes the one that is loaded, whatever the system's search
    # path has.
    for name in (MAIN, BATCH):
        path = os.path.join(folder, name)
        if not os.path.isfile(path):
            raise ImportError(f"zulgenpx: there is no {name} in {folder}")
        try:
            loaded.append(_open(path))
        except OSError as error:
            # Some loaders say of a file for another machine that it is not there.
            core = os.path.join(folder, CORE)
            reason = _foreign(path) or (_foreign(core) if os.path.isfile(core) else None)
            raise ImportError(f"zulgenpx: {reason or f'{path} cannot be loaded: {_first_line(error)}'}") from None
    return loaded[0], loaded[1]


def _load() -> tuple[ctypes.CDLL, ctypes.CDLL]:
    folders = _folders()
    chosen = bool(os.environ.get(FOLDER_VARIABLE))
    for folder in folders:
        if chosen or os.path.isfile(os.path.join(folder, BATCH)):
            return _load_of(folder)
    try:
        return _open(MAIN), _open(BATCH)
    except OSError as error:
        raise ImportError(
            f"zulgenpx: {BATCH} is not in {' or '.join(folders)}, and the system's loader says: "
            f"{_first_line(error)}; {FOLDER_VARIABLE} can name its folder"
        ) from None


def _version_of(library: ctypes.CDLL) -> Version:
    call = library.zulgenGetLibVersion
    call.restype = ctypes.POINTER(_Record)
    record = call().contents
    numbers = record.major, record.minor, record.majorBuild, record.build
    texts = record.targetCpu, record.name, record.version, record.buildDate
    return Version(*numbers, *(text.decode("ascii", "replace") for text in texts))


def routine(library: ctypes.CDLL, name: str) -> Callable[..., int]:
    """An exported routine. It has no argument types: what is passed must be of the right C type already."""
    try:
        found = library[name]
    except AttributeError:
        raise ImportError(f"zulgenpx: {library._name} has no {name}") from None
    found.restype = ctypes.c_int32
    return found


main, batch = _load()
try:
    version = _version_of(main)
except AttributeError:
    raise ImportError(f"zulgenpx: {main._name} has no zulgenGetLibVersion") from None
if (version.major, version.minor) != RELEASE:
    raise ImportError(
        f"zulgenpx: {main._name} is release {version.major}.{version.minor}, this package is for "
        f"{RELEASE[0]}.{RELEASE[1]}"
    )
