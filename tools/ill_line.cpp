#include "ill_line.h"

#include <utility>

namespace velmora::tools {
namespace {

using namespace std::chrono_literals;

constexpr IllLine::Time kCallEvery = 1s;
/// How often a driver reports the break of a line that stays low, with a null each time.
constexpr IllLine::Time kBreakEvery = 100ms;
constexpr unsigned kByteValues = 256;

constexpr SampledByte kBreak{'\0', true, false, true};

}  // namespace

IllLine::IllLine(Illness illness, std::uint64_t seed) : illness_(std::move(illness)), random_(seed) {}

bool IllLine::happens(double probability) {
    return std::bernoulli_distribution(probability)(random_);
}

/// One run of bytes with what the line does to it.
IllLine::Bytes IllLine::carried(std::string_view bytes, const LineSettings& sender,
                                const LineSettings& receiver) {
    if (happens(illness_.losses)) {
        return {};
    }
    Bytes arrived = sampledBytes(bytes, sender, receiver);
    for (SampledByte& byte : arrived) {
        if (happens(illness_.noise)) {
            byte.value = static_cast<char>(static_cast<unsigned char>(byte.value) ^
                                           (1U + random_() % (kByteValues - 1)));
        }
    }
    return arrived;
}

IllLine::Bytes IllLine::toHandheld(std::string_view bytes, const LineSettings& computer) {
    if (illness_.deaf || !illness_.handheldSpeaks()) {
        return {};
    }
    return carried(bytes, computer, illness_.handheld.value_or(computer));
}

IllLine::Bytes IllLine::toComputer(std::string_view bytes, const LineSettings& computer) {
    if (!illness_.handheldSpeaks()) {
        return {};
    }
    Bytes arrived = carried(bytes, illness_.handheld.value_or(computer), computer);
    for (SampledByte& byte : arrived) {
        if (happens(illness_.interruptions)) {
            byte = kBreak;
        }
    }
    return arrived;
}

/// What the modem says to what it heard: OK to a line that begins with AT.
std::string IllLine::modemAnswer(const Bytes& heard) {
    std::string answer;
    for (const SampledByte& byte : heard) {
        if (byte.value != '\r') {
            command_ += byte.value;
        } else if (std::exchange(command_, {}).ends_with("AT")) {
            answer += "\r\nOK\r\n";
        }
    }
    return answer;
}

IllLine::Bytes IllLine::backToComputer(std::string_view bytes, const LineSettings& computer) {
    if (illness_.loopback) {
        return carried(bytes, computer, computer);
    }
    if (illness_.modem || illness_.quietModem) {
        const LineSettings modem = illness_.handheld.value_or(LineSettings());
        const Bytes heard = carried(bytes, computer, modem);
        return carried((illness_.modem ? valuesOf(heard) : std::string()) + modemAnswer(heard), modem,
                       computer);
    }
    if (illness_.echo) {
        return carried(valuesOf(carried(bytes, computer, *illness_.echo)), *illness_.echo, computer);
    }
    return {};
}

IllLine::Time IllLine::nextUnasked() const {
    return illness_.stuck || !illness_.call.empty() ? next_ : Time::max();
}

IllLine::Bytes IllLine::unasked(Time now, const LineSettings& computer) {
    if (now < nextUnasked()) {
        return {};
    }
    next_ = now + (illness_.stuck ? kBreakEvery : kCallEvery);
    if (illness_.stuck) {
        return {kBreak};
    }
    return carried(illness_.call, illness_.handheld.value_or(LineSettings()), computer);
}

std::string valuesOf(const IllLine::Bytes& bytes) {
    std::string values;
    for (const SampledByte& byte : bytes) {
        values += byte.value;
    }
    return values;
}

}  // namespace velmora::tools
