#include "link/plp.h"

#include <utility>

#include "link/link_snapshot.h"
#include "link/server_state.h"

namespace velmora {

PLP::PLP(const Crc& crc, ServerWindow& window, Timer& comTimer, Trace& trace, EventYield& yield,
         const Clock& clock)
    : crc_(crc), window_(window), comTimer_(comTimer), trace_(trace), yield_(yield), clock_(clock) {}

// ---------------------------------------------------------------------------------------------------------
// Start and stop

int PLP::PLP_Start(SerialPort& port, Timer& timer) {
    if (port_ != nullptr) {
        return kLinkStarted;
    }
    ++run_;
    const Run run(*this);
    portFailed_ = false;
    port_ = &port;
    timer_ = &timer;
    timer_->setEnabled(false);
    startTime_ = clock_.localTime();
    const auto settings = parseModeString(port.Settings());
    wire_ = settings ? WireTime(*settings) : WireTime();
    stopRequests_ = {};
    trace_.trace("PLP", "starting PLP", {});
    state_ = LinkState::Idle;
    traceState();
    cutter_.clear();
    lastFrame_.clear();
    try {
        openPort();
    } catch (const CommError& error) {
        trace_.trace("COM,ERROR", "ERROR",
                     std::to_string(error.number()) + ": " + error.description() + " COM" +
                         std::to_string(port.CommPort()));
        if (!run.over()) {
            letGo();
        }
        switch (error.number()) {
            case kCommInvalidPort:
                return kStartPortNotAccessible;
            case kCommAlreadyOpen:
                return kStartPortInUse;
            default:
                return kStartPortOpenError;
        }
    }
    comTimer_.setEnabled(true);
    PLP_InitLink();
    // A link request that could not be written may have stopped the link already.
    return port_ != nullptr ? kLinkStarted : kStartPortOpenError;
}

void PLP::openPort() {
    SerialPort& port = *port_;
    port.OpenPort();
    try {
        trace_.trace("COM", "open port", "COM" + std::to_string(port.CommPort()) + " " + port.Settings());
        // DTR tells the Organiser that a server is connected.
        port.setDTREnable(true);
    } catch (const CommError&) {
        port.ClosePort();
        throw;
    }
}

void PLP::PLP_Stop() {
    if (port_ == nullptr) {
        return;
    }
    const Run run(*this);
    if (!std::exchange(stopping_, true)) {
        trace_.trace("PLP", "PLP stopping", {});
    }
    giveEvent(PLP_EV_RESET, {});
    // A write that failed under the event ends the run as well, but closes nothing.
    if (port_ == nullptr || (run.over() && !portFailed_)) {
        return;
    }
    if (port_->PortOpen()) {
        trace_.trace("COM", "close port", {});
        try {
            port_->ClosePort();
        } catch (const CommError& error) {
            // The port is given up either way; why it would not close is worth knowing.
            trace_.trace("COM,ERROR", "ERROR", error.description());
        }
    }
    letGo();
    trace_.trace("COM", "PLP_STOPPED", {});
}

/// Ends the run: from here on neither port nor timer is touched.
void PLP::letGo() {
    ++run_;
    stopping_ = false;
    port_ = nullptr;
    timer_->setEnabled(false);
    timer_ = nullptr;
    state_ = LinkState::Idle;
    cutter_.clear();
}

/// Ends the run since the port failed. The poll's next tick is what makes the window stop the link.
void PLP::abandonPort() {
    ++run_;
    portFailed_ = true;
    timer_->setEnabled(false);
    comTimer_.setEnabled(true);
}

// ---------------------------------------------------------------------------------------------------------
// Events

int PLP::PLP_ReceiveEvent() {
    trace_.trace("EVENT", "Event RECEIVE", {});
    const Run run(*this);
    PLP_Receive();
    if (!run.over() && port_ != nullptr && !portFailed_ && state_ == LinkState::Idle) {
        PLP_Down();
        if (!run.over()) {
            PLP_InitLink();
        }
    }
    const StopRequests requests = stopRequests_;
    stopRequests_ = {};
    traceState();
    if (requests.exit) {
        return OnExit;
    }
    return requests.shutdown ? Shutdown : kNoStateChange;
}

void PLP::PLP_Timeout() {
    if (port_ == nullptr || portFailed_) {
        return;
    }
    trace_.trace("PLP", std::to_string(static_cast<std::int32_t>(state_)), "timeout");
    switch (state_) {
        case LinkState::Idle:
            PLP_InitLink();
            break;
        case LinkState::WaitLink:
            sendFrame(FrameType::Connect, {});
            break;
        case LinkState::Linking:
        case LinkState::Ready:
        case LinkState::WaitAck:
            PLP_Error();
            break;
    }
    traceState();
}

void PLP::PLP_Receive() {
    if (port_ == nullptr || portFailed_) {
        return;
    }
    const Run run(*this);
    timer_->setEnabled(false);
    comTimer_.setEnabled(false);
    try {
        readWhatWaits(run);
    } catch (const CommError& error) {
        if (run.over()) {
            return;  // the port was closed under the read
        }
        if (error.number() == 0) {
            armTimerByState();
            comTimer_.setEnabled(true);
        } else {
            trace_.trace("COM,ERROR",
                         "ERROR " + std::to_string(error.number()) + " " + error.description() + " in " +
                             error.source(),
                         {});
            abandonPort();
            window_.setState(LinkFailed);
        }
    }
}

/// The read loop. Leaves the timers as the way out wants them; errors of the port pass through.
void PLP::readWhatWaits(const Run& run) {
    std::string bytes;
    while (true) {
        const bool waiting = port_->InBufferCount() > 0;
        if (waiting) {
            bytes.clear();
            port_->GetInput(kReadLength, bytes);
            if (run.over()) {
                return;
            }
        }
        if (!waiting || bytes.empty()) {
            armTimerByState();
            comTimer_.setEnabled(true);
            return;
        }
        if (!takeBytes(bytes)) {
            if (!run.over()) {
                comTimer_.setEnabled(true);
                timer_->setEnabled(false);
            }
            return;
        }
        yield_.processEvents();
        if (run.over() || window_.state() <= Offline) {
            return;
        }
    }
}

/// Cuts the bytes into frames and acts on each. False when reading must end: the link went idle or was
/// stopped.
bool PLP::takeBytes(std::string_view bytes) {
    const Run run(*this);
    cutter_.append(bytes);
    while (const auto cut = cutter_.next()) {
        trace_.trace("COM,DATA", "recv", *cut);
        auto frame = parseFrame(crc_, *cut);
        const Verdict verdict = frame ? takeFrame(*frame) : Verdict::Reject;
        if (run.over()) {
            return false;
        }
        switch (verdict) {
            case Verdict::Accept:
                traceState();
                break;
            case Verdict::Ignore:
                break;
            case Verdict::Reject:
                PLP_Error();
                break;
        }
        if (run.over() || state_ == LinkState::Idle) {
            return false;
        }
    }
    return true;
}

// ---------------------------------------------------------------------------------------------------------
// Sending

bool PLP::PLP_Send(FrameType type, std::string_view data) {
    const bool repliesToAnEarlierRun = eventRun_ && *eventRun_ != run_;
    return !repliesToAnEarlierRun && sendFrame(type, data);
}

bool PLP::sendFrame(FrameType type, std::string_view data) {
    if (port_ == nullptr || portFailed_) {
        return false;
    }
    const Run run(*this);
    std::uint8_t sequence = 0;
    switch (type) {
        case FrameType::Ack:
            sequence = receiveSequence_;
            state_ = LinkState::Ready;
            break;
        case FrameType::Discon:
            state_ = LinkState::Idle;
            if (data.empty()) {
                data = std::string_view(&kReasonNone, 1);
            }
            break;
        case FrameType::Connect:
            state_ = LinkState::WaitLink;
            break;
        case FrameType::Data:
            resendBudget_ = kMaxResends;
            sequence = sendSequence_;
            state_ = LinkState::WaitAck;
            break;
    }
    // Sending from inside the write replaces the last frame, so the write has its own.
    const std::string frame = buildFrame(crc_, type, sequence, data);
    lastFrame_ = frame;
    trace_.trace("COM,DATA", "send", frame);
    const bool written = write(frame);
    if (run.over()) {
        return false;
    }
    traceState();
    return written;
}

/// Writes a whole frame, then begins the wait for its answer if the state wants one. Reports a failure,
/// unless the link was stopped meanwhile.
bool PLP::write(const std::string& frame) {
    const Run run(*this);
    // On some systems a write lasts until the bytes have left. The wait is not to run out inside it.
    timer_->setEnabled(false);
    wire_.handOver(frame.size(), clock_.monotonic());
    bool written = false;
    try {
        if (!port_->Send(frame)) {
            throw CommError(kCommFailed, "The port did not take the data", "Send");
        }
        written = true;
    } catch (const CommError& error) {
        if (!run.over()) {
            PLP_SendError(error);
        }
    }
    if (!run.over() && awaitsAnswer()) {
        armAnswerTimer();
    }
    return written;
}

void PLP::PLP_Resend() {
    const std::string frame = lastFrame_;
    trace_.trace("COM,DATA", "resend", frame);
    write(frame);
}

void PLP::PLP_SendError(const CommError& error) {
    abandonPort();
    const Run run(*this);
    window_.ShowWarning("Send error " + std::to_string(error.number()), error.description());
    if (!run.over()) {
        window_.setState(LinkFailed);
    }
}

// ---------------------------------------------------------------------------------------------------------
// Link up and down

void PLP::PLP_InitLink() {
    trace_.trace("PLP", "PLP INITLINK", {});
    state_ = LinkState::WaitLink;
    sendFrame(FrameType::Connect, {});
}

void PLP::PLP_Down() {
    const Run run(*this);
    trace_.trace("PLP", "PLP DOWN", {});
    giveEvent(PLP_EV_RESET, {});
    if (run.over()) {
        return;  // setting the window's state would start a server that was just stopped
    }
    state_ = LinkState::Idle;
    timer_->setEnabled(false);
    cutter_.clear();
    window_.setState(WaitLink);
}

void PLP::PLP_Error() {
    trace_.trace("PLP", "PLP_ERROR", {});
    switch (state_) {
        case LinkState::Idle:
        case LinkState::WaitLink:
        case LinkState::Linking:
            break;
        case LinkState::Ready:
            sendFrame(FrameType::Ack, {});
            break;
        case LinkState::WaitAck:
            if (resendBudget_ > 0) {
                --resendBudget_;
                PLP_Resend();
            } else {
                giveUp();
            }
            break;
    }
}

/// Drops a link on which a DATA frame was never acknowledged, says so, and seeks a new one.
void PLP::giveUp() {
    const Run run(*this);
    sendFrame(FrameType::Discon, std::string_view(&kReasonTooManyErrors, 1));
    if (run.over()) {
        return;
    }
    window_.setState(Error);
    if (run.over()) {
        return;
    }
    window_.setErrorMsg("Too many send errors!");
    if (run.over()) {
        return;
    }
    PLP_Down();
    if (!run.over()) {
        sendFrame(FrameType::Connect, {});
    }
}

// ---------------------------------------------------------------------------------------------------------
// Helpers

void PLP::armTimer(std::chrono::milliseconds interval) {
    timer_->setInterval(interval);
    timer_->setEnabled(true);
}

/// Arms the timer for an answer to what was handed to the port and may still be on its way.
void PLP::armAnswerTimer() {
    const auto stillLeaving = std::chrono::ceil<std::chrono::milliseconds>(wire_.left(clock_.monotonic()));
    armTimer(stillLeaving + kAnswerTime);
}

bool PLP::awaitsAnswer() const {
    return state_ == LinkState::WaitLink || state_ == LinkState::WaitAck;
}

void PLP::armTimerByState() {
    switch (state_) {
        case LinkState::Idle:
        case LinkState::Linking:
            timer_->setEnabled(false);
            break;
        case LinkState::WaitLink:
        case LinkState::WaitAck:
            armAnswerTimer();
            break;
        case LinkState::Ready:
            armTimer(kSilenceTime);
            break;
    }
}

void PLP::traceState() {
    trace_.trace("STATE", {}, {});
}

void PLP::giveEvent(ServiceEventCode code, std::string payload) {
    if (services_ == nullptr) {
        return;
    }
    const auto outerEvent = std::exchange(eventRun_, run_);
    std::int32_t changeableCode = code;
    services_->Services(changeableCode, payload);
    eventRun_ = outerEvent;
}

bool PLP::isConsistent() const {
    LinkSnapshot link;
    link.state = state_;
    link.hasPort = port_ != nullptr;
    link.hasTimer = timer_ != nullptr;
    link.portFailed = portFailed_;
    link.served = window_.state() > Offline;
    link.polled = comTimer_.enabled();
    if (timer_ != nullptr && timer_->enabled()) {
        link.wait = timer_->interval();
    }
    link.sendSequence = sendSequence_;
    link.receiveSequence = receiveSequence_;
    link.resendBudget = resendBudget_;
    return fitsTogether(link);
}

}  // namespace velmora
