// The record of a run, by which two runs are compared.
#pragma once

#include <chrono>
#include <cstdint>
#include <string>
#include <string_view>

#include "base/byte_text.h"

namespace velmora::simulation {

using Time = std::chrono::microseconds;

/// Every frame, file operation and step, as a check sum, and as lines of text when they are wanted.
class Journal {
  public:
    explicit Journal(bool keepsText = false) : keepsText_(keepsText) {}

    void note(Time at, std::string_view what, std::string_view bytes = {}) {
        mix(static_cast<std::uint64_t>(at.count()));
        mix(what);
        mix(bytes);
        if (keepsText_) {
            text_ += std::to_string(at.count()) + " ";
            text_ += what;
            text_ += bytes.empty() ? "" : " " + hexDump(bytes);
            text_ += '\n';
        }
    }
    std::uint64_t checkSum() const { return sum_; }
    /// All lines, if they are kept.
    const std::string& text() const { return text_; }

  private:
    void mix(std::uint64_t value) { sum_ = (sum_ ^ value) * kPrime; }
    void mix(std::string_view bytes) {
        mix(bytes.size());
        for (const char byte : bytes) {
            mix(static_cast<unsigned char>(byte));
        }
    }
    static constexpr std::uint64_t kPrime = 1'099'511'628'211U;  // FNV-1a
    std::uint64_t sum_ = 14'695'981'039'346'656'037U;
    bool keepsText_;
    std::string text_;
};

}  // namespace velmora::simulation
