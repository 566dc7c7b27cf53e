// The assembler puts the files in as they are; the build names their places.
#include "catalogue.h"

asm(".section .rodata\n"
    ".global zulspectrum_catalogue\n.global zulspectrum_catalogue_end\n"
    "zulspectrum_catalogue:\n.incbin \"" ZULSPECTRUM_CATALOGUE
    "\"\nzulspectrum_catalogue_end:\n"
    ".global zulspectrum_bounds\n.global zulspectrum_bounds_end\n"
    "zulspectrum_bounds:\n.incbin \"" ZULSPECTRUM_BOUNDS
    "\"\nzulspectrum_bounds_end:\n"
    ".text\n");

extern "C" const char zulspectrum_catalogue[], zulspectrum_catalogue_end[];
extern "C" const char zulspectrum_bounds[], zulspectrum_bounds_end[];

namespace spectrum {

std::string_view catalogueText() { return {zulspectrum_catalogue, zulspectrum_catalogue_end}; }
std::string_view boundsText() { return {zulspectrum_bounds, zulspectrum_bounds_end}; }

}  // namespace spectrum
