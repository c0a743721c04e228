#include "organiser/sheet_client.h"

#include <algorithm>

#include "base/byte_text.h"
#include "base/run_time_error.h"
#include "organiser/conversation.h"

namespace velmora {
namespace {

const std::string kAccepted(1, '\0');
const std::string kEndOfSheet{'\xFE', '\0'};
constexpr char kEndMark = '\xFE';
constexpr char kOrganiserSends = '\x80';

LinkFailure fileFailure(const LinkFailure& failure, int number) {
    return {failure.kind(), failure.reason(),
            "Refused by the server: its file operation failed with error " + std::to_string(number) + ", " +
                errorText(static_cast<ErrorNumber>(number)) + "."};
}

/// The server tells a failed reading of the worksheet as a number in decimal digits.
[[noreturn]] void rethrowImportFailure(const LinkFailure& failure) {
    const std::string& reason = failure.reason();
    const bool digits =
        std::all_of(reason.begin(), reason.end(), [](char c) { return c >= '0' && c <= '9'; });
    if (reason.empty() || reason.size() > 4 || !digits) {
        throw failure;
    }
    throw fileFailure(failure, std::stoi(reason));
}

/// The server tells a failed writing of the worksheet as one byte below its own codes.
[[noreturn]] void rethrowExportFailure(const LinkFailure& failure) {
    constexpr int kLargestErrorNumber = 99;
    if (failure.code() == 0 || failure.code() > kLargestErrorNumber) {
        throw failure;
    }
    throw fileFailure(failure, failure.code());
}

std::string message(const SheetCell& cell) {
    return std::string{static_cast<char>(cell.column), static_cast<char>(cell.row),
                       static_cast<char>(cell.type)} +
           cell.text;
}

SheetCell cellOf(std::string_view message) {
    constexpr std::size_t kPrefix = 3;  // column, row, type
    SheetCell cell;
    if (message.size() >= kPrefix) {
        cell.column = static_cast<unsigned char>(message[0]);
        cell.row = static_cast<unsigned char>(message[1]);
        cell.type = static_cast<unsigned char>(message[2]);
        cell.text = message.substr(kPrefix);
    }
    const bool known = cell.type == SheetCell::kLabel || cell.type == SheetCell::kNumberOrFormula;
    if (message.size() < kPrefix || cell.column >= kSheetColumns || cell.row >= kSheetRows || !known) {
        throw LinkFailure::unexpected("The server sent a cell that is none: " + hexDump(message) + ".");
    }
    return cell;
}

}  // namespace

std::vector<OfferedFormat> decodeFormats(std::string_view menu) {
    std::vector<OfferedFormat> entries;
    while (!menu.empty() && menu.front() != '\0') {
        const std::size_t length = static_cast<unsigned char>(menu.front());
        if (menu.size() < 1 + length + 2) {  // length byte, name, 0, code
            throw LinkFailure::unexpected("The server's list of formats is cut short.");
        }
        entries.push_back(
            {std::string(menu.substr(1, length)), static_cast<unsigned char>(menu[length + 2])});
        menu.remove_prefix(1 + length + 2);
    }
    if (menu.size() != 1) {
        throw LinkFailure::unexpected("The server's list of formats has no end.");
    }
    return entries;
}

std::vector<OfferedFormat> SheetClient::formats() {
    return decodeFormats(openService(link_, "PLANM"));
}

void SheetClient::save(std::string_view name, int format, const std::vector<SheetCell>& cells) {
    openService(link_, "PLAN");
    std::string header(1, static_cast<char>(kOrganiserSends + format));
    requestExpecting(link_, header.append(name), kAccepted);
    try {
        amidTransfer([&] { sendCells(name, cells); });
    } catch (const LinkFailure& failure) {
        rethrowExportFailure(failure);
    }
}

void SheetClient::sendCells(std::string_view name, const std::vector<SheetCell>& cells) {
    int columns = 0;
    int rows = 0;
    for (const SheetCell& cell : cells) {
        columns = std::max(columns, cell.column + 1);
        rows = std::max(rows, cell.row + 1);
    }
    requestExpecting(link_, std::string{static_cast<char>(columns), static_cast<char>(rows)}, kAccepted);
    const ProgressScope scope(progress_, "Saving " + toUtf8(name), cells.size(), "cells");
    std::size_t done = 0;
    for (const SheetCell& cell : cells) {
        requestExpecting(link_, message(cell), kAccepted);
        progress_.advance(++done);
    }
    requestExpecting(link_, std::string(1, kEndMark), kEndOfSheet);
}

std::vector<SheetCell> SheetClient::load(std::string_view name, int format) {
    openService(link_, "PLAN");
    try {
        std::string header(1, static_cast<char>(format));
        requestExpecting(link_, header.append(name), kAccepted);
    } catch (const LinkFailure& failure) {
        rethrowImportFailure(failure);
    }
    const ProgressScope scope(progress_, "Loading " + toUtf8(name), 0, "cells");
    return amidTransfer([&] {
        std::vector<SheetCell> cells;
        for (std::string reply = link_.request(kAccepted); reply != kEndOfSheet;
             reply = link_.request(kAccepted)) {
            cells.push_back(cellOf(reply));
            progress_.advance(cells.size());
        }
        return cells;
    });
}

}  // namespace velmora
