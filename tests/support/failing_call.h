// System calls that fail on demand, as those of a broken disk or device do. The headers named after their
// subject define the functions.
#pragma once

#include <dlfcn.h>

#include <cerrno>
#include <optional>
#include <string_view>

namespace velmora::test {

/// While it lives, calls of one function fail. Of several for one function the newest comes first. Nothing of
/// it needs a constructor before main() or after it: the functions are called there too.
class FailingCall {
  public:
    /// `function` is its name in the C library, `error` the errno of its failure; with 0 it answers 0 and
    /// does nothing. The first `after` calls are made as ever, the next `times` fail, and the rest is made.
    FailingCall(std::string_view function, int error, int times = 1, int after = 0)
        : function_(function), error_(error), times_(times), after_(after), next_(newest()) {
        newest() = this;
    }
    ~FailingCall() { newest() = next_; }
    FailingCall(const FailingCall&) = delete;
    FailingCall& operator=(const FailingCall&) = delete;

    /// For the functions: the reason why this call fails, if it does.
    static std::optional<int> reason(std::string_view function) {
        for (FailingCall* call = newest(); call != nullptr; call = call->next_) {
            if (call->function_ == function && call->counts()) {
                return call->error_;
            }
        }
        return std::nullopt;
    }

  private:
    bool counts() {
        if (after_ > 0) {
            --after_;
            return false;
        }
        return times_ > 0 && times_-- > 0;
    }
    static FailingCall*& newest() {
        static FailingCall* call = nullptr;
        return call;
    }

    std::string_view function_;
    int error_;
    int times_;
    int after_;
    FailingCall* next_;
};

/// The C library's own function of that name; `like` says of what type it is.
template <typename Function>
Function* original(const char* name, Function* /*like*/) {
    return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

/// Calls the C library's own function of that name, or fails: -1 and errno, or 0.
template <typename Function, typename... Arguments>
auto callOrFail(const char* name, Function* like, Arguments... arguments) {
    if (const std::optional<int> error = FailingCall::reason(name)) {
        errno = *error;
        return static_cast<decltype(like(arguments...))>(*error == 0 ? 0 : -1);
    }
    return original(name, like)(arguments...);
}

}  // namespace velmora::test
