// First inputs for the fuzzers, from what the tests use.
#pragma once

#include <functional>
#include <string>

namespace velmora::fuzz {

/// Takes an input for a fuzzer, named without "_fuzz".
using TakeSeed = std::function<void(const std::string& fuzzer, const std::string& input)>;

/// Worksheets, formulas and numbers.
void giveSheetSeeds(const TakeSeed& take);
/// Requests to the services and the answers of a server.
void giveConversationSeeds(const TakeSeed& take);
/// Configuration, names, listings, boot files, frames.
void giveTextSeeds(const TakeSeed& take);

/// A text as inputs hold it: a byte for its length, and its bytes, at most 255.
inline std::string counted(const std::string& text) {
    const std::string kept = text.substr(0, 255);
    return static_cast<char>(kept.size()) + kept;
}

}  // namespace velmora::fuzz
