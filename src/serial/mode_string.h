// Line settings in the form of the mode command, as BuildCommDCB takes them.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace velmora {

enum class Parity { None, Odd, Even, Mark, Space };
enum class StopBits { One, OneAndHalf, Two };

/// The rates in bits a second that may be chosen. Whether a device takes one shows when it is opened.
inline constexpr std::int32_t kLowestRate = 1;
inline constexpr std::int32_t kHighestRate = 4'000'000;

struct LineSettings {
    std::uint32_t baud = 9600;  ///< bits per second
    Parity parity = Parity::None;
    int dataBits = 8;  ///< 5 to 8
    StopBits stopBits = StopBits::One;

    friend bool operator==(const LineSettings&, const LineSettings&) = default;
};

/// How long the line is high behind a byte at least, in halves of a bit.
int stopHalves(StopBits stopBits);

/// Reads a mode string; nothing when it is not one. Letters may be small or capital. Two forms:
///
/// - by position: "9600,N,8,1", all four fields, blanks around a field allowed;
/// - by keyword: "baud=9600 parity=N data=8 stop=1", in any order, each at most once; baud must be there, the
///   others are N, 8 and 1 when left out.
///
/// Parity is N, O, E, M or S, data 5 to 8, stop 1, 1.5 or 2. Two stop bits do not go with 5 data bits, one
/// and a half only with them. The rates 11, 15, 30, 60, 12, 24, 48, 96 and 19 are short for 110, 150, 300,
/// 600, 1200, 2400, 4800, 9600 and 19200. Flow control, in either form, is not offered: the link has its own.
std::optional<LineSettings> parseModeString(std::string_view text);

/// The mode string of some settings, by position: "9600,N,8,1".
std::string modeString(const LineSettings& line);

}  // namespace velmora
