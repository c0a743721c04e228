#include "ui/server_log.h"

#include <nlohmann/json.hpp>
#include <string_view>
#include <utility>

#include "base/byte_text.h"
#include "base/system_text.h"
#include "services/time_services.h"
#include "transfers/transfer_text.h"

namespace velmora {
namespace {

constexpr std::chrono::seconds kProgressInterval{1};

/// "19:39:35".
std::string timeOfDay(const DateTime& time) {
    return timeStamp(time).substr(std::string_view("yyyy-mm-dd ").size());
}

/// "2026-11-22T19:39:35Z".
std::string isoTime(const DateTime& universal) {
    std::string text = timeStamp(universal) + 'Z';
    text[text.find(' ')] = 'T';
    return text;
}

/// A Windows-1252 text.
std::string utf8(const std::string& text) {
    return utf8OfSystemText(toSystemText(text));
}

}  // namespace

/// One object, on its way to a line.
class ServerLog::Event {
  public:
    Event(const Clock& clock, const char* name) {
        object_["time"] = isoTime(clock.universalTime());
        object_["event"] = name;
    }

    template <typename Value>
    Event& with(const char* key, const Value& value) {
        object_[key] = value;
        return *this;
    }
    Event& with(const Transfer& transfer) {
        with("name", utf8(transfer.name)).with("path", utf8OfSystemText(transfer.path));
        with("direction", nameOf(transfer.direction)).with("kind", nameOf(transfer.kind));
        return transfer.size ? with("size", *transfer.size) : *this;
    }
    Event& withAmountOf(const Transfer& transfer) {
        constexpr double kThousand = 1'000;
        const auto milliseconds = std::chrono::duration_cast<std::chrono::milliseconds>(transfer.duration);
        return with("bytes", transfer.bytes)
            .with("seconds", static_cast<double>(milliseconds.count()) / kThousand);
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
        print(Event(clock_, "message").with("text", utf8OfSystemText(text)));
    }
}

void ServerLog::error(const std::string& text) {
    errors_(format_ == LogFormat::Text ? "velmorad: " + text
                                       : Event(clock_, "error").with("text", utf8OfSystemText(text)).line());
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
        output_(timeOfDay(clock_.localTime()) + ' ' + toSystemText(showControls(describe(transfer, end))));
        return;
    }
    print(Event(clock_, "transfer-end")
              .with(transfer)
              .withAmountOf(transfer)
              .with("result", nameOf(end.result))
              .with("code", end.code)
              .with("reason", utf8(end.reason)));
}

}  // namespace velmora
