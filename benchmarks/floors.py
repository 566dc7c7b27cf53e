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


def counts(tree, family, size):
    """(sums, products, loads, stores) of one transform, or None where they are not told."""
    if family == "wht":
        order = size.bit_length() - 1
        passes = 1 if order <= 7 else 2 if order <= 11 else 3
        return order * size, size, passes * size, passes * size
    if family not in FOLDERS:
        return None
    folder, stem = FOLDERS[family]
    path = os.path.join(tree, "kernels", folder, f"{stem}_{size}.cpp")
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
