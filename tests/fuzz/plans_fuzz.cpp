// Any bytes as a plan of the DCT-IV: the element, the length, null pointers, where the block is and what was in it, how
// often the plan is run, where the arrays are, in place or not, and the data. Statuses and sizes are held against a
// model, what is written against guards on both sides of block and arrays, results against the definition and against
// those of a plan of InitAlloc, bit by bit.
//
// Left out is what the header forbids: runs at the lengths 2^k + 1, Init where the size has wrapped around, and a plan
// of the other element.
#include <bit>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <map>
#include <string>
#include <vector>

#include "dct4/records.h"
#include "tests/dct4/planned.h"
#include "tests/fuzz/bytes.h"
#include "tests/reference.h"

namespace test {
namespace {

constexpr std::int64_t longestBuilt = 1 << 14, longestRefused = 1 << 16;
constexpr std::size_t guard = 128;
constexpr std::byte mark{0xA5};

// The size of a plan that is accepted; the header has the same table up to 65536 points.
template <class Element>
std::int32_t sizeDue(int exponent) {
    static constexpr std::int32_t single[] = {1184, 1696, 2720, 4768, 8864, 17056, 35072, 68864, 136384};
    static constexpr std::int32_t twice[] = {1696, 2720, 4768, 8864, 17056, 33440, 68800, 136384, 271424};
    if (exponent < 6) return 224;
    return isSingle<Element> ? single[exponent - 6] : twice[exponent - 6];
}

// Powers of two from 2 on, and what is greater by 1 from 9 on; the highest are those whose sums do not wrap around to a
// negative number.
template <class Element>
bool isAccepted(std::int32_t length) {
    if (length < 2) return false;
    const auto bits = static_cast<std::uint32_t>(length);
    const int exponent = static_cast<int>(std::bit_width(bits)) - 1;
    const bool isLength = std::has_single_bit(bits) || (length >= 9 && std::has_single_bit(bits - 1));
    return isLength && (isSingle<Element> ? exponent <= 27 || exponent == 30 : exponent <= 26 || exponent >= 29);
}

template <class Element>
std::string nameOf(const char* stem, std::int32_t length) {
    return exportedName<Element>(stem) + " of " + std::to_string(length);
}

// Memory between guards, at any byte.
class Block {
public:
    Block(std::size_t count, std::size_t offset, std::byte filling)
        : memory(count + 2 * guard + 64, mark), first(guard + offset % 64), size(count) {
        for (std::size_t i = 0; i < count; ++i) memory[first + i] = filling;
    }
    std::byte* data() { return memory.data() + first; }
    bool guardsStand() const {
        for (std::size_t i = 0; i < memory.size(); ++i) {
            if ((i < first || i >= first + size) && memory[i] != mark) return false;
        }
        return true;
    }
    // No guard: any of the memory.
    bool isUntouched(std::byte filling) const {
        for (std::size_t i = first; i < first + size; ++i) {
            if (memory[i] != filling) return false;
        }
        return true;
    }

private:
    std::vector<std::byte> memory;
    std::size_t first, size;
};

template <class Element>
class PlanCall {
public:
    PlanCall(Bytes given, std::int32_t points) : bytes(given), length(points) {}

    void run() {
        const unsigned bits = bytes.take<std::uint8_t>();
        checkSize();
        const bool isPowerOfTwo = length > 0 && std::has_single_bit(static_cast<std::uint32_t>(length));
        if (bits % 16 == 1) {
            checkNullPointers();
        } else if (!isAccepted<Element>(length)) {
            checkRefusals();
        } else if (length <= longestBuilt) {
            build(isPowerOfTwo);
        }
    }

private:
    using Plan = zulg::DctPlan;

    [[noreturn]] void stop(const char* stem, const char* what) const { fail(nameOf<Element>(stem, length), what); }
    std::byte* place(Block& block) { return block.data(); }

    void checkSize() const {
        std::int32_t size = -77;
        const ZulgStatus status = routines.getSize(length, &size);
        if (status != (isAccepted<Element>(length) ? StatusOk : StatusSizeError))
            stop("zulgDCT4GetSize", "another status than the model's");
        if (status != StatusOk && size != -77) stop("zulgDCT4GetSize", "the size is written after a refusal");
        const int exponent = static_cast<int>(std::bit_width(static_cast<std::uint32_t>(length))) - 1;
        const bool isInTable =
            status == StatusOk && length <= longestBuilt && std::has_single_bit(static_cast<std::uint32_t>(length));
        if (isInTable && size != sizeDue<Element>(exponent)) stop("zulgDCT4GetSize", "another size than the table's");
    }

    void checkNullPointers() const {
        Plan* const nothing = reinterpret_cast<Plan*>(0x1230);
        Plan* plan = nothing;
        std::uint8_t byte = 0xA5;
        Element element = 7;
        const bool areRefused = routines.init(nullptr, length, &byte) == StatusNullPointer &&
                                routines.init(&plan, length, nullptr) == StatusNullPointer &&
                                routines.initAlloc(nullptr, length) == StatusNullPointer &&
                                routines.free(nullptr) == StatusNullPointer &&
                                routines.run(&element, &element, nullptr) == StatusNullPointer;
        if (!areRefused) stop("zulgDCT4", "a null pointer is not refused");
        if (plan != nothing || byte != 0xA5 || element != 7) stop("zulgDCT4", "something is written after a refusal");
    }

    // What Init writes before it refuses: at most 2 KB and 5/4 N elements, and 256 bytes of a length below 1.
    void checkRefusals() {
        Plan* const nothing = reinterpret_cast<Plan*>(0x1230);
        Plan* plan = nothing;
        if (routines.initAlloc(&plan, length) != StatusSizeError || plan != nothing)
            stop("zulgDCT4InitAlloc", "a length is not refused, or something is written");
        if (length > longestRefused) return;
        const auto elements = static_cast<std::size_t>(std::max<std::int32_t>(length, 0));
        Block block(length < 1 ? 256 : 2048 + (5 * elements + 3) / 4 * sizeof(Element), bytes.below(64), mark);
        if (routines.init(&plan, length, reinterpret_cast<std::uint8_t*>(place(block))) != StatusSizeError ||
            plan != nothing)
            stop("zulgDCT4Init", "a length is not refused, or the plan is written");
        if (!block.guardsStand()) stop("zulgDCT4Init", "more is written than the header says");
    }

    void build(bool isRun) {
        std::int32_t size = 0;
        routines.getSize(length, &size);
        if (size <= 0) stop("zulgDCT4GetSize", "a plan takes no bytes");
        const std::byte filling{bytes.take<std::uint8_t>()};
        Block block(static_cast<std::size_t>(size), bytes.below(64), filling);
        Plan* plan = nullptr;
        if (routines.init(&plan, length, reinterpret_cast<std::uint8_t*>(place(block))) != StatusOk || plan == nullptr)
            stop("zulgDCT4Init", "a length that GetSize accepts is refused");
        if (!block.guardsStand()) stop("zulgDCT4Init", "something is written beside the block");
        if (isRun) runBeside(plan, block);
    }

    void runBeside(Plan* plan, Block& block) {
        Plan* allocated = nullptr;
        if (routines.initAlloc(&allocated, length) != StatusOk) stop("zulgDCT4InitAlloc", "a length is refused");
        const auto count = static_cast<std::size_t>(length);
        const int runs = 1 + static_cast<int>(bytes.below(3));
        for (int i = 0; i < runs; ++i) {
            const unsigned bits = bytes.take<std::uint8_t>();
            std::vector<Element> x(count), due(count);
            const bool isModerate = bits & 1;
            isModerate ? bytes.fillModerate(x.data(), count)
                       : bytes.fill(reinterpret_cast<std::byte*>(x.data()), count * sizeof(Element));
            if (routines.run(x.data(), due.data(), allocated) != StatusOk) stop("zulgDCT4", "a run is refused");
            checkRun(plan, block, x, due, bits);
            if (isModerate) compare(x, due);
        }
        const auto kind = plan->kind;
        plan->kind = zulg::PlanKind{static_cast<std::int32_t>(bytes.take<std::uint32_t>() | 0x100)};
        Element element[1] = {7};
        if (routines.run(element, element, plan) != StatusPlanKindError || element[0] != 7)
            stop("zulgDCT4", "an unknown kind is not refused, or something is written");
        plan->kind = kind;
        if (routines.free(allocated) != StatusOk) stop("zulgDCT4Free", "a plan is refused");
    }

    // In the memory of the fuzzer's choice, with the plan of the caller's block.
    void checkRun(Plan* plan, Block& block, const std::vector<Element>& x, const std::vector<Element>& due,
                  unsigned bits) {
        const std::size_t count = x.size() * sizeof(Element);
        const bool isInPlace = bits & 2, isNull = (bits & 0x3C) == 4;
        Block from(count, bits / 8, mark), to(count, bits / 4, mark);
        std::byte* const read = isInPlace ? to.data() : from.data();
        std::memcpy(read, x.data(), count);
        const auto* const pSrc = reinterpret_cast<const Element*>(read);
        auto* const pDst = reinterpret_cast<Element*>(to.data());
        if (isNull) {
            const bool isSource = bits & 1;
            const ZulgStatus status = routines.run(isSource ? nullptr : pSrc, isSource ? pDst : nullptr, plan);
            if (status != StatusNullPointer || (!isInPlace && !to.isUntouched(mark)))
                stop("zulgDCT4", "a null pointer is not refused, or something is written");
        }
        if (routines.run(pSrc, pDst, plan) != StatusOk) stop("zulgDCT4", "a run is refused");
        if (!from.guardsStand() || !to.guardsStand() || !block.guardsStand())
            stop("zulgDCT4", "something is written beside the destination");
        if (!isInPlace && std::memcmp(from.data(), x.data(), count) != 0) stop("zulgDCT4", "the source is written");
        for (std::size_t i = 0; i < due.size(); ++i) {
            Element found;
            std::memcpy(&found, to.data() + i * sizeof(Element), sizeof found);
            const bool isSame =
                std::memcmp(&found, &due[i], sizeof found) == 0 || (std::isnan(found) && std::isnan(due[i]));
            if (!isSame) stop("zulgDCT4", "two plans of one length give different bits");
        }
    }

    // Some of the outputs against the definition.
    void compare(const std::vector<Element>& x, const std::vector<Element>& found) {
        const int step = std::max(1, length / 16);
        const Chosen chosen{static_cast<int>(bytes.below(static_cast<std::size_t>(step))), step};
        const Values due = dct4Transform(widened(x), chosen);
        // No coefficient is above 1, and no output above the square root of N times the norm.
        const double bound = normOf(x) * std::sqrt(length) * unitOf<Element> * 16;
        for (std::size_t i = 0; i < due.size(); ++i) {
            const auto k = static_cast<std::size_t>(chosen.first) + i * static_cast<std::size_t>(step);
            if (!(std::abs(static_cast<double>(found[k]) - static_cast<double>(due[i])) <= bound))
                stop("zulgDCT4", "a result is not near to the definition");
        }
    }

    Bytes bytes;
    std::int32_t length;
    const Dct4Routines<Element>& routines = dct4Routines<Element>();
};

std::int32_t takeLength(Bytes& bytes) {
    const unsigned choice = bytes.take<std::uint8_t>();
    const std::uint32_t power = std::uint32_t{1} << bytes.below(32);
    if (choice < 128) return std::int32_t{2} << choice % 14;
    if (choice < 160) return static_cast<std::int32_t>(power);
    if (choice < 192) return static_cast<std::int32_t>(power + choice % 8 - 4);
    if (choice < 208) return bytes.take<std::int16_t>();
    return bytes.take<std::int32_t>();
}

}  // namespace
}  // namespace test

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    test::Bytes bytes(data, size);
    const bool isSingle = bytes.take<std::uint8_t>() & 1;
    const std::int32_t length = test::takeLength(bytes);
    isSingle ? test::PlanCall<float>(bytes, length).run() : test::PlanCall<double>(bytes, length).run();
    return 0;
}
