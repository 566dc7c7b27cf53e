"""What the routines of a program read and write, checked before each call. The library itself is compiled without the
address sanitizer, so that it would run over the end of an array unseen; here the sanitizer is asked, through a macro in
the place of each routine, whether all of the array may be used."""
import re

# Family: elements of source and destination, by the length N.
EXTENTS = {
    "DFTFwd_CToC": ("{N}", "{N}"),
    "DFTInv_CToC": ("{N}", "{N}"),
    "DFTFwd_RToCCS": ("{N}", "({N}) / 2 * 2 + 2"),
    "DFTFwd_RToPack": ("{N}", "{N}"),
    "DFTFwd_RToPerm": ("{N}", "{N}"),
    "DFTInv_CCSToR": ("({N}) + 1", "{N}"),
    "DFTInv_PackToR": ("{N}", "{N}"),
    "DFTInv_PermToR": ("{N}", "{N}"),
    "Hartley": ("{N}", "{N}"),
    "WHT": ("1 << ({N})", "1 << ({N})"),
}
PLAN = {"DCT4", "DCT4GetSize", "DCT4Init", "DCT4InitAlloc", "DCT4Free", "WHTGetBufferSize"}

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


def checked_header(program):
    """The header that is included ahead of the program, with a macro for each routine that the program names."""
    lines = [HEAD]
    for name in sorted(set(re.findall(r"\bzulg[A-Za-z0-9_]+", program))):
        match = re.fullmatch(r"zulg([A-Za-z0-9]+(?:_[RC][A-Za-z]+)?)(?:_(\d+))?_(?:32|64)fc?", name)
        if not match or match[1] in PLAN:
            continue
        family, number = match[1], match[2]
        source, destination = (extent.format(N=number or "length") for extent in EXTENTS[family])
        arguments = ["pSrc", "pDst"] + ([] if number else ["length"]) + ["flag"]
        if family == "WHT":
            arguments.append("pBuffer")
        # An error is told without a look at the arrays: a length out of range has no extent.
        usable = "1" if number else "(length) >= 1 && (length) <= 64"
        lines.append(f"#define {name}({', '.join(arguments)}) \\\n"
                     f"    (({usable}) ? (mayBeUsed(pSrc, ({source}) * sizeof *(pSrc), \"{name}, source\"), \\\n"
                     f"     mayBeUsed(pDst, ({destination}) * sizeof *(pDst), \"{name}, destination\")) : (void)0, \\\n"
                     f"     {name}({', '.join(arguments)}))")
    return "\n".join(lines) + "\n"
