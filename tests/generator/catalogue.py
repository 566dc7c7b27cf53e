"""Holds docs/catalogue.json against the lists of names and counts, the public header and the built library.

catalogue.py SOURCE_FOLDER LIBRARY
"""
import ctypes
import json
import pathlib
import sys

for folder in ("machine", "header"):
    sys.path.insert(0, str(pathlib.Path(__file__).parent.parent / folder))
from expected import expected_rows
from prototypes import prototypes

failures = []


def expect(found, due, what):
    if found != due:
        failures.append(f"{what}: {found}, due is {due}")


def check_names(exports, expected):
    due = [[row["ordinal"], row["name"]] for row in expected_rows(expected / "exports.txt")]
    expect([[str(export["ordinal"]), export["name"]] for export in exports], due, "names and ordinals")


def check_counts(exports, expected):
    """Sums and products of each length, and the columns that a table has besides."""
    tables = {"CToC": "complex", "DFTFwd_R": "real_forward", "ToR_": "real_inverse", "Hartley": "hartley"}
    checked = 0
    for mark, table in tables.items():
        due = {int(row["length"]): row for row in expected_rows(expected / f"{table}.txt")}
        for export in exports:
            if mark not in export["name"] or export["length"] is None:
                continue
            checked += 1
            counts, row = export["counts"], due[export["length"]]
            sums = counts["additions"] + counts["subtractions"]
            due_sums = int(row["sums"]) if "sums" in row else int(row["additions"]) + int(row["subtractions"])
            products = counts["multiplications"] + counts["scale"]
            expect([sums, products, counts["negations"]],
                   [due_sums, int(row["multiplications"]), int(row.get("negations", 0))], export["name"])
    due = {int(row["order"]): row for row in expected_rows(expected / "wht.txt")}
    for export in exports:
        if export["family"] == "WHT" and "counts" in export:
            checked += 1
            counts, row = export["counts"], due[export["order"]]
            expect([counts["additions"], counts["subtractions"], counts["multiplications"] + counts["scale"]],
                   [int(row[column]) for column in ("additions", "subtractions", "multiplications")], export["name"])
    expect(checked, 2 * 63 * 9 + 2 * 7, "exports with counts")


def check_arguments(exports, header):
    """The prototypes, put together from the data; each array of bins has a slot for each of its numbers."""
    declared = {name: arguments for returned, name, arguments in prototypes(header.read_text(encoding="ascii"))
                if returned == "ZulgStatus"}
    expect(len(declared), len([export for export in exports if export["family"] != "version"]), "prototypes")
    pointer = {"value": ("", " "), "in": ("const ", "* "), "out": ("", "* "), "inout": ("", "* ")}
    for export in exports:
        if export["family"] == "version":
            continue
        parts = []
        for argument in export["arguments"]:
            before, after = pointer[argument["use"]]
            parts.append(before + argument["type"] + after + argument["name"])
        expect(", ".join(parts), declared[export["name"]], f"prototype of {export['name']}")
        if "spectrum" in export and export["length"] is not None:
            spectrum = export["spectrum"]
            array = next(argument for argument in export["arguments"] if argument["name"] == spectrum["argument"])
            slots = [slot for bin_slots in spectrum["slots"] for slot in bin_slots if slot is not None]
            expect(sorted(slots + spectrum["zeros"]), list(range(array["elements"])), f"slots of {export['name']}")


def check_layouts(exports):
    by_name = {export["name"]: export["spectrum"] for export in exports if "spectrum" in export}
    due = {
        "CCS": ([[0, None], [2, 3], [4, 5], [6, None]], [1, 7]),
        "Pack": ([[0, None], [1, 2], [3, 4], [5, None]], []),
        "Perm": ([[0, None], [2, 3], [4, 5], [1, None]], []),
    }
    for layout, (slots, zeros) in due.items():
        for name in (f"zulgDFTFwd_RTo{layout}_6_32f", f"zulgDFTInv_{layout}ToR_6_64f"):
            expect((by_name[name]["slots"], by_name[name]["zeros"]), (slots, zeros), f"slots of {name}")
    for export in exports:
        length = export.get("length")
        if length is None or "spectrum" not in export:
            continue
        layout = export["spectrum"]["layout"]
        first = 2 if layout == "CCS" or (layout == "Perm" and length % 2 == 0) else 1
        inner = [[first + 2 * k, first + 2 * k + 1] for k in range((length - 1) // 2)]
        expect(export["spectrum"]["slots"][1:len(inner) + 1], inner, f"slots of {export['name']}")
    expect(by_name["zulgDFTFwd_RToPerm_5_32f"]["slots"], [[0, None], [1, 2], [3, 4]], "Perm at odd length")


def check_sizes(sizes, library):
    functions = {"wht_buffer_bytes": "zulgWHTGetBufferSize_", "dct4_plan_bytes": "zulgDCT4GetSize_"}
    for table, function in functions.items():
        for column, element in enumerate(sizes["of"]):
            get_size = getattr(library, function + element)
            for argument, row in sizes[table].items():
                size = ctypes.c_int32(-1)
                status = get_size(ctypes.c_int32(int(argument)), ctypes.byref(size))
                expect((row[column], status), (size.value, 0), f"{function}{element} of {argument}")
    expect(sizes["wht_buffer_bytes"]["12"], [17408, 34816], "buffer of order 12")
    expect(sizes["dct4_plan_bytes"]["1024"], [8864, 17056], "plan of 1024 points")


def check_recipes(exports):
    by_name = {export["name"]: export for export in exports}
    expect(by_name["zulgDFTInv_CToC_30_64fc"]["recipe"],
           {"words": "prime-factor, order 5, 3, 2", "construction": "prime-factor", "factors": [5, 3, 2]},
           "recipe of complex 30")
    for export in exports:
        recipe = export.get("recipe", {})
        if recipe.get("construction") in ("twiddled", "prime-factor"):
            product = 1
            for factor in recipe["factors"]:
                product *= factor
            expect(product, export["length"], f"factors of {export['name']}")


def main():
    source = pathlib.Path(sys.argv[1])
    catalogue = json.loads((source / "docs/catalogue.json").read_text(encoding="ascii"))
    exports = catalogue["exports"]
    expected = source / "tests/expected"
    check_names(exports, expected)
    check_counts(exports, expected)
    check_arguments(catalogue["batches"], source / "include/zulgenpx_batch_routines.h")
    expect(len(catalogue["batches"]), 2 * 9 + 9 + 8, "routines of the batch library")
    check_arguments(exports, source / "include/zulgenpx_routines.h")
    check_layouts(exports)
    check_recipes(exports)
    check_sizes(catalogue["sizes"], ctypes.CDLL(sys.argv[2]))
    for failure in failures[:20]:
        print(failure)
    print(f"{len(exports)} exports, {len(failures)} wrong facts")
    return 1 if failures else 0


sys.exit(main())
