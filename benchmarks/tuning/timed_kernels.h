// What a module of kernels tells tune_times: the routines that it holds.
#pragma once

#include <cstddef>

#include "kernel/kernel.h"

namespace tune {

struct TimedKernel {
    const char* folder;  // of the text: "real_forward_lines"
    const char* family;  // of the kernel: "DFTFwd_RToCCS"
    const char* level;   // "x86_64_v3"
    int length;
    zulg::KernelRoutine<float> single;
    zulg::KernelRoutine<double> wide;
};

// A module exports one by the name timedKernels.
struct TimedKernels {
    const TimedKernel* first;
    std::size_t count;
};

}  // namespace tune
