// What the tests know of one exported transform of one length: enough to call it and to judge its result. A family is a
// list of such rows.
#pragma once

#include <algorithm>
#include <functional>
#include <ostream>
#include <string>
#include <vector>

#include "tests/elements.h"
#include "tests/exports.h"
#include "tests/reference.h"

namespace test {

enum class Direction { Forward, Inverse, Both };

// What a routine takes beside its two arrays.
enum class Takes { Flag, FlagAndBuffer, FlagAndNullBuffer, Plan };

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
    double bound;                                             // largest relative error, in units of 2^-24 or 2^-53
    std::function<Values(const Values&, Chosen)> definition;  // without scale
    Takes takes = Takes::Flag;
    int order = 0;  // where names and dispatchers have it in place of the length

    bool isSingle() const { return suffix.starts_with("32"); }
    int number() const { return order > 0 ? order : length; }
    std::string kernelName() const { return "zulg" + family + "_" + std::to_string(number()) + "_" + suffix; }
    std::string dispatcherName() const { return "zulg" + family + "_" + suffix; }
    std::vector<int> flags() const;

    // The bound, and one rounding more where a Walsh-Hadamard transform multiplies by a 1/sqrt(N) that is no power of
    // two. In single that product is part of the one rounding of the result.
    double boundAt(int flag) const;

    // How many random inputs are enough to pool their errors.
    int inputs() const;
    // The outputs that are held against the definition at the given round: all of them, unless that takes too long.
    Chosen outputs(int round) const;
};

inline constexpr int allFlags[] = {DivFwdByN, DivInvByN, DivBySqrtN, NoDivByAny};

std::vector<Transform> complexTransforms();
std::vector<Transform> realForwardTransforms();
std::vector<Transform> realInverseTransforms();
std::vector<Transform> hartleyTransforms();
std::vector<Transform> walshHadamardTransforms();  // each with a buffer and without
std::vector<Transform> dct4Transforms();           // up to the first length with two levels of splits

// The first four families: source, destination and flag; a dispatcher that takes the length.
std::vector<Transform> dftTransforms();
// Those that have a flag and a dispatcher.
std::vector<Transform> flaggedTransforms();
std::vector<Transform> allTransforms();

const char* layoutName(Layout layout);

// The elements of the buffer of each Walsh-Hadamard order: a main area, and after it a scratch area at 12 and 13.
int bufferElements(int order);

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

// A transform ready to be called. The buffer or plan that it needs is kept with it, so that two threads take two.
template <class Element>
using Call = std::function<ZulgStatus(const Element* pSrc, Element* pDst, std::int32_t flag)>;
template <class Element>
Call<Element> callOf(const Transform& transform);
// The same through the dispatcher of its family.
template <class Element>
Call<Element> dispatchedCallOf(const Transform& transform);

}  // namespace test
