// A section of the system profile "win.ini" that is gone after the test.
#pragma once

#include <windows.h>

#include <string>

namespace velmora::test {

/// Deletes the section on destruction, as far as Windows lets it.
class WinIniSection {
  public:
    explicit WinIniSection(std::string name) : name_(std::move(name)) {}
    WinIniSection(const WinIniSection&) = delete;
    WinIniSection& operator=(const WinIniSection&) = delete;
    ~WinIniSection() { WriteProfileStringA(name_.c_str(), nullptr, nullptr); }

    const std::string& name() const { return name_; }

    /// Whether the file can be written; a user without an administrator's rights may not.
    bool isWritable() const {
        return WriteProfileStringA(name_.c_str(), "Probe", "1") != FALSE &&
               WriteProfileStringA(name_.c_str(), nullptr, nullptr) != FALSE;
    }

  private:
    std::string name_;
};

}  // namespace velmora::test
