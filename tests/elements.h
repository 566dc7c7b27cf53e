// What every test of single and double shares: the two types and their names, and how elements are made and compared.
#pragma once

#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <random>
#include <string>
#include <vector>

#include "tests/reference.h"

namespace test {

using Elements = testing::Types<float, double>;

template <class Element>
inline constexpr bool isSingle = sizeof(Element) == sizeof(float);

// Half a unit in the last place of 1: the largest error of one rounding.
template <class Element>
inline constexpr double unitOf = isSingle<Element> ? 0x1p-24 : 0x1p-53;

struct ElementNames {
    template <class Element>
    static std::string GetName(int) {
        return isSingle<Element> ? "32f" : "64f";
    }
};

// An exported name: "zulgWHT_13" has a version for each type.
template <class Element>
std::string exportedName(const std::string& stem) {
    return stem + "_" + ElementNames::GetName<Element>(0);
}

// The first value for 32f, the second one for 64f.
template <class Element, class Value>
Value perType(Value single, Value twice) {
    return isSingle<Element> ? single : twice;
}

// Rounds to the element, through memory: the result of a cast may stay in a wider register.
template <class Element>
Element rounded(Wide value) {
    volatile Element element = static_cast<Element>(value);
    return element;
}

// Compares bit patterns, so that -0.0 and 0.0 differ and a not-a-number equals itself.
template <class Element>
bool sameBits(const std::vector<Element>& a, const std::vector<Element>& b) {
    return a.size() == b.size() && std::memcmp(a.data(), b.data(), a.size() * sizeof(Element)) == 0;
}

template <class Element>
Values widened(const std::vector<Element>& elements) {
    return {elements.begin(), elements.end()};
}

// The root of the sum of squares.
template <class Element>
double normOf(const std::vector<Element>& elements) {
    double squares = 0;
    for (Element value : elements) squares += static_cast<double>(value) * static_cast<double>(value);
    return std::sqrt(squares);
}

// Normally distributed, at a scale drawn anew from one octave: the relative error of even a correctly rounded result
// depends on its position between two powers of two, and no length is to be judged by that.
template <class Element>
std::vector<Element> randomElements(int count, std::mt19937& random) {
    std::normal_distribution<double> normal(0, std::exp2(std::uniform_real_distribution<double>(-0.5, 0.5)(random)));
    std::vector<Element> elements;
    for (int i = 0; i < count; ++i) elements.push_back(static_cast<Element>(normal(random)));
    return elements;
}

// Random input of a test: the same at every run, unless the command line asks for another one. Each failure says how.
class Seed {
    const unsigned value = static_cast<unsigned>(GTEST_FLAG_GET(random_seed));
    testing::ScopedTrace trace{__FILE__, __LINE__, "--gtest_random_seed=" + std::to_string(value)};

public:
    std::mt19937 random{value};
};

// The fixture of typed tests.
template <class Element>
class ElementTest : public testing::Test {
protected:
    static constexpr bool single = isSingle<Element>;
    static constexpr double unit = unitOf<Element>;

    std::vector<Element> randomElements(int count) { return test::randomElements<Element>(count, seed.random); }

    Seed seed;
};

}  // namespace test
