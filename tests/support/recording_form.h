// A main window for start-up tests: it remembers what start-up did with it.
#pragma once

#include <cstddef>
#include <functional>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "startup/startup_form.h"
#include "support/scripted_port.h"

namespace velmora::test {

class RecordingForm : public StartupForm {
  public:
    void load() override { did("load"); }
    void unload() override { did("unload"); }
    void show() override { did("show"); }
    void applyAutoStart() override { did("applyAutoStart"); }
    void setVersionTexts(const std::string& version, const std::string& build) override {
        did("setVersionTexts");
        versionTexts = version + "|" + build;
    }
    void setDebugMode(bool on) override { debugMode = on; }
    void loadWindowPos() override { did("loadWindowPos"); }
    ServerOptions& options() override { return serverOptions; }
    SerialPort& port() override { return scriptedPort; }
    void setPortDevices(const PortDevices& devices) override { portDevices = devices; }
    int portNumber(const std::string& nameOrDevice) override { return portNumbers[nameOrDevice]; }
    void checkPort(std::int16_t port, std::int16_t flags, std::int32_t& status) override {
        scriptedPort.setCommPort(port);
        checked.push_back(port);
        checkFlags = flags;
        status = port == freePort ? 1 : 5;
    }
    void ShowClear() override { did("ShowClear"); }
    void ShowWarning(const std::string& text2, const std::string& text3) override {
        warnings.emplace_back(text2, text3);
    }
    bool ended() const override { return checked.size() >= endsAfterChecks; }
    std::int32_t state() const override { return current; }
    void setState(std::int32_t newState) override {
        did("setState");
        current = newState;
    }

    std::vector<std::string> calls;
    std::function<void(const std::string& call)> onCall;  ///< may throw, as the real window's calls may
    ServerOptions serverOptions;
    ScriptedPort scriptedPort;
    PortDevices portDevices;
    std::map<std::string, int> portNumbers;
    std::vector<std::int16_t> checked;
    std::int16_t checkFlags = -1;
    std::int16_t freePort = 0;
    std::size_t endsAfterChecks = 1000;  ///< how many ports are tested before the program is told to end
    std::vector<std::pair<std::string, std::string>> warnings;
    std::string versionTexts;
    bool debugMode = false;
    std::int32_t current = 0;

  private:
    void did(const std::string& call) {
        calls.push_back(call);
        if (onCall) {
            onCall(call);
        }
    }
};

}  // namespace velmora::test
