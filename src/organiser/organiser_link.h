// The handheld's side of the link: asks for it, numbers and repeats its DATA frames, acknowledges the
// server's, drops repeats. Requests and replies take turns, so the machine is synchronous.
#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "link/crc.h"
#include "link/frame_cutter.h"
#include "link/frames.h"
#include "organiser/link_failure.h"
#include "organiser/organiser_line.h"
#include "serial/wire_time.h"

namespace velmora {

/// Which way a traced frame went, seen from the Organiser.
enum class FrameDirection { Sent, Received };

/// One link over a line. Waits inside its calls; throws LinkFailure when the conversation cannot go on (the
/// link is down then) and LineError when the line itself is gone.
class OrganiserLink {
  public:
    using Time = OrganiserLine::Time;
    /// Takes each frame as on the wire.
    using FrameTrace = std::function<void(FrameDirection, std::string_view frame)>;

    /// A link request, and a DATA frame without an acknowledgement, is repeated after this time. It begins
    /// when the last byte has left the line.
    static constexpr Time kRepeatAfter = std::chrono::milliseconds(500);
    /// Repeats of a DATA frame before the link counts as gone. More than the server's four, so that the
    /// server notices first and its fresh link request tells.
    static constexpr int kMostRepeats = 10;
    /// Repeats at once, after the acknowledgement of an older frame, for each repeat by time. They do not
    /// count against kMostRepeats; without a bound two sides out of step would answer each other for ever.
    static constexpr int kMostPrompted = 8;
    /// A repeat of the server's means that it lacks an acknowledgement, or only that the line doubled the
    /// frame. The acknowledgement is given again when the request on its way stays unanswered for twice the
    /// last round trip, within these bounds: one that is not needed makes the server repeat, and each such
    /// repeat would draw the next one.
    static constexpr Time kShortestGrace = std::chrono::milliseconds(50);
    static constexpr Time kLongestGrace = kRepeatAfter;
    /// Longest wait for a silent line.
    static constexpr Time kSettleLimit = std::chrono::seconds(1);
    /// Link requests without an answer before the server is told to drop what it holds for a link: once it
    /// has acknowledged a request it ignores further ones, also when its acknowledgement was lost.
    /// From then on each request is preceded by that.
    static constexpr int kRequestsBeforeDisconnect = 3;
    /// How long a link is asked for.
    static constexpr Time kConnectLimit = std::chrono::seconds(10);
    /// How long an acknowledged request may stay without its reply.
    static constexpr Time kReplyLimit = std::chrono::seconds(30);
    /// Goodbyes sent before the server's silence is accepted.
    static constexpr int kGoodbyes = 3;

    /// `line` must outlive the link. `wire` is that of the idle line; `trace` may be empty.
    explicit OrganiserLink(OrganiserLine& line, const WireTime& wire = {}, FrameTrace trace = {});

    /// Brings the link up; nothing when it is up already. Throws NoLink when nobody answers.
    void connect();
    /// Sends one request and waits for the reply to it. Requires: the link is up.
    std::string request(std::string_view payload);
    /// Drops the link and waits until the server has noticed; gives up silently when it stays silent, since a
    /// server that was asked to stop may have closed its port. When the server has dropped the link, waits
    /// until the line is silent. Nothing when there was no link.
    void end();

    bool up() const { return up_; }

  private:
    /// What is known of the request on its way.
    struct Outstanding {
        std::string frame;
        bool acknowledged = false;
        bool acknowledgeAgain = false;  ///< the server has repeated its last DATA frame meanwhile
        int repeats = 0;
        int prompted = 0;
        Time leftAt{0};  ///< when the last byte can have left
        Time deadline{0};
    };

    void send(const std::string& frame);
    void sendControl(FrameType type, std::uint8_t sequence, std::string_view data = {});
    std::optional<ParsedFrame> receive(Time deadline);
    Time lastByteOut() const;

    void bringUp();
    void transmit(Outstanding& outstanding);
    void repeatNow(Outstanding& outstanding);
    void expired(Outstanding& outstanding);
    std::optional<std::string> take(const ParsedFrame& frame, Outstanding& outstanding);
    std::optional<std::string> takeData(const ParsedFrame& frame, Outstanding& outstanding);
    void acknowledged(Outstanding& outstanding);
    Time grace() const;
    void settle();
    [[noreturn]] void drop(const LinkFailure& failure);

    OrganiserLine& line_;
    WireTime wire_;
    FrameTrace trace_;
    Crc crc_;
    FrameCutter cutter_;
    bool up_ = false;
    bool unsettled_ = false;         ///< the server dropped the link and may still be answering a copy
    bool proven_ = false;            ///< a DATA frame of this link was acknowledged
    bool crossed_ = false;           ///< the server may still acknowledge a link request that met its own
    std::uint8_t sendSequence_ = 1;  ///< of the next DATA frame, or of the one on its way
    std::uint8_t receiveSequence_ = 0;
    Time roundTrip_{0};  ///< from the end of the last unrepeated DATA frame to its acknowledgement
};

}  // namespace velmora
