// table_digests LIBRARY: digests of the DCT-IV above 32 points over given tables, one line for each length and kind of
// input:
//
//     zulgDCT4_64f 4096 moderate 1f3b...
//
// The tables of a plan depend on the cosine and the sine of the machine. Here the library builds a plan, and its tables
// are replaced by given ones, which are the same everywhere: the library's own sources build them in this program, with
// a cosine and a sine from integers. What the two disagree in is printed as an error if it is more than one unit of the
// last place.
#include <bit>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <string>
#include <vector>

#include "dct4/dct4.h"
#include "dct4/records.h"
#include "tests/same_bits/digest.h"
#include "tests/same_bits/exact_cosine.h"
#include "tests/transforms/float_state.h"

// What the sources of the plan call in this program. The build hides the two, so that the library itself calls those of
// the mathematics library.
extern "C" {
double cos(double x) noexcept { return test::exactCosine(x); }
double sin(double x) noexcept { return test::exactSine(x); }
}

namespace {

using zulg::DctPlan;

// Plans in this program, and in the library.
template <class Element>
struct Routines {
    explicit Routines(const std::string& suffix)
        : getSize(find<decltype(getSize)>("zulgDCT4GetSize" + suffix)),
          init(find<decltype(init)>("zulgDCT4Init" + suffix)),
          run(find<decltype(run)>("zulgDCT4" + suffix)) {}

    ZulgStatus(ZULG_CALL* getSize)(std::int32_t, std::int32_t*);
    ZulgStatus(ZULG_CALL* init)(DctPlan**, std::int32_t, std::uint8_t*);
    ZulgStatus(ZULG_CALL* run)(const Element*, Element*, DctPlan*);

private:
    template <class Routine>
    static Routine find(const std::string& name) {
        void* const address = test::find(name);
        if (address == nullptr) std::fprintf(stderr, "%s is missing\n", name.c_str()), std::exit(1);
        return reinterpret_cast<Routine>(address);
    }
};

// A block of 32-byte alignment.
class Block {
public:
    explicit Block(std::int32_t bytes) : memory(static_cast<std::size_t>(bytes) + 32) {}
    std::uint8_t* data() { return memory.data() + (32 - reinterpret_cast<std::uintptr_t>(memory.data()) % 32) % 32; }

private:
    std::vector<std::uint8_t> memory;
};

template <class Element>
struct Table {
    Element* first;
    std::size_t entries;
};

template <class Record>
Record* recordIn(const zulg::PlanListNode* list) {
    return reinterpret_cast<Record*>(list->value.get());
}

template <class Element, class Stage>
Table<Element> tableOf(const Stage& stage) {
    return {static_cast<Element*>(stage.table.get()),
            static_cast<std::size_t>(stage.rows) * static_cast<std::size_t>(Stage::rowEntries(stage.radix))};
}

// All tables of a plan, from the top down.
template <class Element>
std::vector<Table<Element>> tablesOf(const DctPlan& plan) {
    std::vector tables{tableOf<Element>(*recordIn<zulg::OutputStage>(plan.post))};
    const zulg::PlanListNode* children = recordIn<zulg::FoldStage>(plan.pre)->children;
    while (const auto* split = recordIn<zulg::SkewSplit>(children)) {
        tables.push_back(tableOf<Element>(*recordIn<zulg::CombineStage>(split->post)));
        children = recordIn<zulg::FoldStep>(split->pre)->children;
    }
    return tables;
}

// How many numbers are between two numbers of one sign, and one more.
template <class Element>
std::int64_t unitsBetween(Element a, Element b) {
    using Bits = std::conditional_t<sizeof(Element) == 8, std::int64_t, std::int32_t>;
    const std::int64_t difference = std::int64_t{std::bit_cast<Bits>(a)} - std::bit_cast<Bits>(b);
    return difference < 0 ? -difference : difference;
}

// Replaces the tables of one plan by those of another. Returns the largest difference.
template <class Element>
std::int64_t replaceTables(const DctPlan& plan, const DctPlan& given) {
    const auto tables = tablesOf<Element>(plan), from = tablesOf<Element>(given);
    if (tables.size() != from.size()) std::fputs("the plans have other records\n", stderr), std::exit(1);
    std::int64_t largest = 0;
    for (std::size_t i = 0; i < tables.size(); ++i) {
        for (std::size_t j = 0; j < tables[i].entries; ++j) {
            largest = std::max(largest, unitsBetween(tables[i].first[j], from[i].first[j]));
            tables[i].first[j] = from[i].first[j];
        }
    }
    return largest;
}

template <class Element>
bool digestLengths(const std::string& suffix) {
    const Routines<Element> library(suffix);
    bool agree = true;
    for (std::int32_t length = 64; length <= 131072; length *= 2) {
        std::int32_t bytes = 0;
        library.getSize(length, &bytes);
        Block block(bytes), givenBlock(bytes);
        DctPlan *plan = nullptr, *given = nullptr;
        if (library.init(&plan, length, block.data()) != StatusOk ||
            zulg::dct4Init<Element>(&given, length, givenBlock.data()) != StatusOk) {
            std::fprintf(stderr, "zulgDCT4Init%s refuses %d\n", suffix.c_str(), static_cast<int>(length));
            return false;
        }
        const std::int64_t units = replaceTables<Element>(*plan, *given);
        if (units > 1) {
            std::fprintf(stderr, "zulgDCT4Init%s %d: an entry is %lld units off\n", suffix.c_str(),
                         static_cast<int>(length), static_cast<long long>(units));
            agree = false;
        }
        test::NameDigests digests;
        digests.feed<Element>(
            static_cast<std::size_t>(length), test::randomInputs + 4,
            [&](const Element* source, Element* destination, int) { return library.run(source, destination, plan); });
        digests.print("zulgDCT4" + suffix + " " + std::to_string(length));
    }
    return agree;
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::fputs("usage: table_digests LIBRARY\n", stderr);
        return 2;
    }
    if (!test::load(argv[1])) {
        std::fprintf(stderr, "table_digests: %s does not load\n", argv[1]);
        return 1;
    }
    const test::DoublePrecisionRegisters asElsewhere;
    const bool singlesAgree = digestLengths<float>("_32f");
    return digestLengths<double>("_64f") && singlesAgree ? 0 : 1;
}
