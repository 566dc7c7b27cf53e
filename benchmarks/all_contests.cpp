// Which transforms of which sizes are timed.
#include "benchmarks/contest.h"
#include "benchmarks/library.h"

namespace bench {
namespace {

constexpr Transform kernels[] = {Transform::ComplexForward,  Transform::ComplexInverse,  Transform::RealForward,
                                 Transform::RealInverse,     Transform::PackedForward,   Transform::PackedInverse,
                                 Transform::PermutedForward, Transform::PermutedInverse, Transform::Hartley};

template <class Element>
Contest contest(Transform transform, int size) {
    Field<Element> field("", transform, size);
    addOurs(field);
    if (!peersTakePart()) return field.contest;
    addFftw(field);
    addKissfft(field);
    addGsl(field);
    addPlainLoop(field);
    return field.contest;
}

template <class Element>
Contest batchContest(Transform transform, int size, int count, bool areBeside) {
    const std::string prefix = std::string("batch_") + (areBeside ? "beside_" : "") + std::to_string(count) + "_";
    Field<Element> field(prefix, transform, size, count, areBeside);
    addOurBatch(field);
    if (peersTakePart()) addFftw(field);
    return field.contest;
}

template <class Element>
Contest dispatchContest(Transform transform, int size) {
    Field<Element> field("dispatch_", transform, size);
    addOurs(field);
    addOurDispatcher(field);
    return field.contest;
}

template <class Element>
void addContests(std::vector<Contest>& all) {
    for (const Transform transform : kernels)
        for (int length = 2; length <= 64; ++length) all.push_back(contest<Element>(transform, length));
    for (int length = 2; length <= 65536; length *= 2) all.push_back(contest<Element>(Transform::Dct4, length));
    for (int order = 1; order <= 13; ++order) all.push_back(contest<Element>(Transform::WalshHadamard, 1 << order));
    // Half spectra that are side by side are in another order at FFTW.
    for (const int count : {32, 1024}) {
        for (int length = 2; length <= 64; ++length) {
            all.push_back(batchContest<Element>(Transform::ComplexForward, length, count, false));
            all.push_back(batchContest<Element>(Transform::ComplexForward, length, count, true));
            all.push_back(batchContest<Element>(Transform::RealForward, length, count, false));
            all.push_back(batchContest<Element>(Transform::RealInverse, length, count, false));
            all.push_back(batchContest<Element>(Transform::Hartley, length, count, true));
        }
    }
    // Longer ones take so much time that a difference of a nanosecond is not seen.
    for (int length = 2; length <= 24; ++length)
        all.push_back(dispatchContest<Element>(Transform::ComplexForward, length));
}

}  // namespace

std::vector<Contest> allContests() {
    std::vector<Contest> all;
    addContests<double>(all);
    addContests<float>(all);
    std::erase_if(all, [](const Contest& contest) {
        return contest.participants.empty() || contest.participants.front().name != libraries().front().name;
    });
    return all;
}

}  // namespace bench
