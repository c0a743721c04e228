// Path rules for tests that only need to find a file's folder.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "base/path_rules.h"

namespace velmora::test {

/// Paths with '/', absolute ones only, no drives, names as they are.
class SlashPathRules : public PathRules {
  public:
    char separator() const override { return '/'; }
    bool hasDrives() const override { return false; }
    std::optional<std::string> fromOrganiser(std::string_view name) const override {
        std::string text(name);
        for (char& c : text) {
            c = c == '\\' ? '/' : c;
        }
        return text;
    }
    std::optional<std::string> toOrganiser(std::string_view name) const override { return std::string(name); }
    std::string join(std::string_view folder, std::string_view name) const override {
        return std::string(folder) + "/" + std::string(name);
    }
    std::string drive(std::string_view) const override { return {}; }
    std::string parentFolder(std::string_view path) const override {
        const std::size_t cut = path.rfind('/');
        return cut == std::string_view::npos ? std::string() : std::string(path.substr(0, cut));
    }
    std::string lastComponent(std::string_view path) const override {
        return std::string(path.substr(path.rfind('/') + 1));
    }
    std::string absolute(std::string_view path) const override { return std::string(path); }
};

}  // namespace velmora::test
