#include "describe/manual_page.h"

#include <algorithm>
#include <cstddef>

#include "base/ascii.h"
#include "base/byte_text.h"

namespace velmora::describe {
namespace {

/// A text as troff prints it: its hyphens as they are typed, and no line of it a request.
std::string plain(const std::string& text) {
    std::string result;
    for (const char letter : text) {
        if (letter == '\\') {
            result += "\\e";
        } else if (letter == '-') {
            result += "\\-";
        } else {
            result += letter == '\n' ? ' ' : letter;
        }
    }
    return result.starts_with('.') || result.starts_with('\'') ? "\\&" + result : result;
}

std::string bold(const std::string& text) {
    return "\\fB" + plain(text) + "\\fR";
}

/// What help calls "<file>" or "[=<list>]", in the page's manner.
std::string placeholder(const std::string& value) {
    std::string result;
    for (const char letter : plain(value)) {
        if (letter == '<') {
            result += "\\fI";
        } else if (letter == '>') {
            result += "\\fR";
        } else {
            result += letter;
        }
    }
    return result;
}

std::string operandName(const ArgumentOutline& operand) {
    return "\\fI" + plain(lowerCase(operand.names.front())) + "\\fR";
}

std::string describedOption(const ArgumentOutline& option) {
    std::string names;
    for (const std::string& name : option.names) {
        names += (names.empty() ? "" : ", ") + bold(name);
    }
    const std::string between = option.value.empty() || option.value.starts_with('[') ? "" : " ";
    return ".TP\n" + names + between + placeholder(option.value) + "\n" + plain(option.help) + "\n";
}

std::string describedArguments(const CommandOutline& command) {
    std::string text;
    for (const ArgumentOutline& operand : command.operands) {
        text += ".TP\n" + operandName(operand) + "\n" + plain(operand.help) + "\n";
    }
    for (const ArgumentOutline& option : command.options) {
        text += describedOption(option);
    }
    return text;
}

std::string usage(const CommandOutline& command, const std::string& fullName) {
    std::string line = bold(fullName) + " [options]";
    for (const ArgumentOutline& operand : command.operands) {
        line += " " + operandName(operand);
    }
    return line + (command.commands.empty() ? "" : " \\fIcommand\\fR ...") + "\n";
}

void addCommands(const CommandOutline& above, const std::string& path, std::string& text) {
    for (const CommandOutline& command : above.commands) {
        const std::string name = path + command.name;
        text += ".SS " + usage(command, name) + plain(command.purpose) + ".\n" + describedArguments(command);
        addCommands(command, name + " ", text);
    }
}

/// The first sentence of a purpose, as lists of pages have it.
std::string shortPurpose(const std::string& purpose) {
    return purpose.substr(0, std::min(purpose.find(". "), purpose.size() - 1));
}

}  // namespace

std::string manualPage(const ProgramOutline& program, const std::vector<std::string>& others) {
    std::string text = ".TH " + upperCase(program.name) + " 1 \"\" \"Velmora " + program.version + "\"\n" +
                       ".SH NAME\n" + plain(program.name) + " \\- " + plain(shortPurpose(program.purpose)) +
                       "\n.SH SYNOPSIS\n" + usage(program, program.name) + ".SH DESCRIPTION\n" +
                       plain(program.purpose) + "\n";
    if (!program.note.empty()) {
        text += ".PP\n" + plain(program.note) + "\n";
    }
    text += ".SH OPTIONS\n" + describedArguments(program);
    if (!program.commands.empty()) {
        text += ".SH COMMANDS\n";
        addCommands(program, "", text);
    }
    if (!program.statuses.empty()) {
        text += ".SH EXIT STATUS\n";
        for (const auto& [status, meaning] : program.statuses) {
            text += ".TP\n" + std::to_string(status) + "\n" + plain(meaning) + "\n";
        }
    }
    text += ".SH SEE ALSO\n";
    for (std::size_t i = 0; i < others.size(); ++i) {
        const std::size_t section = others[i].find('(');
        text += ".BR " + plain(others[i].substr(0, section)) + " " + others[i].substr(section) +
                (i + 1 < others.size() ? " ,\n" : "\n");
    }
    return text;
}

}  // namespace velmora::describe
