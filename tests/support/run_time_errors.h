// Looking at the number of a run-time error.
#pragma once

#include "base/run_time_error.h"

namespace velmora::test {

/// The number of the run-time error that a call throws, 0 when it throws none.
template <typename Call>
int errorOf(const Call& call) {
    try {
        call();
    } catch (const RunTimeError& error) {
        return error.number();
    }
    return 0;
}

}  // namespace velmora::test
