// Runs the routines of a family and turns their statuses into errors. Which sizes exist is never listed here: the
// library is asked. It is not asked about a size that is too long for a frame, nor about one that it accepts although
// the family has no such size.
#include "transform.h"

#include <bit>
#include <cmath>
#include <new>

#include "status.h"
#include "user_error.h"

namespace spectrum {
namespace {

template <typename T>
const Routines<T>& routinesOf(const Family& family) {
    if constexpr (std::is_same_v<T, float>) {
        return family.single;
    } else {
        return family.wide;
    }
}

void expectOk(ZulgStatus status) {
    if (status != StatusOk) throw UserError(statusText(status));
}

enum class Ways { There, Both };

bool isPowerOfTwo(int length) { return length > 0 && std::has_single_bit(static_cast<unsigned>(length)); }

bool canBeFramed(const Family& family, int size) {
    const int longest = family.sizes == Sizes::Orders ? std::bit_width(unsigned{longestFrame}) - 1 : longestFrame;
    return size >= 1 && size <= longest && (family.sizes != Sizes::PowersOfTwo || isPowerOfTwo(size));
}

// Asks with null pointers, since the library refuses a size before it checks the pointers.
bool exists(const Family& family, int size, Ways ways) {
    const auto& routines = family.wide;
    const Call call{size, NoDivByAny, nullptr};
    std::int32_t bytes;
    return canBeFramed(family, size) &&
           (!routines.workspaceBytes || routines.workspaceBytes(size, &bytes) != StatusSizeError) &&
           routines.forward(nullptr, nullptr, call) != StatusSizeError &&
           (ways == Ways::There || routines.inverse(nullptr, nullptr, call) != StatusSizeError);
}

// Such as "2-10, 12, 14-16", or "the powers of two 2-64".
std::string sizesOf(const Family& family, Ways ways) {
    const auto next = [&](int size) { return family.sizes == Sizes::PowersOfTwo ? 2 * size : size + 1; };
    std::string list;
    for (int first = 1; first <= longestFrame; first = next(first)) {
        if (!exists(family, first, ways)) continue;
        int last = first;
        while (exists(family, next(last), ways)) last = next(last);
        list += (list.empty() ? "" : ", ") + std::to_string(first) + (last > first ? "-" + std::to_string(last) : "");
        first = last;
    }
    if (list.empty()) return "none";
    if (family.sizes == Sizes::PowersOfTwo) return "the powers of two " + list;
    return (family.sizes == Sizes::Orders ? "the orders " : "") + list;
}

std::string sizeWords(const Framing& framing) {
    return framing.byOrder ? "--order " + std::to_string(framing.size) : "--length " + std::to_string(framing.length);
}

std::string whyMissing(const Framing& framing) {
    const Family& family = *framing.family;
    if (framing.byOrder) return "no transform of this order";
    if (family.sizes != Sizes::Lengths && !isPowerOfTwo(framing.length)) return "not a power of two";
    if (family.sizes == Sizes::PowersOfTwo && framing.length > longestFrame) return "too long for one frame";
    return "no transform of this length";
}

// Returns the framing, so that an initializer can check it before it uses it.
const Framing& checked(const Framing& framing) {
    const Family& family = *framing.family;
    if (exists(family, framing.size, Ways::There)) return framing;
    throw UsageError(sizeWords(framing) + ": " + whyMissing(framing) + "; the " + std::string(family.name) +
                     " family has " + sizesOf(family, Ways::There));
}

// The two directions need not have the same sizes.
void expectWayBack(const Framing& framing, const std::string& purpose) {
    const Family& family = *framing.family;
    if (exists(family, framing.size, Ways::Both)) return;
    throw UsageError(purpose + " at " + sizeWords(framing) + ": " + whyMissing(framing) +
                     " back to the samples; both ways, the " + std::string(family.name) + " family has " +
                     sizesOf(family, Ways::Both));
}

std::variant<Prepared<float>, Prepared<double>> preparedFor(const Framing& framing) {
    if (framing.precision == Precision::Single) return Prepared<float>(framing);
    return Prepared<double>(framing);
}

// Converts complex values to plain numbers and back: both parts of each value, or the real part alone.
template <typename T>
void flatten(ConstBins values, int numbersInValue, std::vector<T>& numbers) {
    auto number = numbers.begin();
    for (const std::complex<double>& value : values) {
        *number++ = static_cast<T>(value.real());
        if (numbersInValue == 2) *number++ = static_cast<T>(value.imag());
    }
}

template <typename T>
void unflatten(const std::vector<T>& numbers, int numbersInValue, Bins& values) {
    values.resize(numbers.size() / static_cast<std::size_t>(numbersInValue));
    auto number = numbers.begin();
    for (std::complex<double>& value : values) {
        value.real(*number++);
        value.imag(numbersInValue == 2 ? *number++ : 0);
    }
}

// A sample that does not fit makes infinite bins too.
template <typename T>
void expectFinite(const std::vector<T>& bins) {
    T none = 0;
    for (T value : bins) none += value * 0;  // 0, or not a number
    if (none == 0) return;
    throw UserError(
        std::is_same_v<T, float>
            ? "the samples or their spectrum are beyond the range of 32 bits; --precision 64 has a wider one"
            : "the spectrum is beyond the range of 64 bits");
}

}  // namespace

template <typename T>
Prepared<T>::Prepared(const Framing& framing)
    : family(*framing.family),
      routines(routinesOf<T>(family)),
      call{framing.size, framing.flag, nullptr},
      samplesInFrame(static_cast<std::size_t>(framing.length)),
      numbersInBins(static_cast<std::size_t>(family.binCount(framing.length) * family.numbersInBin)) {
    makeRoom(1);
    if (routines.workspaceBytes) makeWorkspace();
    // Transforms silence once, so that the library can refuse the flag.
    const ZulgStatus status = routines.forward(points.data(), bins.data(), call);
    if (status == StatusFlagError) throw UsageError("--flag " + std::to_string(call.flag) + ": " + statusText(status));
    expectOk(status);
}

template <typename T>
void Prepared<T>::makeWorkspace() {
    std::int32_t bytes = 0;
    expectOk(routines.workspaceBytes(call.size, &bytes));
    constexpr std::size_t alignment = 64;
    const std::size_t lines = static_cast<std::size_t>(bytes) / alignment + 1;
    block.reset(std::aligned_alloc(alignment, lines * alignment));
    if (!block) throw std::bad_alloc();
    expectOk(routines.makeWorkspace(call.size, block.get(), &call.workspace));
}

template <typename T>
void Prepared<T>::makeRoom(std::size_t frames) {
    points.resize(frames * samplesInFrame * static_cast<std::size_t>(family.numbersInPoint));
    bins.resize(frames * numbersInBins);
}

template <typename T>
void Prepared<T>::forward(std::span<const double> samples, Bins& result) {
    const std::size_t frames = samples.size() / samplesInFrame;
    makeRoom(frames);
    auto point = points.begin();
    for (double sample : samples) {
        *point++ = static_cast<T>(sample);
        if (family.numbersInPoint == 2) *point++ = 0;
    }
    expectOk(routines.forwardMany(points.data(), bins.data(), call, static_cast<std::int64_t>(frames)));
    expectFinite(bins);
    unflatten(bins, family.numbersInBin, result);
}

template <typename T>
void Prepared<T>::inverse(ConstBins given, Bins& result) {
    makeRoom(1);
    flatten(given, family.numbersInBin, bins);
    const Call back{call.size, family.restoringFlag(call.flag), call.workspace};
    expectOk(routines.inverse(bins.data(), points.data(), back));
    unflatten(points, family.numbersInPoint, result);
}

template <typename T>
void Prepared<T>::fill(std::size_t frames) {
    makeRoom(frames);
    for (std::size_t i = 0; i < points.size(); ++i) points[i] = static_cast<T>(i % 7) - 3;
}

template <typename T>
void Prepared<T>::repeatOne() {
    expectOk(routines.forward(points.data(), bins.data(), call));
}

template <typename T>
void Prepared<T>::repeatAll() {
    expectOk(
        routines.forwardMany(points.data(), bins.data(), call, static_cast<std::int64_t>(bins.size() / numbersInBins)));
}

void expectTransform(const Framing& framing) { checked(framing); }

std::vector<int> lengthsOf(const Family& family) {
    std::vector<int> lengths;
    for (int length = 1; length <= longestFrame; ++length) {
        const bool isOrder = family.sizes == Sizes::Orders;
        if (family.sizes != Sizes::Lengths && !isPowerOfTwo(length)) continue;
        if (exists(family, isOrder ? std::countr_zero(static_cast<unsigned>(length)) : length, Ways::There)) {
            lengths.push_back(length);
        }
    }
    return lengths;
}

Transform::Transform(const Framing& framing, const char* purpose) : prepared(preparedFor(checked(framing))) {
    if (purpose) expectWayBack(framing, purpose);
}

void Transform::forward(std::span<const double> samples, Bins& bins) {
    std::visit([&](auto& transform) { transform.forward(samples, bins); }, prepared);
}

void Transform::inverse(ConstBins bins, Bins& points) {
    std::visit([&](auto& transform) { transform.inverse(bins, points); }, prepared);
}

void Transform::fill(std::size_t frames) {
    std::visit([&](auto& transform) { transform.fill(frames); }, prepared);
}
void Transform::repeatOne() {
    std::visit([](auto& transform) { transform.repeatOne(); }, prepared);
}
void Transform::repeatAll() {
    std::visit([](auto& transform) { transform.repeatAll(); }, prepared);
}

void RelativeError::add(std::span<const double> samples, const Bins& points) {
    for (std::size_t i = 0; i < samples.size(); ++i) {
        errors += std::norm(points[i] - samples[i]);
        squares += samples[i] * samples[i];
    }
}

double RelativeError::value() const {
    // Silence that comes back as silence has no error.
    return errors == 0 ? 0 : std::sqrt(errors / squares);
}

}  // namespace spectrum
