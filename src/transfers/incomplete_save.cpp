#include "transfers/incomplete_save.h"

#include "base/number_text.h"
#include "base/system_text.h"

namespace velmora {

std::string describe(const IncompleteSave& save, const PathRules& rules) {
    std::string line = shownText(rules.lastComponent(save.path)) +
                       (save.written ? " is incomplete: " : " was not saved: ") +
                       groupedText(static_cast<std::int64_t>(save.bytes)) + " bytes arrived.";
    if (!save.earlierCopy.empty()) {
        line += " Earlier copy: " + shownText(save.earlierCopy);
    }
    return line;
}

}  // namespace velmora
