#include "services/boot_service.h"

#include <algorithm>
#include <memory>
#include <utility>

#include "base/byte_text.h"
#include "services/boot_file.h"
#include "services/named_transfer.h"
#include "services/running_server.h"
#include "services/service_codes.h"
#include "services/two_byte_number.h"

namespace velmora {
namespace {

constexpr std::size_t kChunk = 200;

/// As much of the file as a boot file can be.
std::string readStart(Files& files, const std::string& path) {
    const std::unique_ptr<File> file = files.open(path, OpenMode::Read);
    std::string bytes(static_cast<std::size_t>(std::min<std::uint64_t>(file->size(), kLargestBootFile)),
                      '\0');
    bytes.resize(file->read(bytes.data(), bytes.size()));
    return bytes;
}

}  // namespace

void BootService::handle(std::int32_t& code, std::string& payload) {
    ended_ = code == PLP_EV_RESET;
    if (code == kServiceOpened) {
        state_ = State::AwaitName;
        sender_.PLP_Send(FrameType::Data, {});
    } else if (code == PLP_EV_DATA) {
        takeMessage(payload);
    }
    if (ended_) {
        state_ = State::Idle;
        code_.clear();
        relocations_.clear();
        window_.setCurrentFile({});
        transfers_.leave();
        code = PLP_EV_RESET;
    }
}

void BootService::takeMessage(std::string_view payload) {
    switch (state_) {
        case State::Idle:
            finish(kCodeInvalidRequest);
            break;
        case State::AwaitName:
            loadFile(payload);
            break;
        case State::AwaitAddress:
            relocate(payload);
            break;
        case State::Sending:
            sendChunk();
            break;
    }
}

void BootService::loadFile(std::string_view name) {
    addToStats(window_, StatsBytesReceived, name.size());
    const std::string fileName = trimBlanks(name) + ".bin";
    const std::string path = names_.map_FileName(fileName, true, false);
    transfers_.ask(namedTransfer(names_, fileName, path, TransferDirection::Load, TransferKind::Boot));
    if (path.empty() || !files_.fileExists(path)) {
        finish(kCodeFileNotFound);
        return;
    }
    setStateWhileRunning(window_, ServiceBusy);
    window_.setCurrentFile(path);
    BootFile file = readBootFile(readStart(files_, path));
    if (file.problem != BootFileProblem::None) {
        finish(kCodeNotPossible);
        return;
    }
    code_ = std::move(file.code);
    relocations_ = std::move(file.relocations);
    transfers_.begin(code_.size());
    sender_.PLP_Send(FrameType::Data, twoBytes(code_.size()));
    state_ = State::AwaitAddress;
}

void BootService::relocate(std::string_view payload) {
    if (payload.size() < 2) {
        finish(kCodeInvalidRequest);
        return;
    }
    address_ = twoByteNumberAt(payload, 0);
    relocate_Code(code_, relocations_, address_);
    state_ = State::Sending;
    sendChunk();
}

void BootService::sendChunk() {
    if (code_.empty()) {
        finish(kCodeNone);
        return;
    }
    const std::string chunk = code_.substr(0, kChunk);
    sender_.PLP_Send(FrameType::Data, twoBytes(address_) + chunk);
    window_.SetStats(StatsBytesSent, static_cast<std::int16_t>(chunk.size()));
    transfers_.moved(chunk.size());
    code_.erase(0, chunk.size());
    address_ += chunk.size();
}

void BootService::finish(int reason) {
    sender_.PLP_Send(FrameType::Discon, reason == kCodeNone ? std::string() : codePayload(reason));
    if (reason == kCodeNone) {
        transfers_.complete();
    } else {
        transfers_.refuse(reason, reasonOf(reason));
    }
    ended_ = true;
}

}  // namespace velmora
