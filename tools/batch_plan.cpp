// The journal is a file of JSON lines in the folder of the outputs: what all runs have in common, then a line for each
// output that is done. A line that a killed run left unfinished counts as none.
#include "batch_plan.h"

#include <fcntl.h>
#include <fnmatch.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <fstream>
#include <iostream>

#include "numbers.h"
#include "run.h"
#include "user_error.h"

namespace spectrum {
namespace {

namespace fs = std::filesystem;

bool isHidden(const fs::path& path) { return path.filename().string().starts_with("."); }

bool matches(const std::vector<std::string>& patterns, const std::string& name) {
    return patterns.empty() || std::any_of(patterns.begin(), patterns.end(), [&](const std::string& pattern) {
               return fnmatch(pattern.c_str(), name.c_str(), 0) == 0;
           });
}

// Adds the files of a folder and of the folders in it. The folder of the outputs is none of them.
void addFolder(const BatchOptions& options, const fs::path& folder, const fs::path& within,
               std::vector<BatchFile>& files) {
    std::error_code error;
    for (const fs::directory_entry& entry : fs::directory_iterator(folder, error)) {
        const fs::path name = entry.path().filename();
        if (isHidden(name) || fs::equivalent(entry.path(), options.folder, error)) continue;
        const bool isLink = entry.is_symlink(error);  // to a folder: it might lead back here
        if (entry.is_directory(error)) {
            if (!isLink) addFolder(options, entry.path(), within / name, files);
        } else if (entry.is_regular_file(error) && matches(options.patterns, name)) {
            files.push_back({entry.path(), within / name, "", options.each.input.channel});
        }
    }
    if (error) throw UserError("cannot read the folder " + printable(folder.string()) + ": " + error.message());
}

// Each file once for each of its channels. A file that cannot be opened stays one: its run tells what is wrong.
std::vector<BatchFile> byChannel(const BatchOptions& options, const std::vector<BatchFile>& files) {
    std::vector<BatchFile> all;
    for (const BatchFile& file : files) {
        try {
            const int channels = channelsOf(optionsFor(options, file).input);
            for (int channel = 1; channel <= channels; ++channel) {
                const std::string number = std::to_string(channel);
                all.push_back({file.path, file.name + ", channel " + number,
                               fs::path(options.folder) / (file.name + "." + number + suffixOf(options.each.format)),
                               channel});
            }
        } catch (const UserError&) {
            all.push_back(file);
        }
    }
    return all;
}

// What tells whether a file is still the same: its size and the time of its last change.
std::string stampOf(const std::string& path) {
    struct stat status;
    if (stat(path.c_str(), &status) != 0) return "";
    return std::to_string(status.st_size) + " bytes, " + std::to_string(status.st_mtim.tv_sec) + "." +
           std::to_string(status.st_mtim.tv_nsec);
}

std::string sizeOf(const std::string& path) {
    struct stat status;
    return stat(path.c_str(), &status) == 0 ? std::to_string(status.st_size) + " bytes" : "";
}

// All that decides about the bytes of an output.
std::string wordsOf(const Options& options) {
    const Framing& framing = options.framing;
    const InputOptions& input = options.input;
    const auto time = [](const std::optional<double>& value) { return value ? shortest(*value) : "-"; };
    std::string words = "family " + std::string(framing.family->name) + ", length " + std::to_string(framing.length) +
                        ", hop " + std::to_string(framing.hop) + ", window " + windowWord(framing.window) + ", flag " +
                        flagName(framing.flag) + ", precision " +
                        (framing.precision == Precision::Single ? "32" : "64") + ", channel " +
                        channelWord(input.channel) + ", start " + time(input.start) + ", end " + time(input.end) +
                        ", decimal " + (input.decimal == DecimalMark::Comma ? "comma" : "point") + ", damage " +
                        (input.allowsDamage ? "allowed" : "refused") + ", format " + formatName(options.format);
    if (isPicture(options.format)) {
        words += ", columns " + std::to_string(options.picture.columns) + ", colours " + options.picture.colours +
                 ", range " + shortest(options.picture.decibels);
    }
    return words;
}

}  // namespace

void declareBatchOptions(CLI::App& app, Words& words) {
    declareOperands(app, words, "FILE-OR-FOLDER", "Sound files, text files, and folders of such");
    declareOption(app, words, "--into", "FOLDER", "Where the outputs go; it is made when it is missing");
    declareRepeated(app, words, "--match", "PATTERN",
                    "Take only the files of folders whose names match, such as '*.wav'; may be repeated");
    declareOption(app, words, "--format", "NAME", "Of the outputs: png, svg, csv, json, npy or text", "png");
    declareFlag(app, words, "--again", "Forget what earlier runs have done");
    declareInverseFraming(app, words);
    declareInput(app, words);
    declarePicture(app, words);
    declareFlag(app, words, "--json", "Print the summary as JSON");
}

void declareClusterOptions(CLI::App& app, Words& words) {
    declareBatchOptions(app, words);
    declareOption(app, words, "--split", "SAMPLES", "Recordings that are longer are split into pieces of that many",
                  "4000000");
    declareFlag(app, words, "--probe", "Print what a message and a byte between two ranks cost, and exit");
}

BatchOptions batchOptionsOf(const Words& words) {
    BatchOptions options{};
    options.inputs = words.list("FILE-OR-FOLDER");
    if (options.inputs.empty()) throw UsageError("FILE-OR-FOLDER is required");
    options.folder = words["--into"];
    if (options.folder.empty()) throw UsageError("--into is required: the folder of the outputs");
    options.patterns = words.list("--match");
    options.each.framing = framingOf(words);
    options.each.input = inputOf(words, "");
    options.each.picture = pictureOf(words);
    options.each.format = formatOf(words, pictureFormats);
    options.each.content = isPicture(options.each.format) ? Content::Magnitudes : Content::Bins;
    options.each.writesSpectrum = true;
    options.words = wordsOf(options.each);
    options.startsAgain = words.given("--again");
    options.json = words.given("--json");
    return options;
}

std::vector<BatchFile> batchFiles(const BatchOptions& options) {
    std::vector<BatchFile> files;
    for (const std::string& input : options.inputs) {
        std::error_code error;
        const fs::file_status status = fs::status(input, error);
        if (!fs::exists(status)) throw UserError("cannot read " + printable(input) + ": No such file or directory");
        if (fs::is_directory(status)) {
            addFolder(options, input, "", files);
        } else {
            files.push_back({input, fs::path(input).filename(), "", options.each.input.channel});
        }
    }
    if (files.empty()) throw UserError("there is no file to transform");
    std::sort(files.begin(), files.end(), [](const BatchFile& a, const BatchFile& b) { return a.name < b.name; });
    if (options.each.input.channel == everyChannel) files = byChannel(options, files);
    std::map<std::string, std::string> inputs;  // by output
    for (BatchFile& file : files) {
        if (file.output.empty()) file.output = fs::path(options.folder) / (file.name + suffixOf(options.each.format));
        const auto [earlier, isNew] = inputs.emplace(file.output, file.path);
        if (!isNew) {
            throw UserError("two inputs would have one output: " + printable(earlier->second) + " and " +
                            printable(file.path));
        }
    }
    return files;
}

Options optionsFor(const BatchOptions& options, const BatchFile& file) {
    Options one = options.each;
    one.input.path = file.path;
    one.input.channel = file.channel;
    one.output = file.output;
    return one;
}

FileResult resultOf(const std::exception& error) {
    FileResult result;
    const auto* ours = dynamic_cast<const UserError*>(&error);
    const bool isMemory = dynamic_cast<const std::bad_alloc*>(&error) != nullptr;
    result.status = static_cast<int>(ours ? ours->status() : Exit::Failed);
    result.message = isMemory ? "there is not enough memory" : error.what();
    return result;
}

FileResult runFile(const BatchOptions& options, const BatchFile& file) {
    try {
        fs::create_directories(fs::path(file.output).parent_path());
        if (file.channel == everyChannel) {
            channelsOf(optionsFor(options, file).input);  // fails as it did before
            throw UserError(printable(file.name) + ": it changed while it was read");
        }
        const RunReport report = runSpectra(optionsFor(options, file), false);
        return {0, "", report.samples, report.frames, report.warnings};
    } catch (const std::exception& error) {
        return resultOf(error);
    }
}

Json jsonOf(const FileResult& result) {
    return {{"status", result.status},
            {"message", result.message},
            {"samples", result.samples},
            {"frames", result.frames},
            {"warnings", result.warnings}};
}

FileResult resultOf(const Json& json) {
    return {json.at("status"), json.at("message"), json.at("samples"), json.at("frames"), json.at("warnings")};
}

Journal::Journal(const BatchOptions& options) {
    std::error_code error;
    fs::create_directories(options.folder, error);
    path = fs::path(options.folder) / ".zulspectrum-batch.jsonl";
    descriptor = open(path.c_str(), O_RDWR | O_CREAT | O_APPEND | O_CLOEXEC, 0666);
    if (descriptor < 0) throw UserError("cannot write " + printable(path) + ": " + systemReason());
    // A run that was killed just now may still be about to end.
    for (int i = 0; flock(descriptor, LOCK_EX | LOCK_NB) != 0; ++i) {
        if (errno != EWOULDBLOCK) break;
        if (i == 40) throw UserError("another run is at work in " + printable(options.folder));
        usleep(50'000);
    }
    read(options.words, options.startsAgain);
}

Journal::~Journal() { close(descriptor); }

void Journal::read(const std::string& words, bool startsAgain) {
    if (startsAgain && ftruncate(descriptor, 0) != 0) throw UserError("cannot write " + printable(path));
    std::ifstream file(path);
    std::string text;
    bool isFirst = true;
    while (std::getline(file, text)) {
        const Json line = Json::parse(text, nullptr, false);
        if (isFirst && (line.is_discarded() || !line.is_object() || !line.contains("options"))) {
            throw UserError(printable(path) + ": not a journal of outputs; --again starts over");
        }
        if (isFirst && line["options"] != words) {
            throw UserError(printable(path) + ": the outputs were made with other options (" +
                            printable(line["options"].is_string() ? line["options"].get<std::string>() : "", 500) +
                            "); --again starts over");
        }
        isFirst = false;
        const auto isText = [&](const char* name) { return line.contains(name) && line[name].is_string(); };
        if (line.is_object() && isText("file") && isText("input") && isText("output")) {
            done[line["file"]] = line["input"].get<std::string>() + " / " + line["output"].get<std::string>();
        }
    }
    if (isFirst) append({{"options", words}});
}

bool Journal::isDone(const BatchFile& file) const {
    const auto found = done.find(file.name);
    return found != done.end() && found->second == stampOf(file.path) + " / " + sizeOf(file.output);
}

void Journal::noteDone(const BatchFile& file) {
    append({{"file", file.name}, {"input", stampOf(file.path)}, {"output", sizeOf(file.output)}});
}

void Journal::append(const Json& line) {
    // Each line begins anew after one that was cut off.
    struct stat status;
    char last = '\n';
    if (fstat(descriptor, &status) == 0 && status.st_size > 0) (void)!pread(descriptor, &last, 1, status.st_size - 1);
    const std::string text = (last == '\n' ? "" : "\n") + jsonLine(line);
    if (::write(descriptor, text.data(), text.size()) != static_cast<ssize_t>(text.size())) {
        throw UserError("cannot write " + printable(path) + ": " + systemReason());
    }
}

void Summary::add(const BatchFile& file, const FileResult& result) {
    samples += result.samples;
    if (result.status != 0) {
        failed.push_back({file.name, result});
        return;
    }
    ++done;
    if (!result.warnings.empty()) damaged.push_back({file.name, result});
}

void Summary::showProgress(const std::string& program) const {
    if (isatty(STDERR_FILENO) != 1) return;
    if (finished() == total) {
        std::fputs("\r\033[K", stderr);
        return;
    }
    std::fprintf(stderr, "\r%s: %zu of %zu files, %zu failed\033[K", program.c_str(), finished(), total, failed.size());
}

int Summary::print(const std::string& program, double seconds) const {
    int status = 0;
    for (const Line& line : failed) {
        status = line.result.status == static_cast<int>(Exit::Damaged) && status != 1 ? 3 : 1;
    }
    if (json) {
        Json failures = Json::array(), warnings = Json::array();
        for (const Line& line : failed) {
            failures.push_back({{"file", line.name}, {"status", line.result.status}, {"message", line.result.message}});
        }
        for (const Line& line : damaged) warnings.push_back({{"file", line.name}, {"damage", line.result.warnings}});
        std::cout << jsonText({{"files", total},
                               {"done", done},
                               {"done_before", earlier},
                               {"failed", failures},
                               {"damaged", warnings},
                               {"samples", samples},
                               {"seconds", seconds}});
        return status;
    }
    for (const Line& line : damaged) {
        for (const std::string& warning : line.result.warnings) std::cerr << program << ": " << warning << "\n";
    }
    for (const Line& line : failed) {
        std::cerr << program << ": " << printable(line.name) << " failed: " << line.result.message << "\n";
    }
    char time[40];
    std::snprintf(time, sizeof time, "%.1f s", seconds);
    std::cout << "files           " << total << "\ndone            " << done << " now, " << earlier
              << " before\nfailed          " << failed.size() << "\nsamples         " << samples << " in " << time
              << "\n";
    return status;
}

}  // namespace spectrum
