// The link with the Organiser: setting it up, numbering, acknowledging and repeating frames, and handing each
// accepted payload to the services.
#pragma once

#include <chrono>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "base/clock.h"
#include "base/event_yield.h"
#include "base/timer.h"
#include "link/crc.h"
#include "link/frame_cutter.h"
#include "link/frame_sender.h"
#include "link/frames.h"
#include "link/link_state.h"
#include "link/server_window.h"
#include "link/service_events.h"
#include "link/trace.h"
#include "serial/serial_port.h"
#include "serial/wire_time.h"

namespace velmora {

/// How long an answer is waited for until a link request or a DATA frame is sent again. The wait begins when
/// the last byte has left: the wire time of all that was handed to the port and cannot have left comes on
/// top.
constexpr std::chrono::milliseconds kAnswerTime{500};
/// Silence after which a link that is up repeats its last acknowledgement, in case that was lost.
constexpr std::chrono::milliseconds kSilenceTime{30'000};
/// How often a DATA frame is sent again before the link is given up.
constexpr int kMaxResends = 4;
/// Most bytes taken from the port in one read.
constexpr std::size_t kReadLength = 1024;

/// Results of PLP_Start; those above 1 are also the numbers of the port's status texts.
enum LinkStartResult : int {
    kLinkStarted = 1,
    kStartPortInUse = 4,
    kStartPortNotAccessible = 5,
    kStartPortOpenError = 6,
};

/// The link state machine. It has no thread: it is driven by the ticks of two timers (the receive poll and
/// the protocol timer) and by the services that send from inside their events. The clock only tells it what
/// can still be on the wire.
///
/// Any handler of the program may run inside the port's reads and writes, the yield between two reads and
/// every change of the window's state, PLP_Stop and another PLP_Start included. Each such call is followed by
/// a look at whether this run of the link is still the one that made it; if not, whoever made it returns
/// without touching the port, the timers or the window.
///
/// A port that fails ends the run as well: it is neither read nor written until the next start, and nothing
/// but the poll goes on, whose next tick lets the window stop the link.
class PLP : public FrameSender {
  public:
    /// `comTimer` is the receive poll, whose ticks the window turns into receive events; its interval is the
    /// window's. `crc` must be loaded before the first start. All must outlive this object.
    PLP(const Crc& crc, ServerWindow& window, Timer& comTimer, Trace& trace, EventYield& yield,
        const Clock& clock);

    /// Where events go, which must outlive this object. Without it they are dropped.
    void setServices(ServiceEvents& services) { services_ = &services; }

    /// Opens the port, raises DTR and begins to seek a link; `timer` is the protocol timer. Both stay in use
    /// until PLP_Stop. Returns a LinkStartResult; when it is not kLinkStarted, neither is used any more.
    /// Forgets the stop requests of an earlier run. A link that runs is left alone and counts as started: a
    /// second click on Start can arrive while the first one's link request is being written.
    int PLP_Start(SerialPort& port, Timer& timer);
    /// Ends the service, closes the port and lets go of port and timer. Nothing when the link is stopped.
    void PLP_Stop();

    /// Reads what waits at the port and acts on every frame that has become complete. Returns the next state
    /// of the server: 3 when the Organiser asked for EXIT, else 2 when it asked for SHUTDOWN, else -1.
    int PLP_ReceiveEvent();
    /// The protocol timer's tick. Nothing when the link is stopped.
    void PLP_Timeout();

    /// The way out for the services. False when the link is stopped, when the port refuses the bytes or has,
    /// and when the event that is being answered belongs to a run of the link that has ended meanwhile.
    bool PLP_Send(FrameType type, std::string_view data) override;

    /// How long it takes at least, from now on, until a frame can have come whole: a byte may be here all but
    /// its end, those that its frame lacks beside it are not. To look at the port before is of no use.
    std::chrono::nanoseconds soonestFrame() const { return wire_.of(cutter_.leastToCome() - 1); }

    /// Flags for the services that ask the server to stop.
    StopRequests& stopRequests() { return stopRequests_; }
    LinkState linkState() const { return state_; }
    /// Local time of the last PLP_Start.
    const DateTime& startTime() const { return startTime_; }

    /// Whether timers, sequences and budget are as the state wants them. Holds between two events; for tests.
    bool isConsistent() const;

  private:
    /// What became of a frame. Only an accepted one is followed by a trace of the state.
    enum class Verdict { Accept, Reject, Ignore };

    /// Remembers which run of the link is on, to see after a call that may have let other handlers run
    /// whether it still is.
    class Run {
      public:
        explicit Run(const PLP& link) : link_(link), number_(link.run_) {}
        bool over() const { return link_.run_ != number_; }

      private:
        const PLP& link_;
        std::uint64_t number_;
    };

    void PLP_InitLink();
    void PLP_Down();
    void PLP_Error();
    void PLP_Resend();
    void PLP_SendError(const CommError& error);
    void PLP_Receive();

    void openPort();
    void letGo();
    void abandonPort();
    bool sendFrame(FrameType type, std::string_view data);
    bool write(const std::string& frame);
    void readWhatWaits(const Run& run);
    bool takeBytes(std::string_view bytes);
    void armTimer(std::chrono::milliseconds interval);
    void armAnswerTimer();
    bool awaitsAnswer() const;
    void armTimerByState();
    void traceState();
    void giveEvent(ServiceEventCode code, std::string payload);
    void giveUp();

    Verdict takeFrame(ParsedFrame& frame);
    Verdict takeAck(std::uint8_t sequence);
    Verdict takeDiscon();
    Verdict takeConnect(std::uint8_t sequence);
    Verdict takeData(ParsedFrame& frame);
    Verdict answerLinkRequest(std::uint8_t sequence);
    Verdict takeFirstData(ParsedFrame& frame);
    Verdict takeNextData(ParsedFrame& frame);

    const Crc& crc_;
    ServerWindow& window_;
    Timer& comTimer_;
    Trace& trace_;
    EventYield& yield_;
    const Clock& clock_;
    ServiceEvents* services_ = nullptr;

    SerialPort* port_ = nullptr;  // null while stopped, and so is timer_
    Timer* timer_ = nullptr;
    std::uint64_t run_ = 0;                  // changes with every start and stop, and when the port fails
    bool portFailed_ = false;                // since the last start
    std::optional<std::uint64_t> eventRun_;  // the run of the event that the services are handling
    bool stopping_ = false;                  // PLP_Stop is on the stack and not through
    LinkState state_ = LinkState::Idle;
    std::uint8_t sendSequence_ = 0;     // of the next DATA frame, or of the one that awaits its ACK
    std::uint8_t receiveSequence_ = 0;  // of the last DATA frame accepted
    int resendBudget_ = 0;
    FrameCutter cutter_;
    WireTime wire_;
    std::string lastFrame_;
    DateTime startTime_;
    StopRequests stopRequests_;
};

}  // namespace velmora
