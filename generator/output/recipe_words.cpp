#include "output/recipe_words.h"

#include <stdexcept>

namespace gen {
namespace {

using enum Construction;

std::string listed(const std::vector<int>& factors) {
    std::string text;
    for (int factor : factors) text += (text.empty() ? " " : ", ") + std::to_string(factor);
    return text;
}

}  // namespace

std::string complexWords(const Recipe& recipe) {
    switch (recipe.construction) {
        case Base: return "base";
        case Direct: return "direct symmetric form";
        case Twiddled:
            return "twiddled, inner " + std::to_string(recipe.factors[0]) + ", outer " +
                   std::to_string(recipe.factors[1]);
        case PrimeFactor: return "prime-factor, order" + listed(recipe.factors);
        case Rader: return "Rader block";
    }
    throw std::logic_error("no construction");
}

std::string realWords(const Recipe& recipe) {
    switch (recipe.construction) {
        case Base: return "base";
        case Direct: return "direct";
        case Twiddled: return "twiddled" + listed(recipe.factors);
        case PrimeFactor: return "prime-factor" + listed(recipe.factors);
        case Rader: return "Rader" + listed(recipe.factors);
    }
    throw std::logic_error("no construction");
}

std::string hartleyWords(int length) { return hartleyForm(length) == HartleyForm::F ? "form F" : "form I"; }

std::string constructionName(Construction construction) {
    switch (construction) {
        case Base: return "base";
        case Direct: return "direct";
        case Twiddled: return "twiddled";
        case PrimeFactor: return "prime-factor";
        case Rader: return "Rader";
    }
    throw std::logic_error("no construction");
}

}  // namespace gen
