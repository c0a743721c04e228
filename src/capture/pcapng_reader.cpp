#include "capture/pcapng_reader.h"

#include <cstdint>
#include <limits>
#include <utility>

#include "capture/pcapng_format.h"

namespace velmora {
namespace {

using namespace pcapng;

/// Why reading ends before the end of the file.
struct Damage {
    std::string reason;
};

constexpr const char* kCutOff = "the file is cut off; what follows is missing";
constexpr const char* kContradiction = "a block's lengths contradict each other; what follows is not read";

/// The contents of a block, taken from the front in the section's byte order.
class Fields {
  public:
    Fields(std::string_view bytes, bool highFirst) : bytes_(bytes), highFirst_(highFirst) {}

    template <typename Number>
    Number take() {
        const std::string_view bytes = take(sizeof(Number));
        std::uint64_t value = 0;
        for (std::size_t place = 0; place < sizeof(Number); ++place) {
            const std::size_t next = highFirst_ ? place : sizeof(Number) - 1 - place;
            value = value << 8 | static_cast<unsigned char>(bytes[next]);
        }
        return static_cast<Number>(value);
    }

    /// Throws Damage when there are fewer.
    std::string_view take(std::size_t count) {
        if (count > bytes_.size()) {
            throw Damage{kContradiction};
        }
        const std::string_view taken = bytes_.substr(0, count);
        bytes_.remove_prefix(count);
        return taken;
    }

    /// Takes bytes and their padding.
    std::string_view takePadded(std::size_t count) { return take(padded(count)).substr(0, count); }

    /// Calls `visit` with the number and the value of each option; values keep the byte order.
    template <typename Visit>
    void takeOptions(Visit visit) {
        while (!bytes_.empty()) {
            const auto number = take<std::uint16_t>();
            const auto length = take<std::uint16_t>();
            if (number == kEndOfOptions) {
                return;
            }
            visit(number, Fields(takePadded(length), highFirst_));
        }
    }

    std::string rest() const { return std::string(bytes_); }

  private:
    std::string_view bytes_;
    bool highFirst_;
};

/// The time of a packet, from a count of fractions with so many decimal places.
std::chrono::nanoseconds timeOf(std::uint64_t count, std::uint8_t places) {
    constexpr auto kLongest = static_cast<std::uint64_t>(std::chrono::nanoseconds::max().count());
    std::uint64_t factor = 1;
    for (std::uint8_t place = places; place < kNanoseconds; ++place) {
        factor *= 10;
    }
    if (count > kLongest / factor) {
        throw Damage{"a packet's time is out of range; what follows is not read"};
    }
    return std::chrono::nanoseconds(count * factor);
}

class Reader {
  public:
    explicit Reader(std::string_view bytes) : bytes_(bytes) {}

    ReadCapture read() {
        takeFirstBlock();
        try {
            while (!bytes_.empty()) {
                takeBlock();
            }
        } catch (const Damage& damage) {
            result_.damage = damage.reason;
        }
        return std::move(result_);
    }

  private:
    void takeFirstBlock();
    void takeBlock();
    void takeByteOrder();
    void takeSection(Fields fields);
    void takeInterface(Fields fields);
    void takePacket(Fields fields);

    std::string_view bytes_;
    bool highFirst_ = false;
    std::size_t firstPort_ = 0;  // of the section
    std::vector<std::uint8_t> places_;
    ReadCapture result_;
};

void Reader::takeFirstBlock() {
    try {
        if (Fields(bytes_, false).take<std::uint32_t>() == kSectionHeader) {
            takeBlock();
            return;
        }
    } catch (const Damage&) {
        // Too short, or no section behind its first four bytes.
    }
    throw CaptureError("the file is no capture (pcapng)");
}

void Reader::takeBlock() {
    if (bytes_.size() < kBlockFrame) {
        throw Damage{kCutOff};
    }
    if (Fields(bytes_, highFirst_).take<std::uint32_t>() == kSectionHeader) {
        takeByteOrder();
    }
    Fields head(bytes_, highFirst_);
    const auto type = head.take<std::uint32_t>();
    const std::size_t length = head.take<std::uint32_t>();
    if (length < kBlockFrame || length % kAlignment != 0) {
        throw Damage{kContradiction};
    }
    if (length > bytes_.size()) {
        throw Damage{kCutOff};
    }
    const Fields contents(bytes_.substr(kBlockHead, length - kBlockFrame), highFirst_);
    if (Fields(bytes_.substr(length - 4, 4), highFirst_).take<std::uint32_t>() != length) {
        throw Damage{kContradiction};
    }
    switch (type) {
        case kSectionHeader:
            takeSection(contents);
            break;
        case kInterfaceDescription:
            takeInterface(contents);
            break;
        case kEnhancedPacket:
            takePacket(contents);
            break;
        default:
            break;  // somebody else's
    }
    bytes_.remove_prefix(length);
}

void Reader::takeByteOrder() {
    const std::string_view magic = bytes_.substr(kBlockHead, 4);
    highFirst_ = Fields(magic, true).take<std::uint32_t>() == kByteOrderMagic;
    if (!highFirst_ && Fields(magic, false).take<std::uint32_t>() != kByteOrderMagic) {
        throw Damage{kContradiction};
    }
}

void Reader::takeSection(Fields fields) {
    fields.take<std::uint32_t>();  // the byte order
    if (fields.take<std::uint16_t>() != kMajorVersion) {
        throw Damage{"a section is of a newer version of the format; it is not read"};
    }
    fields.take<std::uint16_t>();
    fields.take<std::uint64_t>();  // the section's length: it is found by its blocks
    fields.takeOptions([this](std::uint16_t number, const Fields& value) {
        if (number == kComment && value.rest() == kMaskedComment) {
            result_.capture.masked = true;
        }
    });
    firstPort_ = result_.capture.ports.size();
}

void Reader::takeInterface(Fields fields) {
    const auto linkType = fields.take<std::uint16_t>();
    if (linkType != kLinkTypeUser0) {
        throw CaptureError("the capture is not of an Organiser's line: its link type is " +
                           std::to_string(linkType) + " instead of 147 (USER0)");
    }
    fields.take<std::uint16_t>();
    fields.take<std::uint32_t>();
    CapturedPort port;
    std::uint8_t places = kUsualResolution;
    fields.takeOptions([&](std::uint16_t number, Fields value) {
        switch (number) {
            case kInterfaceName:
                port.device = value.rest();
                break;
            case kInterfaceText:
                port.settings = value.rest();
                break;
            case kInterfaceSpeed:
                port.rate = value.take<std::uint64_t>();
                break;
            case kInterfaceTimeResolution:
                places = value.take<std::uint8_t>();
                break;
            default:
                break;
        }
    });
    if (places > kNanoseconds) {
        throw Damage{"a port counts time in steps that are not known; what follows is not read"};
    }
    result_.capture.ports.push_back(std::move(port));
    places_.push_back(places);
}

void Reader::takePacket(Fields fields) {
    CapturedPacket packet;
    packet.port = firstPort_ + fields.take<std::uint32_t>();
    if (packet.port >= places_.size()) {
        throw Damage{"a packet is of a port that is not described; what follows is not read"};
    }
    const std::uint64_t high = fields.take<std::uint32_t>();
    const std::uint64_t count = high << 32 | fields.take<std::uint32_t>();
    packet.time = timeOf(count, places_[packet.port]);
    const auto length = fields.take<std::uint32_t>();
    fields.take<std::uint32_t>();  // what it was before anybody cut it
    packet.bytes = fields.takePadded(length);
    fields.takeOptions([&packet](std::uint16_t number, Fields value) {
        if (number == kPacketFlags) {
            const std::uint32_t direction = value.take<std::uint32_t>() & kDirectionMask;
            packet.direction = direction <= static_cast<std::uint32_t>(CaptureDirection::Sent)
                                   ? static_cast<CaptureDirection>(direction)
                                   : CaptureDirection::None;
        } else if (number == kComment) {
            packet.comments.push_back(value.rest());
        }
    });
    result_.capture.packets.push_back(std::move(packet));
}

}  // namespace

ReadCapture readPcapng(std::string_view bytes) {
    return Reader(bytes).read();
}

}  // namespace velmora
