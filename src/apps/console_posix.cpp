#include <unistd.h>

#include "apps/console.h"

namespace velmora {

std::vector<std::string> utf8Arguments(int argc, char** argv) {
    return {argv + 1, argv + argc};
}

std::vector<std::string> systemArguments(int argc, char** argv) {
    return {argv + 1, argv + argc};
}

void useStartersConsole() {}

bool isTerminal(std::FILE* stream) {
    return ::isatty(::fileno(stream)) != 0;
}

}  // namespace velmora
