// A recording that goes into a file while it is made.
#pragma once

#include <chrono>
#include <cstddef>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "base/files.h"
#include "base/path_rules.h"
#include "capture/capture.h"
#include "capture/capture_limit.h"
#include "capture/frame_mask.h"

namespace velmora {

/// What a recording is to be.
struct CaptureRequest {
    std::string path;
    CaptureLimit limit;
    bool masked = false;
};

/// Writes each packet at once, whole or not at all, so that the file is one that can be read at any time.
/// When it cannot grow, that is told once, the recording has a gap, and goes on as soon as it can.
///
/// With a limit the file is kept in two parts of half of it: what becomes too much is renamed to
/// earlierCapturePath, over what was called so, and the file begins anew.
class CaptureFile : public CaptureTarget {
  public:
    /// Makes the file; `files` and `tell`, which takes a sentence for the user, must outlive this object.
    /// RunTimeError when that fails; FileAlreadyExists when there is a file that is no capture.
    CaptureFile(Files& files, CaptureRequest request, std::function<void(const std::string& line)> tell);

    void addPort(const CapturedPort& port) override;
    void addPacket(const CapturedPacket& packet) override;

  private:
    void begin();
    bool isFull(const CapturedPacket& packet) const;
    void write(const CapturedPacket& packet);
    std::string gap(const CapturedPacket& packet) const;

    Files& files_;
    CaptureRequest request_;
    std::function<void(const std::string&)> tell_;
    PacketMask mask_;
    std::unique_ptr<File> file_;
    bool toMoveAway_ = false;          // the file is full and does not yet have its other name
    std::string due_;                  // blocks that must precede the next packet
    std::vector<CapturedPort> ports_;  // of the file's section
    std::optional<std::chrono::nanoseconds> firstTime_;
    std::size_t missing_ = 0;  // packets since the file cannot grow
};

/// Where the older part of a limited recording stands: "log.pcapng" makes "log.earlier.pcapng".
std::string earlierCapturePath(const std::string& path);

}  // namespace velmora
