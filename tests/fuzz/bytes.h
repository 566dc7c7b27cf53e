// What the harnesses share: a call is made of the fuzzer's bytes, and a harness that is not content aborts.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>

namespace test {

// Takes what a call needs from the bytes; zeros after their end.
class Bytes {
public:
    Bytes(const std::uint8_t* data, std::size_t size) : at(data), left(size) {}

    template <class Number>
    Number take() {
        Number number{};
        const std::size_t count = std::min(left, sizeof number);
        if (count == 0) return number;  // there may be no bytes at all
        std::memcpy(&number, at, count);
        at += count;
        left -= count;
        return number;
    }
    // 0 to count - 1, of one byte or two.
    std::size_t below(std::size_t count) {
        return (count <= 256 ? take<std::uint8_t>() : take<std::uint16_t>()) % count;
    }
    // All that is left, over and over.
    void fill(std::byte* to, std::size_t count) const {
        for (std::size_t i = 0; i < count; ++i) to[i] = left == 0 ? std::byte{} : static_cast<std::byte>(at[i % left]);
    }
    // The same as numbers of moderate size: arbitrary bits are seldom numbers that can be compared.
    template <class Element>
    void fillModerate(Element* to, std::size_t count) const {
        for (std::size_t i = 0; i < count; ++i) {
            const std::uint8_t low = left == 0 ? std::uint8_t{} : at[2 * i % left],
                               high = left == 0 ? std::uint8_t{} : at[(2 * i + 1) % left];
            to[i] = static_cast<Element>(static_cast<std::int16_t>(high << 8 | low)) / 256;
        }
    }
    const std::uint8_t* data() const { return at; }
    std::size_t size() const { return left; }

private:
    const std::uint8_t* at;
    std::size_t left;
};

[[noreturn]] inline void fail(const std::string& of, const char* what) {
    std::fprintf(stderr, "%s: %s\n", of.c_str(), what);
    std::abort();
}

}  // namespace test
