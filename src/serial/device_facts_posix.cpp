#include <fcntl.h>
#include <grp.h>
#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cctype>
#include <cerrno>
#include <filesystem>
#include <fstream>
#include <string_view>
#include <vector>

#include "serial/device_facts.h"

namespace velmora {

namespace {

namespace fs = std::filesystem;

/// Enough for the records of any user or group; a larger one is told by its number.
constexpr std::size_t kRecordSize = 1 << 16;
/// A machine with more open files than this is not searched to the end: the answer is a courtesy.
constexpr int kMostDescriptors = 200'000;

std::string userName(uid_t id) {
    std::vector<char> buffer(kRecordSize);
    passwd record{};
    passwd* found = nullptr;
    getpwuid_r(id, &record, buffer.data(), buffer.size(), &found);
    return found ? std::string(found->pw_name) : std::to_string(id);
}

/// Fills in the group's name and whether the login is one of its members.
void describeGroup(gid_t id, DeviceFacts& facts) {
    std::vector<char> buffer(kRecordSize);
    group record{};
    group* found = nullptr;
    getgrgid_r(id, &record, buffer.data(), buffer.size(), &found);
    facts.group = found ? std::string(found->gr_name) : std::to_string(id);
    if (found) {
        for (char** member = found->gr_mem; *member != nullptr; ++member) {
            facts.loginIsMember = facts.loginIsMember || facts.login == *member;
        }
    }
}

bool sessionHasGroup(gid_t id) {
    const int count = getgroups(0, nullptr);
    std::vector<gid_t> groups(static_cast<std::size_t>(std::max(count, 0)));
    const int got = getgroups(static_cast<int>(groups.size()), groups.data());
    groups.resize(static_cast<std::size_t>(std::max(got, 0)));
    return getegid() == id || std::find(groups.begin(), groups.end(), id) != groups.end();
}

bool isNumber(std::string_view text) {
    return !text.empty() &&
           std::all_of(text.begin(), text.end(), [](unsigned char c) { return std::isdigit(c) != 0; });
}

/// Whether one of the process's descriptors, `except` left out, is the file; every look counts down `budget`.
bool holds(const fs::path& process, const fs::path& file, const std::string& except, int& budget) {
    std::error_code error;
    fs::directory_iterator entries(process / "fd", error);
    for (; !error && entries != fs::directory_iterator() && budget > 0; entries.increment(error)) {
        --budget;
        std::error_code gone;
        if (entries->path().filename() != except && fs::read_symlink(entries->path(), gone) == file &&
            !gone) {
            return true;
        }
    }
    return false;
}

/// The number of the first process that has the device open, as text; empty when none is known. Of this
/// program's descriptors, `except` does not count.
std::string holderId(const std::string& device, const std::string& processes,
                     const std::string& except = {}) {
    std::error_code error;
    const fs::path file = fs::canonical(device, error);
    if (error) {
        return {};
    }
    const std::string self = std::to_string(getpid());
    int budget = kMostDescriptors;
    fs::directory_iterator entries(processes, error);
    for (; !error && entries != fs::directory_iterator() && budget > 0; entries.increment(error)) {
        std::string id = entries->path().filename().string();
        if (isNumber(id) && holds(entries->path(), file, id == self ? except : std::string(), budget)) {
            return id;
        }
    }
    return {};
}

}  // namespace

DeviceFacts gatherDeviceFacts(const std::string& device) {
    DeviceFacts facts;
    struct stat status {};
    if (stat(device.c_str(), &status) != 0) {
        // Something that may not even be looked at is there all the same.
        facts.exists = errno == EACCES;
        return facts;
    }
    facts.exists = true;
    facts.stamp = std::to_string(status.st_rdev) + "/" + std::to_string(status.st_ino) + "/" +
                  std::to_string(status.st_ctim.tv_sec) + "." + std::to_string(status.st_ctim.tv_nsec);
    facts.mayOpen = faccessat(AT_FDCWD, device.c_str(), R_OK | W_OK, AT_EACCESS) == 0;
    facts.owner = userName(status.st_uid);
    facts.login = userName(geteuid());
    facts.groupMayOpen = (status.st_mode & (S_IRGRP | S_IWGRP)) == (S_IRGRP | S_IWGRP);
    describeGroup(status.st_gid, facts);
    facts.sessionIsMember = sessionHasGroup(status.st_gid);
    return facts;
}

std::string findHolder(const std::string& device, const std::string& processes) {
    const std::string id = holderId(device, processes);
    if (id.empty()) {
        return {};
    }
    if (id == std::to_string(getpid())) {
        return "this program";
    }
    std::string name;
    std::ifstream comm(fs::path(processes) / id / "comm");
    std::getline(comm, name);
    return (name.empty() ? std::string("a program") : name) + " (process " + id + ")";
}

bool heldByOthers(const std::string& device, int descriptor, const std::string& processes) {
    return !holderId(device, processes, std::to_string(descriptor)).empty();
}

}  // namespace velmora
