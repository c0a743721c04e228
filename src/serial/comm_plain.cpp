#include "serial/comm_plain.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <limits>
#include <utility>

namespace velmora {

namespace {

constexpr std::size_t kInputQueue = 1024;
constexpr std::size_t kOutputQueue = 1024;
/// Handlers that were made ready by the write (a repaint, a tick) get their turn before the caller goes on.
constexpr int kYieldsAfterWrite = 10;
constexpr std::size_t kMessageLimit = 255;

/// A message as it is kept: bounded, up to the first zero, without the line end that systems append.
std::string tidyMessage(std::string message) {
    message.resize(std::min({message.size(), kMessageLimit, message.find('\0')}));
    const char* const blanks = " \t\r\n";
    message.erase(message.find_last_not_of(blanks) + 1);
    message.erase(0, message.find_first_not_of(blanks));
    return message;
}

std::string hexText(std::uint32_t value) {
    std::array<char, 9> text{};
    std::snprintf(text.data(), text.size(), "%X", value);
    return text.data();
}

CommFunction lineFunction(int line, bool state) {
    switch (line) {
        case 1:
            return state ? CommFunction::SetBreak : CommFunction::ClearBreak;
        case 2:
            return state ? CommFunction::SetDtr : CommFunction::ClearDtr;
        case 3:
            return state ? CommFunction::SetRts : CommFunction::ClearRts;
        default:
            return CommFunction::None;
    }
}

std::int32_t countOf(std::size_t bytes) {
    constexpr std::size_t most = std::numeric_limits<std::int32_t>::max();
    return static_cast<std::int32_t>(std::min(bytes, most));
}

}  // namespace

std::int32_t PlainComm::CommOpen(const std::string& name, const std::string& settings, bool dtrEnable) {
    if (inUse_) {
        record(kFailed, "CommOpen", "Port in use");
        return kFailed;
    }
    if (const SystemError error = device_.open(name)) {
        return fail(error, "CommOpen (CreateFile)");
    }
    inUse_ = true;
    const std::int32_t error = prepare(settings, dtrEnable);
    if (error != kSuccess) {
        device_.close();
    }
    return error;
}

std::int32_t PlainComm::prepare(const std::string& settings, bool dtrEnable) {
    if (const SystemError error = device_.setupQueues(kInputQueue, kOutputQueue)) {
        return fail(error, "CommOpen (SetupComm)");
    }
    if (const SystemError error = device_.purge()) {
        return fail(error, "CommOpen (PurgeComm)");
    }
    if (const SystemError error = device_.setTimeouts(timeouts_)) {
        return fail(error, "CommOpen (SetCommTimeouts)");
    }
    if (const SystemError error = device_.getState()) {
        return fail(error, "CommOpen (GetCommState)");
    }
    if (const SystemError error = device_.buildState(settings)) {
        return fail(error, "CommOpen (BuildCommDCB)");
    }
    device_.setDtrControl(dtrEnable);
    if (const SystemError error = device_.setState()) {
        return fail(error, "CommOpen (SetCommState)");
    }
    return kSuccess;
}

std::int32_t PlainComm::CommSet(const std::string& settings) {
    if (const SystemError error = device_.getState()) {
        return fail(error, "CommSet (GetCommState)");
    }
    if (const SystemError error = device_.buildState(settings)) {
        return fail(error, "CommSet (BuildCommDCB)");
    }
    if (const SystemError error = device_.setState()) {
        return fail(error, "CommSet (SetCommState)");
    }
    return kSuccess;
}

std::int32_t PlainComm::CommClose() {
    if (!inUse_) {
        return kSuccess;
    }
    if (const SystemError error = device_.close()) {
        return fail(error, "CommClose (CloseHandle)");
    }
    inUse_ = false;
    return kSuccess;
}

std::int32_t PlainComm::CommFlush() {
    if (const SystemError error = device_.purge()) {
        return fail(error, "CommFlush (PurgeComm)");
    }
    return kSuccess;
}

std::int32_t PlainComm::CommRead(std::string& text, std::size_t maximum) {
    text.clear();
    yield_.processEvents();

    CommStatus status;
    if (const SystemError error = device_.clearError(status)) {
        return failTransfer(error, "CommRead (ClearCommError)");
    }
    const std::size_t count = std::min({status.inQueue, maximum, kReadBufferSize});
    if (count == 0) {
        return 0;
    }
    std::array<char, kReadBufferSize> buffer;
    std::size_t transferred = 0;
    if (const SystemError error = device_.read(buffer.data(), count, transferred)) {
        if (error != kTransferPending) {
            return failTransfer(error, "CommRead (ReadFile)");
        }
        if (finishPending(error, "CommRead (GetOverlappedResult)", transferred) != kSuccess) {
            return kFailed;
        }
    }
    text.assign(buffer.data(), std::min(transferred, count));
    return countOf(text.size());
}

std::int32_t PlainComm::CommWrite(std::string_view data) {
    std::size_t transferred = 0;
    const SystemError error = device_.write(data, transferred);
    yield_.processEvents();
    if (error == kNoReason) {
        return countOf(transferred);
    }
    if (error != kSuccess) {
        if (error != kTransferPending) {
            return failTransfer(error, "CommWrite (WriteFile)");
        }
        if (finishPending(error, "CommWrite (GetOverlappedResult)", transferred) != kSuccess) {
            return kFailed;
        }
    }
    for (int i = 0; i < kYieldsAfterWrite; ++i) {
        yield_.processEvents();
    }
    return countOf(transferred);
}

std::int32_t PlainComm::finishPending(SystemError error, const char* source, std::size_t& transferred) {
    do {
        error = device_.pendingResult(transferred);
    } while (error == kTransferIncomplete);
    return error == kSuccess ? kSuccess : failTransfer(error, source);
}

std::int32_t PlainComm::CommReadCD(std::uint32_t mask, bool& state) {
    std::uint32_t lines = 0;
    state = false;
    if (const SystemError error = device_.modemStatus(lines)) {
        return fail(error, "CommReadCD (GetCommModemStatus)");
    }
    state = (lines & mask) != 0;
    return kSuccess;
}

std::int32_t PlainComm::CommSetLine(int line, bool state) {
    if (const SystemError error = device_.escapeFunction(lineFunction(line, state))) {
        return fail(error, "CommSetLine (EscapeCommFunction)");
    }
    return kSuccess;
}

std::int32_t PlainComm::InputQueueCount(std::size_t& count) {
    CommStatus status;
    count = 0;
    if (const SystemError error = device_.clearError(status)) {
        return failTransfer(error, "CommRead (InBufferCount)");
    }
    count = status.inQueue;
    return kSuccess;
}

std::string PlainComm::fullErrorDescription() const {
    return "Error (" + std::to_string(lastNumber_) + "): " + lastSource_ + " - " + lastText_;
}

std::int32_t PlainComm::fail(SystemError number, const char* source) {
    record(number, source, tidyMessage(device_.errorMessage(number)));
    return number;
}

/// Failed reads and writes also tell the line errors that the driver saw.
std::int32_t PlainComm::failTransfer(SystemError number, const char* source) {
    CommStatus status;
    device_.clearError(status);
    record(number, source,
           tidyMessage(device_.errorMessage(number)) + "  COMM Error Flags = " + hexText(status.errorFlags));
    return kFailed;
}

void PlainComm::record(std::int32_t number, const char* source, std::string text) {
    lastNumber_ = number;
    lastSource_ = source;
    lastText_ = std::move(text);
}

}  // namespace velmora
