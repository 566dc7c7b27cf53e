#include "output/tuning.h"

#include <algorithm>
#include <fstream>
#include <sstream>
#include <stdexcept>

namespace gen {
namespace {

bool isText(const std::string& folder, int length) {
    return std::ranges::any_of(allGraphs(), [&](const GraphEntry& entry) {
        const auto isForm = [&](const LaneForm& form) { return form.folder == "kernels/" + folder; };
        return entry.length == length &&
               (entry.family->word == folder || std::ranges::any_of(entry.family->laneForms, isForm));
    });
}

}  // namespace

void Tuning::add(std::istream& rows, const std::string& name) {
    int number = 0;
    for (std::string line; std::getline(rows, line);) {
        ++number;
        const auto fail = [&](const std::string& fault) {
            throw std::runtime_error(name + ":" + std::to_string(number) + ": " + fault);
        };
        std::istringstream columns(line.substr(0, line.find('#')));
        std::string folder, order, gain, more;
        int length = 0;
        if (!(columns >> folder)) continue;
        if (!(columns >> length >> order >> gain) || columns >> more) fail("a row is folder, length, order and gain");
        const std::string text = folder + " " + std::to_string(length);
        if (!isText(folder, length)) fail("no text " + text);
        if (order != "bisection" && order != "blocks") fail("no order " + order);
        std::istringstream figure(gain);
        double percent = 0;
        if (!(figure >> percent) || !figure.eof()) fail("the gain is no number: " + gain);
        const Row row{order == "bisection" ? Order::Bisection : Order::Blocks, percent};
        if (!rowByText.insert({text, row}).second) fail("a second row for " + text);
    }
}

Order Tuning::orderOf(const std::string& text, Order usual) const {
    const auto row = rowByText.find(text);
    return row == rowByText.end() ? usual : row->second.order;
}

Schedule Tuning::schedule(const GraphEntry& entry, const Graph& graph) const {
    return orderOf(entry.name(), Order::Blocks) == Order::Bisection ? byBisection(graph) : blockByBlock(graph);
}

Tuning readTuning(const std::string& tree) {
    Tuning tuning;
    for (const std::string path : {"targets/x87/tuning.txt", "targets/x86_64/tuning.txt"}) {
        if (std::ifstream file(tree + "/" + path); file) tuning.add(file, path);
    }
    return tuning;
}

}  // namespace gen
