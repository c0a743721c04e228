// Names for settings of their own.
#pragma once

#include <string>
#include <string_view>

namespace velmora {

/// Whether a name, in the system's encoding, can be that of a profile: on each system it is to be part of the
/// name of a file, so it has none of / \ : * ? " < > | and no control codes, no blank at an end, no dot at
/// its end, and at most 64 bytes.
bool isProfileName(std::string_view name);

/// What a program calls something that it keeps for one profile: its usual name, then "-" and the profile's.
std::string profiledName(std::string_view usual, std::string_view profile);

}  // namespace velmora
