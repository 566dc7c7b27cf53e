// Each transform is called as a program would call it, through the dispatcher of its family.
#include "bench.h"

#include <cstdio>
#include <iostream>

#include "json.h"
#include "numbers.h"
#include "option_words.h"
#include "timing.h"
#include "transform.h"
#include "user_error.h"

namespace spectrum {
namespace {

struct Row {
    int length;
    double single[2], many[2];  // nanoseconds of one transform, in 32 and in 64 bits
};

// Such as "15,16,60", or all that the family has.
std::vector<int> lengthsOf(const Words& words, const Family& family) {
    std::vector<int> lengths;
    if (!words.given("--lengths")) {
        for (int length : lengthsOf(family)) {
            if (length <= 8192) lengths.push_back(length);
        }
        return lengths;
    }
    const std::string& all = words["--lengths"];
    for (std::size_t start = 0; start <= all.size();) {
        const std::size_t end = std::min(all.find(',', start), all.size());
        lengths.push_back(static_cast<int>(wholeNumber("--lengths", all.substr(start, end - start), 1, longestFrame)));
        start = end + 1;
    }
    return lengths;
}

Row measured(Framing framing, double seconds) {
    Row row{framing.length, {}, {}};
    for (int i = 0; i < 2; ++i) {
        framing.precision = i == 0 ? Precision::Single : Precision::Double;
        Transform transform(framing);
        const std::int64_t frames = std::max(1, 4096 / framing.length);
        transform.fill(static_cast<std::size_t>(frames));
        row.single[i] = 1e9 * secondsOf([&] { transform.repeatOne(); }, seconds);
        row.many[i] = 1e9 * secondsOf([&] { transform.repeatAll(); }, seconds) / static_cast<double>(frames);
    }
    return row;
}

}  // namespace

void declareBench(CLI::App& app, Words& words) {
    declareOption(app, words, "--family", "NAME", "Transform family, as in the plain run", "complex");
    declareOption(app, words, "--lengths", "N,N,...", "Points of the transforms [all of the family, up to 8192]");
    declareOption(app, words, "--time", "SECONDS", "Of one round", "0.01");
    declareFlag(app, words, "--json", "Print the figures as JSON");
}

int runBench(const Words& words) {
    const double seconds = realNumber("--time", words["--time"]);
    if (seconds < 1e-5 || seconds > 100) {
        throw UsageError("--time " + shownWord(words["--time"]) + ": a round takes 0.00001 to 100 seconds");
    }
    const Family& family = familyNamed(words["--family"]);
    std::vector<Framing> framings;
    for (int length : lengthsOf(words, family)) {
        framings.push_back(plainFraming(family, length));
        expectTransform(framings.back());
    }
    Json rows = Json::array();
    if (!words.given("--json")) {
        std::printf("# family %.*s, nanoseconds of one transform\n", static_cast<int>(family.name.size()),
                    family.name.data());
        std::printf("# %6s %12s %12s %16s %16s\n", "length", "32 bits", "64 bits", "32 bits, many", "64 bits, many");
    }
    for (const Framing& framing : framings) {
        const Row row = measured(framing, seconds);
        if (words.given("--json")) {
            rows.push_back({{"length", row.length},
                            {"single_32", row.single[0]},
                            {"single_64", row.single[1]},
                            {"many_32", row.many[0]},
                            {"many_64", row.many[1]}});
            continue;
        }
        std::printf("%8d %12.1f %12.1f %16.1f %16.1f\n", row.length, row.single[0], row.single[1], row.many[0],
                    row.many[1]);
        std::fflush(stdout);
    }
    if (words.given("--json")) {
        std::cout << jsonText({{"family", family.name}, {"unit", "nanoseconds of one transform"}, {"rows", rows}});
    }
    return 0;
}

}  // namespace spectrum
