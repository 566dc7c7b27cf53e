"""Compares what the built library asks of its surroundings, and the marks that harden it, with what is promised.

hardening.py LIBRARY OBJDUMP
"""
import re
import struct
import subprocess
import sys

import catalogue
from binary import Library

# Everything that the library imports.
hook = {"malloc", "calloc", "realloc", "free"}  # the allocator hook's fallback
core = {"zulMalloc", "zulFree"}
pe_imports = {
    "zulcore-7.0.dll": core,
    "KERNEL32.dll": {"LoadLibraryA", "GetProcAddress", "FreeLibrary"},
    "msvcrt.dll": hook | {"cos", "sin"},
}
pe64_imports = {
    **pe_imports,
    "KERNEL32.dll": pe_imports["KERNEL32.dll"] | {"VirtualProtect"},
    "msvcrt.dll": pe_imports["msvcrt.dll"] | {"memcpy"},
}
elf_imports = {
    "libzulcore-7.0.so": core,
    "libc.so.6": {"dlopen", "dlsym", "dlclose"} | hook,
    "libm.so.6": {"cos", "sin"},
}
# The batch library calls the routines of the main library that take the length, the order or a plan, and nothing else.
batch_imports = {
    "libzulgenpx-7.0.so": {export["name"] for export in catalogue.exports()
                           if any(argument["name"] == "pSrc" for argument in export["arguments"])
                           and export["length"] is None and export["order"] is None},
}

batch_pe64_imports = {
    "zulgenpx-7.0.dll": batch_imports["libzulgenpx-7.0.so"],
    "KERNEL32.dll": {"VirtualProtect"},
    "msvcrt.dll": {"memcpy"},
}

failures = []


def expect(condition, message):
    if not condition:
        failures.append(message)


def slots(library):
    return [library.slot_address(name) for name in library.exports if name != "zulgenGetLibVersion"]


def check_no_initializers(library):
    for name, _, size, _ in library.sections:
        expect(not size or not name.startswith((".ctors", ".dtors", ".init_array", ".fini_array", ".CRT", ".tls")),
               f"section {name}: the load entry is not the only routine that is run at load time")


def check_frames(library):
    """No stack frame is larger than the page that guards a stack, so that no routine can step over that page."""
    bits = 8 * library.pointer
    for instruction in library.code.values():
        line = f"{instruction.mnemonic} {instruction.operands}"
        if not re.match(r"((sub|add)[lq]? .*|lea .*\(%[er]sp\)),%[er]sp$", line):  # other changes give stack back
            continue
        amount = re.match(r"\w+ \$?(-?0x[0-9a-f]+)[,(]", line)
        expect(amount, f"{instruction.address:#x}: takes an amount of stack that is no constant: {line}")
        if amount:
            change = int(amount.group(1), 16)
            change -= 1 << bits if change >= 1 << (bits - 1) else 0
            taken = change if line.startswith("sub") else -change
            expect(taken <= 4096, f"{instruction.address:#x}: takes {taken} bytes of stack at once")


def pe_relocations(library, address, size):
    """The addresses that the loader corrects when it moves the file: words as long as an address all."""
    kind = 3 if library.pointer == 4 else 10
    places, at = set(), address
    while at < address + size:
        page, block = struct.unpack("<II", library.bytes(at, 8))
        for entry in struct.unpack(f"<{(block - 8) // 2}H", library.bytes(at + 8, block - 8)):
            if entry >> 12 == kind:
                places.add(library.image_base + page + (entry & 0xFFF))
        at += block
    return places


def check_unwinding(library, table, size):
    """On 64-bit Windows a handler of exceptions is found through the frames below it. A routine that moves the stack
    has a row of the table that says how; one without a row counts as one that does not."""
    rows = {struct.unpack("<I", library.bytes(table + at, 4))[0] + library.image_base for at in range(0, size, 12)}
    for routine in {routine for slot in slots(library) for routine in library.kernels(slot)}:
        moves = any(re.match(r"(push|sub .*,%rsp$|lea .*,%rsp$)", f"{each.mnemonic} {each.operands}")
                    for each in library.routine(routine))
        expect(not moves or routine in rows, f"{routine:#x}: moves the stack and has no row of the exception table")


def check_pe(library, imports):
    expect(library.imports == imports, f"imports {library.imports}")

    header = struct.unpack_from("<I", library.data, 0x3C)[0]
    optional = header + 24
    machine, sections, optional_size, kind = struct.unpack_from("<HH12xHH", library.data, header + 4)
    is_64 = library.pointer == 8
    expect(machine == (0x8664 if is_64 else 0x14C), "for another machine")
    expect(kind & 0x2000 and not kind & 0x0001, "no DLL, or its relocations are stripped")
    characteristics = struct.unpack_from("<H", library.data, optional + 70)[0]
    for bit, what in ((0x40, "dynamic base"), (0x100, "no-execute"),
                      (0x20, "any address") if is_64 else (0x400, "no SEH")):
        expect(characteristics & bit, f"not marked: {what}")

    directories = struct.unpack_from("<32I", library.data, library.directories)
    for index, what in ((6, "debug data"), (9, "thread-local storage"), (13, "delayed imports")):
        expect(directories[2 * index] == 0, f"there is a directory of {what}")
    relocated = pe_relocations(library, library.image_base + directories[10], directories[11])
    expect(relocated >= set(slots(library)), "slots without relocation")
    if is_64:
        check_unwinding(library, library.image_base + directories[6], directories[7])

    for i in range(sections):
        at = optional + optional_size + 40 * i
        name = library.data[at:at + 8].rstrip(b"\0").decode()
        flags = struct.unpack_from("<I", library.data, at + 36)[0]
        executable, writable = flags & 0x20000000, flags & 0x80000000
        expect(not (executable and writable), f"{name} is writable and executable")
        if name == library.section_of(slots(library)[0]):
            expect(not writable and not executable, "the slot table is not in read-only data")
    # This target's loader ignores marks of branch targets.
    start, size = next((start, size) for name, start, size, _ in library.sections if name == ".text")
    mark = b"\xf3\x0f\x1e\xfa" if is_64 else b"\xf3\x0f\x1e\xfb"
    expect(mark not in library.bytes(start, size), "branch-target marks")


def check_elf(library, imports):
    def readelf(option):
        return subprocess.run(["readelf", "-W", option, library.path], check=True, capture_output=True,
                              text=True).stdout

    segments, dynamic, notes = readelf("-l"), readelf("-d"), readelf("-n")

    def tag(name):
        """The values of a tag of the dynamic section."""
        rows = [line.split(None, 2) for line in dynamic.splitlines() if f"({name})" in line]
        return [row[2].split("[")[-1].rstrip("]") for row in rows]

    expect(set(tag("NEEDED")) == set(imports), f"needs {tag('NEEDED')}")
    expect(library.imports == set().union(*imports.values()), f"imports {library.imports}")
    expect(not tag("RPATH") and set(tag("RUNPATH")) <= {"$ORIGIN"},
           "looks for other libraries in a folder that is not its own")

    rows = [line.split() for line in segments.splitlines() if line.startswith("  ")]
    by_kind = {}
    for row in rows:
        if len(row) >= 8 and row[1].startswith("0x"):
            address, size, flags = int(row[2], 16), int(row[5], 16), "".join(row[6:-1])
            by_kind.setdefault(row[0], []).append((address, size, flags))
    expect("E" not in by_kind["GNU_STACK"][0][2], "executable stack")
    expect("TLS" not in by_kind, "thread-local storage")
    for _, _, flags in by_kind["LOAD"]:
        expect(not ("W" in flags and "E" in flags), "a segment is writable and executable")

    expect("NOW" in " ".join(tag("FLAGS") + tag("FLAGS_1")), "not bound at load time")
    expect(not tag("TEXTREL") and "TEXTREL" not in " ".join(tag("FLAGS")), "text relocations")
    start, size, _ = by_kind.get("GNU_RELRO", [(0, 0, "")])[0]
    expect(all(start <= slot < start + size for slot in slots(library)),
           "the slot table is not read-only after loading")
    for name in (".dynamic", ".got"):
        at = next(address for section, address, _, _ in library.sections if section == name)
        expect(start <= at < start + size, f"{name} is not read-only after loading")

    version = "ZULGENPX_BATCH_7.0" if imports is batch_imports else "ZULGENPX_7.0"
    named = [line.split()[7] for line in readelf("--dyn-syms").splitlines() if re.match(r" +\d+: ", line)
             and line.split()[6] not in ("UND", "ABS")]
    expect(library.versions == {version} and sorted(named) == sorted(f"{name}@@{version}" for name in library.exports),
           f"exports without the version {version}")

    expect("IBT" in notes and "SHSTK" in notes, "no branch-target or shadow-stack mark")
    landing = b"\xf3\x0f\x1e\xfa"
    for slot in slots(library):
        for routine in library.kernels(slot):
            expect(library.bytes(routine, 4) == landing, f"{routine:#x}: is in a slot and is no branch target")
    for resolver in set(library.resolvers.values()):
        expect(library.bytes(resolver, 4) == landing, f"{resolver:#x}: is a resolver and no branch target")

    # The load entry is the one routine that the loader calls. The batch library has none.
    entry = [int(value, 16) for value in tag("INIT")]
    expect(len(entry) == (imports is elf_imports) and all(library.bytes(at, 4) == landing for at in entry),
           "there is no load entry, or it is no branch target")
    for name in ("FINI", "INIT_ARRAY", "FINI_ARRAY", "PREINIT_ARRAY"):
        expect(not tag(name), f"{name}: the load entry is not the only routine that the loader runs")


def main():
    library = Library(*sys.argv[1:])
    check_no_initializers(library)
    check_frames(library)
    if library.is_pe:
        pe = batch_pe64_imports if "batch" in library.path else pe64_imports
        check_pe(library, pe if library.pointer == 8 else pe_imports)
    else:
        check_elf(library, batch_imports if "batch" in library.path else elf_imports)
    for failure in failures[:20]:
        print(failure)
    imported = library.imports.values() if library.is_pe else [library.imports]
    print(f"{sum(len(names) for names in imported)} imports, {len(failures)} faults")
    return 1 if failures else 0


sys.exit(main())
