"""What the routines of a program read and write, checked before each call. The library itself is compiled without the
address sanitizer, so that it would run over the end of an array unseen; here the sanitizer is asked, through a macro in
the place of each routine, whether all of the array may be used."""
import pathlib
import re
import sys

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[1] / "machine"))
import catalogue

HEAD = """#include <stddef.h>
#include <stdio.h>
#include <stdlib.h>
#include <sanitizer/asan_interface.h>
#include "zulgenpx.h"

static inline void mayBeUsed(const void* start, size_t bytes, const char* what) {
    if (start == NULL || __asan_region_is_poisoned((void*)start, bytes) == NULL) return;
    fprintf(stderr, "%s: beyond the array\\n", what);
    abort();
}
"""


def extent(argument, names):
    """The elements of an array that is only read or only written, as an expression of the other arguments, or None
    where these do not tell."""
    elements = str(argument.get("elements", "unknown"))
    words = set(re.findall(r"[A-Za-z_]+", elements))
    return re.sub(r"([a-z]+)", r"(\1)", elements) if argument["use"] in ("in", "out") and words <= names else None


def sizes(exports):
    """Family: the shortest and the longest length, or the least and the greatest order."""
    found = {}
    for export in exports:
        found.setdefault(export["family"], []).append(export["length"] or export["order"])
    return {family: (min(values), max(values)) for family, values in found.items()}


def checked_header(program):
    """The header that is included ahead of the program, with a macro for each routine that the program names."""
    lines = [HEAD]
    named = set(re.findall(r"\bzulg[A-Za-z0-9_]+", program))
    sizes_of_family = sizes(catalogue.kernels())
    for export in catalogue.exports():
        if export["name"] not in named or export["family"] not in sizes_of_family:
            continue
        name, arguments = export["name"], [argument["name"] for argument in export["arguments"]]
        checks = []
        for argument in export["arguments"]:
            elements = extent(argument, set(arguments))
            if elements is not None:
                array = argument["name"]
                checks.append(f"mayBeUsed({array}, ({elements}) * sizeof *({array}), \"{name}, {array}\")")
        if not checks:
            continue
        # An error is told without a look at the arrays: a size out of range has no extent.
        least, greatest = sizes_of_family[export["family"]]
        size = next((each for each in arguments if each in ("length", "order")), None)
        usable = f"({size}) >= {least} && ({size}) <= {greatest}" if size else "1"
        call = f"{name}({', '.join(arguments)})"
        lines.append(f"#define {call} \\\n    (({usable}) ? ({', '.join(checks)}) : (void)0, \\\n     {call})")
    return "\n".join(lines) + "\n"
