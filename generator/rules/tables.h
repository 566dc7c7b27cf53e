// The settled choices: which construction each length has, and in which order its factors stand.
#pragma once

#include <string>
#include <vector>

namespace gen {

enum class Construction { Base, Direct, Twiddled, PrimeFactor };

// One row of a table. Factors of a twiddled construction: inner, outer; of a prime-factor one: in order of application.
struct Recipe {
    int length;
    Construction construction;
    std::vector<int> factors;
};

// The rows of the complex family, rising in length. Each is a stand-alone kernel and the block inside longer ones.
const std::vector<Recipe>& complexRecipes();
const Recipe& complexRecipe(int length);

// As people write it: "prime-factor, order 3, 5".
std::string complexText(const Recipe& recipe);

}  // namespace gen
