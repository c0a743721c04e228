// What may be wrong with a line, for the cable and for tests.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "serial/mode_string.h"

namespace velmora::tools {

/// Illnesses of a line between a computer, the first end, and a handheld, the second. They may come together.
struct Illness {
    std::optional<LineSettings>
        handheld;           ///< the handheld's settings; nothing: the computer's, whatever they are
    bool mute = false;      ///< nothing comes from the handheld
    bool deaf = false;      ///< nothing reaches the handheld
    bool loopback = false;  ///< pins 2 and 3 are joined: the computer hears itself
    std::optional<LineSettings> echo;  ///< something that works at these settings sends back what it hears
    bool modem = false;                ///< a modem in the handheld's place, which answers AT
    bool quietModem = false;           ///< one that does not send back what it hears
    double noise = 0;                  ///< how likely a byte arrives damaged, either way
    double losses = 0;                 ///< how likely a run of bytes is lost, either way
    double interruptions = 0;          ///< how likely a byte becomes a break, on the way to the computer
    bool stuck = false;                ///< the line to the computer is held low
    std::string call;                  ///< what the handheld sends every second, of another protocol

    /// Whether the second end's bytes are of use at all.
    bool handheldSpeaks() const {
        return !mute && !loopback && !modem && !quietModem && !stuck && call.empty();
    }
};

/// Reads a list of illnesses with commas between them, such as "rate=1200,noise=0.1":
///
/// - rate=RATE, form=7E1 (data bits, parity, stop bits): of the handheld, 9600 and 8N1 otherwise;
/// - mute, deaf, dead (both), loopback, stuck, modem, quiet-modem;
/// - echo, or echo=RATE;
/// - noise=P, losses=P, breaks=P with probabilities from 0 to 1;
/// - xmodem, text: another protocol.
///
/// Throws UsageError.
Illness readIllness(std::string_view option, std::string_view list);

}  // namespace velmora::tools
