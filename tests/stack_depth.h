// How much stack a call takes: the stack below is painted, the call is made, and the deepest byte that has lost its
// paint is looked for. Bytes that are reserved and never written do not count.
#pragma once

#include <cstddef>
#include <cstdint>

namespace test {

inline constexpr std::size_t paintedStackBytes = 512 * 1024;
inline constexpr unsigned char stackPaint = 0xC5;

// Paints what lies below the caller's frame. Returns the lowest painted address.
[[gnu::noinline]] inline std::uintptr_t paintStack() {
    auto* const region = static_cast<volatile unsigned char*>(__builtin_alloca(paintedStackBytes));
    for (std::size_t i = 0; i < paintedStackBytes; ++i) region[i] = stackPaint;
    return reinterpret_cast<std::uintptr_t>(region);
}

// Bytes below the caller's frame that `call` has written. The frame of this routine is among them: about 100 bytes,
// which is what an empty call gives.
template <class Call>
[[gnu::noinline]] std::ptrdiff_t stackDepth(const Call& call) {
    const auto top = reinterpret_cast<std::uintptr_t>(__builtin_frame_address(0));
    std::uintptr_t place = paintStack();
    call();
    while (place < top && *reinterpret_cast<const volatile unsigned char*>(place) == stackPaint) ++place;
    return static_cast<std::ptrdiff_t>(top - place);
}

}  // namespace test
