// The assembler puts the file in as it is; the build names its place.
#include "catalogue.h"

asm(".section .rodata\n"
    ".global zulspectrum_catalogue\n.global zulspectrum_catalogue_end\n"
    "zulspectrum_catalogue:\n.incbin \"" ZULSPECTRUM_CATALOGUE "\"\nzulspectrum_catalogue_end:\n"
    ".text\n");

extern "C" const char zulspectrum_catalogue[], zulspectrum_catalogue_end[];

namespace spectrum {

std::string_view catalogueText() { return {zulspectrum_catalogue, zulspectrum_catalogue_end}; }

}  // namespace spectrum
