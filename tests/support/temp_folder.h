// A folder on disk that is gone after the test.
#pragma once

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <random>
#include <sstream>
#include <stdexcept>
#include <string>
#include <system_error>
#include <vector>

namespace velmora::test {

/// A new, empty folder in the system's temporary folder, deleted with all it holds on destruction.
class TempFolder {
  public:
    TempFolder() {
        std::random_device random;
        do {
            path_ = std::filesystem::temp_directory_path() / ("velmora-" + std::to_string(random()));
        } while (!std::filesystem::create_directory(path_));
        path_ = std::filesystem::canonical(path_);
    }
    TempFolder(const TempFolder&) = delete;
    TempFolder& operator=(const TempFolder&) = delete;
    ~TempFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }

    /// The folder's absolute path, or that of a name in it.
    std::string path() const { return path_.string(); }
    std::string path(const std::string& name) const { return (path_ / name).string(); }

    /// Makes a folder in it, with those on the way, and returns its path.
    std::string makeFolder(const std::string& name) const {
        std::filesystem::create_directories(path_ / name);
        return path(name);
    }
    /// Makes or replaces a file in it and returns its path.
    std::string write(const std::string& name, const std::string& bytes = {}) const {
        std::ofstream file(path_ / name, std::ios::binary | std::ios::trunc);
        file << bytes;
        if (!file.flush()) {
            throw std::runtime_error("cannot write " + path(name));
        }
        return path(name);
    }
    /// The bytes of a file in it.
    std::string read(const std::string& name) const {
        std::ifstream file(path_ / name, std::ios::binary);
        if (!file) {
            throw std::runtime_error("cannot read " + path(name));
        }
        std::ostringstream bytes;
        bytes << file.rdbuf();
        return bytes.str();
    }
    /// The names in it, in order.
    std::vector<std::string> names() const {
        std::vector<std::string> all;
        for (const auto& entry : std::filesystem::directory_iterator(path_)) {
            all.push_back(entry.path().filename().string());
        }
        std::sort(all.begin(), all.end());
        return all;
    }

  private:
    std::filesystem::path path_;
};

}  // namespace velmora::test
