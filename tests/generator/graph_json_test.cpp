// A graph as JSON. What the numbers mean is held against the definitions by tests/site/graphs.py.
#include "output/graph_json.h"

#include <gtest/gtest.h>

#include "output/tuning.h"

namespace test {
namespace {

using namespace gen;

std::string jsonOf(const std::string& name) {
    for (const GraphEntry& entry : allGraphs()) {
        if (entry.name() != name) continue;
        const auto graph = entry.build();
        return graphJson(entry, *graph, blockByBlock(*graph));
    }
    throw std::runtime_error("no graph " + name);
}

TEST(GraphJson, StepsReferToEarlierOnesAndStoresToSteps) {
    EXPECT_EQ(jsonOf("complex 2"),
              "{\"family\": \"complex\", \"length\": 2, \"title\": \"Complex DFT of 2 points\", \"recipe\": \"base\", "
              "\"text\": \"kernels/complex/dft_2.h\", \"rule\": \"generator/rules/tables.cpp\",\n"
              "\"additions\": 2, \"subtractions\": 2, \"multiplications\": 0, \"steps_with_scale\": 8, "
              "\"most_alive\": 5,\n"
              "\"blocks\": [[\"\",0,0,1,1,0,0],\n[\"complex block of 2\",0,2,1,1,0,0]],\n"
              "\"constants\": [],\n\"inputs\": [\"x0r\",\"x1r\",\"x0i\",\"x1i\"],\n"
              "\"steps\": [[0,0,0,0],[0,1,0,0],[1,0,1,1],[0,2,0,0],[0,3,0,0],[1,3,4,1],[2,0,1,1],[2,3,4,1]],\n"
              "\"outputs\": [[\"re\",0,2,0],[\"im\",0,5,0],[\"re\",1,6,0],[\"im\",1,7,0]],\n"
              "\"pairs\": [[0,3],[1,4],[2,5],[6,7]]}\n");
}

TEST(GraphJson, TheTwoOfThePortsComesAfterTheConstantsOfTheText) {
    const std::string json = jsonOf("real_inverse 3");
    EXPECT_NE(json.find("\"constants\": [[0.5,\"-cos 2 pi 1/3\"],\n[1.7320508075688772,\"sin 2 pi 1/3 times 2\"],\n"
                        "[2.0,\"2\"]]"),
              std::string::npos);
}

}  // namespace
}  // namespace test
