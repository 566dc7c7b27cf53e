#include "rules/tables.h"

#include <algorithm>
#include <functional>
#include <numeric>
#include <stdexcept>

#include "rules/block_kind.h"

namespace gen {
namespace {

using enum Construction;
using enum BlockKind;

// A factor order follows no rule of size: each is a choice of its own, and another order is another graph. A step to be
// turned: kind, length and multiplier of its block, which instance of it, and which of its steps.
// clang-format off
const std::vector<Recipe> complexTable = {
    { 2, Base,        {}},
    { 3, Direct,      {}},
    { 4, Twiddled,    {2, 2}},
    { 5, Direct,      {}},
    { 6, PrimeFactor, {3, 2}},
    { 7, Direct,      {}},
    { 8, Twiddled,    {2, 4}},
    { 9, Twiddled,    {3, 3}},
    {10, PrimeFactor, {2, 5}},
    {11, Rader,       {}},
    {12, PrimeFactor, {4, 3}},
    {13, Rader,       {}},
    {14, PrimeFactor, {2, 7}},
    {15, PrimeFactor, {3, 5}},
    {16, Twiddled,    {2, 8}},
    {17, Rader,       {}},
    {18, PrimeFactor, {2, 9}},
    {19, Rader,       {}},
    {20, PrimeFactor, {4, 5}},
    {21, PrimeFactor, {3, 7}},
    {22, PrimeFactor, {2, 11}},
    {23, Rader,       {}},
    {24, PrimeFactor, {8, 3}},
    {25, Twiddled,    {5, 5}},
    {26, PrimeFactor, {13, 2}},
    {27, Twiddled,    {9, 3}},
    {28, PrimeFactor, {7, 4}},
    {29, Rader,       {}},
    {30, PrimeFactor, {5, 3, 2}},
    {31, Rader,       {}},
    {32, Twiddled,    {8, 4}},
    {33, PrimeFactor, {3, 11}},
    {34, PrimeFactor, {2, 17}},
    {35, PrimeFactor, {5, 7}},
    {36, PrimeFactor, {9, 4}},
    {37, Rader,       {}},
    {38, PrimeFactor, {19, 2}},
    {39, PrimeFactor, {3, 13}},
    {40, PrimeFactor, {5, 8}},
    {41, Rader,       {}},
    {42, PrimeFactor, {7, 3, 2}},
    {43, Rader,       {}},
    {44, PrimeFactor, {11, 4}},
    {45, PrimeFactor, {9, 5}},
    {46, PrimeFactor, {23, 2}},
    {47, Rader,       {}},
    {48, PrimeFactor, {3, 16}},
    {49, Twiddled,    {7, 7}},
    {50, PrimeFactor, {25, 2}},
    {51, PrimeFactor, {3, 17}},
    {52, PrimeFactor, {4, 13}},
    {53, Rader,       {}},
    {54, PrimeFactor, {27, 2}},
    {55, PrimeFactor, {11, 5}},
    {56, PrimeFactor, {7, 8}},
    {57, PrimeFactor, {19, 3}},
    {58, PrimeFactor, {29, 2}},
    {59, Rader,       {}},
    {60, PrimeFactor, {3, 5, 4}},
    {61, Rader,       {}},
    {62, PrimeFactor, {31, 2}},
    {63, PrimeFactor, {7, 9}},
    {64, Twiddled,    {8, 8}},
};

const std::vector<Recipe> realForwardTable = {
    { 2, Base,        {}},
    { 3, Direct,      {}},
    { 4, Twiddled,    {2, 2}},
    { 5, Direct,      {}},
    { 6, PrimeFactor, {3, 2}},
    { 7, Direct,      {}},
    { 8, Twiddled,    {2, 4}},
    { 9, Twiddled,    {3, 3}},
    {10, PrimeFactor, {5, 2}},
    {11, Direct,      {}},
    {12, PrimeFactor, {4, 3}},
    {13, Rader,       {3, 4}, 1, false, {{Real, 2, 1, 1, 1}, {Spectrum, 3, 2, 3, 2}}},
    {14, PrimeFactor, {2, 7}},
    {15, PrimeFactor, {3, 5}},
    {16, Twiddled,    {4, 4}},
    {17, Rader,       {16}},
    {18, PrimeFactor, {2, 9}},
    {19, Rader,       {9, 2}},
    {20, PrimeFactor, {5, 4}},
    {21, PrimeFactor, {7, 3}},
    {22, PrimeFactor, {2, 11}},
    {23, Rader,       {2, 11}},
    {24, PrimeFactor, {3, 8}},
    {25, Twiddled,    {5, 5}},
    {26, PrimeFactor, {13, 2}, 1, false, {{Complex, 2, 1, 5, 0}, {Spectrum, 3, 2, 2, 0}}},
    {27, Twiddled,    {9, 3}},
    {28, PrimeFactor, {4, 7}},
    {29, Rader,       {7, 4}, 1, false, {{Spectrum, 7, 2, 2, 15}}},
    {30, PrimeFactor, {5, 3, 2}},
    {31, Rader,       {3, 2, 5}},
    {32, Twiddled,    {8, 4}},
    {33, PrimeFactor, {11, 3}},
    {34, PrimeFactor, {2, 17}},
    {35, PrimeFactor, {7, 5}},
    {36, PrimeFactor, {9, 4}},
    {37, Rader,       {4, 9}, 1, false, {{Real, 37, 1, 0, 56}, {MirroredSkew, 18, 1, 0, 5}}},
    {38, PrimeFactor, {19, 2}},
    {39, PrimeFactor, {13, 3}, 1, false, {{Real, 3, 1, 12, 1}, {Complex, 3, 1, 2, 9}}},
    {40, PrimeFactor, {8, 5}},
    {41, Rader,       {5, 8}},
    {42, PrimeFactor, {7, 3, 2}},
    {43, Rader,       {2, 7, 3}},
    {44, PrimeFactor, {11, 4}},
    {45, PrimeFactor, {5, 9}},
    {46, PrimeFactor, {2, 23}},
    {47, Rader,       {23, 2}},
    {48, PrimeFactor, {16, 3}},
    {49, Twiddled,    {7, 7}},
    {50, PrimeFactor, {25, 2}},
    {51, PrimeFactor, {17, 3}},
    {52, PrimeFactor, {13, 4}, 1, false, {{Real, 2, 1, 13, 1}, {Complex, 2, 1, 26, 3}}},
    {53, Rader,       {4, 13}, 1, false, {{Real, 53, 1, 0, 2}, {Spectrum, 13, 2, 0, 1}}},
    {54, PrimeFactor, {2, 27}},
    {55, PrimeFactor, {11, 5}},
    {56, PrimeFactor, {7, 8}},
    {57, PrimeFactor, {19, 3}},
    {58, PrimeFactor, {2, 29}},
    {59, Rader,       {29, 2}},
    {60, PrimeFactor, {3, 5, 4}, 2},
    {61, Rader,       {3, 5, 4}, 2, false, {{Spectrum, 5, 1, 0, 9}}},
    {62, PrimeFactor, {31, 2}},
    {63, PrimeFactor, {7, 9}},
    {64, Twiddled,    {16, 4}},
};

const std::vector<Recipe> realInverseTable = {
    { 2, Base,        {}},
    { 3, Direct,      {}},
    { 4, Twiddled,    {2, 2}},
    { 5, Direct,      {}},
    { 6, PrimeFactor, {2, 3}},
    { 7, Direct,      {}},
    { 8, Twiddled,    {4, 2}},
    { 9, Twiddled,    {3, 3}},
    {10, PrimeFactor, {2, 5}},
    {11, Rader,       {2, 5}},
    {12, PrimeFactor, {3, 4}},
    {13, Rader,       {3, 4}},
    {14, PrimeFactor, {2, 7}},
    {15, PrimeFactor, {3, 5}},
    {16, Twiddled,    {4, 4}},
    {17, Rader,       {16}},
    {18, PrimeFactor, {2, 9}},
    {19, Rader,       {2, 9}},
    {20, PrimeFactor, {5, 4}},
    {21, PrimeFactor, {3, 7}},
    {22, PrimeFactor, {11, 2}},
    {23, Rader,       {11, 2}, 1, true},
    {24, PrimeFactor, {8, 3}},
    {25, Twiddled,    {5, 5}},
    {26, PrimeFactor, {2, 13}},
    {27, Twiddled,    {9, 3}},
    {28, PrimeFactor, {4, 7}},
    {29, Rader,       {7, 4}},
    {30, PrimeFactor, {3, 5, 2}},
    {31, Rader,       {2, 3, 5}},
    {32, Twiddled,    {8, 4}},
    {33, PrimeFactor, {3, 11}},
    {34, PrimeFactor, {17, 2}},
    {35, PrimeFactor, {5, 7}},
    {36, PrimeFactor, {4, 9}},
    {37, Rader,       {9, 4}},
    {38, PrimeFactor, {2, 19}},
    {39, PrimeFactor, {13, 3}},
    {40, PrimeFactor, {5, 8}},
    {41, Rader,       {5, 8}},
    {42, PrimeFactor, {2, 3, 7}},
    {43, Rader,       {3, 2, 7}},
    {44, PrimeFactor, {4, 11}},
    {45, PrimeFactor, {5, 9}},
    {46, PrimeFactor, {23, 2}},
    {47, Rader,       {23, 2}},
    {48, PrimeFactor, {16, 3}},
    {49, Twiddled,    {7, 7}},
    {50, PrimeFactor, {25, 2}},
    {51, PrimeFactor, {3, 17}},
    {52, PrimeFactor, {13, 4}},
    {53, Rader,       {13, 4}},
    {54, PrimeFactor, {27, 2}},
    {55, PrimeFactor, {5, 11}},
    {56, PrimeFactor, {8, 7}},
    {57, PrimeFactor, {3, 19}},
    {58, PrimeFactor, {29, 2}},
    {59, Rader,       {2, 29}},
    {60, PrimeFactor, {4, 3, 5}},
    {61, Rader,       {4, 3, 5}},
    {62, PrimeFactor, {31, 2}},
    {63, PrimeFactor, {9, 7}},
    {64, Twiddled,    {16, 4}},
};
// clang-format on

const Recipe& find(const std::vector<Recipe>& table, int length) {
    const auto row = std::ranges::find(table, length, &Recipe::length);
    if (row == table.end()) throw std::out_of_range("no row for length " + std::to_string(length));
    return *row;
}

Recipe ofFactors(const std::vector<int>& factors, const std::vector<Recipe>& family) {
    if (factors.size() == 1) return find(family, factors[0]);
    const int length = std::accumulate(factors.begin(), factors.end(), 1, std::multiplies());
    return {length, PrimeFactor, factors};
}

}  // namespace

const std::vector<Recipe>& realForwardRecipes() { return realForwardTable; }
const std::vector<Recipe>& realInverseRecipes() { return realInverseTable; }

const Recipe& complexRecipe(int length) { return find(complexTable, length); }
const Recipe& realForwardRecipe(int length) { return find(realForwardTable, length); }
const Recipe& realInverseRecipe(int length) { return find(realInverseTable, length); }

Recipe innerSide(const Recipe& recipe, const std::vector<Recipe>& family) {
    const std::vector<int> factors(recipe.factors.begin(), recipe.factors.begin() + recipe.innerCount);
    if (recipe.isInnerDirect) return {factors[0], Direct, {}};
    return ofFactors(factors, family);
}

Recipe outerSide(const Recipe& recipe, const std::vector<Recipe>& family) {
    return ofFactors({recipe.factors.begin() + recipe.innerCount, recipe.factors.end()}, family);
}

Recipe raderBlock(const Recipe& recipe, const std::vector<Recipe>& family) {
    Recipe block = ofFactors(recipe.factors, family);
    if (block.construction == PrimeFactor) {
        block.innerCount = recipe.innerCount;
        block.isInnerDirect = recipe.isInnerDirect;
    }
    return block;
}

OddSplit oddSplit(int length, bool isInput) {
    switch (length) {
        case 6: return isInput ? OddSplit{2, 3} : OddSplit{3, 2};
        case 8: return {2, 4};
        case 14: return {7, 2};
        case 16: return {8, 2};
        case 18: return {3, 6};
        case 20: return {5, 4};
        case 26: return {13, 2};
        case 30: return {15, 2};
        default: throw std::out_of_range("no odd-frequency form of length " + std::to_string(length));
    }
}

HartleyForm hartleyForm(int length) {
    // Lengths 2 to 64.
    constexpr char forms[] = "FFFFFFFFIFIIIIFFIFIFFIFIFIIFIIIIIIIIFFIFIIIIIFIFFIFIIIIFFFIFIFI";
    return forms[length - 2] == 'F' ? HartleyForm::F : HartleyForm::I;
}

bool isHartleyReversed(int length) { return length == 11 || length == 21 || length == 41 || length == 50; }

const Recipe& hartleyRecipe(int length) {
    return hartleyForm(length) == HartleyForm::F ? realForwardRecipe(length) : realInverseRecipe(length);
}

}  // namespace gen
