// A serial port that a test plays the other end of.
#pragma once

#include <algorithm>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "serial/serial_port.h"

namespace velmora::test {

/// Bytes put into `input` wait to be read; what is sent is collected in `sent`, one entry a call. Failures
/// are scripted by setting the optional errors, which are thrown until they are reset.
class ScriptedPort : public SerialPort {
  public:
    bool OpenPort() override {
        if (openError) {
            throw CommError(*openError);
        }
        if (open) {
            throw CommError(kCommAlreadyOpen, "Port already open", "OpenPort");
        }
        ++opened;
        open = true;
        return true;
    }
    bool ClosePort() override {
        closed += open ? 1 : 0;
        open = false;
        return true;
    }
    bool Send(std::string_view data) override {
        requireOpen();
        if (sendError) {
            ++refusedSends;
            throw CommError(*sendError);
        }
        sent.emplace_back(data);
        if (onSend) {
            onSend(sent.back());
        }
        return true;
    }
    bool GetInput(std::size_t maximum, std::string& text) override {
        requireOpen();
        text.clear();
        if (readError) {
            throw CommError(*readError);
        }
        if (emptyReads > 0) {
            --emptyReads;
            return true;
        }
        text = input.substr(0, maximum);
        input.erase(0, text.size());
        return true;
    }
    std::int16_t CommPort() const override { return number; }
    void setCommPort(std::int16_t value) override { number = value; }
    const std::string& Settings() const override { return settings; }
    void setSettings(const std::string& value) override {
        if (open) {
            throw CommError(kCommSettingsWhileOpen, "Port already open", "Settings");
        }
        settings = value;
    }
    bool PortOpen() const override { return open; }
    void setPortOpen(bool value) override { value ? OpenPort() : ClosePort(); }
    std::int16_t InBufferCount() override {
        requireOpen();
        ++looks;
        if (countError) {
            throw CommError(*countError);
        }
        return static_cast<std::int16_t>(std::min<std::size_t>(input.size(), 32'767));
    }
    bool DTREnable() const override { return dtr; }
    void setDTREnable(bool value) override { dtr = value; }
    bool RTSEnable() const override { return rts; }
    void setRTSEnable(bool value) override { rts = value; }

    std::string input;
    std::vector<std::string> sent;
    std::function<void(const std::string&)> onSend;
    std::optional<CommError> openError;
    std::optional<CommError> sendError;
    std::optional<CommError> readError;
    std::optional<CommError> countError;
    int looks = 0;  ///< at how many bytes wait
    int refusedSends = 0;
    int emptyReads = 0;  ///< reads that come back empty although bytes wait
    int opened = 0;
    int closed = 0;
    std::int16_t number = 1;
    std::string settings = "9600,N,8,1";
    bool open = false;
    bool dtr = false;
    bool rts = false;

  private:
    void requireOpen() const {
        if (!open) {
            throw CommError(kCommNotOpen, "Port not open", "ScriptedPort");
        }
    }
};

}  // namespace velmora::test
