// The stack of the formula conversions.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace velmora {

/// What lies on the stack: a text with its precedence (operands of a formula being decoded) or an operator's
/// symbol with the depth of parentheses at which it was pushed (a formula being encoded).
struct StackEntry {
    std::string text;
    std::int16_t precedence = 0;
    friend bool operator==(const StackEntry&, const StackEntry&) = default;
};

class OperandStack {
  public:
    static constexpr std::size_t kEntries = 101;

    OperandStack() { entries_.reserve(kUsual); }

    /// RunTimeError 9 when all entries are in use.
    void PushOperand(std::string text, std::int16_t precedence);
    /// Takes the top entry; an empty text with precedence 0 when there is none.
    StackEntry PopOperand();
    /// The top entry. Requires: not empty.
    const StackEntry& top() const { return entries_.back(); }
    bool empty() const { return entries_.empty(); }
    std::size_t size() const { return entries_.size(); }

  private:
    static constexpr std::size_t kUsual = 8;  // enough for nearly every formula

    std::vector<StackEntry> entries_;
};

}  // namespace velmora
