"""Times and errors, as benchmarks/results has them, and the floor that belongs to a time."""
import csv
import json
import pathlib
import re
import sys

CONTESTS = {
    "DFTFwd_CToC": "complex_forward",
    "DFTInv_CToC": "complex_inverse",
    "DFTFwd_RToCCS": "real_forward",
    "DFTInv_CCSToR": "real_inverse",
    "DFTFwd_RToPack": "packed_forward",
    "DFTInv_PackToR": "packed_inverse",
    "DFTFwd_RToPerm": "permuted_forward",
    "DFTInv_PermToR": "permuted_inverse",
    "Hartley": "hartley",
    "DCT4": "dct4",
    "WHT": "wht",
}
PARTICIPANTS = {
    "zulgenpx": "zulgenpx",
    "x86-64": "zulgenpx, level without AVX2",
    "fftw_patient_simd": "FFTW PATIENT as packaged (vectors)",
    "fftw_patient_scalar": "FFTW PATIENT, scalar",
    "kissfft": "KissFFT",
    "gsl": "GSL",
    "plain_in_place": "plain loop, in place",
    "plain_copied": "plain loop and copy",
}


class Times:
    """The newest figures of each contest."""

    def __init__(self, folder, floors):
        self.contests, self.floors = {}, floors
        for path in sorted(folder.glob("*.json")):
            if path.stem.endswith("-builds"):
                continue
            record = json.loads(path.read_text(encoding="utf-8"))
            about, machine = record["about"], record["about"]["machine"]
            where = f"{machine['Model name']}, family {machine['CPU family']} model {machine['Model']}, {about['date']}"
            for name, figures in record["contests"].items():
                if name.count("/") == 2:
                    self.contests[name] = (where, figures)

    def of(self, family, element, size):
        """(machine and date, {participant: (ns, cycles, spread)}, floor in cycles) or None. `element` begins with 32
        or 64."""
        contest = CONTESTS.get(family)
        name = f"{contest}/{'double' if element.startswith('64') else 'single'}/{size}"
        if contest is None or name not in self.contests:
            return None
        where, figures = self.contests[name]
        counts = self.floors.counts(contest, size)
        floor = self.floors.scalar(*counts) if counts else None
        return where, figures, floor


def read_times(source):
    sys.path.insert(0, str(source / "benchmarks"))
    import floors  # of the tree

    return Times(source / "benchmarks" / "results", floors)


def pair(cell):
    """A cell "1.63, 3.69" as two numbers, an empty one as None."""
    numbers = [float(number) for number in cell.split(",") if number.strip()]
    return tuple(numbers) if len(numbers) == 2 else None


class Errors:
    """Pooled and worst errors on x86-64, by family, size and element: ((pooled, worst), the same at any flag)."""

    COLUMNS = {
        "complex forward": ["DFTFwd_CToC"],
        "complex inverse": ["DFTInv_CToC"],
        "real forward": ["DFTFwd_RToCCS", "DFTFwd_RToPack", "DFTFwd_RToPerm"],
        "real inverse": ["DFTInv_CCSToR", "DFTInv_PackToR", "DFTInv_PermToR"],
        "Hartley": ["Hartley"],
    }

    def __init__(self, path):
        self.found, element, heads = {}, None, []
        for line in path.read_text(encoding="utf-8").splitlines():
            if line.startswith("## "):
                match = re.fullmatch(r"## x86-64, (32f|64f)", line)
                element = match[1] if match else None
            cells = [cell.strip() for cell in line.strip("|").split("|")]
            if not element or not line.startswith("| "):
                continue
            if not cells[0].isdigit():
                heads = cells
                continue
            self._row(element, heads, cells)

    def _row(self, element, heads, cells):
        size, width = int(cells[0]), element[:2]
        for column, head in enumerate(heads):
            value = pair(cells[column]) if column else None
            if value is None:
                continue
            any_flag = pair(cells[column + 1]) if column + 1 < len(heads) and heads[column + 1] == "any flag" else None
            for family in self.COLUMNS.get(head, []):
                self.found[family, size, width] = (value, any_flag)
            if head == "Walsh-Hadamard":
                self.found["WHT", size, width] = (value, any_flag)
            if head == "DCT-IV":
                self.found["DCT4", size, width] = (value, None)

    def of(self, family, points, element):
        return self.found.get((family, points, element[:2]))


def read_errors(source):
    return Errors(pathlib.Path(source) / "benchmarks/results/accuracy.md")


FAMILIES_OF_BOUNDS = {
    "complex_forward": ["DFTFwd_CToC"],
    "complex_inverse": ["DFTInv_CToC"],
    "real_forward": ["DFTFwd_RToCCS", "DFTFwd_RToPack", "DFTFwd_RToPerm"],
    "real_inverse": ["DFTInv_CCSToR", "DFTInv_PackToR", "DFTInv_PermToR"],
    "hartley": ["Hartley"],
    "wht": ["WHT"],
    "dct4": ["DCT4"],
}


def read_bounds(source):
    """Proved bounds, by family, points and "32" or "64": the bound and the worst trial at factor 1, then the bound at
    any flag. A tree without the file has none."""
    path, found = pathlib.Path(source) / "benchmarks/results/bounds.csv", {}
    if not path.exists():
        return found
    with open(path, encoding="ascii", newline="") as file:
        for row in csv.DictReader(file):
            points = 1 << int(row["length"]) if row["family"] == "wht" else int(row["length"])
            for family in FAMILIES_OF_BOUNDS[row["family"]]:
                entry = found.setdefault((family, points, row["element"][:2]), [None, None, 0.0])
                if row["factor"] == "none":
                    entry[:2] = float(row["bound"]), float(row["worst"])
                entry[2] = max(entry[2], float(row["bound"]))
    return found
