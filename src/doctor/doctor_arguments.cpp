#include "doctor/doctor_arguments.h"

#include <algorithm>

#include "arguments/argument_values.h"
#include "arguments/syntax.h"
#include "serial/adapter_key.h"

namespace velmora {
namespace {

/// The syntax of the whole command line. What is read goes into the result.
class DoctorSyntax : public ProgramSyntax {
  public:
    explicit DoctorSyntax(DoctorArguments& result)
        : ProgramSyntax("velmora-doctor",
                        "Finds out why the Organiser is not heard: looks at the port, sends link requests as "
                        "the server does, listens at all usual rates, and says what is wrong and what helps. "
                        "Nothing changes on the Organiser. The server's rate is that of the user's "
                        "Velmora.ini. Stop the server before, and start a transfer on "
                        "the Organiser.") {
        option("--port", "<port>",
               "Serial port, for example COM5, /dev/ttyUSB0 or\nusb:0403:6001:A50285BI (default: the only "
               "one)",
               [&result](const std::string& value) {
                   if (namesAdapter(value) && !adapterKeyOfName(value)) {
                       wrongValue("--port", value, "usb:VENDOR:PRODUCT:SERIAL");
                   }
                   result.port = value;
               });
        flag("--json", "Print one JSON object, at the end", result.json);
        exitStatuses({{0, "the line is well"}, {1, "a cause was found"}, {2, "wrong usage"}});
    }
};

}  // namespace

DoctorArguments readDoctorArguments(const std::vector<std::string>& arguments) {
    DoctorArguments result;
    DoctorSyntax(result).read(arguments);
    return result;
}

ProgramOutline doctorOutline() {
    DoctorArguments result;
    return DoctorSyntax(result).outline();
}

std::string onlyPort(const std::vector<PortIdentity>& ports) {
    if (ports.empty()) {
        return {};
    }
    const auto isOnUsb = [](const PortIdentity& port) { return !port.vendorId.empty(); };
    const auto first = std::ranges::find_if(ports, isOnUsb);
    if (std::ranges::count_if(ports, isOnUsb) == 1) {
        return first->device;
    }
    if (ports.size() == 1) {
        return ports.front().device;
    }
    std::string names;
    for (const PortIdentity& port : ports) {
        names += (names.empty() ? "" : ", ") + port.device;
    }
    throw UsageError("several ports are present; say with --port which to examine: " + names);
}

}  // namespace velmora
