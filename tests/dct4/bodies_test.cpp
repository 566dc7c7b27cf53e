// The bodies of the DCT-IV, in the text that ships, run on a type that counts. The tests check their operations, and
// what they read and write.
#include <gtest/gtest.h>

#include <map>
#include <set>
#include <string>

#include "dct4/bodies/combine_16.h"
#include "dct4/bodies/combine_2.h"
#include "dct4/bodies/combine_32.h"
#include "dct4/bodies/combine_4.h"
#include "dct4/bodies/combine_8.h"
#include "dct4/bodies/direct_16.h"
#include "dct4/bodies/direct_2.h"
#include "dct4/bodies/direct_32.h"
#include "dct4/bodies/direct_4.h"
#include "dct4/bodies/direct_8.h"
#include "dct4/bodies/fold_16.h"
#include "dct4/bodies/fold_2.h"
#include "dct4/bodies/fold_32.h"
#include "dct4/bodies/fold_4.h"
#include "dct4/bodies/fold_64.h"
#include "dct4/bodies/fold_8.h"
#include "dct4/bodies/output_1.h"
#include "dct4/bodies/output_16.h"
#include "dct4/bodies/output_2.h"
#include "dct4/bodies/output_32.h"
#include "dct4/bodies/output_4.h"
#include "dct4/bodies/output_8.h"
#include "tests/counted.h"

namespace test {
namespace {

// Has every port of every body and notes what is read and written.
struct CountingPorts {
    using Value = Counted;
    template <class Graph>
    struct Constants {
        Counted operator[](int i) const { return Counted(Graph::constants[i]); }
    };

    mutable std::map<std::string, std::set<int>> read = {}, written = {};

    Counted in(int n) const { return note("in", n); }
    Counted re(int n) const { return note("re", n); }
    Counted im(int n) const { return note("im", n); }
    Counted table(int n) const { return note("table", n); }
    Counted inner(int n) const { return note("inner", n); }
    Counted outer(int n) const { return note("outer", n); }
    void out(int k, Counted) const { write("out", k); }
    void re(int k, Counted) const { write("re", k); }
    void im(int k, Counted) const { write("im", k); }
    void minusIm(int k, Counted) const { ++operationCounts.negations, write("im", k); }
    void rising(int k, Counted) const { write("rising", k); }
    void falling(int k, Counted) const { write("falling", k); }

private:
    Counted note(const char* port, int n) const {
        read[port].insert(n);
        return Counted(0.5);
    }
    void write(const char* port, int k) const { EXPECT_TRUE(written[port].insert(k).second) << port << " " << k; }
};

struct Done {
    int sums, products, negations;
    bool operator==(const Done&) const = default;
};

template <class Body>
Done run(const CountingPorts& ports) {
    operationCounts = {};
    Body::run(ports);
    return {operationCounts.sums(), operationCounts.multiplications, operationCounts.negations};
}

// Exactly 0 .. count-1.
void expectAll(const std::set<int>& places, int count) {
    EXPECT_EQ(places.size(), static_cast<std::size_t>(count));
    EXPECT_TRUE(places.empty() || (*places.begin() == 0 && *places.rbegin() == count - 1));
}

template <int points>
void expectFold(Done due) {
    const CountingPorts ports;
    EXPECT_EQ(run<zulg::Dct4Fold<points>>(ports), due) << points;
    expectAll(ports.read["in"], points);
    expectAll(ports.written["re"], points / 2);
    expectAll(ports.written["im"], points / 2);
}

TEST(Dct4Bodies, FoldsHoldTheCountsOfTheirTable) {
    expectFold<2>({0, 0, 1});  // its outputs are its inputs, the mirrored one with its sign changed
    expectFold<4>({6, 2, 0});
    expectFold<8>({24, 12, 0});
    expectFold<16>({68, 32, 0});
    expectFold<32>({184, 96, 0});
    expectFold<64>({448, 224, 0});
}

template <int radix>
void expectOutput(Done due) {
    const CountingPorts ports;
    EXPECT_EQ(run<zulg::Dct4Output<radix>>(ports), due) << radix;
    expectAll(ports.read["re"], radix);
    expectAll(ports.read["im"], radix);
    expectAll(ports.read["table"], 2 * radix);
    expectAll(ports.written["rising"], radix);
    expectAll(ports.written["falling"], radix);
}

TEST(Dct4Bodies, OutputRowsHoldTheCountsOfTheirTable) {
    expectOutput<1>({2, 4, 0});
    expectOutput<2>({10, 10, 0});
    expectOutput<4>({32, 28, 0});
    expectOutput<8>({88, 72, 0});
    expectOutput<16>({224, 176, 0});
    expectOutput<32>({512, 352, 0});
}

template <int radix>
void expectCombine(Done due, int inner, int outer) {
    const CountingPorts ports;
    EXPECT_EQ(run<zulg::Dct4Combine<radix>>(ports), due) << radix;
    expectAll(ports.read["re"], radix);
    expectAll(ports.read["im"], radix);
    expectAll(ports.read[radix > 8 ? "inner" : "table"], inner);
    expectAll(ports.read["outer"], outer);
    expectAll(ports.written["re"], radix);
    expectAll(ports.written["im"], radix);
}

TEST(Dct4Bodies, CombineRowsHoldTheCountsOfTheirTable) {
    expectCombine<2>({6, 4, 0}, 2, 0);
    expectCombine<4>({22, 12, 0}, 6, 0);
    expectCombine<8>({66, 32, 0}, 14, 0);
    expectCombine<16>({176, 96, 0}, 6, 24);
    expectCombine<32>({440, 224, 0}, 14, 48);
}

template <int points>
void expectDirect(Done due) {
    const CountingPorts ports;
    EXPECT_EQ(run<zulg::Dct4Direct<points>>(ports), due) << points;
    expectAll(ports.read["in"], points);
    expectAll(ports.written["out"], points);
}

TEST(Dct4Bodies, DirectTransformsHoldTheCountsOfTheirTable) {
    expectDirect<2>({2, 4, 0});
    expectDirect<4>({12, 8, 0});
    expectDirect<8>({32, 24, 0});
    expectDirect<16>({88, 64, 0});
    expectDirect<32>({216, 144, 0});
}

}  // namespace
}  // namespace test
