// The records of a worksheet file: type and length of the body, each two bytes little-endian, and the body.
#pragma once

#include <cstddef>

namespace velmora {

constexpr int kRecordStart = 0;  ///< body: version
constexpr int kRecordEnd = 1;    ///< no body
constexpr int kRecordInteger = 13;
constexpr int kRecordNumber = 14;
constexpr int kRecordLabel = 15;
constexpr int kRecordFormula = 16;

constexpr int kWksVersion = 0x0404;

constexpr std::size_t kRecordHeader = 2 + 2;                ///< type, length
constexpr std::size_t kCellHeader = 1 + 2 + 2;              ///< format, column, row
constexpr std::size_t kIntegerBody = kCellHeader + 2;       ///< + value
constexpr std::size_t kNumberBody = kCellHeader + 8;        ///< + value
constexpr std::size_t kLabelFrame = kCellHeader + 1 + 1;    ///< + prefix, text, zero byte
constexpr std::size_t kFormulaFrame = kCellHeader + 8 + 2;  ///< + cached value, length, tokens
constexpr std::size_t kLongestBody = 0xFFFF;

}  // namespace velmora
