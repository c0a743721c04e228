#include "describe/described_programs.h"

#include <algorithm>

#include "apps/desktop_arguments.h"
#include "apps/server_arguments.h"
#include "arguments/usage_error.h"
#include "cable_arguments.h"
#include "doctor/doctor_arguments.h"
#include "files/command_line.h"
#include "organiser/command_line.h"

namespace velmora::describe {

std::vector<ProgramOutline> describedPrograms() {
    return {desktopOutline(), serverOutline(), commandLineOutline(),
            filesOutline(),   doctorOutline(), tools::cableOutline()};
}

ProgramOutline describedProgram(const std::string& name) {
    const std::vector<ProgramOutline> programs = describedPrograms();
    const auto found = std::ranges::find(programs, name, &ProgramOutline::name);
    if (found == programs.end()) {
        throw UsageError("there is no program \"" + name + "\"");
    }
    return *found;
}

}  // namespace velmora::describe
