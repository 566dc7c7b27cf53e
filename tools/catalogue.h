// Data of the library that are parts of the program: the catalogue of its routines, docs/catalogue.json, and the proved
// bounds of their errors, benchmarks/results/bounds.csv.
#pragma once

#include <string_view>

namespace spectrum {

std::string_view catalogueText();
std::string_view boundsText();

}  // namespace spectrum
