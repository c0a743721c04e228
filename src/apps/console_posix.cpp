#include <fcntl.h>
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

void openStandardStreams() {
    for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
        if (::fcntl(stream, F_GETFD) == -1) {
            // Takes the lowest free number, which is this one.
            ::open("/dev/null", stream == STDIN_FILENO ? O_RDONLY : O_WRONLY);
        }
    }
}

bool isTerminal(std::FILE* stream) {
    return ::isatty(::fileno(stream)) != 0;
}

}  // namespace velmora
