// What came in while the doctor listened.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "link/crc.h"
#include "link/frame_cutter.h"
#include "link/frames.h"
#include "serial/mode_string.h"

namespace velmora {

struct Heard {
    LineSettings settings;  ///< with which it was heard
    std::string bytes;      ///< all of them
    std::uint32_t errorFlags = 0;
    std::size_t goodFrames = 0;
    std::size_t damagedFrames = 0;  ///< with a header and an end, but a wrong check
    std::size_t framedBytes = 0;    ///< of the good frames
    std::size_t framedNulls = 0;    ///< of the nulls, how many belong to them
    std::size_t calls = 0;          ///< link requests
    std::size_t requests = 0;       ///< link requests that were sent
    std::size_t answered = 0;       ///< of those, how many were answered in time
    std::size_t missed = 0;         ///< how many were not, after the first that was

    std::size_t leadingBytes = 0;     ///< before the first of them: the port was opened amid a frame
    std::size_t unfinishedBytes = 0;  ///< of a frame that is still to come

    /// Bytes behind the first good frame that belong to none.
    std::size_t strayBytes() const { return bytes.size() - leadingBytes - framedBytes - unfinishedBytes; }
    /// Nulls that belong to no good frame.
    std::size_t strayNulls() const;
};

/// Cuts what comes into frames and counts.
class Listener {
  public:
    /// `crc` must be loaded and outlive this object.
    Listener(const Crc& crc, const LineSettings& settings) : crc_(crc) { heard_.settings = settings; }

    /// Adds bytes; returns the good frames that they complete.
    std::vector<ParsedFrame> take(std::string_view bytes, std::uint32_t errorFlags);

    Heard& heard() { return heard_; }

  private:
    const Crc& crc_;
    FrameCutter cutter_;
    Heard heard_;
};

}  // namespace velmora
