"""Asks kernels for what they refuse, and looks where they store: refusals.py LIBRARY NAME ... fails if one does not
refuse, writes all the same, leaves a part of its result unwritten or writes beyond it."""
import ctypes
import os
import sys

sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), "../machine"))
import catalogue  # noqa: E402

OK, NULL_POINTER, FLAG_ERROR = 0, -8, -16
FLAGS = (1, 2, 4, 8)
BYTES = 4096  # more than any source or destination needs


def result_bytes(export):
    parts = 2 if export["element"].endswith("c") else 1
    return catalogue.array(export, "pDst")["elements"] * parts * int(export["element"][:2]) // 8


def main():
    library = ctypes.CDLL(sys.argv[1])
    exports = {export["name"]: export for export in catalogue.kernels()}
    for name in sys.argv[2:]:
        routine = getattr(library, name)
        routine.argtypes = [ctypes.c_void_p, ctypes.c_void_p, ctypes.c_int32]
        source, destination = ctypes.create_string_buffer(BYTES), ctypes.create_string_buffer(b"\x55" * BYTES, BYTES)
        calls = [(None, destination, 8, NULL_POINTER), (source, None, 8, NULL_POINTER), (None, None, 3, NULL_POINTER)]
        calls += [(source, destination, flag, OK if flag in FLAGS else FLAG_ERROR)
                  for flag in [*range(-1, 18), 33, 34, 36, 40, 64, 1 << 31, -8]]
        for first, second, flag, due in calls:
            before = destination.raw
            if routine(first, second, ctypes.c_int32(flag).value) != due or (due != OK and destination.raw != before):
                sys.exit(1)
        # No element of a result has the bits of 0x55: the source is zero.
        end = result_bytes(exports[name])
        if b"\x55" in destination.raw[:end] or destination.raw[end:].strip(b"\x55"):
            sys.exit(1)


main()
