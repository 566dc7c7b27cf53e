// One misuse of the library: misuse CASE. The checked library must stop it. Ends with 0 if nothing does, and with 2 if
// there is no such case; without a case it prints all of them.
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <map>
#include <string>
#include <thread>
#include <vector>

#include "zulgenpx.h"

namespace {

bool coreRefuses = false;

constexpr int points = 65536;

template <class Plan>
Plan* planOf(ZulgStatus (*init)(Plan**, int32_t, uint8_t*), ZulgStatus (*getSize)(int32_t, int32_t*), int length,
             std::vector<uint8_t>& block) {
    int32_t bytes;
    if (getSize(length, &bytes) != StatusOk) std::exit(3);
    block.resize(static_cast<std::size_t>(bytes));
    Plan* plan;
    if (init(&plan, length, block.data()) != StatusOk) std::exit(3);
    return plan;
}

ZulgDCT4Plan_32f* singlePlan(int length, std::vector<uint8_t>& block) {
    return planOf(zulgDCT4Init_32f, zulgDCT4GetSize_32f, length, block);
}

// The same call in two threads, so often that two of them meet.
template <class Call>
void inTwoThreads(const Call& call) {
    const auto many = [&](int thread) {
        for (int i = 0; i < 20000; ++i) call(thread);
    };
    std::thread other(many, 1);
    many(0);
    other.join();
}

std::vector<float> source(points), destination(points), more(points);
std::vector<double> wideSource(points), wideDestination(points);
std::vector<uint8_t> block, otherBlock;
ZulgDCT4Plan_32f* plan;
int32_t bytes;

const std::map<std::string, void (*)()> cases = {
    {"one point too many", [] { zulgDCT4Init_32f(&plan, 9, block.data()); }},
    {"the size of one point too many", [] { zulgDCT4GetSize_64f(33, &bytes); }},
    {"one point too many of InitAlloc", [] { zulgDCT4InitAlloc_32f(&plan, 65537); }},
    {"a size that wraps", [] { zulgDCT4GetSize_32f(1 << 30, &bytes); }},
    {"a refused length", [] { zulgDCT4Init_32f(&plan, 100, block.data()); }},
    {"a plan of the other type",
     [] {
         plan = singlePlan(64, block);
         auto* const wide = reinterpret_cast<ZulgDCT4Plan_64f*>(plan);
         zulgDCT4_64f(wideSource.data(), wideDestination.data(), wide);
     }},
    {"a moved plan",
     [] {
         plan = singlePlan(64, block);
         otherBlock = block;
         const auto distance = reinterpret_cast<uint8_t*>(plan) - block.data();
         zulgDCT4_32f(source.data(), destination.data(),
                      reinterpret_cast<ZulgDCT4Plan_32f*>(otherBlock.data() + distance));
     }},
    {"a freed plan",
     [] {
         if (zulgDCT4InitAlloc_32f(&plan, 64) != StatusOk || zulgDCT4Free_32f(plan) != StatusOk) std::exit(3);
         zulgDCT4_32f(source.data(), destination.data(), plan);
     }},
    {"a plan freed twice",
     [] {
         if (zulgDCT4InitAlloc_32f(&plan, 64) != StatusOk || zulgDCT4Free_32f(plan) != StatusOk) std::exit(3);
         zulgDCT4Free_32f(plan);
     }},
    {"a freed plan of Init", [] { zulgDCT4Free_32f(singlePlan(64, block)); }},
    {"a block that is used anew",
     [] {
         plan = singlePlan(2048, block);
         ZulgDCT4Plan_32f* younger;
         if (zulgDCT4Init_32f(&younger, 64, block.data() + 64) != StatusOk) std::exit(3);
         zulgDCT4_32f(source.data(), destination.data(), plan);
     }},
    {"a plan in two threads",
     [] {
         plan = singlePlan(points, block);
         inTwoThreads(
             [](int thread) { zulgDCT4_32f(source.data(), thread == 0 ? destination.data() : more.data(), plan); });
     }},
    {"a destination inside the plan",
     [] {
         plan = singlePlan(2048, block);
         zulgDCT4_32f(source.data(), reinterpret_cast<float*>(block.data() + 128), plan);
     }},
    {"a buffer over the destination",
     [] { zulgWHT_8_32f(source.data(), destination.data(), NoDivByAny, destination.data() + 200); }},
    {"a buffer over the source", [] { zulgWHT_32f(source.data(), destination.data(), 8, NoDivByAny, source.data()); }},
    {"a buffer in two threads",
     [] {
         static std::vector<float> buffer(points);
         inTwoThreads([](int thread) {
             zulgWHT_13_32f(source.data(), thread == 0 ? destination.data() : more.data(), NoDivByAny, buffer.data());
         });
     }},
    {"no memory for a buffer",
     [] {
         coreRefuses = true;
         zulgWHT_13_32f(source.data(), destination.data(), NoDivByAny, nullptr);
     }},
    {"no place for a size", [] { zulgDCT4GetSize_32f(64, nullptr); }},
    {"no place for the size of a buffer", [] { zulgWHTGetBufferSize_64f(8, nullptr); }},
};

// What is right: the checked library must not stop here.
int rightCalls() {
    bool isRight = true;
    const auto expect = [&](ZulgStatus found, ZulgStatus due) { isRight = isRight && found == due; };
    expect(zulgDFTFwd_CToC_32fc(nullptr, nullptr, 1, 3), StatusSizeError);
    expect(zulgHartley_15_32f(nullptr, destination.data(), 3), StatusNullPointer);
    expect(zulgHartley_15_32f(source.data(), source.data() + 1, NoDivByAny), StatusOk);
    expect(zulgDFTFwd_RToCCS_15_64f(wideSource.data(), wideDestination.data(), 3), StatusFlagError);
    expect(zulgWHT_12_64f(wideSource.data(), wideDestination.data(), DivBySqrtN, nullptr), StatusOk);
    expect(zulgWHT_7_32f(source.data(), source.data(), DivFwdByN, source.data()), StatusOk);  // which is ignored
    expect(zulgDCT4GetSize_32f(100, nullptr), StatusSizeError);
    expect(zulgDCT4InitAlloc_32f(&plan, 100), StatusSizeError);
    expect(zulgDCT4Init_32f(nullptr, 100, nullptr), StatusNullPointer);
    expect(zulgDCT4Free_32f(nullptr), StatusNullPointer);
    plan = singlePlan(32, block);
    std::thread other([] { zulgDCT4_32f(source.data(), destination.data(), plan); });  // a short plan may be shared
    expect(zulgDCT4_32f(source.data(), more.data(), plan), StatusOk);
    other.join();
    expect(zulgDCT4InitAlloc_32f(&plan, 2048), StatusOk);
    expect(zulgDCT4_32f(source.data(), source.data(), plan), StatusOk);
    expect(zulgDCT4Free_32f(plan), StatusOk);
    return isRight ? 0 : 1;
}

}  // namespace

// In the place of the core library's.
extern "C" void* zulMalloc(uint32_t count) {
    return coreRefuses ? nullptr : std::aligned_alloc(32, (count + 31) / 32 * 32);
}
extern "C" void zulFree(void* memory) { std::free(memory); }

int main(int argc, char** argv) {
    block.resize(1 << 16);
    if (argc == 1) {
        for (const auto& [name, misuse] : cases) std::puts(name.c_str());
        return rightCalls();
    }
    const auto found = cases.find(argv[1]);
    if (found == cases.end()) return 2;
    found->second();
    return 0;
}
