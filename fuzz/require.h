// How a fuzzer says that something does not hold.
#pragma once

#include <cstdlib>

namespace velmora::fuzz {

/// Ends the program when it does not hold; the fuzzer keeps the input then.
inline void require(bool holds) {
    if (!holds) {
        std::abort();
    }
}

}  // namespace velmora::fuzz
