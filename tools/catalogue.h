// The catalogue of the library's routines, docs/catalogue.json, which is a part of the program.
#pragma once

#include <string_view>

namespace spectrum {

std::string_view catalogueText();

}  // namespace spectrum
