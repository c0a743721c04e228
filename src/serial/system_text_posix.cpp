#include <cstring>

#include "serial/system_text.h"

namespace velmora {

std::string systemText(SystemError number) {
    return std::strerror(number);
}

}  // namespace velmora
