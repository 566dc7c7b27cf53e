"""Holds that no instruction of the library demands memory that begins at a multiple of 32.

alignment.py LIBRARY OBJDUMP ASSEMBLER

Windows aligns the stack to 16 bytes. The compiler takes it for granted that it can align a stack frame further, and
stores wide registers there with moves that fault elsewhere. Moves of wide registers that demand alignment are searched
for in all code, whatever their address. Of instructions with the AVX encoding only moves can demand it: an operand in
memory of a sum or a product may be anywhere.
"""
import os
import re
import subprocess
import sys
import tempfile

from binary import Library

MOVES = "vmovaps", "vmovapd", "vmovdqa", "vmovdqa32", "vmovdqa64", "vmovntps", "vmovntpd", "vmovntdq", "vmovntdqa"


def demands_alignment(mnemonic, operands):
    return mnemonic in MOVES and re.search(r"%[yz]mm", operands) is not None and "(" in operands


def disassembled(assembler, objdump, lines, *flags):
    """Mnemonic and operands of lines of assembler text, after they were assembled."""
    with tempfile.TemporaryDirectory() as folder:
        path = os.path.join(folder, "lines.o")
        subprocess.run([assembler, *flags, "-o", path, "-"], input="\n".join(lines) + "\n", text=True, check=True)
        text = subprocess.run([objdump, "-d", "-w", path], check=True, capture_output=True, text=True).stdout
    rows = [line.split("\t") for line in text.splitlines() if line.count("\t") >= 2]
    words = [row[2].split(None, 1) for row in rows]
    return [(word[0], word[1] if len(word) > 1 else "") for word in words if word[0] != "nop"]


def check_the_search(assembler, objdump):
    """What the search has to find in any code, and what it must pass over."""
    aligned = ["vmovaps %ymm1,0x20(%rsp)", "vmovapd 0x40(%rsp),%ymm2", "vmovdqa %ymm3,-0x40(%rbp)",
               "vmovntpd %ymm4,(%rax)", "vmovntdqa (%rax),%ymm5"]
    free = ["vmovups %ymm1,0x20(%rsp)", "vmovapd %ymm1,%ymm2", "vmovaps %xmm6,0x10(%rsp)", "vaddpd (%rsp),%ymm1,%ymm2"]
    found = [demands_alignment(*each) for each in disassembled(assembler, objdump, aligned + free)]
    assert found == [True] * len(aligned) + [False] * len(free), found
    # What the library is assembled with frees ordinary moves.
    freed = disassembled(assembler, objdump, aligned[:3], "-muse-unaligned-vector-move")
    assert len(freed) == 3 and not any(demands_alignment(*each) for each in freed), freed


def main():
    path, objdump, assembler = sys.argv[1:]
    check_the_search(assembler, objdump)
    library = Library(path, objdump)
    wide = on_stack = 0
    faults = []
    for each in library.code.values():
        if re.search("%[yz]mm", each.operands) and "(" in each.operands:
            wide += 1
            on_stack += re.search(r"\(%r[sb]p", each.operands) is not None
            if demands_alignment(each.mnemonic, each.operands):
                faults.append(f"{each.address:#x}: {each.mnemonic} {each.operands}")
    for fault in faults[:20]:
        print(fault)
    print(f"{wide} instructions take wide registers to memory or from it, {on_stack} of them on the stack; "
          f"{len(faults)} demand alignment")
    return 1 if faults or not on_stack else 0


sys.exit(main())
