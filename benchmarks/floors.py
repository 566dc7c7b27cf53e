"""The least number of cycles in which a kernel can run, from what its text counts.

A scalar x86-64 core of today starts two additions, two multiplications, three of both together, two loads and two
stores in one cycle. The x87 unit starts one step, addition or multiplication, in one cycle.
"""
import os
import re

FOLDERS = {"complex_forward": ("complex", "dft"), "complex_inverse": ("complex", "dft"),
           "real_forward": ("real_forward", "rdft"), "packed_forward": ("real_forward", "rdft"),
           "real_inverse": ("real_inverse", "rdft"), "packed_inverse": ("real_inverse", "rdft"),
           "hartley": ("hartley", "dht")}
HEAD = re.compile(r"// (\d+) additions?, (\d+) subtractions?, \d+ multiplications? \((\d+) with `scale`\)")


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


def counts(tree, family, size):
    """(sums, products, loads, stores) of one transform, or None where they are not known."""
    if family in ("dct4", "wht"):
        return dct4(size) if family == "dct4" else walsh_hadamard(size)
    if family not in FOLDERS:
        return None
    folder, stem = FOLDERS[family]
    path = os.path.join(tree, "kernels", folder, f"{stem}_{size}.h")
    with open(path, encoding="ascii") as file:
        found = HEAD.search(file.read(2000))
    if not found:
        raise SystemExit(f"{path} does not tell its counts")
    additions, subtractions, products = map(int, found.groups())
    loads = stores = 2 * size if folder == "complex" else size
    if family == "real_forward":
        stores += 2 - size % 2  # the zeros beside the real bins
    return additions + subtractions, products, loads, stores


def scalar(sums, products, loads, stores):
    return max(sums / 2, products / 2, (sums + products) / 3, loads / 2, stores / 2)


def x87(sums, products, _loads, _stores):
    return sums + products
