// Digests of what routines return and write, on inputs that come from integers alone, so that they are the same on
// every machine.
//
// Kinds of input: moderate (random numbers around 1, unit vectors), wide (random exponents of 2^-60 to 2^60), zeros (of
// both signs, among ones), extreme (infinities, the largest and the smallest numbers). What is not a number counts as
// one and the same value.
#pragma once

#include <algorithm>
#include <bit>
#include <cstdint>
#include <cstdio>
#include <limits>
#include <string>
#include <vector>

#ifdef _WIN32
#include <windows.h>
#elif !defined(__wasm__)
#include <dlfcn.h>
#endif

#include "include/zulgenpx.h"
#include "tests/exports.h"

namespace test {

// The library whose routines are called.
#ifdef _WIN32
inline HMODULE library;
inline bool load(const char* path) { return (library = LoadLibraryA(path)) != nullptr; }
inline void* find(const std::string& name) { return reinterpret_cast<void*>(GetProcAddress(library, name.c_str())); }
#elif defined(__wasm__)
// tests/module/run.js has loaded it.
inline bool load(const char*) { return true; }
inline void* find(const std::string& name) { return exportedAddress(name); }
#else
inline void* library;
inline bool load(const char* path) { return (library = dlopen(path, RTLD_NOW)) != nullptr; }
inline void* find(const std::string& name) { return dlsym(library, name.c_str()); }
#endif

// FNV-1a over 64 bits.
class Digest {
public:
    void add(const void* data, std::size_t bytes) {
        for (std::size_t i = 0; i < bytes; ++i) {
            state = (state ^ static_cast<const unsigned char*>(data)[i]) * 0x100000001B3;
        }
    }
    template <class Element>
    void addElements(const std::vector<Element>& elements) {
        for (Element element : elements) {
            if (element != element) element = std::numeric_limits<Element>::quiet_NaN();
            add(&element, sizeof element);
        }
    }
    void addStatus(ZulgStatus status) { add(&status, sizeof status); }
    std::uint64_t value() const { return state; }

private:
    std::uint64_t state = 0xCBF29CE484222325;
};

// Random bits: splitmix64.
class Bits {
public:
    explicit Bits(std::uint64_t seed) : state(seed) {}
    std::uint64_t next() {
        std::uint64_t z = state += 0x9E3779B97F4A7C15;
        z = (z ^ z >> 30) * 0xBF58476D1CE4E5B9;
        z = (z ^ z >> 27) * 0x94D049BB133111EB;
        return z ^ z >> 31;
    }

private:
    std::uint64_t state;
};

enum class Kind { Moderate, Wide, Zeros, Extreme };
constexpr struct {
    Kind kind;
    const char* name;
} kinds[] = {{Kind::Moderate, "moderate"}, {Kind::Wide, "wide"}, {Kind::Zeros, "zeros"}, {Kind::Extreme, "extreme"}};

// A number with a random sign and fraction, and an exponent from `lowest` on, `count` of them.
template <class Element>
Element randomElement(Bits& bits, int lowest, unsigned count) {
    const std::uint64_t random = bits.next();
    if constexpr (sizeof(Element) == 8) {
        const std::uint64_t exponent = static_cast<std::uint64_t>(1023 + lowest) + (random >> 53) % count;
        return std::bit_cast<double>((random & 0x800FFFFFFFFFFFFF) | exponent << 52);
    } else {
        const std::uint32_t exponent =
            static_cast<std::uint32_t>(127 + lowest) + static_cast<std::uint32_t>(random >> 53) % count;
        return std::bit_cast<float>((static_cast<std::uint32_t>(random) & 0x807FFFFF) | exponent << 23);
    }
}

template <class Element>
Element elementOf(Kind kind, Bits& bits) {
    using Limits = std::numeric_limits<Element>;
    switch (kind) {
        case Kind::Moderate: return randomElement<Element>(bits, -3, 4);
        case Kind::Wide: return randomElement<Element>(bits, -60, 120);
        case Kind::Zeros: {
            const Element values[] = {Element{0}, -Element{0}, Element{1}, -Element{1}};
            return values[bits.next() >> 13 & 3];
        }
        case Kind::Extreme: break;
    }
    const Element values[] = {Limits::infinity(), -Limits::infinity(), Limits::max(),        -Limits::max(),
                              Limits::min(),      -Limits::min(),      Limits::denorm_min(), Element{1}};
    // Most are ordinary: an output of infinities alone tells little.
    const std::uint64_t random = bits.next() >> 7;
    return random % 16 == 0 ? values[random >> 4 & 7] : randomElement<Element>(bits, -3, 4);
}

constexpr std::size_t guardElements = 8;
constexpr int randomInputs = 5;  // of each kind; those after them are unit vectors, where the kind is moderate

// The digests of one name: one for each kind of input.
class NameDigests {
public:
    // Calls call(source, destination, number of the input) on several inputs, apart and in place.
    template <class Element, class Call>
    void feed(std::size_t elements, int inputs, const Call& call) {
        for (const auto& [kind, kindName] : kinds) {
            Digest& digest = digests[static_cast<int>(kind)];
            Bits bits(0x5EED + static_cast<std::uint64_t>(kind));
            for (int input = 0; input < inputs; ++input) {
                std::vector<Element> source(elements + guardElements);
                for (Element& x : source) x = elementOf<Element>(kind, bits);
                if (kind == Kind::Moderate && input >= randomInputs) {
                    std::fill(source.begin(), source.end(), Element{0});
                    source[static_cast<std::size_t>(input - randomInputs) % elements] = 1;
                }
                std::vector<Element> destination(elements + guardElements, Element{77});
                digest.addStatus(call(source.data(), destination.data(), input));
                digest.addElements(destination);
                digest.addStatus(call(source.data(), source.data(), input));
                digest.addElements(source);
            }
        }
    }

    // A status and what comes with it, which no kind of input has a part in.
    void addToAll(ZulgStatus status, std::int32_t number) {
        for (Digest& digest : digests) digest.addStatus(status), digest.add(&number, sizeof number);
    }

    void print(const std::string& name) const {
        for (const auto& [kind, kindName] : kinds) {
            std::printf("%s %s %016llx\n", name.c_str(), kindName,
                        static_cast<unsigned long long>(digests[static_cast<int>(kind)].value()));
        }
    }

private:
    Digest digests[4];
};

}  // namespace test
