#include "spreadsheet/cell_reference.h"

#include <cstdint>

#include "spreadsheet/byte_conversions.h"

namespace velmora {
namespace {

constexpr unsigned kRelative = 0x8000;
constexpr unsigned kSignExtension = 0x4000;
constexpr unsigned kNegative = 0x2000;

/// One word of a reference.
struct Axis {
    int index = 0;  ///< column or row, counted from 0
    bool absolute = false;
};

/// `positiveMask` is what a relative word keeps of an offset that is not negative.
Axis decodeAxis(std::string_view bytes, int own, unsigned positiveMask) {
    const unsigned word = bytesToUInt16(bytes);
    if ((word & kRelative) == 0) {
        return {static_cast<int>(word), true};
    }
    const int offset = (word & kNegative) != 0 ? static_cast<std::int16_t>(word | kSignExtension)
                                               : static_cast<int>(word & positiveMask);
    return {own + offset, false};
}

std::string encodeAxis(const Axis& axis, int own) {
    if (axis.absolute) {
        return int16ToBytes(axis.index);
    }
    const int offset = axis.index - own;
    constexpr int kNegativeBase = 16640;
    return int16ToBytes(offset >= 0 ? offset | static_cast<int>(kRelative) : (offset & 0xFF) - kNegativeBase);
}

bool takeDollar(std::string_view& text) {
    const bool found = !text.empty() && text.front() == '$';
    text.remove_prefix(found ? 1 : 0);
    return found;
}

/// The number in the digits of a row; -1 when they are none or too many.
int parseRow(std::string_view digits) {
    constexpr std::size_t kMostDigits = 5;
    if (digits.empty() || digits.size() > kMostDigits) {
        return -1;
    }
    int row = 0;
    for (const char c : digits) {
        if (c < '0' || c > '9') {
            return -1;
        }
        row = row * 10 + (c - '0');
    }
    return row;
}

bool isSingleRef(std::string_view text) {
    takeDollar(text);
    if (text.empty() ||
        !((text.front() >= 'A' && text.front() <= 'Z') || (text.front() >= 'a' && text.front() <= 'z'))) {
        return false;
    }
    text.remove_prefix(1);
    takeDollar(text);
    constexpr int kLastRow = 32'768;
    const int row = parseRow(text);
    return row >= 0 && row <= kLastRow;
}

}  // namespace

std::string DecodeCellRef(std::string_view bytes, const CellPosition& formulaCell) {
    constexpr unsigned kColumnMask = 0xFF;
    constexpr unsigned kRowMask = 0x7FFF;
    const Axis column = decodeAxis(bytes, formulaCell.column, kColumnMask);
    const Axis row = decodeAxis(bytes.substr(2), formulaCell.row, kRowMask);
    constexpr int kLetterA = 'A';
    if (column.index >= kSheetColumns || row.index >= kSheetRows || kLetterA + column.index < 0) {
        return "ERR";
    }
    std::string text = column.absolute ? "$" : "";
    text += static_cast<char>(kLetterA + column.index);
    text += row.absolute ? "$" : "";
    return text + std::to_string(row.index + 1);
}

std::string EncodeCellRef(std::string_view text, const CellPosition& formulaCell) {
    Axis column;
    column.absolute = takeDollar(text);
    column.index = (text.front() & ~0x20) - 'A';
    text.remove_prefix(1);
    Axis row;
    row.absolute = takeDollar(text);
    row.index = parseRow(text) - 1;
    return encodeAxis(column, formulaCell.column) + encodeAxis(row, formulaCell.row);
}

std::string EncodeRange(std::string_view text, const CellPosition& formulaCell) {
    const std::size_t colon = text.find(':');
    return EncodeCellRef(text.substr(0, colon), formulaCell) +
           EncodeCellRef(text.substr(colon + 1), formulaCell);
}

std::string cellName(const CellPosition& at) {
    constexpr int kLetters = 26;
    std::string letters;
    for (int rest = at.column; rest >= 0; rest = rest / kLetters - 1) {
        letters.insert(letters.begin(), static_cast<char>('A' + rest % kLetters));
    }
    return letters + std::to_string(at.row + 1);
}

bool IsCellRef(std::string_view text) {
    const std::size_t colon = text.find(':');
    if (colon == std::string_view::npos) {
        return isSingleRef(text);
    }
    return isSingleRef(text.substr(0, colon)) && isSingleRef(text.substr(colon + 1));
}

}  // namespace velmora
