#include "services/file_requests.h"

#include <optional>
#include <utility>

#include "base/run_time_error.h"
#include "services/running_server.h"

namespace velmora {
namespace {

/// The first byte of a request.
enum class Operation : std::uint8_t { Open = 0, Close = 1, Write = 2, Read = 3, Seek = 4 };

}  // namespace

void FileRequests::handle(std::int32_t& code, std::string& payload) {
    ended_ = code == PLP_EV_RESET;
    if (code == kServiceOpened) {
        closeFile();
        begin();
        reply({});
    } else if (code == PLP_EV_DATA) {
        if (payload.empty()) {
            refuse(kCodeInvalidRequest);
        } else {
            request(static_cast<std::uint8_t>(payload[0]), std::string_view(payload).substr(1));
        }
    }
    if (ended_) {
        closeFile();
        code = PLP_EV_RESET;
    }
}

void FileRequests::request(std::uint8_t operation, std::string_view argument) {
    switch (Operation{operation}) {
        case Operation::Open:
            open(argument);
            break;
        case Operation::Close:
            close();
            break;
        case Operation::Write:
            write(argument);
            break;
        case Operation::Read:
            read(argument);
            break;
        case Operation::Seek:
            seek(argument);
            break;
        default:
            refuse(kCodeInvalidRequest);
    }
}

bool FileRequests::reply(std::string_view data) {
    return sender_.PLP_Send(FrameType::Data, data);
}

void FileRequests::refuse(int code) {
    sender_.PLP_Send(FrameType::Discon, codePayload(code));
    if (code == kCodeEndOfFile && transfers_.underWay()) {
        transfers_.complete();
    } else {
        transfers_.refuse(code, reasonOf(code));
    }
    end();
}

void FileRequests::replyOpened(std::string_view header, ServerState state, const std::string& path) {
    std::optional<std::uint64_t> size = bytesLeft();
    if (size) {
        *size += header.size();
    }
    if (reply(header) && setStateWhileRunning(window_, state)) {
        window_.setCurrentFile(path);
    }
    transfers_.keepsCopy(file_.earlierCopy());
    transfers_.begin(size);
    transfers_.moved(header.size());
}

void FileRequests::closeFile() {
    if (file_.isOpen()) {
        window_.setCurrentFile({});
    }
    file_.close();
    transfers_.leave();
}

std::optional<std::uint64_t> FileRequests::bytesLeft() const {
    if (file_.status() != kOpenForReading) {
        return std::nullopt;
    }
    try {
        return file_.size() - file_.position();
    } catch (const RunTimeError&) {
        return std::nullopt;  // the file is read as far as it goes
    }
}

bool FileRequests::saveAndReply() {
    if (const ServiceCode failure = file_.save(); failure != kCodeNone) {
        refuse(failure);
        return false;
    }
    reply({});
    transfers_.complete();
    return true;
}

bool FileRequests::writeAndReply(std::string_view record) {
    const ServiceCode failure =
        file_.status() == kOpenForWriting ? file_.writeRecord(record) : kCodeNotPossible;
    if (failure != kCodeNone) {
        refuse(failure);
        return false;
    }
    reply({});
    transfers_.moved(countOf(record));
    return true;
}

ServiceCode FileRequests::readAndReply(std::string_view argument) {
    std::string record;
    const ServiceCode refusal = readRecord(argument, record);
    if (refusal == kCodeNone) {
        reply(record);
        transfers_.moved(countOf(record));
    } else {
        refuse(refusal);
    }
    return refusal;
}

ServiceCode FileRequests::readRecord(std::string_view argument, std::string& record) {
    if (argument.empty()) {
        return kCodeInvalidRequest;
    }
    if (file_.status() != kOpenForReading) {
        return kCodeNotPossible;
    }
    if (file_.atEnd()) {
        return kCodeEndOfFile;
    }
    std::optional<std::string> block = file_.readBlock(static_cast<std::size_t>(byteAt(argument, 0)));
    if (!block) {
        return kCodeRecordTooLong;
    }
    record = std::move(*block);
    return kCodeNone;
}

}  // namespace velmora
