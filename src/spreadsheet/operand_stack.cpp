#include "spreadsheet/operand_stack.h"

#include "base/run_time_error.h"

namespace velmora {

void OperandStack::PushOperand(std::string text, std::int16_t precedence) {
    if (entries_.size() == kEntries) {
        throw RunTimeError(ErrorNumber::SubscriptOutOfRange, "the formula is too deep");
    }
    entries_.push_back({std::move(text), precedence});
}

StackEntry OperandStack::PopOperand() {
    if (entries_.empty()) {
        return {};
    }
    StackEntry taken = std::move(entries_.back());
    entries_.pop_back();
    return taken;
}

}  // namespace velmora
