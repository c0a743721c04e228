#include "apps/desktop_arguments.h"

#include "arguments/syntax.h"
#include "base/byte_text.h"

namespace velmora {
namespace {

class DesktopSyntax : public ProgramSyntax {
  public:
    DesktopSyntax()
        : ProgramSyntax("velmora", "Serves a Psion Organiser II on a serial port, with a window.") {
        note(
            "velmora -debug, in any case and with nothing else, offers the protocol monitor. The toolkit's "
            "own\n"
            "options, such as -platform and -style, are understood too.");
    }
};

}  // namespace

void answerWithoutDisplay(const std::vector<std::string>& arguments) {
    DesktopSyntax().read(arguments, ProgramSyntax::Unknown::Ignored);
}

std::string desktopCommandLine(const std::vector<std::string>& arguments) {
    if (arguments.size() == 1 && lowerCase(arguments.front()) == "-debug") {
        return arguments.front();
    }
    DesktopSyntax().read(arguments, ProgramSyntax::Unknown::Refused);
    return {};
}

ProgramOutline desktopOutline() {
    return DesktopSyntax().outline();
}

}  // namespace velmora
