// Times our exported routines, through the shared library, beside the peers that Debian packages.
//
//     bench --benchmark_filter='^complex_forward/double/'    times; all options of Google Benchmark
//     bench --check [PATTERN]                                holds each participant's result against ours instead
//     bench --library NAME=PATH ...                          further builds of our library take part under these names
//     bench --no-peers                                       builds of our library alone
//     bench --copy 0 .. 4                                    which copy of the timing loops is run
//     bench --load PATH ...                                  times loading and unloading of these, and nothing else
//
// A name is contest, element, size, participant: complex_forward/double/15/fftw_patient_scalar.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstring>
#include <optional>
#include <regex>

#include "benchmarks/cold.h"
#include "benchmarks/contest.h"
#include "benchmarks/library.h"

namespace bench {
namespace {

struct Options {
    bool isCheck = false;
    std::string pattern;
    std::vector<std::string> loaded;
    std::vector<char*> others;  // for Google Benchmark
};

Options readOptions(int argc, char** argv) {
    Options options;
    options.others.push_back(argv[0]);
    for (int i = 1; i < argc; ++i) {
        const std::string argument = argv[i];
        const bool hasValue = i + 1 < argc;
        if (argument == "--check") {
            options.isCheck = true;
        } else if (argument == "--no-peers") {
            peersTakePart() = false;
        } else if (argument == "--library" && hasValue && std::strchr(argv[i + 1], '=') != nullptr) {
            const std::string named = argv[++i];
            libraries().push_back(openLibrary(named.substr(0, named.find('=')), named.substr(named.find('=') + 1)));
        } else if (argument == "--copy" && hasValue) {
            chosenCopy() = std::clamp(std::atoi(argv[++i]), 0, copies - 1);
        } else if (argument == "--load" && hasValue) {
            options.loaded.push_back(argv[++i]);
        } else if (options.isCheck) {
            options.pattern = argument;
        } else {
            options.others.push_back(argv[i]);
        }
    }
    return options;
}

// The root of the summed squares of the difference, over that of the first result.
double distance(const Result& first, const Result& other) {
    double difference = 0, whole = 0;
    for (std::size_t i = 0; i < first.size(); ++i) {
        difference += (first[i] - other[i]) * (first[i] - other[i]);
        whole += first[i] * first[i];
    }
    return std::sqrt(difference / whole);
}

// Whether all compute the same transform. If so, they differ by rounding alone, which is not judged here.
bool isSameForAll(const Contest& contest) {
    std::optional<Result> first;
    bool isSame = true;
    const double bound = contest.name.find("/single/") != std::string::npos ? 1e-4 : 1e-12;
    for (const Participant& participant : contest.participants) {
        const Prepared call = participant.prepare();
        contest.fill();
        call.once();
        const Result result = participant.result();
        if (!first) first = result;
        const double apart = distance(*first, result);
        if (apart <= bound) continue;
        std::printf("%s/%s is %g away\n", contest.name.c_str(), participant.name.c_str(), apart);
        isSame = false;
    }
    return isSame;
}

int checkAll(const std::string& pattern) {
    const std::regex filter(pattern);
    int checked = 0, failed = 0;
    for (const Contest& contest : allContests())
        if (std::regex_search(contest.name, filter)) ++checked, failed += !isSameForAll(contest);
    std::printf("%d contests checked, %d of them between different transforms\n", checked, failed);
    return checked == 0 || failed > 0;
}

// Plans are made when a benchmark first runs: a filter spares the others.
void registerHot(const Contest& contest) {
    for (const Participant& participant : contest.participants)
        benchmark::RegisterBenchmark((contest.name + "/" + participant.name).c_str(),
                                     [prepare = participant.prepare, fill = contest.fill,
                                      call = std::optional<Prepared>()](benchmark::State& state) mutable {
                                         if (!call) call = prepare();
                                         fill();
                                         call->loop(state);
                                     });
}

// FFTW remembers what it has planned, so that `first_` is right only in a process that has timed nothing else.
void registerCold(const Contest& contest) {
    for (const Participant& participant : contest.participants) {
        const std::string name = contest.name + "/" + participant.name;
        benchmark::RegisterBenchmark(("cold_" + name).c_str(), timeCold, participant, contest.fill)
            ->UseManualTime()
            ->Iterations(1);
        benchmark::RegisterBenchmark(("first_" + name).c_str(), timeFirst, participant, contest.fill)
            ->UseManualTime()
            ->Iterations(1);
    }
}

void registerAll() {
    const std::regex cold("^(complex_forward|real_forward)/double/(4|8|15|16|31|32|47|53|60|64)$");
    for (const Contest& contest : allContests()) {
        registerHot(contest);
        if (std::regex_search(contest.name, cold)) registerCold(contest);
    }
}

}  // namespace
}  // namespace bench

int main(int argc, char** argv) {
    using namespace bench;
    Options options = readOptions(argc, argv);
    for (const std::string& path : options.loaded)
        benchmark::RegisterBenchmark(("load/" + path.substr(path.rfind('/') + 1)).c_str(), timeLoading, path);
    if (options.loaded.empty()) {
        libraries().insert(libraries().begin(), openLibrary("zulgenpx", ZULG_LIBRARY));
        if (options.isCheck) return checkAll(options.pattern);
        registerAll();
    }
    int count = static_cast<int>(options.others.size());
    benchmark::Initialize(&count, options.others.data());
    if (benchmark::ReportUnrecognizedArguments(count, options.others.data())) return 1;
    return benchmark::RunSpecifiedBenchmarks() == 0;
}
