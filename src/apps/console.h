// What a program on the command line asks of its system: its arguments and its console.
#pragma once

#include <cstdio>
#include <stdexcept>
#include <string>
#include <vector>

namespace velmora {

/// The arguments behind the program's name in UTF-8. Windows keeps them in UTF-16 and gives `main` only those
/// characters that its ANSI code page has (CommandLineToArgvW); elsewhere they are `main`'s own.
std::vector<std::string> utf8Arguments(int argc, char** argv);

/// An argument that has no narrow form; the text names it.
class ArgumentError : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

/// The arguments behind the program's name in the system's narrow encoding, in which paths are. Windows gives
/// `main` similar letters for those that its ANSI code page lacks, which may name another file; here such an
/// argument is the short path of a file that is there, or an ArgumentError.
std::vector<std::string> systemArguments(int argc, char** argv);

/// Whether somebody watches the stream; false for files and pipes.
bool isTerminal(std::FILE* stream);

}  // namespace velmora
