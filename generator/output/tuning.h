// The choices between texts of one graph that no rule makes: a machine's, as measured and written down in a file.
#pragma once

#include <iosfwd>
#include <map>
#include <string>
#include <utility>

#include "graph/schedule.h"
#include "output/catalogue.h"

namespace gen {

class Tuning {
public:
    // No choices: every graph is ordered block by block.
    Tuning() = default;

    // The rows of a file: family, length, choice, gain. Text from a # on is a comment. `name` is that of the file, for
    // errors: a row that names no graph or an unknown choice, that has no figure, that is there twice, or that does not
    // have its four columns. The choice `speed` is about flags of the compiler and changes no text.
    Tuning(std::istream& text, const std::string& name);

    // The order of the steps that is chosen for a graph.
    Schedule schedule(const GraphEntry& entry, const Graph& graph) const;

    // (name of the graph, choice) -> gain in percent.
    const std::map<std::pair<std::string, std::string>, double>& rows() const { return gains; }

private:
    std::map<std::pair<std::string, std::string>, double> gains;
};

// The choices in this file; none if there is no such file.
Tuning readTuning(const std::string& path);

}  // namespace gen
