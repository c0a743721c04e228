// What passed over a serial line, as it is recorded and read back.
#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace velmora {

/// Which way bytes went, seen from the server. The values are those of the pcapng packet flags.
enum class CaptureDirection : std::uint8_t {
    None = 0,      ///< nothing went: the packet holds a comment only
    Received = 1,  ///< from the Organiser
    Sent = 2,      ///< to the Organiser
};

/// A serial port on which was recorded. The texts are UTF-8.
struct CapturedPort {
    std::string device;      ///< "/dev/ttyUSB0", "COM5"
    std::string settings;    ///< mode string, "9600,N,8,1"
    std::uint64_t rate = 0;  ///< bits a second; 0 when it is not known

    friend bool operator==(const CapturedPort&, const CapturedPort&) = default;
};

/// Bytes that passed one after the other in one direction, or a comment on what happened meanwhile.
struct CapturedPacket {
    std::size_t port = 0;              ///< place in the capture's ports
    std::chrono::nanoseconds time{0};  ///< of the first byte, since 1970-01-01 00:00 UTC
    CaptureDirection direction = CaptureDirection::None;
    std::string bytes;
    std::vector<std::string> comments;  ///< UTF-8

    friend bool operator==(const CapturedPacket&, const CapturedPacket&) = default;
};

/// A whole recording.
struct Capture {
    bool masked = false;  ///< contents were made unreadable
    std::vector<CapturedPort> ports;
    std::vector<CapturedPacket> packets;
};

/// The end of a recording: what came within `span` before its last packet, the ports as they are.
Capture lastOf(const Capture& capture, std::chrono::nanoseconds span);

/// Takes a recording as it grows. Must not throw: a recording never disturbs what it records.
class CaptureTarget {
  public:
    virtual ~CaptureTarget() = default;

    /// A port was opened; the packets that follow are its.
    virtual void addPort(const CapturedPort& port) = 0;
    /// Takes a packet; its `port` is not looked at.
    virtual void addPacket(const CapturedPacket& packet) = 0;
};

}  // namespace velmora
