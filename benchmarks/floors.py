"""The least number of cycles in which a kernel can run, from what its text counts.

A scalar x86-64 core of today starts two additions, two multiplications, three of both together, two loads and two
stores in one cycle. The x87 unit starts one step, addition or multiplication, in one cycle.
"""
import pathlib
import sys

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[1] / "tests" / "machine"))
import catalogue  # noqa: E402

# The families of kernels, by the name of their contests.
KERNELS = {"complex_forward": "DFTFwd_CToC", "complex_inverse": "DFTInv_CToC", "real_forward": "DFTFwd_RToCCS",
           "real_inverse": "DFTInv_CCSToR", "packed_forward": "DFTFwd_RToPack", "packed_inverse": "DFTInv_PackToR",
           "permuted_forward": "DFTFwd_RToPerm", "permuted_inverse": "DFTInv_PermToR", "hartley": "Hartley"}
# Of a family, a length or an order, and "32" or "64".
EXPORTS = {(export["family"], export["length"] or export["order"], export["element"][:2]): export
           for export in catalogue.kernels()}
LENGTHS = sorted({length for family, length, _ in EXPORTS if family in KERNELS.values()})

# DCT-IV: sums and products of one body, by size or radix.
DIRECT = {2: (2, 4), 4: (12, 8), 8: (32, 24), 16: (88, 64), 32: (216, 144)}
FOLD = {2: (0, 0), 4: (6, 2), 8: (24, 12), 16: (68, 32), 32: (184, 96), 64: (448, 224)}
OUTPUT = {2: (10, 10), 4: (32, 28), 8: (88, 72), 16: (224, 176), 32: (512, 352)}
COMBINE = {8: (66, 32), 16: (176, 96), 32: (440, 224)}
ROTATIONS = {8: 7, 16: 24, 32: 52}  # of a combine body, each by two table entries


def radix(n):
    return 32 if n >= 512 else 16 if n >= 128 else 8 if n >= 32 else 4 if n >= 16 else 2


def repeated(count, *parts):
    return tuple(count * sum(column) for column in zip(*parts))


def skew(size):
    """One skew transform: a body, or the shorter transforms it is split into and the rows that combine them."""
    if size in FOLD:
        return FOLD[size] + (size, size)
    r = radix(size // 2)
    rows = repeated(size // (2 * r), COMBINE[r] + (2 * r + 2 * ROTATIONS[r], 2 * r))
    return repeated(1, repeated(r, skew(size // r)), rows)


def dct4(size):
    if size in DIRECT:
        return DIRECT[size] + (size, size)
    r = radix(size // 2)
    rows = repeated(size // (2 * r), OUTPUT[r] + (4 * r, 2 * r))
    return repeated(1, repeated(r, skew(size // r)), rows)


def walsh_hadamard(size):
    order = size.bit_length() - 1
    passes = 1 if order <= 7 else 2 if order <= 11 else 3
    return order * size, size, passes * size, passes * size


def counts(family, size):
    """(sums, products, loads, stores) of one transform, or None where they are not known."""
    if family in ("dct4", "wht"):
        return dct4(size) if family == "dct4" else walsh_hadamard(size)
    if family not in KERNELS:
        return None
    export = EXPORTS[KERNELS[family], size, "64"]
    counted = export["counts"]
    numbers = 2 if export["element"].endswith("c") else 1
    loads, stores = (numbers * catalogue.array(export, name)["elements"] for name in ("pSrc", "pDst"))
    if "spectrum" in export and export["spectrum"]["argument"] == "pSrc":
        loads -= len(export["spectrum"]["zeros"])  # they are not read
    sums, products = counted["additions"] + counted["subtractions"], counted["multiplications"] + counted["scale"]
    return sums, products, loads, stores


def scalar(sums, products, loads, stores):
    return max(sums / 2, products / 2, (sums + products) / 3, loads / 2, stores / 2)


def x87(sums, products, _loads, _stores):
    return sums + products
