// One plan in two threads at one time, which the header forbids above 32 points: each run writes vectors inside the
// plan. The thread sanitizer reports it. With a plan for each thread there is nothing to report. shared_plan shared|own
#include <cstdio>
#include <string_view>
#include <thread>
#include <vector>

#include "include/zulgenpx.h"

namespace {

constexpr std::int32_t length = 256;

ZulgDCT4Plan_64f* newPlan() {
    ZulgDCT4Plan_64f* plan = nullptr;
    return zulgDCT4InitAlloc_64f(&plan, length) == StatusOk ? plan : nullptr;
}

void runOften(ZulgDCT4Plan_64f* plan) {
    std::vector<double> x(length, 1), y(length);
    for (int i = 0; i < 200; ++i) zulgDCT4_64f(x.data(), y.data(), plan);
}

}  // namespace

int main(int argc, char** argv) {
    const bool isShared = argc > 1 && std::string_view(argv[1]) == "shared";
    ZulgDCT4Plan_64f* const first = newPlan();
    ZulgDCT4Plan_64f* const second = isShared ? first : newPlan();
    if (first == nullptr || second == nullptr) return std::puts("there is no plan"), 1;
    std::thread one(runOften, first), other(runOften, second);
    one.join();
    other.join();
    if (second != first) zulgDCT4Free_64f(second);
    zulgDCT4Free_64f(first);
    std::puts("both threads are done");
}
