// The completions of command lines in shells.
#pragma once

#include <string>
#include <vector>

#include "arguments/outline.h"

namespace velmora::describe {

/// What can be offered for a value.
enum class Offer {
    Nothing,
    Files,
    Folders,
    Ports,        ///< devices that the program's --list-ports prints
    ServerNames,  ///< files of the folder that a server on this machine serves
};

/// What the help calls the value of an option tells what it is: "<file>", "<folder>" or "<port>"; an
/// operand's name does, too.
Offer offerFor(const ArgumentOutline& argument);

/// Prints the devices of this machine's ports, a line each; a command of the shell.
constexpr const char* kListPorts = " --list-ports 2>/dev/null | grep -o '/dev/[^ ]*' | sort -u";
/// Prints the folder that a server on this machine serves.
constexpr const char* kServedFolder = "velmorad --print-config 2>/dev/null | sed -n 's/.*DownloadPath=//p'";

/// Whether a value stands behind the option as a word of its own.
inline bool takesNextWord(const ArgumentOutline& option) {
    return option.value.starts_with('<');
}

/// A text in one line, as one word of any shell.
std::string quoted(const std::string& text);
/// What the functions of a program's completion begin with.
std::string functionName(const std::string& program);

/// Scripts that the shells read when the program is first completed.
std::string bashCompletion(const ProgramOutline& program);
std::string zshCompletion(const ProgramOutline& program);
std::string fishCompletion(const ProgramOutline& program);

}  // namespace velmora::describe
