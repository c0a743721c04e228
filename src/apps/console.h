// What a program on the command line asks of its system: its arguments and its console.
#pragma once

#include <cstdio>
#include <string>
#include <vector>

namespace velmora {

/// The arguments behind the program's name in UTF-8. Windows keeps them in UTF-16 and gives `main` only those
/// characters that its ANSI code page has (CommandLineToArgvW); elsewhere they are `main`'s own.
std::vector<std::string> utf8Arguments(int argc, char** argv);

/// The arguments behind the program's name in the system's narrow encoding, in which paths are. Windows gives
/// `main` similar letters for those that its ANSI code page lacks, which may name another file; here such an
/// argument is the short path of a file that is there, or a UsageError that names it.
std::vector<std::string> systemArguments(int argc, char** argv);

/// Lets a program with windows speak on the console that it was started from: Windows gives it none. Nothing
/// to do where its streams lead somewhere already.
void useStartersConsole();

/// Gives the program null devices for the standard streams that its caller has closed. First thing in main:
/// the next file that is opened, such as a serial port, would otherwise take the stream's place and get what
/// is printed.
void openStandardStreams();

/// Whether somebody watches the stream; false for files and pipes.
bool isTerminal(std::FILE* stream);

}  // namespace velmora
