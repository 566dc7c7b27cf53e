// The words of the command line, read with CLI11. An option is declared once, in a group that several commands share;
// its value stays a text until options.h makes something of it, so that every message about it is ours.
#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace CLI {
class App;
}

namespace spectrum {

// The words as they are typed, by option. Positional words have their capital names.
class Words {
public:
    // What was typed, or the standard value.
    const std::string& operator[](const std::string& option) const { return values.at(option); }
    bool given(const std::string& option) const;
    const std::vector<std::string>& list(const std::string& option) const { return lists.at(option); }

    std::map<std::string, std::string> values;
    std::map<std::string, std::vector<std::string>> lists;
    std::map<std::string, bool> wasGiven;  // also for flags
};

struct Command {
    std::string_view name;      // empty for the plain run
    std::string_view summary;   // one line
    std::string_view operands;  // as the usage shows them
    void (*declare)(CLI::App& app, Words& words);
    int (*run)(const Words& words);
    std::string_view footer;  // of its help
};

// The groups of options. Each adds its options to a command.
void declareInput(CLI::App& app, Words& words);
void declareFraming(CLI::App& app, Words& words);
void declareInverseFraming(CLI::App& app, Words& words);
void declarePicture(CLI::App& app, Words& words);
void declareOutput(CLI::App& app, Words& words, const std::string& formats);

// One option with a value, a flag, or a positional word.
void declareOption(CLI::App& app, Words& words, const std::string& name, const std::string& value,
                   const std::string& help, const std::string& standard = "");
void declareFlag(CLI::App& app, Words& words, const std::string& name, const std::string& help);
void declareOperand(CLI::App& app, Words& words, const std::string& name, const std::string& help);
void declareRepeated(CLI::App& app, Words& words, const std::string& name, const std::string& value,
                     const std::string& help);
void declareOperands(CLI::App& app, Words& words, const std::string& name, const std::string& help);

// Reads the words and runs the command that the first of them names, or the first command of the table where none is
// named. Returns the exit status. Throws UserError.
int runCommandLine(const std::string& program, const std::vector<Command>& commands, int argc, char** argv);

// Scripts for the completion of words, and the manual page in mdoc, from the same declarations.
std::string completionScript(const std::string& shell, const std::string& program,
                             const std::vector<Command>& commands);
std::string manualPage(const std::string& program, const std::vector<Command>& commands);

}  // namespace spectrum
