// The tour: everything that the server offers, tried in turn and told.
#pragma once

#include "organiser/commands.h"

namespace velmora {

/// Saves, loads and compares files of every kind, lists the folder, reads the clock, sends a spreadsheet
/// there and back, and fetches boot code if the command line names some. Takes names that begin with TOUR
/// and are free, and tells which files it leaves in the server's folder. A service that the server does not
/// know is skipped; a step that fails is told and the next one goes on, unless there is no link. The result
/// is the status of the first failure.
ExitStatus runTour(const CommandLine& line, OrganiserLink& link, const Console& console);

}  // namespace velmora
