#include "organiser/ftran_client.h"

#include <algorithm>

#include "base/byte_text.h"
#include "organiser/conversation.h"

namespace velmora {
namespace {

std::size_t word(std::string_view bytes, std::size_t at) {
    return static_cast<unsigned char>(bytes[at]) * 256U + static_cast<unsigned char>(bytes[at + 1]);
}

std::string title(std::string_view verb, std::string_view name) {
    return std::string(verb) + " " + toUtf8(name);
}

/// The type byte of a file image is the file type with its top bit set.
void requireHeader(std::string_view header, std::size_t length, int type) {
    if (header.size() != length || static_cast<unsigned char>(header[2]) != 128 + type) {
        throw LinkFailure::unexpected("The server announced the file with a header that is none.");
    }
}

}  // namespace

std::string FtranClient::open(std::string_view name, FileMode mode, int type) {
    written_ = {};
    openService(link_, "FTRAN");
    std::string reply = link_.request(openRequest(mode, type, name));
    written_.opened = true;
    return reply;
}

void FtranClient::save(std::string_view name, FileMode mode, int type,
                       const std::vector<std::string>& messages, std::string_view unit) {
    open(name, mode, type);
    writeAndClose(link_, progress_, title("Saving", name), messages, unit, written_);
}

void FtranClient::saveRecords(std::string_view name, FileMode mode, const std::vector<std::string>& records) {
    save(name, mode, kDataFile, records, "records");
}

void FtranClient::saveProcedure(std::string_view name, FileMode mode, const std::vector<std::string>& lines) {
    std::string source;
    for (const std::string& line : lines) {
        source.append(line) += '\0';
    }
    save(name, mode, kProcedure, inChunks(source), "messages");
}

void FtranClient::saveBlock(std::string_view name, FileMode mode, int type, std::string_view bytes) {
    save(name, mode, type, inChunks(bytes), "messages");
}

std::vector<std::string> FtranClient::loadRecords(std::string_view name) {
    open(name, FileMode::Read, kDataFile);
    return readToEnd(link_, progress_, title("Loading", name), kMostData, "records");
}

/// Reads as many bytes as were announced and closes the file.
std::string FtranClient::readBytes(std::string_view name, std::size_t length) {
    const ProgressScope scope(progress_, title("Loading", name), length, "bytes");
    return amidTransfer([&] {
        std::string bytes;
        while (bytes.size() < length) {
            const std::string block = link_.request(readRequest(kMostData));
            if (block.empty() || block.size() > length - bytes.size()) {
                throw LinkFailure::unexpected("The file has another length than the server announced.");
            }
            bytes += block;
            progress_.advance(bytes.size());
        }
        requestExpecting(link_, std::string(1, kClose), "");
        return bytes;
    });
}

std::vector<std::string> FtranClient::loadProcedure(std::string_view name) {
    // Length, type, length of the object code (none), length of the source.
    const std::string header = open(name, FileMode::Read, kProcedure);
    requireHeader(header, 2 + 1 + 2 + 2, kProcedure);
    const std::string source = readBytes(name, word(header, 5));
    std::vector<std::string> lines;
    for (std::size_t begin = 0; begin < source.size();) {
        const std::size_t end = std::min(source.find('\0', begin), source.size());
        lines.push_back(source.substr(begin, end - begin));
        begin = end + 1;
    }
    return lines;
}

std::string FtranClient::loadBlock(std::string_view name, int type) {
    const std::string header = open(name, FileMode::Read, type);
    requireHeader(header, 2 + 1, type);
    return readBytes(name, word(header, 0));
}

}  // namespace velmora
