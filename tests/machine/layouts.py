"""Compares the arithmetic of the three layouts of each forward real kernel in machine code.

On x87 the three have the same floating-point instructions on the same registers, in the same order. Only addresses may
differ, since layouts differ in their store addresses alone. These registers are wider than a double, so that a spill at
another point would change results. On other targets every step rounds to double, wherever it comes in the order, and a
compiler may choose the order. There each kind of arithmetic must occur equally often.

layouts.py LIBRARY OBJDUMP TARGET_FOLDER
"""
import re
import sys

import catalogue
from binary import Library

sys.path.insert(0, sys.argv[-1])
import machine  # of the target


def masked(instruction):
    """Mnemonic and operands, where each access through a pointer is written as `memory`. Constants keep their address,
    and so does the table of scale factors, whatever register holds the index into it."""
    operands = re.sub(r"-?(0x[0-9a-f]+)?\(%rip\)\s*#\s*(0x)?([0-9a-f]+).*", r"constant \3", instruction.operands)
    operands = re.sub(r"(0x[0-9a-f]+)\(,%[a-z]+,\d\)", r"table \1", operands)
    operands = re.sub(r"(-?0x[0-9a-f]+)?\(%[a-z0-9,%]+\)", "memory", operands)
    return instruction.mnemonic, operands


def arithmetic(library, kernel):
    """The floating-point instructions; integer ones are pointers, checks and the stored zeros of CCS."""
    return [masked(instruction) for instruction in library.routine(kernel)
            if re.search("[xy]mm", instruction.operands) or instruction.mnemonic.startswith("f")]


def comparable(library, name):
    """What must be the same in all layouts, at every level."""
    levels = [arithmetic(library, kernel) for kernel in library.kernels(library.slot_address(name))]
    if machine.HAS_WIDE_REGISTERS:
        return levels[0]
    # Where the operand is in memory, the disassembler adds a letter for its width.
    return sorted((level, re.sub("(?<=cvtpd2ps)[xy]$", "", mnemonic)) for level, instructions in enumerate(levels)
                  for mnemonic, _ in instructions if re.match(r"v?(add|sub|mul|cvt)", mnemonic))


def main():
    library = Library(sys.argv[1], sys.argv[2])
    compared, different = 0, []
    forward = [export for export in catalogue.kernels() if export.get("spectrum", {}).get("argument") == "pDst"]
    in_ccs = {(export["length"], export["element"]): export["name"] for export in forward
              if export["spectrum"]["layout"] == "CCS"}
    for export in forward:
        name, name_in_ccs = export["name"], in_ccs[export["length"], export["element"]]
        if name == name_in_ccs:
            continue
        compared += 1
        found, due = comparable(library, name), comparable(library, name_in_ccs)
        if found != due:
            place = next((i for i, (a, b) in enumerate(zip(found, due)) if a != b), min(len(found), len(due)))
            different.append(f"{name}: instruction {place}: {found[place:place + 1]}, in CCS {due[place:place + 1]}")
    for line in different[:20]:
        print(line)
    print(f"{compared} kernels compared with CCS, {len(different)} differ")
    return 1 if different or compared != 252 else 0


sys.exit(main())
