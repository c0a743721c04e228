#include "spreadsheet/infix_to_rpn.h"

#include <algorithm>
#include <limits>
#include <optional>
#include <utility>
#include <vector>

#include "base/ascii.h"
#include "base/byte_text.h"
#include "base/run_time_error.h"
#include "spreadsheet/formula_tables.h"
#include "spreadsheet/operand_stack.h"

namespace velmora {
namespace {

/// The pieces of an argument list, cut at every ",".
std::vector<std::string_view> splitAtCommas(std::string_view list) {
    std::vector<std::string_view> parts;
    std::size_t start = 0;
    for (std::size_t comma = list.find(','); comma != std::string_view::npos; comma = list.find(',', start)) {
        parts.push_back(list.substr(start, comma - start));
        start = comma + 1;
    }
    parts.push_back(list.substr(start));
    return parts;
}

/// As splitAtCommas, but a "," within parentheses or quotes belongs to its argument.
std::vector<std::string_view> splitArguments(std::string_view list) {
    std::vector<std::string_view> parts;
    std::size_t start = 0;
    int depth = 0;
    bool quoted = false;
    for (std::size_t i = 0; i < list.size(); ++i) {
        const char c = list[i];
        quoted = c == '"' ? !quoted : quoted;
        depth += quoted ? 0 : c == '(' ? 1 : c == ')' ? -1 : 0;
        if (c == ',' && depth == 0 && !quoted) {
            parts.push_back(list.substr(start, i - start));
            start = i + 1;
        }
    }
    parts.push_back(list.substr(start));
    return parts;
}

/// Which parenthesised operands need their parentheses written down, for the common dialect. It is told of
/// every operator and parenthesis in the order of the text.
class ParenthesesNeeded {
  public:
    void open() { lowest_.push_back(static_cast<char>(kOperandPrecedence)); }
    /// An operator at the current depth. True when the parenthesised operand just before it needs a mark.
    bool operatorRead(std::int16_t precedence) {
        const bool needed = pending_ < precedence;
        pending_ = kOperandPrecedence;
        lowest_.back() = std::min(lowest_.back(), static_cast<char>(precedence));
        return needed;
    }
    void operandRead() { pending_ = kOperandPrecedence; }
    /// The end of a parenthesised operand behind `left`, the operator before it at its own depth (empty when
    /// there is none). True when it needs a mark because of that operator.
    bool close(std::string_view left) {
        const std::int16_t inner = std::min<std::int16_t>(lowest_.back(), pending_);
        lowest_.pop_back();
        pending_ = kOperandPrecedence;
        if (inner == kOperandPrecedence) {
            return false;
        }
        // Elsewhere a minus sign binds tighter than a power, so it is as good as any lower operator there.
        if (!left.empty() && (inner <= OperatorPrecedence(left) || left == "_")) {
            return true;
        }
        pending_ = inner;
        return false;
    }

  private:
    // Lowest rank within each open parenthesis, the outermost level first.
    std::string lowest_{static_cast<char>(kOperandPrecedence)};
    std::int16_t pending_ = kOperandPrecedence;  // rank of the operand just closed, if it may need a mark yet
};

class InfixConversion {
  public:
    InfixConversion(std::string_view infix, WksDialect dialect, int nesting)
        : text_(infix), dialect_(dialect), nesting_(nesting) {
        if (nesting > kDeepestCall) {
            throw RunTimeError(ErrorNumber::SubscriptOutOfRange, "the formula's calls are nested too deep");
        }
    }

    std::string run() {
        while (position_ < text_.size()) {
            if (!step()) {
                return {};
            }
        }
        if (depth_ != 0) {
            return {};
        }
        while (!operators_.empty()) {
            emitOperator(operators_.PopOperand().text);
        }
        return trimBlanks(out_);
    }

  private:
    bool isCommon() const { return dialect_ == WksDialect::Common; }

    char peek(std::size_t ahead) const {
        return position_ + ahead < text_.size() ? text_[position_ + ahead] : '\0';
    }

    bool step() {
        const char c = text_[position_];
        if (c == ' ') {
            ++position_;
            return true;
        }
        if (c == '"') {
            return takeQuoted();
        }
        if (isLetter(c) || c == '$') {
            return takeName();
        }
        if (isDigit(c) || c == '.') {
            takeNumber();
            return true;
        }
        if (c == '(') {
            openParenthesis();
            return true;
        }
        if (c == ')') {
            return closeParenthesis();
        }
        if (isOperatorByte(c)) {
            takeOperator();
            return true;
        }
        return false;
    }

    void emit(std::string_view token) { out_.append(token).append(" "); }

    void emitOperand(std::string_view token) {
        emit(token);
        operandExpected_ = false;
        needed_.operandRead();
    }

    void emitOperator(std::string_view symbol) {
        if (isCommon() && symbol == "_" && lastToken() == "^") {
            emit(kParenthesesSymbol);  // a minus sign in front of a power is of the whole power
        }
        emit(symbol);
    }

    std::string_view lastToken() const {
        const std::string_view written = std::string_view(out_).substr(0, out_.empty() ? 0 : out_.size() - 1);
        return written.substr(written.rfind(' ') + 1);
    }

    bool takeQuoted() {
        const std::size_t close = text_.find('"', position_ + 1);
        if (close == std::string_view::npos) {
            return false;
        }
        emitOperand(text_.substr(position_, close + 1 - position_));
        position_ = close + 1;
        return true;
    }

    /// Moves behind the ")" that pairs with the "(" at the position; false when there is none.
    bool skipParentheses() {
        int open = 0;
        bool quoted = false;
        for (; position_ < text_.size(); ++position_) {
            const char c = text_[position_];
            quoted = isCommon() && c == '"' ? !quoted : quoted;
            open += quoted ? 0 : c == '(' ? 1 : c == ')' ? -1 : 0;
            if (open == 0) {
                ++position_;
                return true;
            }
        }
        return false;
    }

    bool takeName() {
        const std::size_t start = position_;
        while (position_ < text_.size() && text_[position_] != ' ' && text_[position_] != ')' &&
               !isOperatorByte(text_[position_])) {
            if (text_[position_] != '(') {
                ++position_;
            } else if (!skipParentheses()) {
                return false;
            }
        }
        const std::string_view name = text_.substr(start, position_ - start);
        const std::size_t open = name.find('(');
        if (open != std::string_view::npos) {
            convertCall(name.substr(0, open), name.substr(open + 1, name.size() - open - 2));
        } else if (const std::string_view word = wordOperator(name); !word.empty()) {
            pushOperator(word);
        } else {
            emitOperand(name);
        }
        return true;
    }

    static std::string_view wordOperator(std::string_view name) {
        constexpr std::size_t kShortest = 2;
        constexpr std::size_t kLongest = 3;
        if (name.size() < kShortest || name.size() > kLongest) {
            return "";
        }
        const std::string word = upperCase(name);
        return word == "NOT" ? "!" : word == "AND" ? "&" : word == "OR" ? "|" : "";
    }

    void convertCall(std::string_view name, std::string_view list) {
        std::size_t count = 0;
        if (!list.empty()) {
            for (const std::string_view part : isCommon() ? splitArguments(list) : splitAtCommas(list)) {
                const std::string argument = InfixConversion(part, dialect_, nesting_ + 1).run();
                if (!argument.empty()) {
                    emit(argument);
                }
                ++count;
            }
        }
        emitOperand(std::string(name) + "(" + std::to_string(count) + ")");
    }

    void takeNumber() {
        const std::size_t start = position_;
        do {
            ++position_;
        } while (position_ < text_.size() && goesOnWithNumber());
        emitOperand(text_.substr(start, position_ - start));
    }

    /// Whether the character at the position belongs to the number before it.
    bool goesOnWithNumber() const {
        const char c = text_[position_];
        if (isDigit(c) || c == '.' || c == 'E' || c == 'e') {
            return true;
        }
        const char before = text_[position_ - 1];
        return isCommon() && (c == '-' || c == '+') && (before == 'E' || before == 'e') && isDigit(peek(1));
    }

    void openParenthesis() {
        if (depth_ == std::numeric_limits<std::int16_t>::max()) {
            throw RunTimeError(ErrorNumber::Overflow, "too many parentheses");
        }
        ++depth_;
        ++position_;
        operandExpected_ = true;
        needed_.open();
    }

    bool closeParenthesis() {
        while (!operators_.empty() && operators_.top().precedence == depth_) {
            emitOperator(operators_.PopOperand().text);
        }
        if (depth_ == 0) {
            return false;
        }
        --depth_;
        ++position_;
        operandExpected_ = false;
        const bool behindOperator = !operators_.empty() && operators_.top().precedence == depth_;
        if (needed_.close(behindOperator ? std::string_view(operators_.top().text) : "") && isCommon()) {
            emit(kParenthesesSymbol);
        }
        return true;
    }

    void takeOperator() {
        const char c = text_[position_];
        const char next = peek(1);
        if (operandExpected_ && (c == '-' || c == '+')) {
            ++position_;
            if (c == '-') {
                pushOperator("_");
            }
            return;
        }
        if (c == '*' && next == '*') {
            position_ += 2;
            pushOperator("^");
            return;
        }
        const bool two = (c == '<' && (next == '>' || next == '=')) || (c == '>' && next == '=');
        const std::string_view symbol = text_.substr(position_, two ? 2 : 1);
        position_ += symbol.size();
        pushOperator(symbol);
    }

    /// Whether an operator on the stack goes out before a new one is pushed.
    bool goesFirst(const StackEntry& waiting, std::string_view symbol) const {
        const std::int16_t precedence = OperatorPrecedence(symbol);
        if (waiting.precedence != depth_) {
            return false;
        }
        if (!isCommon()) {
            return OperatorPrecedence(waiting.text) > precedence;
        }
        return !isUnary(symbol) && OperatorPrecedence(waiting.text) >= precedence;
    }

    void pushOperator(std::string_view symbol) {
        if (needed_.operatorRead(OperatorPrecedence(symbol)) && isCommon()) {
            emit(kParenthesesSymbol);
        }
        while (!operators_.empty() && goesFirst(operators_.top(), symbol)) {
            emitOperator(operators_.PopOperand().text);
        }
        operators_.PushOperand(std::string(symbol), static_cast<std::int16_t>(depth_));
        operandExpected_ = true;
    }

    std::string_view text_;
    WksDialect dialect_;
    int nesting_;
    std::size_t position_ = 0;
    int depth_ = 0;
    bool operandExpected_ = true;
    OperandStack operators_;
    ParenthesesNeeded needed_;
    std::string out_;
};

}  // namespace

std::string InfixToRpn(std::string_view infix, WksDialect dialect) {
    return InfixConversion(infix, dialect, 0).run();
}

}  // namespace velmora
