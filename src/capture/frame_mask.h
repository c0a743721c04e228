// Making the contents of recorded frames unreadable.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "capture/capture.h"
#include "link/crc.h"

namespace velmora {

/// What the Organiser calls a service by: as it is when it may be one, else nothing but "x".
std::string maskedServiceName(std::string_view name);

/// Masks one direction of a line. Frames keep their length, type, number and operation; the data of DATA
/// frames and all that belongs to no frame becomes "x", but for DLE, which frames are made with. Of what the
/// Organiser asks for, the operation stays, with the two bytes behind an "open", and the name of a service.
/// Each frame gets the check that it needs: a good one stays good, a bad one is bad by the same bits.
class FrameMask {
  public:
    /// `direction`: Received or Sent.
    explicit FrameMask(CaptureDirection direction);

    /// The bytes that follow those of the last call, as many as were given.
    std::string mask(std::string_view bytes);
    /// What follows does not belong to what was given so far.
    void clear();

  private:
    enum class Place : std::uint8_t { Outside, Body, Escaped, FirstCheck, SecondCheck };

    char maskByte(char byte);
    char takeOutside(char byte);
    char takeBody(char byte);
    bool staysReadable() const;
    void beginCheck();

    CaptureDirection direction_;
    Crc crc_;
    Place place_ = Place::Outside;
    std::size_t headerBytes_ = 0;
    std::string body_;  // as it was, without stuffing
    std::string shown_;
    std::array<char, 2> checkChange_{};
};

/// Masks the packets of a recording, each direction for itself. Bytes of no direction are masked whole.
class PacketMask {
  public:
    /// Masks the bytes of the packet that follows the one of the last call.
    void mask(CapturedPacket& packet);
    /// What follows passes over another port.
    void clear();

  private:
    FrameMask received_{CaptureDirection::Received};
    FrameMask sent_{CaptureDirection::Sent};
};

/// The packets of a capture, all masked, and the mark that they are.
Capture maskedCapture(const Capture& capture);

}  // namespace velmora
