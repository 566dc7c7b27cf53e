"""Compares the exported names, entries and slots of the built library, and its version resource, with what is promised.

boundary.py LIBRARY OBJDUMP EXPECTED_EXPORTS
"""
import struct
import sys

import catalogue
from binary import Library
from expected import expected_rows

failures = []


def expect(condition, message):
    if not condition:
        failures.append(message)


def check_names(library, expected):
    """expected: name -> ordinal."""
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
    step = library.pointer
    slots = [library.slot_address(name) for name in names]
    with_levels = {export["name"] for export in catalogue.kernels()}
    passes = {"zulgDCT4_32f", "zulgDCT4_64f"}  # have levels as well; their arithmetic is in routines that they call
    if library.slots_in_use:  # so have, where no loader settles tables, the routines that take the length or the order
        passes |= {export["name"] for export in catalogue.dispatchers()}
        passes |= {"zulgWHTGetBufferSize_32f", "zulgWHTGetBufferSize_64f"}
    for index, (name, slot) in enumerate(zip(names, slots)):
        if slot is None:
            expect(False, f"{name}: its entry is not one indirect jump")
            continue
        expect(slot == slots[0] + step * index, f"{name}: jumps through another slot than number {index}")
        kernels = [*dict.fromkeys(library.kernels(slot))]  # one, where all levels have the same routine
        expect(all(kernel in library.code for kernel in kernels), f"{name}: its slot leads to no code")
        if not library.is_pe or library.slots_in_use:
            has_levels = name in with_levels
            expect(len(kernels) == 2 if name in passes else
                   [library.level(kernel) for kernel in kernels] == ([0, 1] if has_levels else [0]),
                   f"{name}: its slot has the kernels of other levels")
    routines = [kernel for slot in slots if slot for kernel in set(library.kernels(slot))]
    expect(len(set(routines)) == len(routines), "two slots lead to one routine")
    section = library.section_of(slots[0])
    due = ".slots" if library.slots_in_use else ".rdata" if library.is_pe else ".data.rel.ro"
    expect(section == due, f"the slot table is in {section}")


def check_level(library):
    """The processor is asked for its level once: by the resolver of the word that is settled first."""
    place, first = next(iter(library.resolvers.items()))  # in the loader's order
    asking = {resolver for resolver in library.resolvers.values()
              if any(instruction.mnemonic == "cpuid" for instruction in library.routine(resolver))}
    expect(asking == {first} and place == min(library.resolvers),
           "the level is not settled first, or another resolver asks for it, too")


def check_version_resource(library):
    version = "7.0 build 205.58".encode("utf-16-le")
    expect(version in library.data, "no product version in the version resource")
    fixed = library.data.find(struct.pack("<II", 0xFEEF04BD, 0x10000))
    expect(fixed >= 0 and struct.unpack_from("<II", library.data, fixed + 8) == (7 << 16, (205 << 16) | 544),
           "file version is not 7, 0, 205, 544")


def main():
    path, objdump, golden = sys.argv[1:]
    library = Library(path, objdump)
    check_names(library, {row["name"]: int(row["ordinal"]) for row in expected_rows(golden)})
    check_slots(library)
    if library.is_pe:
        check_version_resource(library)
    else:
        check_level(library)
    for failure in failures[:20]:
        print(failure)
    print(f"{len(library.exports)} exports, {len(failures)} faults")
    return 1 if failures else 0


sys.exit(main())
