// What a server without a window prints: its messages, its errors and its transfers.
#pragma once

#include <chrono>
#include <functional>
#include <string>

#include "base/clock.h"
#include "transfers/transfer.h"

namespace velmora {

/// How the lines are made.
enum class LogFormat {
    Text,  ///< for people; a transfer is told when it ends
    Json,  ///< for programs: one object a line, with universal times
};

/// Makes one line of each event. In the form for programs an object has "time" (ISO 8601, universal time),
/// "event" and what belongs to the event:
///   "message", "error"                   "text"
///   "transfer-begin"                     "name", "path", "direction", "kind", "size" where it is known
///   "transfer-progress", once a second   the same, "bytes", "seconds"
///   "transfer-end"                       the same, "result", "code", "reason"; where there are any
///                                        "earlierCopy", "remarks"
/// Their values are told in transfer_json.h. Texts that are given are in the system's encoding.
class ServerLog : public TransferObserver {
  public:
    /// Takes one line without its end: text in the system's encoding, or JSON in UTF-8.
    using PrintLine = std::function<void(const std::string& line)>;

    /// `quiet` leaves the errors only. The clock must outlive the log.
    ServerLog(PrintLine output, PrintLine errors, const Clock& clock, LogFormat format, bool quiet);

    void message(const std::string& text);
    /// `text` goes behind the program's name, which only people need.
    void error(const std::string& text);

    void transferBegan(const Transfer& transfer) override;
    void transferMoved(const Transfer& transfer) override;
    void transferEnded(const Transfer& transfer, const TransferEnd& end) override;

  private:
    class Event;

    void print(const Event& event);

    PrintLine output_;
    PrintLine errors_;
    const Clock& clock_;
    LogFormat format_;
    std::chrono::microseconds progressTold_{0};  // of the transfer's duration
};

}  // namespace velmora
