"""Counts the arithmetic of every kernel in the built library's machine code and holds it against the expected tables.

steps.py LIBRARY OBJDUMP EXPECTED_FOLDER

Each kernel is reached as a caller reaches it: exported entry, one indirect jump, slot, routine. What is demanded of it:
additions plus subtractions and multiplications of the table, no packed arithmetic, no call, no backward jump.
"""
import os
import re
import sys

from binary import Library

X87_SUMS = re.compile(r"f(add|sub)r?p?[sl]?$")
X87_PRODUCTS = re.compile(r"fmulp?[sl]?$")
SSE_SUMS = re.compile(r"v?(add|sub)s[sd]$")
SSE_PRODUCTS = re.compile(r"v?muls[sd]$")
FOREIGN = re.compile(  # arithmetic that no kernel may hold
    r"f(i?div|sqrt|abs|i(add|sub|mul)|chs|sin|cos)|v?(add|sub|mul|div|sqrt|hadd|addsub)p[sd]|v?(div|sqrt)s[sd]"
    r"|vf?n?m(add|sub)|cmp[a-z]*s[sd]|u?comis[sd]|fu?comi?p?")


def expected_rows(folder, family):
    """length -> (sums, products, negations) with the products of `scale`."""
    rows = {}
    with open(os.path.join(folder, family + ".txt"), encoding="ascii") as file:
        for line in file:
            cells = [cell.strip() for cell in line.split("|")]
            if line.startswith("#") or len(cells) < 6:
                continue
            rows[int(cells[0])] = (int(cells[4]), int(cells[5]))
    return rows


def counted(instructions):
    sums = products = 0
    faults = []
    for instruction in instructions:
        name = instruction.mnemonic
        if X87_SUMS.match(name) or SSE_SUMS.match(name):
            sums += 1
        elif X87_PRODUCTS.match(name) or SSE_PRODUCTS.match(name):
            products += 1
        elif FOREIGN.match(name):
            faults.append(f"holds {name} {instruction.operands}")
        elif name in ("xorps", "xorpd", "pxor") and len(set(instruction.operands.split(","))) != 1:
            faults.append(f"holds {name} {instruction.operands}")
        elif name.startswith("call"):
            faults.append(f"calls {instruction.operands}")
        elif name.startswith(("j", "loop")) and (instruction.target() is None or instruction.target() <= instruction.address):
            faults.append(f"jumps back or elsewhere: {name} {instruction.operands}")
    return sums, products, faults


FAMILIES = [(re.compile(r"zulgDFT(Fwd|Inv)_CToC_(\d+)_(32|64)fc$"), "complex")]


def main():
    path, objdump, folder = sys.argv[1:]
    library = Library(path, objdump)
    tables = {family: expected_rows(folder, family) for _, family in FAMILIES}
    kernels = failures = 0
    for name in sorted(library.exports):
        for pattern, family in FAMILIES:
            match = pattern.match(name)
            if not match:
                continue
            kernels += 1
            sums, products = tables[family][int(match.group(2))]
            slot = library.slot_address(name)
            found_sums, found_products, faults = counted(library.routine(library.word(slot)))
            if (found_sums, found_products) != (sums, products):
                faults.append(f"{found_sums} sums, {found_products} products; due are {sums}, {products}")
            if faults:
                failures += 1
                print(f"{name}: " + "; ".join(faults[:5]))
    print(f"{kernels} kernels counted, {failures} of them wrong")
    return 1 if failures or not kernels else 0


sys.exit(main())
