#include "rules/tables.h"

#include <algorithm>
#include <functional>
#include <numeric>
#include <stdexcept>

namespace gen {
namespace {

using enum Construction;

// A factor order follows no rule of size: each is a choice of its own, and another order is another graph.
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
    {12, PrimeFactor, {4, 3}},
    {14, PrimeFactor, {2, 7}},
    {15, PrimeFactor, {3, 5}},
    {16, Twiddled,    {2, 8}},
    {18, PrimeFactor, {2, 9}},
    {20, PrimeFactor, {4, 5}},
    {21, PrimeFactor, {3, 7}},
    {24, PrimeFactor, {8, 3}},
    {25, Twiddled,    {5, 5}},
    {27, Twiddled,    {9, 3}},
    {28, PrimeFactor, {7, 4}},
    {30, PrimeFactor, {5, 3, 2}},
    {32, Twiddled,    {8, 4}},
    {35, PrimeFactor, {5, 7}},
    {36, PrimeFactor, {9, 4}},
    {40, PrimeFactor, {5, 8}},
    {42, PrimeFactor, {7, 3, 2}},
    {45, PrimeFactor, {9, 5}},
    {48, PrimeFactor, {3, 16}},
    {49, Twiddled,    {7, 7}},
    {50, PrimeFactor, {25, 2}},
    {54, PrimeFactor, {27, 2}},
    {56, PrimeFactor, {7, 8}},
    {60, PrimeFactor, {3, 5, 4}},
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
    {14, PrimeFactor, {2, 7}},
    {15, PrimeFactor, {3, 5}},
    {16, Twiddled,    {4, 4}},
    {18, PrimeFactor, {2, 9}},
    {20, PrimeFactor, {5, 4}},
    {21, PrimeFactor, {7, 3}},
    {22, PrimeFactor, {2, 11}},
    {24, PrimeFactor, {3, 8}},
    {25, Twiddled,    {5, 5}},
    {27, Twiddled,    {9, 3}},
    {28, PrimeFactor, {4, 7}},
    {30, PrimeFactor, {5, 3, 2}},
    {32, Twiddled,    {8, 4}},
    {33, PrimeFactor, {11, 3}},
    {35, PrimeFactor, {7, 5}},
    {36, PrimeFactor, {9, 4}},
    {40, PrimeFactor, {8, 5}},
    {42, PrimeFactor, {7, 3, 2}},
    {44, PrimeFactor, {11, 4}},
    {45, PrimeFactor, {5, 9}},
    {48, PrimeFactor, {16, 3}},
    {49, Twiddled,    {7, 7}},
    {50, PrimeFactor, {25, 2}},
    {54, PrimeFactor, {2, 27}},
    {55, PrimeFactor, {11, 5}},
    {56, PrimeFactor, {7, 8}},
    {60, PrimeFactor, {3, 5, 4}, 2},
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
    {12, PrimeFactor, {3, 4}},
    {14, PrimeFactor, {2, 7}},
    {15, PrimeFactor, {3, 5}},
    {16, Twiddled,    {4, 4}},
    {18, PrimeFactor, {2, 9}},
    {20, PrimeFactor, {5, 4}},
    {21, PrimeFactor, {3, 7}},
    {24, PrimeFactor, {8, 3}},
    {25, Twiddled,    {5, 5}},
    {27, Twiddled,    {9, 3}},
    {28, PrimeFactor, {4, 7}},
    {30, PrimeFactor, {3, 5, 2}},
    {32, Twiddled,    {8, 4}},
    {35, PrimeFactor, {5, 7}},
    {36, PrimeFactor, {4, 9}},
    {40, PrimeFactor, {5, 8}},
    {42, PrimeFactor, {2, 3, 7}},
    {45, PrimeFactor, {5, 9}},
    {48, PrimeFactor, {16, 3}},
    {49, Twiddled,    {7, 7}},
    {50, PrimeFactor, {25, 2}},
    {54, PrimeFactor, {27, 2}},
    {56, PrimeFactor, {8, 7}},
    {60, PrimeFactor, {4, 3, 5}},
    {63, PrimeFactor, {9, 7}},
    {64, Twiddled,    {16, 4}},
};
// clang-format on

const Recipe& find(const std::vector<Recipe>& table, int length) {
    const auto row = std::ranges::find(table, length, &Recipe::length);
    if (row == table.end()) throw std::out_of_range("no row for length " + std::to_string(length));
    return *row;
}

Recipe side(const std::vector<int>& factors, const std::vector<Recipe>& family) {
    if (factors.size() == 1) return find(family, factors[0]);
    const int length = std::accumulate(factors.begin(), factors.end(), 1, std::multiplies());
    return {length, PrimeFactor, factors};
}

std::string listed(const std::vector<int>& factors) {
    std::string text;
    for (int factor : factors) text += (text.empty() ? " " : ", ") + std::to_string(factor);
    return text;
}

}  // namespace

const std::vector<Recipe>& complexRecipes() { return complexTable; }

const std::vector<Recipe>& realForwardRecipes() { return realForwardTable; }
const std::vector<Recipe>& realInverseRecipes() { return realInverseTable; }

const Recipe& complexRecipe(int length) { return find(complexTable, length); }
const Recipe& realForwardRecipe(int length) { return find(realForwardTable, length); }
const Recipe& realInverseRecipe(int length) { return find(realInverseTable, length); }

Recipe innerSide(const Recipe& recipe, const std::vector<Recipe>& family) {
    return side({recipe.factors.begin(), recipe.factors.begin() + recipe.innerCount}, family);
}

Recipe outerSide(const Recipe& recipe, const std::vector<Recipe>& family) {
    return side({recipe.factors.begin() + recipe.innerCount, recipe.factors.end()}, family);
}

std::string complexText(const Recipe& recipe) {
    switch (recipe.construction) {
        case Base: return "base";
        case Direct: return "direct symmetric form";
        case Twiddled:
            return "twiddled, inner " + std::to_string(recipe.factors[0]) + ", outer " +
                   std::to_string(recipe.factors[1]);
        case PrimeFactor: return "prime-factor, order" + listed(recipe.factors);
    }
    throw std::logic_error("no construction");
}

std::string realText(const Recipe& recipe) {
    switch (recipe.construction) {
        case Base: return "base";
        case Direct: return "direct";
        case Twiddled: return "twiddled" + listed(recipe.factors);
        case PrimeFactor: return "prime-factor" + listed(recipe.factors);
    }
    throw std::logic_error("no construction");
}

}  // namespace gen
