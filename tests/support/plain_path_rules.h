// Path rules without a system behind them: '/' or '\\', names taken byte for byte.
#pragma once

#include <string>

#include "base/path_rules.h"

namespace velmora::test {

class PlainPathRules : public PathRules {
  public:
    explicit PlainPathRules(char separator = '/') : separator_(separator) {}

    char separator() const override { return separator_; }
    bool hasDrives() const override { return separator_ == '\\'; }
    std::optional<std::string> fromOrganiser(std::string_view name) const override {
        return std::string(name);
    }
    std::optional<std::string> toOrganiser(std::string_view name) const override { return std::string(name); }
    std::string join(std::string_view folder, std::string_view name) const override {
        const bool closed = !folder.empty() && folder.back() == separator_;
        return std::string(folder) + (closed ? std::string() : std::string(1, separator_)) +
               std::string(name);
    }
    std::string drive(std::string_view path) const override {
        return hasDrives() && path.substr(1, 1) == ":" ? std::string(path.substr(0, 2)) : std::string();
    }
    std::string parentFolder(std::string_view path) const override {
        const std::size_t cut = path.rfind(separator_);
        return cut == std::string_view::npos ? std::string() : std::string(path.substr(0, cut));
    }
    std::string lastComponent(std::string_view path) const override {
        return std::string(path.substr(path.rfind(separator_) + 1));
    }
    /// A relative path is taken to start at the folder "/current" (or "C:\current").
    std::string absolute(std::string_view path) const override {
        if (path.starts_with(separator_) || !drive(path).empty()) {
            return std::string(path);
        }
        return join(hasDrives() ? "C:\\current" : "/current", path);
    }

  private:
    char separator_;
};

}  // namespace velmora::test
