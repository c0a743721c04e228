// Logins and groups of the tests' choosing, in the place of this machine's. This header defines functions of
// the C library anew, so that exactly one source file of a test program may include it.
#pragma once

#include <grp.h>
#include <pwd.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <optional>
#include <string>
#include <vector>

#include "support/failing_call.h"

namespace velmora::test {

/// All tests share the one object; begin and end with a new one.
struct LoginRecords {
    bool known = true;                 ///< no user and no group has a name otherwise
    std::vector<std::string> members;  ///< of every group
    std::optional<std::vector<gid_t>>
        groups;  ///< of this session, the first being its own; nothing: the real ones
};

inline LoginRecords& loginRecords() {
    static LoginRecords records;
    return records;
}

}  // namespace velmora::test

extern "C" {

int getpwuid_r(uid_t id, passwd* record, char* buffer, size_t size, passwd** found) {
    *found = nullptr;
    return velmora::test::loginRecords().known
               ? velmora::test::original("getpwuid_r", &getpwuid_r)(id, record, buffer, size, found)
               : ENOENT;
}
int getgrgid_r(gid_t id, group* record, char* buffer, size_t size, group** found) {
    static std::vector<char*> members;
    *found = nullptr;
    velmora::test::LoginRecords& records = velmora::test::loginRecords();
    const int error =
        records.known ? velmora::test::original("getgrgid_r", &getgrgid_r)(id, record, buffer, size, found)
                      : ENOENT;
    if (*found != nullptr) {
        members.clear();
        for (std::string& member : records.members) {
            members.push_back(member.data());
        }
        members.push_back(nullptr);
        record->gr_mem = members.data();
    }
    return error;
}
gid_t getegid() noexcept {
    const std::optional<std::vector<gid_t>>& groups = velmora::test::loginRecords().groups;
    return groups ? groups->front() : velmora::test::original("getegid", &getegid)();
}
int getgroups(int count, gid_t* list) noexcept {
    const std::optional<std::vector<gid_t>>& groups = velmora::test::loginRecords().groups;
    if (!groups) {
        return velmora::test::original("getgroups", &getgroups)(count, list);
    }
    if (count > 0) {
        std::copy(groups->begin(), groups->end(), list);
    }
    return static_cast<int>(groups->size());
}

}  // extern "C"
