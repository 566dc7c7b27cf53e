"""Counts the arithmetic of every kernel in the built library's machine code and holds it against the expected tables.

steps.py LIBRARY OBJDUMP EXPECTED_FOLDER TARGET_FOLDER

Each kernel is reached as a caller reaches it: exported entry, one indirect jump, slot, routine. What is demanded of it:
additions plus subtractions and multiplications of the table, no call, no backward jump, and packed arithmetic only in
families that have several numbers to a register: there a packed step counts as many steps as it has lanes, and every
lane is in use. A kernel of several levels is counted at each. The negations of the forward real family are left to the
graph: a compiler may fold one into its neighbours. The large Walsh-Hadamard orders have the loops and the calls out of
the library that their table grants them; such a call may be out of the way, and a jump leads back from it. A loop over
several blocks side by side has the steps of one block in each lane. On a target whose kernels may share an end with the
refusals before it, a jump back to that end is allowed, since it is no loop. Where a target stores the 2 that the
inverse real kernels multiply by, they read it in the width of their elements; elsewhere a compiler may double by a sum.
"""
import os
import re
import struct
import sys
from collections import Counter

import catalogue
from binary import Library
from expected import expected_rows

sys.path.insert(0, sys.argv[-1])
import machine  # of the target


def due_counts(folder, table):
    """length or order -> (sums, products, (loops, calls), sums of loops over neighbours), those by `scale` included."""
    due = {}
    for row in expected_rows(os.path.join(folder, table + ".txt")):
        sums = int(row["sums"]) if "sums" in row else int(row["additions"]) + int(row["subtractions"])
        granted = int(row.get("loops", 0)), int(row.get("calls", 0))
        due[int(row["order" if table == "wht" else "length"])] = (
            sums, int(row["multiplications"]), granted, int(row.get("first pass", 0)))
    return due


def leads_to(instructions, start, end):
    """Whether the instruction at address `end` can follow the one at `start`, directly or after others."""
    places = {instruction.address: place for place, instruction in enumerate(instructions)}
    open_places, seen = [places.get(start)], {None}
    while open_places:
        place = open_places.pop()
        while place not in seen:
            seen.add(place)
            instruction = instructions[place]
            if instruction.address == end:
                return True
            name = instruction.mnemonic
            if name.startswith(("j", "loop")):
                open_places.append(places.get(instruction.target()))
            place = None if name == "jmp" or name.startswith("ret") or place + 1 == len(instructions) else place + 1
    return False


def lanes(instruction):
    return 4 if "%ymm" in instruction.operands else 2


def counted(library, instructions, may_negate, granted=(0, 0), may_pack=False):
    """granted: how many loops and calls out of the library there are to be."""
    sums = products = loops = calls = 0
    loops_granted, calls_granted = granted
    faults = []
    for instruction in instructions:
        name = instruction.mnemonic
        if machine.SUMS.match(name):
            sums += 1
        elif machine.PRODUCTS.match(name):
            products += 1
        elif may_pack and machine.PACKED_SUMS.match(name):
            sums += lanes(instruction)
        elif may_pack and machine.PACKED_PRODUCTS.match(name):
            products += lanes(instruction)
        elif may_negate and name in machine.NEGATIONS:
            continue
        elif machine.FOREIGN.match(name):
            faults.append(f"holds {name} {instruction.operands}")
        elif not may_pack and re.match(r"p?xor(p[sd])?$", name) and "mm" in instruction.operands and \
                len(set(instruction.operands.split(","))) != 1:
            faults.append(f"holds {name} {instruction.operands}")
        elif name.startswith("call"):
            calls += 1
            if not library.leads_outside(instruction):
                faults.append(f"calls {instruction.operands}")
        elif name.startswith(("j", "loop")):
            target = instruction.target()
            if target is None or not instructions[0].address <= target <= instructions[-1].address:
                faults.append(f"jumps elsewhere: {name} {instruction.operands}")
            elif target <= instruction.address:
                is_loop = leads_to(instructions, target, instruction.address)
                loops += is_loop
                if not (is_loop or calls_granted or machine.MAY_SHARE_AN_END):
                    faults.append(f"jumps backwards: {name} {instruction.operands}")
    if (loops, calls) != granted:
        faults.append(f"{loops} loops, {calls} calls; due are {loops_granted}, {calls_granted}")
    return sums, products, faults


FIXED_PLACE = re.compile(r"0x([0-9a-f]+)$")


def stored_twos(library, instructions):
    """The widths, in bits, in which a 2 is read from the library's data as an operand."""
    widths = set()
    for instruction in instructions:
        place = FIXED_PLACE.match(instruction.operands)
        if place is None:
            continue
        address = int(place[1], 16)
        for pattern, layout, width in ((machine.READS_SINGLE, "<f", 32), (machine.READS_DOUBLE, "<d", 64)):
            if not pattern.match(instruction.mnemonic):
                continue
            if struct.unpack(layout, library.bytes(address, width // 8)) == (2,):
                widths.add(width)
    return widths


def table_of(export):
    """The expected table that a kernel is in."""
    if "spectrum" in export:
        return "real_forward" if export["spectrum"]["argument"] == "pDst" else "real_inverse"
    return "complex" if export["element"].endswith("c") else export["family"].lower()


def faults_of(library, export, routine, due, level):
    """What is wrong with one kernel. due: a row of due_counts."""
    due_sums, due_products, granted, due_of_neighbours = due
    if due_of_neighbours:
        side_by_side = machine.LANES[level]
        due_sums = due_of_neighbours + (due_sums - due_of_neighbours) * side_by_side
        due_products *= side_by_side
    sums, products, faults = counted(library, routine, table_of(export) == "real_forward", granted,
                                     may_pack=table_of(export) in machine.PACKED_FAMILIES)
    doubled = 0  # by a sum
    if table_of(export) == "real_inverse" and not machine.STORES_TWO:
        doubled = min(max(sums - due_sums, 0), (export["length"] - 1) // 2 * 2)
    if (sums, products) != (due_sums + doubled, due_products - doubled):
        faults.append(f"{sums} sums, {products} products; due are {due_sums}, {due_products}")
    if table_of(export) == "real_inverse" and machine.STORES_TWO and export["length"] != 2:
        widths, found = {int(export["element"][:2])}, stored_twos(library, routine)
        if found != widths:
            faults.append(f"a 2 is stored in bits: {sorted(found)}; due are {sorted(widths)}")
    return faults


KERNELS = 2 * (9 * 63 + 13)  # nine families of lengths 2 to 64, 13 orders


def main():
    path, objdump, folder, _ = sys.argv[1:]
    library = Library(path, objdump)
    kernels = catalogue.kernels()
    due = {table: due_counts(folder, table) for table in {table_of(export) for export in kernels}}
    failures = 0
    levels = Counter()
    for export in kernels:
        size = export["order"] if export["length"] is None else export["length"]
        for level, kernel in enumerate(library.kernels(library.slot_address(export["name"]))):
            levels[level] += 1
            faults = faults_of(library, export, library.routine(kernel), due[table_of(export)][size], level)
            if faults:
                failures += 1
                print(f"{export['name']}, level {level}: " + "; ".join(faults[:5]))
    due_levels = KERNELS, machine.SECOND_LEVEL_KERNELS
    print(f"{levels[0]}, {levels[1]} kernels counted at the two levels, due are {due_levels}; {failures} are wrong")
    return 1 if failures or (levels[0], levels[1]) != due_levels else 0


sys.exit(main())
