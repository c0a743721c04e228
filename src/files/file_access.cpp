#include "files/file_access.h"

#include <algorithm>
#include <array>
#include <istream>
#include <ostream>

#include "base/byte_text.h"
#include "base/run_time_error.h"
#include "spreadsheet/whole_file.h"

namespace velmora {

std::size_t BytesFile::read(char* buffer, std::size_t count) {
    const std::size_t start = std::min<std::uint64_t>(position_, bytes_.size());
    const std::size_t taken = bytes_.copy(buffer, count, start);
    position_ += taken;
    return taken;
}

void BytesFile::write(std::string_view bytes) {
    const auto start = static_cast<std::size_t>(position_);
    bytes_.resize(std::max(bytes_.size(), start + bytes.size()));
    std::copy(bytes.begin(), bytes.end(), bytes_.begin() + static_cast<std::ptrdiff_t>(start));
    position_ += bytes.size();
}

std::unique_ptr<File> FileAccess::openInput(const std::string& name) const {
    if (name == kStandardStream) {
        std::string bytes;
        std::array<char, 65'536> buffer{};
        while (in_.read(buffer.data(), buffer.size()), in_.gcount() > 0) {
            bytes.append(buffer.data(), static_cast<std::size_t>(in_.gcount()));
        }
        return std::make_unique<BytesFile>(std::move(bytes));
    }
    return files_.open(rules_.absolute(name), OpenMode::Read);
}

std::string FileAccess::readInput(const std::string& name) const {
    return readAll(*openInput(name));
}

std::string FileAccess::readText(const std::string& name, TextEncoding encoding) const {
    return textFromBytes(readInput(name), encoding, tellOfInput(name));
}

void FileAccess::writeOutput(const std::string& name, std::string_view bytes) const {
    if (name != kStandardStream) {
        writeWholeFile(files_, rules_, rules_.absolute(name), bytes);
        return;
    }
    out_.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    if (!out_.flush()) {
        throw RunTimeError(ErrorNumber::DeviceIoError, "standard output");
    }
}

void FileAccess::writeText(const std::string& name, std::string_view windows1252,
                           TextEncoding encoding) const {
    writeOutput(name, bytesFromText(windows1252, encoding, tellOfOutput(name)));
}

Tell FileAccess::tellOfInput(const std::string& name) const {
    return remarks_.about(name == kStandardStream ? "standard input" : name);
}

Tell FileAccess::tellOfOutput(const std::string& name) const {
    return remarks_.about(name == kStandardStream ? "standard output" : name);
}

std::string readAll(File& file) {
    std::string bytes;
    std::array<char, 65'536> buffer{};
    while (const std::size_t got = file.read(buffer.data(), buffer.size())) {
        bytes.append(buffer.data(), got);
    }
    return bytes;
}

std::string lowerExtension(const PathRules& rules, const std::string& name) {
    return lowerCase(rules.extension(name));
}

}  // namespace velmora
