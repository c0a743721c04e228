#include "capture/frame_mask.h"

#include <algorithm>
#include <utility>

#include "base/byte_text.h"
#include "link/frame_cutter.h"
#include "link/frames.h"

namespace velmora {
namespace {

constexpr char kMasked = 'x';
constexpr std::string_view kHeader("\x16\x10\x02", kHeaderLength);
constexpr std::size_t kDataStart = 1 + 1;  // behind lead byte and type
constexpr char kOpen = 0;
constexpr auto kServices = std::to_array<std::string_view>(
    {"FTRAN", "FILE", "BOOT", "EXIT", "SHUTDOWN", "PLAN", "PLANM", "TIME", "GMT", "TIMEINFO"});

bool beginsAService(std::string_view data) {
    const std::string name = upperCase(data);
    return std::any_of(kServices.begin(), kServices.end(),
                       [&name](std::string_view service) { return service.starts_with(name); });
}

bool isData(char type) {
    constexpr unsigned kTypeBits = 0xF8;
    return (static_cast<unsigned char>(type) & kTypeBits) == static_cast<unsigned>(FrameType::Data);
}

}  // namespace

std::string maskedServiceName(std::string_view name) {
    return beginsAService(name) ? std::string(name) : std::string(name.size(), kMasked);
}

FrameMask::FrameMask(CaptureDirection direction) : direction_(direction) {
    crc_.load_CRCtable();
}

std::string FrameMask::mask(std::string_view bytes) {
    std::string masked;
    masked.reserve(bytes.size());
    for (const char byte : bytes) {
        masked += maskByte(byte);
    }
    return masked;
}

void FrameMask::clear() {
    place_ = Place::Outside;
    headerBytes_ = 0;
}

char FrameMask::maskByte(char byte) {
    switch (place_) {
        case Place::Outside:
            return takeOutside(byte);
        case Place::Body:
            if (byte == kDle) {
                place_ = Place::Escaped;
                return byte;
            }
            return takeBody(byte);
        case Place::Escaped:
            if (byte == kEtx) {
                beginCheck();
                return byte;
            }
            place_ = Place::Body;
            takeBody(kDle);
            return byte == kDle ? byte : kMasked;
        case Place::FirstCheck:
            place_ = Place::SecondCheck;
            return static_cast<char>(byte ^ checkChange_[0]);
        case Place::SecondCheck:
            clear();
            return static_cast<char>(byte ^ checkChange_[1]);
    }
    return kMasked;  // unreachable: every place is above
}

/// The bytes of a header stay, in whatever they stand.
char FrameMask::takeOutside(char byte) {
    if (byte != kHeader[headerBytes_]) {
        headerBytes_ = 0;
    }
    if (byte != kHeader[headerBytes_]) {
        return kMasked;
    }
    if (++headerBytes_ == kHeaderLength) {
        place_ = Place::Body;
        body_.clear();
        shown_.clear();
    }
    return byte;
}

char FrameMask::takeBody(char byte) {
    body_ += byte;
    shown_ += byte == kDle || staysReadable() ? byte : kMasked;
    if (body_.size() > FrameCutter::kCapacity) {
        clear();  // noise that began like a frame
    }
    return shown_.back();
}

/// Whether the last byte of the body may be seen.
bool FrameMask::staysReadable() const {
    if (body_.size() <= kDataStart || !isData(body_[1])) {
        return true;
    }
    if (direction_ == CaptureDirection::Sent) {
        return false;
    }
    const std::string_view data = std::string_view(body_).substr(kDataStart);
    constexpr std::size_t kOpenHead = 3;  // operation, mode, type
    return data.size() <= (data.front() == kOpen ? kOpenHead : 1) || beginsAService(data);
}

void FrameMask::beginCheck() {
    place_ = Place::FirstCheck;
    if (body_.empty()) {
        checkChange_ = {};
        return;
    }
    const std::array<char, 2> was = crc_.check(body_);
    const std::array<char, 2> is = crc_.check(shown_);
    checkChange_ = {static_cast<char>(was[0] ^ is[0]), static_cast<char>(was[1] ^ is[1])};
}

void PacketMask::mask(CapturedPacket& packet) {
    switch (packet.direction) {
        case CaptureDirection::None:
            packet.bytes.assign(packet.bytes.size(), kMasked);
            break;
        case CaptureDirection::Received:
            packet.bytes = received_.mask(packet.bytes);
            break;
        case CaptureDirection::Sent:
            packet.bytes = sent_.mask(packet.bytes);
            break;
    }
}

void PacketMask::clear() {
    received_.clear();
    sent_.clear();
}

Capture maskedCapture(const Capture& capture) {
    PacketMask mask;
    Capture masked = capture;
    masked.masked = true;
    std::size_t port = 0;
    for (CapturedPacket& packet : masked.packets) {
        if (std::exchange(port, packet.port) != packet.port) {
            mask.clear();
        }
        mask.mask(packet);
    }
    return masked;
}

}  // namespace velmora
