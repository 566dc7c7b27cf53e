// The kernels of one target as plain addresses, so that a program can hold those of two.
#pragma once

#include <cstdint>
#include <vector>

namespace test {

template <class Element>
struct NamedKernel {
    const char* name;
    int elements;
    std::int32_t (*run)(const Element* pSrc, Element* pDst, std::int32_t flag);
    const void* address;  // of the kernel itself, which `run` calls
};

std::vector<NamedKernel<float>> ownSingles();
std::vector<NamedKernel<double>> ownDoubles();
std::vector<NamedKernel<float>> plainSingles();
std::vector<NamedKernel<double>> plainDoubles();

}  // namespace test
