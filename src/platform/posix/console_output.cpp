#include "platform/console_output.h"

namespace velmora {

// A terminal has the encoding of everything else.
std::shared_ptr<void> showOnConsole(PrintedText /*text*/) {
    return nullptr;
}

}  // namespace velmora
