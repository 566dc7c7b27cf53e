"""What the tree says of the library: the catalogue, prototypes, families, and what holds for each of them."""
import json
import re

ELEMENTS = {"32f": "float", "64f": "double", "32fc": "complex float", "64fc": "complex double"}
C_TYPES = {"32f": "Zulg32f", "64f": "Zulg64f", "32fc": "Zulg32fc", "64fc": "Zulg64fc"}
LENGTHS = range(2, 65)
GRAPH_OF = {
    "DFTFwd_CToC": "complex",
    "DFTInv_CToC": "complex",
    "DFTFwd_RToCCS": "real_forward",
    "DFTFwd_RToPack": "real_forward",
    "DFTFwd_RToPerm": "real_forward",
    "DFTInv_CCSToR": "real_inverse",
    "DFTInv_PackToR": "real_inverse",
    "DFTInv_PermToR": "real_inverse",
    "Hartley": "hartley",
    "WHT": "wht",
}
TITLES = {
    "DFTFwd_CToC": "Complex DFT, forward",
    "DFTInv_CToC": "Complex DFT, inverse",
    "DFTFwd_RToCCS": "Real DFT, forward, to CCS",
    "DFTFwd_RToPack": "Real DFT, forward, to Pack",
    "DFTFwd_RToPerm": "Real DFT, forward, to Perm",
    "DFTInv_CCSToR": "Real DFT, inverse, from CCS",
    "DFTInv_PackToR": "Real DFT, inverse, from Pack",
    "DFTInv_PermToR": "Real DFT, inverse, from Perm",
    "Hartley": "Hartley transform",
    "WHT": "Walsh-Hadamard transform",
    "DCT4": "DCT-IV",
    "version": "Version",
}
FAMILIES = list(TITLES)
INVERSE_OF = {
    "DFTFwd_CToC": "DFTInv_CToC",
    "DFTFwd_RToCCS": "DFTInv_CCSToR",
    "DFTFwd_RToPack": "DFTInv_PackToR",
    "DFTFwd_RToPerm": "DFTInv_PermToR",
}
INVERSE_OF.update({inverse: forward for forward, inverse in INVERSE_OF.items()})

# X[k] and x[n] as HTML. The same words as in the header.
FORMULAS = {
    "CToC forward": ("X[k] = scale · <span class=sum>Σ</span><sub>n</sub> x[n] · exp(−2πi·n·k/N)", "k = 0 … N−1"),
    "CToC inverse": ("x[n] = scale · <span class=sum>Σ</span><sub>k</sub> X[k] · exp(+2πi·n·k/N)", "n = 0 … N−1"),
    "real forward": (
        "X[k] = scale · <span class=sum>Σ</span><sub>n</sub> x[n] · exp(−2πi·n·k/N)",
        "k = 0 … N/2, since X[N−k] is the conjugate of X[k]",
    ),
    "real inverse": (
        "y[n] = scale · <span class=sum>Σ</span><sub>k</sub> X[k] · exp(+2πi·n·k/N)",
        "n = 0 … N−1; the bins above N/2 are the conjugates of those below",
    ),
    "Hartley": (
        "out[k] = scale · <span class=sum>Σ</span><sub>j</sub> in[j] · (cos(2πj·k/N) + sin(2πj·k/N))",
        "k = 0 … N−1",
    ),
    "WHT": (
        "out[k] = scale · <span class=sum>Σ</span><sub>j</sub> (−1)<sup>bits set in both j and k</sup> · in[j]",
        "k = 0 … N−1, N = 2<sup>order</sup>; rows in natural (Sylvester) order",
    ),
    "DCT4": ("y[k] = <span class=sum>Σ</span><sub>n</sub> x[n] · cos(π(n + ½)(k + ½)/N)", "k = 0 … N−1; no scale"),
}
STACK = {
    "CToC": "at most 2 KB",
    "R": "at most 1 KB",
    "Hartley": "at most 1 KB",
    "WHT": "at most 2 KB",
    "DCT4": "at most 12 KB at any length",
    "build": "at most 2 KB",
    "batch": "at most 6 KB",
    "batch DCT4": "at most 13 KB",
}
STATUSES = {
    "StatusOk": 0,
    "StatusPlanKindError": -5,
    "StatusSizeError": -6,
    "StatusNullPointer": -8,
    "StatusFlagError": -16,
}


class Library:
    def __init__(self, source):
        self.source = source
        catalogue = json.loads((source / "docs/catalogue.json").read_text(encoding="ascii"))
        self.exports, self.batches, self.sizes = catalogue["exports"], catalogue["batches"], catalogue["sizes"]
        self.by_name = {export["name"]: export for export in self.exports + self.batches}
        header = (source / "include/zulgenpx.h").read_text(encoding="ascii")
        self.version = ".".join(
            re.search(rf"#define ZULG_VERSION_{part} (\d+)", header)[1] for part in ("MAJOR", "MINOR")
        )

    def of(self, family, size, element):
        """The export of a family with this length or order."""
        return next(
            (
                export
                for export in self.exports
                if export["family"] == family and size_of(export) == size and export.get("element") == element
            ),
            None,
        )


def wht_passes(order):
    """How often a Walsh-Hadamard transform passes over its values."""
    return 1 if order <= 7 else 2 if order <= 11 else 3


def size_of(export):
    """Length or order, None where it is an argument."""
    return export.get("length") or export.get("order")


def points(export):
    """How many points the transform has, None where the size is an argument."""
    return export.get("length") or (1 << export["order"] if export.get("order") else None)


def is_transform(export):
    return any(argument["name"] == "pDst" for argument in export["arguments"])


def kind(export):
    """The group of the families that share formula and stack."""
    family = export["family"]
    if family.endswith("CToC"):
        return "CToC forward" if export["sense"] == "forward" else "CToC inverse"
    if family.startswith("DFT"):
        return "real forward" if export["sense"] == "forward" else "real inverse"
    return family


def c_argument(argument):
    if argument["use"] == "value":
        return f"{argument['type']} {argument['name']}"
    const = "const " if argument["use"] == "in" else ""
    return f"{const}{argument['type']}* {argument['name']}"


def prototype(export):
    arguments = ", ".join(c_argument(argument) for argument in export["arguments"]) or "void"
    text = f"{export['returns']} {export['name']}({arguments});"
    if len(text) > 96:
        inner = ",\n    ".join(c_argument(argument) for argument in export["arguments"])
        text = f"{export['returns']} {export['name']}(\n    {inner});"
    return text


def scale_of(export, flag):
    """What the factor is at a flag: "1", "1/N" or "1/sqrt(N)"."""
    sense = export.get("sense", "both" if export["family"] == "WHT" else None)
    if flag == 4:
        return "1/√N"
    if flag == 8:
        return "1"
    if sense == "both":
        return "1/N"
    return "1/N" if (flag == 1) == (sense == "forward") else "1"


def slots(export):
    """Of an array that holds a half spectrum: a list with "R3", "I3" or "0" for each element; otherwise None."""
    spectrum = export.get("spectrum")
    if not spectrum or "slots" not in spectrum:
        return None
    named = {zero: "0" for zero in spectrum["zeros"]}
    for number, (real, imaginary) in enumerate(spectrum["slots"]):
        named[real] = f"R{number}"
        if imaginary is not None:
            named[imaginary] = f"I{number}"
    return [named[slot] for slot in range(len(named))]
