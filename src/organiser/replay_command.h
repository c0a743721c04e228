// velmora-organiser replay: what a recorded conversation comes to with this server.
#pragma once

#include <string>

#include "organiser/commands.h"
#include "organiser/organiser_line.h"
#include "organiser/organiser_link.h"

namespace velmora {

/// Replays a capture and prints how many frames of the server agreed, or where it parted from what was
/// recorded. kDone when all agreed, kDiffers at another frame, kNoLink when nothing came, kLocalProblem for a
/// file that is no whole and readable capture. Throws LocalFileError and LineError.
ExitStatus runReplay(const std::string& path, OrganiserLine& line, const OrganiserLink::FrameTrace& trace,
                     const Console& console);

}  // namespace velmora
