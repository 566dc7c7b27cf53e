// The fixture of the suites over transforms: each test is one transform, on the element type of its name.
#pragma once

#include <gtest/gtest.h>

#include <cstddef>
#include <string>
#include <vector>

#include "tests/elements.h"
#include "tests/transforms/transform.h"

namespace test {

inline constexpr std::byte pattern{0xA5};

// One transform, ready to be called, and its arrays.
template <class Element>
class Subject {
public:
    Subject(const Transform& of, std::mt19937& from) : transform(of), random(from) {}

    static constexpr double unit = unitOf<Element>;

    std::vector<Element> randomSource() { return randomElements<Element>(transform.sourceElements, random); }
    std::vector<Element> zeroSource() const { return array(transform.sourceElements, 0); }
    std::vector<Element> destination(Element of = 0) const { return array(transform.destinationElements, of); }

    // One call into fresh, separate arrays.
    std::vector<Element> run(const std::vector<Element>& source, int flag) const {
        std::vector<Element> result = destination();
        EXPECT_EQ(call(source.data(), result.data(), flag), StatusOk);
        return result;
    }

    Element scale(int flag) const { return storedScale<Element>(transform, flag); }

    const Transform& transform;
    const Call<Element> call = callOf<Element>(transform);

private:
    static std::vector<Element> array(int elements, Element of) {
        return std::vector<Element>(static_cast<std::size_t>(elements), of);
    }

    std::mt19937& random;
};

class KernelTest : public testing::TestWithParam<Transform> {
protected:
    const Transform& transform = GetParam();
    Seed seed;

    template <class Body>
    void withSubject(const Body& body) {
        if (transform.isSingle()) {
            Subject<float> subject(transform, seed.random);
            body(subject);
        } else {
            Subject<double> subject(transform, seed.random);
            body(subject);
        }
    }
};

}  // namespace test
