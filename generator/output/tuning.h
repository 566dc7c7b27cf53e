// The choices between texts of one graph that no rule makes: a machine's, as measured and written down in files.
#pragma once

#include <iosfwd>
#include <map>
#include <string>
#include <utility>

#include "graph/schedule.h"
#include "output/catalogue.h"

namespace gen {

// A text has a folder and a length: "real_forward 20" has one number to a register, "real_forward_lines 20" four.
class Tuning {
public:
    // No choices: every text has the order that is usual for its form.
    Tuning() = default;

    // Adds the rows of a file: folder, length, order, gain. Text from a # on is a comment. `name` is that of the file,
    // for errors: a row that names no text or an unknown order, that has no figure, whose text has a row already, or
    // that does not have its four columns.
    void add(std::istream& rows, const std::string& name);

    // The order of the steps that is chosen for a text, and the schedule of the one with one number to a register.
    Order orderOf(const std::string& text, Order usual) const;
    Schedule schedule(const GraphEntry& entry, const Graph& graph) const;

    struct Row {
        Order order;
        double gain;  // in percent
    };
    const std::map<std::string, Row>& rows() const { return rowByText; }

private:
    std::map<std::string, Row> rowByText;
};

// The choices in the files of all targets of a tree; none where there is no such file.
Tuning readTuning(const std::string& tree);

}  // namespace gen
