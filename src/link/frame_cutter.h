// Cutting the stream of received bytes into frames.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace velmora {

/// The receive buffer of a link. Bytes go in as they come, whole frames come out; garbage between frames is
/// dropped. The time spent is linear in the bytes given, however they are portioned.
///
/// A frame ends at a DLE ETX whose DLE is the last of an odd run of DLEs (in an even run every DLE is an
/// escaped one of the body), once the two check bytes behind it have arrived.
class FrameCutter {
  public:
    /// Longest frame, and so the most bytes kept while a frame has no end. Beyond it the oldest are dropped,
    /// up to the next header.
    static constexpr std::size_t kCapacity = 64 * 1024;

    /// `capacity` takes the place of kCapacity.
    explicit FrameCutter(std::size_t capacity = kCapacity) : capacity_(capacity) {}

    /// Adds received bytes.
    void append(std::string_view bytes);
    /// The next complete frame, header to second check byte, or nothing. The view holds until the next call
    /// of any other member or of next itself.
    std::optional<std::string_view> next();
    /// Forgets everything received.
    void clear();

    /// How many bytes must come at least until a frame is complete: 1 to 7. Counts once next() has returned
    /// nothing.
    std::size_t leastToCome() const;

    /// Bytes that wait for the rest of their frame: at most the capacity once next() has returned nothing.
    std::size_t heldBytes() const { return buffer_.size() - begin_; }
    /// Bytes dropped so far because they belonged to no frame.
    std::size_t droppedBytes() const { return dropped_; }

  private:
    bool seekHeader();
    bool skipHeader();
    void drop(std::size_t count);

    std::size_t capacity_;
    std::string buffer_;
    std::size_t begin_ = 0;  // where the bytes that still count begin
    bool inFrame_ = false;   // a header stands at begin_
    std::size_t scan_ = 0;   // in a frame: where the search for its end goes on
    std::size_t dropped_ = 0;
};

}  // namespace velmora
