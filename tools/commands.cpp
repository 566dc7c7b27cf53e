// The commands of zulspectrum: what each is called with, and what it does.
#include "commands.h"

#include <cstdio>
#include <iostream>

#include "batch.h"
#include "batch_plan.h"
#include "bench.h"
#include "help_texts.h"
#include "info.h"
#include "inverse.h"
#include "json.h"
#include "layout.h"
#include "numbers.h"
#include "option_words.h"
#include "output_file.h"
#include "run.h"
#include "user_error.h"

namespace spectrum {
namespace {

constexpr Format allFormats[] = {Format::Text, Format::Csv, Format::JsonLines, Format::Npy, Format::Png, Format::Svg};
constexpr Format tableFormats[] = {Format::Text, Format::Csv, Format::JsonLines, Format::Npy};

// Warnings do not stop a run, so that each is a line of its own.
void printWarnings(const std::vector<std::string>& warnings) {
    for (const std::string& warning : warnings) std::fprintf(stderr, "zulspectrum: %s\n", warning.c_str());
}

Json jsonOf(const RunReport& report, const Options& options) {
    Json json{{"input", report.inputName}, {"samples", report.samples}, {"frames", report.frames}};
    if (report.isSound) {
        json["rate"] = report.rate;
        json["channel"] = channelWord(options.input.channel);
    }
    json["family"] = options.framing.family->name;
    json["length"] = options.framing.length;
    json["precision"] = options.framing.precision == Precision::Single ? 32 : 64;
    if (options.check) json["relative_error"] = report.relativeError;
    if (options.writesSpectrum && options.output != "-") json["output"] = options.output;
    json["damage"] = report.warnings;
    return json;
}

std::string checkText(const RunReport& report, const Options& options) {
    char text[200];
    std::string lines = "input           " + report.inputName + ", ";
    if (options.input.channel > 1) lines += "channel " + std::to_string(options.input.channel) + ", ";
    lines += std::to_string(report.samples) + " samples";
    if (report.isSound) {
        std::snprintf(text, sizeof text, ", %.3f s at %.0f Hz", static_cast<double>(report.samples) / report.rate,
                      report.rate);
        lines += text;
    }
    std::snprintf(text, sizeof text, "\ntransforms      %lld of %d points each way\nrelative error  %.3g",
                  static_cast<long long>(report.frames), options.framing.length, report.relativeError);
    return lines + text + " after the inverse transform\n";
}

int runInput(const Options& options) {
    // Where the spectrum is on standard output, the report must not get between its lines.
    std::ostream& stream = options.writesSpectrum && options.output == "-" ? std::cerr : std::cout;
    Json reports = Json::array();
    for (const Options& one : runsOf(options)) {
        const RunReport report = runSpectra(one, true);
        if (reports.empty()) printWarnings(report.warnings);  // damage is that of all channels
        reports.push_back(jsonOf(report, one));
        if (options.check && !options.json) stream << checkText(report, one);
    }
    if (options.json) stream << jsonText(options.input.channel == everyChannel ? reports : reports[0]);
    return 0;
}

Options spectraOptions(const Words& words, std::span<const Format> formats, Content content) {
    Options options{};
    options.framing = framingOf(words);
    options.input = inputOf(words, inputPath(words, "INPUT"));
    options.output = outputPath(words);
    options.content = content;
    options.format = formatOf(words, formats);
    if (words.values.contains("--columns")) options.picture = pictureOf(words);
    options.check = words.given("--check");
    options.json = words.given("--json");
    options.writesSpectrum = !options.check || words.given("--output") || words.given("--format");
    return options;
}

void declareSpectra(CLI::App& app, Words& words, const std::string& formats, bool hasPictures) {
    declareOperand(app, words, "INPUT", "Sound file, text file, or - for standard input");
    declareFraming(app, words);
    declareInput(app, words);
    if (hasPictures) declarePicture(app, words);
    declareOutput(app, words, formats);
}

void declarePlain(CLI::App& app, Words& words) {
    declareSpectra(app, words, "text, csv, json, npy, png or svg", true);
    declareFlag(app, words, "--version", "Print the version record of the library and exit");
}

int runPlain(const Words& words) {
    if (words.given("--version")) {
        std::cout << versionText();
        return 0;
    }
    return runInput(spectraOptions(words, allFormats, Content::Bins));
}

void declareTransform(CLI::App& app, Words& words) { declareSpectra(app, words, "text, csv, json or npy", false); }
int runTransform(const Words& words) { return runInput(spectraOptions(words, tableFormats, Content::Bins)); }

void declareSpectrogram(CLI::App& app, Words& words) {
    declareSpectra(app, words, "png, svg, or the magnitudes as csv, json, npy or text", true);
}
int runSpectrogram(const Words& words) { return runInput(spectraOptions(words, pictureFormats, Content::Magnitudes)); }

void declareLayout(CLI::App& app, Words& words) {
    declareOperand(app, words, "N", "Points of the real transform, 2 to 64");
    declareFlag(app, words, "--json", "Print the slots as JSON");
}

int runLayout(const Words& words) {
    if (!words.given("N")) throw UsageError("N is required: the points of the real transform, 2 to 64");
    const int length = static_cast<int>(wholeNumber("N", words["N"], -1000000, 1000000));
    std::cout << (words.given("--json") ? layoutJson(length) : layoutText(length));
    return 0;
}

// Files that the build makes of the declarations.
void declareTextOutput(CLI::App& app, Words& words) {
    declareOption(app, words, "--output", "FILE", "File to write [standard output]", "-");
}

int writeText(const Words& words, const std::string& text) {
    OutputFile file(words["--output"]);
    file.write(text);
    file.close();
    return 0;
}

void declareCompletion(CLI::App& app, Words& words) {
    declareOperand(app, words, "SHELL", "bash, zsh or fish");
    declareTextOutput(app, words);
}

int runCompletion(const Words& words) {
    if (!words.given("SHELL")) throw UsageError("SHELL is required: bash, zsh or fish");
    return writeText(words, completionScript(words["SHELL"], "zulspectrum", commands()));
}

void declareManual(CLI::App& app, Words& words) {
    declareTextOutput(app, words);
    declareFlag(app, words, "--mpi", "The page of zulspectrum-mpi");
}

int runManual(const Words& words) {
    if (!words.given("--mpi")) return writeText(words, manualPage("zulspectrum", commands()));
    const Command cluster{"", clusterSummary, "FILE-OR-FOLDER ...", declareClusterOptions, nullptr, mpiFooter};
    return writeText(words, manualPage("zulspectrum-mpi", {cluster}));
}

}  // namespace

const std::vector<Command>& commands() {
    static const std::vector<Command> all = {
        {"", "Short-time spectra with the transforms of zulgenpx", "INPUT", declarePlain, runPlain, plainFooter},
        {"transform", "Bins of each frame, as a table", "INPUT", declareTransform, runTransform, transformFooter},
        {"spectrogram", "Magnitudes over time, as a picture or a table", "INPUT", declareSpectrogram, runSpectrogram,
         spectrogramFooter},
        {"inverse", "Samples from the spectra that transform has written", "INPUT", declareInverse, runInverse,
         inverseFooter},
        {"batch", "Spectra of many files, on all cores", "FILE-OR-FOLDER ...", declareBatch, runBatch, batchFooter},
        {"layout", "Which slot of the layouts CCS, Pack and Perm holds what", "N", declareLayout, runLayout,
         layoutFooter},
        {"info", "What the library knows of one of its routines", "[ROUTINE]", declareInfo, runInfo, infoFooter},
        {"bench", "How long the transforms take on this machine", "", declareBench, runBench, benchFooter},
        {"completion", "A script that completes words in bash, zsh or fish", "SHELL", declareCompletion, runCompletion,
         completionFooter},
        {"manual", "", "", declareManual, runManual, ""},  // for the build
    };
    return all;
}

std::string versionText() {
    const LibVersion& library = *zulgenGetLibVersion();
    const std::string_view cpu(library.targetCpu, sizeof library.targetCpu);
    const auto number = [](std::int32_t value) { return std::to_string(value); };
    return std::string("zulspectrum with ") + library.name + ", version " + library.version + ", " + library.buildDate +
           "\nmajor.minor.majorBuild.build " + number(library.major) + "." + number(library.minor) + "." +
           number(library.majorBuild) + "." + number(library.build) + ", targetCpu " +
           std::string(cpu.substr(0, cpu.find('\0'))) + "\n";
}

}  // namespace spectrum
