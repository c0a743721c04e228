// What the commands of velmora-organiser do: files on this side, conversations with the server, words about
// it.
#pragma once

#include <functional>
#include <iosfwd>

#include "organiser/command_line.h"
#include "organiser/organiser_link.h"
#include "organiser/progress.h"

namespace velmora {

/// Exit statuses of the program.
enum ExitStatus : int {
    kDone = 0,
    kLocalProblem = 1,  ///< a file on this side; in a tour also something that came back changed
    kDiffers = 1,       ///< a replay: the server answers otherwise than it did
    kWrongUsage = 2,
    kRefused = 3,  ///< by the server
    kNoLink = 4,   ///< also a server whose answers make no sense
};

/// Where the program speaks. The streams and the progress must outlive their user.
struct Console {
    std::istream& in;     ///< what is read for a file called "-"
    std::ostream& out;    ///< what was asked for, and words about it unless contents go there
    std::ostream& error;  ///< failures, and the words that must not mix with contents
    Progress& progress;
};

/// Carries out one command over a link that is down, and leaves it down. A failure is told on the console and
/// gives the exit status.
ExitStatus runCommand(const CommandLine& line, OrganiserLink& link, const Console& console);

/// Runs an action; when it throws LocalFileError, LinkFailure or LineError, tells so and gives its status.
ExitStatus guarded(std::ostream& error, const std::function<void()>& action);

}  // namespace velmora
