// How much stack a call takes. The stack below is painted, the call is made, and the deepest byte without its paint is
// found. Bytes that are reserved and never written do not count.
#pragma once

#include <cstddef>
#include <cstdint>

namespace test {

inline constexpr std::size_t paintedStackBytes = 512 * 1024;
inline constexpr unsigned char stackPaint = 0xC5;

// Paints what is below the caller's stack frame. Returns the lowest painted address.
[[gnu::noinline]] inline std::uintptr_t paintStack() {
    auto* const region = static_cast<volatile unsigned char*>(__builtin_alloca(paintedStackBytes));
    for (std::size_t i = 0; i < paintedStackBytes; ++i) region[i] = stackPaint;
    return reinterpret_cast<std::uintptr_t>(region);
}

// Makes the call. Returns the address of its own stack frame, below which the call's begins.
template <class Call>
[[gnu::noinline]] std::uintptr_t frameOfCaller(const Call& call) {
    call();
    return reinterpret_cast<std::uintptr_t>(__builtin_frame_address(0));
}

// The bytes that `call` has written below the stack frame of the routine that makes it. Registers which that routine
// saves are among them: an empty call gives less than 100 bytes.
template <class Call>
[[gnu::noinline]] std::ptrdiff_t stackDepth(const Call& call) {
    std::uintptr_t place = paintStack();
    const std::uintptr_t top = frameOfCaller(call);
    while (place < top && *reinterpret_cast<const volatile unsigned char*>(place) == stackPaint) ++place;
    return static_cast<std::ptrdiff_t>(top - place);
}

}  // namespace test
