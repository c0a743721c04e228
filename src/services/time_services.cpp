#include "services/time_services.h"

#include <cstdlib>
#include <string_view>

#include "base/byte_text.h"
#include "base/moment_text.h"
#include "base/number_text.h"

namespace velmora {
namespace {

std::string digits(int number, std::size_t width) {
    std::string text = std::to_string(number);
    if (text.size() < width) {
        text.insert(0, width - text.size(), '0');
    }
    return text;
}

const char* daylightMark(bool daylight) {
    return daylight ? " *" : "  ";
}

}  // namespace

std::string timeStamp(const DateTime& time) {
    return momentText(time, kStampForm);
}

bool TimeServices::zoneInformation(std::string& offset) const {
    constexpr int kMinutesOfADay = 24 * 60;
    const int minutes = toInt16(zone_.offsetMinutes());
    const int timeOfDay = std::abs(minutes) % kMinutesOfADay;
    offset = (minutes < 0 ? "-" : "+") + digits(timeOfDay / 60, 2) + digits(timeOfDay % 60, 2);
    return zone_.daylight();
}

void TimeService::handle(std::int32_t& code, std::string& payload) {
    if (code != kServiceOpened) {
        transfers_.leave();
        code = PLP_EV_RESET;
        return;
    }
    transfers_.ask({upperCase(payload), {}, TransferDirection::Load, TransferKind::Clock});
    const std::string reply = replyText();
    transfers_.begin(reply.size());
    sender_.PLP_Send(FrameType::Data, reply);
    window_.SetStats(StatsBytesSent, static_cast<std::int16_t>(reply.size()));
    transfers_.moved(reply.size());
    transfers_.complete();
}

std::string TimeService::replyText() const {
    if (reply_ == TimeReply::Local) {
        return timeStamp(time_.localTime());
    }
    std::string offset;
    const char* const mark = daylightMark(time_.zoneInformation(offset));
    return reply_ == TimeReply::Universal ? timeStamp(time_.universalTime()) + mark
                                          : timeStamp(time_.localTime()) + ' ' + offset + mark;
}

}  // namespace velmora
