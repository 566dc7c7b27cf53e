// The file of a machine's choices: what a row does, and what is refused.
#include "output/tuning.h"

#include <gtest/gtest.h>

#include <sstream>

namespace test {
namespace {

using namespace gen;

Tuning tuningOf(const std::string& text) {
    std::istringstream rows(text);
    return Tuning(rows, "tuning.txt");
}

std::string faultOf(const std::string& text) {
    try {
        tuningOf(text);
    } catch (const std::runtime_error& error) {
        return error.what();
    }
    return "";
}

// The nodes in the order of their steps.
std::vector<NodeId> orderOf(const Schedule& schedule) {
    std::vector<NodeId> nodes;
    for (const Step& step : schedule.steps) nodes.push_back(step.node);
    return nodes;
}

TEST(Tuning, OrdersTheGraphsOfItsRowsByBisection) {
    const Tuning tuning = tuningOf("# a comment\n\ncomplex 16 bisection 4.5  # measured\nhartley 16 speed 6\n");
    for (const GraphEntry& entry : allGraphs()) {
        if (entry.name() != "complex 16" && entry.name() != "hartley 16") continue;
        const auto graph = entry.build();
        const auto bisected = orderOf(byBisection(*graph)), plain = orderOf(blockByBlock(*graph));
        EXPECT_NE(bisected, plain);
        EXPECT_EQ(orderOf(tuning.schedule(entry, *graph)), entry.name() == "complex 16" ? bisected : plain);
        EXPECT_EQ(orderOf(Tuning().schedule(entry, *graph)), plain);
        EXPECT_EQ(orderOf(readTuning("no such file").schedule(entry, *graph)), plain);
    }
}

TEST(Tuning, RefusesWhatItDoesNotUnderstandAndTellsWhere) {
    EXPECT_EQ(faultOf("complex 16 bisection -\n"), "");
    EXPECT_EQ(faultOf("\ncomplex 65 bisection -\n"), "tuning.txt:2: no graph complex 65");
    EXPECT_EQ(faultOf("complex 16 speed -\ncomplex 16 bisection -\n"), "");
    EXPECT_EQ(faultOf("complex 16 haste -\n"), "tuning.txt:1: no choice haste");
    EXPECT_EQ(faultOf("complex 16 bisection - \ncomplex 16 bisection 2\n"),
              "tuning.txt:2: a second row for complex 16, bisection");
    EXPECT_EQ(faultOf("complex 16 bisection\n"), "tuning.txt:1: a row is family, length, choice and gain");
    EXPECT_EQ(faultOf("complex 16 bisection 2 3\n"), "tuning.txt:1: a row is family, length, choice and gain");
}

}  // namespace
}  // namespace test
