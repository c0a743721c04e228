#include "ui/server_log.h"

#include <nlohmann/json.hpp>
#include <utility>

#include "base/byte_text.h"
#include "base/moment_text.h"
#include "base/system_text.h"
#include "transfers/transfer_json.h"
#include "transfers/transfer_text.h"

namespace velmora {
namespace {

constexpr std::chrono::seconds kProgressInterval{1};

}  // namespace

/// One object, on its way to a line.
class ServerLog::Event {
  public:
    Event(const Clock& clock, const char* name) {
        object_["time"] = momentText(clock.universalTime(), kIsoForm);
        object_["event"] = name;
    }

    /// `text` is in the system's encoding.
    Event& withText(const std::string& text) {
        object_["text"] = utf8OfSystemText(text);
        return *this;
    }
    Event& with(const Transfer& transfer) {
        addTransfer(object_, transfer);
        return *this;
    }
    Event& withAmountOf(const Transfer& transfer) {
        addAmount(object_, transfer);
        return *this;
    }
    Event& withEnd(const Transfer& transfer, const TransferEnd& end) {
        addEnd(object_, transfer, end);
        return *this;
    }

    /// A name of the system that is not UTF-8 is told as far as it is.
    std::string line() const { return object_.dump(-1, ' ', false, Json::error_handler_t::replace); }

  private:
    using Json = nlohmann::ordered_json;

    Json object_;
};

ServerLog::ServerLog(PrintLine output, PrintLine errors, const Clock& clock, LogFormat format, bool quiet)
    : output_(quiet ? [](const std::string&) {} : std::move(output)),
      errors_(std::move(errors)),
      clock_(clock),
      format_(format) {}

void ServerLog::print(const Event& event) {
    output_(event.line());
}

void ServerLog::message(const std::string& text) {
    if (format_ == LogFormat::Text) {
        output_(text);
    } else {
        print(Event(clock_, "message").withText(text));
    }
}

void ServerLog::error(const std::string& text) {
    errors_(format_ == LogFormat::Text ? "velmorad: " + text : Event(clock_, "error").withText(text).line());
}

void ServerLog::transferBegan(const Transfer& transfer) {
    progressTold_ = {};
    if (format_ == LogFormat::Json) {
        print(Event(clock_, "transfer-begin").with(transfer));
    }
}

void ServerLog::transferMoved(const Transfer& transfer) {
    if (format_ == LogFormat::Json && transfer.duration - progressTold_ >= kProgressInterval) {
        progressTold_ = transfer.duration;
        print(Event(clock_, "transfer-progress").with(transfer).withAmountOf(transfer));
    }
}

void ServerLog::transferEnded(const Transfer& transfer, const TransferEnd& end) {
    if (format_ == LogFormat::Text) {
        output_(momentText(clock_.localTime(), "hh:mm:ss ") +
                toSystemText(showControls(describe(transfer, end))));
        return;
    }
    print(Event(clock_, "transfer-end").with(transfer).withAmountOf(transfer).withEnd(transfer, end));
}

}  // namespace velmora
