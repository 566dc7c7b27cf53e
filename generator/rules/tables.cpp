#include "rules/tables.h"

#include <algorithm>
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
// clang-format on

}  // namespace

const std::vector<Recipe>& complexRecipes() { return complexTable; }

const Recipe& complexRecipe(int length) {
    const auto row = std::ranges::find(complexTable, length, &Recipe::length);
    if (row == complexTable.end()) throw std::out_of_range("complex " + std::to_string(length) + ": no such row");
    return *row;
}

std::string complexText(const Recipe& recipe) {
    switch (recipe.construction) {
        case Base: return "base";
        case Direct: return "direct symmetric form";
        case Twiddled:
            return "twiddled, inner " + std::to_string(recipe.factors[0]) + ", outer " +
                   std::to_string(recipe.factors[1]);
        case PrimeFactor: break;
    }
    std::string text = "prime-factor, order";
    const char* separator = " ";
    for (int factor : recipe.factors) {
        text += separator + std::to_string(factor);
        separator = ", ";
    }
    return text;
}

}  // namespace gen
