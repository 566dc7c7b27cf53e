// Any bytes as a call of a transform with a flag: which routine, through its dispatcher or not, the length or order,
// the flag, null pointers, the offsets of the arrays, in place or not, and the data. What comes out is held against a
// model of the statuses, against the bytes around the arrays, and, where all data are of moderate size, against the
// definition in long double.
#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <map>
#include <string>
#include <tuple>
#include <vector>

#include "tests/fuzz/bytes.h"
#include "tests/transforms/kernel_fixture.h"

namespace test {
namespace {

constexpr std::size_t guard = 64;
constexpr int longest = 128;  // points that are compared with the definition

[[noreturn]] void fail(const Transform& transform, const char* what) { test::fail(transform.kernelName(), what); }

const std::vector<Transform>& transforms() {
    static const std::vector<Transform> all = flaggedTransforms();
    return all;
}

// The transform of the same family and element that has this length or order; null if there is none.
const Transform* sameOf(const Transform& transform, std::int32_t number) {
    static const auto byNumber = [] {
        std::map<std::tuple<std::string, std::string, Takes, int>, const Transform*> rows;
        for (const Transform& row : transforms()) rows[{row.family, row.suffix, row.takes, row.number()}] = &row;
        return rows;
    }();
    const auto found = byNumber.find({transform.family, transform.suffix, transform.takes, number});
    return found == byNumber.end() ? nullptr : found->second;
}

struct Shape {
    bool isDispatched, isSourceNull, isDestinationNull, isInPlace, hasOwnNumber, hasFlag, isModerate;

    explicit Shape(unsigned bits)
        : isDispatched(bits & 1),
          isSourceNull((bits & 0x0E) == 0x02),
          isDestinationNull((bits & 0x0E) == 0x04),
          isInPlace(bits & 16),
          hasOwnNumber(bits & 32),
          hasFlag(bits & 64),
          isModerate(bits & 128) {}
};

bool isFlag(std::int32_t flag) { return std::ranges::find(allFlags, flag) != std::end(allFlags); }

template <class Element>
ZulgStatus callAs(const Transform& transform, bool isDispatched, const Element* pSrc, Element* pDst,
                  std::int32_t number, std::int32_t flag, Element* buffer) {
    if (transform.takes == Takes::Flag) {
        return isDispatched ? exported<Dispatcher<Element>>(transform.dispatcherName())(pSrc, pDst, number, flag)
                            : exported<Kernel<Element>>(transform.kernelName())(pSrc, pDst, flag);
    }
    return isDispatched ? exported<WhtDispatcher<Element>>(transform.dispatcherName())(pSrc, pDst, number, flag, buffer)
                        : exported<WhtKernel<Element>>(transform.kernelName())(pSrc, pDst, flag, buffer);
}

template <class Element>
void compare(const Transform& transform, std::int32_t flag, const std::vector<Element>& source, const Element* found) {
    if (transform.length > longest) return;
    const auto isModerate = [](Element value) {
        return value == 0 || (std::abs(value) > Element{1e-12F} && std::abs(value) < Element{1e12F});
    };
    if (!std::ranges::all_of(source, isModerate)) return;
    const Values due = transform.definition(widened(source), {});
    const Wide scale = storedScale<Element>(transform, flag);
    // The proved bounds are below 421 and 23 in these units; what is scaled down is off by no more, but may be no
    // normal number.
    const double bound = normOf(source) * static_cast<double>(scale) * unitOf<Element> * perType<Element>(23, 421);
    for (std::size_t k = 0; k < due.size(); ++k) {
        if (!(std::abs(found[k] - scale * due[k]) <= bound + 1e-300))
            fail(transform, "a result is not near to the definition");
    }
}

template <class Element>
void run(const Transform& row, Bytes bytes, const Shape& shape) {
    const auto flag = shape.hasFlag ? allFlags[bytes.take<std::uint8_t>() % 4] : bytes.take<std::int32_t>();
    const auto number = shape.hasOwnNumber || !shape.isDispatched ? row.number() : bytes.take<std::int32_t>();
    const Transform* const transform = sameOf(row, number);
    const std::size_t sourceOffset = bytes.take<std::uint8_t>() % guard,
                      destinationOffset = bytes.take<std::uint8_t>() % guard;
    const Transform& sized = transform != nullptr ? *transform : row;
    const auto sourceBytes = static_cast<std::size_t>(sized.sourceElements) * sizeof(Element),
               destinationBytes = static_cast<std::size_t>(sized.destinationElements) * sizeof(Element);

    std::vector<Element> values(static_cast<std::size_t>(sized.sourceElements));
    bytes.fill(reinterpret_cast<std::byte*>(values.data()), sourceBytes);
    if (shape.isModerate) bytes.fillModerate(values.data(), values.size());
    const std::size_t room = std::max(sourceBytes, destinationBytes) + 3 * guard;
    std::vector<std::byte> from(room, pattern), to(room, pattern);
    std::byte* const read =
        shape.isInPlace ? to.data() + guard + destinationOffset : from.data() + guard + sourceOffset;
    std::byte* const written = to.data() + guard + destinationOffset;
    std::memcpy(read, values.data(), sourceBytes);
    const std::vector<std::byte> fromBefore = from, toBefore = to;
    std::vector<Element> buffer(
        sized.takes == Takes::FlagAndBuffer ? static_cast<std::size_t>(bufferElements(sized.order)) : 0);

    const auto* const pSrc = shape.isSourceNull ? nullptr : reinterpret_cast<const Element*>(read);
    auto* const pDst = shape.isDestinationNull ? nullptr : reinterpret_cast<Element*>(written);
    const ZulgStatus status =
        callAs<Element>(row, shape.isDispatched, pSrc, pDst, number, flag, buffer.empty() ? nullptr : buffer.data());
    const ZulgStatus due = transform == nullptr                 ? StatusSizeError
                           : pSrc == nullptr || pDst == nullptr ? StatusNullPointer
                           : !isFlag(flag)                      ? StatusFlagError
                                                                : StatusOk;
    if (status != due) fail(sized, "another status than the model's");
    if (status != StatusOk) {
        if (from != fromBefore || to != toBefore) fail(sized, "something is written after a refusal");
        return;
    }
    if (!shape.isInPlace && from != fromBefore) fail(sized, "the source is written");
    std::vector<std::byte> rest = to;
    std::memcpy(rest.data() + (written - to.data()), toBefore.data() + (written - to.data()), destinationBytes);
    if (rest != toBefore) fail(sized, "something is written beside the destination");
    std::vector<Element> found(static_cast<std::size_t>(sized.destinationElements));
    std::memcpy(found.data(), written, destinationBytes);
    compare(sized, flag, values, found.data());
}

}  // namespace
}  // namespace test

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    test::Bytes bytes(data, size);
    const auto& all = test::transforms();
    const test::Transform& row = all[bytes.take<std::uint16_t>() % all.size()];
    const test::Shape shape(bytes.take<std::uint8_t>());
    row.isSingle() ? test::run<float>(row, bytes, shape) : test::run<double>(row, bytes, shape);
    return 0;
}
