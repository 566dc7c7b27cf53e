// What the load entry leaves in the slots. Loaded libraries are read in memory as the system has them: the section of
// slots is found through the file's headers, and the system is asked who may write to it.
#include <gtest/gtest.h>
#include <windows.h>

#include <cstdint>
#include <cstring>
#include <string>
#include <vector>

namespace test {
namespace {

using Words = std::vector<std::uintptr_t>;

// A loaded library.
class Image {
public:
    Image() = default;
    explicit Image(const std::string& name) : base(reinterpret_cast<const std::byte*>(LoadLibraryA(name.c_str()))) {}

    bool isLoaded() const { return base != nullptr; }

    struct Section {
        const std::byte* start;
        std::size_t bytes;
        bool holds(std::uintptr_t address) const { return address - reinterpret_cast<std::uintptr_t>(start) < bytes; }
    };
    Section section(const char* name) const {
        const IMAGE_NT_HEADERS* const headers = ntHeaders();
        const IMAGE_SECTION_HEADER* const first = IMAGE_FIRST_SECTION(headers);
        for (int i = 0; i < headers->FileHeader.NumberOfSections; ++i) {
            if (std::strncmp(reinterpret_cast<const char*>(first[i].Name), name, sizeof first[i].Name) == 0) {
                return {base + first[i].VirtualAddress, first[i].Misc.VirtualSize};
            }
        }
        return {nullptr, 0};
    }
    std::uintptr_t loadedAt() const { return reinterpret_cast<std::uintptr_t>(base); }

    // The preferred address of a copy of its file is taken.
    Image moved(const std::string& name) const {
        const std::string copy = "moved-" + name;
        CopyFileA(name.c_str(), copy.c_str(), FALSE);
        return Image(copy);
    }

    // Where a slot is that an exported entry jumps through: jmp *distance(%rip).
    const std::byte* slotOf(const std::string& name) const {
        const auto module = reinterpret_cast<HMODULE>(const_cast<std::byte*>(base));
        const auto* const entry = reinterpret_cast<const std::byte*>(GetProcAddress(module, name.c_str()));
        std::int32_t distance;
        std::memcpy(&distance, entry + 2, sizeof distance);
        return entry + 6 + distance;
    }

private:
    const IMAGE_NT_HEADERS* ntHeaders() const {
        return reinterpret_cast<const IMAGE_NT_HEADERS*>(base +
                                                         reinterpret_cast<const IMAGE_DOS_HEADER*>(base)->e_lfanew);
    }

    const std::byte* base = nullptr;
};

Words wordsAt(const std::byte* place, std::size_t count) {
    Words words(count);
    std::memcpy(words.data(), place, count * sizeof words[0]);
    return words;
}

// The protection of all pages of a range, or 0 if they differ.
DWORD protectionOf(const std::byte* start, std::size_t bytes) {
    DWORD found = 0;
    for (const std::byte* page = start; page < start + bytes;) {
        MEMORY_BASIC_INFORMATION about;
        if (VirtualQuery(page, &about, sizeof about) == 0) return 0;
        if (found != 0 && found != about.Protect) return 0;
        found = about.Protect;
        page = static_cast<const std::byte*>(about.BaseAddress) + about.RegionSize;
    }
    return found;
}

struct Library {
    const char* name;
    std::size_t slots;
    const char* firstExport;
    std::size_t sharedSlots;  // of the first of them, how many have one routine at all levels
    bool isMoved;             // loaded at another address than the one that the file names
};
void PrintTo(const Library& library, std::ostream* out) { *out << library.name << (library.isMoved ? ", moved" : ""); }

class Slots : public testing::TestWithParam<Library> {
protected:
    void SetUp() override {
        const Image atItsAddress(GetParam().name);
        image = GetParam().isMoved ? atItsAddress.moved(GetParam().name) : atItsAddress;
        ASSERT_TRUE(image.isLoaded());
        ASSERT_EQ(image.loadedAt() != atItsAddress.loadedAt(), GetParam().isMoved);
        ASSERT_EQ(image.slotOf(GetParam().firstExport), image.section(".slots").start);
        ASSERT_GE(image.section(".slots").bytes, GetParam().slots * sizeof(std::uintptr_t));
    }

    Words inUse() const { return wordsAt(image.section(".slots").start, GetParam().slots); }

    // The table of the last level in the library's constants, found by the slots that all levels share.
    Words ofLastLevel() const {
        const auto [start, bytes] = image.section(".rdata");
        const Words shared = wordsAt(image.section(".slots").start, GetParam().sharedSlots);
        for (std::size_t at = 0; at + GetParam().slots * sizeof shared[0] <= bytes; at += sizeof shared[0]) {
            if (wordsAt(start + at, shared.size()) == shared) return wordsAt(start + at, GetParam().slots);
        }
        return {};
    }

    Image image;
};

TEST_P(Slots, AreReadOnlyAfterLoading) {
    const Image::Section slots = image.section(".slots");
    EXPECT_EQ(protectionOf(slots.start, slots.bytes), DWORD{PAGE_READONLY});
}

TEST_P(Slots, OfOtherPagesTheSystemSaysThatTheyAreWritable) {
    const Image::Section data = image.section(".idata");  // which this toolchain's files mark as writable
    const DWORD protection = protectionOf(data.start, data.bytes);
    EXPECT_TRUE(protection == PAGE_READWRITE || protection == PAGE_WRITECOPY) << protection;
}

TEST_P(Slots, LeadToCodeOfTheLibrary) {
    const Image::Section code = image.section(".text");
    for (const std::uintptr_t routine : inUse()) EXPECT_TRUE(code.holds(routine)) << routine;
}

TEST_P(Slots, AreThoseOfTheProcessorsLevel) {
    const Words last = ofLastLevel(), found = inUse();
    ASSERT_EQ(last.size(), GetParam().slots);
    if (__builtin_cpu_supports("avx2")) {
        EXPECT_EQ(found, last);
    } else {
        EXPECT_NE(found, last);
    }
}

constexpr const char* testNames[] = {"TheLibrary", "TheLibraryMoved", "TheBatchLibrary", "TheBatchLibraryMoved"};
INSTANTIATE_TEST_SUITE_P(
    Of, Slots,
    testing::Values(Library{"zulgenpx-7.0.dll", 1192, "zulgDCT4Free_32f", 8, false},
                    Library{"zulgenpx-7.0.dll", 1192, "zulgDCT4Free_32f", 8, true},
                    Library{"zulgenpx-batch-7.0.dll", 35, "zulgBatchDCT4GetBufferSize_32f", 4, false},
                    Library{"zulgenpx-batch-7.0.dll", 35, "zulgBatchDCT4GetBufferSize_32f", 4, true}),
    [](const auto& each) { return std::string(testNames[each.index]); });

}  // namespace
}  // namespace test
