// Path rules and a name mapper that are just enough for the services' tests.
#pragma once

#include <algorithm>
#include <optional>
#include <string>

#include "base/byte_text.h"
#include "base/files.h"
#include "base/path_rules.h"
#include "services/file_name_mapper.h"

namespace velmora::test {

/// '/' between components, UTF-8, no drives; paths are taken to be absolute already.
class SimplePathRules : public PathRules {
  public:
    char separator() const override { return '/'; }
    bool hasDrives() const override { return false; }
    std::optional<std::string> fromOrganiser(std::string_view name) const override {
        if (name.find('\0') != std::string_view::npos) {
            return std::nullopt;
        }
        std::string path(name);
        std::replace(path.begin(), path.end(), '\\', '/');
        return toUtf8Exact(path);
    }
    std::optional<std::string> toOrganiser(std::string_view name) const override { return fromUtf8(name); }
    std::string join(std::string_view folder, std::string_view name) const override {
        return std::string(folder) + '/' + std::string(name);
    }
    std::string drive(std::string_view) const override { return {}; }
    std::string parentFolder(std::string_view path) const override {
        const std::size_t cut = path.rfind('/');
        return std::string(path.substr(0, cut == std::string_view::npos ? 0 : cut));
    }
    std::string lastComponent(std::string_view path) const override {
        return std::string(path.substr(path.rfind('/') + 1));
    }
    std::string absolute(std::string_view path) const override { return std::string(path); }
};

/// Names in one folder: ">" for "~" undone, names in capitals re-cased, "*" refused where it is not allowed.
class FolderMapper : public FileNameMapper {
  public:
    FolderMapper(const Files& files, const PathRules& rules, std::string folder)
        : files_(files), rules_(rules), folder_(std::move(folder)) {}

    std::string map_FileName(std::string_view name, bool resolveExisting,
                             bool allowWildcards) const override {
        std::string text = trimBlanks(name);
        std::replace(text.begin(), text.end(), '>', '~');
        const std::optional<std::string> converted = rules_.fromOrganiser(text);
        if (!converted || (!allowWildcards && text.find('*') != std::string::npos)) {
            return {};
        }
        std::string path = rules_.join(folder_, *converted);
        std::string file = rules_.lastComponent(path);
        if (!files_.folderExists(rules_.parentFolder(path))) {
            return {};
        }
        if (rules_.baseName(file) == upperCase(rules_.baseName(file)) && !file.empty()) {
            file = file.substr(0, 1) + lowerCase(file.substr(1));
        }
        path = rules_.join(rules_.parentFolder(path), file);
        return resolveExisting ? files_.storedPath(path) : path;
    }
    std::string displayName(const std::string& path) const override {
        return rules_.toOrganiser(rules_.lastComponent(path)).value_or("?");
    }

  private:
    const Files& files_;
    const PathRules& rules_;
    std::string folder_;
};

}  // namespace velmora::test
