#include "spreadsheet/rpn_to_infix.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "base/ascii.h"
#include "base/number_text.h"
#include "spreadsheet/formula_tables.h"
#include "spreadsheet/operand_stack.h"

namespace velmora {
namespace {

constexpr const char* kError = "ERR";

bool isNumberByte(char c) {
    return (c >= '0' && c <= '9') || c == '.' || c == 'E' || c == '+' || c == '-';
}

class PostfixConversion {
  public:
    PostfixConversion(std::string_view postfix, WksDialect dialect) : text_(postfix), dialect_(dialect) {}

    std::string run() {
        while (position_ < text_.size()) {
            switch (step()) {
                case Outcome::Continue:
                    break;
                case Outcome::Empty:
                    return {};
                case Outcome::Error:
                    return kError;
            }
        }
        return stack_.PopOperand().text;
    }

  private:
    enum class Outcome { Continue, Empty, Error };

    Outcome step() {
        const char c = text_[position_];
        if (c == ' ') {
            ++position_;
            return Outcome::Continue;
        }
        if (c == '"') {
            return takeQuoted();
        }
        if (isLetter(c) || c == '$') {
            return takeName();
        }
        if ((c >= '0' && c <= '9') || c == '.') {
            return takeNumber();
        }
        if (c == '_' || isOperatorByte(c)) {
            return takeOperator();
        }
        if (dialect_ == WksDialect::Common && text_.substr(position_, 2) == kParenthesesSymbol) {
            position_ += kParenthesesSymbol.size();
            return push("(" + pop().text + ")", kOperandPrecedence);
        }
        return Outcome::Empty;
    }

    Outcome push(std::string text, std::int16_t precedence) {
        waiting_ += text.size();
        if (waiting_ > kLongestOperand) {
            return Outcome::Error;
        }
        stack_.PushOperand(std::move(text), precedence);
        return Outcome::Continue;
    }

    StackEntry pop() {
        StackEntry operand = stack_.PopOperand();
        waiting_ -= operand.text.size();
        return operand;
    }

    Outcome takeQuoted() {
        const std::size_t close = text_.find('"', position_ + 1);
        if (close == std::string_view::npos) {
            return Outcome::Error;
        }
        const std::string_view quoted = text_.substr(position_, close + 1 - position_);
        position_ = close + 1;
        return push(std::string(quoted), kOperandPrecedence);
    }

    Outcome takeName() {
        const std::size_t start = position_;
        while (position_ < text_.size() && text_[position_] != ' ' && text_[position_] != '(' &&
               !isOperatorByte(text_[position_])) {
            ++position_;
        }
        const std::string_view name = text_.substr(start, position_ - start);
        if (position_ < text_.size() && text_[position_] == '(') {
            return takeCall(name);
        }
        return push(std::string(name), kOperandPrecedence);
    }

    /// The count of arguments in parentheses behind a function's name, which takes them off the stack.
    Outcome takeCall(std::string_view name) {
        const std::size_t close = text_.find(')', position_);
        if (close == std::string_view::npos) {
            return Outcome::Error;
        }
        const double number = numericValue(text_.substr(position_ + 1, close - position_ - 1));
        position_ = close + 1;
        if (!(number <= static_cast<double>(kLongestOperand))) {
            return Outcome::Error;
        }
        const std::size_t count = number > 0 ? static_cast<std::size_t>(number) : 0;
        const std::size_t present = std::min(count, stack_.size());
        std::vector<std::string> arguments(present);
        for (std::size_t i = present; i-- > 0;) {
            arguments[i] = pop().text;
        }
        // Arguments that were not on the stack are empty and come first.
        std::string call(name);
        call += '(';
        call.append(count - present, ',');
        for (std::size_t i = 0; i < present; ++i) {
            call += arguments[i];
            call += i + 1 < present ? "," : "";
        }
        if (present == 0 && count > 0) {
            call.pop_back();
        }
        call += ')';
        return push(std::move(call), kOperandPrecedence);
    }

    Outcome takeNumber() {
        std::string number = text_[position_] == '.' ? "0" : "";
        while (position_ < text_.size() && isNumberByte(text_[position_])) {
            number += text_[position_++];
        }
        return push(std::move(number), kOperandPrecedence);
    }

    std::string_view takeSymbol() {
        const std::string_view two = text_.substr(position_, 2);
        const std::size_t length = two == "<>" || two == "<=" || two == ">=" ? 2 : 1;
        position_ += length;
        return two.substr(0, length);
    }

    static void appendOperand(std::string& out, const StackEntry& operand, std::int16_t precedence) {
        if (precedence <= operand.precedence) {
            out += operand.text;
        } else {
            out.append("(").append(operand.text).append(")");
        }
    }

    Outcome takeOperator() {
        const std::string_view symbol = takeSymbol();
        const std::int16_t precedence = OperatorPrecedence(symbol);
        const StackEntry right = pop();
        std::string result;
        if (!isUnary(symbol)) {
            StackEntry left = pop();
            if (precedence <= left.precedence) {
                result = std::move(left.text);
            } else {
                appendOperand(result, left, precedence);
            }
        }
        result += symbol == "_" ? "-" : symbol;
        appendOperand(result, right, precedence);
        return push(std::move(result), precedence);
    }

    std::string_view text_;
    WksDialect dialect_;
    std::size_t position_ = 0;
    OperandStack stack_;
    std::size_t waiting_ = 0;  // bytes of all operands on the stack
};

}  // namespace

std::string RpnToInfix(std::string_view postfix, WksDialect dialect) {
    return PostfixConversion(postfix, dialect).run();
}

}  // namespace velmora
