#include "services/boot_file.h"

#include <optional>

#include "base/run_time_error.h"
#include "services/two_byte_number.h"

namespace velmora {
namespace {

constexpr std::size_t kNumberLength = 2;

/// Hands out the parts of a text in order; nothing once a part is not all there.
class Parts {
  public:
    explicit Parts(std::string_view bytes) : rest_(bytes) {}

    std::optional<std::string> take(std::size_t count) {
        if (count > rest_.size()) {
            return std::nullopt;
        }
        std::string part(rest_.substr(0, count));
        rest_.remove_prefix(count);
        return part;
    }
    std::optional<std::uint32_t> takeNumber() {
        const auto bytes = take(kNumberLength);
        return bytes ? std::optional(twoByteNumberAt(*bytes, 0)) : std::nullopt;
    }

  private:
    std::string_view rest_;
};

BootFileProblem readCode(Parts& parts, BootFile& file) {
    const auto length = parts.takeNumber();
    const auto code = length ? parts.take(*length) : std::nullopt;
    const auto check = code ? parts.take(kNumberLength) : std::nullopt;
    if (!check) {
        return BootFileProblem::CodeCutShort;
    }
    file.code = *code;
    file.codeCheck = *check;
    return file.codeCheck == check_Sum(file.code, false) ? BootFileProblem::None
                                                         : BootFileProblem::WrongCodeCheck;
}

BootFileProblem readTable(Parts& parts, BootFile& file) {
    const auto count = parts.takeNumber();
    const auto table = count ? parts.take(*count * kNumberLength) : std::nullopt;
    const auto check = table ? parts.take(kNumberLength) : std::nullopt;
    if (!check) {
        return BootFileProblem::TableCutShort;
    }
    file.relocations = *table;
    file.tableCheck = *check;
    return file.tableCheck == check_Sum(file.relocations, true) ? BootFileProblem::None
                                                                : BootFileProblem::WrongTableCheck;
}

bool liesInside(std::uint32_t offset, std::string_view code) {
    return offset + kNumberLength <= code.size();
}

BootFileProblem checkEntries(const BootFile& file) {
    for (std::size_t i = 0; i < file.relocations.size(); i += kNumberLength) {
        if (!liesInside(twoByteNumberAt(file.relocations, i), file.code)) {
            return BootFileProblem::RelocationOutsideTheCode;
        }
    }
    return BootFileProblem::None;
}

}  // namespace

BootFile readBootFile(std::string_view bytes) {
    BootFile file;
    Parts parts(bytes);
    file.problem = readCode(parts, file);
    if (file.problem == BootFileProblem::None) {
        file.problem = readTable(parts, file);
    }
    if (file.problem == BootFileProblem::None) {
        file.problem = checkEntries(file);
    }
    return file;
}

std::string makeBootFile(std::string_view code, std::string_view relocations) {
    relocations = relocations.substr(0, relocations.size() / kNumberLength * kNumberLength);
    std::string file = twoBytes(code.size());
    file += code;
    file += check_Sum(code, false);
    file += twoBytes(relocations.size() / kNumberLength);
    file += relocations;
    file += check_Sum(relocations, true);
    return file;
}

std::string check_Sum(std::string_view data, bool words) {
    std::uint16_t sum = 0;
    for (std::size_t i = 0; i < data.size(); ++i) {
        const bool high = words && i % 2 == 0;
        const unsigned value = static_cast<unsigned char>(data[i]);
        sum = static_cast<std::uint16_t>(sum + (high ? value * 256 : value));
    }
    return twoBytes(sum);
}

void relocate_Code(std::string& code, std::string_view table, std::uint32_t address) {
    for (std::size_t i = 0; i + kNumberLength <= table.size(); i += kNumberLength) {
        const std::uint32_t offset = twoByteNumberAt(table, i);
        if (!liesInside(offset, code)) {
            throw RunTimeError(ErrorNumber::SubscriptOutOfRange, "relocation at " + std::to_string(offset));
        }
        code.replace(offset, kNumberLength, twoBytes(twoByteNumberAt(code, offset) + address));
    }
}

}  // namespace velmora
