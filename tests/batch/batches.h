// The exported routines of the batch library, as jobs: what does one transform, and what does a batch of it.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "batch/checks.h"
#include "include/zulgenpx_batch.h"
#include "tests/elements.h"
#include "tests/exports.h"

namespace test {

using zulg::Shape;

// A routine of the batch library, which is beside the main library.
void* batchAddress(const std::string& name);

template <class Element>
using Batch = ZulgStatus (*)(const Element* pSrc, std::int64_t srcStep, std::int64_t srcDistance, Element* pDst,
                             std::int64_t dstStep, std::int64_t dstDistance, std::int32_t length, std::int32_t flag,
                             std::int64_t count);
template <class Element>
using BatchWht = ZulgStatus (*)(const Element* pSrc, std::int64_t srcStep, std::int64_t srcDistance, Element* pDst,
                                std::int64_t dstStep, std::int64_t dstDistance, std::int32_t order, std::int32_t flag,
                                std::int64_t count, Element* pBuffer);
template <class Element, class Plan>
using BatchDct4 = ZulgStatus (*)(const Element* pSrc, std::int64_t srcStep, std::int64_t srcDistance, Element* pDst,
                                 std::int64_t dstStep, std::int64_t dstDistance, Plan* plan, std::int64_t count,
                                 Element* pBuffer);
using BatchSize = ZulgStatus (*)(std::int32_t, std::int32_t*);

template <class Routine>
Routine batchExported(const std::string& name) {
    return reinterpret_cast<Routine>(batchAddress(name));
}

// A family of the DFT or Hartley transforms.
struct BatchFamily {
    const char* name;
    int width;  // numbers to an element

    template <class Element>
    std::string suffix() const {
        return ElementNames::GetName<Element>(0) + (width == 2 ? "c" : "");
    }
    bool is(const char* other) const { return std::string(name) == other; }
    std::int64_t read(int length) const { return is("DFTInv_CCSToR") ? length + 1 : length; }
    std::int64_t written(int length) const { return is("DFTFwd_RToCCS") ? length / 2 * 2 + 2 : length; }
};

inline constexpr BatchFamily batchFamilies[] = {{"DFTFwd_CToC", 2},    {"DFTInv_CToC", 2},    {"DFTFwd_RToCCS", 1},
                                                {"DFTFwd_RToPack", 1}, {"DFTFwd_RToPerm", 1}, {"DFTInv_CCSToR", 1},
                                                {"DFTInv_PackToR", 1}, {"DFTInv_PermToR", 1}, {"Hartley", 1}};

// What a batch is checked with. Shapes are in elements of `width` numbers.
template <class Element>
struct Job {
    int width;
    std::int64_t read, written;
    std::function<ZulgStatus(const Element*, Element*)> one;
    std::function<ZulgStatus(const Element*, Shape, Element*, Shape, std::int64_t)> batch;
};

template <class Element>
Job<Element> jobOf(const BatchFamily& family, int length, int flag) {
    const auto name = family.name + ("_" + family.template suffix<Element>());
    const auto one = exported<Dispatcher<Element>>("zulg" + name);
    const auto batch = batchExported<Batch<Element>>("zulgBatch" + name);
    return {family.width, family.read(length), family.written(length),
            [=](const Element* from, Element* to) { return one(from, to, length, flag); },
            [=](const Element* from, Shape source, Element* to, Shape destination, std::int64_t count) {
                return batch(from, source.step, source.distance, to, destination.step, destination.distance, length,
                             flag, count);
            }};
}

}  // namespace test
