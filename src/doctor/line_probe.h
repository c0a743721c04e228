// What the doctor sends down a line, and what comes back.
#pragma once

#include <chrono>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "doctor/examined_line.h"
#include "doctor/heard.h"
#include "link/crc.h"
#include "link/frames.h"
#include "serial/wire_time.h"

namespace velmora {

/// How long a conversation goes on: until so many link requests were sent, or so many of them answered.
struct ConversationLimits {
    std::size_t requests = 14;
    std::size_t answers = 8;
};

/// Speaks over an open line. Sends nothing but what the server itself sends while it waits for a link, and
/// bytes that make no frame, which the Organiser's link drops: no file, no setting changes there.
class LineProbe {
  public:
    using Time = ExaminedLine::Time;

    explicit LineProbe(ExaminedLine& line);

    /// Sets the line otherwise; false when the device does not take that.
    bool use(const LineSettings& settings);
    std::optional<LineSettings> settingsInUse() { return line_.settingsInUse(); }

    /// Sends link requests and listens, and acknowledges those of the other side. While no frame comes it
    /// ends after `kRequestsInVain` of them.
    Heard converse(const ConversationLimits& limits);
    static constexpr std::size_t kRequestsInVain = 6;

    /// Once nothing is on its way any more, the time from one link request to its acknowledgement; nothing
    /// when none comes within `kLongestAnswer`.
    std::optional<Time> measureAnswer();
    static constexpr Time kLongestAnswer = std::chrono::seconds(3);

    /// Takes the link down that a conversation has made.
    void hangUp();

    /// Sends bytes and returns what came within some time after they can have arrived and come back.
    LineInput reply(std::string_view bytes, Time after);

    const Crc& crc() const { return crc_; }
    const LineSettings& settings() const { return settings_; }

  private:
    void request(Listener& listener);
    bool answers(const ParsedFrame& frame);
    bool acknowledgedWithin(Listener& listener, Time time);
    void sendControl(FrameType type, std::string_view data = {});
    Time onTheWire(std::size_t bytes) const;

    ExaminedLine& line_;
    LineSettings settings_;
    Crc crc_;
};

}  // namespace velmora
