"""Holds the exported names, entries and slots of the built library, and its hardening, against what is promised.

boundary.py LIBRARY OBJDUMP EXPECTED_EXPORTS
"""
import struct
import subprocess
import sys

from binary import Library

failures = []


def expect(condition, message):
    if not condition:
        failures.append(message)


def expected_exports(path):
    """name -> ordinal."""
    with open(path, encoding="ascii") as file:
        rows = [line.split() for line in file if line.strip() and not line.startswith("#")]
    return {name: int(ordinal) for ordinal, name in rows}


def check_names(library, expected):
    found = set(library.exports)
    expect(found == set(expected), f"exported names: missing {sorted(set(expected) - found)[:5]}, "
                                   f"unexpected {sorted(found - set(expected))[:5]}")
    for number, name in enumerate(sorted(expected), start=1):
        expect(expected[name] == number, f"{name}: the list is not in ASCII order")
        if library.is_pe and name in library.exports:
            expect(library.exports[name][0] == number, f"{name}: ordinal {library.exports[name][0]}, due is {number}")


def check_slots(library):
    names = sorted(library.exports)
    names.remove("zulgenGetLibVersion")
    expect(library.slot_address("zulgenGetLibVersion") is None, "the version call goes through a slot")
    step = 4 if library.is_pe else 8
    slots = [library.slot_address(name) for name in names]
    for index, (name, slot) in enumerate(zip(names, slots)):
        if slot is None:
            expect(False, f"{name}: its entry is not one indirect jump")
            continue
        expect(slot == slots[0] + step * index, f"{name}: jumps through another slot than number {index}")
        expect(library.word(slot) in library.code, f"{name}: its slot leads to no code")
    routines = [library.word(slot) for slot in slots if slot]
    expect(len(set(routines)) == len(routines), "two slots lead to one routine")
    section = library.section_of(slots[0])
    expect(section == (".rdata" if library.is_pe else ".data.rel.ro"), f"the slot table stands in {section}")


def check_pe(library, objdump):
    headers = subprocess.run([objdump, "-p", library.path], check=True, capture_output=True, text=True).stdout
    header = struct.unpack_from("<I", library.data, 0x3C)[0]
    characteristics = struct.unpack_from("<H", library.data, header + 24 + 70)[0]
    for bit, what in ((0x40, "dynamic base"), (0x100, "no-execute"), (0x400, "no SEH")):
        expect(characteristics & bit, f"not marked: {what}")
    imports = [line.split()[-1] for line in headers.splitlines() if "DLL Name:" in line]
    expect(set(imports) <= {"zulcore-7.0.dll", "KERNEL32.dll", "msvcrt.dll"}, f"imports {imports}")
    relocations = [size for name, _, size, _ in library.sections if name == ".reloc"]
    expect(relocations and relocations[0] > 12, "no relocations")
    version = "7.0 build 205.58".encode("utf-16-le")
    expect(version in library.data, "no product version in the version resource")
    fixed = library.data.find(struct.pack("<II", 0xFEEF04BD, 0x10000))
    expect(fixed >= 0 and struct.unpack_from("<II", library.data, fixed + 8) == (7 << 16, (205 << 16) | 544),
           "file version is not 7, 0, 205, 544")
    at = header + 24 + struct.unpack_from("<H", library.data, header + 20)[0]
    for i in range(struct.unpack_from("<H", library.data, header + 6)[0]):
        flags = struct.unpack_from("<I", library.data, at + 40 * i + 36)[0]
        expect(flags & 0xA0000000 != 0xA0000000, "a section is writable and executable")


def check_elf(library):
    def readelf(option):
        return subprocess.run(["readelf", "-W", option, library.path], check=True, capture_output=True, text=True).stdout

    segments, dynamic, notes = readelf("-l"), readelf("-d"), readelf("-n")
    stack = next(line for line in segments.splitlines() if "GNU_STACK" in line)
    expect("RWE" not in stack.replace(" ", ""), "executable stack")
    expect("GNU_RELRO" in segments and "BIND_NOW" in dynamic, "not full RELRO")
    expect("IBT" in notes and "SHSTK" in notes, "no branch-target or shadow-stack mark")
    for line in segments.splitlines():
        expect(not (line.strip().startswith("LOAD") and "RWE" in line), "a segment is writable and executable")
    needed = [line.split("[")[1].rstrip("]") for line in dynamic.splitlines() if "NEEDED" in line]
    expect(set(needed) <= {"libzulcore-7.0.so", "libc.so.6", "libm.so.6"}, f"needs {needed}")
    expect("TEXTREL" not in dynamic, "text relocations")


def check_no_initializers(library):
    names = {name for name, _, size, _ in library.sections if size}
    for name in names:
        expect(not name.startswith((".ctors", ".dtors", ".init_array", ".fini_array", ".CRT", ".tls")),
               f"section {name}: something waits to be run at load time")


def main():
    path, objdump, golden = sys.argv[1:]
    library = Library(path, objdump)
    check_names(library, expected_exports(golden))
    check_slots(library)
    check_no_initializers(library)
    if library.is_pe:
        check_pe(library, objdump)
    else:
        check_elf(library)
    for failure in failures[:20]:
        print(failure)
    print(f"{len(library.exports)} exports, {len(failures)} faults")
    return 1 if failures else 0


sys.exit(main())
