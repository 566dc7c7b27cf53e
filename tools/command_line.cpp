// Commands are read one at a time, each by an application of CLI11 of its own: a command knows only its own options,
// and a file may have the name of an option's value.
#include "command_line.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <iostream>

#include "colour_map.h"
#include "numbers.h"
#include "options.h"
#include "user_error.h"

namespace spectrum {
namespace {

bool isOption(const std::string& word) { return word.size() > 1 && word[0] == '-'; }

// The option that the user may have meant: one that begins like the word, without its dashes.
std::string nearestOption(const CLI::App& app, const std::string& word) {
    const std::string stem = word.substr(std::min(word.find_first_not_of('-'), word.size()));
    for (const CLI::Option* option : app.get_options()) {
        const std::string name = option->get_single_name();
        if (!stem.empty() && name.compare(0, std::min<std::size_t>(stem.size(), 3), stem, 0, 3) == 0)
            return "--" + name;
    }
    return "";
}

// CLI11 knows what is wrong; the words about it are ours.
[[noreturn]] void refuse(const CLI::App& app, const CLI::ParseError& error) {
    const std::string what = error.what();
    for (const CLI::Option* option : app.get_options()) {
        const std::string name = option->get_name();
        if (option->get_items_expected_max() == 1 && option->results().size() > 1) {
            throw UsageError(name + ": it is given more than once");
        }
        if (error.get_name() == "ArgumentMismatch" && what.find(name) != std::string::npos) {
            throw UsageError(name + ": its value is missing");
        }
    }
    throw UsageError(printable(what));
}

void refuseExtras(const CLI::App& app, const std::vector<std::string>& extras, const std::string& operands) {
    for (const std::string& word : extras) {
        if (!isOption(word)) continue;
        const std::string name = word.substr(0, word.find('=')), meant = nearestOption(app, name);
        throw UsageError(printable(name, 60) + ": there is no such option" +
                         (meant.empty() ? "; --help lists all" : "; perhaps " + meant));
    }
    if (!extras.empty()) {
        throw UsageError(shownWord(extras[0]) + ": a word too many" + (operands.empty() ? "" : ", after " + operands));
    }
}

std::string usageOf(const std::string& program, const Command& command) {
    return program + (command.name.empty() ? "" : " " + std::string(command.name));
}

std::string overview(const std::string& program, const std::vector<Command>& commands) {
    if (commands.size() < 2) return "";
    std::string text = "Commands; " + program + " COMMAND --help tells more of each:\n";
    for (const Command& command : commands) {
        if (command.name.empty() || command.summary.empty()) continue;
        std::string name = "  " + std::string(command.name);
        name.resize(15, ' ');
        text += name + std::string(command.summary) + "\n";
    }
    return text;
}

// The usage says which words must be there, which CLI11 is not told.
class Formatter : public CLI::Formatter {
public:
    Formatter(const std::string& called, std::string_view with) : usage("Usage: " + called + " [OPTIONS]") {
        if (!with.empty()) usage += " " + std::string(with);
    }
    std::string make_usage(const CLI::App*, std::string) const override { return usage + "\n"; }

private:
    std::string usage;
};

void declareAll(CLI::App& app, Words& words, const std::string& program, const std::vector<Command>& commands,
                const Command& command) {
    command.declare(app, words);
    app.get_help_ptr()->description("Print this help and exit");
    app.formatter(std::make_shared<Formatter>(usageOf(program, command), command.operands));
    std::string footer(command.footer);
    if (command.name.empty()) footer = overview(program, commands) + "\n" + footer;
    app.footer(footer);
}

const Command& chosen(const std::vector<Command>& commands, int argc, char** argv) {
    for (const Command& command : commands) {
        if (argc > 1 && !command.name.empty() && command.name == argv[1]) return command;
    }
    return commands.front();
}

// `zulspectrum --length 8 layout 4` names a command where a file is expected.
void refuseLateCommand(const std::vector<Command>& commands, const std::vector<std::string>& arguments) {
    for (const std::string& word : arguments) {
        for (const Command& command : commands) {
            if (!command.name.empty() && command.name == word) {
                throw UsageError(word + ": a command is the first word; a file of this name is given as ./" + word);
            }
        }
    }
}

}  // namespace

bool Words::given(const std::string& option) const {
    const auto found = wasGiven.find(option);
    return found != wasGiven.end() && found->second;
}

void declareOption(CLI::App& app, Words& words, const std::string& name, const std::string& value,
                   const std::string& help, const std::string& standard) {
    const std::string first = name.substr(0, name.find(','));
    std::string& word = words.values[first] = standard;
    CLI::Option* const option = app.add_option(name, word, help)->type_name(value);
    if (!standard.empty()) option->capture_default_str();
}

void declareFlag(CLI::App& app, Words& words, const std::string& name, const std::string& help) {
    app.add_flag(name, words.wasGiven[name], help);
}

void declareOperand(CLI::App& app, Words& words, const std::string& name, const std::string& help) {
    app.add_option(name, words.values[name], help)->type_name("");
}

void declareRepeated(CLI::App& app, Words& words, const std::string& name, const std::string& value,
                     const std::string& help) {
    app.add_option(name, words.lists[name], help)
        ->type_name(value)
        ->expected(1)
        ->multi_option_policy(CLI::MultiOptionPolicy::TakeAll);
}

void declareOperands(CLI::App& app, Words& words, const std::string& name, const std::string& help) {
    app.add_option(name, words.lists[name], help)->type_name("");
}

void declareInput(CLI::App& app, Words& words) {
    declareOption(app, words, "--channel", "N",
                  "Channel of a sound, counted from 1; mix: the mean of all; each: all (see below)", "1");
    declareOption(app, words, "--start", "TIME", "Where to begin: seconds or h:m:s of a sound, samples of numbers");
    declareOption(app, words, "--end", "TIME", "Where to end, as --start");
    declareOption(app, words, "--decimal", "MARK", "Decimal mark of numbers: point or comma (see below)", "point");
    declareFlag(app, words, "--allow-damaged", "Take what is good of a damaged sound file, and silence for the rest");
}

void declareFraming(CLI::App& app, Words& words) {
    declareInverseFraming(app, words);
    declareFlag(app, words, "--check", "Report the error of the inverse transform (see below)");
}

void declareInverseFraming(CLI::App& app, Words& words) {
    declareOption(app, words, "--family", "NAME", "Transform family: " + familyNames() + " (see below)", "complex");
    declareOption(app, words, "--length,--nperseg", "N", "Points of one transform; most families have 2 to 64", "64");
    declareOption(app, words, "--order", "O", "Of the wht family, instead of --length: transforms of 2^O points");
    declareOption(app, words, "--hop", "N", "Samples from the start of one frame to the next [the length]");
    declareOption(app, words, "--noverlap", "N", "Samples that neighbouring frames share, instead of --hop");
    declareOption(app, words, "--window", "NAME", "Weights of the samples of a frame: " + windowNames(), "none");
    declareOption(app, words, "--flag", "FLAG", "Scale: forward, backward, ortho, none, or 1, 2, 4, 8 (see below)",
                  "backward");
    declareOption(app, words, "--precision", "BITS", "Bits of the numbers in the transforms: 32 or 64", "64");
}

void declarePicture(CLI::App& app, Words& words) {
    declareOption(app, words, "--columns", "N", "Columns of a picture, at most 4096 [1536]");
    declareOption(app, words, "--colours,--colors", "NAME", "Colours of a picture: " + colourNames(), "dusk");
    declareOption(app, words, "--range", "DB", "Decibels below the strongest bin that a picture shows", "80");
}

void declareOutput(CLI::App& app, Words& words, const std::string& formats) {
    declareOption(app, words, "--format", "NAME", formats + " [by the suffix of --output]");
    declareOption(app, words, "--output", "FILE", "File to write; it appears whole or not at all [standard output]",
                  "-");
    declareFlag(app, words, "--json", "Print the report as JSON");
}

int runCommandLine(const std::string& program, const std::vector<Command>& commands, int argc, char** argv) {
    const Command& command = chosen(commands, argc, argv);
    CLI::App app(std::string(command.summary), usageOf(program, command));
    Words words;
    declareAll(app, words, program, commands, command);
    app.allow_extras();
    std::vector<std::string> arguments(argv + (command.name.empty() ? 1 : 2), argv + std::max(argc, 1));
    std::vector<std::string> reversed(arguments.rbegin(), arguments.rend());
    try {
        app.parse(reversed);
    } catch (const CLI::Success& done) {
        app.exit(done);  // prints what is asked for
        return 0;
    } catch (const CLI::ParseError& error) {
        refuse(app, error);
    }
    for (const CLI::Option* option : app.get_options()) {
        const std::string name = option->get_positional() ? option->get_name() : "--" + option->get_lnames().front();
        if (option->count() > 0) words.wasGiven[name] = true;
    }
    const std::vector<std::string> extras = app.remaining();
    if (command.name.empty()) {
        refuseLateCommand(commands, extras);
        if (words.given("INPUT")) refuseLateCommand(commands, {words["INPUT"]});
    }
    refuseExtras(app, extras, std::string(command.operands));
    return command.run(words);
}

std::string completionScript(const std::string& shell, const std::string& program,
                             const std::vector<Command>& commands) {
    std::string names, cases, fish;
    for (const Command& command : commands) {
        if (!command.name.empty() && command.summary.empty()) continue;
        CLI::App app;
        Words words;
        command.declare(app, words);
        std::string options;
        const std::string name(command.name);
        for (const CLI::Option* option : app.get_options()) {
            for (const std::string& word : option->get_lnames()) {
                options += (options.empty() ? "--" : " --") + word;
                const std::string condition =
                    name.empty() ? "__fish_use_subcommand" : "__fish_seen_subcommand_from " + name;
                fish += "complete -c " + program + " -n '" + condition + "' -l " + word +
                        (option->get_items_expected_max() > 0 ? " -r" : "") + "\n";
            }
        }
        if (!name.empty()) {
            names += (names.empty() ? "" : " ") + name;
            fish += "complete -c " + program + " -n __fish_use_subcommand -a " + name + " -d '" +
                    std::string(command.summary) + "'\n";
        }
        cases += "        " + (name.empty() ? "*" : name) + ") options=\"" + options + "\" ;;\n";
    }
    // The plain run is the case for all else, so that it comes last.
    const std::size_t plain = cases.find("        *)"), end = cases.find('\n', plain) + 1;
    cases = cases.substr(0, plain) + cases.substr(end) + cases.substr(plain, end - plain);

    const std::string function = "_" + program;
    if (shell == "fish") return "# Completion of " + program + " for fish.\n" + fish;
    const std::string body =
        function + "() {\n    local word=${COMP_WORDS[COMP_CWORD]} options\n    case ${COMP_WORDS[1]} in\n" + cases +
        "    esac\n    if [ \"$COMP_CWORD\" -eq 1 ]; then options=\"" + names + " $options\"; fi\n" +
        "    case $word in\n        -*) COMPREPLY=($(compgen -W \"$options\" -- \"$word\")) ;;\n" +
        "        *) COMPREPLY=($(compgen -f -- \"$word\"))\n           if [ \"$COMP_CWORD\" -eq 1 ]; then "
        "COMPREPLY+=($(compgen -W \"" +
        names + "\" -- \"$word\")); fi ;;\n    esac\n}\n";
    if (shell == "bash") {
        return "# Completion of " + program + " for bash.\n" + body + "complete -o filenames -F " + function + " " +
               program + "\n";
    }
    if (shell == "zsh") {
        return "#compdef " + program + "\n# Completion of " + program +
               " for zsh, through that for bash.\nautoload -U "
               "+X bashcompinit && bashcompinit\n" +
               body + "complete -o filenames -F " + function + " " + program + "\n";
    }
    throw UsageError("completion " + shownWord(shell) + ": no such shell; known: bash, zsh, fish");
}

}  // namespace spectrum
