// The settled choices: which construction each length has, and in which order its factors come.
#pragma once

#include <string>
#include <vector>

#include "graph/turn.h"

namespace gen {

enum class Construction { Base, Direct, Twiddled, PrimeFactor, Rader };

// One row of a table. Factors of a twiddled construction: inner, outer (first, final on the spectrum side); of a
// prime-factor one: in order of application; of a real Rader form: those of the block of length p - 1 inside it.
// A real prime-factor construction has two sides: the inner (first) one is made of as many factors as `innerCount`
// says, the outer (final) one of the rest.
struct Recipe {
    int length;
    Construction construction;
    std::vector<int> factors;
    int innerCount = 1;
    bool isInnerDirect = false;  // the inner factor is in direct form here, whatever its own row says
    // Differences that the finished graph of this length, as a kernel, forms the other way round. No rule of signs
    // gives the settled number of negated outputs at these lengths; one or two turns each do.
    std::vector<BlockStep> turned = {};
};

// The two sides of a real prime-factor construction. Several factors are a prime-factor construction in their order; a
// single one is the row of its length in `family`.
Recipe innerSide(const Recipe& recipe, const std::vector<Recipe>& family);
Recipe outerSide(const Recipe& recipe, const std::vector<Recipe>& family);

// The block of length p - 1 inside a real Rader form.
Recipe raderBlock(const Recipe& recipe, const std::vector<Recipe>& family);

// How the odd-frequency form of an even length L = r s is split; `isInput` on the side of real inputs.
struct OddSplit {
    int r, s;
};
OddSplit oddSplit(int length, bool isInput);

// The rows of one family, rising in length. Each is a stand-alone kernel and the block inside longer ones.
const std::vector<Recipe>& realForwardRecipes();
const std::vector<Recipe>& realInverseRecipes();

const Recipe& complexRecipe(int length);
const Recipe& realForwardRecipe(int length);
const Recipe& realInverseRecipe(int length);

// The form of the Hartley transform of a length: around the forward or the inverse real graph. In form F the sign of
// the exponent is reversed at some lengths, which affects only the split into additions and subtractions.
enum class HartleyForm { F, I };
HartleyForm hartleyForm(int length);
bool isHartleyReversed(int length);
const Recipe& hartleyRecipe(int length);  // of the real graph inside

}  // namespace gen
