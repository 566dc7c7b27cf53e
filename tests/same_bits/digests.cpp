// digests LIBRARY [PATTERN]: calls every export whose name contains PATTERN and prints a digest of what it returns and
// writes, one line for each kind of input:
//
//     zulgDFTFwd_CToC_15_64fc moderate 1f3b...
//
// Two libraries that print the same lines give the same bits. Inputs come from integers alone, so that they are the
// same on every machine. Registers of the x87 round to double here, which makes its results those of other machines
// wherever no result is too large or too small for a double.
//
// Kinds of input: moderate (random numbers around 1, unit vectors), wide (random exponents of 2^-60 to 2^60), zeros (of
// both signs, among ones), extreme (infinities, the largest and the smallest numbers). What is not a number counts as
// one and the same value.
#include <bit>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <iostream>
#include <limits>
#include <string>
#include <vector>

#ifdef _WIN32
#include <windows.h>
#else
#include <dlfcn.h>
#endif

#include "include/zulgenpx.h"
#include "tests/exports.h"
#include "tests/transforms/float_state.h"

namespace {

using test::Kernel;

#ifdef _WIN32
HMODULE library;
bool load(const char* path) { return (library = LoadLibraryA(path)) != nullptr; }
void* find(const std::string& name) { return reinterpret_cast<void*>(GetProcAddress(library, name.c_str())); }
#else
void* library;
bool load(const char* path) { return (library = dlopen(path, RTLD_NOW)) != nullptr; }
void* find(const std::string& name) { return dlsym(library, name.c_str()); }
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

// The routines whose names contain this are called.
std::string pattern;

// Calls feed(digests, routine) for the export, if it is asked for, and prints what comes of it.
template <class Routine, class Feed>
void digestOf(const std::string& name, const Feed& feed, const std::string& remark = "") {
    if (name.find(pattern) == std::string::npos) return;
    const auto address = reinterpret_cast<Routine>(find(name));
    if (address == nullptr) {
        std::printf("%s is missing\n", name.c_str());
        return;
    }
    NameDigests digests;
    feed(digests, address);
    digests.print(name + remark);
}

int flagOf(int input) {
    constexpr int flags[] = {8, 1, 2, 4, 3};  // and one that is refused
    return flags[input % 5];
}

// One family of transforms by length. `width` elements go in, and come out, for each point, and two more in CCS.
template <class Element>
void digestTransforms(const std::string& stem, const std::string& suffix, int width) {
    const auto elements = [&](int length) { return static_cast<std::size_t>(width * length + 2); };
    for (int length = 2; length <= 64; ++length) {
        digestOf<Kernel<Element>>(
            stem + "_" + std::to_string(length) + suffix, [&](NameDigests& digests, Kernel<Element> kernel) {
                digests.feed<Element>(elements(length), randomInputs + width * length,
                                      [&](const Element* source, Element* destination, int input) {
                                          return kernel(source, destination, flagOf(input));
                                      });
            });
    }
    using Dispatcher = test::Dispatcher<Element>;
    digestOf<Dispatcher>(stem + suffix, [&](NameDigests& digests, Dispatcher dispatcher) {
        for (int length = 1; length <= 65; ++length) {
            digests.feed<Element>(elements(length), randomInputs,
                                  [&](const Element* source, Element* destination, int input) {
                                      return dispatcher(source, destination, length, flagOf(input));
                                  });
        }
    });
}

template <class Element>
void digestWht(const std::string& suffix) {
    using Kernel = ZulgStatus(ZULG_CALL*)(const Element*, Element*, std::int32_t, Element*);
    using Dispatcher = ZulgStatus(ZULG_CALL*)(const Element*, Element*, std::int32_t, std::int32_t, Element*);
    using BufferSize = ZulgStatus(ZULG_CALL*)(std::int32_t, std::int32_t*);
    std::vector<Element> buffer(1 << 14);
    for (int order = 1; order <= 13; ++order) {
        const auto elements = static_cast<std::size_t>(1) << order;
        const auto feed = [&](NameDigests& digests, Kernel kernel) {
            digests.feed<Element>(elements, randomInputs + 8,
                                  [&](const Element* source, Element* destination, int input) {
                                      return kernel(source, destination, flagOf(input), buffer.data());
                                  });
        };
        digestOf<Kernel>("zulgWHT_" + std::to_string(order) + suffix, feed);
    }
    digestOf<Dispatcher>("zulgWHT" + suffix, [&](NameDigests& digests, Dispatcher dispatcher) {
        for (int order = 0; order <= 14; ++order) {
            digests.feed<Element>(std::size_t{1} << order, randomInputs,
                                  [&](const Element* source, Element* destination, int input) {
                                      return dispatcher(source, destination, order, flagOf(input), buffer.data());
                                  });
        }
    });
    digestOf<BufferSize>("zulgWHTGetBufferSize" + suffix, [&](NameDigests& digests, BufferSize bufferSize) {
        for (int order = -1; order <= 15; ++order) {
            std::int32_t size = 77;
            const ZulgStatus status = bufferSize(order, &size);
            digests.addToAll(status, size);
        }
    });
}

// A length of a DCT-IV has a line of its own; those above 32 points hang on the sines and cosines of the machine.
template <class Element>
void digestDct4(const std::string& suffix) {
    struct Plan;
    using Run = ZulgStatus(ZULG_CALL*)(const Element*, Element*, Plan*);
    using Init = ZulgStatus(ZULG_CALL*)(Plan**, std::int32_t, std::uint8_t*);
    using InitAlloc = ZulgStatus(ZULG_CALL*)(Plan**, std::int32_t);
    using Free = ZulgStatus(ZULG_CALL*)(Plan*);
    using GetSize = ZulgStatus(ZULG_CALL*)(std::int32_t, std::int32_t*);
    const auto getSize = reinterpret_cast<GetSize>(find("zulgDCT4GetSize" + suffix));
    const auto run = reinterpret_cast<Run>(find("zulgDCT4" + suffix));
    const auto init = reinterpret_cast<Init>(find("zulgDCT4Init" + suffix));
    digestOf<GetSize>("zulgDCT4GetSize" + suffix, [&](NameDigests& digests, GetSize size) {
        for (std::int32_t length = -5; length < 5000; ++length) {
            std::int32_t bytes = 77;
            const ZulgStatus status = size(length, &bytes);
            digests.addToAll(status, bytes);
        }
    });
    const auto feedRuns = [&](NameDigests& digests, int length, Plan* plan) {
        digests.feed<Element>(
            static_cast<std::size_t>(length), randomInputs + 4,
            [&](const Element* source, Element* destination, int) { return run(source, destination, plan); });
    };
    for (int length = 2; length <= 131072; length *= 2) {
        digestOf<Init>(
            "zulgDCT4Init" + suffix,
            [&](NameDigests& digests, Init) {
                std::int32_t bytes = 0;
                getSize(length, &bytes);
                std::vector<std::uint8_t> block(static_cast<std::size_t>(bytes) + 32);
                Plan* plan = nullptr;
                digests.addToAll(
                    init(&plan, length, block.data() + (32 - reinterpret_cast<std::uintptr_t>(block.data()) % 32) % 32),
                    bytes);
                feedRuns(digests, length, plan);
            },
            " " + std::to_string(length));
    }
    digestOf<InitAlloc>("zulgDCT4InitAlloc" + suffix, [&](NameDigests& digests, InitAlloc initAlloc) {
        const auto release = reinterpret_cast<Free>(find("zulgDCT4Free" + suffix));
        for (int length : {2, 4, 5, 8, 12, 16, 32}) {
            Plan* plan = nullptr;
            const ZulgStatus status = initAlloc(&plan, length);
            digests.addToAll(status, length);
            if (status != StatusOk) continue;
            feedRuns(digests, length, plan);
            digests.addToAll(release(plan), length);
        }
    });
}

void digestVersion() {
    using GetVersion = const LibVersion*(ZULG_CALL*)();
    digestOf<GetVersion>("zulgenGetLibVersion", [](NameDigests& digests, GetVersion getVersion) {
        const LibVersion& version = *getVersion();
        digests.addToAll(version.major, version.minor);
    });
}

}  // namespace

int main(int argc, char** argv) {
    if (argc < 2 || argc > 3) {
        std::fputs("usage: digests LIBRARY [PATTERN]\n", stderr);
        return 2;
    }
    if (!load(argv[1])) {
        std::fprintf(stderr, "digests: %s does not load\n", argv[1]);
        return 1;
    }
    pattern = argc == 3 ? argv[2] : "";
    const test::DoublePrecisionRegisters asElsewhere;
    for (const char* family : {"zulgDFTFwd_CToC", "zulgDFTInv_CToC"}) {
        digestTransforms<float>(family, "_32fc", 2);
        digestTransforms<double>(family, "_64fc", 2);
    }
    for (const char* family : {"zulgDFTFwd_RToCCS", "zulgDFTFwd_RToPack", "zulgDFTFwd_RToPerm", "zulgDFTInv_CCSToR",
                               "zulgDFTInv_PackToR", "zulgDFTInv_PermToR", "zulgHartley"}) {
        digestTransforms<float>(family, "_32f", 1);
        digestTransforms<double>(family, "_64f", 1);
    }
    digestWht<float>("_32f");
    digestWht<double>("_64f");
    digestDct4<float>("_32f");
    digestDct4<double>("_64f");
    digestVersion();
    return 0;
}
