#include "apps/desktop_arguments.h"

#include "arguments/syntax.h"
#include "base/byte_text.h"

namespace velmora {
namespace {

void read(const std::vector<std::string>& arguments, ProgramSyntax::Unknown unknown) {
    ProgramSyntax syntax("velmora", "Serves a Psion Organiser II on a serial port, with a window.");
    syntax.note(
        "velmora -debug, in any case and with nothing else, offers the protocol monitor. The toolkit's own\n"
        "options, such as -platform and -style, are understood too.");
    syntax.read(arguments, unknown);
}

}  // namespace

void answerWithoutDisplay(const std::vector<std::string>& arguments) {
    read(arguments, ProgramSyntax::Unknown::Ignored);
}

std::string desktopCommandLine(const std::vector<std::string>& arguments) {
    if (arguments.size() == 1 && lowerCase(arguments.front()) == "-debug") {
        return arguments.front();
    }
    read(arguments, ProgramSyntax::Unknown::Refused);
    return {};
}

}  // namespace velmora
