// Recordings read back from a pcapng file.
#pragma once

#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>

#include "capture/capture.h"

namespace velmora {

/// A file that is no recording of the Organiser's line; the text says why.
class CaptureError : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

/// A recording, and where reading it ended early.
struct ReadCapture {
    Capture capture;
    std::optional<std::string> damage;  ///< what follows the last packet cannot be read, and why
};

/// Reads a file in either byte order, with any number of sections, and leaves out what is not known: other
/// programs may have added to it. A file that breaks off gives what stands before. CaptureError when it is
/// none at all, or of another kind of line.
ReadCapture readPcapng(std::string_view bytes);

}  // namespace velmora
