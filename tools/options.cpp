// The command line, read with CLI11. Only this file knows the words of the options and their meaning. A wrong word ends
// the run with a message of one line, whether CLI11 or this file finds it.
#include "options.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <bit>
#include <charconv>
#include <filesystem>
#include <limits>
#include <map>

#include "user_error.h"

namespace spectrum {
namespace {

// The options as they are typed.
struct Words {
    std::string input, family = "complex", flag = "backward", window = "none", format, output = "-";
    int length = 64, order = 0, hop = 0, channel = 1, precision = 64;
    bool orderGiven = false, lengthGiven = false, flagGiven = false;
    bool check = false, writesSpectrum = true;
    int layoutLength = 0;
};

constexpr std::pair<const char*, std::int32_t> flagNames[] = {
    {"forward", DivFwdByN}, {"backward", DivInvByN}, {"ortho", DivBySqrtN}, {"none", NoDivByAny}};

constexpr const char* footer =
    "Families: complex is the DFT of all N bins; real is the DFT of real values, of the bins 0 to N/2, and the bins\n"
    "above them mirror these; hartley is the Hartley transform, N real bins. Its magnitudes, of the bins k and N-k,\n"
    "are those of the complex family but for the scale. wht is the Walsh-Hadamard transform of 2^O points, with\n"
    "--order O or --length of that many; its bins come in natural order, and instead of a frequency each has a\n"
    "sequency: how often its pattern of +1 and -1 changes sign. dct4 is the DCT-IV, N real bins, where N is a power\n"
    "of two; the frequency of bin k is (k + 1/2)/(2N) cycles per sample.\n"
    "\n"
    "The scale is 1/N in the forward transform (--flag forward or 1), 1/N in the inverse (backward or 2), 1/sqrt(N)\n"
    "in both (ortho or 4), or 1 (none or 8). Of hartley and wht, which are their own inverses, the forward transform\n"
    "has 1/N both with forward and with backward. dct4 has no scale and takes no --flag; its inverse is 2/N times\n"
    "itself.\n"
    "\n"
    "INPUT is a sound file (WAV, FLAC), a text file of real numbers, or - for numbers on standard input. Numbers are\n"
    "separated by white space or commas; # starts a comment. Frames start every --hop samples. When samples remain\n"
    "after the last full frame, one more frame is filled up with zeros; an input shorter than one frame is refused.\n"
    "\n"
    "Frequencies are in Hz and times in seconds for sound files, in cycles per sample and in samples for numbers.\n"
    "A picture shows time to the right, frequency or sequency upward, and 80 dB below the strongest bin.\n"
    "\n"
    "--check transforms each frame, unwindowed, there and back, and reports the root of the summed squared error over\n"
    "the root of the summed squares. The spectrum is then written only if --output or --format is given too.\n"
    "\n"
    "  zulspectrum voice.wav --length 60 --hop 30 --window hann --output voice.png\n"
    "  seq 100 | zulspectrum - --length 25 --format csv\n"
    "  zulspectrum voice.wav --length 48 --check\n"
    "  zulspectrum voice.wav --family dct4 --length 1024 --output voice.png\n"
    "  zulspectrum numbers.txt --family wht --order 10 --format csv\n"
    "  zulspectrum layout 8\n"
    "\n"
    "A file of the name layout is given as ./layout.";

constexpr const char* layoutFooter =
    "R3 stands for the real part of bin 3, I3 for its imaginary part, 0 for a slot that holds zero. The numbers of\n"
    "the slots are in the line above.";

std::string versionText() {
    const LibVersion& library = *zulgenGetLibVersion();
    const std::string_view cpu(library.targetCpu, sizeof library.targetCpu);
    const auto number = [](std::int32_t value) { return std::to_string(value); };
    return std::string("zulspectrum with ") + library.name + ", version " + library.version + ", " +
           library.buildDate + "\nmajor.minor.majorBuild.build " + number(library.major) + "." +
           number(library.minor) + "." + number(library.majorBuild) + "." + number(library.build) + ", targetCpu " +
           std::string(cpu.substr(0, cpu.find('\0')));
}

std::int32_t flagOf(const std::string& word) {
    for (const auto& [name, flag] : flagNames) {
        if (word == name) return flag;
    }
    std::int32_t flag = 0;
    const char* const end = word.data() + word.size();
    const auto [rest, error] = std::from_chars(word.data(), end, flag);
    if (error != std::errc{} || rest != end) {
        throw UserError("--flag " + printable(word) + ": neither a number nor forward, backward, ortho or none");
    }
    return flag;
}

std::string familyNames() {
    std::string names;
    for (const Family& family : allFamilies()) names += (names.empty() ? "" : ", ") + std::string(family.name);
    return names;
}

const Family& familyOf(const std::string& word) {
    for (const Family& family : allFamilies()) {
        if (word == family.name) return family;
    }
    throw UserError("--family " + printable(word) + ": no such family; known: " + familyNames());
}

// 2^order, or 0 where that is no int. The library is asked about the order itself.
int lengthOfOrder(int order) { return order >= 0 && order < std::numeric_limits<int>::digits ? 1 << order : 0; }

// The order of a length, or 0, which is no order of any family, where the length is not 2^order.
int orderOfLength(int length) {
    const unsigned bits = static_cast<unsigned>(std::max(length, 0));
    return std::has_single_bit(bits) ? std::countr_zero(bits) : 0;
}

void expectFittingOptions(const Words& words, const Family& family) {
    const std::string name(family.name);
    if (words.orderGiven && family.sizes != Sizes::Orders) {
        throw UserError("--order " + std::to_string(words.order) + ": the " + name +
                        " family has no orders; say --length");
    }
    if (words.orderGiven && words.lengthGiven) {
        throw UserError("--order " + std::to_string(words.order) + " beside --length " + std::to_string(words.length) +
                        ": one of them is enough");
    }
    if (words.flagGiven && !family.takesFlag) {
        throw UserError("--flag " + printable(words.flag) + ": the " + name + " family has no scale");
    }
}

Format formatOf(const Words& words) {
    static const std::map<std::string, Format> formats = {
        {"", Format::Text},     {"text", Format::Text}, {".txt", Format::Text},
        {"csv", Format::Csv},   {".csv", Format::Csv},  {"png", Format::Png},
        {".png", Format::Png},
    };
    const std::string suffix = std::filesystem::path(words.output).extension().string();
    const auto found = formats.find(words.format.empty() ? suffix : words.format);
    if (found == formats.end()) {
        throw UserError("--output " + printable(words.output) + ": no format has the suffix " + printable(suffix) +
                        "; say which with --format");
    }
    return found->second;
}

// Makes the options from the words. Some words mean different things in different families.
Options optionsOf(const Words& words) {
    const Family& family = familyOf(words.family);
    expectFittingOptions(words, family);
    const int length = words.orderGiven ? lengthOfOrder(words.order) : words.length;
    const int order = words.orderGiven ? words.order : orderOfLength(words.length);
    return Options{
        .input = words.input,
        .output = words.output,
        .family = &family,
        .length = length,
        .hop = words.hop > 0 ? words.hop : length,
        .size = family.sizes == Sizes::Orders ? order : length,
        .byOrder = words.orderGiven,
        .flag = family.takesFlag ? flagOf(words.flag) : NoDivByAny,
        .channel = words.channel,
        .window = words.window == "hann" ? Window::Hann : Window::None,
        .precision = words.precision == 32 ? Precision::Single : Precision::Double,
        .format = formatOf(words),
        .writesSpectrum = words.writesSpectrum,
        .check = words.check,
    };
}

void declareTransform(CLI::App& app, Words& words) {
    app.add_option("--length", words.length, "Points of one transform; most families have 2 to 64 (see below)")
        ->type_name("N")
        ->capture_default_str();
    app.add_option("--order", words.order, "Of the wht family, instead of --length: transforms of 2^O points")
        ->type_name("O");
    app.add_option("--family", words.family, "Transform family: " + familyNames() + " (see below)")
        ->type_name("NAME")
        ->capture_default_str();
    app.add_option("--flag", words.flag, "Scale: forward, backward, ortho, none, or 1, 2, 4, 8 (see below)")
        ->type_name("FLAG")
        ->capture_default_str();
    app.add_option("--precision", words.precision, "Bits of the numbers in the transforms: 32 or 64")
        ->type_name("BITS")
        ->check(CLI::IsMember({32, 64}).description(""))
        ->capture_default_str();
    app.add_flag("--check", words.check, "Report the error of the inverse transform (see below)");
}

void declareInput(CLI::App& app, Words& words) {
    const CLI::Validator positive = CLI::Range(1, std::numeric_limits<int>::max()).description("");
    app.add_option("INPUT", words.input, "Sound file, text file, or - for numbers on standard input")
        ->type_name("");
    app.add_option("--hop", words.hop, "Samples from the start of one frame to the next [the length]")
        ->type_name("N")
        ->check(positive);
    app.add_option("--window", words.window, "Weights of the samples of a frame: none or hann")
        ->type_name("NAME")
        ->check(CLI::IsMember({"none", "hann"}).description(""))
        ->capture_default_str();
    app.add_option("--channel", words.channel, "Channel of a sound file, counted from 1")
        ->type_name("N")
        ->check(positive)
        ->capture_default_str();
}

void declareOutput(CLI::App& app, Words& words) {
    app.add_option("--format", words.format, "text, csv or png [by the suffix of --output, else text]")
        ->type_name("NAME")
        ->check(CLI::IsMember({"text", "csv", "png"}).description(""));
    app.add_option("--output", words.output, "File to write [standard output]")->type_name("FILE");
    app.set_version_flag("--version", versionText, "Print the version record of the library and exit");
}

void declareLayout(CLI::App& app, Words& words) {
    const std::vector<CLI::Option*> others = app.get_options(
        [](const CLI::Option* option) { return !option->check_name("--help") && !option->check_name("--version"); });
    CLI::App& layout = *app.add_subcommand("layout", "Print which slot of the layouts CCS, Pack and Perm holds what");
    layout.add_option("N", words.layoutLength, "Points of the real transform, 2 to 64")->required()->type_name("");
    layout.footer(layoutFooter);
    for (CLI::Option* option : others) layout.excludes(option);
}

}  // namespace

std::string flagName(std::int32_t flag) {
    for (const auto& [name, value] : flagNames) {
        if (value == flag) return name;
    }
    return std::to_string(flag);
}

Command readCommand(int argc, char** argv) {
    CLI::App app("Short-time spectra with the transforms of zulgenpx", "zulspectrum");
    Words words;
    declareInput(app, words);
    declareTransform(app, words);
    declareOutput(app, words);
    declareLayout(app, words);
    app.footer(footer);
    try {
        app.parse(argc, argv);
    } catch (const CLI::Success& done) {
        app.exit(done);  // prints what is asked for
        return {};
    } catch (const CLI::ParseError& error) {
        throw UserError(printable(error.what()));
    }
    if (app.got_subcommand("layout")) return LayoutOptions{words.layoutLength};
    if (words.input.empty()) throw UserError("INPUT is required");
    words.orderGiven = app.count("--order") > 0;
    words.lengthGiven = app.count("--length") > 0;
    words.flagGiven = app.count("--flag") > 0;
    words.writesSpectrum = !words.check || app.count("--output") > 0 || app.count("--format") > 0;
    return optionsOf(words);
}

}  // namespace spectrum
