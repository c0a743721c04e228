#include "arguments/version.h"

namespace velmora {

std::string releaseVersion() {
    return VELMORA_VERSION;
}

std::string fullVersion() {
    return VELMORA_VERSION VELMORA_COMMIT;
}

}  // namespace velmora
