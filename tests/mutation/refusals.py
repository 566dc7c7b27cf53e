"""Asks kernels for what they refuse, and looks where they store: refusals.py LIBRARY NAME ... fails if one does not
refuse, writes all the same, leaves a part of its result unwritten or writes beyond it."""
import ctypes
import re
import sys

OK, NULL_POINTER, FLAG_ERROR = 0, -8, -16
FLAGS = {1: OK, 2: OK, 4: OK, 8: OK}
BYTES = 4096  # more than any source or destination needs


def result_bytes(name):
    family, length, bits = re.fullmatch(r"zulg(\w+)_(\d+)_(32|64)fc?", name).groups()
    if family.endswith("CToC"):
        elements = 2 * int(length)
    elif family.endswith("ToCCS"):
        elements = int(length) // 2 * 2 + 2
    else:
        elements = int(length)
    return elements * int(bits) // 8


def main():
    library = ctypes.CDLL(sys.argv[1])
    for name in sys.argv[2:]:
        routine = getattr(library, name)
        routine.argtypes = [ctypes.c_void_p, ctypes.c_void_p, ctypes.c_int32]
        source, destination = ctypes.create_string_buffer(BYTES), ctypes.create_string_buffer(b"\x55" * BYTES, BYTES)
        calls = [(None, destination, 8, NULL_POINTER), (source, None, 8, NULL_POINTER), (None, None, 3, NULL_POINTER)]
        calls += [(source, destination, flag, FLAGS.get(flag, FLAG_ERROR))
                  for flag in [*range(-1, 18), 33, 34, 36, 40, 64, 1 << 31, -8]]
        for first, second, flag, due in calls:
            before = destination.raw
            if routine(first, second, ctypes.c_int32(flag).value) != due or (due != OK and destination.raw != before):
                sys.exit(1)
        # No element of a result has the bits of 0x55: the source is zero.
        end = result_bytes(name)
        if b"\x55" in destination.raw[:end] or destination.raw[end:].strip(b"\x55"):
            sys.exit(1)


main()
