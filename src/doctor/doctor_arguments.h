// The command line of velmora-doctor.
#pragma once

#include <string>
#include <vector>

#include "arguments/outline.h"
#include "serial/port_identity.h"

namespace velmora {

struct DoctorArguments {
    std::string port;  ///< as the user names it; empty when he does not
    bool json = false;
};

/// Reads the arguments behind the program's name. Throws UsageError, and RequestedText for --help and
/// --version.
DoctorArguments readDoctorArguments(const std::vector<std::string>& arguments);

/// What readDoctorArguments takes.
ProgramOutline doctorOutline();

/// The device to examine when the user names none: the only one, or the only one on USB; empty when there is
/// no port. Throws UsageError when it is not plain which is meant.
std::string onlyPort(const std::vector<PortIdentity>& ports);

}  // namespace velmora
