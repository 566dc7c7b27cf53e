// A C++ program with a plan of the DCT-IV and a Walsh-Hadamard transform without a buffer, which take memory from the
// core library. It ends with the code 42.
#include <array>

#include "zulgenpx.h"

int main() {
    std::array<float, 256> x{}, y{}, z{};
    x[3] = 1;
    ZulgDCT4Plan_32f* plan = nullptr;
    if (zulgDCT4InitAlloc_32f(&plan, 256) != StatusOk) return 1;
    if (zulgDCT4_32f(x.data(), y.data(), plan) != StatusOk) return 2;
    if (zulgDCT4_32f(y.data(), z.data(), plan) != StatusOk) return 2;
    if (zulgDCT4Free_32f(plan) != StatusOk) return 3;
    if (z[3] < 127.9f || z[3] > 128.1f) return 4;
    if (zulgWHT_8_32f(x.data(), y.data(), NoDivByAny, nullptr) != StatusOk) return 5;
    return y[0] == 1 && y[1] == -1 && y[4] == 1 ? 42 : 6;
}
