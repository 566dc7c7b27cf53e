// What is said of a routine comes from the catalogue; the time is measured when it is asked for.
#include "info.h"

#include <dlfcn.h>

#include <algorithm>
#include <cstdio>
#include <iostream>
#include <vector>

#include "catalogue.h"
#include "commands.h"
#include "json.h"
#include "numbers.h"
#include "timing.h"
#include "user_error.h"
#include "zulgenpx.h"

namespace spectrum {
namespace {

bool startsWith(const std::string& text, std::string_view start) { return text.starts_with(start); }

// N is the length, or 2^O for an order O.
std::string formulaOf(const std::string& family) {
    const char* const complexForward = "X[k] = scale * sum over n of x[n] exp(-2 pi i n k / N), for k = 0 to N-1";
    const char* const complexInverse = "x[n] = scale * sum over k of X[k] exp(+2 pi i n k / N), for n = 0 to N-1";
    if (family == "DFTFwd_CToC") return complexForward;
    if (family == "DFTInv_CToC") return complexInverse;
    if (startsWith(family, "DFTFwd_RTo")) {
        return "X[k] = scale * sum over n of x[n] exp(-2 pi i n k / N), for k = 0 to N/2, of real x";
    }
    if (startsWith(family, "DFTInv_")) {
        return "x[n] = scale * sum over k of X[k] exp(+2 pi i n k / N), of the half X of a spectrum with X[N-k] = "
               "conj X[k]";
    }
    if (family == "Hartley") return "y[k] = scale * sum over n of x[n] (cos(2 pi n k / N) + sin(2 pi n k / N))";
    if (family == "WHT")
        return "y[k] = scale * sum over n of x[n] (-1)^(bits that n and k have in common), N = 2^order";
    if (family == "DCT4") return "y[k] = sum over n of x[n] cos(pi (n + 1/2) (k + 1/2) / N)";
    return "";
}

const Json& catalogue() {
    static const Json all = Json::parse(catalogueText());
    return all;
}

// How many letters have to be changed to make one word of the other.
std::size_t distance(const std::string& one, const std::string& other) {
    std::vector<std::size_t> row(other.size() + 1);
    for (std::size_t j = 0; j <= other.size(); ++j) row[j] = j;
    for (std::size_t i = 1; i <= one.size(); ++i) {
        std::size_t corner = row[0];
        row[0] = i;
        for (std::size_t j = 1; j <= other.size(); ++j) {
            const std::size_t changed = corner + (one[i - 1] != other[j - 1]);
            corner = row[j];
            row[j] = std::min({changed, row[j] + 1, row[j - 1] + 1});
        }
    }
    return row.back();
}

const Json& entryOf(const std::string& name) {
    const std::string* nearest = nullptr;
    std::size_t least = 6;
    for (const char* list : {"exports", "batches"}) {
        for (const Json& entry : catalogue().at(list)) {
            const std::string& known = entry.at("name").get_ref<const std::string&>();
            if (known == name) return entry;
            const std::size_t between = name.size() > 100 ? least : distance(name, known);
            if (between < least) least = between, nearest = &known;
        }
    }
    throw UsageError(shownWord(name) + ": no routine of the library; " +
                     (nearest ? "perhaps " + *nearest : "--list prints their names"));
}

// The nanoseconds of a kernel, which is called without its dispatcher. Negative where there is nothing to time.
template <typename T>
double timeOfKernel(const Json& entry) {
    void* const routine = dlsym(RTLD_DEFAULT, entry.at("name").get_ref<const std::string&>().c_str());
    if (!routine) return -1;
    std::vector<T> from(2 * 8192, T(0)), to(2 * 8192, T(0)), buffer(2 * 8192, T(0));
    for (std::size_t i = 0; i < from.size(); ++i) from[i] = static_cast<T>(i % 7) - 3;
    double seconds;
    if (entry.at("family") == "WHT") {
        using Kernel = ZulgStatus(ZULG_CALL*)(const T*, T*, std::int32_t, T*);
        const auto kernel = reinterpret_cast<Kernel>(routine);
        seconds = secondsOf([&] { kernel(from.data(), to.data(), NoDivByAny, buffer.data()); }, 0.004);
    } else {
        using Kernel = ZulgStatus(ZULG_CALL*)(const T*, T*, std::int32_t);
        const auto kernel = reinterpret_cast<Kernel>(routine);
        seconds = secondsOf([&] { kernel(from.data(), to.data(), NoDivByAny); }, 0.004);
    }
    return seconds * 1e9;
}

double timeOf(const Json& entry) {
    const bool isKernel = entry.contains("counts") && (!entry.at("length").is_null() || !entry.at("order").is_null());
    if (!isKernel) return -1;
    return startsWith(entry.at("element"), "32") ? timeOfKernel<float>(entry) : timeOfKernel<double>(entry);
}

// The family, the element and the length of a routine as the table of bounds has them, or nothing.
std::string boundKeyOf(const Json& entry) {
    if (!entry.contains("element")) return "";
    const std::string family = entry.at("family"), element = entry.at("element");
    const std::string name = family == "DFTFwd_CToC"            ? "complex_forward"
                             : family == "DFTInv_CToC"          ? "complex_inverse"
                             : startsWith(family, "DFTFwd_RTo") ? "real_forward"
                             : startsWith(family, "DFTInv_")    ? "real_inverse"
                             : family == "Hartley"              ? "hartley"
                             : family == "WHT"                  ? "wht"
                                                                : "";
    const bool hasOrder = !entry.at("order").is_null();
    if (name.empty() || (!hasOrder && entry.at("length").is_null())) return "";
    // The table has orders where a family has them.
    const int size = entry.at(hasOrder ? "order" : "length");
    return name + "," + element.substr(0, 3) + "," + std::to_string(size) + ",";
}

// Of each scale: the proved bound and the worst error of the trials.
Json boundsOf(const Json& entry) {
    Json bounds = Json::object();
    const std::string key = boundKeyOf(entry);
    if (key.empty()) return bounds;
    std::string_view rest = boundsText();
    while (!rest.empty()) {
        const std::string line(rest.substr(0, rest.find('\n')));
        rest.remove_prefix(std::min(rest.size(), line.size() + 1));
        if (!startsWith(line, key)) continue;
        const std::size_t scale = line.find(',', key.size()), bound = line.find(',', scale + 1);
        bounds[line.substr(key.size(), scale - key.size())] = {{"bound", std::stod(line.substr(scale + 1))},
                                                               {"worst", std::stod(line.substr(bound + 1))}};
    }
    return bounds;
}

std::string prototypeOf(const Json& entry) {
    std::string text = entry.at("returns").get<std::string>() + " " + entry.at("name").get<std::string>() + "(";
    std::string arguments;
    for (const Json& argument : entry.at("arguments")) {
        const std::string name = argument.at("name"), type = argument.at("type"), use = argument.at("use");
        arguments += arguments.empty() ? "" : ", ";
        arguments += use == "value" ? type + " " + name : (use == "in" ? "const " : "") + type + "* " + name;
    }
    return text + (arguments.empty() ? "void" : arguments) + ")";
}

std::string wordOf(const Json& value) { return value.is_string() ? value.get<std::string>() : value.dump(); }

void appendLine(std::string& text, std::string head, const std::string& what) {
    head.resize(16, ' ');
    text += head + what + "\n";
}

// Some routines of a family make plans, or tell the size of a buffer.
bool transforms(const Json& entry) {
    const Json& arguments = entry.at("arguments");
    return std::any_of(arguments.begin(), arguments.end(), [](const Json& one) { return one.at("name") == "pSrc"; });
}

std::string textOf(const Json& entry, double nanoseconds) {
    std::string text;
    appendLine(text, "routine", entry.at("name"));
    const std::string formula = formulaOf(entry.at("family"));
    if (!formula.empty() && transforms(entry)) appendLine(text, "computes", formula);
    appendLine(text, "called as", prototypeOf(entry));
    for (const Json& argument : entry.at("arguments")) {
        if (!argument.contains("elements")) continue;
        const bool mayBeNull = argument.contains("null") && argument.at("null") == true;
        appendLine(text, "array",
                   argument.at("name").get<std::string>() + ": elements " + wordOf(argument.at("elements")) +
                       (mayBeNull ? ", may be null" : ""));
    }
    if (entry.contains("spectrum")) {
        const Json& spectrum = entry.at("spectrum");
        std::string slots = spectrum.at("layout").get<std::string>() + " layout";
        if (spectrum.contains("slots")) {
            int bin = 0;
            for (const Json& slot : spectrum.at("slots")) {
                slots += (bin == 0 ? ": " : ", ") + std::string("R") + std::to_string(bin) + " in " + wordOf(slot[0]);
                if (!slot[1].is_null()) slots += ", I" + std::to_string(bin) + " in " + wordOf(slot[1]);
                ++bin;
            }
        }
        appendLine(text, "spectrum", slots);
    }
    if (entry.contains("recipe")) appendLine(text, "built as", entry.at("recipe").at("words"));
    if (entry.contains("counts")) {
        std::string counts;
        for (const auto& [name, count] : entry.at("counts").items()) {
            counts += (counts.empty() ? "" : ", ") + name + " " + count.dump();
        }
        appendLine(text, "counts", counts);
    }
    const std::string unit = startsWith(entry.value("element", ""), "32") ? "2^-24" : "2^-53";
    const Json bounds = boundsOf(entry);
    for (const auto& [scale, error] : bounds.items()) {
        appendLine(text, "error",
                   "at most " + error.at("bound").dump() + " * " + unit + " * 2-norm of the input" +
                       (scale == "none"   ? ""
                        : scale == "root" ? " / sqrt(N) at flag 4"
                                          : " / N at a flag with 1/N") +
                       "; worst trial " + error.at("worst").dump());
    }
    if (entry.contains("ordinal")) appendLine(text, "ordinal", wordOf(entry.at("ordinal")));
    if (nanoseconds >= 0) {
        char time[60];
        std::snprintf(time, sizeof time, "%.1f ns a call on this machine, now", nanoseconds);
        appendLine(text, "time", time);
    }
    return text;
}

std::string libraryText() {
    return versionText() + std::to_string(catalogue().at("exports").size()) + " routines and " +
           std::to_string(catalogue().at("batches").size()) + " for many transforms in one call\n";
}

Json libraryJson() {
    const LibVersion& library = *zulgenGetLibVersion();
    return {{"name", library.name},
            {"version", library.version},
            {"date", library.buildDate},
            {"exports", catalogue().at("exports").size()},
            {"batches", catalogue().at("batches").size()}};
}

}  // namespace

void declareInfo(CLI::App& app, Words& words) {
    declareOperand(app, words, "ROUTINE", "Name of a routine");
    declareFlag(app, words, "--list", "Print the names of all routines");
    declareFlag(app, words, "--json", "Print what the catalogue holds as JSON, with the formula and the time");
}

int runInfo(const Words& words) {
    if (words.given("--list")) {
        if (words.given("ROUTINE")) throw UsageError("--list beside ROUTINE: one of them is enough");
        for (const char* list : {"exports", "batches"}) {
            for (const Json& entry : catalogue().at(list)) std::cout << entry.at("name").get<std::string>() << "\n";
        }
        return 0;
    }
    const bool asJson = words.given("--json");
    if (!words.given("ROUTINE")) {
        std::cout << (asJson ? jsonText(libraryJson()) : libraryText());
        return 0;
    }
    Json entry = entryOf(words["ROUTINE"]);
    const double nanoseconds = timeOf(entry);
    if (!asJson) {
        std::cout << textOf(entry, nanoseconds);
        return 0;
    }
    const Json bounds = boundsOf(entry);
    if (!bounds.empty()) entry["error_bounds"] = bounds;
    entry["formula"] = transforms(entry) ? formulaOf(entry.at("family")) : "";
    if (nanoseconds >= 0) entry["nanoseconds"] = nanoseconds;
    std::cout << jsonText(entry);
    return 0;
}

}  // namespace spectrum
