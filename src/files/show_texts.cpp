#include "files/show_texts.h"

#include <algorithm>
#include <iomanip>
#include <limits>
#include <ostream>

#include "base/byte_text.h"
#include "base/system_text.h"
#include "files/file_access.h"
#include "services/block_file.h"
#include "services/line_reader.h"
#include "services/procedure_image.h"
#include "services/two_byte_number.h"
#include "spreadsheet/text_writer.h"

namespace velmora {
namespace {

std::string shownCell(const Cell& cell) {
    const std::string text = cellText(cell);
    return std::holds_alternative<Formula>(cell) ? "=" + text : text;
}

/// Padding goes by characters, one for each byte of the text.
void printPadded(const std::string& text, std::size_t width, bool right, std::ostream& out) {
    const std::string padding(width - text.size(), ' ');
    out << (right ? padding : "") << printable(text) << (right ? "" : padding);
}

std::string dotted(std::string_view record) {
    std::string text;
    for (std::size_t tab = record.find('\t'); tab != std::string_view::npos; tab = record.find('\t')) {
        text += printable(record.substr(0, tab)) + " | ";
        record.remove_prefix(tab + 1);
    }
    return text + printable(record);
}

}  // namespace

std::string printable(std::string_view windows1252) {
    std::string text(windows1252);
    for (char& c : text) {
        const auto byte = static_cast<unsigned char>(c);
        c = byte < 32 || byte == 127 ? '.' : c;
    }
    return toSystemText(text);
}

void printSheet(const SheetGrid& sheet, std::ostream& out) {
    out << "Worksheet, " << sheet.rows() << " rows, " << sheet.columns() << " columns\n";
    if (!sheet.exists()) {
        return;
    }
    std::vector<std::size_t> widths(static_cast<std::size_t>(sheet.columns()), 1);
    for (int row = 0; row < sheet.rows(); ++row) {
        for (int column = 0; column < sheet.columns(); ++column) {
            std::size_t& width = widths[static_cast<std::size_t>(column)];
            width = std::max(width, shownCell(sheet.at({row, column})).size());
        }
    }
    const std::size_t numberWidth = std::to_string(sheet.rows()).size();
    out << std::string(numberWidth, ' ');
    for (int column = 0; column < sheet.columns(); ++column) {
        out << "  ";
        printPadded(std::string(1, static_cast<char>('A' + column)), widths[static_cast<std::size_t>(column)],
                    false, out);
    }
    out << "\n";
    for (int row = 0; row < sheet.rows(); ++row) {
        out << std::setw(static_cast<int>(numberWidth)) << row + 1;
        for (int column = 0; column < sheet.columns(); ++column) {
            const Cell& cell = sheet.at({row, column});
            out << "  ";
            printPadded(shownCell(cell), widths[static_cast<std::size_t>(column)], isNumber(cell), out);
        }
        out << "\n";
    }
}

void printRecords(const std::vector<std::string>& records, std::ostream& out) {
    out << "Data file, " << records.size() << " records\n";
    const int width = static_cast<int>(std::to_string(records.size()).size());
    std::size_t number = 0;
    for (const std::string& record : records) {
        out << std::setw(width) << ++number << "  " << dotted(record) << "\n";
    }
}

bool printBlockFile(std::string_view bytes, std::ostream& out) {
    constexpr std::size_t kShown = 64;
    if (bytes.size() < kImageHeaderLength) {
        out << "Block file, cut short in its header: " << bytes.size() << " bytes\n";
        return false;
    }
    const std::uint32_t length = twoByteNumberAt(bytes, kImageMark);
    const int type = static_cast<unsigned char>(bytes[kImageHeaderLength - 1]) - 128;
    const std::string_view data = bytes.substr(kImageHeaderLength);
    out << "Block file of type " << type << "\n"
        << "Header:  " << hexDump(bytes.substr(0, kImageHeaderLength)) << "\n"
        << "Length:  " << length << " bytes\n"
        << "Data:    " << hexDump(data.substr(0, kShown)) << (data.size() > kShown ? " ..." : "") << "\n";
    const bool fits = type >= 1 && blockHeaderFits(bytes.substr(kImageMark, 3), type, bytes.size());
    if (!fits) {
        out << "Problem: " << data.size() << " bytes of data follow the header, or the type is none\n";
    }
    return fits;
}

void printProcedure(const std::string& text, std::ostream& out) {
    BytesFile source(text);
    BytesFile image;
    buildProcedureImage(source, image);
    const std::string_view header = std::string_view(image.bytes()).substr(0, kProcedureHeaderLength);
    out << "Procedure, " << twoByteNumberAt(header, kProcedureHeaderLength - 2) << " bytes of source\n"
        << "Header: " << hexDump(header) << "\n";
    source.seek(0);
    LineReader reader(source);
    std::string line;
    while (!reader.atEnd()) {
        reader.readLine(line, std::numeric_limits<std::size_t>::max());
        out << "  " << printable(line) << "\n";
    }
}

}  // namespace velmora
