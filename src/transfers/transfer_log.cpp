#include "transfers/transfer_log.h"

namespace velmora {

void TransferLog::note(const std::string& line) {
    trace_.trace("PLP", "file", line);
    window_.Report(line);
}

void TransferLog::warn(const std::string& what, const RunTimeError& why) {
    trace_.trace("COM,ERROR", "ERROR", std::to_string(why.number()) + ": " + why.what());
    window_.ShowWarning(what, errorText(why.errorNumber()));
}

void TransferLog::saveBrokeOff(const IncompleteSave& save) {
    window_.ShowLineDown();
    note(describe(save, rules_));
}

}  // namespace velmora
