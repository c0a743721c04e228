// velmora-doctor: finds out why a line does not work.
#include <cstdint>
#include <iostream>
#include <string>

#include "apps/configured_rate.h"
#include "apps/console.h"
#include "arguments/program.h"
#include "base/event_yield.h"
#include "doctor/doctor_arguments.h"
#include "doctor/doctor_report.h"
#include "doctor/port_examination.h"
#include "platform/console_output.h"
#include "platform/native.h"
#include "serial/mode_string.h"
#include "serial/named_port.h"
#include "serial/port_list.h"

namespace {

using namespace velmora;

/// Prints each finding as soon as it is there.
class PrintedFindings : public StepObserver {
  public:
    void found(const StepFinding& finding) override { std::cout << findingLine(finding) << std::endl; }
};

Diagnosis examine(PortNames& names, const std::string& port, std::uint32_t rate, StepObserver* observer) {
    const NativeClock clock;
    NoEvents noEvents;
    return examinePort({names, placeNamedPort(names, port), port, LineSettings{rate}},
                       {noEvents, [&clock] { return clock.monotonic(); }, observer});
}

Diagnosis noPort() {
    const std::string text = "No serial port is present.";
    return {{Cause::DeviceMissing, 95, text}, {{DoctorStep::Device, StepStatus::Fault, text}}};
}

int run(const DoctorArguments& arguments) {
    PortNames names;
    const std::string port = arguments.port.empty() ? onlyPort(listPorts(names)) : arguments.port;
    PrintedFindings printed;
    const std::uint32_t rate = configuredRate(std::cerr);
    if (!arguments.json && !port.empty()) {
        std::cout << "Examining " << port << " at " << rate << " baud, which takes up to a minute.\n";
    }
    const Diagnosis diagnosis =
        port.empty() ? noPort() : examine(names, port, rate, arguments.json ? nullptr : &printed);
    std::cout << (arguments.json ? diagnosisAsJson(port, diagnosis) : verdictText(diagnosis.verdict));
    return diagnosis.verdict.cause == Cause::None ? kStatusDone : kStatusFailed;
}

}  // namespace

int main(int argc, char** argv) {
    openStandardStreams();
    const auto console = showOnConsole(PrintedText::System);
    return runProgram("velmora-doctor", std::cout, std::cerr,
                      [argc, argv] { return run(readDoctorArguments(systemArguments(argc, argv))); });
}
