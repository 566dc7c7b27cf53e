// generate: writes the kernels, or tells what it would write. Run without arguments, it lists its verbs.
#include <filesystem>
#include <fstream>
#include <iostream>
#include <map>
#include <set>
#include <sstream>
#include <stdexcept>

#include "output/bounds.h"
#include "output/catalogue_json.h"
#include "output/emit.h"
#include "output/emit_lanes.h"
#include "output/graph_json.h"
#include "output/routine_tables.h"
#include "output/tuning.h"

namespace {

namespace fs = std::filesystem;

constexpr const char* usage =
    "usage: generate write            writes every generated file of the tree\n"
    "       generate check            compares the tree with what write would write; exit code 1 if they differ\n"
    "       generate show FAMILY N    prints the emitted text of one graph\n"
    "       generate show FAMILY N FORM   the same in registers of several lanes: pairs or lines\n"
    "       generate list FAMILY N    prints the graph itself, one node to a line\n"
    "       generate dot FAMILY N     prints the graph for GraphViz\n"
    "       generate graphs FOLDER    writes every graph as JSON into this folder, FAMILY_N.json\n"
    "       generate count            prints one row for each graph: construction and operation counts\n"
    "       generate bounds           prints the proved error bound of each kernel, in half a minute\n"
    "FAMILY: complex, real_forward, real_inverse, hartley, wht, dct4_fold, dct4_output, dct4_combine,\n"
    "dct4_direct.  The tree is the working folder.\n";

const gen::GraphEntry& find(const std::string& family, const std::string& length) {
    for (const gen::GraphEntry& entry : gen::allGraphs()) {
        if (entry.name() == family + " " + length) return entry;
    }
    throw std::runtime_error("no graph " + family + " " + length);
}

const gen::Tuning& tuning() {
    static const gen::Tuning choices = gen::readTuning(".");
    return choices;
}

std::string graphText(const gen::GraphEntry& entry, const gen::Graph& graph) {
    return gen::emitGraph(entry, graph, tuning().schedule(entry, graph));
}

// Path and text of every generated file.
std::map<std::string, std::string> allFiles() {
    std::map<std::string, std::string> files;
    std::vector<gen::KernelText> kernelTexts;
    std::map<std::string, gen::Counts> counts;
    for (const gen::GraphEntry& entry : gen::allGraphs()) {
        const auto graph = entry.build();
        files[entry.file()] = graphText(entry, *graph);
        counts[entry.name()] = graph->counts();
        if (entry.family->isBody()) continue;
        const int steps = gen::stepsOf(entry, *graph);
        kernelTexts.push_back({entry.file(), "scalar", entry.family->graphTemplate, &entry, steps});
        for (const gen::LaneText& text : gen::laneTexts(entry, *graph, tuning())) {
            files[text.file] = gen::emitLanes(entry, *graph, text);
            kernelTexts.push_back({text.file, text.form->name, text.form->graphTemplate, &entry, steps});
        }
    }
    files["kernels/texts.cmake"] = gen::emitTexts(kernelTexts);
    files["boundary/slots.inc"] = gen::emitSlots(gen::allExports());
    files["boundary/cpp_entries.inc"] = gen::emitEntries(gen::allExports());
    files["include/zulgenpx_routines.h"] = gen::emitRoutines(gen::allExports());
    files["include/zulgenpx_routines.hpp"] = gen::emitRoutineTables(gen::allExports());
    files["batch/slots.inc"] = gen::emitBatchSlots(gen::batchExports());
    files["batch/cpp_entries.inc"] = gen::emitEntries(gen::batchExports());
    files["include/zulgenpx_batch_routines.h"] = gen::emitBatchRoutines(gen::batchExports());
    files["include/zulgenpx_batch_routines.hpp"] = gen::emitBatchRoutineTables(gen::batchExports());
    files["docs/catalogue.json"] = gen::catalogueJson(gen::allExports(), gen::batchExports(), counts);
    return files;
}

std::string read(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    std::ostringstream text;
    text << file.rdbuf();
    return text.str();
}

// Files in the folders of generated files that nothing generates any more.
std::vector<fs::path> strayFiles(const std::map<std::string, std::string>& files) {
    std::set<std::string> folders;
    for (const gen::GraphFamily& family : gen::allFamilies()) {
        folders.insert(family.folder);
        for (const gen::LaneForm& form : family.laneForms) folders.insert(form.folder);
    }
    std::vector<fs::path> stray;
    for (const std::string& folder : folders) {
        if (!fs::exists(folder)) continue;
        for (const auto& item : fs::directory_iterator(folder)) {
            if (!files.contains(item.path().generic_string())) stray.push_back(item.path());
        }
    }
    return stray;
}

int write() {
    const auto files = allFiles();
    int written = 0;
    for (const auto& [path, text] : files) {
        if (read(path) == text && fs::exists(path)) continue;
        fs::create_directories(fs::path(path).parent_path());
        std::ofstream file(path, std::ios::binary);
        if (!(file << text).flush()) throw std::runtime_error("cannot write " + path);
        ++written;
    }
    for (const fs::path& path : strayFiles(files)) fs::remove(path);
    std::cout << files.size() << " files, " << written << " of them new or changed\n";
    return 0;
}

int check() {
    const auto files = allFiles();
    int different = 0;
    const auto report = [&](const std::string& what) {
        if (++different <= 20) std::cout << what << "\n";
    };
    for (const auto& [path, text] : files) {
        std::istringstream now(read(path)), due(text);
        std::string nowLine, dueLine;
        for (int number = 1;; ++number) {
            const bool hasNow = !std::getline(now, nowLine).fail(), hasDue = !std::getline(due, dueLine).fail();
            if (!hasNow && !hasDue) break;
            if (hasNow == hasDue && nowLine == dueLine) continue;
            report(path + ":" + std::to_string(number) + "\n  is:     " + (hasNow ? nowLine : "(nothing)") +
                   "\n  due is: " + (hasDue ? dueLine : "(nothing)"));
            break;
        }
    }
    for (const fs::path& path : strayFiles(files)) report(path.generic_string() + ": nothing generates this file");
    if (different == 0) return std::cout << files.size() << " generated files are current\n", 0;
    std::cout << different << " files differ. To accept: cmake --build --preset native --target regenerate\n";
    return 1;
}

int count() {
    for (const gen::GraphEntry& entry : gen::allGraphs()) {
        const auto graph = entry.build();
        const gen::Counts counts = graph->counts();
        std::cout << entry.name() << " | " << entry.recipe() << " | " << counts.additions << " | "
                  << counts.subtractions << " | "
                  << counts.multiplications + (entry.family->isBody() ? 0 : static_cast<int>(graph->outputs().size()))
                  << " | " << counts.negations << " | " << counts.constants << "\n";
    }
    return 0;
}

int graphs(const fs::path& folder) {
    fs::create_directories(folder);
    for (const gen::GraphEntry& entry : gen::allGraphs()) {
        const auto graph = entry.build();
        const fs::path path = folder / (entry.family->word + "_" + std::to_string(entry.length) + ".json");
        std::ofstream file(path, std::ios::binary);
        const std::string text = gen::graphJson(entry, *graph, tuning().schedule(entry, *graph));
        if (!(file << text).flush()) throw std::runtime_error("cannot write " + path.generic_string());
    }
    std::cout << gen::allGraphs().size() << " graphs\n";
    return 0;
}

int run(const std::vector<std::string>& words) {
    const std::string verb = words.empty() ? "" : words[0];
    if (words.size() == 1 && verb == "write") return write();
    if (words.size() == 1 && verb == "check") return check();
    if (words.size() == 1 && verb == "count") return count();
    if (words.size() == 2 && verb == "graphs") return graphs(words[1]);
    if (words.size() == 1 && verb == "bounds") return std::cout << gen::boundsTable(), 0;
    if (words.size() == 4 && verb == "show") {
        const gen::GraphEntry& entry = find(words[1], words[2]);
        const auto graph = entry.build();
        for (const gen::LaneText& text : gen::laneTexts(entry, *graph, tuning())) {
            if (text.form->name != words[3]) continue;
            std::cout << gen::emitLanes(entry, *graph, text);
            return 0;
        }
        throw std::runtime_error("no form " + words[3] + " of " + entry.name());
    }
    if (words.size() == 3 && (verb == "show" || verb == "list" || verb == "dot")) {
        const gen::GraphEntry& entry = find(words[1], words[2]);
        const auto graph = entry.build();
        std::cout << (verb == "show" ? graphText(entry, *graph) : verb == "list" ? graph->text() : graph->dot());
        return 0;
    }
    std::cerr << usage;
    return 2;
}

}  // namespace

int main(int argc, char** argv) {
    try {
        return run({argv + 1, argv + argc});
    } catch (const std::exception& error) {
        std::cerr << "generate: " << error.what() << "\n";
        return 1;
    }
}
