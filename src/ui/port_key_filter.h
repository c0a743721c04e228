// Which keys the port number's text box takes.
#pragma once

namespace velmora {

/// Whether a key with this character code passes: the digits and the codes 8, 9, 12, 37 to 40 and 46. The
/// latter were meant for the editing keys and let "%", "&", "'", "(" and "." through as well.
constexpr bool portKeyPasses(int code) {
    if (code >= '0' && code <= '9') {
        return true;
    }
    return code == 8 || code == 9 || code == 12 || (code >= 37 && code <= 40) || code == 46;
}

}  // namespace velmora
