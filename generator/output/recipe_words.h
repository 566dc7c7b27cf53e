// How each length is built, as people write it.
#pragma once

#include <string>

#include "rules/tables.h"

namespace gen {

// "prime-factor, order 3, 5" in the complex family, "prime-factor 3, 5" in the real ones, "form F" of the Hartley
// transform.
std::string complexWords(const Recipe& recipe);
std::string realWords(const Recipe& recipe);
std::string hartleyWords(int length);

// "prime-factor"
std::string constructionName(Construction construction);

}  // namespace gen
