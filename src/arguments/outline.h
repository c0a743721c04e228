// What a command line may be, as data: for manual pages and for the completions of shells.
#pragma once

#include <string>
#include <utility>
#include <vector>

namespace velmora {

/// An option, or an operand. Texts are as the help has them; a "\n" in them only breaks a line of the help.
struct ArgumentOutline {
    std::vector<std::string> names;  ///< of an option with their dashes; an operand has one, in capitals
    std::string value;               ///< "<file>", "[=<list>]" for one that may be missing, empty for none
    std::string help;
};

/// A program, or one of its commands. The program's options hold for its commands, too; --help, which each
/// has, stands with the program only.
struct CommandOutline {
    std::string name;
    std::string purpose;
    std::vector<ArgumentOutline> options;
    std::vector<ArgumentOutline> operands;  ///< in their order
    std::vector<CommandOutline> commands;
};

/// A program with what only a program has.
struct ProgramOutline : CommandOutline {
    std::string version;
    std::string note;                                   ///< empty for none
    std::vector<std::pair<int, std::string>> statuses;  ///< exit statuses and what they mean
};

}  // namespace velmora
