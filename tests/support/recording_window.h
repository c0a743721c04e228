// A server window that only remembers what it was told.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "link/server_window.h"

namespace velmora::test {

class RecordingWindow : public ServerWindow {
  public:
    std::int32_t state() const override { return current; }
    void setState(std::int32_t newState) override {
        states.push_back(newState);
        if (newState != -1) {
            current = newState;
        }
    }
    void setCurrentFile(const std::string& path) override {
        files.push_back(path);
        currentFile = path;
    }
    const std::string& CurrentFile() const override { return currentFile; }
    void setErrorMsg(const std::string& text) override { errors.push_back(text); }
    void Display(const std::string& line1, const std::string& line2) override {
        displays.emplace_back(line1, line2);
    }
    void ShowWarning(const std::string& text2, const std::string& text3) override {
        warnings.emplace_back(text2, text3);
    }
    void ShowLineDown() override { ++lineDowns; }
    void Report(const std::string& line) override { reports.push_back(line); }
    void SetStats(std::int32_t which, std::int16_t amount) override {
        if (which >= 1 && which <= 4) {
            stats[which] += amount;
        }
    }

    std::int32_t current = 5;
    std::vector<std::int32_t> states;  ///< every state set, -1 included
    std::vector<std::string> files;
    std::string currentFile;
    std::vector<std::string> errors;
    std::vector<std::pair<std::string, std::string>> displays;
    std::vector<std::pair<std::string, std::string>> warnings;
    std::vector<std::string> reports;
    int lineDowns = 0;
    long stats[5] = {};
};

}  // namespace velmora::test
