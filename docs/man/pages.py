"""Writes the manual pages: one for each family of routines, from the texts beside this file and from
docs/catalogue.json, and for each exported name a page of one line that leads to its family.

pages.py CATALOGUE OUTPUT_FOLDER

A text is mdoc(7). What the catalogue knows is filled in where a line begins with @ (the functions below `filled` tell
what each such line gives), and @version@ is the version of the header. The same input gives the same bytes.
"""
import json
import pathlib
import re
import sys

HERE = pathlib.Path(__file__).parent
ELEMENT_ORDER = {"32f": 0, "64f": 1, "32fc": 0, "64fc": 1}


def literal(text):
    """Text of a display as roff, so that what a reader copies from the page is what is written here."""
    for mark, roff in (("\\", "\\e"), ("-", "\\-"), ("'", "\\(aq"), ("`", "\\(ga"), ("^", "\\(ha"), ("~", "\\(ti")):
        text = text.replace(mark, roff)
    return "".join(("\\&" if line.startswith(".") else "") + line + "\n" for line in text.splitlines())


def display(text):
    return ".Bd -literal\n" + literal(text) + ".Ed\n"


def table(heads, rows, right):
    """Columns under their heads; those whose number is in `right` end together."""
    cells = [heads] + [[str(cell) for cell in row] for row in rows]
    widths = [max(len(row[i]) for row in cells) for i in range(len(heads))]
    lines = ("  ".join(cell.rjust(width) if i in right else cell.ljust(width)
                       for i, (cell, width) in enumerate(zip(row, widths))).rstrip() for row in cells)
    return display("\n".join(lines))


def c_type(argument):
    """The argument as it is in a prototype."""
    if argument["use"] == "value":
        return f"{argument['type']} {argument['name']}"
    const = "const " if argument["use"] == "in" else ""
    stars = argument["type"].count("*") + 1
    return f"{const}{argument['type'].rstrip('*')} {'*' * stars}{argument['name']}"


def prototype(export, name):
    lines = [f".Ft {spaced(export['returns'])}", f".Fo {name}"]
    lines += [f'.Fa "{c_type(argument)}"' for argument in export["arguments"]] or [".Fa void"]
    return "\n".join(lines + [".Fc"]) + "\n"


def spaced(returned):
    return '"' + returned.replace("*", " *") + '"' if " " in returned or "*" in returned else returned


class Page:
    """A text being filled. `owned` are the exported names that it is the page of."""

    def __init__(self, catalogue, version, path):
        self.catalogue, self.version, self.path, self.owned = catalogue, version, path, []
        self.where = path.name

    def filled(self, path=None):
        out = []
        for number, line in enumerate((path or self.path).read_text(encoding="ascii").splitlines(), 1):
            self.where = f"{(path or self.path).name}:{number}"
            if line.startswith("@") and not line.startswith("@version@"):
                word, *arguments = line[1:].split()
                fill = getattr(self, "fill_" + word, None)
                if fill is None:
                    raise ValueError(f"{self.where}: there is no @{word}")
                out.append(fill(*arguments))
            else:
                out.append(line.replace("@version@", self.version) + "\n")
        return "".join(out)

    def exports(self, family):
        found = [export for export in self.catalogue["exports"] if export["family"] == family]
        if not found:
            raise ValueError(f"{self.where}: there is no family {family}")
        return found

    @staticmethod
    def size(export):
        return export.get("length") or export.get("order")

    def fill_part(self, name):
        """The text parts/NAME.in, which several pages have."""
        return self.filled(HERE / "parts" / f"{name}.in")

    def fill_program(self, name):
        """The program examples/NAME.c as a display."""
        return display((HERE / "examples" / f"{name}.c").read_text(encoding="ascii"))

    def fill_names(self, *families):
        """The names of a NAME section: of each family those without a number, and one with N for all others."""
        names = [self.path.name.rsplit(".", 2)[0]]
        for family in families:
            names += [name for name, _ in self.forms(self.exports(family))]
        return "".join(f".Nm {name}{' ,' if name != names[-1] else ''}\n" for name in names)

    def fill_batch_names(self):
        names = [self.path.name.rsplit(".", 2)[0]] + [batch["name"] for batch in self.catalogue["batches"]]
        return "".join(f".Nm {name}{' ,' if name != names[-1] else ''}\n" for name in names)

    def forms(self, exports):
        """Each name once, in place of all that differ in their number alone one with an N (O, where it is an order)."""
        seen = {}
        for export in sorted(exports, key=lambda each: (self.size(each) is None, ELEMENT_ORDER.get(each.get("element"),
                                                                                                   0))):
            name = export["name"]
            if self.size(export) is not None:
                letter = "N" if export["length"] is not None else "O"
                name = name.replace(f"_{self.size(export)}_", f"_{letter}_")
            arguments = [c_type(argument) for argument in export["arguments"]]
            if name in seen and [c_type(argument) for argument in seen[name]["arguments"]] != arguments:
                raise ValueError(f"{self.where}: {export['name']} has other arguments than {seen[name]['name']}")
            seen.setdefault(name, export)
        return seen.items()

    def fill_functions(self, *families):
        """The prototypes of families. This page becomes that of all their names."""
        out = []
        for family in families:
            exports = self.exports(family)
            self.owned += [export["name"] for export in exports]
            out += [prototype(export, name) for name, export in self.forms(exports)]
        return "".join(out)

    def fill_batches(self):
        """The prototypes of the batch library. This page becomes that of all its names."""
        self.owned += [batch["name"] for batch in self.catalogue["batches"]]
        return "".join(prototype(batch, batch["name"]) for batch in self.catalogue["batches"])

    def fill_sizes(self, family, mark=""):
        """The numbers that a name of the family may have, as words, with a mark of punctuation after them."""
        sizes = sorted({self.size(export) for export in self.exports(family)} - {None})
        if sizes != list(range(sizes[0], sizes[-1] + 1)):
            raise ValueError(f"{self.where}: the sizes of {family} have gaps")
        return f"{sizes[0]} to {sizes[-1]}{mark}\n"

    def fill_count(self):
        """How many routines the library exports."""
        return f"{len(self.catalogue['exports'])}\n"

    def fill_batch_count(self):
        return f"{len(self.catalogue['batches'])}\n"

    def fill_operations(self, *families):
        """A table of steps and construction, of each length. Single and double have the same."""
        rows = {}
        for family in families:
            for export in self.exports(family):
                if "counts" not in export:
                    continue
                counts = export["counts"]
                row = [export["length"] or export["order"], counts["additions"] + counts["subtractions"],
                       counts["multiplications"], counts["scale"], counts["constants"], export["recipe"]["words"]]
                if rows.setdefault(row[0], row) != row:
                    raise ValueError(f"{self.where}: {export['name']} has another row than its kin")
        size = "N" if export["family"] != "WHT" else "O"
        return table([size, "sums", "products", "scale", "constants", "construction"],
                     [rows[each] for each in sorted(rows)], {0, 1, 2, 3, 4})

    def fill_layouts(self, first, last):
        """What the slots of the layouts hold: Rk and Ik are the real and the imaginary part of bin k."""
        rows = []
        for length in range(int(first), int(last) + 1):
            row = [length]
            for layout in ("CCS", "Pack", "Perm"):
                export = next(each for each in self.exports(f"DFTFwd_RTo{layout}") if each["length"] == length)
                spectrum, slots = export["spectrum"], {}
                for zero in spectrum["zeros"]:
                    slots[zero] = "0"
                for k, (real, imaginary) in enumerate(spectrum["slots"]):
                    slots[real] = f"R{k}"
                    if imaginary is not None:
                        slots[imaginary] = f"I{k}"
                row.append(" ".join(slots[slot] for slot in range(len(slots))))
            rows.append(row)
        return table(["N", "CCS", "Pack", "Perm"], rows, {0})

    def fill_bytes(self, what):
        """Bytes of the Walsh-Hadamard buffers or of the plans."""
        sizes = self.catalogue["sizes"]
        head = {"wht_buffer_bytes": "O", "dct4_plan_bytes": "N"}[what]
        rows = [[size, *both] for size, both in sizes[what].items()]
        return table([head, *sizes["of"]], rows, {0, 1, 2})


def version_of(header):
    text = header.read_text(encoding="ascii")
    return ".".join(re.search(rf"#define ZULG_VERSION_{part} (\d+)", text).group(1) for part in ("MAJOR", "MINOR"))


def pages(catalogue, version):
    """Path below the output folder -> text."""
    made, owners = {}, {}
    for path in sorted(HERE.glob("*.in")):
        page = Page(catalogue, version, path)
        name = path.name.removesuffix(".in")
        made[f"man{name[-1]}/{name}"] = page.filled()
        for owned in page.owned:
            if owners.setdefault(owned, name) != name:
                raise ValueError(f"{owned} is on {owners[owned]} and on {name}")
    due = {export["name"] for export in catalogue["exports"] + catalogue["batches"]}
    if set(owners) != due:
        raise ValueError(f"on no page: {sorted(due - set(owners))}")
    for owned, name in owners.items():
        made[f"man3/{owned}.3"] = f".so man3/{name}\n"
    return made


def main():
    source, output = pathlib.Path(sys.argv[1]).resolve(), pathlib.Path(sys.argv[2])
    made = pages(json.loads(source.read_text(encoding="ascii")),
                 version_of(source.parent.parent / "include" / "zulgenpx.h"))
    (output / "man3").mkdir(parents=True, exist_ok=True)
    for old in (output / "man3").iterdir():
        if f"man3/{old.name}" not in made:
            old.unlink()
    for path, text in made.items():
        (output / path).write_text(text, encoding="ascii")


if __name__ == "__main__":
    try:
        main()
    except (OSError, ValueError, KeyError, StopIteration) as error:
        sys.exit(f"pages.py: {error or 'a length is missing in the catalogue'}")
    except IndexError:
        sys.exit("usage: pages.py CATALOGUE OUTPUT_FOLDER")
