// velmora-organiser: the virtual Organiser on the command line.
#include <cstdint>
#include <cstdio>
#include <iostream>
#include <optional>
#include <string>

#include "apps/console.h"
#include "apps/listed_ports.h"
#include "arguments/program.h"
#include "arguments/syntax.h"
#include "organiser/command_line.h"
#include "organiser/commands.h"
#include "organiser/fault_injector.h"
#include "organiser/frame_text.h"
#include "organiser/organiser_link.h"
#include "organiser/progress.h"
#include "organiser/replay_command.h"
#include "organiser/serial_line.h"
#include "platform/binary_streams.h"
#include "platform/console_output.h"
#include "platform/file_size_limit.h"
#include "platform/native.h"
#include "serial/wire_time.h"

namespace {

using namespace velmora;

void printFrame(FrameDirection direction, std::string_view frame) {
    std::cerr << (direction == FrameDirection::Sent ? "send  " : "recv  ") << frameText(frame) << '\n';
}

ExitStatus run(const CommandLine& line) {
    SerialLine device(line.device, line.baud);
    std::optional<FaultInjector> faults;
    if (line.faults.any()) {
        faults.emplace(device, line.faults);
    }
    OrganiserLine& used = faults ? static_cast<OrganiserLine&>(*faults) : device;
    LineSettings settings;
    settings.baud = static_cast<std::uint32_t>(line.baud);
    const OrganiserLink::FrameTrace trace = line.trace ? printFrame : OrganiserLink::FrameTrace();
    OrganiserLink link(used, WireTime(settings), trace);

    const bool tour = line.command.kind == CommandKind::Tour;
    const bool terminal = isTerminal(tour ? stdout : stderr);
    Progress silent;
    const NativeClock clock;
    ProgressBar bar(tour ? std::cout : std::cerr, terminal && !line.trace, clock);
    const Console console{std::cin, std::cout, std::cerr, tour || terminal ? bar : silent};
    return line.command.kind == CommandKind::Replay ? runReplay(line.command.file, used, trace, console)
                                                    : runCommand(line, link, console);
}

}  // namespace

int main(int argc, char** argv) {
    openStandardStreams();
    outliveFileSizeLimit();
    const auto console = showOnConsole(PrintedText::Utf8);
    // Contents of files go to standard output as they are.
    useBinaryStandardStreams();
    return runProgram("velmora-organiser", std::cout, std::cerr, [argc, argv] {
        const CommandLine line = readCommandLine(utf8Arguments(argc, argv));
        if (line.command.kind == CommandKind::ListPorts) {
            throw RequestedText{listedPorts(line.command.json)};
        }
        ExitStatus status = kDone;
        const ExitStatus failed = guarded(std::cerr, [&] { status = run(line); });
        return failed != kDone ? failed : status;
    });
}
