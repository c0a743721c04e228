#include "server/caption.h"

#include "base/byte_text.h"

namespace velmora {

std::string minimisedCaption(const DisplayText& text) {
    return std::string(kProgramName) + " - " + trimBlanks(text.line1) + " " + trimBlanks(text.line2);
}

}  // namespace velmora
