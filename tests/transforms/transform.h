// What the tests know of one exported transform of one length: enough to call it and to judge its result.
#pragma once

#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <ostream>
#include <random>
#include <string>
#include <vector>

#include "tests/elements.h"
#include "tests/exports.h"
#include "tests/reference.h"

namespace test {

enum class Direction { Forward, Inverse, Both };

// The lengths of the DFT families: 2 to 64.
std::vector<int> allLengths();
int largestPrimeFactor(int length);

enum class Layout { CCS, Pack, Perm };
constexpr Layout allLayouts[] = {Layout::CCS, Layout::Pack, Layout::Perm};

// Where a layout keeps the parts of bin k, and how many elements it has; -1 for an imaginary part that it leaves out.
struct LayoutSlots {
    Layout layout;
    int length;

    int re(int k) const;
    int im(int k) const;
    int elements() const;
};

struct Transform {
    std::string family;  // "DFTFwd_CToC"
    std::string suffix;  // "32fc"
    int length;
    Direction direction;  // which column of the flags' table holds
    int sourceElements;   // of float or double
    int destinationElements;
    double bound64;                                   // largest relative error in double precision, in units of 2^-53
    std::function<Values(const Values&)> definition;  // without scale

    // Largest relative error, in units of 2^-24 or 2^-53.
    // At length 2 an output is one sum of two singles, rounded once: about half of these sums lie exactly between two
    // singles, so that 0.46 is the error of correct rounding, and no kernel can come below.
    double bound() const { return !isSingle() ? bound64 : length == 2 ? 0.5 : 0.45; }
    bool isSingle() const { return suffix.starts_with("32"); }
    std::string kernelName() const { return "zulg" + family + "_" + std::to_string(length) + "_" + suffix; }
    std::string dispatcherName() const { return "zulg" + family + "_" + suffix; }
};

std::vector<Transform> complexTransforms();
std::vector<Transform> realForwardTransforms();
std::vector<Transform> realInverseTransforms();
std::vector<Transform> hartleyTransforms();
std::vector<Transform> allTransforms();

const char* layoutName(Layout layout);

// Of the outputs of the forward real transform of a length, how many are stored after a negation.
int expectedNegations(int length);

// For value-parameterised tests: readable names.
std::ostream& operator<<(std::ostream& out, const Transform& transform);
std::string testName(const testing::TestParamInfo<Transform>& test);

// 1/N and 1/sqrt(N) as they are stored. 1/N is rounded once. 1/sqrt(N) is the double quotient of 1 and the double root,
// rounded to the element.
template <class Element>
Element storedInverse(int length);
template <class Element>
Element storedInverseRoot(int length);

// The stored factor that a flag selects.
template <class Element>
Element storedScale(const Transform& transform, int flag) {
    if (flag == DivBySqrtN) return storedInverseRoot<Element>(transform.length);
    const bool divides = (flag == DivFwdByN && transform.direction != Direction::Inverse) ||
                         (flag == DivInvByN && transform.direction != Direction::Forward);
    return divides ? storedInverse<Element>(transform.length) : Element{1};
}

// One call into fresh, separate arrays.
template <class Element>
std::vector<Element> run(const Transform& transform, const std::vector<Element>& source, int flag) {
    std::vector<Element> destination(static_cast<std::size_t>(transform.destinationElements));
    exported<Kernel<Element>>(transform.kernelName())(source.data(), destination.data(), flag);
    return destination;
}

}  // namespace test
