// The file of a machine's choices: what a row does, and what is refused.
#include "output/tuning.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
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
    EXPECT_EQ(faultOf("complex 16 speed 5\ncomplex 16 bisection 7.5\n"), "");
    EXPECT_EQ(faultOf("\ncomplex 65 bisection 7\n"), "tuning.txt:2: no graph complex 65");
    EXPECT_EQ(faultOf("complex 16 haste 7\n"), "tuning.txt:1: no choice haste");
    EXPECT_EQ(faultOf("complex 16 bisection 6\ncomplex 16 bisection 7\n"),
              "tuning.txt:2: a second row for complex 16, bisection");
    EXPECT_EQ(faultOf("complex 16 bisection -\n"), "tuning.txt:1: the gain is no number: -");
    EXPECT_EQ(faultOf("complex 16 bisection 7%\n"), "tuning.txt:1: the gain is no number: 7%");
    EXPECT_EQ(faultOf("complex 16 bisection\n"), "tuning.txt:1: a row is family, length, choice and gain");
    EXPECT_EQ(faultOf("complex 16 bisection 7 3\n"), "tuning.txt:1: a row is family, length, choice and gain");
}

// A choice that gains less is not worth a row.
TEST(Tuning, TheTableHasTextsOfKernelsAndGainsWorthARow) {
    const Tuning tuning = readTuning(ZULG_SOURCE "/targets/x86_64/tuning.txt");
    EXPECT_FALSE(tuning.rows().empty());
    for (const auto& [row, gain] : tuning.rows()) {
        SCOPED_TRACE(row.first + " " + row.second);
        const auto graph = std::ranges::find(allGraphs(), row.first, &GraphEntry::name);
        ASSERT_NE(graph, allGraphs().end());
        EXPECT_FALSE(graph->family->isBody());
        EXPECT_TRUE(std::filesystem::exists(ZULG_SOURCE "/" + graph->file()));
        EXPECT_GE(gain, 5);
    }
}

}  // namespace
}  // namespace test
