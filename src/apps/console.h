// What a program on the command line asks of its system: its arguments and its console.
#pragma once

#include <cstdio>
#include <string>
#include <vector>

namespace velmora {

/// The arguments behind the program's name in UTF-8. Windows keeps them in UTF-16 and gives `main` only those
/// characters that its ANSI code page has (CommandLineToArgvW); elsewhere they are `main`'s own.
std::vector<std::string> utf8Arguments(int argc, char** argv);

/// Whether somebody watches the stream; false for files and pipes.
bool isTerminal(std::FILE* stream);

}  // namespace velmora
