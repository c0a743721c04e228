#include "platform/posix/xdg_folders.h"

#include <pwd.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <utility>
#include <vector>

#include "platform/posix/user_dirs.h"

namespace velmora {
namespace {

/// The home folder of this login in the user data base.
std::optional<std::string> homeOfLogin() {
    std::vector<char> buffer(16'384);
    passwd entry{};
    passwd* found = nullptr;
    if (getpwuid_r(getuid(), &entry, buffer.data(), buffer.size(), &found) != 0 || found == nullptr) {
        return std::nullopt;
    }
    return std::string(found->pw_dir);
}

std::string withoutFinalSlash(std::string path) {
    while (path.size() > 1 && path.back() == '/') {
        path.pop_back();
    }
    return path;
}

/// A variable that holds an absolute path; the standards tell to ignore any other value.
std::optional<std::string> folderFrom(const EnvironmentLookup& environment, const std::string& name) {
    const std::optional<std::string> value = environment(name);
    if (!value || value->substr(0, 1) != "/") {
        return std::nullopt;
    }
    return withoutFinalSlash(*value);
}

std::string below(const std::string& folder, const std::string& name) {
    return folder == "/" ? "/" + name : folder + "/" + name;
}

}  // namespace

EnvironmentLookup processEnvironment() {
    return [](const std::string& name) -> std::optional<std::string> {
        if (const char* value = std::getenv(name.c_str())) {
            return std::string(value);
        }
        return name == "HOME" ? homeOfLogin() : std::nullopt;
    };
}

std::string currentFolder() {
    std::error_code error;
    const std::filesystem::path folder = std::filesystem::current_path(error);
    return error ? "/" : folder.string();
}

std::string windowsFolder() {
    return {};
}

XdgFolders::XdgFolders(EnvironmentLookup environment) : environment_(std::move(environment)) {}

std::string XdgFolders::home() const {
    return folderFrom(environment_, "HOME").value_or("/");
}

std::string XdgFolders::applicationData() const {
    const std::optional<std::string> configured = folderFrom(environment_, "XDG_CONFIG_HOME");
    return configured ? *configured : below(home(), ".config");
}

std::string XdgFolders::programData() const {
    const std::string state = environment_("STATE_DIRECTORY").value_or("");
    if (state.substr(0, 1) == "/") {
        return withoutFinalSlash(state.substr(0, state.find(':')));
    }
    const std::optional<std::string> configured = folderFrom(environment_, "XDG_DATA_HOME");
    return below(configured ? *configured : below(home(), ".local/share"), "Velmora");
}

std::string XdgFolders::documents() const {
    std::ifstream file(below(applicationData(), "user-dirs.dirs"), std::ios::binary);
    const std::optional<std::string> configured = userDir(file, "XDG_DOCUMENTS_DIR", home());
    return configured ? *configured : below(home(), "Documents");
}

std::string XdgFolders::temporary() const {
    return folderFrom(environment_, "TMPDIR").value_or("/tmp");
}

}  // namespace velmora
