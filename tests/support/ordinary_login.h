// Acting as a user without special rights.
#pragma once

#include <grp.h>
#include <unistd.h>

#include <stdexcept>
#include <vector>

namespace velmora::test {

/// While it lives, a test that runs as root has only the rights of a user that owns nothing and is in no
/// group of root's. Tests that run as anyone else stay as they are.
class OrdinaryLogin {
  public:
    OrdinaryLogin() {
        if (geteuid() != 0) {
            return;
        }
        groups_.resize(static_cast<std::size_t>(getgroups(0, nullptr)));
        getgroups(static_cast<int>(groups_.size()), groups_.data());
        dropped_ = setgroups(0, nullptr) == 0 && setegid(kNobody) == 0 && seteuid(kNobody) == 0;
        if (!dropped_) {
            throw std::runtime_error("root cannot act as somebody else here");
        }
    }
    ~OrdinaryLogin() {
        // The real user is still root, so taking the rights back cannot be refused.
        if (dropped_ && seteuid(0) == 0 && setegid(0) == 0) {
            static_cast<void>(setgroups(groups_.size(), groups_.data()) == 0);
        }
    }
    OrdinaryLogin(const OrdinaryLogin&) = delete;
    OrdinaryLogin& operator=(const OrdinaryLogin&) = delete;

  private:
    static constexpr uid_t kNobody = 65534;
    std::vector<gid_t> groups_;
    bool dropped_ = false;
};

}  // namespace velmora::test
