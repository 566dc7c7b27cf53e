"""The machine code of kernels in the built library, one listing for each level."""
import re
import sys

LEVELS = ["x86-64", "x86-64 with AVX2"]


class MachineCode:
    def __init__(self, source, path, objdump):
        sys.path.insert(0, str(source / "tests/machine"))
        import binary  # of the tree

        self.library = binary.Library(str(path), objdump)

    def kernels(self, name):
        """Of an export: (level, bytes, instructions, address) for each level."""
        found = []
        for level, start in zip(LEVELS, self.library.kernels(self.library.slot_address(name))):
            instructions = self.library.routine(start)
            found.append((level, sum(each.size for each in instructions), len(instructions), start))
        return found

    def listing(self, start):
        """The routine at this address, one instruction to a line, with its distance from the first one. Addresses of
        the library are left out."""
        lines = []
        for each in self.library.routine(start):
            operands = re.sub(r"\s*# .*$", "", each.operands)
            operands = re.sub(r"\s*<[^>]*>", "", operands)
            target = each.target() if each.mnemonic.startswith(("j", "call")) and not operands.startswith("*") else None
            if target is not None:
                operands = f"{target - start:#x}" if 0 <= target - start < 1 << 20 else "outside"
            lines.append(f"{each.address - start:5x}  {each.mnemonic:<12}{operands}".rstrip())
        return "\n".join(lines)
