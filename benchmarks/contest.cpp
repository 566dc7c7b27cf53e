#include "benchmarks/contest.h"

#include <algorithm>
#include <random>

namespace bench {
namespace {

template <class Element>
Element* aligned(int count) {
    constexpr std::size_t line = 64;
    const std::size_t bytes = (static_cast<std::size_t>(count) * sizeof(Element) + line - 1) / line * line;
    return static_cast<Element*>(std::aligned_alloc(line, bytes));
}

const char* name(Transform transform) {
    switch (transform) {
        case Transform::ComplexForward: return "complex_forward";
        case Transform::ComplexInverse: return "complex_inverse";
        case Transform::RealForward: return "real_forward";
        case Transform::RealInverse: return "real_inverse";
        case Transform::PackedForward: return "packed_forward";
        case Transform::PackedInverse: return "packed_inverse";
        case Transform::PermutedForward: return "permuted_forward";
        case Transform::PermutedInverse: return "permuted_inverse";
        case Transform::Hartley: return "hartley";
        case Transform::Dct4: return "dct4";
        case Transform::WalshHadamard: return "wht";
    }
    return "";
}

// How many numbers the source and the destination of a transform have.
struct Counts {
    int source, destination;
};
Counts counts(Transform transform, int size) {
    const int half = size / 2 * 2 + 2;
    switch (transform) {
        case Transform::ComplexForward:
        case Transform::ComplexInverse: return {2 * size, 2 * size};
        case Transform::RealForward: return {size, half};
        case Transform::RealInverse: return {half, size};
        default: return {size, size};
    }
}

bool hasOtherOrder(Transform transform, const Result& half) {
    return (transform == Transform::PermutedForward || transform == Transform::PermutedInverse) && half.size() % 2 == 0;
}

}  // namespace

Result packedToOurs(Transform transform, Result packed) {
    if (hasOtherOrder(transform, packed)) std::rotate(packed.begin() + 1, packed.end() - 1, packed.end());
    return packed;
}

Result oursToPacked(Transform transform, Result ours) {
    if (hasOtherOrder(transform, ours)) std::rotate(ours.begin() + 1, ours.begin() + 2, ours.end());
    return ours;
}

int& chosenCopy() {
    static int copy = 0;
    return copy;
}

template <class Element>
Arrays<Element>::Arrays(int sources, int destinations)
    : sourceCount(sources),
      destinationCount(destinations),
      sourceOwner(aligned<Element>(sources), &std::free),
      destinationOwner(aligned<Element>(destinations), &std::free),
      source(sourceOwner.get()),
      destination(destinationOwner.get()) {}

template <class Element>
void Arrays<Element>::fill() const {
    std::mt19937 random(1);
    std::normal_distribution<double> normal;
    for (int i = 0; i < sourceCount; ++i) source[i] = static_cast<Element>(normal(random));
    for (int i = 0; i < destinationCount; ++i) destination[i] = 0;
}

template <class Element>
Field<Element>::Field(const std::string& prefix, Transform what, int points, int transforms, bool beside)
    : transform(what), size(points), count(transforms), areBeside(beside) {
    const Counts of = counts(what, points);
    arrays = std::make_shared<Arrays<Element>>(of.source * count, of.destination * count);
    const std::string element = sizeof(Element) == 8 ? "double" : "single";
    contest.name = prefix + name(what) + "/" + element + "/" + std::to_string(points);
    contest.fill = [arrays = arrays] { arrays->fill(); };
}

template <class Element>
std::function<Result()> Field<Element>::destination(double factor) const {
    return [arrays = arrays, factor] {
        Result values(arrays->destination, arrays->destination + arrays->destinationCount);
        for (double& value : values) value *= factor;
        return values;
    };
}

template struct Arrays<float>;
template struct Arrays<double>;
template struct Field<float>;
template struct Field<double>;

}  // namespace bench
