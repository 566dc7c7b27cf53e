#include "batch/batch.h"

#include <algorithm>
#include <array>
#include <utility>

#include "batch/checks.h"
#include "batch/many_routines.h"
#include "batch/many_texts.h"
#include "batch/one_by_one.h"
#include "batch/singly.h"
#include "kernel/scale.h"

namespace zulg {
inline namespace ZULG_TARGET {
namespace {

constexpr int maxElements = longestLength + 2;  // of a CCS array

// The family that does the transforms of another layout, whose slots are other ones.
constexpr Family inCCS(Family family) {
    switch (family) {
        case Family::DFTFwd_RToPack:
        case Family::DFTFwd_RToPerm: return Family::DFTFwd_RToCCS;
        case Family::DFTInv_PackToR:
        case Family::DFTInv_PermToR: return Family::DFTInv_CCSToR;
        default: return family;
    }
}

// Where a layout has what is in slot `slot` of CCS; -1 for the zeros that it does not have.
int slotOfLayout(Layout layout, int length, int slot) {
    const int k = slot / 2;
    if (layout == Layout::CCS) return slot;
    if (slot % 2 != 0 && 2 * k % length == 0) return -1;
    return slotOfRe(layout, length, k) + slot % 2;
}

// The places of the CCS slots of a half spectrum in another layout.
template <Layout layout>
struct Spectrum {
    std::ptrdiff_t places[maxElements];

    void place(int length, std::int64_t step) {
        for (int slot = 0; slot < length / 2 * 2 + 2; ++slot) places[slot] = slotOfLayout(layout, length, slot) * step;
    }
};

// The routines of a length, each null where the level has none.
template <class Element>
struct ManyRoutines {
    ManyRoutine<Element> beside;
    ManyRoutine<Element> behind;
    ManyRoutine<Element> inParts;
    bool isAlwaysInParts;
};

template <Family family, int length, class Element, class Real>
constexpr ManyRoutines<Element> manyRoutines() {
    ManyRoutines<Element> found{nullptr, nullptr, nullptr, isAlwaysInParts<length, Element, Real>};
    if constexpr (hasManyText<inCCS(family), length, Real, Placement::Beside>)
        found.beside = &manyTransforms<inCCS(family), length, Element, Real, Placement::Beside>;
    if constexpr (hasManyText<family, length, Real, Placement::Behind>)
        found.behind = &manyTransforms<family, length, Element, Real, Placement::Behind>;
    if constexpr (hasManyText<family, length, Real, Placement::InParts>)
        found.inParts = &manyTransforms<family, length, Element, Real, Placement::InParts>;
    return found;
}

// Index 0 is the shortest length.
template <Family family, class Element, class Real>
constexpr auto manyTable = []<int... index>(std::integer_sequence<int, index...>) {
    return std::array{manyRoutines<family, shortestLength + index, Element, Real>()...};
}
(std::make_integer_sequence<int, longestLength - shortestLength + 1>{});

template <Family family, class Element, class Real>
const ManyRoutines<Element>& routinesOf(int length) {
    return manyTable<family, Element, Real>[static_cast<std::size_t>(length - shortestLength)];
}

// The arguments of a batch, and their checks in their order.
template <Family family, class Element>
struct Request {
    static constexpr int width = isComplex<family> ? 2 : 1;

    const Element* pSrc;
    Shape source;
    Element* pDst;
    Shape destination;
    std::int32_t length, flag;
    std::int64_t count;

    Status checked() const {
        if (length < shortestLength || length > longestLength) return StatusSizeError;
        if (pSrc == nullptr || pDst == nullptr) return StatusNullPointer;
        if (!isFlag(flag)) return StatusFlagError;
        const Elements elements = elementsOf<family>(length);
        constexpr std::int64_t bytes = width * static_cast<std::int64_t>(sizeof(Element));
        const bool accepted = isAccepted(source, elements.read, destination, elements.written, count, bytes);
        return accepted ? StatusOk : StatusSizeError;
    }

    bool isBeside() const { return source.distance == 1 && destination.distance == 1; }
    bool isBehind() const { return source.step == 1 && destination.step == 1; }

    const Element* from(std::int64_t j) const { return pSrc + j * source.distance * width; }
    Element* to(std::int64_t j) const { return pDst + j * destination.distance * width; }

    // Does as many transforms as fill registers, if they are in memory as one of the routines wants them. Returns how
    // many.
    template <class Real>
    std::int64_t doMany(const ManyRoutines<Element>& routines) const {
        const ManyRoutine<Element> many = isBeside() ? routines.beside : isBehind() ? routines.behind : nullptr;
        constexpr int copies = copiesOf<family, Real>;
        if (many == nullptr || count < copies) return 0;
        Spectrum<layoutOf<family>> spectrum;  // read where transforms are side by side only
        if (!isComplex<family> && isBeside())
            spectrum.place(length, isRealForward<family> ? destination.step : source.step);
        std::int64_t done = 0;
        const auto run = [&](ManyRoutine<Element> routine, std::int64_t atOnce) {
            const std::int64_t registers = (count - done) / atOnce;
            routine({from(done), to(done), source.step * width, source.distance * width, destination.step * width,
                     destination.distance * width, spectrum.places, layoutOf<family> == Layout::CCS, Element{}},
                    flag, registers);
            done += registers * atOnce;
        };
        if (isInParts(routines)) run(routines.inParts, copiesInParts<Real>);
        run(many, copies);
        return done;
    }

private:
    bool isInParts(const ManyRoutines<Element>& routines) const {
        constexpr std::int64_t bytes = width * static_cast<std::int64_t>(sizeof(Element));
        return routines.inParts != nullptr && isBeside() &&
               (routines.isAlwaysInParts || isBadStep(source.step, bytes, length) ||
                isBadStep(destination.step, bytes, length));
    }
};

// Computes in single a few transforms, as many as a register has or less, of any shape: by way of a buffer in which
// they are side by side.
template <Family family>
void fewInSingle(const Request<family, float>& request, ManyRoutine<float> beside, std::int64_t first,
                 std::int64_t few) {
    constexpr int width = Request<family, float>::width, copies = copiesOf<family, float>;
    constexpr bool readsSlots = inCCS(family) == Family::DFTInv_CCSToR;
    constexpr bool writesSlots = inCCS(family) == Family::DFTFwd_RToCCS;
    float buffer[maxElements * copies * width] = {};
    // Calls copy(number in the buffer, transform, place of the number in it) for each number.
    const auto forEachNumber = [&](std::int64_t elements, bool areSlots, std::int64_t step, const auto& copy) {
        for (int e = 0; e < elements; ++e) {
            const int at = areSlots ? slotOfLayout(layoutOf<family>, request.length, e) : e;
            if (at < 0) continue;
            for (std::int64_t j = 0; j < few; ++j)
                for (int i = 0; i < width; ++i)
                    copy(buffer[(e * copies + j) * width + i], first + j, at * step * width + i);
        }
    };
    const Elements elements = elementsOf<inCCS(family)>(request.length);
    forEachNumber(elements.read, readsSlots, request.source.step,
                  [&](float& held, std::int64_t j, std::int64_t place) { held = request.from(j)[place]; });
    Spectrum<Layout::CCS> spectrum;
    if (!isComplex<family>) spectrum.place(request.length, copies);
    beside({buffer, buffer, copies * width, width, copies * width, width, spectrum.places, true, 0.0f}, request.flag,
           1);
    forEachNumber(elements.written, writesSlots, request.destination.step,
                  [&](float held, std::int64_t j, std::int64_t place) { request.to(j)[place] = held; });
}

// The transforms of a request from number `done` on, one by one. Few calls have any left over: in a routine of its own,
// the buffer costs the others nothing.
template <Family family, class Element>
[[gnu::noinline]] void runOneByOne(const Request<family, Element>& request, std::int64_t done) {
    constexpr int width = Request<family, Element>::width;
    Element buffer[maxElements * width];
    oneByOne<width>(
        request.from(done), request.source, request.to(done), request.destination, elementsOf<family>(request.length),
        request.count - done, buffer,
        [&](const Element* from, Element* to) { one<family>(from, to, request.length, request.flag); });
}

// The transforms of a request that has been checked: exact, or computed in single.
template <Family family, class Element>
void run(const Request<family, Element>& request) {
    const std::int64_t done = request.template doMany<double>(routinesOf<family, Element, double>(request.length));
    if (done < request.count) runOneByOne(request, done);
}

template <Family family>
void runInSingle(const Request<family, float>& request) {
    const auto& routines = routinesOf<family, float, float>(request.length);
    if (routines.beside == nullptr) return run(request);  // of no level: the errors would be too large
    constexpr int copies = copiesOf<family, float>;
    for (std::int64_t done = request.template doMany<float>(routines); done < request.count; done += copies)
        fewInSingle<family>(request, routines.beside, done, std::min<std::int64_t>(copies, request.count - done));
}

}  // namespace

template <Family family, class Element>
Status ZULG_CALL batch(const Element* pSrc, std::int64_t srcStep, std::int64_t srcDistance, Element* pDst,
                       std::int64_t dstStep, std::int64_t dstDistance, std::int32_t length, std::int32_t flag,
                       std::int64_t count) {
    const Request<family, Element> request{pSrc, {srcStep, srcDistance}, pDst, {dstStep, dstDistance}, length, flag,
                                           count};
    const Status status = request.checked();
    if (status == StatusOk) run(request);
    return status;
}

template <Family family>
Status ZULG_CALL batchInSingle(const float* pSrc, std::int64_t srcStep, std::int64_t srcDistance, float* pDst,
                               std::int64_t dstStep, std::int64_t dstDistance, std::int32_t length, std::int32_t flag,
                               std::int64_t count) {
    const Request<family, float> request{pSrc, {srcStep, srcDistance}, pDst, {dstStep, dstDistance}, length, flag,
                                         count};
    const Status status = request.checked();
    if (status == StatusOk) runInSingle(request);
    return status;
}

#define BATCH(family, element)                                                                                       \
    template Status ZULG_CALL batch<Family::family, element>(const element*, std::int64_t, std::int64_t, element*,   \
                                                             std::int64_t, std::int64_t, std::int32_t, std::int32_t, \
                                                             std::int64_t);
BATCH(DFTFwd_CToC, float)
BATCH(DFTFwd_CToC, double)
BATCH(DFTInv_CToC, float)
BATCH(DFTInv_CToC, double)
BATCH(DFTFwd_RToCCS, float)
BATCH(DFTFwd_RToCCS, double)
BATCH(DFTFwd_RToPack, float)
BATCH(DFTFwd_RToPack, double)
BATCH(DFTFwd_RToPerm, float)
BATCH(DFTFwd_RToPerm, double)
BATCH(DFTInv_CCSToR, float)
BATCH(DFTInv_CCSToR, double)
BATCH(DFTInv_PackToR, float)
BATCH(DFTInv_PackToR, double)
BATCH(DFTInv_PermToR, float)
BATCH(DFTInv_PermToR, double)
BATCH(Hartley, float)
BATCH(Hartley, double)
#undef BATCH

#define BATCH_IN_SINGLE(family)                                                                                     \
    template Status ZULG_CALL batchInSingle<Family::family>(const float*, std::int64_t, std::int64_t, float*,       \
                                                            std::int64_t, std::int64_t, std::int32_t, std::int32_t, \
                                                            std::int64_t);
BATCH_IN_SINGLE(DFTFwd_CToC)
BATCH_IN_SINGLE(DFTInv_CToC)
BATCH_IN_SINGLE(DFTFwd_RToCCS)
BATCH_IN_SINGLE(DFTFwd_RToPack)
BATCH_IN_SINGLE(DFTFwd_RToPerm)
BATCH_IN_SINGLE(DFTInv_CCSToR)
BATCH_IN_SINGLE(DFTInv_PackToR)
BATCH_IN_SINGLE(DFTInv_PermToR)
BATCH_IN_SINGLE(Hartley)
#undef BATCH_IN_SINGLE

}  // namespace ZULG_TARGET
}  // namespace zulg
