// Runs the routines of a family and turns their statuses into errors.
// Which lengths exist is never listed here: the library is asked.
#include "transform.h"

#include <cmath>

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

template <typename T>
ZulgStatus runForward(const Family& family, int length, std::int32_t flag, std::span<const double> samples,
                      Bins& bins) {
    T in[longestLength]{};
    std::complex<T> out[longestLength];
    for (std::size_t i = 0; i < samples.size(); ++i) in[i] = static_cast<T>(samples[i]);
    const ZulgStatus status = routinesOf<T>(family).forward(in, out, length, flag);
    bins.assign(out, out + (status == StatusOk ? family.binCount(length) : 0));
    return status;
}

template <typename T>
ZulgStatus runInverse(const Family& family, int length, std::int32_t flag, const Bins& bins, Bins& points) {
    std::complex<T> in[longestLength], out[longestLength];
    for (std::size_t i = 0; i < bins.size(); ++i) in[i] = std::complex<T>(bins[i]);
    const ZulgStatus status = routinesOf<T>(family).inverse(in, out, length, flag);
    points.assign(out, out + length);
    return status;
}

// The tool's arrays bound the lengths that may be asked for at all.
ZulgStatus tryForward(const Family& family, int length, std::int32_t flag) {
    if (length < 1 || length > longestLength) return StatusSizeError;
    Bins bins;
    return runForward<double>(family, length, flag, {}, bins);
}

// The two directions need not have the same lengths.
ZulgStatus tryBothWays(const Family& family, int length, std::int32_t flag) {
    const ZulgStatus status = tryForward(family, length, flag);
    Bins points;
    return status != StatusOk ? status : runInverse<double>(family, length, family.restoringFlag(flag), {}, points);
}

// The lengths for which `attempt` succeeds, such as "2-10, 12, 14-16".
std::string lengthsOf(const Family& family, decltype(tryForward)& attempt) {
    const auto exists = [&](int length) { return attempt(family, length, DivInvByN) == StatusOk; };
    std::string list;
    for (int first = 1; first <= longestLength; ++first) {
        if (!exists(first)) continue;
        int last = first;
        while (exists(last + 1)) ++last;
        list += (list.empty() ? "" : ", ") + std::to_string(first) + (last > first ? "-" + std::to_string(last) : "");
        first = last;
    }
    return list.empty() ? "none" : list;
}

void expectOk(ZulgStatus status) {
    if (status != StatusOk) throw UserError(statusText(status));
}

}  // namespace

Transform::Transform(const Options& options)
    : family(*options.family), length(options.length), flag(options.flag), precision(options.precision) {
    const ZulgStatus status = tryForward(family, length, flag);
    if (status == StatusSizeError) {
        throw UserError("--length " + std::to_string(length) + ": " + statusText(status) + "; the " +
                        std::string(family.name) + " family has " + lengthsOf(family, tryForward));
    }
    if (status == StatusFlagError) throw UserError("--flag " + std::to_string(flag) + ": " + statusText(status));
    expectOk(status);
    if (options.check && tryBothWays(family, length, flag) == StatusSizeError) {
        throw UserError("--check at --length " + std::to_string(length) + ": " + statusText(StatusSizeError) +
                        " back to the samples; both ways, the " + std::string(family.name) + " family has " +
                        lengthsOf(family, tryBothWays));
    }
}

void Transform::forward(std::span<const double> samples, Bins& bins) const {
    expectOk(precision == Precision::Single ? runForward<float>(family, length, flag, samples, bins)
                                            : runForward<double>(family, length, flag, samples, bins));
}

void Transform::inverse(const Bins& bins, Bins& points) const {
    const std::int32_t restoring = family.restoringFlag(flag);
    expectOk(precision == Precision::Single ? runInverse<float>(family, length, restoring, bins, points)
                                            : runInverse<double>(family, length, restoring, bins, points));
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
