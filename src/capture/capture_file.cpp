#include "capture/capture_file.h"

#include <utility>

#include "base/run_time_error.h"
#include "capture/pcapng_reader.h"
#include "capture/pcapng_writer.h"

namespace velmora {
namespace {

/// Refuses a file that is none of ours to write over.
void requireCapture(Files& files, const std::string& path) {
    if (!files.fileExists(path) || files.fileSize(path) == 0) {
        return;
    }
    constexpr std::size_t kLongestSection = 1024;
    std::string start(kLongestSection, '\0');
    start.resize(files.open(path, OpenMode::Read)->read(start.data(), start.size()));
    try {
        readPcapng(start);
    } catch (const CaptureError&) {
        throw RunTimeError(ErrorNumber::FileAlreadyExists, path);
    }
}

}  // namespace

CaptureFile::CaptureFile(Files& files, CaptureRequest request, std::function<void(const std::string&)> tell)
    : files_(files), request_(std::move(request)), tell_(std::move(tell)) {
    requireCapture(files_, request_.path);
    begin();
    file_->write(std::exchange(due_, {}));
}

void CaptureFile::begin() {
    file_ = files_.open(request_.path, OpenMode::Create);
    firstTime_.reset();
    due_ = pcapngSection(request_.masked);
    if (!ports_.empty()) {
        ports_ = {ports_.back()};
        due_ += pcapngPort(ports_.back());
    }
}

void CaptureFile::addPort(const CapturedPort& port) {
    ports_.push_back(port);
    due_ += pcapngPort(port);
    mask_.clear();
}

void CaptureFile::addPacket(const CapturedPacket& packet) {
    CapturedPacket shown = packet;
    if (request_.masked) {
        mask_.mask(shown);
    }
    try {
        write(shown);
    } catch (const RunTimeError& error) {
        if (missing_++ == 0) {
            tell_(std::string("The capture cannot grow: ") + error.what() +
                  ". What passes meanwhile is missing in it.");
        }
    }
}

void CaptureFile::write(const CapturedPacket& packet) {
    if (file_ && isFull(packet)) {
        file_.reset();
        toMoveAway_ = true;
    }
    if (toMoveAway_) {
        files_.replaceFile(request_.path, earlierCapturePath(request_.path));
        toMoveAway_ = false;
    }
    if (!file_) {
        begin();
    }
    file_->write(due_ + gap(packet) + pcapngPacket(ports_.size() - 1, packet));
    due_.clear();
    if (!firstTime_) {
        firstTime_ = packet.time;
    }
    if (missing_ > 0) {
        missing_ = 0;
        tell_("The capture grows again.");
    }
}

/// Whether a packet belongs into a new part.
bool CaptureFile::isFull(const CapturedPacket& packet) const {
    if (!firstTime_) {
        return false;
    }
    const auto& [bytes, time] = request_.limit;
    return (bytes && file_->size() + due_.size() + pcapngPacket(0, packet).size() > *bytes / 2) ||
           (time && packet.time - *firstTime_ > *time / 2);
}

/// The packet that tells of those that are missing before another one.
std::string CaptureFile::gap(const CapturedPacket& packet) const {
    if (missing_ == 0) {
        return {};
    }
    CapturedPacket note;
    note.time = packet.time;
    note.comments = {"packets are missing here: " + std::to_string(missing_)};
    return pcapngPacket(ports_.size() - 1, note);
}

std::string earlierCapturePath(const std::string& path) {
    const std::size_t name = path.find_last_of("/\\") + 1;  // 0 when there is no folder
    const std::size_t dot = path.rfind('.');
    const std::size_t end = dot == std::string::npos || dot <= name ? path.size() : dot;
    return path.substr(0, end) + ".earlier" + path.substr(end);
}

}  // namespace velmora
