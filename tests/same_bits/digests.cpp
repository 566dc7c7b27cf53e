// digests LIBRARY [PATTERN]: calls every export whose name contains PATTERN and prints a digest of what it returns and
// writes, one line for each kind of input:
//
//     zulgDFTFwd_CToC_15_64fc moderate 1f3b...
//
// Two libraries that print the same lines give the same bits. Registers of the x87 round to double here, which makes
// its results those of other machines wherever no result is too large or too small for a double.
#include <cstdint>
#include <cstdio>
#include <string>
#include <vector>

#include "include/zulgenpx.h"
#include "tests/exports.h"
#include "tests/same_bits/digest.h"
#include "tests/transforms/float_state.h"

namespace {

using test::find, test::Kernel, test::load, test::NameDigests, test::randomInputs;

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
