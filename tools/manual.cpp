// The manual page, in mdoc, from the declarations of the commands.
#include <CLI/CLI.hpp>

#include "command_line.h"

namespace spectrum {
namespace {

// Text that roff prints as it is.
std::string literal(std::string_view text) {
    std::string result;
    for (char letter : text) {
        switch (letter) {
            case '\\': result += "\\e"; break;
            case '-': result += "\\-"; break;
            case '\'': result += "\\(aq"; break;
            case '`': result += "\\(ga"; break;
            case '^': result += "\\(ha"; break;
            case '~': result += "\\(ti"; break;
            default: result += letter;
        }
    }
    return result.starts_with(".") ? "\\&" + result : result;
}

// Running text in short lines, a new one for each sentence.
std::string filled(std::string_view text) {
    std::string result, line;
    const auto endLine = [&] {
        if (!line.empty()) result += literal(line) + "\n";
        line.clear();
    };
    while (!text.empty()) {
        const std::size_t end = std::min(text.find_first_of(" \n"), text.size());
        const std::string_view word = text.substr(0, end);
        text.remove_prefix(std::min(end + 1, text.size()));
        if (word.empty()) continue;
        if (line.size() + word.size() > 70) endLine();
        line += (line.empty() ? "" : " ") + std::string(word);
        if (word.ends_with('.') || word.ends_with(".)")) endLine();
    }
    endLine();
    return result;
}

// Paragraphs of running text, with an empty line between them; indented lines are shown as they are.
std::string paragraphs(std::string_view text) {
    std::string result, running, shown;
    const auto end = [&] {
        if (!running.empty()) result += ".Pp\n" + filled(running);
        if (!shown.empty()) result += ".Bd -literal -offset indent\n" + shown + ".Ed\n";
        running.clear(), shown.clear();
    };
    while (!text.empty()) {
        const std::size_t size = std::min(text.find('\n'), text.size());
        const std::string_view line = text.substr(0, size);
        text.remove_prefix(std::min(size + 1, text.size()));
        const bool isShown = line.starts_with("  ");
        if (line.empty() || isShown != running.empty()) end();
        if (isShown) shown += literal(line.substr(2)) + "\n";
        if (!isShown && !line.empty()) running += std::string(line) + "\n";
    }
    end();
    return result;
}

std::string optionList(const CLI::App& app) {
    std::string result = ".Bl -tag -width Ds\n";
    for (const CLI::Option* option : app.get_options()) {
        std::string head;
        for (const std::string& name : option->get_snames()) head += (head.empty() ? "Fl " : " , Fl ") + name;
        for (const std::string& name : option->get_lnames()) {
            head += (head.empty() ? "Fl Fl " : " , Fl Fl ") + name;
            if (option->get_items_expected_max() > 0) head += " Ar " + literal(option->get_type_name());
        }
        if (option->get_positional()) head = "Ar " + literal(option->get_name());
        result += ".It " + head + "\n" + filled(option->get_description() + ".");
        if (!option->get_default_str().empty())
            result += "The default is " + literal(option->get_default_str()) + ".\n";
    }
    return result + ".El\n";
}

}  // namespace

std::string manualPage(const std::string& program, const std::vector<Command>& commands) {
    std::string described(commands.front().summary), upper = program;
    described[0] = static_cast<char>(std::tolower(described[0]));
    for (char& letter : upper) letter = static_cast<char>(std::toupper(letter));
    std::string page = ".Dd November 23, 2026\n.Dt " + upper + " 1\n.Os\n.Sh NAME\n.Nm " + program + "\n.Nd " +
                       described + "\n.Sh SYNOPSIS\n";
    for (const Command& command : commands) {
        if (command.summary.empty()) continue;
        page += ".Nm\n";
        if (!command.name.empty()) page += ".Cm " + std::string(command.name) + "\n";
        page += ".Op Ar options\n";
        if (!command.operands.empty()) page += ".Ar " + literal(command.operands) + "\n";
    }
    page += ".Sh DESCRIPTION\n";
    for (const Command& command : commands) {
        if (command.summary.empty()) continue;
        CLI::App app;
        Words words;
        command.declare(app, words);
        app.get_help_ptr()->description("Print the help and exit");
        if (!command.name.empty()) page += ".Ss " + std::string(command.name) + "\n";
        page += filled(std::string(command.summary) + ".") + optionList(app) + paragraphs(command.footer);
    }
    return page + ".Sh SEE ALSO\n.Xr zulgenpx 3\n";
}

}  // namespace spectrum
