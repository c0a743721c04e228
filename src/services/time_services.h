// TIME, GMT and TIMEINFO: the clock of this machine.
#pragma once

#include <cstdint>
#include <string>

#include "base/clock.h"
#include "link/frame_sender.h"
#include "link/server_window.h"
#include "services/service_handler.h"
#include "transfers/transfers.h"

namespace velmora {

/// The time zone of this machine, as it holds now. The programs use the system's, tests a fixed one.
class ZoneSource {
  public:
    virtual ~ZoneSource() = default;

    /// Local time minus universal time, in minutes, daylight saving included.
    virtual std::int32_t offsetMinutes() const = 0;
    /// Whether daylight saving is in force.
    virtual bool daylight() const = 0;
};

/// Universal time and zone as texts. Clock and zone must outlive it.
class TimeServices {
  public:
    TimeServices(const Clock& clock, const ZoneSource& zone) : clock_(clock), zone_(zone) {}

    DateTime localTime() const { return clock_.localTime(); }
    DateTime universalTime() const { return clock_.universalTime(); }
    /// Sets `offset` to the zone's offset, a sign and "hhnn" ("+0530"), and returns whether daylight saving
    /// is in force. RunTimeError 6 when the offset does not fit 16 bits.
    bool zoneInformation(std::string& offset) const;

  private:
    const Clock& clock_;
    const ZoneSource& zone_;
};

/// A date and time as "yyyy-mm-dd hh:nn:ss", 19 characters.
std::string timeStamp(const DateTime& time);

/// What a time service tells. The mark of daylight saving is " *", otherwise two blanks.
enum class TimeReply {
    Local,          ///< TIME: local time
    Universal,      ///< GMT: universal time and mark
    LocalWithZone,  ///< TIMEINFO: local time, blank, zone offset, mark
};

/// Answers its opening with one text and closes on the next event. One object for each of the three
/// services; all it is given must outlive it.
class TimeService : public ServiceHandler {
  public:
    TimeService(FrameSender& sender, ServerWindow& window, Transfers& transfers, const TimeServices& time,
                TimeReply reply)
        : sender_(sender), window_(window), transfers_(transfers), time_(time), reply_(reply) {}

    void handle(std::int32_t& code, std::string& payload) override;

  private:
    std::string replyText() const;

    FrameSender& sender_;
    ServerWindow& window_;
    Transfers& transfers_;
    const TimeServices& time_;
    TimeReply reply_;
};

}  // namespace velmora
