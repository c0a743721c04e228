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

/// While it lives the console, if there is one, takes what is written for UTF-8, which is what the programs
/// write (SetConsoleOutputCP); afterwards it has its code page again. Nothing to do on other systems.
class Utf8Console {
  public:
    Utf8Console();
    ~Utf8Console();
    Utf8Console(const Utf8Console&) = delete;
    Utf8Console& operator=(const Utf8Console&) = delete;

  private:
    unsigned before_ = 0;  // code page to give back; 0 for none
};

}  // namespace velmora
