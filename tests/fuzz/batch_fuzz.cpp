// Any bytes as a batch: the family, the element, computed in single or not, length or order, flag, null pointers, the
// steps and distances of both arrays, the count, where the arrays are, in place, apart or overlapping, and the data.
// The status is held against a model that counts places with 128 bits; what is written against each transform by
// itself, bit by bit; and all other bytes of the memory against what they were.
#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <limits>
#include <map>
#include <memory>
#include <numeric>
#include <string>
#include <vector>

#include "dct4/records.h"
#include "tests/batch/batches.h"
#include "tests/dct4/planned.h"
#include "tests/fuzz/bytes.h"
#include "tests/transforms/transform.h"

namespace test {
namespace {

using Place = __int128;

constexpr std::int64_t mostPlaces = 1 << 14;  // of an array that there is memory for
constexpr std::size_t guardElements = 24;

enum class Kind { Dft, Single, WalshHadamard, Dct4 };

// A batch without its data.
template <class Element>
struct Request {
    std::string name;
    Kind kind;
    BatchFamily family{"", 1};
    std::int32_t number = 0, flag = 0;  // length or order
    Shape source{}, destination{};
    std::int64_t count = 0, read = 0, written = 0;
    bool isSourceNull = false, isDestinationNull = false, isBufferNull = false, isKindBad = false;
    zulg::DctPlan* plan = nullptr;

    std::int64_t bytesOfElement() const { return family.width * static_cast<std::int64_t>(sizeof(Element)); }
    bool isNumberAccepted() const {
        return kind == Kind::WalshHadamard ? number >= 1 && number <= 13 : number >= 2 && number <= 64;
    }
    bool needsBuffer() const {
        return kind == Kind::WalshHadamard ? number >= 8
                                           : kind == Kind::Dct4 && (source.step != 1 || destination.step != 1);
    }
};

bool isFlag(std::int32_t flag) { return std::ranges::find(allFlags, flag) != std::end(allFlags); }

// The lowest and the highest place, in elements.
struct Extent {
    Place low = 0, high = 0;

    Extent(Shape shape, std::int64_t elements, std::int64_t count) {
        for (const Place k : {Place{0}, Place{elements - 1}}) {
            for (const Place j : {Place{0}, Place{std::max<std::int64_t>(count, 1) - 1}}) {
                const Place place = k * shape.step + j * shape.distance;
                low = std::min(low, place);
                high = std::max(high, place);
            }
        }
    }
    bool isWithin(std::int64_t bytesOfElement) const {
        return low >= std::numeric_limits<std::int64_t>::min() / bytesOfElement &&
               high <= std::numeric_limits<std::int64_t>::max() / bytesOfElement;
    }
    bool isSmall() const { return high - low < mostPlaces; }
    std::size_t elements() const { return static_cast<std::size_t>(high - low + 1); }
};

// Whether two results are in one place: k * step = j * distance for some difference of their numbers.
bool hasTwoInOnePlace(Shape shape, std::int64_t elements, std::int64_t count) {
    if (shape.distance == 0) return count > 1 || (shape.step == 0 && elements > 1);
    for (std::int64_t k = 1; k < elements; ++k) {
        const Place apart = Place{k} * shape.step;
        if (apart % shape.distance != 0) continue;
        const Place transforms = apart / shape.distance;
        if (transforms < count && -transforms < count) return true;
    }
    return false;
}

template <class Element>
ZulgStatus dueOf(const Request<Element>& request) {
    if (request.kind != Kind::Dct4 && !request.isNumberAccepted()) return StatusSizeError;
    const bool isPlanNull = request.kind == Kind::Dct4 && request.plan == nullptr;
    if (request.isSourceNull || request.isDestinationNull || isPlanNull ||
        (request.needsBuffer() && request.isBufferNull))
        return StatusNullPointer;
    if (request.kind == Kind::Dct4 ? request.isKindBad : !isFlag(request.flag))
        return request.kind == Kind::Dct4 ? StatusPlanKindError : StatusFlagError;
    if (request.count <= 0) return request.count == 0 ? StatusOk : StatusSizeError;
    const bool fits = Extent(request.source, request.read, request.count).isWithin(request.bytesOfElement()) &&
                      Extent(request.destination, request.written, request.count).isWithin(request.bytesOfElement());
    return fits && !hasTwoInOnePlace(request.destination, request.written, request.count) ? StatusOk : StatusSizeError;
}

template <class Element>
ZulgStatus call(const Request<Element>& request, const Element* pSrc, Shape source, Element* pDst, Shape destination,
                std::int64_t count, Element* pBuffer) {
    if (request.kind == Kind::WalshHadamard) {
        return batchExported<BatchWht<Element>>(request.name)(pSrc, source.step, source.distance, pDst,
                                                              destination.step, destination.distance, request.number,
                                                              request.flag, count, pBuffer);
    }
    if (request.kind == Kind::Dct4) {
        return batchExported<BatchDct4<Element, zulg::DctPlan>>(request.name)(pSrc, source.step, source.distance, pDst,
                                                                              destination.step, destination.distance,
                                                                              request.plan, count, pBuffer);
    }
    return batchExported<Batch<Element>>(request.name)(pSrc, source.step, source.distance, pDst, destination.step,
                                                       destination.distance, request.number, request.flag, count);
}

// Whether a result of one transform is in the place of what another one reads, if both arrays begin at one element:
// then no result has a meaning.
template <class Element>
bool readsWhatOthersWrite(const Request<Element>& request) {
    std::map<std::int64_t, std::int64_t> writtenBy;
    for (std::int64_t j = 0; j < request.count; ++j) {
        for (std::int64_t k = 0; k < request.written; ++k)
            writtenBy[k * request.destination.step + j * request.destination.distance] = j;
    }
    for (std::int64_t j = 0; j < request.count; ++j) {
        for (std::int64_t k = 0; k < request.read; ++k) {
            const auto found = writtenBy.find(k * request.source.step + j * request.source.distance);
            if (found != writtenBy.end() && found->second != j) return true;
        }
    }
    return false;
}

// One transform by itself: by the main library, and what is computed in single by a batch of one.
template <class Element>
void transformOne(const Request<Element>& request, const Element* from, Element* to) {
    ZulgStatus status = StatusOk;
    if (request.kind == Kind::WalshHadamard) {
        std::vector<Element> buffer(static_cast<std::size_t>(bufferElements(request.number)) + 1);
        status = exported<WhtDispatcher<Element>>(exportedName<Element>("zulgWHT"))(from, to, request.number,
                                                                                    request.flag, buffer.data());
    } else if (request.kind == Kind::Dct4) {
        status = dct4Routines<Element>().run(from, to, request.plan);
    } else if (request.kind == Kind::Single) {
        status = call(request, from, {1, 0}, to, {1, 0}, 1, static_cast<Element*>(nullptr));
    } else {
        const std::string name = "zulg" + std::string(request.family.name) + "_";
        status = exported<Dispatcher<Element>>(name + request.family.template suffix<Element>())(
            from, to, request.number, request.flag);
    }
    if (status != StatusOk) fail(request.name, "one transform by itself is refused");
}

// Elements with guards on both sides, at any byte.
template <class Element>
class Memory {
public:
    Memory(std::size_t numbers, std::size_t byteOffset)
        : bytes((numbers + 2 * guardElements) * sizeof(Element) + sizeof(Element), std::byte{0xA5}),
          offset(guardElements * sizeof(Element) + byteOffset % sizeof(Element)) {}

    std::byte* at(std::int64_t number) {
        return bytes.data() + offset + number * static_cast<std::int64_t>(sizeof(Element));
    }
    Element* address(std::int64_t number) { return reinterpret_cast<Element*>(at(number)); }

    std::vector<std::byte> bytes;

private:
    std::size_t offset;
};

// What is not a number counts as one and the same value.
template <class Element>
bool areEqual(const std::byte* found, Element due) {
    Element value;
    std::memcpy(&value, found, sizeof value);
    return (std::isnan(value) && std::isnan(due)) || std::memcmp(&value, &due, sizeof value) == 0;
}

template <class Element>
void runAccepted(const Request<Element>& request, Bytes bytes, unsigned where) {
    const auto width = request.family.width;
    const Extent from(request.source, request.read, request.count),
        to(request.destination, request.written, request.count);
    // Three ways to lay the arrays: apart, from the same element on, overlapping somehow.
    const unsigned way = where % 4;
    const bool isSameShape =
        request.source.step == request.destination.step && request.source.distance == request.destination.distance;
    const bool isInOne = way == 1 || way == 2;
    const auto numbersOf = [&](const Extent& extent) { return extent.elements() * static_cast<std::size_t>(width); };
    const std::int64_t shift = way == 2 ? static_cast<std::int64_t>(where / 4 % 32) : 0;
    const Place low = std::min(from.low, to.low), high = std::max(from.high, to.high);
    Memory<Element> own(isInOne ? 1 : numbersOf(from), where / 128),
        shared(isInOne ? static_cast<std::size_t>(high - low + 1 + shift) * static_cast<std::size_t>(width)
                       : numbersOf(to),
               where / 1024);
    Memory<Element>& sourceMemory = isInOne ? shared : own;
    const std::int64_t sourceZero = static_cast<std::int64_t>(-(isInOne ? low : from.low)) * width,
                       zero = static_cast<std::int64_t>(-(isInOne ? low : to.low)) * width + shift * width;

    const bool isModerate = where & 0x8000;
    std::vector<Element> values(isInOne ? static_cast<std::size_t>(high - low + 1) * static_cast<std::size_t>(width)
                                        : numbersOf(from));
    isModerate ? bytes.fillModerate(values.data(), values.size())
               : bytes.fill(reinterpret_cast<std::byte*>(values.data()), values.size() * sizeof(Element));
    std::memcpy(sourceMemory.at(0), values.data(), values.size() * sizeof(Element));

    const bool isDue = !isInOne || (shift == 0 && isSameShape && !readsWhatOthersWrite(request));
    std::vector<Element> x(static_cast<std::size_t>((request.read + 1) * width)), y(x.size() + 8);
    std::vector<Element> due;
    for (std::int64_t j = 0; isDue && j < request.count; ++j) {
        for (std::int64_t i = 0; i < request.read * width; ++i) {
            const std::int64_t place = i / width * request.source.step + j * request.source.distance;
            std::memcpy(&x[static_cast<std::size_t>(i)], sourceMemory.at(sourceZero + place * width + i % width),
                        sizeof(Element));
        }
        transformOne(request, x.data(), y.data());
        due.insert(due.end(), y.begin(), y.begin() + request.written * width);
    }

    std::int32_t bufferBytes = 0;
    if (request.needsBuffer()) {
        const char* const stem =
            request.kind == Kind::Dct4 ? "zulgBatchDCT4GetBufferSize" : "zulgBatchWHTGetBufferSize";
        if (batchExported<BatchSize>(exportedName<Element>(stem))(request.number, &bufferBytes) != StatusOk)
            fail(request.name, "there is no size of its buffer");
    }
    Memory<Element> buffer(static_cast<std::size_t>(bufferBytes) / sizeof(Element), where);
    const std::vector<std::byte> ownBefore = own.bytes;
    std::vector<std::byte> sharedBefore = shared.bytes, bufferBefore = buffer.bytes;
    const ZulgStatus status = call(request, static_cast<const Element*>(sourceMemory.address(sourceZero)),
                                   request.source, shared.address(zero), request.destination, request.count,
                                   request.isBufferNull ? nullptr : buffer.address(0));
    if (status != StatusOk) fail(request.name, "a batch that should be accepted is refused");

    if (own.bytes != ownBefore) fail(request.name, "the source is written");
    for (std::int64_t j = 0; j < request.count; ++j) {
        for (std::int64_t i = 0; i < request.written * width; ++i) {
            const std::int64_t place = i / width * request.destination.step + j * request.destination.distance;
            const std::byte* const found = shared.at(zero + place * width + i % width);
            if (isDue && !areEqual(found, due[static_cast<std::size_t>(j * request.written * width + i)]))
                fail(request.name, "a result is not that of the transform by itself");
            std::memcpy(sharedBefore.data() + (found - shared.bytes.data()), found, sizeof(Element));
        }
    }
    if (shared.bytes != sharedBefore) fail(request.name, "something is written beside the results");
    std::memcpy(bufferBefore.data() + (buffer.at(0) - buffer.bytes.data()), buffer.at(0),
                static_cast<std::size_t>(bufferBytes));
    if (buffer.bytes != bufferBefore) fail(request.name, "something is written beside the buffer");
}

template <class Element>
void runRefused(const Request<Element>& request, ZulgStatus due) {
    std::vector<Element> x(64, 1), y(64, 7), buffer(64, 3);
    const auto before = y, bufferBefore = buffer;
    const ZulgStatus status = call(request, request.isSourceNull ? nullptr : x.data() + 32, request.source,
                                   request.isDestinationNull ? nullptr : y.data() + 32, request.destination,
                                   request.count, request.isBufferNull ? nullptr : buffer.data() + 32);
    if (status != due) fail(request.name, "another status than the model's");
    if (y != before || buffer != bufferBefore) fail(request.name, "something is written without a result");
}

// Steps and distances of usual shapes, small ones, those around powers of two, and any.
std::int64_t takeStride(Bytes& bytes, std::int64_t elements, std::int64_t count) {
    const unsigned choice = bytes.take<std::uint8_t>();
    switch (choice % 8) {
        case 0: return 1;
        case 1: return elements + choice / 8 % 4;
        case 2:
            return std::clamp<std::int64_t>(count, 1, std::numeric_limits<std::int64_t>::max() - 3) + choice / 8 % 4;
        case 3: return -1;
        case 4: return static_cast<std::int8_t>(bytes.take<std::uint8_t>());
        case 5: return -(elements + choice / 8 % 4);
        case 6: {
            const std::uint64_t power = std::uint64_t{1} << bytes.below(64);
            return static_cast<std::int64_t>(choice & 128 ? power - choice / 8 % 4 : 0 - power + choice / 8 % 4);
        }
        default: return bytes.take<std::int64_t>();
    }
}

std::int64_t takeCount(Bytes& bytes) {
    const unsigned choice = bytes.take<std::uint8_t>();
    if (choice < 240) return choice % 24;
    return choice < 248 ? static_cast<std::int64_t>(std::uint64_t{1} << bytes.below(64)) : bytes.take<std::int64_t>();
}

template <class Element>
zulg::DctPlan* planOf(std::int32_t length) {
    static std::map<std::int32_t, std::unique_ptr<Planned<Element>>> plans;
    auto& planned = plans[length];
    if (!planned) planned = std::make_unique<Planned<Element>>(length);
    return planned->plan;
}

template <class Element>
void run(Bytes bytes, Kind kind) {
    Request<Element> request;
    request.kind = kind;
    if (kind == Kind::WalshHadamard || kind == Kind::Dct4) {
        request.name = exportedName<Element>(kind == Kind::Dct4 ? "zulgBatchDCT4" : "zulgBatchWHT");
    } else {
        request.family = batchFamilies[bytes.below(std::size(batchFamilies))];
        request.name = std::string(kind == Kind::Single ? "zulgBatchSingle" : "zulgBatch") + request.family.name + "_" +
                       request.family.template suffix<Element>();
    }
    const unsigned bits = bytes.take<std::uint8_t>();
    request.isSourceNull = (bits & 0x1F) == 1;
    request.isDestinationNull = (bits & 0x1F) == 2;
    request.isBufferNull = (bits & 0x1C) == 4;
    request.isKindBad = (bits & 0x1F) == 8;
    const bool hasBadFlag = (bits & 0x1F) == 9, hasAnyNumber = (bits & 0xE0) == 0x20;
    request.flag = hasBadFlag ? bytes.take<std::int32_t>() : allFlags[bytes.below(4)];
    const bool isWht = kind == Kind::WalshHadamard;
    if (kind == Kind::Dct4) {
        request.number = std::int32_t{2} << bytes.below(9);
        request.plan = (bits & 0x1F) == 10 ? nullptr : planOf<Element>(request.number);
    } else if (hasAnyNumber) {
        request.number = bytes.take<std::int32_t>();
    } else {
        request.number = static_cast<std::int32_t>(isWht ? 1 + bytes.below(11) : 2 + bytes.below(63));
    }
    const std::int64_t points = isWht ? std::int64_t{1} << std::clamp(request.number, 0, 13) : request.number;
    const bool isDft = kind == Kind::Dft || kind == Kind::Single;
    const bool isRunnable = kind == Kind::Dct4 || request.isNumberAccepted();
    request.read = isDft && isRunnable ? request.family.read(request.number) : points;
    request.written = isDft && isRunnable ? request.family.written(request.number) : points;
    request.count = takeCount(bytes);
    request.source = {takeStride(bytes, request.read, request.count), takeStride(bytes, request.read, request.count)};
    const bool isSame = bits & 0x80;
    if (isSame) {
        request.destination = request.source;
    } else {
        request.destination.step = takeStride(bytes, request.written, request.count);
        request.destination.distance = takeStride(bytes, request.written, request.count);
    }
    const unsigned where = bytes.take<std::uint16_t>();

    const ZulgStatus due = dueOf(request);
    const auto kindBefore = request.plan != nullptr ? request.plan->kind : zulg::PlanKind{};
    if (request.isKindBad && request.plan != nullptr) request.plan->kind = zulg::PlanKind{77};
    if (due != StatusOk || request.count == 0) {
        runRefused(request, due);
    } else if (Extent(request.source, request.read, request.count).isSmall() &&
               Extent(request.destination, request.written, request.count).isSmall()) {
        runAccepted(request, bytes, where);
    }
    if (request.plan != nullptr) request.plan->kind = kindBefore;
}

}  // namespace
}  // namespace test

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    test::Bytes bytes(data, size);
    const unsigned which = bytes.take<std::uint8_t>();
    const auto kind = which % 8 < 4   ? test::Kind::Dft
                      : which % 8 < 6 ? test::Kind::Single
                                      : (which % 8 == 6 ? test::Kind::WalshHadamard : test::Kind::Dct4);
    which & 8 || kind == test::Kind::Single ? test::run<float>(bytes, kind) : test::run<double>(bytes, kind);
    return 0;
}
