// Building worksheet formulas and records byte by byte, for tests.
#pragma once

#include <cstdint>
#include <initializer_list>
#include <string>

#include "spreadsheet/byte_conversions.h"
#include "spreadsheet/sheet_grid.h"

namespace velmora::test {

inline std::string bytes(std::initializer_list<int> values) {
    std::string out;
    for (const int value : values) {
        out += static_cast<char>(value);
    }
    return out;
}

/// A token that refers to a cell relative to the formula's own.
inline std::string relative(int columns, int rows) {
    const auto word = [](int offset) {
        return int16ToBytes(offset >= 0 ? offset | 0x8000 : (offset & 0xFF) - 16640);
    };
    return word(columns) + word(rows);
}
inline std::string ref(int columns, int rows) {
    return bytes({1}) + relative(columns, rows);
}
/// A token that refers to a cell by its column and row, counted from 0.
inline std::string absoluteRef(int column, int row) {
    return bytes({1}) + int16ToBytes(column) + int16ToBytes(row);
}
inline std::string integer(int value) {
    return bytes({5}) + int16ToBytes(value);
}
inline std::string number(double value) {
    return bytes({0}) + doubleToBytes(value);
}
inline std::string string(const std::string& text) {
    return bytes({6}) + text + '\0';
}
inline const std::string end = bytes({3});

/// Where the formulas stand that are encoded and decoded, and tokens that refer to A1, B1 and C1 from there.
constexpr CellPosition kC1{0, 2};
inline const std::string a1 = ref(-2, 0);
inline const std::string b1 = ref(-1, 0);
inline const std::string c1 = ref(0, 0);

/// A record of a worksheet file.
inline std::string record(int type, const std::string& body) {
    return int16ToBytes(type) + int16ToBytes(static_cast<int>(body.size())) + body;
}
inline std::string cellHeader(int column, int row, int format = 255) {
    return bytes({format}) + int16ToBytes(column) + int16ToBytes(row);
}
inline std::string integerRecord(int column, int row, int value) {
    return record(13, cellHeader(column, row) + int16ToBytes(value));
}
inline std::string numberRecord(int column, int row, double value) {
    return record(14, cellHeader(column, row) + doubleToBytes(value));
}
inline std::string labelRecord(int column, int row, const std::string& text) {
    return record(15, cellHeader(column, row) + "'" + text + '\0');
}
inline std::string formulaRecord(int column, int row, const std::string& tokens) {
    return record(16, cellHeader(column, row, 241) + std::string(8, '\0') +
                          int16ToBytes(static_cast<int>(tokens.size())) + tokens);
}
inline const std::string startRecord = record(0, bytes({4, 4}));
inline const std::string endRecord = record(1, {});

}  // namespace velmora::test
