"""Reads the built library, ELF or PE: its exported names, and the code of each routine that the slot table leads to.

Uses objdump of the target for the disassembly and nothing else; the files' own tables are read here.
"""
import functools
import gc
import re
import struct
import subprocess


class Instruction:
    __slots__ = ("address", "mnemonic", "operands", "size")

    def __init__(self, address, mnemonic, operands, size):
        self.address, self.mnemonic, self.operands, self.size = address, mnemonic, operands, size

    def target(self):
        """The address a direct jump or call goes to, or None."""
        match = re.match(r"(?:0x)?([0-9a-f]+)(?:\s|$|<)", self.operands)
        return int(match.group(1), 16) if match else None


@functools.cache
def disassembled(path, objdump):
    """address -> instruction, of the section of code."""
    text = subprocess.run([objdump, "-d", "-w", "-j", ".text", path], check=True, capture_output=True, text=True).stdout
    code = {}
    gc.disable()  # among a million new instructions it would look for cycles again and again
    for line in text.splitlines():
        parts = line.split("\t")
        if len(parts) < 3 or not parts[0].rstrip().endswith(":"):
            continue
        words = parts[2].split(None, 1)
        while words and words[0] in ("notrack", "rep", "repz", "bnd", "data16") and len(words) > 1:
            words = words[1].split(None, 1)
        address = int(parts[0].strip()[:-1], 16)
        operands = words[1] if len(words) > 1 else ""
        code[address] = Instruction(address, words[0] if words else "", operands, len(parts[1].split()))
    gc.freeze()
    gc.enable()
    return code


class Library:
    """exports: name -> (ordinal or None, entry address); imports: file -> names of a PE file, names of an ELF one;
    word(address): the pointer stored there after loading; resolvers: address -> the routine whose result is stored
    there; code: address -> instruction; pointer: the bytes of an address."""

    def __init__(self, path, objdump):
        self.path = path
        self.objdump = objdump
        with open(path, "rb") as file:
            self.data = file.read()
        self.is_pe = self.data[:2] == b"MZ"
        self.pointer = 8
        self.sections = []  # (name, address, size, file offset)
        if self.is_pe:
            self._read_pe()
        else:
            self._read_elf()

    def _read_pe(self):
        data = self.data
        header = struct.unpack_from("<I", data, 0x3C)[0]
        count = struct.unpack_from("<H", data, header + 6)[0]
        optional_size = struct.unpack_from("<H", data, header + 20)[0]
        optional = header + 24
        if struct.unpack_from("<H", data, optional)[0] == 0x10B:
            self.pointer, self.directories = 4, optional + 96
            self.image_base = struct.unpack_from("<I", data, optional + 28)[0]
        else:
            self.directories = optional + 112
            self.image_base = struct.unpack_from("<Q", data, optional + 24)[0]
        for i in range(count):
            at = optional + optional_size + 40 * i
            name = data[at:at + 8].rstrip(b"\0").decode()
            size, rva, _, offset = struct.unpack_from("<IIII", data, at + 8)
            self.sections.append((name, self.image_base + rva, size, offset))
        export_rva = struct.unpack_from("<I", data, self.directories)[0]
        at = self.offset(self.image_base + export_rva)
        base, functions, names = struct.unpack_from("<III", data, at + 16)
        tables = [self.offset(self.image_base + rva) for rva in struct.unpack_from("<III", data, at + 28)]
        self.exports = {}
        for i in range(names):
            name_rva = struct.unpack_from("<I", data, tables[1] + 4 * i)[0]
            index = struct.unpack_from("<H", data, tables[2] + 2 * i)[0]
            address = self.image_base + struct.unpack_from("<I", data, tables[0] + 4 * index)[0]
            self.exports[self.text(self.image_base + name_rva)] = (index + base, address)
        self._read_pe_imports(struct.unpack_from("<I", data, self.directories + 8)[0])

    def _read_pe_imports(self, directory_rva):
        self.imports = {}
        layout, mark = ("<I", 1 << 31) if self.pointer == 4 else ("<Q", 1 << 63)
        descriptor = self.offset(self.image_base + directory_rva)
        while True:
            names_rva, _, _, file_rva, _ = struct.unpack_from("<IIIII", self.data, descriptor)
            if file_rva == 0:
                return
            names = self.imports.setdefault(self.text(self.image_base + file_rva), set())
            at = self.offset(self.image_base + names_rva)
            while (entry := struct.unpack_from(layout, self.data, at)[0]) != 0:
                names.add(entry & 0xFFFF if entry & mark else self.text(self.image_base + entry + 2))
                at += self.pointer
            descriptor += 20

    def _read_elf(self):
        data = self.data
        section_offset = struct.unpack_from("<Q", data, 0x28)[0]
        size, count, names_index = struct.unpack_from("<HHH", data, 0x3A)
        headers = [struct.unpack_from("<IIQQQQIIQQ", data, section_offset + i * size) for i in range(count)]
        names_at = headers[names_index][4]
        by_name = {}
        for header in headers:
            name = self._string(names_at + header[0])
            by_name[name] = header
            self.sections.append((name, header[3], header[5], header[4]))
        self.exports, self.imports, self.relocated, self.resolvers, self.versions = {}, set(), {}, {}, set()
        symbols, strings = by_name[".dynsym"], by_name[".dynstr"]
        for at in range(symbols[4], symbols[4] + symbols[5], 24):
            name, _, _, section, value, _ = struct.unpack_from("<IBBHQQ", data, at)
            if section == 0xFFF1:  # a number and no address: the name of a version
                self.versions.add(self._string(strings[4] + name))
            elif section != 0:
                self.exports[self._string(strings[4] + name)] = (None, value)
            elif name != 0:
                self.imports.add(self._string(strings[4] + name))
        relocations = by_name.get(".rela.dyn")
        if relocations:
            for at in range(relocations[4], relocations[4] + relocations[5], 24):
                place, kind, addend = struct.unpack_from("<QQq", data, at)
                if kind & 0xFFFFFFFF == 8:  # R_X86_64_RELATIVE
                    self.relocated[place] = addend
                elif kind & 0xFFFFFFFF == 37:  # R_X86_64_IRELATIVE
                    self.resolvers[place] = addend

    def _string(self, offset):
        return self.data[offset:self.data.index(b"\0", offset)].decode()

    def offset(self, address):
        for _, start, size, offset in self.sections:
            if start <= address < start + size and offset:
                return address - start + offset
        raise ValueError(f"no section holds {address:#x}")

    def section_of(self, address):
        return next(name for name, start, size, _ in self.sections if start and start <= address < start + size)

    def text(self, address):
        return self._string(self.offset(address))

    def bytes(self, address, count):
        at = self.offset(address)
        return self.data[at:at + count]

    def word(self, address):
        if self.is_pe:
            return int.from_bytes(self.bytes(address, self.pointer), "little")
        return self.relocated[address]

    def kernels(self, slot):
        """What a slot may hold after loading: the kernels of all levels, the lowest level first."""
        if self.is_pe and self.slots_of_last_level is not None:
            return [self.word(slot), self.word(self.slots_of_last_level + slot - self.slots_in_use)]
        if self.is_pe or slot not in self.resolvers:
            return [self.word(slot)]
        found = [re.search(r"# (?:0x)?([0-9a-f]+)", instruction.operands)
                 for instruction in self.routine(self.resolvers[slot]) if instruction.mnemonic == "lea"]
        return sorted((int(match[1], 16) for match in found if match), key=self.level)

    @functools.cached_property
    def slots_in_use(self):
        """The table that the load entry of a DLL settles; None if there is none."""
        return next((start for name, start, _, _ in self.sections if name == ".slots"), None)

    @functools.cached_property
    def slots_of_last_level(self):
        """The table that the load entry copies there. No symbol says where it is. Its first four slots have one routine
        at all levels, and these are side by side nowhere else."""
        if self.slots_in_use is None:
            return None
        start, size = next((start, size) for name, start, size, _ in self.sections if name == ".rdata")
        data, sought = self.bytes(start, size), self.bytes(self.slots_in_use, 4 * self.pointer)
        at = data.find(sought)
        if at < 0 or data.find(sought, at + 1) >= 0:
            raise ValueError("there is not one table of slots of another level")
        return start + at

    def level(self, start):
        """Of a kernel: whether it has instructions of AVX."""
        return any(re.match(r"v[a-z]", instruction.mnemonic) for instruction in self.routine(start))

    @functools.cached_property
    def code(self):
        return disassembled(self.path, self.objdump)

    def slot_address(self, name):
        """Where the entry of an export jumps through: the address of its slot, or None if it is no such entry."""
        entry = self.exports[name][1]
        if self.is_pe:
            raw = self.bytes(entry, 6)
            if raw[:2] != b"\xff\x25":
                return None
            if self.pointer == 4:
                return struct.unpack_from("<I", raw, 2)[0]
            return entry + 6 + struct.unpack_from("<i", raw, 2)[0]
        raw = self.bytes(entry, 10)
        if raw[:6] != b"\xf3\x0f\x1e\xfa\xff\x25":
            return None
        return entry + 10 + struct.unpack_from("<i", raw, 6)[0]

    def leads_outside(self, call):
        """Whether a call goes to another library: through the table of imports, or to a stub that does."""
        if self.is_pe:
            match = re.match(r"\*0x([0-9a-f]+)$" if self.pointer == 4 else r".*# (?:0x)?([0-9a-f]+)", call.operands)
            return bool(match) and self.section_of(int(match.group(1), 16)) == ".idata"
        match = re.search(r"# 0x([0-9a-f]+)|# ([0-9a-f]+)", call.operands)
        if match:
            return self.section_of(int(match.group(1) or match.group(2), 16)) == ".got"
        return call.target() is not None and self.section_of(call.target()).startswith(".plt")

    @functools.cache
    def routine(self, start):
        """The instructions of the routine at this address, following its jumps forward, up to its last return."""
        instructions, reach, address = [], start, start
        while True:
            instruction = self.code[address]
            instructions.append(instruction)
            address += instruction.size
            name = instruction.mnemonic
            if name.startswith("j") and not instruction.operands.startswith("*"):
                reach = max(reach, instruction.target())
            ends = name.startswith("ret") or name == "jmp"
            if ends and address > reach:
                return instructions
