// A serial device whose every call a test can script, and which records the calls.
#pragma once

#include <algorithm>
#include <map>
#include <string>
#include <vector>

#include "serial/comm_device.h"

namespace velmora::test {

/// Calls are recorded in `calls` by name. `errors[name]` is what the call of that name answers, 0 if unset.
class FakeCommDevice : public CommDevice {
  public:
    SystemError open(const std::string& name) override {
        openedName = name;
        const SystemError error = answer("open");
        isOpen = error == kSuccess;
        return error;
    }
    SystemError setupQueues(std::size_t inputSize, std::size_t outputSize) override {
        inputQueue = inputSize;
        outputQueue = outputSize;
        return answer("setupQueues");
    }
    SystemError purge() override { return answer("purge"); }
    SystemError setTimeouts(const CommTimeouts& values) override {
        timeouts = values;
        return answer("setTimeouts");
    }
    SystemError getState() override { return answer("getState"); }
    SystemError buildState(const std::string& text) override {
        settings = text;
        return answer("buildState");
    }
    void setDtrControl(bool enable) override {
        calls.push_back(enable ? "setDtrControl on" : "setDtrControl off");
    }
    SystemError setState() override { return answer("setState"); }
    SystemError close() override {
        const SystemError error = answer("close");
        isOpen = false;
        return error;
    }
    SystemError clearError(CommStatus& status) override {
        status = CommStatus{input.size(), errorFlags};
        return isOpen ? answer("clearError") : kBadHandle;
    }
    SystemError read(char* buffer, std::size_t count, std::size_t& transferred) override {
        lastReadCount = count;
        transferred = 0;
        const SystemError error = answer("read");
        if (error == kSuccess) {
            transferred = take(buffer, count);
        }
        pendingBuffer = buffer;
        return error;
    }
    SystemError write(std::string_view data, std::size_t& transferred) override {
        const SystemError error = answer("write");
        transferred = error == kSuccess ? data.size() : error == kNoReason ? writtenWithoutReason : 0;
        sent += data;
        pendingBuffer = nullptr;
        pendingWrite = data.size();
        return error;
    }
    SystemError pendingResult(std::size_t& transferred) override {
        calls.push_back("pendingResult");
        const SystemError error = pendingResults.empty() ? kSuccess : pendingResults.front();
        if (!pendingResults.empty()) {
            pendingResults.erase(pendingResults.begin());
        }
        transferred = 0;
        if (error == kSuccess) {
            transferred = pendingBuffer ? take(pendingBuffer, lastReadCount) : pendingWrite;
        }
        return error;
    }
    SystemError modemStatus(std::uint32_t& lines) override {
        lines = modemLines;
        return answer("modemStatus");
    }
    SystemError escapeFunction(CommFunction function) override {
        escapes.push_back(static_cast<int>(function));
        return answer("escapeFunction");
    }
    std::string errorMessage(SystemError number) const override {
        return message.empty() ? "message " + std::to_string(number) : message;
    }
    std::intptr_t handle() const override { return isOpen ? kOpenHandle : kNoHandle; }

    bool called(const std::string& name) const {
        return std::find(calls.begin(), calls.end(), name) != calls.end();
    }

    static constexpr std::intptr_t kOpenHandle = 42;
    static constexpr SystemError kBadHandle = 6;

    std::map<std::string, SystemError> errors;
    std::vector<std::string> calls;
    std::vector<SystemError> pendingResults;  ///< answers of pendingResult, in turn
    std::string openedName;
    std::string settings;
    std::string input;  ///< bytes that wait
    std::string sent;
    std::string message;
    std::vector<int> escapes;
    CommTimeouts timeouts{};
    std::size_t inputQueue = 0;
    std::size_t outputQueue = 0;
    std::size_t lastReadCount = 0;
    std::size_t writtenWithoutReason = 0;  ///< what a write that fails with kNoReason has written
    std::uint32_t errorFlags = 0;
    std::uint32_t modemLines = 0;
    bool isOpen = false;

  private:
    SystemError answer(const std::string& name) {
        calls.push_back(name);
        const auto found = errors.find(name);
        return found == errors.end() ? kSuccess : found->second;
    }
    std::size_t take(char* buffer, std::size_t count) {
        const std::size_t taken = input.copy(buffer, count);
        input.erase(0, taken);
        return taken;
    }

    char* pendingBuffer = nullptr;  // of a read; none when a write was the last transfer
    std::size_t pendingWrite = 0;
};

}  // namespace velmora::test
