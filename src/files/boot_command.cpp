#include "files/boot_command.h"

#include <charconv>
#include <cstdint>
#include <iomanip>
#include <ostream>
#include <sstream>

#include "arguments/usage_error.h"
#include "services/boot_file.h"
#include "services/two_byte_number.h"

namespace velmora {
namespace {

std::uint32_t parseOffset(const std::string& text) {
    const bool hexadecimal = text.size() > 2 && (text.substr(0, 2) == "0x" || text.substr(0, 2) == "0X");
    const std::string_view digits = std::string_view(text).substr(hexadecimal ? 2 : 0);
    std::uint32_t value = 0;
    const auto [end, error] =
        std::from_chars(digits.data(), digits.data() + digits.size(), value, hexadecimal ? 16 : 10);
    if (error != std::errc() || end != digits.data() + digits.size() || value > kLargestTwoByteNumber) {
        throw UsageError("\"" + text + "\" is no offset: a number from 0 to 65535, or 0x0 to 0xFFFF");
    }
    return value;
}

/// The relocation table for offsets separated by commas, blanks or line ends. Each must name a word that lies
/// wholly in the code.
std::string parseRelocations(const std::string& text, std::size_t codeLength) {
    std::string table;
    std::string offset;
    const auto finish = [&] {
        if (offset.empty()) {
            return;
        }
        const std::uint32_t value = parseOffset(offset);
        if (value + 2 > codeLength) {
            throw UsageError("the word at offset " + offset + " lies outside the code of " +
                             std::to_string(codeLength) + " bytes");
        }
        table += twoBytes(value);
        offset.clear();
    };
    for (const char c : text) {
        if (std::string_view(", \t\r\n").find(c) != std::string_view::npos) {
            finish();
        } else {
            offset += c;
        }
    }
    finish();
    return table;
}

std::string hexNumber(std::string_view bytes) {
    std::ostringstream text;
    text << "0x" << std::uppercase << std::hex << std::setw(4) << std::setfill('0')
         << twoByteNumberAt(bytes, 0);
    return text.str();
}

const char* problemText(BootFileProblem problem) {
    switch (problem) {
        case BootFileProblem::None:
            return "none";
        case BootFileProblem::CodeCutShort:
            return "the file ends before the code check does";
        case BootFileProblem::WrongCodeCheck:
            return "the code check is not the sum of the code";
        case BootFileProblem::TableCutShort:
            return "the file ends before the table check does";
        case BootFileProblem::WrongTableCheck:
            return "the table check is not the sum of the table";
        case BootFileProblem::RelocationOutsideTheCode:
            return "an entry of the table names a word that is not wholly in the code";
    }
    return "unknown";  // unreachable: every problem is above
}

}  // namespace

bool describeBootFile(std::string_view bytes, std::ostream& out) {
    const BootFile file = readBootFile(bytes);
    out << "Boot file, " << bytes.size() << " bytes\n";
    if (!file.codeCheck.empty()) {
        out << "Code:        " << file.code.size() << " bytes, sum " << hexNumber(check_Sum(file.code, false))
            << ", check " << hexNumber(file.codeCheck) << "\n";
    }
    if (!file.tableCheck.empty()) {
        out << "Relocations: " << file.relocations.size() / 2 << ", sum "
            << hexNumber(check_Sum(file.relocations, true)) << ", check " << hexNumber(file.tableCheck)
            << "\n";
        for (std::size_t i = 0; i + 1 < file.relocations.size(); i += 2) {
            const std::uint32_t offset = twoByteNumberAt(file.relocations, i);
            out << "  " << hexNumber(std::string_view(file.relocations).substr(i)) << ": ";
            out << (offset + 2 <= file.code.size()
                        ? "word " + hexNumber(std::string_view(file.code).substr(offset))
                        : std::string("outside the code"))
                << "\n";
        }
    }
    out << "Problem:     " << problemText(file.problem) << "\n";
    return file.problem == BootFileProblem::None;
}

void runBootMakeCommand(const BootMakeRequest& request, const FileAccess& access) {
    const std::string code = access.readInput(request.code);
    std::string offsets = request.relocations;
    if (!offsets.empty() && offsets.front() == '@') {
        offsets = withoutMark(access.readInput(offsets.substr(1)));
    }
    access.writeOutput(request.out, makeBootFile(code, parseRelocations(offsets, code.size())));
}

bool runBootCheckCommand(const std::string& name, const FileAccess& access) {
    return describeBootFile(access.readInput(name), access.out());
}

}  // namespace velmora
