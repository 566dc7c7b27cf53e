// A contest: one transform of one size, and all who compute it, on the same arrays. A participant makes one call from
// source to destination. That call is timed, and its result is compared with that of the first participant.
#pragma once

#include <benchmark/benchmark.h>

#include <cstdlib>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "benchmarks/core_probe.h"

namespace bench {

enum class Transform {
    ComplexForward,
    ComplexInverse,
    RealForward,  // half spectrum with room for the imaginary parts of the real bins, as NumPy's rfft has it
    RealInverse,
    PackedForward,  // half spectrum in as many numbers as there are points
    PackedInverse,
    PermutedForward,  // the same, with the real bin of an even length beside that of frequency zero
    PermutedInverse,
    Hartley,
    Dct4,
    WalshHadamard
};

// Source and destination, each on cache lines of its own: peers with vector instructions want alignment.
template <class Element>
struct Arrays {
    Arrays(int sourceCount, int destinationCount);

    void fill() const;  // source: the same numbers each time; destination: zero

    int sourceCount, destinationCount;
    std::unique_ptr<Element[], decltype(&std::free)> sourceOwner, destinationOwner;
    Element* source;
    Element* destination;
};

// One call, ready to run. A loop holds the call itself and not a pointer to a function that makes it.
struct Prepared {
    std::function<void()> once;
    std::function<void(benchmark::State&)> loop;
};

// Copies of each loop, at different addresses within a page. The time of code that nearly fills the cache of decoded
// instructions depends on the address of its caller. So a process times one copy, and the best process counts.
constexpr int copies = 5;
int& chosenCopy();

template <int copy, class Call>
[[gnu::noinline]] void timedLoop(benchmark::State& state, Call call) {
    constexpr int bytesBetween = 832;
    asm volatile(".skip %c0, 0x90" : : "i"((copy + 1) * bytesBetween));
    const CoreProbe before = probeCore();
    for (auto _ : state) call();
    report(state, before, probeCore());
}

template <class Call>
Prepared prepared(Call call) {
    static constexpr void (*loops[copies])(benchmark::State&, Call) = {
        timedLoop<0, Call>, timedLoop<1, Call>, timedLoop<2, Call>, timedLoop<3, Call>, timedLoop<4, Call>};
    return {[call] { call(); }, [call](benchmark::State& state) { loops[chosenCopy()](state, call); }};
}

using Result = std::vector<double>;

// Half spectra in as many numbers as points. Peers know the order of Pack, or one that comes from it. In that of Perm,
// the last number of an even length is the second one.
Result packedToOurs(Transform transform, Result packed);
Result oursToPacked(Transform transform, Result ours);

struct Participant {
    std::string name;
    std::function<Prepared()> prepare;  // makes plans, and may take long
    std::function<Result()> result;     // the destination after one call, in our order and at our scale
};

struct Contest {
    std::string name;  // "complex_forward/double/15"
    std::function<void()> fill;
    std::vector<Participant> participants;
};

// All contests in which our library takes part. There is one for each transform of each size, with caches that are
// warm. A contest with the prefix `batch_` has many transforms in a call, each on data of its own: one after the other
// or, with `batch_beside_`, side by side. One with `dispatch_` compares our routine of a fixed length with the one that
// takes the length as an argument.
std::vector<Contest> allContests();

// A contest of one element type while participants are added.
template <class Element>
struct Field {
    Field(const std::string& prefix, Transform transform, int size, int count = 1, bool areBeside = false);

    // What is in the destination, times a factor.
    std::function<Result()> destination(double factor = 1) const;

    Transform transform;
    int size;        // points
    int count;       // transforms to a call
    bool areBeside;  // element k of all transforms, then element k + 1 of them
    std::shared_ptr<Arrays<Element>> arrays;
    Contest contest;
};

// Each adds what it has for the field's transform and size, or nothing.
template <class Element>
void addOurs(Field<Element>& field);
// One call of the batch library, and a loop of calls of the main library.
template <class Element>
void addOurBatch(Field<Element>& field);
template <class Element>
void addOurDispatcher(Field<Element>& field);
template <class Element>
void addFftw(Field<Element>& field);
template <class Element>
void addKissfft(Field<Element>& field);
template <class Element>
void addGsl(Field<Element>& field);
template <class Element>
void addPlainLoop(Field<Element>& field);

}  // namespace bench
