# The transforms by their definitions, as sums that are computed here, and the library itself, called without the tool.
import cmath
import ctypes
import math
import operator
import os
import re
import sys

import tool

sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "machine"))
import catalogue

LENGTHS = sorted({kernel["length"] for kernel in catalogue.kernels()} - {None})
FLAGS = {  # name, number: scale forward
    ("forward", "1"): lambda n: 1 / n,
    ("backward", "2"): lambda n: 1,
    ("ortho", "4"): lambda n: 1 / math.sqrt(n),
    ("none", "8"): lambda n: 1,
}


def cosine(length, k, count, amplitude=1.0, phase=0.0):
    return [amplitude * math.cos(2 * math.pi * k * n / length + phase) for n in range(count)]


def dft(frame):
    n = len(frame)
    return [sum(x * cmath.exp(-2j * math.pi * (i * k % n) / n) for i, x in enumerate(frame)) for k in range(n)]


def hartley(frame):
    return [bin.real - bin.imag for bin in dft(frame)]


FAMILIES = {  # of lengths 2 to 64; name: the forward and the inverse routine, and the bins of a frame without scale
    "complex": ("zulgDFTFwd_CToC_64fc", "zulgDFTInv_CToC_64fc", dft),
    "real": ("zulgDFTFwd_RToCCS_64f", "zulgDFTInv_CCSToR_64f", lambda frame: dft(frame)[:len(frame) // 2 + 1]),
    "hartley": ("zulgHartley_64f", "zulgHartley_64f", hartley),
}
ALL_FAMILIES = [*FAMILIES, "wht", "dct4"]
SCALES_OF_INVOLUTIONS = {words: FLAGS["forward", "1"] if words[0] == "backward" else scale
                         for words, scale in FLAGS.items()}


def pattern(k, n):
    """Row k of the Walsh-Hadamard matrix of n points in natural order."""
    return [(-1) ** bin(j & k).count("1") for j in range(n)]


def walsh_hadamard(frame):
    n = len(frame)
    if n == 1:
        return list(frame)
    low, high = walsh_hadamard(frame[:n // 2]), walsh_hadamard(frame[n // 2:])
    return [a + b for a, b in zip(low, high)] + [a - b for a, b in zip(low, high)]


def dct4_cosine(k, n):
    """The cosine of bin k in the DCT-IV of n points. The angles, in units of pi/(4 n), repeat after 8 n of them."""
    return [math.cos(math.pi * ((2 * i + 1) * (2 * k + 1) % (8 * n)) / (4 * n)) for i in range(n)]


def dct4_bin(frame, k):
    return math.fsum(map(operator.mul, frame, dct4_cosine(k, len(frame))))


def library():
    return ctypes.CDLL(os.path.join(os.path.dirname(tool.TOOL), "libzulgenpx-7.0.so"))


def transformed(routine, values, length):
    """What a routine of the library gives, without scale; None when it has no such length."""
    given, result = (ctypes.c_double * 130)(*values), (ctypes.c_double * 130)()
    status = getattr(library(), routine)(given, result, length, 8)
    assert status in (0, -6), (routine, length, status)
    return list(result) if status == 0 else None


def check_error(report):
    """The error that --check reports."""
    return float(re.search(r"relative error +(\S+) after", report.decode())[1])
