// The bytes of a fuzzer, read as what a target needs.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace velmora::fuzz {

/// Takes an input apart from its beginning; at its end everything is 0 and empty. The bytes must outlive it.
class Input {
  public:
    Input(const std::uint8_t* data, std::size_t size) : rest_(reinterpret_cast<const char*>(data), size) {}

    bool atEnd() const { return rest_.empty(); }
    std::uint8_t byte() {
        if (rest_.empty()) {
            return 0;
        }
        const auto value = static_cast<std::uint8_t>(rest_.front());
        rest_.remove_prefix(1);
        return value;
    }
    char character() { return static_cast<char>(byte()); }
    /// From one byte; below `limit`, which is at most 256.
    std::size_t below(std::size_t limit) { return byte() % limit; }
    /// The next `length` bytes, or as many as there are.
    std::string bytes(std::size_t length) {
        std::string text(rest_.substr(0, length));
        rest_.remove_prefix(text.size());
        return text;
    }
    /// A byte for the length and as many bytes.
    std::string text() { return bytes(byte()); }

  private:
    std::string_view rest_;
};

}  // namespace velmora::fuzz
