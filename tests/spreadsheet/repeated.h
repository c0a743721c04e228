// Long texts for tests.
#pragma once

#include <string>

namespace velmora::test {

inline std::string repeated(const std::string& text, int count) {
    std::string out;
    for (int i = 0; i < count; ++i) {
        out += text;
    }
    return out;
}

}  // namespace velmora::test
