#include "output/tuning.h"

#include <algorithm>
#include <fstream>
#include <sstream>
#include <stdexcept>

namespace gen {

Tuning::Tuning(std::istream& text, const std::string& name) {
    int number = 0;
    for (std::string line; std::getline(text, line);) {
        ++number;
        const auto fail = [&](const std::string& fault) {
            throw std::runtime_error(name + ":" + std::to_string(number) + ": " + fault);
        };
        std::istringstream columns(line.substr(0, line.find('#')));
        std::string family, length, choice, gain, more;
        if (!(columns >> family)) continue;
        if (!(columns >> length >> choice >> gain) || columns >> more) fail("a row is family, length, choice and gain");
        const std::string graph = family + " " + length;
        if (std::ranges::find(allGraphs(), graph, &GraphEntry::name) == allGraphs().end()) fail("no graph " + graph);
        if (choice != "bisection" && choice != "speed") fail("no choice " + choice);
        std::istringstream figure(gain);
        double percent = 0;
        if (!(figure >> percent) || !figure.eof()) fail("the gain is no number: " + gain);
        if (!gains.insert({{graph, choice}, percent}).second) fail("a second row for " + graph + ", " + choice);
    }
}

Schedule Tuning::schedule(const GraphEntry& entry, const Graph& graph) const {
    return gains.contains({entry.name(), "bisection"}) ? byBisection(graph) : blockByBlock(graph);
}

Tuning readTuning(const std::string& path) {
    std::ifstream file(path);
    return file ? Tuning(file, path) : Tuning();
}

}  // namespace gen
