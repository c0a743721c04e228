#include "capture/pcapng_writer.h"

#include <cstdint>
#include <limits>
#include <string_view>

#include "capture/pcapng_format.h"

namespace velmora {
namespace {

using namespace pcapng;

/// Numbers are written low byte first.
template <typename Number>
void put(std::string& bytes, Number number) {
    for (std::size_t place = 0; place < sizeof(Number); ++place) {
        bytes += static_cast<char>(number >> (8 * place) & 0xFF);
    }
}

void pad(std::string& bytes) {
    bytes.resize(padded(bytes.size()));
}

void putOption(std::string& body, Option number, std::string_view value) {
    value = value.substr(0, std::numeric_limits<std::uint16_t>::max());
    put<std::uint16_t>(body, number);
    put(body, static_cast<std::uint16_t>(value.size()));
    body += value;
    pad(body);
}

template <typename Number>
void putNumberOption(std::string& body, Option option, Number number) {
    std::string value;
    put(value, number);
    putOption(body, option, value);
}

std::string block(BlockType type, const std::string& body) {
    const auto length = static_cast<std::uint32_t>(kBlockFrame + body.size());
    std::string bytes;
    put<std::uint32_t>(bytes, type);
    put(bytes, length);
    bytes += body;
    put(bytes, length);
    return bytes;
}

}  // namespace

std::string pcapngSection(bool masked) {
    std::string body;
    put(body, kByteOrderMagic);
    put(body, kMajorVersion);
    put(body, std::uint16_t{0});
    put(body, std::numeric_limits<std::uint64_t>::max());  // the section's length: not known
    putOption(body, kSectionProgram, "Velmora");
    if (masked) {
        putOption(body, kComment, kMaskedComment);
    }
    putOption(body, kEndOfOptions, {});
    return block(kSectionHeader, body);
}

std::string pcapngPort(const CapturedPort& port) {
    std::string body;
    put(body, kLinkTypeUser0);
    put(body, std::uint16_t{0});
    put(body, std::uint32_t{0});  // no packet is cut short
    putOption(body, kInterfaceName, port.device);
    putOption(body, kInterfaceText, port.settings);
    putNumberOption(body, kInterfaceSpeed, port.rate);
    putNumberOption(body, kInterfaceTimeResolution, kNanoseconds);
    putOption(body, kEndOfOptions, {});
    return block(kInterfaceDescription, body);
}

std::string pcapngPacket(std::size_t port, const CapturedPacket& packet) {
    const auto time = static_cast<std::uint64_t>(packet.time.count());
    const auto length = static_cast<std::uint32_t>(packet.bytes.size());
    std::string body;
    put(body, static_cast<std::uint32_t>(port));
    put(body, static_cast<std::uint32_t>(time >> 32));
    put(body, static_cast<std::uint32_t>(time));
    put(body, length);
    put(body, length);
    body += packet.bytes;
    pad(body);
    putNumberOption(body, kPacketFlags, static_cast<std::uint32_t>(packet.direction));
    for (const std::string& comment : packet.comments) {
        putOption(body, kComment, comment);
    }
    putOption(body, kEndOfOptions, {});
    return block(kEnhancedPacket, body);
}

std::string pcapngFile(const Capture& capture) {
    std::string bytes = pcapngSection(capture.masked);
    for (const CapturedPort& port : capture.ports) {
        bytes += pcapngPort(port);
    }
    for (const CapturedPacket& packet : capture.packets) {
        bytes += pcapngPacket(packet.port, packet);
    }
    return bytes;
}

}  // namespace velmora
