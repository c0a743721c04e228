#include "cable_arguments.h"

#include "arguments/argument_values.h"
#include "arguments/syntax.h"

namespace velmora::tools {
namespace {

/// The syntax of the whole command line. What is read goes into the result.
class CableSyntax : public ProgramSyntax {
  public:
    explicit CableSyntax(CableArguments& result)
        : ProgramSyntax("velmora-cable",
                        "Joins two pseudo-terminals like a null-modem cable, for the server and the virtual "
                        "Organiser on one machine. It prints the two devices and carries bytes until its "
                        "standard input closes or it is told to stop.") {
        option("--baud", "<rate>",
               "Bytes take the time that they take on a line of\nthis speed (default: none)",
               [&result](const std::string& value) {
                   constexpr unsigned kFastest = 4'000'000;
                   result.baud =
                       numberValue<unsigned>("--baud", value, 0, kFastest, "a line speed up to 4000000");
               });
        flag("--held", "The devices are in use by the cable itself, so that\nopening them fails",
             result.held);
        option("--ill", "<illness>[,<illness>...]",
               "Make the line ill. The first device is the computer's,\nthe second the handheld's. rate=RATE "
               "and form=7E1: the\nhandheld's settings; mute, deaf, dead: a direction or both;\nloopback, "
               "echo, modem, quiet-modem, xmodem, text: what is\nthere in its place; noise=P, losses=P, "
               "breaks=P, stuck:\nwhat the line does to bytes, with a probability",
               [&result](const std::string& value) { result.illness = readIllness("--ill", value); });
        pairOption("--link", "<file1> <file2>", "Make symbolic links to the devices, for this run",
                   [&result](const std::string& first, const std::string& second) {
                       result.links = {first, second};
                   });
        exitStatuses({{0, "stopped"}, {1, "a device or link cannot be made"}, {2, "wrong usage"}});
    }
};

}  // namespace

CableArguments readCableArguments(const std::vector<std::string>& arguments) {
    CableArguments result;
    CableSyntax(result).read(arguments);
    return result;
}

ProgramOutline cableOutline() {
    CableArguments result;
    return CableSyntax(result).outline();
}

}  // namespace velmora::tools
