// The error that an action on a port raises.
#pragma once

#include <optional>

#include "serial/serial_port.h"

namespace velmora::test {

/// Runs `action` and gives the CommError that it raised; nothing when it raised none.
template <typename Action>
std::optional<CommError> commErrorOf(Action action) {
    try {
        action();
    } catch (const CommError& error) {
        return error;
    }
    return std::nullopt;
}

}  // namespace velmora::test
