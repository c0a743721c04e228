#include "apps/desktop_arguments.h"

#include "arguments/syntax.h"
#include "base/byte_text.h"

namespace velmora {
namespace {

class DesktopSyntax : public ProgramSyntax {
  public:
    explicit DesktopSyntax(DesktopArguments& result)
        : ProgramSyntax("velmora", "Serves a Psion Organiser II on a serial port, with a window.") {
        option("--config", "<file>",
               "Configuration file (default: Velmora.ini in\nthe user's configuration folder)",
               [&result](const std::string& file) { result.config = file; });
        note(
            "velmora -debug, in any case and with nothing else, offers the protocol monitor. The toolkit's "
            "own\n"
            "options, such as -platform and -style, are understood too.");
    }
};

}  // namespace

void answerWithoutDisplay(const std::vector<std::string>& arguments) {
    DesktopArguments unused;
    DesktopSyntax(unused).read(arguments, ProgramSyntax::Unknown::Ignored);
}

DesktopArguments readDesktopArguments(const std::vector<std::string>& arguments) {
    if (arguments.size() == 1 && lowerCase(arguments.front()) == "-debug") {
        return {arguments.front()};
    }
    DesktopArguments result;
    DesktopSyntax(result).read(arguments, ProgramSyntax::Unknown::Refused);
    return result;
}

ProgramOutline desktopOutline() {
    DesktopArguments unused;
    return DesktopSyntax(unused).outline();
}

}  // namespace velmora
