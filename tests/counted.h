// A number that counts the operations on it, so that a body that runs on such numbers counts its own operations.
#pragma once

namespace test {

struct OperationCounts {
    int additions = 0, subtractions = 0, multiplications = 0, negations = 0;
    bool operator==(const OperationCounts&) const = default;
    int sums() const { return additions + subtractions; }
};

inline OperationCounts operationCounts;

struct Counted {
    long double value = 0;

    Counted() = default;
    Counted(double x) : value(x) {}
    static Counted of(long double x) {
        Counted counted;
        counted.value = x;
        return counted;
    }
};

inline Counted operator+(Counted a, Counted b) { return ++operationCounts.additions, Counted::of(a.value + b.value); }
inline Counted operator-(Counted a, Counted b) {
    return ++operationCounts.subtractions, Counted::of(a.value - b.value);
}
inline Counted operator*(Counted a, Counted b) {
    return ++operationCounts.multiplications, Counted::of(a.value * b.value);
}
inline Counted operator-(Counted a) { return ++operationCounts.negations, Counted::of(-a.value); }

// The same as ports take it; an element in memory is such a number.
struct CountedNumbers {
    using Value = Counted;
    template <class Element>
    static Counted widened(const Counted& place) {
        return place;
    }
    template <class Element>
    static Counted rounded(Counted value) {
        return value;
    }
};

}  // namespace test
