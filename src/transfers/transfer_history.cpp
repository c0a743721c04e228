#include "transfers/transfer_history.h"

#include <algorithm>
#include <nlohmann/json.hpp>
#include <string_view>
#include <utility>

#include "base/run_time_error.h"
#include "base/system_text.h"
#include "platform/profile/replace_contents.h"
#include "transfers/transfer_json.h"

namespace velmora {
namespace {

using Json = nlohmann::ordered_json;

constexpr std::chrono::milliseconds kDelay{1'000};

std::optional<EndedTransfer> transferIn(const std::string& line) {
    const Json object = Json::parse(line, nullptr, false);
    return object.is_discarded() ? std::nullopt : endedTransferOf(object);
}

/// Goes to the end, and tells whether a program that was killed left its last line without one.
bool endsAmidALine(File& file) {
    const std::uint64_t size = file.size();
    char last = '\n';
    if (size > 0) {
        file.seek(size - 1);
        file.read(&last, 1);
    }
    file.seek(size);
    return last != '\n';
}

}  // namespace

TransferHistory::TransferHistory(Files& files, const PathRules& rules, std::string path, Timer& timer,
                                 std::function<void(const std::string& why)> complain)
    : files_(files), rules_(rules), path_(std::move(path)), timer_(timer), complain_(std::move(complain)) {
    timer_.setInterval(kDelay);
    timer_.onTick([this] { save(); });
}

TransferHistory::~TransferHistory() {
    save();
    timer_.onTick({});
}

std::vector<EndedTransfer> TransferHistory::load() {
    std::string text;
    try {
        text = files_.fileExists(path_) ? readEnd() : std::string();
    } catch (const RunTimeError& error) {
        complain_(toSystemText(errorText(error.errorNumber())));
    }
    std::vector<EndedTransfer> read;
    for (std::size_t begin = 0; begin < text.size();) {
        const std::size_t end = std::min(text.find('\n', begin), text.size());
        std::string line = text.substr(begin, end - begin);
        begin = end + 1;
        ++written_;
        if (std::optional<EndedTransfer> transfer = transferIn(line)) {
            lines_.push_back(std::move(line));
            read.push_back(std::move(*transfer));
        }
    }
    if (read.size() > kRemembered) {
        const auto surplus = static_cast<std::ptrdiff_t>(read.size() - kRemembered);
        read.erase(read.begin(), read.begin() + surplus);
        lines_.erase(lines_.begin(), lines_.begin() + surplus);
    }
    return read;
}

std::string TransferHistory::readEnd() {
    const std::unique_ptr<File> file = files_.open(path_, OpenMode::Read);
    const std::uint64_t size = file->size();
    const std::uint64_t length = std::min(size, kLongestRead);
    file->seek(size - length);
    std::string text(length, '\0');
    text.resize(file->read(text.data(), length));
    return text;
}

void TransferHistory::transferEnded(const Transfer& transfer, const TransferEnd& end) {
    lines_.push_back(objectOf({transfer, end}).dump(-1, ' ', false, Json::error_handler_t::replace));
    ++waiting_;
    if (lines_.size() > kRemembered) {
        lines_.pop_front();
        waiting_ = std::min(waiting_, lines_.size());
    }
    timer_.setEnabled(true);
}

void TransferHistory::save() {
    timer_.setEnabled(false);
    if (waiting_ == 0) {
        return;
    }
    try {
        files_.createFolder(rules_.parentFolder(path_), FolderRights::OwnerOnly);
        written_ + waiting_ > 2 * kRemembered ? writeAnew() : append();
        waiting_ = 0;
    } catch (const RunTimeError& error) {
        complain_(toSystemText(errorText(error.errorNumber())));
    }
}

void TransferHistory::append() {
    const std::unique_ptr<File> file =
        files_.open(path_, files_.fileExists(path_) ? OpenMode::ReadWrite : OpenMode::CreateNew);
    std::string text = endsAmidALine(*file) ? "\n" : "";
    for (std::size_t i = lines_.size() - waiting_; i < lines_.size(); ++i) {
        text += lines_[i] + '\n';
    }
    file->write(text);
    file->close();
    written_ += waiting_;
}

void TransferHistory::writeAnew() {
    std::string text;
    for (const std::string& line : lines_) {
        text += line + '\n';
    }
    replaceContents(files_, rules_, path_, text);
    written_ = lines_.size();
}

}  // namespace velmora
