#include "apps/desktop_arguments.h"

#include <algorithm>
#include <string_view>

#include "arguments/argument_values.h"
#include "arguments/syntax.h"
#include "base/byte_text.h"
#include "base/profile_name.h"
#include "ui/languages.h"

namespace velmora {
namespace {

std::string knownLanguage(const std::string& code) {
    const std::vector<std::string_view>& known = knownLanguages();
    if (std::ranges::find(known, code) != known.end()) {
        return code;
    }
    std::string list;
    for (const std::string_view one : known) {
        list += (list.empty() ? "" : one == known.back() ? " or " : ", ") + std::string(one);
    }
    wrongValue("--language", code, list);
}

class DesktopSyntax : public ProgramSyntax {
  public:
    explicit DesktopSyntax(DesktopArguments& result)
        : ProgramSyntax("velmora", "Serves a Psion Organiser II on a serial port, with a window.") {
        option("--config", "<file>",
               "Configuration file (default: Velmora.ini in\nthe user's configuration folder)",
               [&result](const std::string& file) { result.config = file; });
        option("--profile", "<name>",
               "Settings and a place of the window of its own, for\na second handheld: Velmora-<name>.ini",
               [&result](const std::string& name) {
                   if (!isProfileName(name)) {
                       wrongValue("--profile", name, "a name that can be part of a file's");
                   }
                   result.profile = name;
               });
        option("--language", "<code>",
               "Language of the windows: en, de, es, fr, it or nl\n(default: the desktop's, else English)",
               [&result](const std::string& code) { result.language = knownLanguage(code); });
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
    if (result.config && result.profile) {
        throw UsageError("--config and --profile do not go together");
    }
    return result;
}

ProgramOutline desktopOutline() {
    DesktopArguments unused;
    return DesktopSyntax(unused).outline();
}

}  // namespace velmora
